// The pages of protocol 67 from the amplifier on: the rows that each builds
// from the data buffer and the climate record, what a refresh touches, and
// the 0xFD frames of every arrow and button, byte for byte with both
// checksum bytes; the group frames with the buffer that they are built
// from; the saved model; the pages live in the extended view.

#include "exviewtests.h"

#include "airdata.h"

using PageTest::ExtendedView;
using PageTest::frame;
using PageTest::hex;
using PageTest::LeftArrow;
using PageTest::Middle;
using PageTest::RightArrow;
using PageTest::sent;

namespace {

const int Protocol = 67;

enum PageIndex {
    Amplifier = 3,
    DriveModes,
    ChargeAmounts,
    EnergyFlow,
    EnergyUse,
    Appointments,
    VehicleSetup,
    Panorama,
    Tyres,
    Body
};

DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

void setBytes(int offset, QList<int> const &bytes)
{
    PageTest::setBytes(buffer(), offset, bytes);
}

QList<int> bytesAt(int offset, int count)
{
    QList<int> bytes;
    for (int i = 0; i < count; ++i)
        bytes << buffer().byte(offset + i);
    return bytes;
}

QByteArray fd(QString const &text)
{
    return frame(Protocol, text);
}

QList<QByteArray> fds(QStringList const &texts)
{
    return PageTest::frames(texts, Protocol);
}

// The frame that a read-only page keeps: FD 05 84, nothing else set.
const char *const Skeleton = "FD 05 84 00 ck ck";

class Page : public PageTest::FamilyPage<Protocol>
{
public:
    using FamilyPage::FamilyPage;

    void expectShown(QStringList const &texts)
    {
        for (int row = 0; row < texts.size(); ++row)
            QCOMPARE(shown(row), texts.at(row));
    }
    // No arrow of these rows sends anything.
    void expectSilentArrows(QList<int> const &rows)
    {
        for (int row : rows) {
            tap(row, LeftArrow);
            tap(row, RightArrow);
        }
        QCOMPARE(sent(), QString());
    }
};

// Amplifier: volume 20, balances 7 and 3, bass at its zero point, alto at
// the bottom, treble at the top.
void fillAmplifier()
{
    setBytes(376, {20, 7, 3, 10, 0, 20});
}

// Drive modes: 110 km/h limit, regeneration grades 2, 1, 3, air
// conditioning ECO, standard, ECO; mode information SMART.
void fillDriveModes()
{
    setBytes(352, {80, 55, 30, 0x6E, 1, 0, 2, 1, 0, 1, 2});
    buffer().setText(364, "12 km");
    buffer().setText(368, "3.1 kg");
    setBytes(372, {5, 0});
}

// Appointments: way 1 at 7:30 to 9:00 on Sunday, Monday, Wednesday and
// Friday; time setting 1 at 22:10 Monday to Friday, on; time setting 2 at
// 6:50 on Saturday, off; scheduled charging 23:20 to 5:40; reservation on,
// defrost off, reserved time on, discounted time second way; currents
// least and reduce; 30 degrees.
void fillAppointments()
{
    setBytes(219, {2, 3, 7, 0, 9, 1, 1, 0, 1, 0, 1, 0,
                   1, 22, 0, 1, 1, 1, 1, 1, 0, 1,
                   5, 6, 0, 0, 0, 0, 0, 0, 1, 0,
                   2, 23, 4, 5, 1, 0, 1, 1, 2, 1, 1});
}

} // namespace

class TestProtocol67 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
    }

    void amplifierRows()
    {
        fillAmplifier();
        Page p(Amplifier);
        QCOMPARE(p.rows(), 6);
        const QStringList titles = {"Volume adjustment", "front and rear balance", "balance left and right", "bass",
                                    "Alto", "Treble"};
        for (int row = 0; row < 6; ++row) {
            QCOMPARE(p.title(row), titles.at(row));
            QCOMPARE(p.index(row).data(IdRole).toInt(), row);
            QVERIFY(p.index(row).data(AdjustableRole).toBool());
        }
        p.expectShown({"20", "7", "3", "0", "-10", "10"});
        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([] { setBytes(377, {8}); setBytes(381, {15}); }), (QList<int>{1, 5}));
        QCOMPARE(p.shown(5), QString("5"));
    }

    // A step writes the row's byte, sends its group from the buffer and
    // moves the row at once.
    void amplifierFrames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QList<int>>("bytes");
        QTest::addColumn<int>("value");
        QTest::newRow("volume down") << 0 << true << "FD 05 05 13 ck ck" << QList<int>{19, 7, 3, 10, 0, 20} << 19;
        QTest::newRow("volume up") << 0 << false << "FD 05 05 15 ck ck" << QList<int>{21, 7, 3, 10, 0, 20} << 21;
        QTest::newRow("front rear down") << 1 << true << "FD 06 07 06 03 ck ck" << QList<int>{20, 6, 3, 10, 0, 20}
                                         << 6;
        QTest::newRow("left right up") << 2 << false << "FD 06 07 07 04 ck ck" << QList<int>{20, 7, 4, 10, 0, 20}
                                       << 4;
        QTest::newRow("bass up") << 3 << false << "FD 07 08 0B 00 14 ck ck" << QList<int>{20, 7, 3, 11, 0, 20}
                                 << 11;
        QTest::newRow("alto at the bottom") << 4 << true << "FD 07 08 0A 00 14 ck ck"
                                            << QList<int>{20, 7, 3, 10, 0, 20} << 0;
        QTest::newRow("treble at the top") << 5 << false << "FD 07 08 0A 00 14 ck ck"
                                           << QList<int>{20, 7, 3, 10, 0, 20} << 20;
        QTest::newRow("treble down") << 5 << true << "FD 07 08 0A 00 13 ck ck" << QList<int>{20, 7, 3, 10, 0, 19}
                                     << 19;
    }
    void amplifierFrames()
    {
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        QFETCH(QList<int>, bytes);
        QFETCH(int, value);
        fillAmplifier();
        Page p(Amplifier);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hex({fd(expected)}));
        QCOMPARE(bytesAt(376, 6), bytes);
        QCOMPARE(p.value(row), value);
        QVERIFY(p.signalled.isEmpty());
    }

    void amplifierBuildsFromTheBuffer()
    {
        fillAmplifier();
        Page p(Amplifier);
        p.show();
        // The car moved the other balance and the tones; the page hasn't
        // refreshed, and its frames carry the buffer all the same.
        setBytes(378, {9, 1, 2, 3});
        p.tap(1, LeftArrow);
        p.tap(4, RightArrow);
        // The row moved at once, so the next step goes on from there.
        p.tap(0, RightArrow);
        p.tap(0, RightArrow);
        QCOMPARE(sent(), hex(fds({"FD 06 07 06 09 ck ck", "FD 07 08 01 01 03 ck ck", "FD 05 05 15 ck ck",
                                  "FD 05 05 16 ck ck"})));
        QCOMPARE(p.changedRows([] {}), (QList<int>{2, 3, 5}));
    }

    void driveModeRows()
    {
        fillDriveModes();
        Page p(DriveModes);
        QCOMPARE(p.rows(), 15);
        QCOMPARE(p.title(11), QString("ECO energy saving-CO2 emission reduction(travel distance)"));
        QCOMPARE(p.title(14), QString("Vehicle settings-drive mode reset"));
        p.expectShown({"80.0%", "55.0%", "30.0%", "110KM/H", "Grade 2", "Grade 1", "Grade 3", "ECO", "standard",
                       "ECO", "ECO", "12 km", "3.1 kg", "SMART", "Cancel"});
        const QList<bool> adjustable = {false, false, false, true, true, true, true, true, true, true, false, false,
                                        false, false, true};
        for (int row = 0; row < 15; ++row)
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), adjustable.at(row));
        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([] {
            setBytes(355, {0xFE});
            buffer().setText(368, "3.4 kg");
            setBytes(372, {2});
        }), (QList<int>{3, 12, 13}));
        p.expectShown({"80.0%", "55.0%", "30.0%", "none"});
        QCOMPARE(p.shown(13), QString("ECO"));

        p.show();
        p.expectSilentArrows({0, 1, 2, 10, 11, 12, 13});
    }

    // The speed limit byte is a code; the mode information 5 is "SMART".
    void driveModeMaps_data()
    {
        QTest::addColumn<int>("speed");
        QTest::addColumn<QString>("speedShown");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("modeShown");
        QTest::newRow("254, 0") << 254 << "none" << 0 << "COMFORT";
        QTest::newRow("90, 1") << 0x5A << "90KM/H" << 1 << "SPORT";
        QTest::newRow("100, 2") << 0x64 << "100KM/H" << 2 << "ECO";
        QTest::newRow("120, 3") << 0x78 << "120KM/H" << 3 << "COMFORT";
        QTest::newRow("130, 4") << 0x82 << "130KM/H" << 4 << "COMFORT";
        QTest::newRow("no code, 5") << 0 << "" << 5 << "SMART";
        QTest::newRow("between codes, 6") << 0x5B << "" << 6 << "COMFORT";
        QTest::newRow("255, 255") << 255 << "" << 255 << "COMFORT";
    }
    void driveModeMaps()
    {
        QFETCH(int, speed);
        QFETCH(QString, speedShown);
        QFETCH(int, mode);
        QFETCH(QString, modeShown);
        setBytes(355, {speed});
        setBytes(372, {mode});
        Page p(DriveModes);
        QCOMPARE(p.shown(3), speedShown);
        QCOMPARE(p.shown(13), modeShown);
    }

    // A speed limit that isn't a code shows nothing; a step starts from
    // "none", whose code goes out.
    void driveModeUnknownSpeed()
    {
        fillDriveModes();
        setBytes(355, {7});
        Page p(DriveModes);
        p.show();
        QCOMPARE(p.shown(3), QString());
        p.tap(3, RightArrow);
        p.tap(3, LeftArrow);
        QCOMPARE(sent(), hex(fds({"FD 08 A9 0A 50 18 FE ck ck", "FD 08 A9 0A 50 18 FE ck ck"})));
        // The row waits for the car: the buffer keeps what it reported.
        QCOMPARE(int(buffer().byte(355)), 7);
        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([] { setBytes(355, {0xFE}); }), QList<int>{3});
        QCOMPARE(p.shown(3), QString("none"));
    }

    void chargeAmounts()
    {
        const QStringList texts = {"410 km", "", "350 km", "", "45 min", "1.2 kW", "0.8 kW", "0.1 kW", "0.3 kW"};
        for (int row = 0; row < texts.size(); ++row) {
            if (!texts.at(row).isEmpty())
                buffer().setText(316 + 4 * row, texts.at(row));
        }
        setBytes(320, {40});
        setBytes(328, {26});
        Page p(ChargeAmounts);
        QCOMPARE(p.rows(), 9);
        QCOMPARE(p.title(3), QString("Charging settings-set the aamount Of charge(normal)-battery percentage"));
        p.expectShown({"410 km", "80%", "350 km", "", "45 min", "1.2 kW", "0.8 kW", "0.1 kW", "0.3 kW"});

        // The percentage goes out as itself; a row without an option
        // starts from 50 %.
        p.show();
        p.tap(1, RightArrow);
        p.tap(1, LeftArrow);
        p.tap(3, RightArrow);
        p.tap(3, LeftArrow);
        QCOMPARE(sent(), hex(fds({"FD 06 A9 08 5A ck ck", "FD 06 A9 08 46 ck ck", "FD 06 A9 09 32 ck ck",
                                  "FD 06 A9 09 32 ck ck"})));
        HostSim::clearSentFrames();
        p.expectSilentArrows({0, 2, 4, 5, 6, 7, 8});

        // The car counts in steps of two percent.
        const QList<QPair<int, QString>> shown = {{25, "50%"}, {30, "60%"}, {35, "70%"}, {45, "90%"},
                                                  {50, "100%"}, {24, ""}, {51, ""}, {0, ""}, {100, ""}};
        for (auto const &pair : shown) {
            setBytes(328, {pair.first});
            p.page()->ondataChanged();
            QCOMPARE(p.shown(3), pair.second);
        }
        setBytes(328, {50});
        p.page()->ondataChanged();
        p.tap(3, RightArrow);
        QCOMPARE(sent(), hex({fd("FD 06 A9 09 64 ck ck")}));
    }

    // Read-only pages: no arrow sends; a step that reaches the page by
    // other means sends the bare frame.
    void readOnlyPages_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("rows");
        QTest::newRow("energy flow") << int(EnergyFlow) << 8;
        QTest::newRow("tyres") << int(Tyres) << 28;
    }
    void readOnlyPages()
    {
        QFETCH(int, index);
        QFETCH(int, rows);
        Page p(index);
        p.show();
        QCOMPARE(p.rows(), rows);
        for (int row = 0; row < rows; ++row)
            QVERIFY(!p.index(row).data(AdjustableRole).toBool());
        p.expectSilentArrows({0, rows - 1});
        p.step(rows - 1, false);
        QCOMPARE(sent(), hex({fd(Skeleton)}));
    }

    void energyFlow()
    {
        const QStringList texts = {"11.2 kWh", "4.0 L", "52 310 km", "64 %", "6 h", "11 h"};
        for (int row = 0; row < texts.size(); ++row)
            buffer().setText(288 + 4 * row, texts.at(row));
        setBytes(312, {6, 11});
        Page p(EnergyFlow);
        QCOMPARE(p.title(7), QString("Energy flowchart UI"));
        p.expectShown(texts + QStringList{"6", "UI11 is charging"});
        QCOMPARE(p.changedRows([] { setBytes(313, {12}); buffer().setText(300, "65 %"); }), (QList<int>{3, 7}));
        QCOMPARE(p.shown(7), QString());
    }

    // The reset row reads no byte; only its middle sends FD 06 A9 00 01.
    void energyUse()
    {
        setBytes(264, {5});
        const QStringList texts = {"15.2 kWh/100km", "4.8 L/100km", "13.9 kWh/100km", "12 040 km", "record 3"};
        for (int row = 0; row < texts.size(); ++row)
            buffer().setText(268 + 4 * row, texts.at(row));
        Page p(EnergyUse);
        QCOMPARE(p.rows(), 7);
        QCOMPARE(p.title(6), QString("Energy information: initialization"));
        p.expectShown(QStringList{"5"} + texts + QStringList{"reset"});
        QCOMPARE(p.changedRows([] { setBytes(10, {1}); setBytes(264, {8}); }), QList<int>{0});
        QCOMPARE(p.shown(6), QString("reset"));

        p.show();
        p.expectSilentArrows({0, 5, 6});
        p.tap(5, Middle);
        p.tap(0, Middle);
        QCOMPARE(sent(), QString());
        p.tap(6, Middle);
        QCOMPARE(sent(), hex({fd("FD 06 A9 00 01 ck ck")}));
        QVERIFY(p.signalled.isEmpty());
    }

    void appointmentRows()
    {
        fillAppointments();
        Page p(Appointments);
        QCOMPARE(p.rows(), 43);
        QCOMPARE(p.title(0), QString("How To Set Up An Appointment"));
        QCOMPARE(p.title(12), QString("Charging settings-time settings 1(Minute)"));
        QCOMPARE(p.title(22), QString("Charging settings-time settings 2(minute)"));
        QCOMPARE(p.title(37), QString("Charging current-defrost before scheduling an air conditionere"));
        QCOMPARE(p.title(42), QString("Charging current-reservation air conditioning temperature"));
        for (int row = 0; row < 43; ++row) {
            QVERIFY(p.index(row).data(AdjustableRole).toBool());
            QCOMPARE(p.index(row).data(IdRole).toInt(), row);
        }
        p.expectShown({"way 1", "30", "7", "0", "9", "have", "have", "none", "have", "none", "have", "none",
                       "10", "22"});
        QCOMPARE(p.shown(21), QString("ON"));
        QCOMPARE(p.shown(22), QString("50"));
        QCOMPARE(p.shown(39), QString("Charge only during discounted time"));
        QCOMPARE(p.shown(40), QString("least"));
        QCOMPARE(p.shown(42), QString::fromUtf8("30.0℃"));

        // The way: the car counts from 1, and 0 is "OFF" as well.
        const QList<QPair<int, QString>> ways = {{0, "OFF"}, {1, "OFF"}, {2, "way 1"}, {3, "way 2"}, {4, ""}};
        for (auto const &way : ways) {
            setBytes(219, {way.first});
            p.page()->ondataChanged();
            QCOMPARE(p.shown(0), way.second);
        }
        QCOMPARE(p.changedRows([] { setBytes(222, {5}); setBytes(261, {0}); }), (QList<int>{3, 42}));
        QCOMPARE(p.shown(3), QString("50"));
        QCOMPARE(p.shown(42), QString::fromUtf8("29.0℃"));
    }

    // A step sends its group from the buffer with the stepped value in the
    // row's place; the row keeps its text. Drive modes: rows 3 to 9 send
    // FD 08 A9 0A air regeneration speed (the speed limit as its code) and
    // leave the buffer as the car reported it; the reset goes alone.
    // Appointments: each setting writes its byte first and sends its group
    // zero-filled; the way goes out alone, counted from 1. The last column is
    // the row's byte after the step.
    void groupFrames_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("byte");
        auto drive = [](const char *name, int row, bool down, const char *expected, int byte) {
            // The reset's byte lies behind the two texts.
            QTest::newRow(name) << int(DriveModes) << row << down << QString(expected)
                                << (row == 14 ? 373 : 352 + row) << byte;
        };
        auto appointment = [](const char *name, int row, bool down, const char *expected, int byte) {
            QTest::newRow(name) << int(Appointments) << row << down << QString(expected) << 219 + row << byte;
        };
        drive("speed up", 3, false, "FD 08 A9 0A 50 18 78 ck ck", 0x6E);
        drive("speed down", 3, true, "FD 08 A9 0A 50 18 64 ck ck", 0x6E);
        drive("ECO regeneration up", 4, false, "FD 08 A9 0A 50 28 6E ck ck", 1);
        drive("COMFORT regeneration at the bottom", 5, true, "FD 08 A9 0A 50 18 6E ck ck", 0);
        drive("SPORT regeneration at the top", 6, false, "FD 08 A9 0A 50 18 6E ck ck", 2);
        drive("ECO air standard", 7, true, "FD 08 A9 0A 10 18 6E ck ck", 1);
        drive("COMFORT air ECO", 8, false, "FD 08 A9 0A 54 18 6E ck ck", 0);
        drive("SPORT air standard", 9, true, "FD 08 A9 0A 40 18 6E ck ck", 1);
        drive("reset sure", 14, false, "FD 06 A9 0B 01 ck ck", 0);
        drive("reset cancel", 14, true, "FD 06 A9 0B 00 ck ck", 0);
        appointment("way 2", 0, false, "FD 06 A9 01 03 ck ck", 2);
        appointment("way off", 0, true, "FD 06 A9 01 01 ck ck", 2);
        appointment("start minute", 1, false, "FD 08 A9 02 87 09 55 ck ck", 4);
        appointment("start hour", 2, false, "FD 08 A9 02 68 09 55 ck ck", 8);
        appointment("end minute at the bottom", 3, true, "FD 08 A9 02 67 09 55 ck ck", 0);
        appointment("end hour", 4, false, "FD 08 A9 02 67 0A 55 ck ck", 10);
        appointment("Sunday off", 5, true, "FD 08 A9 02 67 09 15 ck ck", 0);
        appointment("Tuesday on", 7, false, "FD 08 A9 02 67 09 57 ck ck", 1);
        appointment("Saturday on", 11, false, "FD 08 A9 02 67 09 75 ck ck", 1);
        appointment("time 1 minute", 12, true, "FD 07 A9 05 16 9F ck ck", 0);
        appointment("time 1 hour to the top", 13, false, "FD 07 A9 05 37 9F ck ck", 23);
        appointment("time 1 Sunday", 14, false, "FD 07 A9 05 36 DF ck ck", 1);
        appointment("time 1 Saturday", 20, false, "FD 07 A9 05 36 BF ck ck", 1);
        appointment("time 1 off", 21, true, "FD 07 A9 05 36 1F ck ck", 0);
        appointment("time 2 minute at the top", 22, false, "FD 07 A9 06 A6 20 ck ck", 5);
        appointment("time 2 Monday", 25, false, "FD 07 A9 06 A6 21 ck ck", 1);
        appointment("time 2 on", 31, false, "FD 07 A9 06 A6 A0 ck ck", 1);
        appointment("scheduled start minute", 32, true, "FD 08 A9 04 03 37 85 ck ck", 1);
        appointment("scheduled end hour", 35, false, "FD 08 A9 04 03 57 86 ck ck", 6);
        appointment("reserved time off", 38, true, "FD 08 A9 04 01 57 85 ck ck", 0);
        appointment("discounted first way", 39, true, "FD 08 A9 04 02 57 85 ck ck", 0);
        appointment("reservation off", 36, true, "FD 06 A9 07 01 ck ck", 0);
        appointment("defrost on", 37, false, "FD 06 A9 07 C1 ck ck", 1);
        appointment("temperature up", 42, false, "FD 06 A9 07 82 ck ck", 2);
        appointment("pile current reduce", 40, true, "FD 06 A9 03 05 ck ck", 1);
        appointment("portable current least", 41, false, "FD 06 A9 03 0A ck ck", 2);
    }
    void groupFrames()
    {
        QFETCH(int, index);
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        QFETCH(int, offset);
        QFETCH(int, byte);
        if (index == DriveModes)
            fillDriveModes();
        else
            fillAppointments();
        Page p(index);
        p.show();
        const QString before = p.shown(row);
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hex({fd(expected)}));
        QCOMPARE(int(buffer().byte(offset)), byte);
        QCOMPARE(p.shown(row), before);
        QVERIFY(p.signalled.isEmpty());
    }

    // Bytes the car reports beyond their fields still make one byte each.
    void appointmentOddBytes()
    {
        fillAppointments();
        setBytes(221, {0xFF, 0xFF, 0xFF, 2});
        setBytes(226, {3});
        Page p(Appointments);
        p.show();
        p.tap(5, LeftArrow);
        QCOMPARE(sent(), hex({fd("FD 08 A9 02 5F DF 57 ck ck")}));
    }

    void vehicleSetupRows()
    {
        setBytes(204, {1, 2, 1, 2, 0, 1, 2, 1, 9, 2, 2, 0x0F, 8, 1, 3});
        Page p(VehicleSetup);
        QCOMPARE(p.rows(), 14);
        QCOMPARE(p.title(8), QString("Air conditioning system-air recirculation(activated after using glass water)"));
        p.expectShown({"Open", "OFF", "fold", "expand", "null", "Open", "OFF", "Open", "OFF", "Monochrome lights",
                       "Midnight City", "Barcelona Red", "Open", "Brightness level 3"});
        QCOMPARE(p.changedRows([] { setBytes(212, {0}); setBytes(215, {3}); }), QList<int>{10});
        QCOMPARE(p.shown(10), QString("Party theme"));
    }

    // FD 06 83 sub value: the rows' sub-commands skip 9; the value is the
    // option, clamped to the options.
    void vehicleSetupFrames()
    {
        const QList<int> bytes = {1, 2, 1, 2, 0, 1, 2, 1, 0, 2, 0, 8, 1};
        const QList<int> offsets = {204, 205, 206, 207, 208, 209, 210, 211, 213, 214, 215, 216, 217};
        const QList<int> subs = {1, 2, 3, 4, 5, 6, 7, 8, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E};
        const QList<int> highest = {2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 6, 8, 2};
        for (int row = 0; row < offsets.size(); ++row)
            setBytes(offsets.at(row), {bytes.at(row)});
        Page p(VehicleSetup);
        p.show();
        QStringList expected;
        for (int row = 0; row < offsets.size(); ++row) {
            if (row == 10)
                continue;
            p.tap(row, LeftArrow);
            p.tap(row, RightArrow);
            expected << QString("FD 06 83 %1 %2 ck ck").arg(subs.at(row), 2, 16, QChar('0'))
                            .arg(qMax(0, bytes.at(row) - 1), 2, 16, QChar('0'))
                     << QString("FD 06 83 %1 %2 ck ck").arg(subs.at(row), 2, 16, QChar('0'))
                            .arg(qMin(highest.at(row), bytes.at(row) + 1), 2, 16, QChar('0'));
        }
        QCOMPARE(sent(), hex(fds(expected)));
    }

    // The theme colour and the brightness go out as codes.
    void vehicleSetupCodes_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int row, int start, bool down, const char *expected) {
            QTest::newRow(name) << row << start << down << QString(expected);
        };
        add("theme 1", 10, 0x00, false, "FD 06 83 0C 03 ck ck");
        add("theme 2", 10, 0x03, false, "FD 06 83 0C 06 ck ck");
        add("theme 3", 10, 0x06, false, "FD 06 83 0C 09 ck ck");
        add("theme 4", 10, 0x09, false, "FD 06 83 0C 12 ck ck");
        add("theme 5", 10, 0x0C, false, "FD 06 83 0C 0F ck ck");
        add("theme 6", 10, 0x0F, false, "FD 06 83 0C 12 ck ck");
        add("theme 6 at the top", 10, 0x12, false, "FD 06 83 0C 12 ck ck");
        add("theme 0", 10, 0x03, true, "FD 06 83 0C 00 ck ck");
        add("theme from no code", 10, 0x07, false, "FD 06 83 0C 00 ck ck");
        add("brightness 1", 13, 0, false, "FD 06 83 0F 02 ck ck");
        add("brightness 2", 13, 1, false, "FD 06 83 0F 02 ck ck");
        add("brightness 3", 13, 2, false, "FD 06 83 0F 04 ck ck");
        add("brightness 4", 13, 3, false, "FD 06 83 0F 05 ck ck");
        add("brightness null", 13, 1, true, "FD 06 83 0F 05 ck ck");
    }
    void vehicleSetupCodes()
    {
        QFETCH(int, row);
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        setBytes(row == 10 ? 215 : 218, {start});
        Page p(VehicleSetup);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hex({fd(expected)}));
    }

    void panorama()
    {
        setBytes(196, {1, 3, 0, 1, 2, 4, 1, 5});
        Page p(Panorama);
        QCOMPARE(p.rows(), 8);
        QCOMPARE(p.title(7), QString("Rear samera-image status"));
        p.expectShown({"Current is forward view", "Forward + Left", "OFF", "Open", "Front camera only",
                       "Back + Right Back", "Enter", "Image 5"});
        const QList<bool> adjustable = {false, true, true, true, true, true, false, false};
        for (int row = 0; row < 8; ++row)
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), adjustable.at(row));

        p.show();
        for (int row = 1; row <= 4; ++row) {
            p.tap(row, LeftArrow);
            p.tap(row, RightArrow);
        }
        QCOMPARE(sent(), hex(fds({"FD 05 84 02 ck ck", "FD 05 84 04 ck ck", "FD 06 85 01 00 ck ck",
                                  "FD 06 85 01 01 ck ck", "FD 06 85 02 00 ck ck", "FD 06 85 02 01 ck ck",
                                  "FD 06 85 03 01 ck ck", "FD 06 85 03 03 ck ck"})));
        HostSim::clearSentFrames();
        // The rear view mode has no frame; the read-only rows have no arrows.
        p.expectSilentArrows({0, 5, 6, 7});
        // The image status's frame stands ready for a step by other means.
        p.step(7, true);
        p.step(0, false);
        p.step(6, false);
        QCOMPARE(sent(), hex({fd("FD 06 85 04 04 ck ck")}));
        QCOMPARE(p.changedRows([] { setBytes(197, {10}); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString("Back view + Down view"));
    }

    void tyres()
    {
        TirePressureInformation &record = HostSim::airData()->tirePressure;
        record.frontLeftPressure = "2.4 bar";
        record.frontRightPressure = "2.5 bar";
        record.rearLeftPressure = "2.3 bar";
        record.rearRightPressure = "2.2 bar";
        const quint8 temperatures[] = {65, 40, 0, 255};
        for (int wheel = 0; wheel < 4; ++wheel)
            record.temperature[wheel] = temperatures[wheel];
        Page p(Tyres);
        QCOMPARE(p.title(4), QString("Temperature-front reft"));
        QCOMPARE(p.title(16), QString("front right tire--battery status"));
        QCOMPARE(p.title(27), QString("rear right tire-air leak detection"));
        p.expectShown({"2.4 bar", "2.5 bar", "2.3 bar", "2.2 bar", QString::fromUtf8("25.0℃"),
                       QString::fromUtf8("0.0℃"), QString::fromUtf8("-40.0℃"), QString::fromUtf8("215.0℃")});
        // The sensor states come from the protocol's buffer, bytes 176 to
        // 195; a byte beyond a row's options shows none.
        const char *const firstOptions[] = {"battery is normal", "normal", "normal", "No air leakage"};
        for (int row = 8; row < 28; ++row)
            QCOMPARE(p.shown(row), QString(row < 12 ? "No trouble" : firstOptions[(row - 12) % 4]));
        QCOMPARE(p.changedRows([] { setBytes(176, {1, 0, 1, 0, 0, 1, 3, 1, 1, 2, 0, 0, 0, 0, 1, 7, 1, 0, 4, 1}); }),
                 (QList<int>{8, 10, 13, 14, 15, 16, 17, 22, 23, 24, 26, 27}));
        const QStringList states = {"malfunction", "No trouble", "malfunction", "No trouble",
                                    "battery is normal", "slightly higher", "slightly higher", "air leak",
                                    "battery is too low", "Severely high", "normal", "No air leakage",
                                    "battery is normal", "normal", "Severely low", "",
                                    "battery is too low", "normal", "Severely high", "air leak"};
        for (int row = 8; row < 28; ++row)
            QCOMPARE(p.shown(row), states.at(row - 8));
        QCOMPARE(p.changedRows([&] {
            record.rearLeftPressure = "1.9 bar";
            record.temperature[TirePressureInformation::FrontRight] = 45;
            record.status[0] = 1;
            record.alarm[3] = 2;
        }), (QList<int>{2, 5}));
        QCOMPARE(p.shown(5), QString::fromUtf8("5.0℃"));

        // Without a record the texts empty and the temperatures stand at 0.
        HostSim::setRecordAvailable(HostSim::AirRecord, false);
        QCOMPARE(p.changedRows([] {}), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7}));
        for (int row = 0; row < 4; ++row)
            QCOMPARE(p.shown(row), QString());
        QCOMPARE(p.shown(7), QString::fromUtf8("0.0℃"));
    }

    void bodyRows()
    {
        buffer().setText(156, QString::fromUtf8("21℃"));
        setBytes(160, {12, 14, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 1, 7, 0});
        Page p(Body);
        QCOMPARE(p.rows(), 16);
        QCOMPARE(p.title(2), QString("Model selection"));
        QCOMPARE(p.title(6), QString("Seat seat down"));
        QCOMPARE(p.title(10), QString("Backrest-backrest of the seat"));
        // The model and the bearing have no names: their number shows.
        p.expectShown({QString::fromUtf8("21℃"), "12", "14", "Open", "OFF", "OFF", "Open", "OFF", "OFF", "Open",
                       "OFF", "OFF", "Open", "Hybrid/Electric Vehicles", "7", "Chinese"});
        QCOMPARE(p.index(2).data(OptionsRole).toList().size(), 16);
        QCOMPARE(p.index(14).data(OptionsRole).toList().size(), 16);
        const QList<int> adjustable = {2, 13, 14, 15};
        for (int row = 0; row < 16; ++row)
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), adjustable.contains(row));
        QCOMPARE(p.changedRows([] { setBytes(173, {15}); setBytes(161, {16}); }), (QList<int>{2, 14}));
        QCOMPARE(p.shown(14), QString("15"));
        QCOMPARE(p.shown(2), QString());

        p.show();
        p.tap(13, LeftArrow);
        p.tap(14, RightArrow);
        p.tap(15, RightArrow);
        QCOMPARE(sent(), hex(fds({"FD 06 A9 00 00 ck ck", "FD 06 86 0F 00 ck ck", "FD 06 03 01 00 ck ck"})));
        HostSim::clearSentFrames();
        p.expectSilentArrows({0, 1, 3, 12});
    }

    // The model goes into byte 161 and the head unit's store first, then
    // out as its code.
    void modelSelection_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("model");
        QTest::addColumn<QString>("expected");
        QTest::newRow("0 at the bottom") << 0 << true << 0 << "FD 06 EE 20 00 ck ck";
        QTest::newRow("1") << 0 << false << 1 << "FD 06 EE 20 01 ck ck";
        QTest::newRow("13") << 12 << false << 13 << "FD 06 EE 20 0D ck ck";
        QTest::newRow("14") << 13 << false << 14 << "FD 06 EE 20 81 ck ck";
        QTest::newRow("15") << 14 << false << 15 << "FD 06 EE 20 82 ck ck";
        QTest::newRow("15 at the top") << 15 << false << 15 << "FD 06 EE 20 82 ck ck";
        QTest::newRow("14 down") << 15 << true << 14 << "FD 06 EE 20 81 ck ck";
        QTest::newRow("beyond the models") << 40 << false << 15 << "FD 06 EE 20 82 ck ck";
    }
    void modelSelection()
    {
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(int, model);
        QFETCH(QString, expected);
        setBytes(161, {start});
        Page p(Body);
        p.show();
        p.tap(2, down ? LeftArrow : RightArrow);
        QCOMPARE(int(buffer().byte(161)), model);
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), model);
        QCOMPARE(sent(), hex({fd(expected)}));
        QCOMPARE(p.changedRows([] {}), start == model ? QList<int>{} : QList<int>{2});
        QCOMPARE(p.shown(2), QString::number(model));
    }

    // The family's own pages open from the list and follow the car's data
    // while they are in front.
    void extendedViewShowsLivePages()
    {
        ExtendedView v;
        QVERIFY(v.exposed());
        v.expectLivePages({
            {Amplifier, 6, 3, [] { setBytes(379, {12}); }, "2"},
            {DriveModes, 15, 3, [] { setBytes(355, {0xFE}); }, "none"},
            {ChargeAmounts, 9, 1, [] { setBytes(320, {45}); }, "90%"},
            {EnergyFlow, 8, 7, [] { setBytes(313, {5}); }, "UI5 Charging"},
            {EnergyUse, 7, 1, [] { buffer().setText(268, "15 kWh"); }, "15 kWh"},
            {Appointments, 43, 2, [] { setBytes(221, {18}); }, "18"},
            {VehicleSetup, 14, 9, [] { setBytes(214, {1}); }, "theme color"},
            {Panorama, 8, 0, [] { setBytes(196, {2}); }, "Current is backward view"},
            {Tyres, 28, 0, [] { HostSim::airData()->tirePressure.frontLeftPressure = "2.6 bar"; }, "2.6 bar"},
            {Body, 16, 15, [] { setBytes(174, {1}); }, "English"},
        });
    }
};

QTEST_MAIN(TestProtocol67)
#include "tst_protocol67.moc"
