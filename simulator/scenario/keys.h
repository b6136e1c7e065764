#ifndef KEYS_H
#define KEYS_H

// The head unit's hardware keys, as the key codes of their key events: the
// keys on the unit's front panel and those of its remote control.

#include <QList>
#include <QString>

namespace HeadUnitKeys {

struct Key
{
    char const *name;
    int code;
    char const *label;   // the text of the window's button; null: no button
};

// The panel's keys (enter, back, arrows, next, previous), the remote
// control's ("remote-enter" and the like), then the desktop keyboard's
// ("arrow-down", "return", "escape").
QList<Key> const &all();
// The code of a key by its name, or -1.
int code(QString const &name);
// The names of all keys, for messages.
QStringList names();

} // namespace HeadUnitKeys

#endif // KEYS_H
