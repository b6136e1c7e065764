// Protocol 72's own pages (Roewe and MG): the consumption lists made in a
// loop, the driving mode with its packed custom states, the tyre page and
// its panel, the panorama camera in 2D and 3D, the setting pages with their
// group and item frames, packed lamps and step rules, and the model choice.

#include "exviewtests.h"

#include "airdata.h"


using namespace PageTest;

namespace {

const int Id = 72;

enum PageIndex {
    Voice, Functions, Vehicle, ElectricList, FuelList, Energy, DrivingMode, Tyres, Panorama, Warnings,
    Setup3, Setup2, Setup1, Setup4, Body
};

DataBuffer data()
{
    return HostSim::buffer(Id);
}

// 2E C6 03 g i v ck
QString setup(int g, int i, int v)
{
    return QString("2E C6 03 %1 %2 %3 ck").arg(g, 2, 16, QChar('0')).arg(i, 2, 16, QChar('0'))
        .arg(v & 0xFF, 2, 16, QChar('0'));
}

} // namespace

class TestProtocol72 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Id);
    }

    // 51 rows made in a loop: the distance in front of the title, byte i of
    // the array less 25 with the page's unit; bytes past a short array's end
    // leave their rows empty.
    void consumptionLists_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QString>("unit");
        QTest::newRow("electric") << int(ElectricList) << 368 << "kWh/km";
        QTest::newRow("fuel") << int(FuelList) << 372 << "L/km";
    }
    void consumptionLists()
    {
        QFETCH(int, index);
        QFETCH(int, offset);
        QFETCH(QString, unit);
        QByteArray bytes(51, '\0');
        for (int i = 0; i < 51; ++i)
            bytes[i] = char(i * 5);
        bytes[50] = char(0xFF);
        data().setBytes(offset, bytes);
        Page p(Id, index);
        QCOMPARE(p.rows(), 51);
        QCOMPARE(p.title(0), QString("0km ordinate"));
        QCOMPARE(p.title(1), QString("5km ordinate"));
        QCOMPARE(p.title(50), QString("250km ordinate"));
        QCOMPARE(p.shown(0), "-25" + unit);
        QCOMPARE(p.shown(5), "0" + unit);
        QCOMPARE(p.shown(49), "220" + unit);
        QCOMPARE(p.shown(50), "230" + unit);

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        bytes[7] = char(100);
        QCOMPARE(p.changedRows([&] { data().setBytes(offset, bytes); }), QList<int>{7});
        QCOMPARE(p.shown(7), "75" + unit);

        // A short array: the rows past its end empty, the others stay.
        QList<int> past;
        for (int row = 30; row < 51; ++row)
            past << row;
        QCOMPARE(p.changedRows([&] { data().setBytes(offset, bytes.left(30)); }), past);
        QCOMPARE(p.shown(29), "120" + unit);
        QCOMPARE(p.shown(30), QString());

        // Nothing steps or sends.
        p.show();
        p.tap(3, RightArrow);
        p.step(3, false);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    void shortArrayFromTheStart()
    {
        data().setBytes(368, QByteArray(3, char(30)));
        Page p(Id, ElectricList);
        QCOMPARE(p.shown(2), QString("5kWh/km"));
        QCOMPARE(p.shown(3), QString());
        QCOMPARE(p.shown(50), QString());
    }

    void energyAndWarnings()
    {
        data().setByte(344, 2);
        data().setByte(345, 7);
        data().setText(360, QStringLiteral("15.2kWh/100km"));
        Page p(Id, Energy);
        QCOMPARE(p.rows(), 7);
        QCOMPARE(p.shown(0), QString("powerful"));
        QCOMPARE(p.shown(1), QString("Energy recovery mode"));
        QCOMPARE(p.title(5), QString("Average power consumption for the last 250km"));
        QCOMPARE(p.shown(5), QString("15.2kWh/100km"));
        QCOMPARE(p.changedRows([] { data().setByte(345, 9); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString());

        data().setByte(303, 1);
        data().setByte(316, 1);
        Page w(Id, Warnings);
        QCOMPARE(w.rows(), 14);
        QCOMPARE(w.title(5), QString("EPB system fault warningLight"));
        QCOMPARE(w.shown(0), QString("ON"));
        QCOMPARE(w.shown(1), QString("OFF"));
        QCOMPARE(w.title(13), QString("oil warning light"));
        QCOMPARE(w.shown(13), QString("ON"));
        w.show();
        w.tap(0, LeftArrow);
        QVERIFY(!w.index(0).data(AdjustableRole).toBool());
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // 2E C6 03 b3 b4 00: the custom states summed in b4, a change of one
    // repeating the others from the buffer.
    void drivingMode_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QList<int>>("bytes"); // 324 to 327
        QTest::addColumn<QString>("expected");
        const QList<int> custom = {1, 2, 1, 1}; // sports, standard, standard
        QTest::newRow("mode up to sports") << 0 << false << custom << "2E C6 03 02 00 00 ck";
        QTest::newRow("mode down to economy") << 0 << true << custom << "2E C6 03 00 00 00 ck";
        QTest::newRow("mode up to custom carries the states")
            << 0 << false << QList<int>{2, 2, 1, 1} << "2E C6 03 03 98 00 ck";
        QTest::newRow("custom down from super sport")
            << 0 << true << QList<int>{4, 0, 2, 0} << "2E C6 03 03 20 00 ck";
        QTest::newRow("dynamic response") << 1 << true << custom << "2E C6 03 04 58 00 ck";
        QTest::newRow("steering feel") << 2 << true << custom << "2E C6 03 04 88 00 ck";
        QTest::newRow("air conditioning") << 3 << true << custom << "2E C6 03 04 90 00 ck";
        QTest::newRow("air conditioning stays at its last")
            << 3 << false << custom << "2E C6 03 04 98 00 ck";
        // The packed byte is the sum dynamic x 64 + steering x 16 + air x 8,
        // cut to eight bits: a byte outside its options goes in as it stands.
        QTest::newRow("air conditioning of 2 adds 16")
            << 1 << false << QList<int>{3, 0, 0, 2} << "2E C6 03 04 50 00 ck";
        QTest::newRow("bytes beyond the options") << 2 << false << QList<int>{0, 0xFF, 0, 0xFE} << "2E C6 03 04 C0 00 ck";
    }
    void drivingMode()
    {
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QList<int>, bytes);
        QFETCH(QString, expected);
        for (int i = 0; i < 4; ++i)
            data().setByte(324 + i, quint8(bytes.at(i)));
        data().setText(332, QStringLiteral("1.2bar"));
        Page p(Id, DrivingMode);
        QCOMPARE(p.rows(), 8);
        QCOMPARE(p.shown(5), QString("1.2bar"));
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
        // Text rows don't step.
        HostSim::clearSentFrames();
        p.tap(5, RightArrow);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    void tyrePage()
    {
        TirePressureInformation &tyres = HostSim::airData()->tirePressure;
        tyres.frontLeftPressure = "2.4 bar";
        tyres.frontRightPressure = "2.5 bar";
        tyres.rearLeftPressure = "2.3 bar";
        tyres.rearRightPressure = "2.1 bar";
        tyres.status[TirePressureInformation::FrontRight] = 1;
        tyres.temperature[TirePressureInformation::RearLeft] = 31;
        Page p(Id, Tyres);
        QCOMPARE(p.rows(), 13);
        const QStringList shown = {"2.4 bar", "2.5 bar", "2.3 bar", "2.1 bar", "normal", "abnormal", "normal", "normal",
                                   QString::fromUtf8("0.0℃"), QString::fromUtf8("0.0℃"),
                                   QString::fromUtf8("31.0℃"), QString::fromUtf8("0.0℃"), ""};
        for (int row = 0; row < 13; ++row)
            QCOMPARE(p.shown(row), shown.at(row));
        QCOMPARE(p.title(4), QString("Tire pressure front left"));
        QCOMPARE(p.title(11), QString("Temperature-back right"));
        QCOMPARE(p.title(12), QString("reset"));
        QCOMPARE(p.index(12).data(IdRole).toInt(), 12);
        QCOMPARE(p.changedRows([&] {
            tyres.frontRightPressure = "2.6 bar";
            tyres.temperature[TirePressureInformation::FrontLeft] = 28;
        }), (QList<int>{1, 8}));

        // Only the middle of the reset row opens the panel; nothing sends.
        p.show();
        QSignalSpy panel(p.stack, &CarExViewBase::TirePressure);
        p.tap(11, Middle);
        p.tap(12, RightArrow);
        QCOMPARE(panel.count(), 0);
        p.tap(12, Middle);
        QCOMPARE(panel.count(), 1);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // 2E 82 01 code: each row's value mapped to its code.
    void panoramaCodes_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("code");
        QTest::newRow("features always 0") << 0 << 0 << false << 0x00;
        QTest::newRow("turn signal on") << 1 << 0 << false << 0x11;
        QTest::newRow("turn signal off") << 1 << 1 << true << 0x10;
        QTest::newRow("auxiliary line off") << 2 << 1 << true << 0x0C;
        QTest::newRow("auxiliary line dynamic+static") << 2 << 2 << false << 0x0F;
        QTest::newRow("3D") << 3 << 0 << false << 0x03;
        QTest::newRow("2D") << 3 << 1 << true << 0x02;
        QTest::newRow("enter") << 4 << 0 << false << 0x01;
        QTest::newRow("quit") << 4 << 1 << true << 0x00;
    }
    void panoramaCodes()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(int, code);
        data().setByte(317 + row, quint8(byte));
        Page p(Id, Panorama);
        QCOMPARE(p.rows(), 6);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({QString("2E 82 01 %1 ck").arg(code, 2, 16, QChar('0'))}));
    }

    // The camera: in 3D one step through the ten views from the row; in 2D
    // four views, from the car's present state whatever the row shows.
    void panoramaCamera_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("code");
        QTest::newRow("3D front up") << 1 << 0 << false << 0x05;
        QTest::newRow("3D front right up") << 1 << 7 << false << 0x12;
        QTest::newRow("3D back zoom up stays") << 1 << 9 << false << 0x13;
        QTest::newRow("3D front down stays") << 1 << 0 << true << 0x04;
        QTest::newRow("3D back down") << 1 << 4 << true << 0x07;
        const int less[] = {4, 4, 4, 6, 6, 8, 8, 10, 10, 10};
        const int more[] = {6, 6, 8, 8, 10, 10, 10, 10, 10, 10};
        for (int s = 0; s < 10; ++s) {
            QTest::addRow("2D state %d down", s) << 0 << s << true << less[s];
            QTest::addRow("2D state %d up", s) << 0 << s << false << more[s];
        }
        QTest::newRow("2D state past the last down") << 0 << 200 << true << 10;
        QTest::newRow("2D state past the last up") << 0 << 200 << false << 10;
    }
    void panoramaCamera()
    {
        QFETCH(int, model);
        QFETCH(int, state);
        QFETCH(bool, down);
        QFETCH(int, code);
        data().setByte(320, quint8(model));
        data().setByte(322, quint8(state));
        Page p(Id, Panorama);
        p.show();
        p.tap(5, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({QString("2E 82 01 %1 ck").arg(code, 2, 16, QChar('0'))}));
    }

    void panoramaCameraIgnoresTheRowIn2D()
    {
        data().setByte(322, 8);
        Page p(Id, Panorama);
        QCOMPARE(p.shown(5), QString("Front Zoom"));
        p.show();
        // The car turns to the front; the row still shows the zoom.
        data().setByte(322, 0);
        p.tap(5, RightArrow);
        p.tap(5, RightArrow);
        QCOMPARE(sent(), hexOf({"2E 82 01 06 ck", "2E 82 01 06 ck"}));
    }

    // 2E C6 03 g i v: the value as it stands, or after the row's rule.
    void settingFrames_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int index, int row, int byte, bool down, QString expected) {
            QTest::newRow(name) << index << row << byte << down << expected;
        };
        add("3: take me home raw", Setup3, 0, 7, false, setup(3, 1, 8));
        add("3: smart unlock raw", Setup3, 3, 0, true, setup(1, 4, 0));
        add("3: tyre reset raw", Setup3, 4, 254, false, setup(4, 1, 255));
        add("2: take me home", Setup2, 0, 0, false, setup(3, 1, 1));
        add("2: steering feel", Setup2, 2, 1, false, setup(3, 3, 2));
        add("2: mirrors", Setup2, 6, 1, true, setup(8, 1, 0));
        add("2: meter brightness", Setup2, 18, 9, false, setup(7, 1, 10));
        add("2: meter brightness at top", Setup2, 18, 10, false, setup(7, 1, 10));
        add("2: volume", Setup2, 16, 0, false, setup(6, 10, 1));
        add("2: vibration", Setup2, 24, 0, false, setup(6, 12, 1));
        add("2: welcome lights", Setup2, 32, 0, false, setup(3, 4, 1));
        add("2: welcome light stays on 60s", Setup2, 33, 0, false, setup(3, 4, 3));
        add("2: keep lights on 30s", Setup2, 34, 1, true, setup(3, 1, 2));
        add("2: keep lights on 90s", Setup2, 34, 2, false, setup(3, 1, 4));
        add("2: search duration", Setup2, 35, 0, false, setup(2, 4, 1));
        add("2: sunroof", Setup2, 36, 3, true, setup(9, 1, 2));
        add("2: traffic jam", Setup2, 40, 0, false, setup(6, 20, 1));
        add("2: English", Setup2, 41, 0, false, setup(10, 1, 2));
        add("2: Chinese", Setup2, 41, 1, true, setup(10, 1, 1));
        add("1: travel lock", Setup1, 0, 0, false, setup(1, 1, 1));
        add("1: home duration", Setup1, 7, 0, false, setup(2, 2, 1));
        add("1: search duration at top", Setup1, 11, 9, false, setup(2, 4, 9));
        add("4: smart unlock", Setup4, 2, 0, false, setup(1, 3, 1));
        add("4: home duration", Setup4, 6, 3, true, setup(2, 2, 2));
        add("4: take me home 30s", Setup4, 11, 1, false, setup(3, 1, 2));
        add("4: welcome light", Setup4, 14, 4, false, setup(3, 4, 4));
        add("4: stability mode", Setup4, 18, 0, false, setup(4, 5, 1));
        add("4: air quality", Setup4, 22, 0, false, setup(5, 4, 1));
        add("4: pedestrian sound", Setup4, 23, 0, false, setup(6, 1, 1));
        add("4: speed limit alarm", Setup4, 43, 0, false, setup(6, 21, 1));
        add("4: meter brightness", Setup4, 45, 0, false, setup(7, 1, 1));
        add("4: radar tone", Setup4, 47, 0, false, setup(8, 2, 1));
        add("4: window fully open", Setup4, 48, 2, false, setup(9, 2, 3));
        add("4: door lock", Setup4, 52, 0, false, setup(9, 6, 1));
        add("4: trunk", Setup4, 53, 100, false, setup(9, 7, 101));
        add("4: trunk held at 152", Setup4, 53, 152, false, setup(9, 7, 152));
        add("4: English", Setup4, 54, 0, false, setup(10, 1, 2));
    }
    void settingFrames()
    {
        QFETCH(int, index);
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        const int first[] = {297, 255, 243, 188};
        data().setByte(first[index - Setup3] + row, quint8(byte));
        Page p(Id, index);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
        // The row waits for the car.
        QCOMPARE(p.value(row), byte);
    }

    void settingPages()
    {
        Page three(Id, Setup3);
        QCOMPARE(three.rows(), 6);
        data().setByte(299, 37);
        QCOMPARE(three.changedRows([] {}), QList<int>{2});
        QCOMPARE(three.shown(2), QString("37"));
        Page two(Id, Setup2);
        QCOMPARE(two.rows(), 42);
        QCOMPARE(two.title(26), QString("Advanced driver assistance-assist mode1"));
        QCOMPARE(two.shown(9), QString("Default single zone"));
        Page one(Id, Setup1);
        QCOMPARE(one.rows(), 12);
        QCOMPARE(one.shown(7), QString("30s"));
        Page four(Id, Setup4);
        QCOMPARE(four.rows(), 55);
        QCOMPARE(four.title(29), QString("Assisted driving-forward ollision assist"));
        QCOMPARE(four.title(53), QString("Windows and locks-trunk opening"));

        // The reset rows show the car's state and send nothing.
        three.show();
        three.tap(5, RightArrow);
        three.step(5, false);
        two.show();
        two.tap(14, RightArrow);
        two.step(14, false);
        QVERIFY(HostSim::sentFrames().isEmpty());

        // Row 29 of 72_14 follows byte 216, as row 28 does; 217 is no row's.
        QCOMPARE(four.changedRows([] { data().setByte(217, 1); }), QList<int>{});
        QCOMPARE(four.changedRows([] { data().setByte(216, 1); }), (QList<int>{28, 29}));
        QCOMPARE(four.shown(29), QString("ON"));
        QCOMPARE(four.changedRows([] { data().setByte(218, 1); }), QList<int>{30});
    }

    // The three lamps of one item share its value, bit 7, 6 and 5; a change
    // of one keeps what the buffer says of the two others.
    void packedLamps_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("row");
        QTest::addColumn<QList<int>>("lamps");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::newRow("1: low beam on, the others kept") << int(Setup1) << 5 << QList<int>{1, 0, 1} << false
                                                         << setup(2, 1, 0xE0);
        QTest::newRow("1: low beam off") << int(Setup1) << 5 << QList<int>{1, 1, 1} << true << setup(2, 1, 0xA0);
        QTest::newRow("1: reversing on alone") << int(Setup1) << 4 << QList<int>{0, 0, 0} << false
                                               << setup(2, 1, 0x80);
        QTest::newRow("1: fog off, others odd bytes") << int(Setup1) << 6 << QList<int>{2, 0xFF, 1} << true
                                                      << setup(2, 1, 0xC0);
        QTest::newRow("1: search fog on") << int(Setup1) << 10 << QList<int>{0, 1, 0} << false
                                          << setup(2, 3, 0x60);
        QTest::newRow("1: search reversing off") << int(Setup1) << 8 << QList<int>{1, 0, 0} << true
                                                 << setup(2, 3, 0x00);
        QTest::newRow("4: low beam on") << int(Setup4) << 4 << QList<int>{1, 0, 1} << false << setup(2, 1, 0xE0);
        QTest::newRow("4: fog on") << int(Setup4) << 5 << QList<int>{0, 0, 0} << false << setup(2, 1, 0x20);
        QTest::newRow("4: search reversing off") << int(Setup4) << 7 << QList<int>{1, 1, 0} << true
                                                 << setup(2, 3, 0x40);
        QTest::newRow("4: search low beam on") << int(Setup4) << 8 << QList<int>{0, 0, 1} << false
                                               << setup(2, 3, 0x60);
    }
    void packedLamps()
    {
        QFETCH(int, index);
        QFETCH(int, row);
        QFETCH(QList<int>, lamps);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        // The lamps of the row's item: three bytes from the first lamp row.
        const int home = index == Setup1 ? 4 : 3;
        const int search = index == Setup1 ? 8 : 7;
        const int firstRow = row < search ? home : search;
        const int first = (index == Setup1 ? 243 : 188) + firstRow;
        for (int k = 0; k < 3; ++k)
            data().setByte(first + k, quint8(lamps.at(k)));
        Page p(Id, index);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
    }

    // The speed limit alarm value steps by 4 above 30; any step from 30 or
    // below lands on 30; never above 240.
    void speedAlarmSteps_data()
    {
        QTest::addColumn<int>("speed");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("expected");
        QTest::newRow("0 up") << 0 << false << 30;
        QTest::newRow("29 up") << 29 << false << 30;
        QTest::newRow("30 up") << 30 << false << 34;
        QTest::newRow("100 up") << 100 << false << 104;
        QTest::newRow("238 up held") << 238 << false << 240;
        QTest::newRow("240 up held") << 240 << false << 240;
        QTest::newRow("35 down") << 35 << true << 31;
        QTest::newRow("34 down") << 34 << true << 30;
        QTest::newRow("0 down") << 0 << true << 30;
        QTest::newRow("120 down") << 120 << true << 116;
    }
    void speedAlarmSteps()
    {
        QFETCH(int, speed);
        QFETCH(bool, down);
        QFETCH(int, expected);
        data().setByte(188 + 44, quint8(speed));
        Page p(Id, Setup4);
        QCOMPARE(p.shown(44), QString("%1.0km/h").arg(speed));
        p.show();
        p.tap(44, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({setup(6, 22, expected)}));
    }

    // The model choice: stored in byte 168 and the head unit's store, sent
    // as group 0x50 (MG, "null" as FF) or 0x51 (Roewe), and shown at once.
    void modelSelection_data()
    {
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("chosen");
        QTest::addColumn<QString>("expected");
        QTest::newRow("null") << 1 << true << 0 << "2E EE 02 50 FF ck";
        QTest::newRow("null stays") << 0 << true << 0 << "2E EE 02 50 FF ck";
        QTest::newRow("MG-16 Ruiteng") << 0 << false << 1 << "2E EE 02 50 00 ck";
        QTest::newRow("MG-20 MG5") << 7 << false << 8 << "2E EE 02 50 07 ck";
        QTest::newRow("Roewe-Other") << 8 << false << 9 << "2E EE 02 51 00 ck";
        QTest::newRow("Roewe-21") << 18 << false << 19 << "2E EE 02 51 0A ck";
        QTest::newRow("last stays") << 19 << false << 19 << "2E EE 02 51 0A ck";
    }
    void modelSelection()
    {
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(int, chosen);
        QFETCH(QString, expected);
        data().setByte(168, quint8(byte));
        data().setText(156, QStringLiteral("1.2m"));
        Page p(Id, Body);
        QCOMPARE(p.rows(), 8);
        QCOMPARE(p.shown(0), QString("1.2m"));
        QCOMPARE(p.title(3), QString("Model selection"));
        p.show();
        p.tap(3, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hexOf({expected}));
        QCOMPARE(int(data().byte(168)), chosen);
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), chosen);
        QCOMPARE(p.value(3), chosen);
        // No other row sends.
        HostSim::clearSentFrames();
        p.step(0, false);
        p.step(7, true);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // The family end to end: each page of its own opens from the list and
    // follows the car; the tyre row opens the panel, whose reset sends the
    // family's frame.
    void extendedView()
    {
        ExtendedView v;
        QVERIFY(v.exposed());
        QCOMPARE(v.list->model()->rowCount(), 15);
        v.expectLivePages({
            {ElectricList, 51, 2, [] { data().setBytes(368, QByteArray(51, char(40))); }, "15kWh/km"},
            {FuelList, 51, 50, [] { data().setBytes(372, QByteArray(51, char(26))); }, "1L/km"},
            {Energy, 7, 0, [] { data().setByte(344, 1); }, "middle"},
            {DrivingMode, 8, 0, [] { data().setByte(324, 3); }, "CUSTOM"},
            {Tyres, 13, 2, [] { HostSim::airData()->tirePressure.rearLeftPressure = "2.2 bar"; }, "2.2 bar"},
            {Panorama, 6, 3, [] { data().setByte(320, 1); }, "3D"},
            {Warnings, 14, 2, [] { data().setByte(305, 1); }, "ON"},
            {Setup3, 6, 1, [] { data().setByte(298, 3); }, "3"},
            {Setup2, 42, 41, [] { data().setByte(296, 1); }, "English"},
            {Setup1, 12, 11, [] { data().setByte(254, 9); }, "5 minute"},
            {Setup4, 55, 54, [] { data().setByte(242, 1); }, "English"},
            {Body, 8, 3, [] { data().setByte(168, 9); }, "Roewe-Other"},
        });
        if (QTest::currentTestFailed())
            return;

        v.open(Tyres);
        TirePressure *panel = v.openTyrePanel(12);
        QVERIFY(panel && panel->isVisible());
        v.tapReset(panel);
        QCOMPARE(sent(), hexOf({"2E C6 03 04 01 01 ck"}));
        QVERIFY(!panel->isVisible());
    }
};

QTEST_MAIN(TestProtocol72)
#include "tst_protocol72.moc"
