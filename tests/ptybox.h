#ifndef PTYBOX_H
#define PTYBOX_H

// A pseudo-terminal that stands in for a decoder box on a serial port: the
// test holds the master side, the link opens the other by its name. And
// frames with their checksums computed here, by the box's rule, not the
// host's.

#include <QByteArray>
#include <QString>
#include <QtTest>

#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

namespace PtyBox {

// 2E command L payload checksum: 0xFF XOR the low byte of the sum from the
// command to the last payload byte.
inline QByteArray frame2E(quint8 command, QByteArray const &payload)
{
    QByteArray frame;
    frame.append(char(0x2E)).append(char(command)).append(char(payload.size())).append(payload);
    quint8 sum = 0;
    for (int i = 1; i < frame.size(); ++i)
        sum += quint8(frame.at(i));
    return frame.append(char(0xFF ^ sum));
}

// FD N command payload checksum (one byte): the low byte of the sum from N to
// the last payload byte.
inline QByteArray frameFD(quint8 command, QByteArray const &payload)
{
    QByteArray frame;
    frame.append(char(0xFD)).append(char(payload.size() + 3)).append(char(command)).append(payload);
    quint8 sum = 0;
    for (int i = 1; i < frame.size(); ++i)
        sum += quint8(frame.at(i));
    return frame.append(char(sum));
}

inline QByteArray broken(QByteArray frame)
{
    frame[frame.size() - 1] = char(frame.at(frame.size() - 1) ^ 0x5A);
    return frame;
}

// The master side of a pseudo-terminal, non-blocking, and the name of the
// slave side that a serial port opens.
struct Pty
{
    int master = -1;
    QString slave;

    bool open()
    {
        int slaveFd = -1;
        char name[256] = {};
        if (openpty(&master, &slaveFd, name, nullptr, nullptr) != 0)
            return false;
        ::close(slaveFd);
        fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
        slave = QString::fromLocal8Bit(name);
        return true;
    }
    void close()
    {
        if (master >= 0)
            ::close(master);
        master = -1;
    }
    ~Pty() { close(); }
    void write(QByteArray const &bytes) const { QCOMPARE(::write(master, bytes.constData(), bytes.size()), ssize_t(bytes.size())); }
    // What has arrived by now.
    QByteArray read() const
    {
        QByteArray all;
        char buffer[512];
        ssize_t n;
        while ((n = ::read(master, buffer, sizeof buffer)) > 0)
            all.append(buffer, int(n));
        return all;
    }
};

} // namespace PtyBox

#endif // PTYBOX_H
