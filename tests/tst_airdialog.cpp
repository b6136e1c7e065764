// The climate panel driven by records and touches: which controls a record
// makes and which are down, the temperature texts, the commands on their two
// roads, the switch check, the hide timer, and the whole panel on the screen
// through the plug-in's root.

#include "airdialog27.h"
#include "appframework.h"
#include "customimagebutton.h"
#include "customimagewidget.h"
#include "hostsim.h"
#include "imagepaths.h"
#include "overlayimages.h"
#include "pluginroot.h"

#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

typedef QList<QPair<QString, QString>> Commands;
const QString switchedOff = QString::fromUtf8("请打先开空调");

// A climate record whose function bytes are -1 (the car lacks them) except
// those given as "49=1 50=0". With all, every function byte starts at 0 and
// the car has seat heating.
AirData record(QString const &bytes = QString(), bool all = false)
{
    AirData air;
    for (int byte = AirData::FirstFunction; all && byte <= AirData::LastFunction; ++byte)
        air.setFunction(byte, 0);
    air.seatHeating.hasSeatHeating = all;
    for (const QString &pair : bytes.split(' ', Qt::SkipEmptyParts))
        air.setFunction(pair.section('=', 0, 0).toInt(), qint8(pair.section('=', 1).toInt()));
    return air;
}

int imageReads() { return HostSim::imageFileReads() + overlayImageReads(); }

// What a widget shows, and what a widget like it showing the file would.
QImage shown(QWidget *widget) { return widget->grab().toImage().convertToFormat(QImage::Format_RGB32); }
QImage drawn(QString const &name, QWidget *like)
{
    QWidget parent;
    CustomImageWidget reference(&parent);
    reference.setPalette(like->palette());
    reference.setBackgroundImage(imagePath(OverlayImages, name), false);
    reference.resize(like->size());
    return reference.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

void tap(QWidget *widget)
{
    QVERIFY2(widget, "no such control");
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, widget->rect().center());
}

// Notes how many climate commands had been handed over when a signal came.
class Recorder : public QObject
{
    Q_OBJECT
public:
    QList<int> commandsBefore;
public slots:
    void note() { commandsBefore << HostSim::climateCommands().size(); }
};

// The panel with its hide timer in reach; a test may shorten the delay.
class Panel : public AirDialog27
{
public:
    using AirDialog27::AirDialog27;
    int delay() const { return hideDelay; }
    void setDelay(int ms) { hideDelay = ms; }
    bool timerRuns() const { return hideTimerId != 0; }
    int timerId() const { return hideTimerId; }
};

} // namespace

class TestAirDialog : public QObject
{
    Q_OBJECT

    std::unique_ptr<Panel> panel;

    void deliver(AirData const &air)
    {
        panel->setData(air);
        panel->show();
        PluginRoot::flushDeletes();
    }
    template <typename T = QWidget> T *control(QString const &name) const { return panel->findChild<T *>(name); }
    QString text(char const *label) const { return control<QLabel>(label)->text(); }
    QStringList row(char const *name) const
    {
        QStringList names;
        QLayout *layout = panel->findChild<QLayout *>(name);
        for (int i = 0; i < layout->count(); ++i)
            names << layout->itemAt(i)->widget()->objectName();
        return names;
    }

private slots:
    void initTestCase() { HostSim::screen()->show(); }
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(28);
        panel.reset(new Panel(PluginRoot::level(0)));
        panel->setGeometry(QRect(QPoint(), zorvappframework::UIManager::getMainAreaRect().size()));
    }
    void cleanup()
    {
        panel.reset();
        PluginRoot::flushDeletes();
    }

    void controlsFollowTheRecord_data()
    {
        QTest::addColumn<QString>("bytes");
        QTest::addColumn<QStringList>("topRow");
        QTest::addColumn<QStringList>("windRow");
        QTest::newRow("none") << "51=1 53=1" << QStringList() << QStringList();
        QTest::newRow("inner loop, opposite source") << "61=0" << QStringList{"innerLoopButton"} << QStringList();
        QTest::newRow("second inner loop") << "60=0" << QStringList{"innerLoopQasButton"} << QStringList();
        QTest::newRow("second inner loop gives way") << "59=0 60=0" << QStringList{"innerLoopButton"} << QStringList();
        QTest::newRow("second sources") << "57=0 68=0 70=0 77=0" << QStringList{"autoButton"}
            << QStringList{"frontWindButton", "frontDefrostButton", "rearDefrostButton"};
        QTest::newRow("all") << "60=0"
            << QStringList{"switchButton", "innerLoopButton", "autoButton", "acButton", "heatButton",
                           "dualButton", "fdcButton"}
            << QStringList{"frontWindButton", "downWindButton", "upWindButton", "frontDefrostButton",
                           "rearDefrostButton"};
    }
    // Made in the table's order and removed when the record drops them; the
    // temperature columns and the seat tiles are made once and stay.
    void controlsFollowTheRecord()
    {
        QFETCH(QString, bytes);
        QFETCH(QStringList, topRow);
        QFETCH(QStringList, windRow);
        const bool all = QByteArray(QTest::currentDataTag()) == "all";
        deliver(record(bytes, all));
        QCOMPARE(row("topRow"), topRow);
        QCOMPARE(row("windRow"), windRow);
        QCOMPARE(row("leftColumn"), (QStringList{"leftPlusButton", "leftTempLabel", "leftLessButton"}));
        QCOMPARE(row("rightColumn"), (QStringList{"rightPlusButton", "rightTempLabel", "rightLessButton"}));
        QCOMPARE(bool(control("leftSeatTip")) && bool(control("rightSeatTip")), all);

        AirData none = record();
        none.leftTemperatureValid = none.rightTemperatureValid = 0;
        deliver(none);
        QVERIFY(row("topRow").isEmpty() && row("windRow").isEmpty());
        QCOMPARE(row("rightColumn").size(), 3);
        QCOMPARE(bool(control("leftSeatTip")), all);
    }

    void downStates_data()
    {
        QTest::addColumn<QString>("bytes");
        QTest::addColumn<QStringList>("down");
        const QString on = "50=1 52=1 54=1 55=1 59=1 66=1 67=1 69=1 76=1 77=1 78=1";
        QTest::newRow("running, all off") << "49=1" << QStringList{"switchButton"};
        QTest::newRow("running, all on") << "49=1 " + on
            << QStringList{"acButton", "autoButton", "downWindButton", "dualButton", "fdcButton",
                           "frontDefrostButton", "frontWindButton", "heatButton", "innerLoopButton",
                           "rearDefrostButton", "switchButton", "upWindButton"};
        QTest::newRow("heat and dual only at 1") << "49=1 54=2 66=2" << QStringList{"switchButton"};
        QTest::newRow("inner loop, opposite sense") << "49=1 59=-1 61=0" << QStringList{"innerLoopButton", "switchButton"};
        QTest::newRow("inner loop, opposite off") << "49=1 59=-1 61=1" << QStringList{"switchButton"};
        QTest::newRow("second inner loop") << "49=1 59=-1 61=-1 60=1" << QStringList{"innerLoopQasButton", "switchButton"};
        QTest::newRow("auto, other sources") << "49=1 55=-1 56=1" << QStringList{"autoButton", "switchButton"};
        QTest::newRow("auto off wins") << "49=1 55=0 57=1" << QStringList{"switchButton"};
        QTest::newRow("defrost, second source") << "49=1 67=-1 68=1" << QStringList{"frontDefrostButton", "switchButton"};
        QTest::newRow("air buttons, right zone") << "49=1 71=1 72=1 73=1" << QStringList{"switchButton"};
        QTest::newRow("stopped keeps FDC") << "49=0 " + on << QStringList{"fdcButton"};
        QTest::newRow("no switch runs") << "49=-1 50=1 77=1" << QStringList{"acButton", "frontWindButton"};
    }
    void downStates()
    {
        QFETCH(QString, bytes);
        QFETCH(QStringList, down);
        deliver(record(bytes, true));
        QStringList found;
        for (auto *button : panel->findChildren<CustomImageButton *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (button->isDown())
                found << button->objectName();
        }
        found.sort();
        QCOMPARE(found, down);
    }

    // Running, the seat shows the air arrows (up from the left zone, down
    // from the right) and the bar the right zone's fan, an unknown level
    // leaving it; stopped, the fan stands and the seat keeps its arrows.
    void seatAndFan()
    {
        const char *steps[][3] = {
            {"49=1 71=1 78=1 80=5", "seat_3", "wind_5"}, {"49=1 71=1 76=1 80=2", "seat_2", "wind_2"},
            {"49=1 73=1 78=1 80=9", "seat_1", "wind_2"}, {"49=1 75=3", "seat", "wind_2"},
            {"49=1 71=1 80=7", "seat_2", "wind_7"}, {"49=0 78=1 80=4", "seat_2", "wind_0"}};
        for (const auto &step : steps) {
            deliver(record(step[0]));
            QCOMPARE(shown(control("seatWidget")), drawn(step[1], control("seatWidget")));
            QCOMPARE(shown(control("levelImage")), drawn(step[2], control("levelImage")));
        }
    }

    void temperatures_data()
    {
        QTest::addColumn<int>("low");
        QTest::addColumn<int>("high");
        QTest::addColumn<int>("unit");
        QTest::addColumn<QString>("expected");
        QTest::newRow("Celsius") << 0 << 0 << 0 << QString::fromUtf8("21.5℃");
        QTest::newRow("Fahrenheit") << 0 << 0 << 1 << QString::fromUtf8("21.5℉");
        QTest::newRow("no unit") << 0 << 0 << -1 << "21.5";
        QTest::newRow("other unit") << 0 << 0 << 5 << "NULL";
        QTest::newRow("low") << 1 << 0 << 0 << "Low";
        QTest::newRow("high") << 0 << 1 << 5 << "High";
        QTest::newRow("low wins") << 1 << 1 << 0 << "Low";
    }
    // Both sides by one rule; a side that the record leaves out keeps its
    // last text.
    void temperatures()
    {
        QFETCH(int, low);
        QFETCH(int, high);
        QFETCH(int, unit);
        QFETCH(QString, expected);
        AirData air;
        air.leftTemperatureLow = air.rightTemperatureLow = low;
        air.leftTemperatureHigh = air.rightTemperatureHigh = high;
        air.leftTemperatureUnit = air.rightTemperatureUnit = unit;
        air.leftTemperature = air.rightTemperature = "21.5";
        deliver(air);
        QCOMPARE(text("leftTempLabel"), expected);
        QCOMPARE(text("rightTempLabel"), expected);

        AirData next;
        next.leftTemperatureValid = 0;
        next.rightTemperatureUnit = -1;
        next.rightTemperature = "19";
        deliver(next);
        QCOMPARE(text("leftTempLabel"), expected);
        QCOMPARE(text("rightTempLabel"), QString("19"));
    }

    void commands_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("bytes");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("canbusSignal");
        QTest::addColumn<QVariantList>("arguments");
        QTest::addColumn<bool>("keyFirst");
        // A toggle asks for the opposite of what the button shows.
        auto add = [](const char *name, QString bytes, QString key, QString value, QByteArray signal,
                      QVariantList arguments = {}, bool keyFirst = false) {
            QTest::newRow(name) << name << "49=1 " + bytes << key << value << signal << arguments << keyFirst;
        };
        add("switchButton", "", "AirOnOff", "off", "SetSwitch()");
        add("autoButton", "", "AirAUTO", "on", "setAuto()");
        add("acButton", "50=1", "AirAC", "off", "SetAc()");
        add("innerLoopButton", "", "AirInnerLoop", "on", "setinnerLoop()");
        add("innerLoopQasButton", "59=-1 61=-1 60=1", "AirInnerLoopQAS", "off", "");
        add("fdcButton", "", "AirFDC", "on", "");
        add("leftPlusButton", "", "AirTempFrontLeft", "add", "SetleftPlus()");
        add("leftLessButton", "", "AirTempFrontLeft", "sub", "SetleftLess()");
        add("rightPlusButton", "", "AirTempFrontRight", "add", "SetrightPlus()");
        add("rightLessButton", "", "AirTempFrontRight", "sub", "SetrightLess()");
        add("dualButton", "54=1", "AirDUAL", "off", "SetDUAL()");
        add("heatButton", "", "AirHEAT", "on", "");
        add("upWindButton", "76=1", "AirWindUpFront", "off", "BlowOn(bool)", {true});
        add("frontWindButton", "", "AirWindFrontFront", "on", "MediumBlow(bool)", {true});
        add("downWindButton", "", "AirWindDownFront", "on", "BlowDown(bool)", {true});
        add("frontDefrostButton", "", "AirDefrostFront", "on", "SetfrontDefrostLeftL()");
        add("rearDefrostButton", "69=1", "AirDefrostRear", "off", "SetrearDefrostLeftL()");
        add("leftSeatTip", "", "SeatHotLeft", "", "LeftHeatingButton(int)", {1}, true);
        add("rightSeatTip", "", "SeatHotRight", "", "RightHeatingButton(int)", {2}, true);
        add("addButton", "", "AirWindSpeedAddSubFront", "1", "SetGale()", {}, true);
        add("subButton", "", "AirWindSpeedAddSubFront", "-1", "Setsmall()", {}, true);
    }
    // Each control's key and value, and the "canbus" module's signal before
    // or after it.
    void commands()
    {
        QFETCH(QString, name);
        QFETCH(QString, bytes);
        QFETCH(QString, key);
        QFETCH(QString, value);
        QFETCH(QByteArray, canbusSignal);
        QFETCH(QVariantList, arguments);
        QFETCH(bool, keyFirst);
        deliver(record(bytes, true));
        const QByteArray signal = QByteArray::number(QSIGNAL_CODE) + canbusSignal;
        std::unique_ptr<QSignalSpy> spy;
        Recorder recorder;
        if (!canbusSignal.isEmpty()) {
            spy.reset(new QSignalSpy(HostSim::canbusSignals(), signal.constData()));
            QVERIFY(connect(HostSim::canbusSignals(), signal.constData(), &recorder, SLOT(note())));
        }
        tap(control(name));
        QCOMPARE(HostSim::climateCommands(), (Commands{{key, value}}));
        if (spy) {
            QCOMPARE(spy->size(), 1);
            QCOMPARE(spy->first(), arguments);
            QCOMPARE(recorder.commandsBefore, QList<int>{keyFirst});
        }
    }

    void switchCheck_data()
    {
        QTest::addColumn<int>("protocol");
        QTest::addColumn<QString>("bytes");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("sent");
        QTest::newRow("off, 36") << 36 << "49=0" << "acButton" << false;
        QTest::newRow("off, 37") << 37 << "49=0" << "acButton" << true;
        QTest::newRow("off, 38") << 38 << "49=0" << "leftPlusButton" << true;
        QTest::newRow("off, 39") << 39 << "49=0" << "leftSeatTip" << true;
        QTest::newRow("off, 40") << 40 << "49=0" << "rightSeatTip" << false;
        QTest::newRow("off, the switch itself") << 36 << "49=0" << "switchButton" << true;
        QTest::newRow("off, defroster") << 36 << "49=0" << "rearDefrostButton" << false;
        QTest::newRow("off, fan") << 36 << "49=0" << "subButton" << true;
        // A car without a climate switch can't be off: its commands go.
        QTest::newRow("no switch") << 36 << "49=-1" << "acButton" << true;
        QTest::newRow("no switch, air button") << 36 << "49=-1" << "upWindButton" << true;
    }
    void switchCheck()
    {
        QFETCH(int, protocol);
        QFETCH(QString, bytes);
        QFETCH(QString, name);
        QFETCH(bool, sent);
        HostSim::setProtocolId(protocol);
        deliver(record(bytes, true));
        QSignalSpy signalled(panel.get(), &AirDialog27::onSetAc);
        tap(control(name));
        QCOMPARE(HostSim::climateCommands().size(), int(sent));
        QCOMPARE(HostSim::lastMessage(), sent ? QString() : switchedOff);
        QCOMPARE(signalled.size(), int(sent && name == "acButton"));
    }

    // 15 seconds in the product, shortened to one here. Records and touches
    // of controls restart it, a refused touch too; a touch of the free area
    // doesn't. It runs while the panel is hidden and stops when it hides.
    void hideTimer()
    {
        QCOMPARE(panel->delay(), 15000);
        panel->hide();
        panel->setData(record("49=0 50=0"));
        QVERIFY(panel->timerRuns() && panel->isHidden());
        QTimerEvent foreign(panel->timerId() + 1000);
        QCoreApplication::sendEvent(panel.get(), &foreign);
        QVERIFY(panel->timerRuns());

        panel->setDelay(1000);
        deliver(record("49=0 50=0"));
        QTest::qWait(600);
        tap(control("acButton"));
        QCOMPARE(HostSim::lastMessage(), switchedOff);
        QTest::qWait(600);
        panel->setData(record("49=0 50=0"));
        QTest::qWait(600);
        tap(control("addButton"));
        QTest::qWait(600);
        QVERIFY(panel->isVisible());
        tap(panel.get());
        QTRY_VERIFY_WITH_TIMEOUT(!panel->isVisible(), 700);
        QVERIFY(!panel->timerRuns());
        deliver(record());
        panel->hide();
        QVERIFY(!panel->timerRuns());
    }

    // Four keys close a visible panel; other keys, and all keys while
    // hidden, go on to the coordinator. The title bar's back button closes
    // it by touch.
    void keysAndBack()
    {
        auto press = [&](int key) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QCoreApplication::sendEvent(panel.get(), &event);
            return event.isAccepted();
        };
        for (int key : {0x0110002A, 0x0110002C, 0x01200026, 0x0140000F}) {
            deliver(record());
            QVERIFY(press(key) && panel->isHidden());
            QVERIFY(!press(key));
        }
        deliver(record());
        QVERIFY(!press(0x0110003F) && !press(0x01100041) && panel->isVisible());
        tap(control("backButton"));
        QVERIFY(panel->isHidden());
    }

    // A new air type rebuilds the whole set once it has an A/C button; the
    // texts are written by the same record.
    void airTypeRebuilds()
    {
        AirData air = record("49=1");
        deliver(air);
        QPointer<QWidget> oldSwitch = control("switchButton");
        air.airType = 2;
        deliver(air);
        QVERIFY(oldSwitch);

        air = record("49=1 50=0");
        deliver(air);
        oldSwitch = control("switchButton");
        QPointer<QWidget> oldLabel = control("leftTempLabel");
        air = record("49=1 50=0", true);
        air.airType = 3;
        air.leftTemperature = "24";
        deliver(air);
        QVERIFY(!oldSwitch && !oldLabel);
        QCOMPARE(row("topRow").size(), 7);
        QCOMPARE(text("leftTempLabel"), QString::fromUtf8("24℃"));
    }

    // Pictures are read on first need: a record shown again reads no file,
    // nor does a state seen before.
    void repeatedRecordReadsNoImage()
    {
        AirData first = record("49=1 71=1 78=1 80=3", true);
        first.seatHeating.leftSeat = 2;
        first.seatHeating.rightSeat = -1;
        deliver(first);
        const int reads = imageReads();
        for (int i = 0; i < 3; ++i)
            deliver(first);
        QCOMPARE(imageReads(), reads);
        AirData second = record("49=1 71=1 80=6", true);
        second.seatHeating.leftSeat = 2;
        second.seatHeating.rightSeat = -1;
        deliver(second);
        QCOMPARE(imageReads() - reads, 2); // wind_6 and seat_2
        deliver(first);
        deliver(second);
        QCOMPARE(imageReads() - reads, 2);
    }

    // As on the head unit: the root gets a climate record with the show
    // request and brings up the whole panel with its artwork on the
    // wallpaper; a touch sends its command. The screen is saved.
    void fullPanelThroughTheRoot()
    {
        panel.reset();
        QVERIFY2(PluginRoot::loader().load(), qPrintable(PluginRoot::loader().errorString()));
        QPixmap wallpaper(HostSim::screenSize());
        wallpaper.fill(QColor(30, 60, 90));
        HostSim::setWallpaper(wallpaper);
        AirData &air = *HostSim::airData();
        air = record("49=1 50=1 55=1 59=1 66=1 71=1 78=1 80=4", true);
        air.showRequest = 1;
        air.leftTemperature = "22";
        air.rightTemperature = "21.5";
        air.seatHeating.leftSeat = 3;
        air.seatHeating.rightSeat = -2;
        PluginRoot::root()->onAirConditionerDataChanged();

        QWidget *view = PluginRoot::overlay("airView");
        QVERIFY(view && view->isVisible());
        QCOMPARE(view->findChildren<CustomImageButton *>(QString(), Qt::FindDirectChildrenOnly).size(), 16);
        auto *ac = view->findChild<CustomImageButton *>("acButton");
        QVERIFY(ac->isDown() && ac->isVisible());
        QCOMPARE(ac->size(), QImage(imagePath(OverlayImages, "ac")).size());
        QCOMPARE(view->findChild<QLabel *>("rightTempLabel")->text(), QString::fromUtf8("21.5℃"));

        QTest::qWait(50);
        const QImage screen = HostSim::screen()->grab().toImage();
        const QString output = QCoreApplication::applicationDirPath() + "/tst_airdialog-output";
        QVERIFY(QDir().mkpath(output) && screen.save(output + "/climate_panel.png", "PNG"));
        const QRect area = zorvappframework::UIManager::getMainAreaRect();
        QCOMPARE(screen.pixelColor(area.right() - 2, area.center().y()), QColor(30, 60, 90));
        QVERIFY(screen.pixelColor(ac->mapTo(HostSim::screen(), ac->rect().center())) != QColor(30, 60, 90));

        tap(ac);
        QCOMPARE(HostSim::climateCommands(), (Commands{{"AirAC", "off"}}));
        PluginRoot::restart();
    }
};

QTEST_MAIN(TestAirDialog)
#include "tst_airdialog.moc"
