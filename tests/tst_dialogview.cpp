// The overlay coordinator on its own: the one rule of visibility, the
// climate, door and body handlers with their asymmetry, reverse, stacking,
// and input that never falls through.

#include "airdialogbase.h"
#include "appframework.h"
#include "cardoordialog27.h"
#include "cardoordialogbase.h"
#include "dialogview.h"
#include "hostsim.h"

#include <QPointer>
#include <QtTest>

#include <memory>

namespace {

QWidget *levelZero()
{
    return zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel0);
}

// A head unit key pressed and released on a widget; the event goes up to
// the parents that want it.
void clickKey(QWidget *widget, int key)
{
    QTest::sendKeyEvent(QTest::Click, widget, Qt::Key(key), QString(), Qt::NoModifier);
}

class PressCounter : public QObject
{
public:
    int presses = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        presses += event->type() == QEvent::MouseButtonPress;
        return false;
    }
};

} // namespace

class TestDialogView : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { HostSim::screen()->show(); }
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(28);
        view.reset(new DialogView(levelZero()));
    }
    void cleanup()
    {
        view.reset();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void startsHidden();
    void visibilityRule_data();
    void visibilityRule();
    void climate();
    void doorAndBodyWarnings();
    void autoParkingFault();
    void missingRecords();
    void stacking_data();
    void stacking();
    void reverse();
    void protocolId();
    void pressesAreSwallowed();
    void keysGoToTheHost();

private:
    AirDialogBase *air() const { return view->findChild<AirDialogBase *>("airView"); }
    CardoorDialogBase *door() const { return view->findChild<CardoorDialogBase *>("carDoorView"); }
    QWidget *reverseView() const { return view->findChild<QWidget *>("reverseView"); }
    bool visible() const { return view->isVisible(); }
    void press(QWidget *widget) { QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5)); }

    std::unique_ptr<DialogView> view;
};

void TestDialogView::startsHidden()
{
    QVERIFY(view->isHidden() && view->isEnabled());
    QCOMPARE(view->geometry(), zorvappframework::UIManager::getMainAreaRect());
    QVERIFY(!air() && !door() && !reverseView());
    HostSim::setProtocolId(0);
    QVERIFY(!DialogView(levelZero()).isEnabled());
}

// The rule as a table: climate wish, door wish, reverse view (absent,
// hidden, shown), reverse flag, and whether the coordinator shows.
void TestDialogView::visibilityRule_data()
{
    QTest::addColumn<bool>("airWants");
    QTest::addColumn<bool>("doorWants");
    QTest::addColumn<int>("reverseView");
    QTest::addColumn<bool>("reversing");
    QTest::addColumn<bool>("expected");

    enum { Absent, Hidden, Shown };
    QTest::newRow("nothing") << false << false << int(Absent) << false << false;
    QTest::newRow("reversing, no view") << false << false << int(Absent) << true << true;
    QTest::newRow("climate") << true << false << int(Absent) << false << true;
    QTest::newRow("door") << false << true << int(Absent) << false << true;
    QTest::newRow("both overlays") << true << true << int(Hidden) << false << true;
    QTest::newRow("overlays unwanted") << false << false << int(Hidden) << false << false;
    QTest::newRow("hidden view, reversing") << false << false << int(Hidden) << true << true;
    // Between the end of reverse and its close, the view still wants to be
    // seen.
    QTest::newRow("shown view, reverse over") << false << false << int(Shown) << false << true;
    QTest::newRow("climate under hidden view") << true << false << int(Hidden) << false << true;
}

void TestDialogView::visibilityRule()
{
    QFETCH(bool, airWants);
    QFETCH(bool, doorWants);
    QFETCH(int, reverseView);
    QFETCH(bool, reversing);
    QFETCH(bool, expected);

    // Without a vehicle, reverse only sets the flag.
    HostSim::setProtocolId(0);
    view->setReverse(reversing);
    view->setVisible(!expected);
    view->createAirView();
    air()->setVisible(airWants);
    view->createCarDoorView();
    door()->setVisible(doorWants);
    if (reverseView) {
        view->createReverseView();
        this->reverseView()->setVisible(reverseView == 2);
    }
    view->refreshVisibleView();
    QCOMPARE(!view->isHidden(), expected);
    QCOMPARE(air()->needShow(), airWants);
    QCOMPARE(door()->needShow(), doorWants);
}

// Every climate notice is delivered and the overlay made, whatever the
// record asks; reverse keeps it down, except for the host's direct request.
void TestDialogView::climate()
{
    view->onAirConditionerVisibleChanged(false);
    QVERIFY(!air() && !visible());
    HostSim::airData()->leftTemperature = QStringLiteral("21.5");
    view->onAirConditionerDataChanged();
    QCOMPARE(air()->getData().leftTemperature, QStringLiteral("21.5"));
    QVERIFY(!air()->needShow() && !visible());

    HostSim::airData()->showRequest = 1;
    view->onAirConditionerDataChanged();
    QVERIFY(air()->isVisible());
    view->onAirConditionerVisibleChanged(false);
    QVERIFY(!air()->needShow() && !visible());
    view->onAirConditionerVisibleChanged(true);
    QVERIFY(air()->isVisible());

    view->setReverse(true);
    HostSim::airData()->leftTemperature = QStringLiteral("22");
    view->onAirConditionerDataChanged();
    QCOMPARE(air()->getData().leftTemperature, QStringLiteral("22"));
    view->onAirConditionerVisibleChanged(true);
    QVERIFY(!air()->needShow() && visible());
    view->showAirView(true);
    QVERIFY(air()->isVisible());
    view->showAirView(false);
    QVERIFY(!air()->needShow() && visible());

    // Without a record the overlay keeps its data and the rule still runs.
    view->setReverse(false);
    HostSim::setRecordAvailable(HostSim::AirRecord, false);
    view->onAirConditionerDataChanged();
    QCOMPARE(air()->getData().leftTemperature, QStringLiteral("22"));
    QVERIFY(!visible());
}

// A door notice always brings a dismissed overlay back; a body notice only
// when its warning part (seat belt, condensate) changed.
void TestDialogView::doorAndBodyWarnings()
{
    view->onCardoorDataChanged();
    view->onCarbodyDataChanged();
    QVERIFY(!door());

    HostSim::cardoorData()->rearLeftDoor = 1;
    view->onCardoorDataChanged();
    QCOMPARE(door()->getData().rearLeftDoor, quint8(1));
    press(door());
    QVERIFY(!door()->needShow() && !visible());
    view->onCardoorDataChanged();
    QVERIFY(door()->isVisible());
    HostSim::cardoorData()->rearLeftDoor = 0;
    view->onCardoorDataChanged();
    QVERIFY(!door()->needShow() && !visible());

    HostSim::carbodyData()->seatBelt = 1;
    view->onCarbodyDataChanged();
    QVERIFY(door()->isVisible());
    press(door());
    view->onCarbodyDataChanged();
    QVERIFY(!door()->needShow() && !visible());
    HostSim::carbodyData()->condensateFault = 1;
    view->onCarbodyDataChanged();
    QVERIFY(door()->isVisible());

    *HostSim::carbodyData() = CarbodyData();
    view->onCarbodyDataChanged();
    QVERIFY(!door()->needShow() && !visible());
}

// The automatic parking fault counts as a warning of its own: alone it
// brings the overlay back although the record's warning comparison leaves
// its byte out, and when it clears the overlay goes.
void TestDialogView::autoParkingFault()
{
    HostSim::cardoorData()->rearLeftDoor = 1;
    view->onCardoorDataChanged();
    HostSim::cardoorData()->rearLeftDoor = 0;
    view->onCardoorDataChanged();
    QVERIFY(door() && !visible());

    auto shownBody = [this] { return qobject_cast<CardoorDialog27 *>(door())->getCarbodyData(); };
    HostSim::carbodyData()->autoParkingFault = 1;
    QVERIFY(shownBody().compareWarningPart(*HostSim::carbodyData()));
    view->onCarbodyDataChanged();
    QVERIFY(door()->isVisible());
    QCOMPARE(shownBody().autoParkingFault, qint8(1));

    // The same record again while dismissed: nothing new to tell.
    press(door());
    view->onCarbodyDataChanged();
    QVERIFY(!door()->needShow() && !visible());

    // Cleared while shown: the overlay goes.
    view->onCardoorDataChanged();
    QVERIFY(door()->isVisible());
    HostSim::carbodyData()->autoParkingFault = 0;
    view->onCarbodyDataChanged();
    QVERIFY(!door()->needShow() && !visible());
    QCOMPARE(shownBody().autoParkingFault, qint8(0));
}

// A missing record of the other kind counts as a warning; one of the
// notice's own kind delivers nothing.
void TestDialogView::missingRecords()
{
    HostSim::setRecordAvailable(HostSim::CardoorRecord, false);
    view->onCardoorDataChanged();
    QVERIFY(!door());
    view->onCarbodyDataChanged();
    QVERIFY(door()->isVisible());

    init();
    HostSim::setRecordAvailable(HostSim::CarbodyRecord, false);
    view->onCarbodyDataChanged();
    QVERIFY(!door());
    view->onCardoorDataChanged();
    QVERIFY(door()->isVisible());
}

void TestDialogView::stacking_data()
{
    QTest::addColumn<bool>("doorFirst");
    QTest::newRow("climate first") << false;
    QTest::newRow("door first") << true;
}

// The door overlay lies over the climate overlay whichever came first; the
// climate overlay is seen once the door overlay is dismissed.
void TestDialogView::stacking()
{
    QFETCH(bool, doorFirst);
    HostSim::airData()->showRequest = 1;
    HostSim::cardoorData()->hood = 1;
    if (doorFirst)
        view->onCardoorDataChanged();
    view->onAirConditionerDataChanged();
    view->onCardoorDataChanged();

    const QPoint centre = view->rect().center();
    QWidget *top = view->childAt(centre);
    QVERIFY(top == door() || door()->isAncestorOf(top));
    press(door());
    QVERIFY(visible());
    QCOMPARE(view->childAt(centre), air());
}

void TestDialogView::reverse()
{
    HostSim::airData()->showRequest = 1;
    HostSim::cardoorData()->trunk = 1;
    view->onAirConditionerDataChanged();
    view->onCardoorDataChanged();

    view->setReverse(true);
    QVERIFY(!air()->needShow() && !door()->needShow());
    QPointer<QWidget> reverseView = this->reverseView();
    QCOMPARE(view->childAt(view->rect().center()), reverseView.data());
    view->setReverse(true);
    QCOMPARE(this->reverseView(), reverseView.data());
    view->onCardoorDataChanged();
    view->onAirConditionerDataChanged();
    QVERIFY(!air()->needShow() && !door()->needShow());

    // Nothing restores the overlays when reverse ends but their next record.
    view->setReverse(false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!reverseView);
    QVERIFY(!air()->needShow() && !door()->needShow() && !visible());
    view->onCardoorDataChanged();
    QVERIFY(door()->isVisible());
}

// No vehicle: hidden and deaf, the children kept, also while reversing.
void TestDialogView::protocolId()
{
    HostSim::cardoorData()->trunk = 1;
    view->onCardoorDataChanged();
    view->setProtocolId(0);
    QVERIFY(!visible() && !view->isEnabled() && door());
    view->setProtocolId(28);
    QVERIFY(!visible() && view->isEnabled());

    view->setReverse(true);
    view->showAirView(true);
    QVERIFY(air()->isVisible() && reverseView()->isVisible());
    view->setProtocolId(0);
    QVERIFY(!visible());

    // The id is read again before each delivery.
    HostSim::setProtocolId(-1);
    view->setProtocolId(28);
    view->onCardoorDataChanged();
    QVERIFY(!view->isEnabled());
}

// A press on the area, or on a child that doesn't use it, never reaches what
// lies below.
void TestDialogView::pressesAreSwallowed()
{
    PressCounter counter;
    levelZero()->installEventFilter(&counter);
    HostSim::setProtocolId(0);
    view->setReverse(true);
    QVERIFY(visible() && !reverseView());
    press(view.get());
    view->showReverseView(true);
    press(reverseView());
    levelZero()->removeEventFilter(&counter);
    QCOMPARE(counter.presses, 0);
}

// Keys that no overlay uses reach the host through the coordinator; the
// climate overlay keeps its closing keys.
void TestDialogView::keysGoToTheHost()
{
    HostSim::cardoorData()->trunk = 1;
    view->onCardoorDataChanged();
    clickKey(view.get(), Qt::Key_A);
    clickKey(door(), 0x0110002A);
    QCOMPARE(HostSim::passedKeys(), (QList<int>{Qt::Key_A, 0x0110002A}));
    HostSim::cardoorData()->trunk = 0;
    view->onCardoorDataChanged();

    HostSim::clearPassedKeys();
    view->onAirConditionerVisibleChanged(true);
    clickKey(air(), 0x0110003F);
    QVERIFY(air()->isVisible());
    clickKey(air(), 0x0110002A);
    QVERIFY(!air()->needShow() && !visible());
    QCOMPARE(HostSim::passedKeys(), QList<int>{0x0110003F});
}

QTEST_MAIN(TestDialogView)
#include "tst_dialogview.moc"
