#ifndef SERIALLINK_H
#define SERIALLINK_H

// The link to a real decoder box over a serial port (a USB serial adapter on
// the bench), with Qt's QSerialPort: 8 data bits, no parity, one stop bit,
// no flow control. What comes back is read as it arrives and cut into
// frames; bytes of a frame that stop coming for QuietMs are handed on as
// noise. When the port goes away (an adapter pulled, the other end of a
// pseudo-terminal closed) the link says so, keeps the device's name and
// tries it again every RetryMs until it opens.

#include "boxlink.h"

#include <QSerialPort>
#include <QTimer>

class SerialLink : public BoxLink
{
    Q_OBJECT
public:
    static constexpr int RetryMs = 500;
    static constexpr int QuietMs = 500;

    explicit SerialLink(QObject *parent = nullptr);
    ~SerialLink() override;

    bool open(QString const &device, qint32 baudRate, QString *error) override;
    void close() override;
    State state() const override;
    QString device() const override;
    qint32 baudRate() const override;

public slots:
    void send(QByteArray const &frame) override;

private:
    bool openPort(QString *error);
    void setState(State state, QString const &reason = QString());
    void readArrived();
    void failed(QSerialPort::SerialPortError error);
    void lose(QString const &reason);
    void handOn(QList<FrameSplitter::Piece> const &pieces);

    QSerialPort m_port;
    QTimer m_retry;
    QTimer m_quiet;
    FrameSplitter m_splitter;
    QString m_device;
    // Why the frame being written didn't go out, empty while all is well.
    QString m_writeFailure;
    State m_state = Unlinked;
    qint32 m_baudRate = DefaultBaudRate;
};

#endif // SERIALLINK_H
