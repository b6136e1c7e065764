// The simulator as a bench tool: the frame log saved, loaded and replayed
// into the decoder box, and the recorder that writes a person's clicks in
// the window as a scenario which the simulator then replays to its end.
// Everything runs on the real plug-in and the build's catalogue.

#include "canobj.h"
#include "eventpump.h"
#include "framelog.h"
#include "hostsim.h"
#include "logpanel.h"
#include "mainwindow.h"
#include "recorder.h"
#include "scenariorunner.h"
#include "simtests.h"
#include "simulatorhost.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QtTest>

namespace {

using SimTest::click;
using SimTest::withText;

// A 2E frame with its checksum by the test's own arithmetic: 0xFF XOR the
// low byte of the sum of bytes 1 to size - 2.
QByteArray frame2E(QByteArray bytes)
{
    unsigned sum = 0;
    for (int i = 1; i < bytes.size(); ++i)
        sum += quint8(bytes.at(i));
    return bytes.append(char(0xFF ^ (sum & 0xFF)));
}

// An FD frame (not of protocol 67) with its checksum: the low byte of the
// sum of bytes 1 to size - 2.
QByteArray frameFD(QByteArray bytes)
{
    unsigned sum = 0;
    for (int i = 1; i < bytes.size(); ++i)
        sum += quint8(bytes.at(i));
    return bytes.append(char(sum & 0xFF));
}

bool run(Scenario::Runner &runner, QString const &source, QString *failure)
{
    Scenario::Script script;
    if (!Scenario::parse(QStringLiteral("test"), source, &script, failure))
        return false;
    const Scenario::Result result = runner.run(script);
    *failure = result.message;
    return result.status == Scenario::Passed;
}

QString readAll(QString const &file)
{
    QFile input(file);
    return input.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(input.readAll()) : QString();
}

// The window on the demo car, the box on, recording into file.
void startRecording(MainWindow &window, SimulatorHost &host, QString const &file)
{
    window.startDemoCar(28);
    host.box().setEnabled(true);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    EventPump::settle();
    auto *logs = window.findChild<LogPanel *>();
    QVERIFY(logs);
    QString error;
    QVERIFY2(logs->startRecording(file, &error), qPrintable(error));
}

// A protocol picked from the open list of the Car panel's picker.
void pickProtocol(QWidget *window, int id)
{
    auto *picker = window->findChild<QComboBox *>("protocolPicker");
    picker->showPopup();
    QAbstractItemView *choices = picker->view();
    const QModelIndex choice = choices->model()->index(picker->findData(id), 0);
    choices->scrollTo(choice);
    QTest::mouseClick(choices->viewport(), Qt::LeftButton, Qt::NoModifier, choices->visualRect(choice).center());
    EventPump::settle();
    QCOMPARE(CanObj::id(), id);
}

// The recording replays to its end in a simulator of its own.
void replays(QString const &file)
{
    QProcess simulator;
    simulator.start(SIMULATOR_BINARY, {"--platform", "offscreen", "--script", file});
    QVERIFY(simulator.waitForFinished(60000));
    QVERIFY2(simulator.exitCode() == 0, qPrintable(simulator.readAllStandardError() + "\n" + readAll(file)));
}

} // namespace

class TestSimulatorRecorder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void frameLogRoundTrip();
    void malformedLogLines_data();
    void malformedLogLines();
    void replayMakesThePagesFollow();
    void recordClicksInTheWindowAndReplay();
    void recordedProtocolChangeReplays();

private:
    QTemporaryDir m_dir;
};

void TestSimulatorRecorder::init()
{
    HostSim::reset();
}

void TestSimulatorRecorder::frameLogRoundTrip()
{
    QList<FrameLog::Entry> entries;
    FrameLog::Entry tx;
    tx.ms = 12345;
    tx.protocolId = 28;
    tx.frame = frame2E(QByteArray::fromHex("2EA802010A"));
    tx.meaning = QStringLiteral("28_2 \"Treble\" -> 10");
    entries << tx;
    FrameLog::Entry rx;
    rx.ms = 12396;
    rx.direction = FrameLog::Rx;
    rx.protocolId = 28;
    rx.written = {{28, 106, 0x0A}, {28, 107, 0x01}, {41, 3, 0xFF}};
    rx.meaning = QStringLiteral("dataChanged()");
    entries << rx;
    FrameLog::Entry request = rx;
    request.ms = 70001;
    request.written.clear();
    request.protocolId = 67;
    entries << request;
    FrameLog::Entry odd = tx;
    odd.ms = 70002;
    odd.protocolId = 67;
    odd.frame = QByteArray::fromHex("FD069090");
    // A meaning may hold the comment's own sign.
    odd.meaning = QStringLiteral("67_9 \"# of presets\" -> 2");
    entries << odd;
    // What a real box sent: a frame, one with a bad checksum, noise.
    const QByteArray report = frame2E(QByteArray::fromHex("2E41020102"));
    QByteArray bad = report;
    bad[bad.size() - 1] = char(~bad.at(bad.size() - 1));
    const FrameLog::Entry boxFrame = FrameLog::boxEntry(80000, {FrameSplitter::Frame, report});
    const FrameLog::Entry boxBad = FrameLog::boxEntry(80001, {FrameSplitter::BadChecksum, bad});
    const FrameLog::Entry boxNoise = FrameLog::boxEntry(80002, {FrameSplitter::Noise, QByteArray::fromHex("00137F")});
    entries << boxFrame << boxBad << boxNoise;

    const QString text = FrameLog::text(entries);
    QCOMPARE(FrameLog::line(tx), QString("       12.345 TX 2E A8 02 01 0A 4A  # 28_2 \"Treble\" -> 10"));
    QCOMPARE(FrameLog::line(rx), QString("       12.396 RX 28:106 0A 01 41:3 FF  # dataChanged()"));
    QCOMPARE(FrameLog::line(request), QString("       70.001 RX  # dataChanged()"));
    QCOMPARE(FrameLog::line(boxFrame), "       80.000 RX " + Scenario::hex(report) + "  # box: command 41");
    QCOMPARE(FrameLog::line(boxBad), "       80.001 RX-BAD " + Scenario::hex(bad) + "  # box: command 41, bad checksum");
    QCOMPARE(FrameLog::line(boxNoise), QString("       80.002 RX-NOISE 00 13 7F  # box: noise"));
    QVERIFY(text.contains("\n# protocol 28\n"));
    QVERIFY(text.contains("\n# protocol 67\n"));

    // Saved and loaded, the log is the same, to the byte and the protocol.
    FrameLog log;
    for (FrameLog::Entry const &entry : qAsConst(entries))
        log.append(entry);
    const QString file = m_dir.filePath("frames.log");
    QString error;
    QVERIFY2(log.save(file, &error), qPrintable(error));
    QCOMPARE(readAll(file), text);
    QList<FrameLog::Entry> loaded;
    QVERIFY2(FrameLog::load(file, &loaded, &error), qPrintable(error));
    QCOMPARE(loaded.size(), entries.size());
    for (int i = 0; i < entries.size(); ++i) {
        QCOMPARE(loaded.at(i).ms, entries.at(i).ms);
        QCOMPARE(loaded.at(i).direction, entries.at(i).direction);
        QCOMPARE(FrameLog::directionText(loaded.at(i)), FrameLog::directionText(entries.at(i)));
        QCOMPARE(loaded.at(i).protocolId, entries.at(i).protocolId);
        QCOMPARE(loaded.at(i).meaning, entries.at(i).meaning);
        QCOMPARE(FrameLog::bytesText(loaded.at(i)), FrameLog::bytesText(entries.at(i)));
    }
    QCOMPARE(FrameLog::text(loaded), text);
    QVERIFY(!FrameLog::load(m_dir.filePath("missing.log"), &loaded, &error));
    QVERIFY2(error.contains("can't read the frame log"), qPrintable(error));
}

void TestSimulatorRecorder::malformedLogLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no direction") << "1.000" << "a time and TX or RX missing";
    QTest::newRow("time") << "1s TX 2E" << "time 1s is not a number of seconds";
    QTest::newRow("direction") << "1.000 XX 2E" << "direction XX is none of TX, RX, RX-BAD, RX-NOISE";
    QTest::newRow("box noise without bytes") << "1.000 RX-NOISE" << "RX-NOISE without bytes";
    QTest::newRow("box frame byte") << "1.000 RX-BAD 2E 4" << "4 is not a byte in hex";
    QTest::newRow("byte") << "1.000 TX 2E 9G" << "9G is not a byte in hex";
    QTest::newRow("three digits") << "1.000 TX 2E 123" << "123 is not a byte in hex";
    QTest::newRow("answer without place") << "1.000 RX 0A" << "0A is neither PROTOCOL:OFFSET nor a byte in hex after one";
    // A byte is two hex digits, nothing that a number reader would take.
    QTest::newRow("minus") << "1.000 TX 2E -1" << "-1 is not a byte in hex";
    QTest::newRow("plus") << "1.000 TX 2E +C" << "+C is not a byte in hex";
    QTest::newRow("prefix") << "1.000 TX 0x2E" << "0x2E is not a byte in hex";
    QTest::newRow("signed place") << "1.000 RX +28:-1 0A" << "+28:-1 is neither PROTOCOL:OFFSET nor a byte in hex after one";
    // Seconds since the start: finite, not negative, as the log writes them.
    QTest::newRow("infinite") << "inf TX 2E" << "time inf is not a number of seconds";
    QTest::newRow("not a number") << "nan TX 2E" << "time nan is not a number of seconds";
    QTest::newRow("huge") << "1e300 TX 2E" << "time 1e300 is not a number of seconds";
    QTest::newRow("negative") << "-0.5 TX 2E" << "time -0.5 is not a number of seconds";
    QTest::newRow("bare TX") << "1.0 TX" << "a TX line without the frame's bytes";
    QTest::newRow("long word") << "1.000 TX " + QString(300, 'A') << QString(120, 'A') + "... is not a byte in hex";
}

void TestSimulatorRecorder::malformedLogLines()
{
    QFETCH(QString, line);
    QFETCH(QString, reason);
    QList<FrameLog::Entry> entries;
    QString error;
    QVERIFY(!FrameLog::parse("f.log", "# a comment\n\n" + line + "\n", &entries, &error));
    QCOMPARE(error, "f.log:3: " + reason);
}

void TestSimulatorRecorder::replayMakesThePagesFollow()
{
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    host.screen()->show();
    Scenario::Runner runner(host);

    // Two taps of treble's right arrow, one of volume's left, a request and
    // a frame the box refuses, as a log saved them.
    const QString file = m_dir.filePath("replay.log");
    QFile log(file);
    QVERIFY(log.open(QIODevice::WriteOnly | QIODevice::Text));
    log.write("# protocol 28\n"
              "  0.100 TX " + Scenario::hex(frame2E(QByteArray::fromHex("2E90025100"))).toLatin1() + "  # request\n"
              "  0.200 TX " + Scenario::hex(frame2E(QByteArray::fromHex("2EA802010A"))).toLatin1() + "  # 28_2 \"Treble\" -> 10\n"
              "  0.250 RX 28:106 0A  # dataChanged()\n"
              "  0.300 TX " + Scenario::hex(frame2E(QByteArray::fromHex("2EA8020011"))).toLatin1() + "\n"
              "  0.400 TX 2E A8 02 01 0A 00  # a bad checksum\n"
              "  0.450 RX 2E 41 01 07 B6  # box: command 41\n"
              "  0.460 RX-NOISE 13  # box: noise\n");
    log.close();

    const QString open = "protocol 28\nbuf 105 18 9\ncall showExView\ntap title 1\nwait 150\n"
                         "expect row 0 \"18\"\nexpect row 1 \"0\"\ndrop frames\n";
    QVERIFY2(!run(runner, open + "replay " + file + "\n", &error), "replayed with the box off");
    QVERIFY2(error.endsWith("expected a replay got the decoder box is off (box on first)"), qPrintable(error));
    QVERIFY2(!run(runner, "box on\nreplay " + m_dir.filePath("none.log") + "\n", &error), "replayed a missing log");
    QVERIFY2(error.contains("expected a replay got") && error.contains("none.log"), qPrintable(error));

    QSignalSpy answers(&host.box(), &DecoderBox::answered);
    QSignalSpy refused(&host.box(), &DecoderBox::unanswered);
    QVERIFY2(run(runner, "box on\nreplay " + file + "\nexpect row 1 \"1\"\nexpect row 0 \"17\"\nexpect noframe\n",
                 &error), qPrintable(error));
    QCOMPARE(HostSim::buffer(28).byte(106), quint8(10));
    QCOMPARE(HostSim::buffer(28).byte(105), quint8(17));
    // The request and the two settings answered; the RX line isn't sent.
    QCOMPARE(answers.count(), 3);
    QCOMPARE(refused.count(), 1);
    QCOMPARE(answers.at(1).at(1).value<QList<DecoderBox::WrittenByte>>().size(), 1);
    // A real box's reports come again as reports, in order, and write
    // nothing.
    const QList<FrameSplitter::Piece> reports = host.pendingReports();
    QCOMPARE(reports.size(), 2);
    QCOMPARE(reports.at(0).kind, FrameSplitter::Frame);
    QCOMPARE(reports.at(0).bytes, QByteArray::fromHex("2E410107B6"));
    QCOMPARE(reports.at(1).kind, FrameSplitter::Noise);
    QVERIFY2(run(runner, "expect rx 41 07 within 0\n", &error), qPrintable(error));
    QCOMPARE(host.pendingReports().size(), 1);
    HostSim::screen()->hide();
}

void TestSimulatorRecorder::recordClicksInTheWindowAndReplay()
{
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    MainWindow window(host);
    const QString file = m_dir.filePath("clicks.scn");
    startRecording(window, host, file);
    auto *logs = window.findChild<LogPanel *>();
    QVERIFY(window.findChild<QPushButton *>("recordButton")->isChecked());
    ScreenProbe const &probe = host.probe();

    // Family 28: the extended view from the panel, the amplifier page, a tap
    // on treble's right arrow, the box's answer, a key.
    click(withText<QPushButton>(&window, "Extended view"), QPoint(5, 5));
    QAbstractItemView *titles = probe.titleList();
    QVERIFY(titles);
    click(titles->viewport(), titles->visualRect(titles->model()->index(1, 0)).center());
    QTest::qWait(200);
    QTableView *table = probe.pageTable();
    QVERIFY(table);
    const int rowHeight = table->verticalHeader()->defaultSectionSize();
    const QRect trebleRow = table->visualRect(table->model()->index(1, 0));
    click(table->viewport(), QPoint(table->width() - rowHeight / 2, trebleRow.center().y()));
    QTest::qWait(150);
    // The unit's key under the screen, as a person presses it; home, which
    // closes the extended view.
    click(withText<QPushButton>(&window, QStringLiteral("\u25BC")), QPoint(5, 5));
    // The desktop keyboard's arrow, by its name.
    QTest::keyClick(probe.focusTarget(), Qt::Key_Down);
    EventPump::settle();
    QWidget *home = probe.baseBar()->findChild<QWidget *>("home");
    QVERIFY(home);
    click(home, home->rect().center());
    QVERIFY(!ScreenProbe::isShown(probe.titleList()));

    // A climate record sent from its panel.
    QSpinBox *type = nullptr;
    for (QSpinBox *box : window.findChildren<QSpinBox *>()) {
        if (box->minimum() == -1000)
            type = box;
    }
    QVERIFY(type);
    type->setValue(3);
    click(withText<QPushButton>(&window, "Send record"), QPoint(5, 5));

    // Family 87's car from the command line; the protocol picked from the
    // picker's list; then its amplifier page and a row's arrow.
    // Sample data off: the bytes set by hand stay when 87 is first picked.
    click(window.findChild<QCheckBox *>("sampleData"), QPoint(5, 5));
    auto *line = window.findChild<QLineEdit *>("commandLine");
    for (char const *command : {"buf @87 70 1", "buf @87 0 9 11 2 16 9 1 0 3 3 6 0"}) {
        line->clear();
        QTest::keyClicks(line, command);
        QTest::keyClick(line, Qt::Key_Return);
    }
    pickProtocol(&window, 87);
    click(withText<QPushButton>(&window, "Extended view"), QPoint(5, 5));
    titles = probe.titleList();
    const QModelIndexList amplifier = titles->model()->match(titles->model()->index(0, 0), Qt::DisplayRole,
                                                             "Amplifier Information", 1, Qt::MatchExactly);
    QCOMPARE(amplifier.size(), 1);
    titles->scrollTo(amplifier.first());
    click(titles->viewport(), titles->visualRect(amplifier.first()).center());
    QTest::qWait(200);
    table = probe.pageTable();
    QVERIFY(table);
    const QRect first = table->visualRect(table->model()->index(0, 0));
    click(table->viewport(), QPoint(table->width() - rowHeight / 2, first.center().y()));
    QTest::qWait(150);
    // The right button is no scenario command: it stays as a comment.
    QTest::mouseClick(table->viewport(), Qt::RightButton, Qt::NoModifier, first.center());
    EventPump::settle();

    // The log's filters: FD hides family 2E, a command and a text narrow it.
    auto *frames = window.findChild<QTreeWidget *>("frameLog");
    auto visible = [frames](int column) {
        QStringList texts;
        for (int i = 0; i < frames->topLevelItemCount(); ++i) {
            if (!frames->topLevelItem(i)->isHidden())
                texts << frames->topLevelItem(i)->text(column);
        }
        return texts;
    };
    QVERIFY(visible(3).contains("2E") && visible(3).contains("FD"));
    auto *family = window.findChild<QComboBox *>("frameFamilyFilter");
    family->setCurrentIndex(family->findData("FD"));
    QVERIFY(!visible(3).isEmpty());
    QVERIFY(!visible(3).contains("2E") && !visible(3).contains(QString()));
    family->setCurrentIndex(0);
    auto *text = window.findChild<QLineEdit *>("frameTextFilter");
    QTest::keyClicks(text, "treble");
    QCOMPARE(visible(5).size(), 1);
    QCOMPARE(visible(2), QStringList{"2E A8 02 01 0C 48"});
    text->clear();
    // The field's clear button fades in and out on animations of Qt's own
    // (160 ms, without a parent), which delete themselves only when they
    // end: let them end, or they outlive the window.
    QTest::qWait(400);
    QTest::keyClicks(window.findChild<QLineEdit *>("frameCommandFilter"), "a8");
    QCOMPARE(visible(4).count("A8"), visible(4).size());
    QVERIFY(!visible(4).isEmpty());

    logs->stopRecording();
    QVERIFY(!window.findChild<QPushButton *>("recordButton")->isChecked());

    // The panel's log saved, loaded back in its place, replayed.
    const QString saved = m_dir.filePath("window.log");
    QVERIFY2(logs->saveLog(saved, &error), qPrintable(error));
    const int rows = frames->topLevelItemCount();
    QVERIFY2(logs->loadLog(saved, &error), qPrintable(error));
    QCOMPARE(frames->topLevelItemCount(), rows);
    QCOMPARE(FrameLog::text(logs->frameLog().entries()), readAll(saved));
    host.box().setEnabled(false);
    QVERIFY(!logs->replayLog(saved, &error));
    QVERIFY2(error.contains("decoder box is off"), qPrintable(error));
    host.box().setEnabled(true);
    QVERIFY2(logs->replayLog(saved, &error), qPrintable(error));
    window.close();

    const QString recording = readAll(file);
    const QString amplifierPage = QString("tap title %1\nexpect frame %2\nexpect page \"Amplifier Information\"\n")
            .arg(amplifier.first().row()).arg(Scenario::hex(frameFD(QByteArray::fromHex("FD048F00"))));
    const QString balance = "tap row 0 right\nexpect frame "
            + Scenario::hex(frameFD(QByteArray::fromHex("FD0BC50809000E09833601"))) + "\n";
    const QString treble = "tap row 1 right\nexpect frame " + Scenario::hex(frame2E(QByteArray::fromHex("2EA802010C")))
            + "\nexpect page \"Amplifier status\"\nexpect row 1 \"2\"\n";
    const QStringList lines = {"protocol 28\n", "text ", "call setProtocolId 28\n", "box on\n", "call showExView\n",
                             "tap title 1\n", treble, amplifierPage, balance,
                             "key down\n", "key arrow-down\n", QString("tap bar home\n"), "air.type 3\ncall onAirConditionerDataChanged\n",
                             "buf @87 70 1\nbuf @87 0 9 11 2 16 9 1 0 3 3 6 0\n", "protocol 87\n", "call setProtocolId 87\n",
                             "# not recorded: a press of another mouse button at "};
    for (QString const &line : lines) {
        QVERIFY2(recording.contains(line), qPrintable(line + " in\n" + recording));
    }
    // The box's answer came after the tap: the recording waits for it.
    QVERIFY2(recording.contains(QRegularExpression("expect row 1 \"2\"\nwait \\d+\nexpect page \"Amplifier status\"\n"
                                                   "expect row 1 \"3\"\n")), qPrintable(recording));

    replays(file);
    HostSim::reset();
}



// A protocol picked in the panel while the extended view is open: the panel
// leaves the view and opens it again on the new protocol's pages. The
// recording says so, and its replay opens the same pages and sends the same
// frames.
void TestSimulatorRecorder::recordedProtocolChangeReplays()
{
    SimulatorHost host;
    QString error;
    QVERIFY2(SimTest::loadHost(host, &error), qPrintable(error));
    MainWindow window(host);
    const QString file = m_dir.filePath("protocols.scn");
    startRecording(window, host, file);
    ScreenProbe const &probe = host.probe();

    click(withText<QPushButton>(&window, "Extended view"), QPoint(5, 5));
    QAbstractItemView *titles = probe.titleList();
    QVERIFY(titles);
    click(titles->viewport(), titles->visualRect(titles->model()->index(1, 0)).center());
    QTest::qWait(200);
    click(withText<QPushButton>(&window, "Back"), QPoint(5, 5));
    QTest::qWait(100);

    pickProtocol(&window, 30);
    titles = probe.titleList();
    QVERIFY(ScreenProbe::isShown(titles));
    click(titles->viewport(), titles->visualRect(titles->model()->index(2, 0)).center());
    QTest::qWait(250);
    window.findChild<LogPanel *>()->stopRecording();
    window.close();

    const QString recording = readAll(file);
    QVERIFY2(recording.contains(QRegularExpression("tap bar home\n(.*\n)*protocol 30\n(.*\n)*call setProtocolId 30\n"
                                                   "(.*\n)*call showExView\n(.*\n)*tap title 2\n")),
             qPrintable(recording));
    replays(file);
    HostSim::reset();
}

QTEST_MAIN(TestSimulatorRecorder)
#include "tst_simulator_recorder.moc"
