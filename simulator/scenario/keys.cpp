#include "keys.h"

#include <QStringList>

namespace HeadUnitKeys {

QList<Key> const &all()
{
    static const QList<Key> keys = {
        {"enter", 0x1100041, "Enter"},
        {"back", 0x110002A, "Back"},
        {"up", 0x110003F, "\u25B2"},
        {"down", 0x1100040, "\u25BC"},
        {"left", 0x110003D, "\u25C0"},
        {"right", 0x110003E, "\u25B6"},
        {"next", 0x110004D, "Next"},
        {"previous", 0x110004E, "Previous"},
        {"remote-enter", 0x1400009, nullptr},
        {"remote-up", 0x140000A, nullptr},
        {"remote-down", 0x140000B, nullptr},
        {"remote-left", 0x140000C, nullptr},
        {"remote-right", 0x140000D, nullptr},
        {"remote-back", 0x140000F, nullptr},
        // The desktop keyboard's, as a person presses them on the window's
        // screen.
        {"arrow-up", Qt::Key_Up, nullptr},
        {"arrow-down", Qt::Key_Down, nullptr},
        {"arrow-left", Qt::Key_Left, nullptr},
        {"arrow-right", Qt::Key_Right, nullptr},
        {"return", Qt::Key_Return, nullptr},
        {"escape", Qt::Key_Escape, nullptr},
    };
    return keys;
}

int code(QString const &name)
{
    for (Key const &key : all()) {
        if (name == QLatin1String(key.name))
            return key.code;
    }
    return -1;
}

QStringList names()
{
    QStringList list;
    for (Key const &key : all())
        list << QLatin1String(key.name);
    return list;
}

} // namespace HeadUnitKeys
