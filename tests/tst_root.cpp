// The plug-in as the head unit's framework sees it: found by file and by
// interface, one root per process, driven through CarControlInterface alone.

#include "airdata.h"
#include "basebar.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "hostsim.h"
#include "pluginroot.h"
#include "radardata.h"

#include <QJsonObject>
#include <QMetaMethod>
#include <QPointer>
#include <QtTest>

using namespace PluginRoot;

class TestRoot : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(loader().load(), qPrintable(loader().errorString()));
        HostSim::screen()->show();
    }
    void init()
    {
        HostSim::reset();
        restart();
        car = root();
        QVERIFY(car);
    }
    void cleanup() { restart(); }

    void foundAsTheFrameworkFindsIt();
    void interfaceSlots();
    void reverseFlag();
    void radarAndGuideLinesNeedReverse_data();
    void radarAndGuideLinesNeedReverse();
    void bodyRecords();
    void showAirconditioner_data();
    void showAirconditioner();
    void coordinatorReadsTheCar();
    void showUiRaiseOnlyRaises();
    void extendedViewsComeAndGo();
    void endOfTheRoot();
    void headUnitRun();

private:
    CarControlInterface *car = nullptr;
};

// By interface in the plug-in directory, with the metadata that Qt records,
// and one root until the framework deletes it.
void TestRoot::foundAsTheFrameworkFindsIt()
{
    QStringList found;
    const QDir dir(directory());
    for (const QString &name : dir.entryList(QDir::Files)) {
        if (QPluginLoader(dir.filePath(name)).metaData().value("IID").toString() == "cantheme/0.1")
            found << name;
    }
    QCOMPARE(found, QStringList{"libcarcontrol.so"});
    const QJsonObject meta = loader().metaData();
    QCOMPARE(meta.value("className").toString(), QString("CarControlView"));
    QCOMPARE(meta.value("version").toInt() >> 8, QT_VERSION >> 8);

    QObject *instance = loader().instance();
    QCOMPARE(QPluginLoader(dir.filePath(found.first())).instance(), instance);
    QVERIFY(!instance->qt_metacast("reversetheme/0.1"));
    QPointer<QObject> old = instance;
    delete instance;
    QVERIFY(!old);
    QVERIFY(root());
    QCOMPARE(loader().instance(), root());
}

// The framework may also connect its signals to the slots by name.
void TestRoot::interfaceSlots()
{
    const QMetaObject *view = car->metaObject();
    const QMetaObject *interface = view->superClass();
    QCOMPARE(interface->className(), "CarControlInterface");
    QStringList methods;
    for (int i = interface->methodOffset(); i < interface->methodCount(); ++i) {
        const QMetaMethod method = interface->method(i);
        QCOMPARE(method.methodType(), QMetaMethod::Slot);
        QCOMPARE(method.access(), QMetaMethod::Public);
        methods << method.methodSignature() + ' ' + method.parameterNames().join(',');
    }
    QCOMPARE(methods, (QStringList{
        "onAirConditionerVisibleChanged(bool) visible", "onAirConditionerDataChanged() ",
        "onCardoorDataChanged() ", "onCarbodyDataChanged() ", "onRadarDataChanged() ",
        "onRadarDataChanged(QVariant) data", "onTrajectoryDataChanged(int,int,bool) value,range,visible"}));
    // The implementation adds its private slot and nothing else.
    QCOMPARE(view->methodCount() - view->methodOffset(), 1);
    QCOMPARE(view->method(view->methodOffset()).methodSignature(), QByteArray("onViewDestoryed()"));

    HostSim::setProtocolId(28);
    HostSim::cardoorData()->trunk = 1;
    QVERIFY(QMetaObject::invokeMethod(car, "onCardoorDataChanged"));
    QVERIFY(shown(overlay("carDoorView")));
}

// Without a vehicle the flag is kept and no view is touched; leaving reverse
// never makes the coordinator; a coordinator made later learns the flag.
void TestRoot::reverseFlag()
{
    car->setReverse(true);
    QVERIFY(!dialogView());
    HostSim::setProtocolId(28);
    car->showDialogView();
    QVERIFY(dialogView()->isVisible());
    QVERIFY(shown(overlay("reverseView")));

    restart();
    car = root();
    car->setReverse(false);
    QVERIFY(!dialogView());
}

void TestRoot::radarAndGuideLinesNeedReverse_data()
{
    QTest::addColumn<int>("form");
    QTest::newRow("radar record") << 0;
    QTest::newRow("radar variant") << 1;
    QTest::newRow("guide lines") << 2;
}

void TestRoot::radarAndGuideLinesNeedReverse()
{
    QFETCH(int, form);
    HostSim::setProtocolId(28);
    HostSim::radarData()->distances[0] = 3;
    auto notify = [&] {
        if (form == 0)
            car->onRadarDataChanged();
        else if (form == 1)
            car->onRadarDataChanged(QVariant::fromValue(*HostSim::radarData()));
        else
            car->onTrajectoryDataChanged(5, 40, true);
    };
    notify();
    QVERIFY(!dialogView());
    car->showDialogView();
    notify();
    QVERIFY(!overlay("reverseView"));

    car->setReverse(true);
    notify();
    QWidget *reverseView = overlay("reverseView");
    QCOMPARE(reverseView->property(form < 2 ? "radarValues" : "trajectoryValue"),
             form < 2 ? QVariant(QVariantList{3, 0, 0, 0, 0, 0, 0, 0}) : QVariant(5));
}

// Body records arrive all the time: only a warning makes the coordinator.
// The extended views hear of every one.
void TestRoot::bodyRecords()
{
    HostSim::setProtocolId(28);
    car->showExView();
    car->showExViewDialogView();
    car->onCarbodyDataChanged();
    HostSim::carbodyData()->seatBelt = 2; // above 1: no warning of the record
    car->onCarbodyDataChanged();
    HostSim::setRecordAvailable(HostSim::CarbodyRecord, false);
    car->onCarbodyDataChanged();
    QVERIFY(!dialogView());
    QVERIFY(view(1, "exView") && view(3, "exDialogView"));

    HostSim::setRecordAvailable(HostSim::CarbodyRecord, true);
    HostSim::carbodyData()->seatBelt = 1;
    car->onCarbodyDataChanged();
    QVERIFY(dialogView()->isVisible());
    QVERIFY(shown(overlay("carDoorView")));
}

void TestRoot::showAirconditioner_data()
{
    QTest::addColumn<int>("protocol");
    QTest::addColumn<int>("hasAirConditioner");
    QTest::addColumn<QString>("key");
    QTest::addColumn<bool>("value");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("coordinator");
    QTest::addColumn<bool>("climate");

    const QString noModel = "No model currently selected, please select a model in factory settings";
    const QString noClimate = "This model does not support the air conditioning function";
    const QString key = "ShowAirconditioner";
    QTest::newRow("no vehicle") << 0 << 1 << key << true << noModel << false << false;
    QTest::newRow("no vehicle, hide") << 0 << 1 << key << false << noModel << false << false;
    QTest::newRow("no climate") << 28 << 0 << key << true << noClimate << false << false;
    QTest::newRow("show") << 28 << 1 << key << true << QString() << true << true;
    // The car may send any byte here: whatever isn't zero has climate.
    QTest::newRow("show for byte 2") << 28 << 2 << key << true << QString() << true << true;
    QTest::newRow("show for byte 255") << 28 << 255 << key << true << QString() << true << true;
    // The coordinator comes up and is asked to hide an overlay it hasn't.
    QTest::newRow("hide") << 28 << 1 << key << false << QString() << true << false;
    QTest::newRow("other case") << 0 << 1 << "showairconditioner" << true << QString() << false << false;
    QTest::newRow("other key") << 28 << 1 << "ShowAirConditioner" << true << QString() << false << false;
}

void TestRoot::showAirconditioner()
{
    QFETCH(int, protocol);
    QFETCH(int, hasAirConditioner);
    QFETCH(QString, key);
    QFETCH(bool, value);
    QFETCH(QString, message);
    QFETCH(bool, coordinator);
    QFETCH(bool, climate);

    HostSim::setProtocolId(protocol);
    HostSim::airData()->hasAirConditioner = quint8(hasAirConditioner);
    car->setOtherProperty(key, value);
    QCOMPARE(HostSim::lastMessage(), message);
    QCOMPARE(dialogView() && dialogView()->isVisible(), coordinator);
    QCOMPARE(shown(overlay("airView")), climate);
    if (climate) {
        car->setOtherProperty(key, false);
        QVERIFY(!dialogView()->isVisible());
    }
}

// What the root is told before the coordinator exists is lost: the
// coordinator reads the car when it is made. Afterwards both are passed on.
void TestRoot::coordinatorReadsTheCar()
{
    HostSim::setProtocolId(28);
    car->setProtocolId(0);
    car->setReverse(true);
    QVERIFY(dialogView()->isEnabled());

    QWidget *reverseView = overlay("reverseView");
    car->setRightDriver(true);
    QCOMPARE(reverseView->property("rightDriver").toBool(), true);
    car->setProtocolId(0);
    QVERIFY(!dialogView()->isVisible());
    QVERIFY(!dialogView()->isEnabled());
    QCOMPARE(overlay("reverseView"), reverseView);
}

void TestRoot::showUiRaiseOnlyRaises()
{
    car->showUiRaise();
    QVERIFY(!dialogView());

    HostSim::setProtocolId(28);
    HostSim::cardoorData()->hood = 1;
    car->onCardoorDataChanged();
    QWidget *coordinator = dialogView();
    QWidget cover(level(0));
    cover.setGeometry(coordinator->geometry());
    cover.show();
    const QPoint centre = coordinator->geometry().center();
    QCOMPARE(level(0)->childAt(centre), &cover);
    car->showUiRaise();
    QVERIFY(coordinator->isAncestorOf(level(0)->childAt(centre)));

    coordinator->hide();
    car->showUiRaise();
    QVERIFY(coordinator->isHidden());
}

// Each extended view ends by itself and the next request makes a new one;
// the two are independent.
void TestRoot::extendedViewsComeAndGo()
{
    HostSim::setProtocolId(28);
    car->showExView();
    car->showExViewDialogView();
    QPointer<QWidget> lower = view(1, "exView");
    QPointer<QWidget> upper = view(3, "exDialogView");
    QVERIFY(lower && lower->isVisible() && upper && upper->isVisible());
    QCOMPARE(upper->geometry(), zorvappframework::UIManager::getMainAreaRect());
    car->showExView();
    QCOMPARE(view(1, "exView"), lower.data());

    HostSim::pressBarButton(upper->findChild<BaseBar *>(), "back");
    flushDeletes();
    QVERIFY(!upper && lower);
    car->setData(QVariant(2));
    car->onCarbodyDataChanged();
    car->showExViewDialogView();
    QVERIFY(view(3, "exDialogView")->isVisible());
}

// The root asks its views to end; they go with the next deferred deletion.
void TestRoot::endOfTheRoot()
{
    HostSim::setProtocolId(28);
    car->setReverse(true);
    car->showExView();
    car->showExViewDialogView();
    const QList<QPointer<QWidget> > views{dialogView(), view(1, "exView"), view(3, "exDialogView")};
    delete loader().instance();
    for (const QPointer<QWidget> &view : views)
        QVERIFY(view);
    flushDeletes();
    for (const QPointer<QWidget> &view : views)
        QVERIFY(!view);
}

// A run as on the head unit, seen on the screen: reverse with the radar,
// then a door and the climate, then the extended view.
void TestRoot::headUnitRun()
{
    HostSim::setProtocolId(28);
    QWidget *screen = HostSim::screen();
    const QRect mainArea = zorvappframework::UIManager::getMainAreaRect();
    auto mainAreaNow = [&] { return screen->grab().toImage().copy(mainArea); };
    const QImage home = mainAreaNow();

    car->setReverse(true);
    HostSim::radarData()->distances[0] = 1;
    car->onRadarDataChanged();
    car->onTrajectoryDataChanged(-10, 40, true);
    QCOMPARE(overlay("reverseView")->geometry(), QRect(QPoint(0, 0), mainArea.size()));
    const QImage reversing = mainAreaNow();
    QVERIFY(reversing != home);
    QVERIFY(reversing.pixelColor(2, 2).lightness() < 70);
    car->setReverse(false);
    QCOMPARE(mainAreaNow(), home);

    // The door overlay dims the main area; the climate comes up under it.
    HostSim::cardoorData()->frontLeftDoor = 1;
    car->onCardoorDataChanged();
    const QImage door = mainAreaNow();
    QVERIFY(qGray(door.pixel(2, 2)) < qGray(home.pixel(2, 2)));
    HostSim::airData()->showRequest = 1;
    car->onAirConditionerDataChanged();
    QVERIFY(shown(overlay("airView")) && shown(overlay("carDoorView")));
    HostSim::cardoorData()->frontLeftDoor = 0;
    car->onCardoorDataChanged();
    QVERIFY(shown(overlay("airView")) && !shown(overlay("carDoorView")));
    QVERIFY(mainAreaNow() != door && mainAreaNow() != home);

    car->showExView();
    QVERIFY(view(1, "exView")->isVisible());
}

QTEST_MAIN(TestRoot)
#include "tst_root.moc"
