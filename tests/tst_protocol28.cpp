// Protocol 28's pages apart from the vehicle settings: the rows that each
// builds from the data buffer and the climate record, the rows that a
// refresh touches, and the frames of every arrow, byte for byte; the
// requests of all eight pages, and the pages live in the extended view.

#include "tst_protocol28.h"

#include "airdata.h"

#include <cstring>

using namespace P28;

namespace {

enum PageIndex { Parking, Amplifier, Settings, Driving, Energy, Tyres, Condition, Electric };

QStringList series(int group, std::initializer_list<int> qualifiers)
{
    QStringList texts;
    for (int q : qualifiers)
        texts << QString("2E 90 02 %1 %2 ck").arg(group, 2, 16, QChar('0')).arg(q, 2, 16, QChar('0'));
    return texts;
}

// Fifteen 16-bit values in host order, as the energy history holds them.
QByteArray history(int first)
{
    QByteArray bytes(30, '\0');
    for (int i = 0; i < 15; ++i) {
        const quint16 value = quint16(first + i);
        std::memcpy(bytes.data() + 2 * i, &value, sizeof value);
    }
    return bytes;
}

// The electric management of the demo car: locations 2 in use; location 1
// leaves at 7:30, repeating, charging with air conditioning at the third
// current on Saturday to Tuesday, night 22:00 to 6:00, to 80 %.
void fillElectricManagement()
{
    DataBuffer data = buffer();
    const int bytes[] = {0, 1, 0,
                         7, 30, 1, 1, 1, 0, 3, 0, 1, 1, 1, 1, 1, 0, 22, 0, 6, 0, 80,
                         6, 45, 0, 1, 0, 1, 2, 1, 0, 0, 0, 0, 0, 1, 23, 30, 5, 30, 60,
                         8, 0, 1, 1, 0, 0, 1, 0, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0, 50,
                         0};
    for (int i = 0; i < int(sizeof bytes / sizeof bytes[0]); ++i)
        data.setByte(368 + i, quint8(bytes[i]));
}

} // namespace

class TestProtocol28 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
    }

    // Each page asks for its groups 100 ms after it comes to the front,
    // through the stack's signal.
    void requests_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("parking") << int(Parking)
            << series(0x25, {0}) + series(0x27, {0}) + series(0x14, {0}) + series(0x2A, {0}) + series(0x60, {0})
                   + series(0x62, {0});
        QTest::newRow("amplifier") << int(Amplifier) << series(0x51, {0});
        QTest::newRow("settings") << int(Settings)
            << series(0x40, {0x00, 0x10, 0x20, 0x30, 0x31, 0x40, 0x50, 0x51, 0x52, 0x60, 0x70, 0x80, 0x90, 0xA0,
                             0xB0, 0xB1, 0xB2, 0xC0, 0xC1});
        QTest::newRow("driving") << int(Driving)
            << series(0x50, {0x10, 0x11, 0x12, 0x20, 0x21, 0x22, 0x30, 0x31, 0x32, 0x40, 0x41, 0x42, 0x50, 0x51,
                             0x52, 0x60, 0x61, 0x70, 0x71, 0x72, 0x80});
        QTest::newRow("energy") << int(Energy) << series(0x52, {0}) + series(0x53, {0});
        QTest::newRow("tyres") << int(Tyres) << series(0x66, {0}) + series(0x68, {0});
        QTest::newRow("condition") << int(Condition) << series(0x63, {0x10, 0x11, 0x20, 0x21, 0x22});
        QTest::newRow("electric") << int(Electric) << series(0x54, {0});
    }
    void requests()
    {
        QFETCH(int, index);
        QFETCH(QStringList, expected);
        QWidget window;
        CarExViewBase *stack = createPageStack(Protocol, &window);
        QSignalSpy spy(stack, &CarExViewBase::sendData);
        stack->showIndex(index);
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(spy.count(), expected.size());
        QList<QByteArray> received;
        for (QList<QVariant> const &arguments : spy)
            received << arguments.at(0).toByteArray();
        QCOMPARE(hex(received), hexOf(expected));
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    void parkingStatus()
    {
        DataBuffer data = buffer();
        for (int i = 0; i < 7; ++i)
            data.setByte(36 + i, quint8(QList<int>{1, 0, 1, 0, 180, 140, 1}.at(i)));
        data.setText(44, QStringLiteral("Service in 28 days"));
        data.setText(64, QStringLiteral("AdBlue low"));
        data.setByte(68, 1);
        data.setText(72, QStringLiteral("Rear window heating off"));
        HostSim::airData()->outsideTemperature = QString::fromUtf8("18.5℃");
        Page p(Parking);
        QCOMPARE(p.rows(), 18);
        QCOMPARE(p.title(4), QString("Ambient temperature information"));
        QCOMPARE(p.title(7), QString("PM 2.5 Value in tthe ccar"));
        QCOMPARE(p.title(17), QString("Conv.Consumers prompt message 3"));
        const QStringList shown = {"open", "close", "open", "silent", QString::fromUtf8("18.5℃"), "180", "140",
            "yellow", "Service in 28 days", "", "", "", "", "AdBlue low", "activated", "Rear window heating off",
            "", ""};
        for (int row = 0; row < shown.size(); ++row)
            QCOMPARE(p.shown(row), shown.at(row));

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([&] {
            data.setByte(39, 1);
            data.setByte(42, 9); // beyond the options
            data.setText(76, QStringLiteral("Seat heating off"));
            HostSim::airData()->outsideTemperature = QString::fromUtf8("19.0℃");
        }), (QList<int>{3, 4, 7, 16}));
        QCOMPARE(p.shown(3), QString("Vocalize"));
        QCOMPARE(p.shown(4), QString::fromUtf8("19.0℃"));
        QCOMPARE(p.shown(7), QString());

        // No arrows; a step reached by other means moves the row only.
        p.show();
        p.tap(0, RightArrow);
        p.tap(5, LeftArrow);
        p.step(5, false);
        QCOMPARE(p.value(5), 181);
        QVERIFY(p.signalled.isEmpty());
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // Every arrow sends 2E A8 02 row value straight to the decoder box; the
    // rows wait for the car's answer.
    void amplifier()
    {
        const int bytes[] = {30, 11, 9, 18, 0, 5, 3};
        for (int row = 0; row < 7; ++row)
            buffer().setByte(105 + row, quint8(bytes[row]));
        Page p(Amplifier);
        QCOMPARE(p.rows(), 7);
        const QStringList titles = {"volume", "Treble", "Midrange", "bass", "Front And Back Balance",
                                    "Left And Right Balance", "Speed Adjustment"};
        const QStringList shown = {"30", "2", "0", "9", "-9", "-4", "3"};
        for (int row = 0; row < 7; ++row) {
            QCOMPARE(p.title(row), titles.at(row));
            QCOMPARE(p.shown(row), shown.at(row));
        }

        p.show();
        QStringList expected;
        const int highest[] = {30, 18, 18, 18, 18, 18, 7};
        for (int row = 0; row < 7; ++row) {
            p.tap(row, LeftArrow);
            p.tap(row, RightArrow);
            expected << QString("2E A8 02 %1 %2 ck").arg(row, 2, 16, QChar('0'))
                            .arg(qMax(0, bytes[row] - 1), 2, 16, QChar('0'))
                     << QString("2E A8 02 %1 %2 ck").arg(row, 2, 16, QChar('0'))
                            .arg(qMin(highest[row], bytes[row] + 1), 2, 16, QChar('0'));
        }
        QCOMPARE(sent(), hexOf(expected));
        QVERIFY(p.signalled.isEmpty());
        for (int row = 0; row < 7; ++row)
            QCOMPARE(p.shown(row), shown.at(row));

        // The answer moves the row.
        QCOMPARE(p.changedRows([] { buffer().setByte(106, 12); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString("3"));

        // The two arrow slots of the interface do nothing.
        HostSim::clearSentFrames();
        QVERIFY(QMetaObject::invokeMethod(p.page(), "onLeftBtClicked", Q_ARG(QModelIndex, p.index(1))));
        QVERIFY(QMetaObject::invokeMethod(p.page(), "onRightBtClicked", Q_ARG(QModelIndex, p.index(1))));
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    void drivingData()
    {
        for (int row = 0; row < 21; ++row)
            buffer().setText(236 + 4 * row, QString("text %1").arg(row));
        Page p(Driving);
        QCOMPARE(p.rows(), 21);
        QCOMPARE(p.title(0), QString("Fuel mileage"));
        QCOMPARE(p.title(19), QString("Long withAn average power consumption"));
        QCOMPARE(p.title(20), QString("Engine Oil Display"));
        for (int row = 0; row < 21; ++row)
            QCOMPARE(p.shown(row), QString("text %1").arg(row));
        QCOMPARE(p.changedRows([] {
            buffer().setText(256, QStringLiteral("8 930 km"));
            buffer().setText(316, QStringLiteral("OK"));
        }), (QList<int>{5, 20}));
        QCOMPARE(p.shown(5), QString("8 930 km"));

        // Read-only rows; the page's step keeps the bare setting frame.
        p.step(3, false);
        QCOMPARE(sent(), hex({frame("2E C6 02 00 00 ck")}));
    }

    void energyDisplay()
    {
        DataBuffer data = buffer();
        const int words[] = {4230, 1810, 1, 1, 1};
        for (int i = 0; i < 5; ++i)
            data.setWord(320 + 2 * i, quint16(words[i]));
        data.setByte(330, 76);
        data.setWord(332, 2340);
        data.setWord(334, 1250);
        data.setByte(336, 53);
        data.setWord(338, 46);
        data.setBytes(340, history(1));
        data.setBytes(344, history(1230));
        Page p(Energy);
        QCOMPARE(p.rows(), 40);
        const QStringList shown = {"423.0km", "181.0km", "TEnergy flow to high-voltage battery", "Bright",
                                   "Electric drive", "76", "234.0km", "125.0km", "53.0%", "4.6kWh"};
        for (int row = 0; row < shown.size(); ++row)
            QCOMPARE(p.shown(row), shown.at(row));
        QCOMPARE(p.title(9), QString("This energy recovery value"));
        QCOMPARE(p.title(10), QString("Energy recovery value at 1 minute"));
        QCOMPARE(p.title(39), QString("Energy recovery value at 30 minute"));
        QCOMPARE(p.shown(10), QString("0.1kWh"));
        QCOMPARE(p.shown(24), QString("1.5kWh"));
        QCOMPARE(p.shown(25), QString("123kWh"));
        QCOMPARE(p.shown(39), QString("124.4kWh"));

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([&] {
            data.setWord(324, 2);
            data.setWord(338, 47);
            QByteArray later = history(1);
            later[2] = 99;
            data.setBytes(340, later);
        }), (QList<int>{2, 9, 11}));
        QCOMPARE(p.shown(11), QString("9.9kWh"));

        p.step(0, true);
        QCOMPARE(sent(), hex({frame("2E C6 02 00 00 ck")}));
    }

    // History arrays shorter than 30 bytes leave their rows empty until a
    // complete one arrives.
    void energyHistoryShort()
    {
        buffer().setBytes(340, history(1).left(28));
        Page p(Energy);
        QCOMPARE(p.rows(), 40);
        for (int row = 10; row < 40; ++row)
            QCOMPARE(p.shown(row), QString());
        QCOMPARE(p.changedRows([] {}), QList<int>{});

        QList<int> secondHalf;
        for (int row = 25; row < 40; ++row)
            secondHalf << row;
        QCOMPARE(p.changedRows([] { buffer().setBytes(344, history(100)); }), secondHalf);
        QCOMPARE(p.shown(25), QString("10kWh"));
        QCOMPARE(p.shown(10), QString());
        QCOMPARE(p.changedRows([] { buffer().setBytes(340, history(1)); }).size(), 15);
        QCOMPARE(p.shown(10), QString("0.1kWh"));

        // Shorter again, the rows keep what they showed.
        QCOMPARE(p.changedRows([] { buffer().setBytes(340, QByteArray(4, '\x7F')); }), QList<int>{});
        QCOMPARE(p.shown(10), QString("0.1kWh"));
    }

    void tyreInformation_data()
    {
        QTest::addColumn<int>("alarm");
        QTest::addColumn<QString>("expected");
        QTest::newRow("0") << 0 << "Tire pressure is normal";
        QTest::newRow("1 is not in the map") << 1 << "No display";
        QTest::newRow("2") << 2 << "Please check tire pressure";
        QTest::newRow("3") << 3 << "Tire pressure is too low";
        QTest::newRow("4") << 4 << "Tire loss";
        QTest::newRow("5") << 5 << "No display";
        QTest::newRow("255") << 255 << "No display";
    }
    void tyreInformation()
    {
        QFETCH(int, alarm);
        QFETCH(QString, expected);
        TirePressureInformation &tyres = HostSim::airData()->tirePressure;
        tyres.frontLeftPressure = "2.4 bar";
        tyres.frontRightPressure = "2.5 bar";
        tyres.rearLeftPressure = "2.3 bar";
        tyres.rearRightPressure = "2.2 bar";
        tyres.status[TirePressureInformation::RearRight] = 1;
        tyres.alarm[0] = quint8(alarm);
        Page p(Tyres);
        QCOMPARE(p.rows(), 10);
        QCOMPARE(p.title(8), QString("TPMS"));
        const QStringList shown = {"2.4 bar", "2.5 bar", "2.3 bar", "2.2 bar", "normal", "normal", "normal",
                                   "abnormal", "Reset", expected};
        for (int row = 0; row < 10; ++row)
            QCOMPARE(p.shown(row), shown.at(row));
        QCOMPARE(p.changedRows([&] {
            tyres.rearLeftPressure = "1.9 bar";
            tyres.status[TirePressureInformation::FrontRight] = 1;
        }), (QList<int>{2, 5}));

        // Only the middle of the reset row opens the panel; no arrow sends.
        p.show();
        QSignalSpy panel(p.stack, &CarExViewBase::TirePressure);
        p.tap(7, Middle);
        p.tap(9, Middle);
        p.tap(8, LeftArrow);
        QCOMPARE(panel.count(), 0);
        p.tap(8, Middle);
        QCOMPARE(panel.count(), 1);
        QVERIFY(HostSim::sentFrames().isEmpty());
        QVERIFY(p.signalled.isEmpty());
    }

    void conditionCheck()
    {
        DataBuffer data = buffer();
        data.setText(348, QStringLiteral("215 days"));
        data.setText(352, QStringLiteral("18 500 km"));
        data.setText(356, QStringLiteral("102 days"));
        data.setText(360, QStringLiteral("9 800 km"));
        Page p(Condition);
        QCOMPARE(p.rows(), 5);
        const QStringList titles = {"Volkswagen inspection days", "Volkswagen inspection distance",
            "Oil change service days", "Oil change service distance", "Wiper blade in maintenance position"};
        const QStringList shown = {"215 days", "18 500 km", "102 days", "9 800 km", "OFF"};
        for (int row = 0; row < 5; ++row) {
            QCOMPARE(p.title(row), titles.at(row));
            QCOMPARE(p.shown(row), shown.at(row));
        }

        // The wiper row: straight to the decoder box, the row waits.
        p.show();
        p.tap(4, RightArrow);
        p.tap(4, LeftArrow);
        p.tap(1, RightArrow);
        QCOMPARE(sent(), hexOf({"2E C6 02 8C 01 ck", "2E C6 02 8C 00 ck"}));
        QCOMPARE(p.shown(4), QString("OFF"));
        HostSim::clearSentFrames();
        p.step(0, false);
        QCOMPARE(sent(), hex({frame("2E C6 02 00 00 ck")}));

        QCOMPARE(p.changedRows([&] {
            data.setText(352, QStringLiteral("18 000 km"));
            data.setByte(364, 2); // beyond the options
        }), (QList<int>{1, 4}));
        QCOMPARE(p.shown(4), QString());
    }

    void electricManagementRows()
    {
        fillElectricManagement();
        Page p(Electric);
        QCOMPARE(p.rows(), 61);
        QCOMPARE(p.title(0), QString("Electric management-Location 3"));
        QCOMPARE(p.title(2), QString("Electric management-Location 1"));
        QCOMPARE(p.title(3), QString("Location 1-Departure hour"));
        QCOMPARE(p.title(10), QString("Location 1-Sunday"));
        QCOMPARE(p.title(16), QString("Location 1-Monday"));
        QCOMPARE(p.title(22), QString("Location 2-Departure hour"));
        QCOMPARE(p.title(59), QString("Location 3-Battery charging online"));
        QCOMPARE(p.title(60), QString("Bullet frame"));
        const QStringList shown = {"Cancel", "Check", "Cancel", "7", "30", "repeat", "ON", "ON", "OFF", "max",
                                   "Cancel", "Check"};
        for (int row = 0; row < shown.size(); ++row)
            QCOMPARE(p.shown(row), shown.at(row));
        QCOMPARE(p.shown(21), QString("80"));
        QCOMPARE(p.shown(60), QString("disappear"));
        for (int row = 0; row < 61; ++row)
            QVERIFY(p.index(row).data(AdjustableRole).toBool());

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([] {
            buffer().setByte(368, 1);
            buffer().setByte(390, 9);
            buffer().setByte(428, 1);
        }), (QList<int>{0, 22, 60}));
    }

    // A step writes the row's byte and sends its whole group from the
    // buffer, zero-filled, straight to the decoder box; the row waits.
    void electricManagementGroupFrames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int row, bool down, const char *expected) {
            QTest::newRow(name) << row << down << QString(expected);
        };
        add("location 3 in use", 0, false, "2E A5 03 00 06 00 ck");
        add("location 2 out of use", 1, true, "2E A5 03 00 00 00 ck");
        add("location 1 in use", 2, false, "2E A5 03 00 03 00 ck");
        add("departure hour", 3, false, "2E A5 0A 01 08 1E E3 7C 16 00 06 00 50 ck");
        add("departure minutes", 4, false, "2E A5 0A 01 07 23 E3 7C 16 00 06 00 50 ck");
        add("once", 5, true, "2E A5 0A 01 07 1E 63 7C 16 00 06 00 50 ck");
        add("charge off", 6, true, "2E A5 0A 01 07 1E A3 7C 16 00 06 00 50 ck");
        add("air conditioning off", 7, true, "2E A5 0A 01 07 1E C3 7C 16 00 06 00 50 ck");
        add("night current on", 8, false, "2E A5 0A 01 07 1E F3 7C 16 00 06 00 50 ck");
        add("current stays max", 9, false, "2E A5 0A 01 07 1E E3 7C 16 00 06 00 50 ck");
        add("current 13A", 9, true, "2E A5 0A 01 07 1E E2 7C 16 00 06 00 50 ck");
        add("sunday", 10, false, "2E A5 0A 01 07 1E E3 FC 16 00 06 00 50 ck");
        add("saturday off", 11, true, "2E A5 0A 01 07 1E E3 3C 16 00 06 00 50 ck");
        add("monday", 16, false, "2E A5 0A 01 07 1E E3 7E 16 00 06 00 50 ck");
        add("night start hour", 17, false, "2E A5 0A 01 07 1E E3 7C 17 00 06 00 50 ck");
        add("night start minute", 18, false, "2E A5 0A 01 07 1E E3 7C 16 1E 06 00 50 ck");
        add("night end hour", 19, true, "2E A5 0A 01 07 1E E3 7C 16 00 05 00 50 ck");
        add("night end minute", 20, false, "2E A5 0A 01 07 1E E3 7C 16 00 06 1E 50 ck");
        add("battery", 21, true, "2E A5 0A 01 07 1E E3 7C 16 00 06 00 4F ck");
        add("location 2 hour", 22, true, "2E A5 0A 02 05 2D 52 82 17 1E 05 1E 3C ck");
        add("location 2 minutes", 23, false, "2E A5 0A 02 06 32 52 82 17 1E 05 1E 3C ck");
        add("location 2 night hour at top", 36, false, "2E A5 0A 02 06 2D 52 82 17 1E 05 1E 3C ck");
        add("location 2 night minute wraps", 37, false, "2E A5 0A 02 06 2D 52 82 17 00 05 1E 3C ck");
        add("location 3 hour", 41, false, "2E A5 0A 03 09 00 C1 28 00 00 00 00 32 ck");
        add("location 3 monday", 54, false, "2E A5 0A 03 08 00 C1 2A 00 00 00 00 32 ck");
        add("location 3 battery", 59, true, "2E A5 0A 03 08 00 C1 28 00 00 00 00 31 ck");
        add("bullet frame", 60, false, "2E A5 02 80 01 ck");
        add("bullet frame stays", 60, true, "2E A5 02 80 00 ck");
    }
    void electricManagementGroupFrames()
    {
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        fillElectricManagement();
        Page p(Electric);
        p.show();
        const QString before = p.shown(row);
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hex({frame(expected)}));
        QVERIFY(p.signalled.isEmpty());
        QCOMPARE(p.shown(row), before);
    }

    // Minutes and battery step from the buffer by their own rules; the
    // others from the row as shown.
    void electricManagementSteps_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("stepped");
        QTest::addColumn<int>("frameByte");
        QTest::newRow("departure 55 up wraps") << 4 << 55 << false << 0 << 5;
        QTest::newRow("departure 50 up") << 4 << 50 << false << 55 << 5;
        QTest::newRow("departure 5 down") << 4 << 5 << true << 0 << 5;
        QTest::newRow("departure 6 down") << 4 << 6 << true << 1 << 5;
        QTest::newRow("departure 0 down") << 4 << 0 << true << 0 << 5;
        QTest::newRow("night 0 up") << 18 << 0 << false << 30 << 9;
        QTest::newRow("night 30 up wraps") << 18 << 30 << false << 0 << 9;
        QTest::newRow("night 29 down") << 18 << 29 << true << 0 << 9;
        QTest::newRow("night 45 down") << 20 << 45 << true << 15 << 11;
        QTest::newRow("battery 10 down stays") << 21 << 10 << true << 10 << 12;
        QTest::newRow("battery 11 down") << 21 << 11 << true << 10 << 12;
        QTest::newRow("battery 100 up stays") << 21 << 100 << false << 100 << 12;
        QTest::newRow("battery 5 up") << 21 << 5 << false << 10 << 12;
    }
    void electricManagementSteps()
    {
        QFETCH(int, row);
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(int, stepped);
        QFETCH(int, frameByte);
        fillElectricManagement();
        buffer().setByte(368 + row, quint8(start));
        Page p(Electric);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(int(buffer().byte(368 + row)), stepped);
        const QList<QByteArray> sent = HostSim::sentFrames();
        QCOMPARE(sent.size(), 1);
        QCOMPARE(quint8(sent.at(0).at(frameByte)), quint8(stepped));
    }

    void electricManagementStepsStartFrom()
    {
        fillElectricManagement();
        Page p(Electric);
        p.show();
        // The hour steps from the row, which waits for the car: the same
        // hour twice. The minutes step from the buffer: on by five.
        p.tap(3, RightArrow);
        p.tap(3, RightArrow);
        p.tap(4, RightArrow);
        p.tap(4, RightArrow);
        QCOMPARE(sent(), hexOf({"2E A5 0A 01 08 1E E3 7C 16 00 06 00 50 ck",
                                                          "2E A5 0A 01 08 1E E3 7C 16 00 06 00 50 ck",
                                                          "2E A5 0A 01 08 23 E3 7C 16 00 06 00 50 ck",
                                                          "2E A5 0A 01 08 28 E3 7C 16 00 06 00 50 ck"}));
        // The next refresh shows what the buffer holds now.
        QCOMPARE(p.changedRows([] {}), (QList<int>{3, 4}));
        QCOMPARE(p.shown(4), QString("40"));
    }

    // The first car end to end: every page opens from the list with its
    // rows, and follows the car's data while it is in front.
    void extendedViewShowsLivePages()
    {
        ExtendedView v;
        QVERIFY(v.exposed());
        v.expectLivePages({
            {Parking, 18, 0, [] { buffer().setByte(36, 1); }, "open"},
            {Amplifier, 7, 1, [] { buffer().setByte(106, 12); }, "3"},
            {Settings, 116, 114, [] { buffer().setByte(230, 0x2B); }, "Ukraine"},
            {Driving, 21, 0, [] { buffer().setText(236, "642 km"); }, "642 km"},
            {Energy, 40, 5, [] { buffer().setByte(330, 76); }, "76"},
            {Tyres, 10, 0, [] { HostSim::airData()->tirePressure.frontLeftPressure = "2.4 bar"; }, "2.4 bar"},
            {Condition, 5, 4, [] { buffer().setByte(364, 1); }, "ON"},
            {Electric, 61, 60, [] { buffer().setByte(428, 1); }, "Bullet frame"},
        });
        if (QTest::currentTestFailed())
            return;

        // The tyre row opens the panel, whose reset sends its frame.
        v.open(Tyres);
        // The requests of the pages opened so far go out first, this page's last.
        QTRY_COMPARE(HostSim::sentFrames().value(HostSim::sentFrames().size() - 1), frame("2E 90 02 68 00 ck"));
        TirePressure *panel = v.openTyrePanel(8);
        QVERIFY(panel && panel->isVisible());
        v.tapReset(panel);
        QCOMPARE(sent(), hex({frame("2E C6 02 22 01 ck")}));
        QVERIFY(!panel->isVisible());
    }
};

QTEST_MAIN(TestProtocol28)
#include "tst_protocol28.moc"
