// Protocol 64's own pages (Changan): the charging appointment sent as one
// group, the one-based settings with their shifted sub-commands, the tyre
// warnings and their panel, the parking model and the panorama codes; the
// stack's timer.

#include "exviewtests.h"

#include "airdata.h"

#include <QTimer>

using namespace PageTest;

namespace {

const int Id = 64;

enum PageIndex { Energy, Voice, Functions, Settings, Tyres, Vehicle, Parking, Panorama };

DataBuffer data()
{
    return HostSim::buffer(Id);
}

} // namespace

class TestProtocol64 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Id);
    }

    // A change of one charging time stores it and sends all four from the
    // buffer: 2E 84 05 01 h1 m1 h2 m2.
    void chargingAppointment_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::newRow("start hour") << 2 << 22 << false << "2E 84 05 01 17 1E 06 00 ck";
        QTest::newRow("start hour at top") << 2 << 23 << false << "2E 84 05 01 17 1E 06 00 ck";
        QTest::newRow("start minute") << 3 << 30 << false << "2E 84 05 01 16 1F 06 00 ck";
        QTest::newRow("start minute at top") << 3 << 59 << false << "2E 84 05 01 16 3B 06 00 ck";
        QTest::newRow("end hour") << 4 << 6 << true << "2E 84 05 01 16 1E 05 00 ck";
        QTest::newRow("end minute at bottom") << 5 << 0 << true << "2E 84 05 01 16 1E 06 00 ck";
    }
    void chargingAppointment()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        const int times[] = {22, 30, 6, 0};
        for (int i = 0; i < 4; ++i)
            data().setByte(296 + i, quint8(times[i]));
        data().setByte(294 + row, quint8(byte));
        data().setText(288, QStringLiteral("22:30"));
        Page p(Id, Energy);
        QCOMPARE(p.rows(), 11);
        QCOMPARE(p.shown(0), QString("22:30"));
        QCOMPARE(p.shown(row), QString::number(byte));
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
    }

    void chargingStoresFirst()
    {
        const int times[] = {22, 30, 6, 0};
        for (int i = 0; i < 4; ++i)
            data().setByte(296 + i, quint8(times[i]));
        Page p(Id, Energy);
        p.show();
        p.tap(3, RightArrow);
        p.tap(5, RightArrow);
        QCOMPARE(sent(), hexOf({"2E 84 05 01 16 1F 06 00 ck", "2E 84 05 01 16 1F 06 01 ck"}));
        QCOMPARE(int(data().byte(297)), 31);
        QCOMPARE(int(data().byte(299)), 1);
        QCOMPARE(p.changedRows([] {}), (QList<int>{3, 5}));
    }

    // 2E 84 02 x y, y the row's code for its option.
    void chargingSwitches_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("shown");
        QTest::newRow("creep on") << 6 << false << "2E 84 02 03 01 ck" << "OFF";
        QTest::newRow("creep off") << 6 << true << "2E 84 02 03 02 ck" << "OFF";
        QTest::newRow("recovery powerful") << 7 << false << "2E 84 02 02 01 ck" << "weak";
        QTest::newRow("recovery weak") << 7 << true << "2E 84 02 02 02 ck" << "weak";
        QTest::newRow("long cruising range") << 8 << false << "2E 84 02 04 64 ck" << "long cruising range";
        QTest::newRow("long battery life") << 8 << true << "2E 84 02 04 3C ck" << "long battery life";
        QTest::newRow("10A") << 9 << false << "2E 84 02 05 0A ck" << "10A";
        QTest::newRow("8A") << 9 << true << "2E 84 02 05 08 ck" << "8A";
    }
    void chargingSwitches()
    {
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        QFETCH(QString, shown);
        Page p(Id, Energy);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
        QCOMPARE(p.shown(row), shown);
        // The car reports neither target nor current: a refresh keeps them.
        p.page()->ondataChanged();
        QCOMPARE(p.shown(row), shown);
    }

    void chargingCurrentSteps()
    {
        Page p(Id, Energy);
        p.show();
        for (int i = 0; i < 4; ++i)
            p.tap(9, RightArrow);
        QCOMPARE(sent(), hexOf({"2E 84 02 05 0A ck", "2E 84 02 05 10 ck", "2E 84 02 05 20 ck",
                                "2E 84 02 05 20 ck"}));
        QCOMPARE(p.shown(9), QString("32A"));
    }

    // The settings count from 1 in the buffer (0: nothing yet) and from 0
    // on screen.
    void oneBasedSettings()
    {
        data().setByte(213, 0); // row 1, nothing yet
        data().setByte(214, 1); // row 2, first option
        data().setByte(215, 2); // row 3, second option
        data().setByte(262, 7); // row 50, seventh colour
        data().setByte(251, 100); // row 39, brightness
        data().setByte(253, 61); // row 41, bias
        data().setByte(280, 0); // row 68
        data().setByte(281, 121); // row 69
        Page p(Id, Settings);
        QCOMPARE(p.rows(), 75);
        QCOMPARE(p.title(0), QString("restore vehicle settings"));
        QCOMPARE(p.shown(0), QString("recover"));
        QVERIFY(!p.index(0).data(AdjustableRole).toBool());
        QCOMPARE(p.shown(1), QString("manual"));
        QCOMPARE(p.shown(2), QString("ON"));
        QCOMPARE(p.shown(3), QString("OFF"));
        QCOMPARE(p.shown(50), QString("Green"));
        QCOMPARE(p.shown(39), QString("99"));
        QCOMPARE(p.shown(41), QString("60.0km/h"));
        QCOMPARE(p.shown(68), QString("00:00"));
        QCOMPARE(p.shown(69), QString("02:00"));
        QCOMPARE(p.title(74), QString("Light setup-rechargeable breathing light"));
        for (int row = 1; row < 75; ++row)
            QVERIFY(p.index(row).data(AdjustableRole).toBool());
        QCOMPARE(p.changedRows([] { data().setByte(213, 2); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString("automatic"));
        // Back to 0: the first option again.
        QCOMPARE(p.changedRows([] { data().setByte(213, 0); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString("manual"));
    }

    // 2E 83 02 sub value: the early rows shifted by one, the air conditioner
    // type at 0x80, a few rows without the 1.
    void settingFrames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("sub");
        QTest::addColumn<int>("value");
        auto add = [](const char *name, int row, int byte, bool down, int sub, int value) {
            QTest::newRow(name) << row << byte << down << sub << value;
        };
        add("air conditioner automatic", 1, 1, false, 0x80, 2);
        add("air conditioner from nothing", 1, 0, false, 0x80, 2);
        add("mirrors off", 2, 1, false, 0x01, 2);
        add("remote unlock", 4, 2, true, 0x03, 1);
        add("self drying", 10, 0, false, 0x09, 2);
        add("headlight delay as it stands", 11, 2, false, 0x0A, 2);
        add("one button steering as it stands", 12, 4, false, 0x0B, 3);
        add("welcome sound", 13, 1, false, 13, 2);
        add("window delay as it stands", 18, 1, false, 18, 1);
        add("horn", 21, 1, false, 21, 2);
        add("target beep as it stands", 28, 4, false, 28, 3);
        add("alert sensitivity as it stands", 30, 1, false, 30, 1);
        add("lane sensitivity as it stands", 32, 2, true, 32, 0);
        add("function selection", 33, 1, false, 33, 2);
        add("brightness as it stands", 39, 100, false, 39, 100);
        add("vibration as it stands", 40, 1, false, 40, 1);
        add("bias as it stands", 41, 61, true, 41, 59);
        add("speed warning sound", 42, 1, false, 42, 2);
        add("colour", 50, 1, false, 50, 2);
        add("air preconditioning AM", 68, 11, false, 68, 12);
        add("breathing light", 74, 2, true, 74, 1);
    }
    void settingFrames()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(int, sub);
        QFETCH(int, value);
        data().setByte(212 + row, quint8(byte));
        Page p(Id, Settings);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({"2E 83 02 " + byteText(sub) + " " + byteText(value) + " ck"}));
    }

    void restoreButton()
    {
        Page p(Id, Settings);
        p.show();
        p.tap(0, RightArrow);
        p.tap(1, Middle);
        QVERIFY(HostSim::sentFrames().isEmpty());
        p.tap(0, Middle);
        QCOMPARE(sent(), hexOf({"2E 83 02 00 01 ck"}));
    }

    void tyreWarnings()
    {
        TirePressureInformation &tyres = HostSim::airData()->tirePressure;
        tyres.frontLeftPressure = "2.4 bar";
        tyres.frontRightPressure = "2.5 bar";
        tyres.rearLeftPressure = "2.3 bar";
        tyres.rearRightPressure = "2.2 bar";
        tyres.temperature[TirePressureInformation::RearRight] = 40;
        data().setByte(180, 1);
        data().setByte(190, 1);
        data().setByte(211, 1);
        Page p(Id, Tyres);
        QCOMPARE(p.rows(), 41);
        const QStringList titles = {"Left front tire pressure value", "Right front tire pressure value",
            "Left rear tire pressure value", "Right rear tire pressure value",
            "Front left tire pressure temperature", "Front right tire temperature", "Rear left tire temperature",
            "Rear right tire temperature", "Front left tire warning-sensor failure",
            "Front left tire warning-Sensor battery low", "Front left tire warning-sensor missing",
            "Front left tire warning-fast leak", "Front left tire warning-temperature alert",
            "Front left tire warning-system error", "Front left tire warning-low pressure warning",
            "Front left tire warning-high pressure warning", "Front right tire warning-sensor failure",
            "Front right tire warning-sensor batteryLow", "Front right tire warning-sensor missing",
            "Front right tire warning-fast leak", "Front right tire warning-temperature alert",
            "Front right tire warning-system Error", "Front right tire warning-low pressure warning",
            "Front right tire warning-high pressure warning", "Rear left tire warning-sensor failure",
            "Rear left tire warning-Sensor battery low"};
        for (int row = 0; row < titles.size(); ++row)
            QCOMPARE(p.title(row), titles.at(row));
        QCOMPARE(p.title(29), QString("Rear left tire warning-system error"));
        QCOMPARE(p.title(37), QString("Rear right tire warning-system error"));
        QCOMPARE(p.title(39), QString("Rear right tire warning-high pressure warning"));
        QCOMPARE(p.title(40), QString("Tire pressure reset settings"));
        QCOMPARE(p.shown(0), QString("2.4 bar"));
        QCOMPARE(p.shown(7), QString::fromUtf8("40.0℃"));
        QCOMPARE(p.shown(8), QString("have"));
        QCOMPARE(p.shown(9), QString("none"));
        QCOMPARE(p.shown(18), QString("have"));
        QCOMPARE(p.shown(39), QString("have"));
        QCOMPARE(p.shown(40), QString("reset"));
        QCOMPARE(p.changedRows([&] {
            data().setByte(181, 1);
            tyres.rearLeftPressure = "1.8 bar";
        }), (QList<int>{2, 9}));

        p.show();
        QSignalSpy panel(p.stack, &CarExViewBase::TirePressure);
        p.tap(8, RightArrow);
        p.tap(39, Middle);
        p.tap(40, LeftArrow);
        QCOMPARE(panel.count(), 0);
        p.tap(40, Middle);
        QCOMPARE(panel.count(), 1);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    void parkingStatus_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::newRow("skylight open") << 2 << 0 << false << "2E A6 02 02 00 ck";
        QTest::newRow("skylight closed") << 2 << 1 << true << "2E A6 02 01 00 ck";
        QTest::newRow("skylight stays closed") << 2 << 0 << true << "2E A6 02 01 00 ck";
        QTest::newRow("model") << 5 << 3 << false << "2E EE 02 03 04 ck";
        QTest::newRow("null") << 5 << 1 << true << "2E EE 02 03 00 ck";
        QTest::newRow("last model stays") << 5 << 15 << false << "2E EE 02 03 0F ck";
    }
    void parkingStatus()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        const int offsets[] = {160, 164, 168, 172, 176, 177};
        data().setByte(offsets[row], quint8(byte));
        data().setByte(160, 2);
        data().setText(164, QStringLiteral("Parallel"));
        data().setText(172, QStringLiteral("3200km"));
        data().setByte(176, 7);
        Page p(Id, Parking);
        QCOMPARE(p.rows(), 6);
        const QStringList shown = {"Vertical parking UI highlighted", "Parallel", QString::number(row == 2 ? byte : 0),
                                   "3200km", "7"};
        for (int r = 0; r < shown.size(); ++r)
            QCOMPARE(p.shown(r), shown.at(r));
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
        if (row == 5) {
            // The model is stored and shown at once.
            const int chosen = quint8(QByteArray::fromHex(expected.mid(12, 2).toLatin1()).at(0));
            QCOMPARE(int(data().byte(177)), chosen);
            QCOMPARE(p.value(5), chosen);
        }
        // The other rows build no frame.
        HostSim::clearSentFrames();
        p.tap(0, RightArrow);
        p.tap(4, RightArrow);
        p.step(1, false);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // The video switches carry the stored track mode; the video status its
    // code; the track mode is stored first and shown at once.
    void panorama_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::newRow("right video on") << 0 << 0 << false << "2E 85 02 02 20 ck";
        QTest::newRow("right video off") << 0 << 1 << true << "2E 85 02 02 20 ck";
        QTest::newRow("panoramic video") << 1 << 0 << false << "2E 85 02 02 40 ck";
        QTest::newRow("status null") << 2 << 1 << true << "2E A7 01 00 ck";
        QTest::newRow("status front") << 2 << 0 << false << "2E A7 01 01 ck";
        QTest::newRow("status left") << 2 << 1 << false << "2E A7 01 03 ck";
        QTest::newRow("status right") << 2 << 2 << false << "2E A7 01 04 ck";
        QTest::newRow("status back") << 2 << 3 << false << "2E A7 01 02 ck";
        QTest::newRow("status front 120") << 2 << 4 << false << "2E A7 01 10 ck";
        QTest::newRow("status front 180") << 2 << 5 << false << "2E A7 01 11 ck";
        QTest::newRow("status left and right") << 2 << 6 << false << "2E A7 01 05 ck";
        QTest::newRow("status back 120") << 2 << 7 << false << "2E A7 01 10 ck";
        QTest::newRow("status back 180") << 2 << 8 << false << "2E A7 01 12 ck";
        QTest::newRow("status back 180 stays") << 2 << 9 << false << "2E A7 01 12 ck";
        QTest::newRow("track mode parallel") << 3 << 2 << false << "2E 85 02 03 00 ck";
        QTest::newRow("track mode null") << 3 << 1 << true << "2E 85 02 00 00 ck";
    }
    void panorama()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        data().setByte(156, 2);
        data().setByte(153 + row, quint8(byte));
        Page p(Id, Panorama);
        QCOMPARE(p.rows(), 4);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
        if (row == 3) {
            const int chosen = down ? byte - 1 : byte + 1;
            QCOMPARE(int(data().byte(156)), chosen);
            QCOMPARE(p.value(3), chosen);
            // The switches carry the new track mode.
            HostSim::clearSentFrames();
            p.tap(1, RightArrow);
            QCOMPARE(sent(), hexOf({"2E 85 02 " + byteText(chosen) + " 40 ck"}));
        }
    }

    // The stack's timer runs on only while page 5 is in front.
    void countdown()
    {
        QWidget window;
        CarExViewBase *stack = createPageStack(Id, &window);
        QList<QTimer *> timers = stack->findChildren<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
        QCOMPARE(timers.size(), 1);
        QTimer *timer = timers.at(0);
        QVERIFY(!timer->isActive());
        for (int index = 0; index < 8; ++index) {
            stack->showIndex(index);
            timer->start(1000);
            QVERIFY(QMetaObject::invokeMethod(stack, "onCountdown"));
            QCOMPARE(timer->isActive(), index == 5);
        }
        QVERIFY(HostSim::sentFrames().size() > 0);
    }

    // The family end to end: each page of its own opens from the list and
    // follows the car; the tyre row opens the panel, whose reset sends the
    // family's frame.
    void extendedView()
    {
        ExtendedView v;
        QVERIFY(v.exposed());
        QCOMPARE(v.list->model()->rowCount(), 8);
        v.expectLivePages({
            {Energy, 11, 10, [] { data().setText(304, "120km"); }, "120km"},
            {Settings, 75, 57, [] { data().setByte(269, 2); }, "English"},
            {Tyres, 41, 23, [] { data().setByte(195, 1); }, "have"},
            {Parking, 6, 5, [] { data().setByte(177, 2); }, "18 Changan Lingxuan"},
            {Panorama, 4, 3, [] { data().setByte(156, 1); }, "Normal mode"},
        });
        if (QTest::currentTestFailed())
            return;

        v.open(Tyres);
        TirePressure *panel = v.openTyrePanel(40);
        QVERIFY(panel && panel->isVisible());
        v.tapReset(panel);
        QCOMPARE(sent(), hexOf({"2E 83 02 0C 01 ck"}));
        QVERIFY(!panel->isVisible());
    }
};

QTEST_MAIN(TestProtocol64)
#include "tst_protocol64.moc"
