#include "boxlink.h"

BoxLink::BoxLink(QObject *parent)
    : QObject(parent)
{
    // For queued connections and spies.
    qRegisterMetaType<BoxLink::State>();
    qRegisterMetaType<FrameSplitter::Piece>();
}

bool BoxLink::parseTarget(QString const &text, QString *device, qint32 *baudRate, QString *error)
{
    *device = text;
    *baudRate = DefaultBaudRate;
    const int colon = text.lastIndexOf(QLatin1Char(':'));
    // A colon followed by digits alone names the rate; device paths such as
    // /dev/serial/by-path/pci-0000:00:14.0-usb-0:1:1.0-port0 have colons too.
    if (colon >= 0) {
        const QString rate = text.mid(colon + 1);
        bool digits = !rate.isEmpty();
        for (QChar const c : rate)
            digits = digits && c.isDigit();
        if (digits) {
            bool ok = false;
            const int value = rate.toInt(&ok);
            if (!ok || value <= 0) {
                *error = QStringLiteral("bad baud rate \"%1\"").arg(rate);
                return false;
            }
            *device = text.left(colon);
            *baudRate = value;
        }
    }
    if (device->isEmpty()) {
        *error = QStringLiteral("no device in \"%1\"").arg(text);
        return false;
    }
    return true;
}

QString BoxLink::stateName(State state)
{
    switch (state) {
    case Linked:
        return QStringLiteral("Linked");
    case Lost:
        return QStringLiteral("Lost");
    case Unlinked:
        break;
    }
    return QStringLiteral("Unlinked");
}
