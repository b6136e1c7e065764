// The link to a real decoder box, with a pseudo-terminal standing in for the
// box: the test holds the master side and the link opens the other.

#include "framesplitter.h"
#include "hostsim.h"
#include "ptybox.h"
#include "seriallink.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Received
{
    QList<FrameSplitter::Piece> pieces;
    QStringList texts() const
    {
        QStringList out;
        for (FrameSplitter::Piece const &piece : pieces)
            out << QStringLiteral("%1 %2").arg(piece.kind).arg(QString::fromLatin1(piece.bytes.toHex(' ')));
        return out;
    }
};

QString text(FrameSplitter::Kind kind, QByteArray const &bytes)
{
    return QStringLiteral("%1 %2").arg(kind).arg(QString::fromLatin1(bytes.toHex(' ')));
}

} // namespace

class TestSerialLink : public QObject
{
    Q_OBJECT
private slots:
    void init() { HostSim::setProtocolId(28); }

    void framesGoOutByteForByte()
    {
        PtyBox::Pty pty;
        QVERIFY(pty.open());
        SerialLink link;
        QString error;
        QVERIFY2(link.open(pty.slave, 115200, &error), qPrintable(error));
        QCOMPARE(link.state(), BoxLink::Linked);
        QCOMPARE(link.baudRate(), 115200);

        // Bytes that a terminal would translate or swallow (CR, LF, ^C, ^S,
        // DEL) go out as they are.
        const QList<QByteArray> frames = {
            PtyBox::frame2E(0xA8, QByteArray::fromHex("010a")),
            PtyBox::frame2E(0x90, QByteArray::fromHex("0d0a")),
            PtyBox::frameFD(0x83, QByteArray::fromHex("03137f")),
            QByteArray::fromHex("2eef047d02000b"),
        };
        QByteArray expected;
        for (QByteArray const &frame : frames) {
            link.send(frame);
            expected += frame;
        }
        QByteArray arrived;
        QTRY_COMPARE((arrived += pty.read()), expected);
    }

    // What the box sends comes back cut into frames, bad checksums marked and
    // noise kept, however the bytes are split across reads.
    void reportsAreCutIntoFrames_data()
    {
        QTest::addColumn<QList<QByteArray>>("reads");
        QTest::addColumn<QStringList>("pieces");
        const QByteArray good = PtyBox::frame2E(0x41, QByteArray::fromHex("0102"));
        const QByteArray fd = PtyBox::frameFD(0x84, QByteArray::fromHex("0a"));
        const QByteArray empty = PtyBox::frame2E(0x25, QByteArray());
        const QByteArray noise = QByteArray::fromHex("00137fff");
        using K = FrameSplitter::Kind;
        QTest::newRow("one good frame") << QList<QByteArray>{good} << QStringList{text(K::Frame, good)};
        QTest::newRow("no payload") << QList<QByteArray>{empty} << QStringList{text(K::Frame, empty)};
        QTest::newRow("bad checksum") << QList<QByteArray>{PtyBox::broken(good)} << QStringList{text(K::BadChecksum, PtyBox::broken(good))};
        QTest::newRow("split across reads")
            << QList<QByteArray>{good.left(1), good.mid(1, 2), good.mid(3)} << QStringList{text(K::Frame, good)};
        QTest::newRow("two in one read")
            << QList<QByteArray>{good + fd} << QStringList{text(K::Frame, good), text(K::Frame, fd)};
        QTest::newRow("noise between")
            << QList<QByteArray>{good + noise + fd}
            << QStringList{text(K::Frame, good), text(K::Noise, noise), text(K::Frame, fd)};
        // An FD whose length can't hold a command and a checksum starts
        // no frame.
        QTest::newRow("short FD length is noise")
            << QList<QByteArray>{QByteArray::fromHex("fd02") + good}
            << QStringList{text(K::Noise, QByteArray::fromHex("fd02")), text(K::Frame, good)};
        // A frame begun and never finished is noise once the line is quiet.
        QTest::newRow("unfinished frame")
            << QList<QByteArray>{good + good.left(4)}
            << QStringList{text(K::Frame, good), text(K::Noise, good.left(4))};
    }
    void reportsAreCutIntoFrames()
    {
        QFETCH(QList<QByteArray>, reads);
        QFETCH(QStringList, pieces);
        PtyBox::Pty pty;
        QVERIFY(pty.open());
        SerialLink link;
        QString error;
        QVERIFY2(link.open(pty.slave, BoxLink::DefaultBaudRate, &error), qPrintable(error));
        Received received;
        connect(&link, &BoxLink::received, this, [&received](FrameSplitter::Piece const &piece) {
            received.pieces.append(piece);
        });
        for (QByteArray const &bytes : reads) {
            pty.write(bytes);
            // Each part arrives on its own before the next is written.
            QTest::qWait(30);
        }
        QTRY_COMPARE_WITH_TIMEOUT(received.texts(), pieces, SerialLink::QuietMs + 2000);
    }

    // The 0xFD frames of protocol 67 carry a 16-bit checksum, high byte first.
    void checksumFollowsTheProtocol()
    {
        const QByteArray frame = QByteArray::fromHex("fd068305ff0000");
        QByteArray sealed = frame;
        const int sum = 0x06 + 0x83 + 0x05 + 0xFF;
        sealed[5] = char(sum >> 8);
        sealed[6] = char(sum & 0xFF);
        HostSim::setProtocolId(67);
        FrameSplitter splitter;
        const auto pieces = splitter.feed(sealed + PtyBox::broken(sealed));
        QCOMPARE(pieces.size(), 2);
        QCOMPARE(pieces.at(0).kind, FrameSplitter::Frame);
        QCOMPARE(pieces.at(1).kind, FrameSplitter::BadChecksum);
        QCOMPARE(FrameSplitter::command(pieces.at(0).bytes), 0x83);
        HostSim::setProtocolId(28);
        QCOMPARE(FrameSplitter().feed(sealed).value(0).kind, FrameSplitter::BadChecksum);
    }

    // A long stream of noise is handed on in bounded runs, every byte of it.
    void noiseStaysBounded()
    {
        FrameSplitter splitter;
        const QByteArray chunk(4096, '\x55');
        qint64 handedOn = 0;
        for (int i = 0; i < 256; ++i) {
            for (FrameSplitter::Piece const &piece : splitter.feed(chunk)) {
                QCOMPARE(piece.kind, FrameSplitter::Noise);
                QVERIFY(piece.bytes.size() <= FrameSplitter::MaxNoise);
                handedOn += piece.bytes.size();
            }
            QVERIFY(splitter.pending() < FrameSplitter::MaxNoise);
        }
        for (FrameSplitter::Piece const &piece : splitter.flush())
            handedOn += piece.bytes.size();
        QCOMPARE(handedOn, qint64(256) * chunk.size());
        QCOMPARE(splitter.pending(), 0);
    }

    // The port goes away and comes back under the same name, as an adapter
    // pulled and plugged in again does: here a link to the pseudo-terminal,
    // made anew for another one.
    void reconnectsWhenThePortReturns()
    {
        QTemporaryDir dir;
        const QString device = dir.filePath("ttyBOX");
        PtyBox::Pty first;
        QVERIFY(first.open());
        QVERIFY(QFile::link(first.slave, device));
        SerialLink link;
        QSignalSpy states(&link, &BoxLink::stateChanged);
        QString error;
        QVERIFY2(link.open(device, BoxLink::DefaultBaudRate, &error), qPrintable(error));

        first.close();
        QTRY_COMPARE(link.state(), BoxLink::Lost);
        QVERIFY(!states.last().at(1).toString().isEmpty());
        // Frames sent meanwhile are logged as not written, and the
        // simulator goes on.
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("ttyBOX: frame 2E A8 02 01 0A .. not written: the port is gone"));
        link.send(PtyBox::frame2E(0xA8, QByteArray::fromHex("010a")));

        PtyBox::Pty second;
        QVERIFY(second.open());
        QVERIFY(QFile::remove(device));
        QVERIFY(QFile::link(second.slave, device));
        QTRY_COMPARE_WITH_TIMEOUT(link.state(), BoxLink::Linked, SerialLink::RetryMs * 6);
        QCOMPARE(link.device(), device);

        const QByteArray frame = PtyBox::frame2E(0x90, QByteArray::fromHex("2500"));
        link.send(frame);
        QByteArray arrived;
        QTRY_COMPARE((arrived += second.read()), frame);

        link.close();
        QCOMPARE(link.state(), BoxLink::Unlinked);
        QList<BoxLink::State> seen;
        for (QList<QVariant> const &args : qAsConst(states))
            seen << args.at(0).value<BoxLink::State>();
        QCOMPARE(seen, (QList<BoxLink::State>{BoxLink::Linked, BoxLink::Lost, BoxLink::Linked, BoxLink::Unlinked}));
    }

    void refusesWhatCantBeOpened()
    {
        SerialLink link;
        QString error;
        QVERIFY(!link.open("/nonexistent/ttyUSB9", BoxLink::DefaultBaudRate, &error));
        QVERIFY2(error.startsWith("/nonexistent/ttyUSB9: ") && error.size() > 22, qPrintable(error));
        QCOMPARE(link.state(), BoxLink::Unlinked);
    }

    void targetNamesDeviceAndRate()
    {
        const struct
        {
            const char *target;
            const char *device;  // null: refused
            qint32 baudRate;
        } cases[] = {
            {"/dev/ttyUSB0", "/dev/ttyUSB0", BoxLink::DefaultBaudRate},
            {"/dev/ttyUSB0:19200", "/dev/ttyUSB0", 19200},
            {"/dev/serial/by-path/pci-0000:00:14.0-usb-0:1:1.0-port0",
             "/dev/serial/by-path/pci-0000:00:14.0-usb-0:1:1.0-port0", BoxLink::DefaultBaudRate},
            {"/dev/ttyUSB0:0", nullptr, 0},
            {"/dev/ttyUSB0:99999999999", nullptr, 0},
            {":9600", nullptr, 0},
            {"", nullptr, 0},
        };
        for (auto const &c : cases) {
            QString device, error;
            qint32 baudRate = 0;
            const bool ok = BoxLink::parseTarget(c.target, &device, &baudRate, &error);
            QVERIFY2(ok == (c.device != nullptr), c.target);
            if (!ok) {
                QVERIFY2(!error.isEmpty(), c.target);
                continue;
            }
            QCOMPARE(device, QString(c.device));
            QCOMPARE(baudRate, c.baudRate);
        }
    }
};

QTEST_GUILESS_MAIN(TestSerialLink)
#include "tst_seriallink.moc"
