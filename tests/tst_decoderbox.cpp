// The simulated car's decoder box: it answers the frames that the exported
// catalogue knows by writing the buffer and signalling dataChanged(), and
// logs, never answers, what it can't: bad checksums, unknown, empty or
// short frames. End to end on the real plug-in and the build's catalogue,
// with the window's switch and the gallery of pages.

#include "canobj.h"
#include "decoderbox.h"
#include "demo.h"
#include "eventpump.h"
#include "gallery.h"
#include "hostsim.h"
#include "listdata.h"
#include "mainwindow.h"
#include "scenariorunner.h"
#include "simtests.h"
#include "simulatorhost.h"

#include <QCheckBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

// A frame "2E A8 02 01 0A ck" with its checksum filled by the test's own
// arithmetic: 2E frames end in 0xFF XOR the low byte of the sum of bytes 1
// to size - 2; FD frames of protocol 67 in the 16-bit sum of bytes 1 to
// size - 3, high byte first; other FD frames in the low byte of the sum.
QByteArray frame(QString const &text, int protocol = 28)
{
    QByteArray bytes;
    for (QString const &token : text.split(' ', Qt::SkipEmptyParts))
        bytes.append(token == "ck" ? '\0' : char(token.toInt(nullptr, 16)));
    const int size = bytes.size();
    unsigned sum = 0;
    if (quint8(bytes.at(0)) == 0x2E) {
        for (int i = 1; i <= size - 2; ++i)
            sum += quint8(bytes.at(i));
        bytes[size - 1] = char(0xFF ^ (sum & 0xFF));
    } else if (protocol == 67) {
        for (int i = 1; i <= size - 3; ++i)
            sum += quint8(bytes.at(i));
        bytes[size - 2] = char((sum >> 8) & 0xFF);
        bytes[size - 1] = char(sum & 0xFF);
    } else {
        for (int i = 1; i <= size - 2; ++i)
            sum += quint8(bytes.at(i));
        bytes[size - 1] = char(sum & 0xFF);
    }
    return bytes;
}

QJsonObject step(int value, QString const &frameText, QJsonArray const &writes, QString const &care = QString())
{
    QJsonObject s{{"value", value}, {"frame", frameText}, {"writes", writes}, {"shows", true}};
    if (!care.isEmpty())
        s["care"] = care;
    return s;
}

// Two families: 28 with a plain row, a group row and a text row; 67 with
// its two-byte checksum.
QJsonObject fixture()
{
    const QJsonArray rows28{
        QJsonObject{{"title", "Treble"}, {"adjustable", true}, {"answered", true},
                    {"sample", QJsonObject{{"value", 9}, {"writes", QJsonArray{QJsonArray{106, 255, 9}}}}},
                    {"steps", QJsonArray{step(9, "2E A8 02 01 09 ck", QJsonArray{QJsonArray{106, 255, 9}}),
                                         step(10, "2E A8 02 01 0A ck", QJsonArray{QJsonArray{106, 255, 10}})}}},
        QJsonObject{{"title", "High bits"}, {"adjustable", true}, {"answered", true},
                    {"steps", QJsonArray{step(1, "2E 84 02 ?? 10 ck", QJsonArray{QJsonArray{40, 0x30, 0x10}},
                                              "FF FF FF 00 30")}}},
        QJsonObject{{"title", "Seat"}, {"adjustable", true}, {"answered", false}, {"direction", true}},
        QJsonObject{{"title", "Radio frequency"}, {"adjustable", false},
                    {"source", QJsonObject{{"type", "text"}, {"offset", 60}}}},
        QJsonObject{{"title", "Driving time since start"}, {"adjustable", false},
                    {"source", QJsonObject{{"type", "text"}, {"offset", 64}}}}};
    const QJsonArray rows67{QJsonObject{
        {"title", "Volume"}, {"adjustable", true}, {"answered", true},
        {"steps", QJsonArray{step(3, "FD 05 05 03 ck ck", QJsonArray{QJsonArray{376, 255, 3}})}}}};
    return QJsonObject{
        {"families", QJsonArray{QJsonObject{{"family", 28}, {"ids", QJsonArray{28}},
                                            {"pages", QJsonArray{QJsonObject{{"title", "Amplifier status"}, {"rows", rows28}},
                                                                 QJsonObject{{"title", "Notes"}, {"rows", QJsonArray()}},
                                                                 QJsonObject{{"title", "Dashboard"}, {"rows", QJsonArray()},
                                                                             {"ownWidgets", true}}}}},
                                QJsonObject{{"family", 50}, {"ids", QJsonArray{50, 51}},
                                            {"pages", QJsonArray{QJsonObject{{"title", "Settings"}, {"rows", QJsonArray()}},
                                                                 QJsonObject{{"title", "Mileage"}, {"rows", QJsonArray()}}}}},
                                QJsonObject{{"family", 67}, {"ids", QJsonArray{67}},
                                            {"pages", QJsonArray{QJsonObject{{"rows", rows67}}}}}}}};
}

QString hex(QByteArray const &bytes)
{
    return QString(bytes.toHex(' ').toUpper());
}

} // namespace

class TestDecoderBox : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(28);
    }

    void answersKnownFramesAfterTheDelay()
    {
        DecoderBox box;
        QString error;
        QVERIFY(box.load(fixture(), &error));
        QCOMPARE(box.adjustableRows(), 4);
        QCOMPARE(box.answeredRows(), 3);
        QVERIFY(!box.isEnabled());
        QSignalSpy changed(HostSim::canbusSignals(), SIGNAL(dataChanged()));

        // Off, the box hears nothing.
        box.receive(frame("2E A8 02 01 0A ck"));
        QTest::qWait(80);
        QCOMPARE(changed.count(), 0);

        box.setEnabled(true);
        box.setDelay(30);
        box.receive(frame("2E A8 02 01 0A ck"));
        QCOMPARE(HostSim::buffer(28).byte(106), quint8(0));
        QTest::qWait(10);
        QCOMPARE(changed.count(), 0);
        QTRY_COMPARE(changed.count(), 1);
        QCOMPARE(HostSim::buffer(28).byte(106), quint8(10));

        // A group frame matches whatever the other rows' bits are, and the
        // answer writes the row's own bits alone.
        HostSim::buffer(28).setByte(40, 0x05);
        box.receive(frame("2E 84 02 C5 1F ck"));
        QTRY_COMPARE(changed.count(), 2);
        QCOMPARE(HostSim::buffer(28).byte(40), quint8(0x15));

        // A request: dataChanged() alone.
        box.receive(frame("2E 90 02 51 00 ck"));
        QTRY_COMPARE(changed.count(), 3);

        // Protocol 67: two checksum bytes.
        HostSim::setProtocolId(67);
        box.receive(frame("FD 05 05 03 ck ck", 67));
        QTRY_COMPARE(changed.count(), 4);
        QCOMPARE(HostSim::buffer(67).byte(376), quint8(3));
    }

    void badFramesAreLoggedNeverAnswered_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("line");
        const QByteArray good = frame("2E A8 02 01 0A ck");
        QByteArray wrongChecksum = good;
        wrongChecksum[5] = char(wrongChecksum.at(5) ^ 1);
        QTest::newRow("wrong checksum") << wrongChecksum << "no answer: " + hex(wrongChecksum) + " (bad checksum)";
        QTest::newRow("empty") << QByteArray() << QString("no answer: (empty) (empty frame)");
        QTest::newRow("too short") << QByteArray::fromHex("2EA8") << QString("no answer: 2E A8 (too short)");
        QTest::newRow("unknown header") << QByteArray::fromHex("AA0102030405")
                                        << QString("no answer: AA 01 02 03 04 05 (unknown header)");
        const QByteArray unknown = frame("2E A8 02 07 01 ck");
        QTest::newRow("unknown frame") << unknown << "no answer: " + hex(unknown) + " (unknown frame)";
        const QByteArray longer = frame("2E A8 03 01 0A 00 ck");
        QTest::newRow("known start, other size") << longer << "no answer: " + hex(longer) + " (unknown frame)";
    }

    void badFramesAreLoggedNeverAnswered()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, line);
        DecoderBox box;
        QString error;
        QVERIFY(box.load(fixture(), &error));
        box.setEnabled(true);
        box.setDelay(0);
        QSignalSpy changed(HostSim::canbusSignals(), SIGNAL(dataChanged()));
        QSignalSpy unanswered(&box, &DecoderBox::unanswered);
        const QByteArray before = QByteArray(reinterpret_cast<char *>(HostSim::buffer(28).data()), HostSim::bufferSize());
        box.receive(bytes);
        QTest::qWait(20);
        QCOMPARE(unanswered.count(), 1);
        QCOMPARE(unanswered.at(0).at(0).toString(), line);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(QByteArray(reinterpret_cast<char *>(HostSim::buffer(28).data()), HostSim::bufferSize()), before);
    }

    // What a frame means, from the build's catalogue: page, row title and
    // the value it sets in each family, or why the box refuses it.
    void describesFramesFromTheCatalogue_data()
    {
        QTest::addColumn<int>("protocol");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("meaning");
        QTest::newRow("2E, a step") << 28 << frame("2E A8 02 01 0A ck") << QString("28_2 \"Treble\" -> 1 (raw 10)");
        QTest::newRow("2E, another row") << 28 << frame("2E A8 02 00 01 ck") << QString("28_2 \"volume\" -> 1");
        QTest::newRow("2E, family 124") << 124 << frame("2E C6 03 01 01 00 ck", 124)
                                        << QString("124_2 \"Automatic locking mode\" -> Lock:exiting park,unlock:enter park (raw 1)");
        QTest::newRow("FD, two checksum bytes") << 67 << frame("FD 05 05 02 ck ck", 67)
                                                << QString("67_4 \"Volume adjustment\" -> 2");
        QTest::newRow("FD, bytes that don't carry the value") << 87
            << frame("FD 0B C5 01 12 34 56 78 9A BC DE ck", 87) << QString("87_1 \"front and rear balance\" -> -6 (raw 3)");
        // What the row shows for the value, beside the raw value: a signed
        // level, a choice's option.
        QTest::newRow("2E, signed") << 30 << frame("2E 84 02 04 02 ck", 30) << QString("30_4 \"BASS indicator\" -> -5 (raw 0)");
        QTest::newRow("2E, choice") << 30 << frame("2E 84 02 03 08 ck", 30) << QString("30_4 \"ASL indicator\" -> ASL ON (raw 1)");
        QTest::newRow("request") << 28 << frame("2E 90 02 51 00 ck") << QString("request");
        QByteArray bad = frame("2E A8 02 01 0A ck");
        bad[5] = char(bad.at(5) ^ 1);
        QTest::newRow("bad checksum") << 28 << bad << QString("unknown frame (bad checksum)");
        QTest::newRow("too short") << 28 << QByteArray::fromHex("2EA8") << QString("unknown frame (too short)");
        QTest::newRow("no pages") << 5 << frame("2E A8 02 01 0A ck") << QString("unknown frame (protocol 5 has no pages)");
        QTest::newRow("unknown") << 28 << frame("2E A8 02 7F 01 ck") << QString("unknown frame");
    }

    void describesFramesFromTheCatalogue()
    {
        QFETCH(int, protocol);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, meaning);
        static DecoderBox box;
        QString error;
        if (!box.isLoaded())
            QVERIFY2(box.load(CATALOGUE_FILE, &error), qPrintable(error));
        QCOMPARE(box.describe(bytes, protocol), meaning);
    }

    void missingOrMalformedCatalogueKeepsTheBoxOff()
    {
        QTemporaryDir dir;
        DecoderBox box;
        QString error;
        QVERIFY(!box.load(dir.filePath("none.json"), &error));
        QVERIFY(error.contains("none.json"));
        QFile broken(dir.filePath("broken.json"));
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("{\"families\": [");
        broken.close();
        QVERIFY(!box.load(broken.fileName(), &error));
        QVERIFY(error.contains("not a catalogue"));
        QVERIFY(!box.load(QJsonObject{{"families", QJsonArray()}}, &error));
        box.setEnabled(true);
        QVERIFY(!box.isEnabled());
        QVERIFY(!box.isLoaded());
    }

    // A catalogue is checked whole when it is read: an offset, mask or
    // value that doesn't fit the 8,192-byte buffer refuses it, naming the
    // entry, and nothing of it stays loaded. Offsets near INT_MAX once
    // overflowed the check and crashed the sample writer and the recorder.
    void catalogueOutOfRangeIsRefused_data()
    {
        QTest::addColumn<QJsonObject>("row");
        QTest::addColumn<QString>("reason");
        const auto text = [](QJsonValue offset) {
            return QJsonObject{{"title", "Name"}, {"source", QJsonObject{{"type", "text"}, {"offset", offset}}}};
        };
        const auto sample = [](QJsonArray write) {
            return QJsonObject{{"title", "Bass"}, {"sample", QJsonObject{{"value", 1}, {"writes", QJsonArray{write}}}}};
        };
        QTest::newRow("text near INT_MAX") << text(2147483645)
                                           << "row 1 \"Name\": text offset 2147483645 outside the buffer (0..8188)";
        QTest::newRow("text past the end") << text(8190) << "text offset 8190 outside";
        QTest::newRow("text beyond int") << text(1e12) << "text offset 1000000000000 outside";
        QTest::newRow("text negative") << text(-4) << "text offset -4 outside";
        QTest::newRow("text fraction") << text(60.5) << "text offset 60.5 outside";
        QTest::newRow("text missing") << text(QJsonValue()) << "text offset null outside";
        QTest::newRow("write past the end") << sample({8192, 255, 1}) << "sample: write [8192,255,1] is not";
        QTest::newRow("write mask") << sample({10, 256, 1}) << "sample: write [10,256,1] is not";
        QTest::newRow("write short") << sample({10, 255}) << "sample: write [10,255] is not";
        QTest::newRow("step write") << QJsonObject{{"title", "Treble"}, {"adjustable", true},
                                                   {"steps", QJsonArray{step(9, "2E A8 02 01 09 ck",
                                                                             QJsonArray{QJsonArray{-1, 255, 9}})}}}
                                    << "row 1 \"Treble\": step 1: write [-1,255,9] is not";
    }

    void catalogueOutOfRangeIsRefused()
    {
        QFETCH(QJsonObject, row);
        QFETCH(QString, reason);
        const QJsonObject catalogue{
            {"families", QJsonArray{QJsonObject{{"family", 28}, {"ids", QJsonArray{28}},
                                                {"pages", QJsonArray{QJsonObject{{"title", "Fine"}, {"rows", QJsonArray()}}}}},
                                    QJsonObject{{"family", 30}, {"ids", QJsonArray{30}},
                                                {"pages", QJsonArray{QJsonObject{{"index", 1}, {"rows", QJsonArray{row}}}}}}}}};
        DecoderBox box;
        QString error;
        QVERIFY(!box.load(catalogue, &error));
        QVERIFY2(error.startsWith("family 30: page 30_2, row 1 "), qPrintable(error));
        QVERIFY2(error.contains(reason), qPrintable(error));
        QVERIFY(!box.isLoaded());
        QVERIFY(box.pageTitles(28).isEmpty());
        QVERIFY(!box.writeSamples(30));
        QVERIFY(box.textOffsets(30).isEmpty());
    }

    void samplesForTheDemoScreens()
    {
        DecoderBox box;
        QString error;
        QVERIFY(box.load(fixture(), &error));
        QVERIFY(box.writeSamples(28));
        QCOMPARE(HostSim::buffer(28).byte(106), quint8(9));
        // Text rows get a text of their kind, not their title.
        QCOMPARE(HostSim::buffer(28).text(60), QString("98.5 MHz"));
        QCOMPARE(HostSim::buffer(28).text(64), QString("01:25"));
        QVERIFY(!box.writeSamples(41));

        // What the picker and the gallery say of a family: its first pages'
        // titles, and whether its pages open empty. A page of its own
        // widgets isn't empty.
        QCOMPARE(box.familyName(28), QString("Amplifier status, Notes, ..."));
        QCOMPARE(box.familyName(51), QString("Settings, Mileage"));
        QCOMPARE(box.familyName(41), QString());
        QCOMPARE(box.rowCount(28), 5);
        QVERIFY(!box.hasOnlyEmptyPages(28));
        QVERIFY(box.hasOnlyEmptyPages(51));
        QVERIFY(!box.hasOnlyEmptyPages(41));
        QVERIFY(!box.isEmptyPage(28, 0));
        QVERIFY(box.isEmptyPage(28, 1));
        QVERIFY(!box.isEmptyPage(28, 2));
        QVERIFY(!box.isEmptyPage(28, 3));
    }

    void endToEndWithThePlugin();
    void everyTablePageMovesOnATap();
    void windowSwitchAndFrameLog();
    void galleryOfOneFamily();
    void sampleValueInEveryRow();

private:
    bool run(Scenario::Runner &runner, QString const &text, QString *failure);
};

bool TestDecoderBox::run(Scenario::Runner &runner, QString const &text, QString *failure)
{
    Scenario::Script script;
    if (!Scenario::parse("test", text, &script, failure))
        return false;
    const Scenario::Result result = runner.run(script);
    *failure = result.message;
    return result.status == Scenario::Passed;
}

void TestDecoderBox::endToEndWithThePlugin()
{
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    QVERIFY(host.box().answeredRows() * 10 > host.box().adjustableRows() * 9);
    HostSim::screen()->show();
    Scenario::Runner runner(host);
    // Treble: the tap sends the frame, and the value moves once the box
    // has answered. Then a mapped row: light colour "blue" goes out as code
    // 5 and comes back as the same option. Meter mode "customize" goes out
    // as the code of "view 1", and comes back as that.
    QVERIFY2(run(runner,
                 "protocol 28\n"
                 "buf 106 9\n"
                 "call showExView\n"
                 "tap title 1\n"
                 "box on\n"
                 "wait 150\n"
                 "expect row 1 \"0\"\n"
                 "tap row 1 right\n"
                 "expect row 1 \"0\"\n"
                 "wait 100\n"
                 "expect row 1 \"1\"\n"
                 "box delay 0\n"
                 "tap row 1 left\n"
                 "tap row 1 left\n"
                 "wait 20\n"
                 "expect rowvalue 1 8\n"
                 "tap bar back\n"
                 "box off\n"
                 "tap title 1\n"
                 "tap row 1 right\n"
                 "wait 100\n"
                 "expect rowvalue 1 8\n",
                 &error),
             qPrintable(error));
    // Scenarios start with the box off.
    QVERIFY(!host.box().isEnabled());
    // Without a catalogue the box can't be switched on, and says why.
    QVERIFY(!host.loadCatalogue(QString(), &error));
    QVERIFY(!run(runner, "box on\n", &error));
    QVERIFY2(error.endsWith("expected a decoder box got none: no catalogue file named"), qPrintable(error));
    QVERIFY(run(runner, "box off\nbox delay 5\n", &error));
    HostSim::screen()->hide();
    HostSim::reset();
}

void TestDecoderBox::everyTablePageMovesOnATap()
{
    // On every table page of every family, the first row that the box
    // answers: from its demo value, a tap on the right arrow moves it to the
    // next value it steps to, as the car would report it.
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    const QJsonArray families = SimTest::catalogueFamilies();
    QVERIFY(!families.isEmpty());
    HostSim::screen()->show();
    Scenario::Runner runner(host);
    int pagesTried = 0;
    QStringList failures;
    for (QJsonValue const &f : families) {
        const QJsonObject family = f.toObject();
        const int protocol = family.value("ids").toArray().first().toInt();
        const QJsonArray pages = family.value("pages").toArray();
        for (QJsonValue const &p : pages) {
            const QJsonObject page = p.toObject();
            const QJsonArray rows = page.value("rows").toArray();
            for (int r = 0; r < rows.size(); ++r) {
                const QJsonObject row = rows.at(r).toObject();
                const QJsonArray steps = row.value("steps").toArray();
                if (!row.value("answered").toBool() || steps.size() < 2 || !row.contains("sample"))
                    continue;
                const int sample = row.value("sample").toObject().value("value").toInt();
                int next = sample;
                for (QJsonValue const &s : steps) {
                    const int value = s.toObject().value("value").toInt();
                    if (value > sample && (next == sample || value < next))
                        next = value;
                }
                HostSim::reset();
                HostSim::setProtocolId(protocol);
                host.box().writeSamples(protocol);
                const QString script = QString("protocol %1\ncall showExView\ntap title %2\nbox on\nbox delay 0\n"
                                               "wait 120\nexpect rowvalue %3 %4\ntap row %3 right\nwait 20\n"
                                               "expect rowvalue %3 %5\ntap bar home\n")
                                           .arg(protocol).arg(page.value("index").toInt()).arg(r).arg(sample).arg(next);
                ++pagesTried;
                if (!run(runner, script, &error)) {
                    failures << QString("%1 row %2: %3").arg(page.value("class").toString()).arg(r).arg(error);
                    run(runner, "tap bar home\n", &error);
                }
                break;
            }
        }
    }
    HostSim::screen()->hide();
    HostSim::reset();
    QVERIFY2(pagesTried >= 45, qPrintable(QString::number(pagesTried)));
    QVERIFY2(failures.isEmpty(), qPrintable(QString::number(pagesTried) + " pages; " + failures.join("\n")));
}

void TestDecoderBox::windowSwitchAndFrameLog()
{
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    MainWindow window(host);
    window.startDemoCar(28);
    host.box().setEnabled(true);
    window.show();
    EventPump::settle();
    auto *check = window.findChild<QCheckBox *>("decoderBox");
    QVERIFY(check);
    QVERIFY(check->isEnabled());
    QVERIFY(check->isChecked());
    QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(5, check->height() / 2));
    QVERIFY(!host.box().isEnabled());
    QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(5, check->height() / 2));
    QVERIFY(host.box().isEnabled());

    // A frame the box can't answer shows in the frame log with the box's
    // reason.
    QByteArray bad = frame("2E A8 02 01 0A ck");
    bad[5] = char(bad.at(5) ^ 0x10);
    emit CanObj::instance()->sendDataToCan(bad);
    auto *log = window.findChild<QTreeWidget *>("frameLog");
    QVERIFY(log);
    QTRY_VERIFY(log->topLevelItemCount() >= 1);
    QTreeWidgetItem *last = log->topLevelItem(log->topLevelItemCount() - 1);
    QCOMPARE(last->text(1), QString("TX"));
    QCOMPARE(last->text(2), hex(bad));
    QCOMPARE(last->text(5), QString("unknown frame (bad checksum)"));
    window.close();
    HostSim::reset();
}

void TestDecoderBox::galleryOfOneFamily()
{
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    HostSim::screen()->show();
    // Two runs with the clock standing give the same files, byte for byte.
    HostSim::setFixedClock(QTime(10, 8));
    QTemporaryDir dir, again;
    // Two families: the pictures of each count.
    const Scenario::Result result = Gallery::write(host, dir.path(), {28, 124});
    QVERIFY2(result.status == Scenario::Passed, qPrintable(result.message));
    const Scenario::Result second = Gallery::write(host, again.path(), {28, 124});
    QVERIFY2(second.status == Scenario::Passed, qPrintable(second.message));
    HostSim::setFixedClock(QTime());
    HostSim::screen()->hide();
    const QStringList files = QDir(dir.path()).entryList(QDir::Files, QDir::Name);
    QCOMPARE(QDir(again.path()).entryList(QDir::Files, QDir::Name), files);
    for (QString const &name : files) {
        QFile a(dir.filePath(name)), b(again.filePath(name));
        QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        QVERIFY2(a.readAll() == b.readAll(), qPrintable(name));
    }

    // Each page whole, a screen at a time: 28_3's 116 rows take many
    // screens, each scrolled on from the last; a short page takes one.
    QCOMPARE(files.size(), result.screenshots.size() + 1);
    QVERIFY(files.contains("28_7.png") && files.contains("124_3.png"));
    QVERIFY(!files.contains("28_7-2.png"));
    QVERIFY(files.contains("28_3.png") && files.contains("28_3-2.png") && files.contains("28_3-20.png"));
    for (QString const &name : files) {
        if (name.endsWith(".png"))
            QCOMPARE(QImage(dir.filePath(name)).size(), QSize(1024, 600));
    }
    QVERIFY(QImage(dir.filePath("28_3.png")) != QImage(dir.filePath("28_3-2.png")));

    QFile index(dir.filePath("index.html"));
    QVERIFY(index.open(QIODevice::ReadOnly));
    const QString html = QString::fromUtf8(index.readAll());
    QVERIFY(html.contains("<li><a href=\"#family28\">Family 28</a>: Parking assist status, Amplifier status, ...</li>"));
    QVERIFY(html.contains("<h2 id=\"family28\">Family 28</h2>"));
    QVERIFY(html.contains("<img src=\"28_2.png\" alt=\"Amplifier status\">"));
    QVERIFY(html.contains("<img src=\"28_3-2.png\" alt=\"Body information\"><figcaption>3. Body information (2 of"));

    // A folder that can't be made is named with the system's reason.
    const Scenario::Result refused = Gallery::write(host, dir.filePath("28_2.png/inside"), {28});
    QCOMPARE(refused.status, Scenario::Failed);
    QVERIFY2(refused.message.contains(dir.filePath("28_2.png/inside") + ": Not a directory"), qPrintable(refused.message));
}

void TestDecoderBox::sampleValueInEveryRow()
{
    // The sample data of the gallery and the window: every row of every page
    // with rows shows a value, not an empty field, "--" of a missing tyre,
    // "null" where the row has other options, or a text row's own title.
    // Two rows show no value by their page's design: the trio's last
    // vehicle row of 32, and 72_8's row that opens the tyre panel.
    const QStringList withoutValue{"32_6 row 35", "72_8 row 12"};
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    const QJsonArray families = SimTest::catalogueFamilies();
    QVERIFY(!families.isEmpty());
    HostSim::screen()->show();
    Scenario::Runner runner(host);
    QStringList failures;
    int rowsSeen = 0;
    for (QJsonValue const &f : families) {
        const int protocol = f.toObject().value("ids").toArray().first().toInt();
        const QJsonArray pages = f.toObject().value("pages").toArray();
        HostSim::reset();
        QVERIFY(run(runner, QString("protocol %1\n").arg(protocol), &error));
        QCOMPARE(Demo::writeSamples(host, protocol).status, Scenario::Passed);
        QVERIFY2(run(runner, "call showExView\n", &error), qPrintable(error));
        for (QJsonValue const &p : pages) {
            const QJsonObject page = p.toObject();
            if (page.value("rows").toArray().isEmpty())
                continue;
            const QString name = QString("%1_%2").arg(f.toObject().value("family").toInt()).arg(page.value("index").toInt() + 1);
            if (!run(runner, QString("tap title %1\nwait 120\n").arg(page.value("index").toInt()), &error)) {
                failures << name + ": " + error;
                continue;
            }
            QTableView *table = host.probe().pageTable();
            for (int r = 0; table && r < table->model()->rowCount(); ++r) {
                const QModelIndex index = table->model()->index(r, 0);
                const QString title = index.data(TitleRole).toString();
                const QString value = index.data(DisplayValueRole).toString().trimmed();
                ++rowsSeen;
                if (withoutValue.contains(QString("%1 row %2").arg(name).arg(r)))
                    continue;
                if (value.isEmpty() || value == "--" || value == "null" || value == title)
                    failures << QString("%1 row %2 \"%3\": \"%4\"").arg(name).arg(r).arg(title, value);
            }
            run(runner, "key back\n", &error);
        }
        run(runner, "tap bar home\n", &error);
    }
    HostSim::screen()->hide();
    HostSim::reset();
    QVERIFY(rowsSeen > 1000);
    // QtTest cuts a long message: each row on a line of its own.
    for (QString const &failure : qAsConst(failures))
        qWarning("%s", qPrintable(failure));
    QVERIFY2(failures.isEmpty(), qPrintable(QString("%1 of %2 rows:\n").arg(failures.size()).arg(rowsSeen) + failures.join("\n")));
}

QTEST_MAIN(TestDecoderBox)
#include "tst_decoderbox.moc"
