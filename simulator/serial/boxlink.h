#ifndef BOXLINK_H
#define BOXLINK_H

// A link to a real decoder box: the frames the plug-in sends go out on it,
// byte for byte and in order, and what the box sends back comes in cut into
// frames and noise (FrameSplitter). The desktop's link is a serial port
// (SerialLink); the host works through this interface alone, so that builds
// without a serial port module still run scenarios.

#include "framesplitter.h"

#include <QObject>
#include <QString>

class BoxLink : public QObject
{
    Q_OBJECT
public:
    enum State {
        // No port chosen, or closed on request.
        Unlinked,
        // The port is open.
        Linked,
        // The port went away (an adapter pulled); the link opens it again
        // as soon as it returns.
        Lost
    };
    Q_ENUM(State)

    // The rate when DEVICE[:BAUD] names none. Boxes differ; this is a
    // common one.
    static constexpr qint32 DefaultBaudRate = 38400;

    explicit BoxLink(QObject *parent = nullptr);

    // "DEVICE[:BAUD]": the device, and the rate after its last colon when
    // that is a number. False, with the reason in *error, for an empty
    // device or a rate that isn't a positive number.
    static bool parseTarget(QString const &text, QString *device, qint32 *baudRate, QString *error);
    // "Linked", "Lost", "Unlinked".
    static QString stateName(State state);

    // Opens the device: 8 data bits, no parity, one stop bit. False, with
    // the reason in *error, when it can't be opened (missing, busy, no
    // permission); the link then stays unlinked.
    virtual bool open(QString const &device, qint32 baudRate, QString *error) = 0;
    virtual void close() = 0;
    virtual State state() const = 0;
    virtual QString device() const = 0;
    virtual qint32 baudRate() const = 0;

public slots:
    // One frame out, exactly its bytes. A frame that can't be written is
    // logged with the reason.
    virtual void send(QByteArray const &frame) = 0;

signals:
    // reason: why the link was lost, empty otherwise.
    void stateChanged(BoxLink::State state, QString const &reason);
    void received(FrameSplitter::Piece const &piece);
};

Q_DECLARE_METATYPE(FrameSplitter::Piece)

#endif // BOXLINK_H
