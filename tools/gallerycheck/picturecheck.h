#ifndef PICTURECHECK_H
#define PICTURECHECK_H

// The gallery held against its reference: a digest of every picture's
// pixels, the reference file that keeps them, and what differs between a
// reference and a gallery just rendered.
//
// A reference file holds one line per picture, "NAME DIGEST", after a
// header of comment lines ("# ..."), one of which names the commit that
// the reference was made at ("# commit SHA"). The digest is of the decoded
// pixels, so that the PNG encoder's choices don't count.

#include <QImage>
#include <QMap>
#include <QString>
#include <QStringList>

namespace PictureCheck {

// SHA-256 over "WIDTHxHEIGHT\n" and the pixels as RGBA bytes, row by row,
// in lower-case hex. Two images digest alike when every pixel is alike,
// whatever their formats in memory.
QString digest(QImage const &image);

// The digest of every PNG file in folder, by file name. A file that can't
// be decoded is named in errors.
QMap<QString, QString> digestsOf(QString const &folder, QStringList *errors);

// Orders picture names as the gallery makes them: by family, page and
// screen, numbers by value (28_3-2.png before 28_3-10.png, 9_1.png before
// 28_1.png).
bool namesInOrder(QString const &a, QString const &b);

struct Reference
{
    QString commit;                 // empty when the header names none
    QMap<QString, QString> digests; // by picture name
    QMap<QString, int> lines;       // the line of each picture
};

// Reads a reference's text; fileName goes into the messages. Every bad line
// is named in errors as "FILE:LINE: ..."; false when there was one.
bool parseReference(QString const &fileName, QByteArray const &text, Reference *reference, QStringList *errors);
bool readReference(QString const &fileName, Reference *reference, QStringList *errors);

// The text of a reference for digests, made at commit; header lines come
// first, as comments.
QByteArray referenceText(QStringList const &header, QString const &commit, QMap<QString, QString> const &digests);

// How a rendered gallery stands against a reference.
struct Outcome
{
    QStringList changed;  // in both, with other pixels
    QStringList missing;  // in the reference, not rendered
    QStringList unlisted; // rendered, with no line in the reference

    bool same() const { return changed.isEmpty() && missing.isEmpty() && unlisted.isEmpty(); }
};

Outcome compare(Reference const &reference, QMap<QString, QString> const &rendered);

// What an outcome means, a line per picture, each naming the reference file
// and, where the picture has one, its line.
QStringList describe(QString const &fileName, Reference const &reference, Outcome const &outcome);

// The reference and the new picture side by side, and a third panel with
// the new one faded and each differing pixel in red, the region of the
// differences framed. Pictures of different sizes are compared over the
// larger; what only one of them covers differs. differing receives the
// count of differing pixels.
QImage sideBySide(QImage const &reference, QImage const &current, QStringList const &captions, int *differing);

} // namespace PictureCheck

#endif // PICTURECHECK_H
