// The head-unit simulator's window with the built plug-in: the screen at its
// real size, the control panel that plays the car through the root, the
// hardware keys, the buffer editor, and the logs of what the plug-in sent.
// Everything is driven by mouse and key events on the window's widgets.

#include "canobj.h"
#include "catalogue.h"
#include "demo.h"
#include "eventpump.h"
#include "hostsim.h"
#include "mainwindow.h"
#include "ptybox.h"
#include "seriallink.h"
#include "simtests.h"
#include "simulatorhost.h"
#include "userinput.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGraphicsView>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QTreeWidget>
#include <QtTest>

#include <cstring>

namespace {

using SimTest::click;
using SimTest::withText;

// The last row of a log, or the one that many rows before it.
QStringList lastRow(QTreeWidget *log, int back = 0)
{
    QStringList texts;
    if (QTreeWidgetItem *item = log->topLevelItem(log->topLevelItemCount() - 1 - back)) {
        for (int column = 0; column < item->columnCount(); ++column)
            texts << item->text(column);
    }
    return texts;
}

} // namespace

class TestSimulatorWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void screenAndProtocolPicker();
    void screenButtonsAndKeys();
    void carPanels();
    void bufferEditorAndFrameLog();
    void protocolChangeReopensViews();
    void pickedProtocolGetsSampleData();
    void languagePicker();
    void linksARealBox();
    // Last: it takes the screen into a window of its own.
    void zoomedWindowFitsALaptop();

private:
    QWidget *screenPart(QString const &name) const { return m_host->probe().part(name); }
    bool shown(QString const &name) const { return m_host->probe().isOnScreen(screenPart(name)); }

    SimulatorHost *m_host = nullptr;
    MainWindow *m_window = nullptr;
};

void TestSimulatorWindow::initTestCase()
{
    m_host = new SimulatorHost;
    m_host->setLink(new SerialLink);
    QString error;
    QVERIFY2(m_host->load(SimulatorHost::defaultPluginFile(), &error), qPrintable(error));
    QVERIFY2(m_host->loadCatalogue(CATALOGUE_FILE, &error), qPrintable(error));
    HostSim::setReversePluginFile(SimulatorHost::defaultReversePluginFile(SimulatorHost::defaultPluginFile()));
    m_window = new MainWindow(*m_host);
    m_window->startDemoCar(28);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
    EventPump::settle();
}

void TestSimulatorWindow::cleanupTestCase()
{
    delete m_window;
    delete m_host;
}

void TestSimulatorWindow::screenAndProtocolPicker()
{
    // The head unit's screen lies in the window at its real size.
    QWidget *screen = m_host->screen();
    QCOMPARE(screen->size(), QSize(1024, 600));
    QVERIFY(m_window->isAncestorOf(screen));
    QVERIFY(screen->isVisible());

    // Every protocol id of the catalogue, named by its family's first pages,
    // after "no vehicle".
    auto *picker = m_window->findChild<QComboBox *>("protocolPicker");
    QVERIFY(picker);
    const QList<int> ids = Catalogue::protocolIds();
    QCOMPARE(ids.size(), 74);
    QCOMPARE(picker->count(), ids.size() + 1);
    QCOMPARE(picker->itemData(0).toInt(), 0);
    for (int i = 0; i < ids.size(); ++i)
        QCOMPARE(picker->itemData(i + 1).toInt(), ids.at(i));
    QCOMPARE(picker->itemText(picker->findData(28)), QString("28: Parking assist status, Amplifier status, ..."));
    QCOMPARE(picker->itemText(picker->findData(30)), QString("30: Tire pressure information, Hybrid information, ..."));
    QCOMPARE(picker->itemText(picker->findData(53)), picker->itemText(picker->findData(31)).replace("31:", "53:"));

    // The demo car on protocol 28; a pick selects the next id and tells the
    // root, whose next extended view holds that protocol's pages.
    QCOMPARE(CanObj::id(), 28);
    QCOMPARE(picker->currentData().toInt(), 28);
    QCOMPARE(m_window->findChild<QLabel *>("pageStackName")->text(), QString("family 28, 8 pages"));
    QTest::keyClick(picker, Qt::Key_Down);
    QCOMPARE(CanObj::id(), 29);
    QCOMPARE(m_window->findChild<QLabel *>("pageStackName")->text(), QString("family 29, 3 pages, none with rows"));
    QTest::keyClick(picker, Qt::Key_Up);
    QCOMPARE(CanObj::id(), 28);

    // A protocol chosen elsewhere shows in the picker, also one outside the
    // catalogue.
    HostSim::setProtocolId(125);
    QTRY_COMPARE(picker->currentData().toInt(), 125);
    QVERIFY(m_window->findChild<QLabel *>("pageStackName")->text().startsWith("none"));
    HostSim::setProtocolId(28);
    QTRY_COMPARE(picker->currentData().toInt(), 28);
}

void TestSimulatorWindow::screenButtonsAndKeys()
{
    click(withText<QPushButton>(m_window, "Extended view"));
    QVERIFY(shown("list"));
    QCOMPARE(m_host->probe().titleList()->model()->rowCount(), 8);
    // The keys go to the focused widget of the screen, not to the panel.
    QVERIFY(m_host->probe().extendedView()->isAncestorOf(m_host->probe().focusTarget())
            || m_host->probe().extendedView() == m_host->probe().focusTarget());

    // The second extended view lies over the first; the back key ends it.
    click(withText<QPushButton>(m_window, "Second extended view"));
    QVERIFY(m_host->probe().findObject("exDialogView"));
    click(withText<QPushButton>(m_window, "Back"));
    QVERIFY(!m_host->probe().findObject("exDialogView"));
    QVERIFY(shown("list"));

    QString missing;
    QVERIFY2(m_host->input().tapTitle(0, &missing), qPrintable(missing));
    EventPump::settle();
    QVERIFY(shown("page"));
    click(withText<QPushButton>(m_window, "Back"));
    QVERIFY(shown("list"));
    // Keys that the view doesn't use go on to the head unit.
    HostSim::clearPassedKeys();
    click(withText<QPushButton>(m_window, "Next"));
    QCOMPARE(HostSim::passedKeys(), QList<int>{0x110004D});
    click(withText<QPushButton>(m_window, "Back"));
    QVERIFY(!m_host->probe().findObject("exView"));

    // The overlays on demand, and raised.
    click(withText<QPushButton>(m_window, "Overlays"));
    QVERIFY(shown("dialog"));
    click(withText<QPushButton>(m_window, "Raise overlays"));
    QVERIFY(shown("dialog"));
}

void TestSimulatorWindow::carPanels()
{
    // The climate record, as the editor sends it.
    auto *showRequest = withText<QCheckBox>(m_window, "show the overlay (byte 5)");
    QVERIFY(showRequest);
    showRequest->setChecked(true);
    click(withText<QPushButton>(m_window, "Send record"));
    QVERIFY(shown("air"));
    QString text;
    QVERIFY(ScreenProbe::textOf(m_host->probe().findWidget("leftTempLabel"), &text));
    QCOMPARE(text, QString("21.5\u2103"));
    // A tap on the overlay's AC button: its climate command in the log.
    click(m_host->probe().findWidget("acButton"));
    auto *commands = m_window->findChild<QTreeWidget *>("climateCommandLog");
    QTRY_COMPARE(commands->topLevelItemCount(), 1);
    QCOMPARE(lastRow(commands).mid(1), (QStringList{"AirAC", "off"}));
    // Its time counts seconds from the start, as the frame log's does.
    const QString time = lastRow(commands).value(0);
    QVERIFY2(QRegularExpression("^\\d+\\.\\d{3}$").match(time).hasMatch(), qPrintable(time));
    QVERIFY(qAbs(time.toDouble() * 1000 - m_host->elapsed()) < 5000);
    click(withText<QPushButton>(m_window, "Hide"));
    QVERIFY(!shown("air"));

    // Doors and body warnings tell the plug-in at once.
    auto *frontLeft = withText<QCheckBox>(m_window, "Front left door");
    QVERIFY(frontLeft);
    frontLeft->setChecked(true);
    EventPump::settle();
    QVERIFY(shown("door"));
    bool down = false;
    QVERIFY(ScreenProbe::downStateOf(m_host->probe().findWidget("frontLeftButton"), &down));
    QVERIFY(down);
    frontLeft->setChecked(false);
    EventPump::settle();
    QVERIFY(!shown("door"));
    auto *seatBelt = withText<QCheckBox>(m_window, "Seat belt unfastened (byte 40)");
    seatBelt->setChecked(true);
    EventPump::settle();
    QVERIFY(shown("door"));
    QVERIFY(shown("seatBeltIcon"));
    seatBelt->setChecked(false);
    EventPump::settle();

    // Reverse with radar; the view goes when reverse ends.
    auto *reverse = withText<QCheckBox>(m_window, "In reverse (setReverse)");
    reverse->setChecked(true);
    EventPump::settle();
    QVERIFY(shown("reverse"));
    click(withText<QPushButton>(m_window, "Send as a variant"));
    QVERIFY(shown("reverse"));
    reverse->setChecked(false);
    EventPump::settle();
    QVERIFY(!m_host->probe().findObject("reverseView"));

    // A scenario changes the records: the panels follow.
    Scenario::Script script;
    QString error;
    QVERIFY(Scenario::parse("panels", "door 0 0 0 0 1 0\nbody 40 1\nexpect hidden door\n", &script, &error));
    QCOMPARE(m_window->runScenario(script), int(Scenario::Passed));
    QVERIFY(withText<QCheckBox>(m_window, "Trunk")->isChecked());
    QVERIFY(!withText<QCheckBox>(m_window, "Front left door")->isChecked());
    QVERIFY(seatBelt->isChecked());
    QVERIFY(Scenario::parse("panels", "door 0 0 0 0 0 0\nbody 40 0\nexpect shown door\n", &script, &error));
    QCOMPARE(m_window->runScenario(script), int(Scenario::Failed));
    QVERIFY(!withText<QCheckBox>(m_window, "Trunk")->isChecked());
    QVERIFY(!seatBelt->isChecked());
    QVERIFY(m_window->statusBar()->currentMessage().startsWith("panels:3: expected"));
}

void TestSimulatorWindow::bufferEditorAndFrameLog()
{
    click(withText<QPushButton>(m_window, "Extended view"));
    EventPump::settle();
    QString missing;
    QVERIFY2(m_host->input().tapTitle(1, &missing), qPrintable(missing));
    EventPump::settle();
    QTableView *rows = m_host->probe().pageTable();
    QVERIFY(rows);
    QCOMPARE(rows->model()->index(1, 0).data(397).toString(), QString("2"));

    // A byte typed into the buffer table is written and notified: the page
    // in front shows it.
    auto *table = m_window->findChild<QTableView *>("bufferTable");
    QVERIFY(table);
    const QModelIndex treble = table->model()->index(106 / 16, 106 % 16);
    QCOMPARE(treble.data().toString(), QString("0B"));
    table->edit(treble);
    auto *editor = table->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->selectAll();
    QTest::keyClicks(editor, "0c");
    QTest::keyClick(editor, Qt::Key_Return);
    EventPump::settle();
    QCOMPARE(HostSim::buffer(28).byte(106), quint8(12));
    QCOMPARE(treble.data().toString(), QString("0C"));
    QCOMPARE(rows->model()->index(1, 0).data(397).toString(), QString("3"));

    // A tap on a row's arrow: the frame in the log, with its family and
    // command.
    auto *frames = m_window->findChild<QTreeWidget *>("frameLog");
    // The box's answers to the page's requests come after its delay: they
    // are in before the count starts, however slowly the machine runs.
    EventPump::wait(2 * m_host->box().delay());
    const int before = frames->topLevelItemCount();
    QVERIFY2(m_host->input().tapRow(1, UserInput::RightZone, &missing), qPrintable(missing));
    EventPump::settle();
    QCOMPARE(frames->topLevelItemCount(), before + 1);
    const QStringList row = lastRow(frames);
    // With the catalogue, what the frame means: the page, the row, the value.
    QCOMPARE(row.mid(1), (QStringList{"TX", "2E A8 02 01 0D 47", "2E", "A8", "28_2 \"Treble\" -> 4 (raw 13)"}));
    QVERIFY(row.at(0).contains('.'));

    // The command line runs any scenario command.
    auto *line = m_window->findChild<QLineEdit *>("commandLine");
    line->setText("tap bar back");
    QTest::keyClick(line, Qt::Key_Return);
    EventPump::settle();
    QVERIFY(shown("list"));
    line->setText("expect titles 9");
    QTest::keyClick(line, Qt::Key_Return);
    QVERIFY(m_window->statusBar()->currentMessage().contains("expected titles 9 got 8"));

    // Family FD has the length first, and its command in byte 2.
    for (char const *command : {"tap bar back", "protocol 67", "call showExView", "tap title 1"}) {
        line->setText(QLatin1String(command));
        QTest::keyClick(line, Qt::Key_Return);
    }
    QCOMPARE(lastRow(frames).mid(1, 4), (QStringList{"TX", "FD 06 90 7E 00 01 14", "FD", "90"}));
}

void TestSimulatorWindow::linksARealBox()
{
    // The Car panel links a real box on the port typed in, a pseudo-terminal
    // here. A tap's frame goes out on it byte for byte; what the box sends
    // back shows in the frame log and isn't written into the buffer; the
    // simulated box is off while the real one is linked.
    auto *port = m_window->findChild<QComboBox *>("serialPort");
    auto *rate = m_window->findChild<QComboBox *>("baudRate");
    auto *link = m_window->findChild<QPushButton *>("linkButton");
    auto *state = m_window->findChild<QLabel *>("linkState");
    auto *frames = m_window->findChild<QTreeWidget *>("frameLog");
    QVERIFY(port && rate && link && state && frames);
    QCOMPARE(state->text(), QString("Not linked"));
    QCOMPARE(rate->currentText(), QString::number(BoxLink::DefaultBaudRate));
    m_host->box().setEnabled(true);

    auto typeInto = [](QComboBox *box, QString const &text) {
        box->lineEdit()->selectAll();
        QTest::keyClicks(box->lineEdit(), text);
    };
    // A port that isn't there is refused with its name and the reason.
    typeInto(port, "/nonexistent/ttyUSB7");
    click(link);
    QVERIFY2(state->text().startsWith("/nonexistent/ttyUSB7: "), qPrintable(state->text()));
    QCOMPARE(link->text(), QString("Link"));
    QVERIFY(m_host->box().isEnabled());

    PtyBox::Pty pty;
    QVERIFY(pty.open());
    typeInto(port, pty.slave);
    typeInto(rate, "115200");
    click(link);
    QCOMPARE(state->text(), QString("Linked to %1 at 115200 baud").arg(pty.slave));
    QCOMPARE(link->text(), QString("Unlink"));
    QVERIFY(!port->isEnabled());
    QVERIFY(!m_host->box().isEnabled());

    HostSim::pressBarButton(HostSim::lastBaseBar(), "home");
    EventPump::settle();
    m_window->startDemoCar(28);
    click(withText<QPushButton>(m_window, "Extended view"));
    QString missing;
    QVERIFY2(m_host->input().tapTitle(1, &missing), qPrintable(missing));
    EventPump::settle();
    const quint8 treble = HostSim::buffer(28).byte(106);
    QVERIFY2(m_host->input().tapRow(1, UserInput::RightZone, &missing), qPrintable(missing));
    EventPump::settle();
    const QByteArray sent = PtyBox::frame2E(0xA8, QByteArray::fromHex("01") + char(treble + 1));
    QByteArray arrived;
    QTRY_VERIFY2((arrived += pty.read()).contains(sent), arrived.toHex(' ').constData());

    const int before = frames->topLevelItemCount();
    const QByteArray report = PtyBox::frame2E(0x41, QByteArray::fromHex("0102"));
    pty.write(report + QByteArray::fromHex("1337") + PtyBox::broken(report));
    QTRY_COMPARE(frames->topLevelItemCount(), before + 3);
    QCOMPARE(lastRow(frames, 2).mid(1), (QStringList{"RX", Scenario::hex(report), "2E", "41", "box: command 41"}));
    QCOMPARE(lastRow(frames, 1).mid(1), (QStringList{"RX-NOISE", "13 37", "", "", "box: noise"}));
    QCOMPARE(lastRow(frames).mid(1), (QStringList{"RX-BAD", Scenario::hex(PtyBox::broken(report)), "2E", "41",
                                                  "box: command 41, bad checksum"}));
    // No simulated answer came, and the box's report wrote nothing.
    QTest::qWait(DecoderBox::DefaultDelayMs * 2);
    QCOMPARE(HostSim::buffer(28).byte(106), treble);

    click(link);
    QCOMPARE(state->text(), QString("Not linked"));
    QVERIFY(port->isEnabled());
    QVERIFY(m_host->box().isEnabled());
}

void TestSimulatorWindow::protocolChangeReopensViews()
{
    // On a page of 28 in both extended views, another protocol picked: both
    // views are left and opened again, with the new protocol's list of
    // pages, as a person would leave and open them.
    auto *picker = m_window->findChild<QComboBox *>("protocolPicker");
    HostSim::pressBarButton(HostSim::lastBaseBar(), "home");
    EventPump::settle();
    QVERIFY(!m_host->probe().findObject("exView"));
    m_window->startDemoCar(28);
    QCOMPARE(picker->currentData().toInt(), 28);
    click(withText<QPushButton>(m_window, "Extended view"));
    QString missing;
    QVERIFY2(m_host->input().tapTitle(1, &missing), qPrintable(missing));
    EventPump::settle();
    QVERIFY(shown("page"));
    click(withText<QPushButton>(m_window, "Second extended view"));
    QVERIFY(shown("exDialogView"));
    QVERIFY(!shown("exView"));

    QTest::keyClick(picker, Qt::Key_Down);
    EventPump::settle();
    QCOMPARE(CanObj::id(), 29);
    QVERIFY(shown("exDialogView"));
    QVERIFY(shown("list"));
    QCOMPARE(m_host->probe().titleList()->model()->rowCount(), 3);
    auto *first = qobject_cast<QWidget *>(m_host->probe().findObject("exView"));
    QVERIFY(first && !first->isHidden());
    QAbstractItemView *firstList = first->findChild<QAbstractItemView *>("listView");
    QVERIFY(firstList && firstList->isVisibleTo(first));
    QCOMPARE(firstList->model()->rowCount(), 3);

    // Without an open view the pick opens none.
    click(withText<QPushButton>(m_window, "Back"));
    click(withText<QPushButton>(m_window, "Back"));
    QVERIFY(!m_host->probe().findObject("exView"));
    QVERIFY(!m_host->probe().findObject("exDialogView"));
    QTest::keyClick(picker, Qt::Key_Up);
    EventPump::settle();
    QCOMPARE(CanObj::id(), 28);
    QVERIFY(!m_host->probe().findObject("exView"));
}

// A protocol picked in the Car panel gets the catalogue's sample data, byte
// for byte what --protocol gives; with Sample data off, its buffer stays
// zeroed.
void TestSimulatorWindow::pickedProtocolGetsSampleData()
{
    auto *picker = m_window->findChild<QComboBox *>("protocolPicker");
    auto *samples = m_window->findChild<QCheckBox *>("sampleData");
    QVERIFY(samples && samples->isChecked());
    // The bytes, with each text field as its text and the byte list at 220
    // (the tyre panel's) as its bytes: their handles differ from one writing
    // to the next.
    const auto bytes = [this] {
        DataBuffer const buffer = HostSim::buffer(30);
        QByteArray content(reinterpret_cast<char const *>(buffer.data()), HostSim::bufferSize());
        for (int offset : m_host->box().textOffsets(30))
            content.replace(offset, 4, "TEXT").append(buffer.text(offset).toUtf8());
        return content.replace(220, 4, "LIST").append(buffer.bytes(220));
    };
    const auto zero = [] { std::memset(HostSim::buffer(30).data(), 0, size_t(HostSim::bufferSize())); };
    const QByteArray zeroed = [&] {
        zero();
        return bytes();
    }();
    QCOMPARE(picker->currentData().toInt(), 28);
    zero();
    QTest::keyClick(picker, Qt::Key_Down);
    QTest::keyClick(picker, Qt::Key_Down);
    EventPump::settle();
    QCOMPARE(CanObj::id(), 30);
    const QByteArray picked = bytes();
    QVERIFY(picked != zeroed);
    // --protocol 30 starts the car from another protocol in the same way.
    Demo::selectProtocol(*m_host, 0);
    zero();
    QCOMPARE(Demo::startCar(*m_host, 30).status, Scenario::Passed);
    QCOMPARE(bytes(), picked);

    // Picked again, it keeps what was set on it since.
    HostSim::buffer(30).setByte(163, 4);
    QTest::keyClick(picker, Qt::Key_Up);
    QTest::keyClick(picker, Qt::Key_Down);
    EventPump::settle();
    QCOMPARE(HostSim::buffer(30).byte(163), quint8(4));

    // Off, a protocol picked for the first time stays zeroed.
    click(samples, QPoint(5, 5));
    QVERIFY(!samples->isChecked());
    std::memset(HostSim::buffer(31).data(), 0, size_t(HostSim::bufferSize()));
    QTest::keyClick(picker, Qt::Key_Down);
    EventPump::settle();
    QCOMPARE(CanObj::id(), 31);
    QCOMPARE(QByteArray(reinterpret_cast<char const *>(HostSim::buffer(31).data()), HostSim::bufferSize()),
             QByteArray(HostSim::bufferSize(), '\0'));
    click(samples, QPoint(5, 5));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(picker, Qt::Key_Up);
    m_window->startDemoCar(28);
}

void TestSimulatorWindow::zoomedWindowFitsALaptop()
{
    // On a 1366 x 768 desktop the screen is drawn smaller, so that the whole
    // window fits; a desktop of 1920 x 1080 takes it at its size.
    QCOMPARE(MainWindow::fittingZoom(QSize(1920, 1080)), 100);
    const int zoom = MainWindow::fittingZoom(QSize(1366, 768));
    QVERIFY(zoom >= 50 && zoom < 100);
    HostSim::pressBarButton(HostSim::lastBaseBar(), "home");
    EventPump::settle();
    m_window->startDemoCar(28);

    MainWindow zoomed(*m_host, zoom);
    // The desktop's free area under a 30-pixel panel.
    zoomed.fitDesktop(QSize(1366, 768 - 30));
    zoomed.show();
    QVERIFY(QTest::qWaitForWindowExposed(&zoomed));
    EventPump::settle();
    QVERIFY2(zoomed.width() <= 1366 && zoomed.height() <= 768 - 30 - 30 && zoomed.height() >= 650,
             qPrintable(QString("%1 x %2, at least %3 x %4").arg(zoomed.width()).arg(zoomed.height())
                            .arg(zoomed.minimumSizeHint().width()).arg(zoomed.minimumSizeHint().height())));
    // Every panel usable: the Car tab's Extended view button in sight
    // without scrolling, the frame log at least eight rows high, its bytes
    // whole, and every column of both logs as wide as its texts or widened
    // by a drag of its edge.
    QPushButton *extended = withText<QPushButton>(&zoomed, "Extended view");
    QWidget *carViewport = extended->parentWidget();
    while (carViewport && carViewport->objectName() != "qt_scrollarea_viewport")
        carViewport = carViewport->parentWidget();
    QVERIFY(carViewport);
    const QRect inViewport(extended->mapTo(carViewport, QPoint()), extended->size());
    QVERIFY2(carViewport->rect().contains(inViewport),
             qPrintable(QString("button at %1, viewport %2 high").arg(inViewport.bottom()).arg(carViewport->height())));
    click(extended);
    QString missing;
    QVERIFY2(m_host->input().tapTitle(1, &missing), qPrintable(missing));
    QTest::qWait(200);
    auto *frames = zoomed.findChild<QTreeWidget *>("frameLog");
    QVERIFY(frames->topLevelItemCount() > 0);
    const int rowHeight = frames->visualItemRect(frames->topLevelItem(0)).height();
    QVERIFY2(frames->viewport()->height() >= 8 * rowHeight,
             qPrintable(QString("%1 px for rows of %2").arg(frames->viewport()->height()).arg(rowHeight)));
    for (int i = 0; i < frames->topLevelItemCount(); ++i)
        QVERIFY(frames->columnWidth(2) > frames->fontMetrics().horizontalAdvance(frames->topLevelItem(i)->text(2)));
    auto *commands = zoomed.findChild<QTreeWidget *>("climateCommandLog");
    for (QTreeWidget *log : {frames, commands}) {
        for (int column = 0; column < log->columnCount(); ++column)
            QCOMPARE(log->header()->sectionResizeMode(column), QHeaderView::Interactive);
    }
    QVERIFY(commands->columnWidth(1) >= commands->fontMetrics().horizontalAdvance("AirConditionerTemperature"));
    HostSim::pressBarButton(HostSim::lastBaseBar(), "home");
    HostSim::pressBarButton(HostSim::lastBaseBar(), "home");
    EventPump::settle();
    QTRY_VERIFY(zoomed.windowTitle().endsWith(QString("(screen at %1%)").arg(zoom)));
    auto *view = zoomed.findChild<QGraphicsView *>("zoomedScreen");
    QVERIFY(view);
    QCOMPARE(view->size(), QSize(1024, 600) * zoom / 100);

    // A finger on the drawn screen lands on the widget under it, at the
    // screen's own coordinates: the second title opens its page.
    click(withText<QPushButton>(&zoomed, "Extended view"));
    QAbstractItemView *list = m_host->probe().titleList();
    QVERIFY(list && shown("list"));
    const QRect title = list->visualRect(list->model()->index(1, 0));
    const QPoint onScreen = list->viewport()->mapTo(m_host->screen(), title.center());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->mapFromScene(onScreen));
    EventPump::settle();
    QVERIFY(shown("page"));
    QCOMPARE(m_host->probe().pageStack()->currentIndex(), 1);
}

// The Car panel's language: the source texts and every language that the
// plug-in has a translation for. A pick takes effect when a view opens next.
void TestSimulatorWindow::languagePicker()
{
    auto *picker = m_window->findChild<QComboBox *>("languagePicker");
    QVERIFY(picker);
    QCOMPARE(picker->count(), 3);
    QCOMPARE(picker->itemData(0).toString(), QString("C"));
    QCOMPARE(picker->itemData(1).toString(), QString("zh_CN"));
    QCOMPARE(picker->itemData(2).toString(), QString("zh_TW"));
    auto secondTitle = [this] {
        return m_host->probe().titleList()->model()->index(1, 0).data(Qt::DisplayRole).toString();
    };
    for (int i = 0; i < 3 && m_host->probe().findObject("exView"); ++i)
        click(withText<QPushButton>(m_window, "Back"));
    HostSim::setProtocolId(28);
    m_host->call(QStringLiteral("setProtocolId"), {28});
    EventPump::settle();

    click(withText<QPushButton>(m_window, "Extended view"));
    QCOMPARE(secondTitle(), QString("Amplifier status"));
    picker->setFocus();
    QTest::keyClick(picker, Qt::Key_Down);
    QCOMPARE(picker->currentData().toString(), QString("zh_CN"));
    // The view that stands keeps its texts; the next one is in Chinese.
    QCOMPARE(secondTitle(), QString("Amplifier status"));
    click(withText<QPushButton>(m_window, "Back"));
    QVERIFY(!m_host->probe().findObject("exView"));
    click(withText<QPushButton>(m_window, "Extended view"));
    QCOMPARE(secondTitle(), QString::fromUtf8("功放状态"));

    // And back to the source texts.
    click(withText<QPushButton>(m_window, "Back"));
    picker->setFocus();
    QTest::keyClick(picker, Qt::Key_Up);
    QCOMPARE(picker->currentData().toString(), QString("C"));
    click(withText<QPushButton>(m_window, "Extended view"));
    QCOMPARE(secondTitle(), QString("Amplifier status"));
    click(withText<QPushButton>(m_window, "Back"));
}

QTEST_MAIN(TestSimulatorWindow)

#include "tst_simulator_window.moc"
