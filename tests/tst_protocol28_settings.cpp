// Protocol 28's vehicle settings page, "Body information": 116 rows over
// bytes 112 to 231, each step a 2E C6 02 frame sent through the stack, with
// the page's step rules and value maps, byte for byte.

#include "tst_protocol28.h"

using namespace P28;

namespace {

const int SettingsPage = 2;

// The rows that step by one within their options or range: row, byte,
// sub-command, highest value.
struct PlainRow
{
    int row, byte, sub, high;
};
const PlainRow plainRows[] = {
    {0, 112, 0x10, 2},   {1, 113, 0x20, 1},   {4, 116, 0x23, 2},   {5, 117, 0x30, 1},   {6, 118, 0x31, 1},
    {7, 119, 0x36, 1},   {8, 120, 0x3E, 1},   {9, 121, 0x32, 1},   {10, 122, 0x33, 1},  {11, 123, 0x34, 1},
    {12, 124, 0x35, 1},  {13, 125, 0x37, 3},  {14, 126, 0x38, 4},  {15, 127, 0x39, 1},  {16, 128, 0x3D, 1},
    {17, 129, 0x3C, 3},  {18, 130, 0x3F, 5},  {19, 131, 0x40, 1},  {21, 133, 0x3A, 1},  {22, 134, 0x3B, 1},
    {23, 135, 0x41, 9},  {24, 136, 0x42, 9},  {25, 137, 0x43, 9},  {26, 138, 0x44, 9},  {27, 139, 0x46, 6},
    {28, 140, 0x45, 3},  {30, 142, 0x50, 2},  {31, 143, 0x51, 1},  {32, 144, 0x52, 1},  {33, 145, 0xC8, 1},
    {37, 149, 0x56, 1},  {38, 150, 0x5F, 6},  {41, 153, 0x59, 1},  {42, 154, 0x5A, 1},  {47, 159, 0x4A, 2},
    {48, 160, 0x5E, 10}, {49, 162, 0x60, 1},  {50, 163, 0x61, 1},  {51, 164, 0x62, 1},  {52, 165, 0x63, 1},
    {53, 166, 0x64, 1},  {54, 167, 0x70, 2},  {55, 168, 0x71, 2},  {56, 169, 0x72, 1},  {57, 170, 0x74, 1},
    {58, 171, 0x66, 1},  {59, 172, 0x67, 1},  {60, 173, 0x68, 1},  {61, 174, 0x73, 1},  {62, 175, 0x75, 1},
    {63, 176, 0x80, 1},  {64, 177, 0x81, 1},  {65, 178, 0x82, 1},  {66, 179, 0x83, 1},  {67, 180, 0x84, 1},
    {68, 181, 0x85, 1},  {69, 182, 0x86, 1},  {70, 183, 0x87, 1},  {71, 184, 0x88, 1},  {72, 185, 0x89, 1},
    {73, 186, 0x93, 2},  {74, 187, 0x96, 1},  {75, 188, 0x92, 1},  {76, 189, 0x91, 1},  {77, 190, 0x90, 1},
    {78, 191, 0x94, 3},  {79, 192, 0x95, 2},  {83, 196, 0xD0, 8},  {84, 197, 0xD2, 2},  {85, 198, 0xD1, 1},
    {86, 199, 0xD5, 2},  {90, 203, 0xCB, 1},  {91, 204, 0xC9, 1},  {95, 208, 0xE2, 1},  {96, 209, 0xE1, 1},
    {97, 210, 0xE3, 1},  {99, 212, 0xE5, 1},  {100, 213, 0xE6, 1}, {101, 214, 0xE7, 1}, {102, 215, 0xA0, 1},
    {104, 217, 0xA2, 1}, {106, 219, 0xF1, 3}, {108, 224, 0xF3, 1}, {111, 228, 0xEA, 8}, {112, 229, 0xEB, 8},
    {115, 231, 0x11, 1},
};

} // namespace

class TestProtocol28Settings : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
    }

    void rowsAndRefresh()
    {
        DataBuffer data = buffer();
        data.setByte(114, 1);  // miles
        data.setByte(115, 60);
        data.setByte(131, 1);  // automatic activation on, activation off
        data.setByte(132, 0);
        data.setText(220, QString::fromUtf8("21.5℃"));
        data.setByte(226, 7);  // not read by any row
        Page p(SettingsPage);
        QCOMPARE(p.rows(), 116);
        QCOMPARE(p.title(0), QString("ESC system"));
        QCOMPARE(p.title(26), QString("Parking and ahunting-back tone"));
        QCOMPARE(p.title(113), QString("All regions"));
        QCOMPARE(p.title(115), QString("Start stop close"));
        QCOMPARE(p.shown(2), QString("mph"));
        QCOMPARE(p.shown(3), QString("60.0mph"));
        QCOMPARE(p.shown(107), QString::fromUtf8("21.5℃"));
        // The activation row starts with automatic activation's byte...
        QCOMPARE(p.shown(20), QString("ON"));

        // ...and shows its own from the first refresh on.
        QCOMPARE(p.changedRows([] {}), QList<int>{20});
        QCOMPARE(p.shown(20), QString("OFF"));
        QCOMPARE(p.changedRows([] {}), QList<int>{});

        // Changed bytes touch their rows alone; the speed unit moves the
        // speed alarm's unit too.
        QCOMPARE(p.changedRows([&] {
            data.setByte(114, 0);
            data.setByte(116, 2);
            data.setText(220, QString::fromUtf8("19.0℃"));
            data.setByte(226, 9);
            data.setByte(231, 1);
        }), (QList<int>{2, 3, 4, 107, 115}));
        QCOMPARE(p.index(3).data(UnitRole).toInt(), 0);
        QCOMPARE(p.shown(3), QString("60.0km/h"));
        QCOMPARE(p.shown(107), QString::fromUtf8("19.0℃"));
    }

    // Bytes to shown values, on first display and on a refresh.
    void displayMaps_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("raw");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int row, int byte, int raw, QString const &expected) {
            QTest::newRow(name) << row << byte << raw << expected;
        };
        add("light colour 1", 44, 156, 1, "Warm white");
        add("light colour 4", 44, 156, 4, "Green");
        add("light colour 5", 44, 156, 5, "Blue");
        add("pure power 3", 80, 193, 3, "mi/kWh");
        add("individual climate 2", 87, 200, 2, "Sport");
        add("e-mode 5", 88, 201, 5, "GTE");
        add("camera 0 shows 30", 92, 205, 0, "30");
        add("camera byte shown as it is", 93, 206, 55, "55");
        add("camera top", 94, 207, 70, "70");
        add("off-road climate 2", 98, 211, 2, "economy");
        add("meter mode 2", 110, 227, 2, "classic");
        add("meter mode 5", 110, 227, 5, "view 3");
        add("meter mode 255", 110, 227, 255, "customize");
        add("language 13", 114, 230, 13, "Netherlands");
        add("language 0x10", 114, 230, 0x10, "Russia");
        add("language 0x14", 114, 230, 0x14, "Mexico");
        add("language 0x2B", 114, 230, 0x2B, "Ukraine");
        add("language 15 keeps its number", 114, 230, 15, "Greece");
        add("language 50 has no option", 114, 230, 50, "");
        add("language 200 has no option", 114, 230, 200, "");
        add("choice beyond its options", 48, 160, 11, "");
        add("choice at 255", 0, 112, 255, "");
        add("instrument lighting", 34, 146, 60, "60.0%");
        add("home mode", 35, 147, 15, "15s");
        add("speed alarm in km/h", 3, 115, 120, "120.0km/h");
    }
    void displayMaps()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(int, raw);
        QFETCH(QString, expected);
        Page before(SettingsPage);
        buffer().setByte(byte, raw);
        before.page()->ondataChanged();
        QCOMPARE(before.shown(row), expected);
        Page after(SettingsPage);
        QCOMPARE(after.shown(row), expected);
    }

    // Every row of the common rule: down twice, up twice, by taps on its
    // arrows. The row moves at once; the frames go through the stack.
    void plainSteps_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("sub");
        QTest::addColumn<int>("high");
        for (PlainRow const &r : plainRows)
            QTest::addRow("row %d", r.row) << r.row << r.byte << r.sub << r.high;
    }
    void plainSteps()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(int, sub);
        QFETCH(int, high);
        buffer().setByte(byte, 1);
        Page p(SettingsPage);
        p.show();
        p.tap(row, LeftArrow);
        p.tap(row, LeftArrow);
        p.tap(row, RightArrow);
        p.tap(row, RightArrow);
        const QList<QByteArray> expected = {setting(sub, 0), setting(sub, 0), setting(sub, 1),
                                            setting(sub, qMin(2, high))};
        QCOMPARE(hex(p.signalled), hex(expected));
        QCOMPARE(p.value(row), qMin(2, high));
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // Rows that step by more than one, within limits of their own.
    void stepRules_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("sub");
        QTest::addColumn<int>("unit");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("stepped");
        QTest::addColumn<int>("sent");
        auto add = [](const char *name, int row, int byte, int sub, int unit, int start, bool down, int stepped) {
            QTest::newRow(name) << row << byte << sub << unit << start << down << stepped << stepped;
        };
        add("km/h up", 3, 115, 0x21, 0, 120, false, 130);
        add("km/h down", 3, 115, 0x21, 0, 120, true, 110);
        add("km/h top", 3, 115, 0x21, 0, 240, false, 240);
        add("km/h near bottom", 3, 115, 0x21, 0, 35, true, 30);
        add("mph up", 3, 115, 0x21, 1, 60, false, 65);
        add("mph top", 3, 115, 0x21, 1, 150, false, 150);
        add("mph near bottom", 3, 115, 0x21, 1, 22, true, 20);
        add("mph from a km/h value", 3, 115, 0x21, 1, 240, true, 150);
        // In an unknown unit the row stays and the value byte isn't written.
        QTest::newRow("unknown unit") << 3 << 115 << 0x21 << 2 << 100 << false << 100 << 0;
        add("instrument lighting up", 34, 146, 0x53, 0, 95, false, 100);
        add("instrument lighting down", 34, 146, 0x53, 0, 50, true, 40);
        add("instrument lighting bottom", 34, 146, 0x53, 0, 5, true, 0);
        add("home mode up", 35, 147, 0x54, 0, 28, false, 30);
        add("home mode down", 35, 147, 0x54, 0, 10, true, 5);
        add("away mode down", 36, 148, 0x55, 0, 3, true, 0);
        add("door lighting", 39, 151, 0x57, 0, 95, false, 100);
        add("space lighting", 40, 152, 0x58, 0, 50, true, 40);
        add("roof lighting", 45, 157, 0x5B, 0, 0, false, 10);
        add("front lighting", 46, 158, 0x5C, 0, 100, false, 100);
        add("charging offline", 109, 225, 0xF4, 0, 20, true, 10);
        add("all regions", 113, 161, 0x5D, 0, 90, false, 100);
    }
    void stepRules()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(int, sub);
        QFETCH(int, unit);
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(int, stepped);
        QFETCH(int, sent);
        buffer().setByte(114, unit);
        buffer().setByte(byte, start);
        Page p(SettingsPage);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(hex(p.signalled), hex({setting(sub, sent)}));
        QCOMPARE(p.value(row), stepped);
    }

    // Rows whose frames carry a code for the option: the row shows the
    // stepped option before the frame goes out.
    void valueMaps_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("sub");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("sent");
        QTest::addColumn<QString>("shown");
        auto add = [](const char *name, int row, int byte, int sub, int start, bool down, int sent, const char *shown) {
            QTest::newRow(name) << row << byte << sub << start << down << sent << QString::fromUtf8(shown);
        };
        add("radar thumbnail on", 29, 141, 0x45, 0, false, 4, "ON");
        add("radar thumbnail stays on", 29, 141, 0x45, 1, false, 4, "ON");
        add("radar thumbnail off", 29, 141, 0x45, 1, true, 5, "OFF");
        add("light colour to green", 44, 156, 0x4C, 1, false, 4, "Green");
        add("light colour to blue", 44, 156, 0x4C, 4, false, 5, "Blue");
        add("light colour to warm white", 44, 156, 0x4C, 4, true, 1, "Warm white");
        add("pure power to mi/kWh", 80, 193, 0x96, 1, false, 3, "mi/kWh");
        add("pure power from mi/kWh", 80, 193, 0x96, 3, true, 1, "km/kWh");
        add("individual climate sport", 87, 200, 0xD3, 0, false, 2, "Sport");
        add("individual climate normal", 87, 200, 0xD3, 2, true, 0, "Normal");
        add("e-mode to GTE", 88, 201, 0xF0, 3, false, 5, "GTE");
        add("e-mode from GTE", 88, 201, 0xF0, 5, true, 3, "Battery charge mode");
        add("off-road climate economy", 98, 211, 0xE4, 0, false, 2, "economy");
        add("off-road climate standard", 98, 211, 0xE4, 2, true, 0, "standard");
        add("user account up", 103, 216, 0xA1, 0, false, 2, "Driver 2");
        add("user account bottom", 103, 216, 0xA1, 0, true, 1, "Driver");
        add("user account top", 103, 216, 0xA1, 3, false, 4, "Visitor");
        add("assign key up", 105, 218, 0xA3, 0, false, 1, "fail");
        add("assign key down", 105, 218, 0xA3, 3, true, 1, "wait");
        add("meter mode view 1", 110, 227, 0xE9, 2, false, 3, "view 1");
        add("meter mode customize to view 3", 110, 227, 0xE9, 255, true, 5, "view 3");
        add("meter mode customize stays", 110, 227, 0xE9, 255, false, 3, "customize");
        add("meter mode to customize", 110, 227, 0xE9, 5, false, 3, "customize");
        add("language to the first coded", 114, 230, 0x00, 13, false, 0x10, "Russia");
        add("language to the last plain", 114, 230, 0x00, 0x10, true, 13, "Netherlands");
        add("language among the coded", 114, 230, 0x00, 0x14, false, 0x16, "Turkish");
        add("language top", 114, 230, 0x00, 0x2B, false, 0x2B, "Ukraine");
        add("language on from an unknown code", 114, 230, 0x00, 15, false, 0x12, "Korea");
        add("language up from beyond the list", 114, 230, 0x00, 50, false, 0x2B, "Ukraine");
        add("language down from beyond the list", 114, 230, 0x00, 200, true, 0x2B, "Ukraine");
    }
    void valueMaps()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(int, sub);
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(int, sent);
        QFETCH(QString, shown);
        buffer().setByte(byte, start);
        Page p(SettingsPage);
        p.show();
        QString shownAtSend;
        QObject::connect(p.page(), &CarInfoItem::sendData, [&] { shownAtSend = p.shown(row); });
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(hex(p.signalled), hex({setting(sub, sent)}));
        QCOMPARE(shownAtSend, shown);
        QCOMPARE(p.shown(row), shown);
    }

    void readOnlyRows()
    {
        DataBuffer data = buffer();
        data.setByte(205, 50);
        data.setText(220, QStringLiteral("20"));
        Page p(SettingsPage);
        p.show();
        for (int row : {2, 20, 43, 81, 82, 89, 92, 93, 94, 107}) {
            QVERIFY(!p.index(row).data(AdjustableRole).toBool());
            p.tap(row, LeftArrow);
            p.tap(row, RightArrow);
        }
        QVERIFY(p.signalled.isEmpty());
        QCOMPARE(p.shown(92), QString("50"));

        // Reached by other means, the text row empties and sends its
        // sub-command without a value; a row without a sub-command sends
        // only the skeleton.
        p.step(107, false);
        p.step(2, false);
        QCOMPARE(hex(p.signalled), hex({setting(0xF2, 0), setting(0x00, 0)}));
        QCOMPARE(p.shown(107), QString());
    }
};

QTEST_MAIN(TestProtocol28Settings)
#include "tst_protocol28_settings.moc"
