#ifndef PAGETEXTS_H
#define PAGETEXTS_H

// The texts that the pages translate while they run, as a C++ source that
// Qt's lupdate reads beside the plug-in's own: one
//
//     QT_TRANSLATE_NOOP("CarInfoItem28_2", "Treble");
//
// a line, in the context that the page translates it in. Most of them are
// plain strings in the row tables, handed to the row engine and translated
// only when a page builds its list, where lupdate can't see them.
//
// Every page of every protocol is built on the desktop host and shown its
// view, with a translator installed that notes every text asked of it: the
// stacks' titles, the rows' titles and text options, and what the pages'
// own widgets translate. Tables that depend on the buffer (a car model
// byte choosing the options) are read once more on buffers filled with
// each byte value.

#include <QByteArray>

namespace PageTexts {

QByteArray source();

} // namespace PageTexts

#endif // PAGETEXTS_H
