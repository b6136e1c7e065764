// The pages of the Toyota family, protocols 30, 50 and 51: the rows that
// each builds from the data buffer, the rows that a refresh touches, the
// frames of every arrow byte for byte, the values that the settings page
// keeps in the buffer itself, the saved model, and the family live in the
// extended view on each of its ids.

#include "exviewtests.h"

#include "airdata.h"
#include "datasavecontrol.h"

#include <QTemporaryDir>

using namespace PageTest;

namespace {

const int Protocol = 30;

enum PageIndex { Tyres, Hybrid, Settings, Amplifier, Body, FuelHistory, Mileage, LastMinutes, Multimedia };

DataBuffer buffer(int protocol = Protocol)
{
    return HostSim::buffer(protocol);
}

// 2E command 02 sub value ck.
QString setting(int command, int sub, int value)
{
    return QString("2E %1 02 %2 %3 ck").arg(byteText(command), byteText(sub), byteText(value));
}

// Six preset stations, low byte first.
QByteArray presets(std::initializer_list<int> stations)
{
    QByteArray bytes;
    for (int station : stations)
        bytes.append(char(station & 0xFF)).append(char(station >> 8));
    return bytes;
}

const QString ZeroWidthSpace = QString(QChar(0x200B));

} // namespace

class TestProtocol30 : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(storage.isValid());
        HostSim::setStorageDirectory(storage.path());
    }

    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
    }

    // Tyre pressures from the climate record, the rest from the buffer; the
    // read-only rows keep the bare setting frame.
    void tyresAndHybrid()
    {
        TirePressureInformation &tyres = HostSim::airData()->tirePressure;
        tyres.frontLeftPressure = "2.4 bar";
        tyres.frontRightPressure = "2.5 bar";
        tyres.rearLeftPressure = "2.3 bar";
        tyres.rearRightPressure = "2.2 bar";
        tyres.sparePressure = "4.2 bar";
        DataBuffer data = buffer();
        data.setText(144, "5.1 kW");
        data.setText(148, "12 km");
        const int states[] = {1, 0, 1, 1, 2};
        for (int i = 0; i < 5; ++i)
            data.setByte(152 + i, quint8(states[i]));
        {
            Page p(Protocol, Tyres);
            QCOMPARE(p.rows(), 12);
            QCOMPARE(p.title(4), QString("Spare tire"));
            QCOMPARE(p.title(5), QString("Instantaneous power consumption"));
            QCOMPARE(p.title(11), QString("TPMS unit"));
            QCOMPARE(p.shownTexts(), (QStringList{"2.4 bar", "2.5 bar", "2.3 bar", "2.2 bar", "4.2 bar", "5.1 kW",
                                                 "12 km", "Have TPMS equipment", "normal status", "show",
                                                 "Show a car", "KPA"}));
            QCOMPARE(p.adjustableRows(), QList<int>{});
            QCOMPARE(p.changedRows([] {}), QList<int>{});
            QCOMPARE(p.changedRows([&] {
                tyres.sparePressure = "3.9 bar";
                data.setText(148, "");
                data.setByte(156, 3); // beyond the units
            }), (QList<int>{4, 6, 11}));
            QCOMPARE(p.shown(4), QString("3.9 bar"));
            QCOMPARE(p.shown(6), QString());
            QCOMPARE(p.shown(11), QString());

            p.step(8, false);
            QCOMPARE(sent(), hex({frame("2E C6 02 00 00 ck")}));
        }
        // Without the climate record the pressures are empty.
        HostSim::setRecordAvailable(HostSim::AirRecord, false);
        {
            Page p(Protocol, Tyres);
            QCOMPARE(p.shown(0), QString());
            QCOMPARE(p.shown(5), QString("5.1 kW"));
        }

        const int hybrid[] = {1, 11, 0, 1, 1, 0, 1, 0};
        for (int i = 0; i < 8; ++i)
            data.setByte(187 + i, quint8(hybrid[i]));
        Page p(Protocol, Hybrid);
        QCOMPARE(p.rows(), 8);
        QCOMPARE(p.title(0), QString("Hybrid electric vehicle"));
        QCOMPARE(p.title(6), QString("Motor drive battery"));
        QCOMPARE(p.title(7), QString("Battery power"));
        QCOMPARE(p.shownTexts(), (QStringList{"Have", "without", "Have", "Have", "without", "Have", "without", "11"}));
        QCOMPARE(p.adjustableRows(), QList<int>{});
        QCOMPARE(p.changedRows([&] {
            data.setByte(188, 15);
            data.setByte(189, 1);
        }), (QList<int>{1, 7}));
        QCOMPARE(p.shown(7), QString("15"));
        p.step(7, false);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    void settingsRows()
    {
        DataBuffer data = buffer();
        const int bytes[] = {2, 3, 21, 1, 1, 3, 1, 1, 0, 1, 0, 1};
        for (int i = 0; i < 12; ++i)
            data.setByte(170 + i, quint8(bytes[i]));
        const int radar[] = {1, 0, 1, 4};
        for (int i = 0; i < 4; ++i)
            data.setByte(71 + i, quint8(radar[i]));
        const int kept[] = {6, 1, 1, 3, 12};
        for (int i = 0; i < 5; ++i)
            data.setByte(182 + i, quint8(kept[i]));
        Page p(Protocol, Settings);
        QCOMPARE(p.rows(), 22);
        const QStringList titles = {"Convenience service", "Outside Lighting Off Time", "Front Radar Distance",
            "Fuel Consumption Unit", "Color Theme", "Mute Switch", "Amplifier Switch", "Panoramic Cut",
            "Original car panoramic camera node", "Original car rear seat node", "Original car power amplifier node",
            "language settings", "Radar setting status", "Radar distance behind", "Radar switch",
            "Radar volume intensity", "Set panoramic track", "Set reversing trajectory", "Panorama exit",
            "Compass 2D/3D display", "Compass", "Model selection"};
        const QString corolla = "14 " + ZeroWidthSpace + ZeroWidthSpace + "models of Corolla (automatic air conditioning)";
        const QStringList shown = {"Start after parking", "30S", "Far", "KM/L", "Bright orange", "mute", "ON",
            "without", "Have", "without", "Have", "Roman", "ON", "near", "ON", "4",
            "Track and dynamic trajectory switch", "Display static track line", "exit", "3D display", "Northwest",
            corolla};
        for (int row = 0; row < 22; ++row) {
            QCOMPARE(p.title(row), titles.at(row));
            QCOMPARE(p.shown(row), shown.at(row));
        }
        QCOMPARE(p.adjustableRows(), (QList<int>{0, 1, 2, 5, 6, 11, 12, 13, 15, 16, 17, 19, 20, 21}));
        QCOMPARE(p.index(11).data(OptionsRole).toList().size(), 22);
        const QStringList models = p.index(21).data(OptionsRole).toStringList();
        QCOMPARE(models.size(), 27);
        QCOMPARE(models.at(0), QString("null"));
        QCOMPARE(models.at(2), QString(" 15 Camry, 15 Reiz"));
        QCOMPARE(models.at(12).length(), corolla.length());
        QCOMPARE(models.at(26),
                 QString("Horizontal screen - 22 Highlanders - top configuration (with LCD instrument)"));

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([&] {
            data.setByte(172, 2);
            data.setByte(174, 0);
            data.setByte(74, 5);
            data.setByte(185, 0);
            data.setByte(186, 27); // beyond the models
        }), (QList<int>{3, 11, 15, 20, 21}));
        QCOMPARE(p.shown(11), QString("English"));
        QCOMPARE(p.shown(20), QString("Zhengnan"));
        QCOMPARE(p.shown(21), QString());
    }

    // Every arrow of the settings page: the frame goes straight to the
    // decoder box, then the row shows the new value at once. The rows that
    // the car doesn't report keep their value in the buffer, written before
    // the frame is built.
    void settingsFrames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("kept");
        auto add = [](const char *name, int row, int byte, int start, bool down, QString expected, const char *shown,
                      bool kept = false) {
            QTest::newRow(name) << row << byte << start << down << expected << QString(shown) << kept;
        };
        add("convenience down", 0, 170, 1, true, setting(0x83, 0x25, 0), "OFF");
        add("convenience up", 0, 170, 1, false, setting(0x83, 0x25, 2), "Start after parking");
        add("convenience at top", 0, 170, 2, false, setting(0x83, 0x25, 2), "Start after parking");
        add("lighting off time down", 1, 171, 1, true, setting(0x83, 0x0C, 4), "OFF");
        add("lighting off time up", 1, 171, 3, false, setting(0x83, 0x0C, 7), "30S");
        add("front radar near", 2, 173, 1, true, setting(0x84, 0x17, 2), "near");
        add("front radar far", 2, 173, 0, false, setting(0x84, 0x17, 3), "Far");
        add("mute", 5, 176, 0, false, setting(0x84, 0x0A, 1), "mute");
        add("non-mute", 5, 176, 1, true, setting(0x84, 0x0A, 0), "Non-mute");
        add("amplifier off", 6, 177, 1, true, setting(0x84, 0x08, 0), "OFF");
        add("amplifier on", 6, 177, 0, false, setting(0x84, 0x08, 1), "ON");
        add("language down", 11, 172, 21, true, setting(0x83, 0x26, 20), "Slovak");
        add("language at top", 11, 172, 21, false, setting(0x83, 0x26, 21), "Roman");
        add("language at bottom", 11, 172, 0, true, setting(0x83, 0x26, 0), "Simplified Chinese");
        add("radar on", 12, 71, 0, false, setting(0x83, 0x16, 1), "ON");
        add("radar off", 12, 71, 1, true, setting(0x83, 0x16, 0), "OFF");
        add("radar behind far", 13, 72, 0, false, setting(0x83, 0x17, 1), "Far");
        add("radar behind near", 13, 72, 1, true, setting(0x83, 0x17, 0), "near");
        add("radar volume down", 15, 74, 3, true, setting(0x83, 0x15, 2), "2");
        add("radar volume at top", 15, 74, 5, false, setting(0x83, 0x15, 5), "5");
        add("panoramic track up", 16, 182, 0, false, setting(0x83, 0x21, 2),
            "Panorama automatic and non-automatic setting", true);
        add("panoramic track at bottom", 16, 182, 0, true, setting(0x83, 0x21, 1), "Panorama trajectory setting",
            true);
        add("panoramic track at top", 16, 182, 6, false, setting(0x83, 0x21, 7), "Track and dynamic trajectory switch",
            true);
        add("reversing trajectory up", 17, 183, 1, false, setting(0x83, 0x22, 2), "Display warning line", true);
        add("reversing trajectory down", 17, 183, 1, true, setting(0x83, 0x22, 0), "Display dynamic track line",
            true);
    }
    void settingsFrames()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        QFETCH(QString, shown);
        QFETCH(bool, kept);
        buffer().setByte(byte, quint8(start));
        Page p(Protocol, Settings);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hex({frame(expected)}));
        QVERIFY(p.signalled.isEmpty());
        QCOMPARE(p.shown(row), shown);
        const int stepped = p.value(row);
        QCOMPARE(int(buffer().byte(byte)), kept ? stepped : start);
        // A kept value stays on the next refresh; a reported one waits for
        // the car.
        QCOMPARE(p.changedRows([] {}), kept || stepped == start ? QList<int>{} : QList<int>{row});
    }

    // One frame carries both compass rows: the 3D flag in bit 7, the
    // direction below, the changed row's new value taking part.
    void compassFrame_data()
    {
        QTest::addColumn<int>("threeD");
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("sent");
        QTest::newRow("3D on, direction 5") << 0 << 5 << 19 << false << 0x85;
        QTest::newRow("2D again") << 1 << 5 << 19 << true << 0x05;
        QTest::newRow("2D stays") << 0 << 2 << 19 << true << 0x02;
        QTest::newRow("direction up in 3D") << 1 << 4 << 20 << false << 0x85;
        QTest::newRow("direction down in 2D") << 0 << 4 << 20 << true << 0x03;
        QTest::newRow("direction at top") << 1 << 7 << 20 << false << 0x87;
        QTest::newRow("direction at bottom") << 0 << 0 << 20 << true << 0x00;
    }
    void compassFrame()
    {
        QFETCH(int, threeD);
        QFETCH(int, direction);
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(int, sent);
        buffer().setByte(184, quint8(threeD));
        buffer().setByte(185, quint8(direction));
        Page p(Protocol, Settings);
        p.show();
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(hex(HostSim::sentFrames()), hex({frame(setting(0x83, 0x30, sent))}));
        QCOMPARE(int(buffer().byte(184)), sent >> 7);
        QCOMPARE(int(buffer().byte(185)), sent & 0x7F);
        QCOMPARE(p.value(19), sent >> 7);
        QCOMPARE(p.value(20), sent & 0x7F);
        QCOMPARE(p.changedRows([] {}), QList<int>{});
    }

    // Each model goes into byte 186 and the head unit's store, and out as
    // 2E E2 01 code; the codes 4 and 7 belong to no model, and "null" sends
    // nothing.
    void modelSelection_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("code");
        for (int index = 0; index <= 26; ++index) {
            int code = -1;
            if (index >= 1 && index <= 4)
                code = index - 1;
            else if (index == 5 || index == 6)
                code = index;
            else if (index >= 7 && index <= 23)
                code = index + 1;
            else if (index >= 24)
                code = 0x80 + index - 24;
            QTest::newRow(qPrintable(QString("model %1").arg(index))) << index << code;
        }
    }
    void modelSelection()
    {
        QFETCH(int, index);
        QFETCH(int, code);
        // Up to the index from below; to "null" from 1.
        const bool down = index == 0;
        buffer().setByte(186, quint8(down ? 1 : index - 1));
        DataSaveControl::saveUserData("CanbusCAR", 99);
        Page p(Protocol, Settings);
        p.show();
        p.tap(21, down ? LeftArrow : RightArrow);
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), index);
        QCOMPARE(int(buffer().byte(186)), index);
        QCOMPARE(p.value(21), index);
        if (code < 0) {
            QVERIFY(HostSim::sentFrames().isEmpty());
            QCOMPARE(p.shown(21), QString("null"));
        } else {
            QCOMPARE(sent(), hex({frame(QString("2E E2 01 %1 ck").arg(byteText(code)))}));
        }
        QCOMPARE(p.changedRows([] {}), QList<int>{});
    }

    // Only the middle of "Panorama exit" sends, zero-filled; the read-only
    // rows, reached by other means, send the bare setting frame.
    void panoramaExitAndReadOnlyRows()
    {
        Page p(Protocol, Settings);
        p.show();
        p.tap(18, LeftArrow);
        p.tap(18, RightArrow);
        p.tap(17, Middle);
        p.tap(21, Middle);
        QVERIFY(HostSim::sentFrames().isEmpty());
        p.tap(18, Middle);
        QCOMPARE(sent(), hex({frame("2E 83 02 20 00 ck")}));
        QCOMPARE(p.shown(18), QString("exit"));

        HostSim::clearSentFrames();
        p.step(3, false);
        p.step(14, false);
        QCOMPARE(sent(), hexOf({"2E 83 02 00 00 ck", "2E 83 02 00 00 ck"}));
        QCOMPARE(p.shown(3), QString("KM/L"));
        p.step(18, false);
        QCOMPARE(p.shown(18), QString("exit"));
    }

    void amplifierRows()
    {
        const int bytes[] = {7, 3, 5, 10, 0, 0, 40, 1, 0};
        for (int i = 0; i < 9; ++i)
            buffer().setByte(161 + i, quint8(bytes[i]));
        Page p(Protocol, Amplifier);
        QCOMPARE(p.rows(), 9);
        const QStringList titles = {"FAD indicator", "BAL indicator", "BASS indicator", "TRE indicator",
                                    "MID indicator", "ASL indicator", "Current volume", "Loopback sound", "Beep"};
        for (int row = 0; row < 9; ++row)
            QCOMPARE(p.title(row), titles.at(row));
        QCOMPARE(p.shownTexts(), (QStringList{"0", "-4", "0", "5", "-5", "ASL ON", "40", "Have", "without"}));
        QCOMPARE(p.adjustableRows(), (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([] {
            buffer().setByte(166, 1);
            buffer().setByte(161, 14);
        }), (QList<int>{0, 5}));
        QCOMPARE(p.shown(5), QString("ASL OFF"));
        QCOMPARE(p.shown(0), QString("7"));
        // Any byte but 1 is "ASL ON".
        QCOMPARE(p.changedRows([] { buffer().setByte(166, 200); }), QList<int>{5});
        QCOMPARE(p.shown(5), QString("ASL ON"));
    }

    // 2E 84 02 sub value; the tone rows go out two above the step, ASL as 1
    // or 8. The rows wait for the car.
    void amplifierFrames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int row, int start, bool down, QString expected) {
            QTest::newRow(name) << row << start << down << expected;
        };
        add("fader down", 0, 7, true, setting(0x84, 0x01, 6));
        add("fader up", 0, 7, false, setting(0x84, 0x01, 8));
        add("fader at bottom", 0, 0, true, setting(0x84, 0x01, 0));
        add("fader at top", 0, 14, false, setting(0x84, 0x01, 14));
        add("balance down", 1, 3, true, setting(0x84, 0x02, 2));
        add("balance up", 1, 13, false, setting(0x84, 0x02, 14));
        add("bass down", 2, 5, true, setting(0x84, 0x04, 6));
        add("bass up", 2, 5, false, setting(0x84, 0x04, 8));
        add("bass at top", 2, 10, false, setting(0x84, 0x04, 12));
        add("treble at bottom", 3, 0, true, setting(0x84, 0x05, 2));
        add("treble up", 3, 9, false, setting(0x84, 0x05, 12));
        add("mid down", 4, 1, true, setting(0x84, 0x06, 2));
        add("mid up", 4, 7, false, setting(0x84, 0x06, 10));
        add("ASL on, down to off", 5, 0, true, setting(0x84, 0x03, 1));
        add("ASL on, up stays on", 5, 0, false, setting(0x84, 0x03, 8));
        add("ASL off, up to on", 5, 1, false, setting(0x84, 0x03, 8));
        add("ASL off, down stays off", 5, 1, true, setting(0x84, 0x03, 1));
        add("volume down", 6, 20, true, setting(0x84, 0x07, 19));
        add("volume at top", 6, 63, false, setting(0x84, 0x07, 63));
        add("loopback on", 7, 0, false, setting(0x84, 0x09, 1));
        add("loopback off", 7, 1, true, setting(0x84, 0x09, 0));
        add("beep on", 8, 0, false, setting(0x84, 0x0B, 1));
        add("beep at bottom", 8, 0, true, setting(0x84, 0x0B, 0));
    }
    void amplifierFrames()
    {
        QFETCH(int, row);
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        buffer().setByte(161 + row, quint8(start));
        Page p(Protocol, Amplifier);
        p.show();
        const QString before = p.shown(row);
        p.tap(row, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hex({frame(expected)}));
        QCOMPARE(p.shown(row), before);
        QCOMPARE(int(buffer().byte(161 + row)), start);
    }

    // All nineteen rows step within their options or range and send
    // 2E 83 02 sub value; the rows wait for the car.
    void bodySettings()
    {
        struct BodyRow
        {
            int sub, high;
        };
        const BodyRow rows[] = {{0x04, 1}, {0x06, 4}, {0x0C, 3}, {0x07, 3}, {0x00, 1}, {0x01, 1}, {0x02, 1},
                                {0x03, 1}, {0x05, 6}, {0x0D, 1}, {0x0E, 1}, {0x0F, 1}, {0x10, 1}, {0x11, 1},
                                {0x23, 4}, {0x12, 1}, {0x13, 1}, {0x22, 2}, {0x14, 3}};
        for (int row = 0; row < 19; ++row)
            buffer().setByte(52 + row, 1);
        Page p(Protocol, Body);
        QCOMPARE(p.rows(), 19);
        QCOMPARE(p.title(4), QString("Autoo lock by speed"));
        QCOMPARE(p.title(10), QString("Driver seat door opening linkage  unlock"));
        QCOMPARE(p.title(15), QString("Air conditioning and A UTO key linkage"));
        QCOMPARE(p.title(18), QString("Auto relock timer"));
        QCOMPARE(p.shownTexts(), (QStringList{"ON", "1", "7.5s", "30s", "ON", "ON", "ON", "ON", "1", "ON", "ON", "ON",
                                             "ON", "ON", "2st gear", "ON", "ON", "Show static trajectory", "30S"}));
        QCOMPARE(p.adjustableRows().size(), 19);

        p.show();
        QStringList expected;
        for (int row = 0; row < 19; ++row) {
            p.tap(row, LeftArrow);
            p.tap(row, RightArrow);
            expected << setting(0x83, rows[row].sub, 0) << setting(0x83, rows[row].sub, qMin(2, rows[row].high));
        }
        QCOMPARE(sent(), hexOf(expected));
        QCOMPARE(p.shown(0), QString("ON"));

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([] {
            buffer().setByte(66, 4);
            buffer().setByte(70, 4); // beyond the options
        }), (QList<int>{14, 18}));
        QCOMPARE(p.shown(14), QString("5st gear"));
        QCOMPARE(p.shown(18), QString());
    }

    // The three read-only pages of texts: their rows, their refresh, and the
    // bare 2E A0 02 frame that a step would send.
    void tripPages()
    {
        DataBuffer data = buffer();
        data.setByte(24, 2);
        data.setText(28, "6.8 L/100km");
        for (int stroke = 1; stroke <= 5; ++stroke)
            data.setText(28 + 4 * stroke, QString("%1.0 L/100km").arg(stroke + 4));
        data.setText(0, "54 km/h");
        data.setText(4, "01:12");
        data.setText(8, "412 km");
        data.setByte(12, 2);
        data.setByte(13, 1);
        data.setText(16, "15.2");
        data.setByte(20, 1);
        data.setByte(21, 0);
        data.setByte(76, 0);
        for (int minute = 0; minute < 15; ++minute)
            data.setText(80 + 4 * minute, QString("%1 MPG").arg(30 + minute));

        {
            Page p(Protocol, FuelHistory);
            QCOMPARE(p.rows(), 7);
            QCOMPARE(p.title(0), QString("Unit of measure"));
            QCOMPARE(p.title(1), QString("Current trip fuel consumption"));
            QCOMPARE(p.title(6), QString("Stroke 5 fuel consumption"));
            QCOMPARE(p.shownTexts(), (QStringList{"L/100KM", "6.8 L/100km", "5.0 L/100km", "6.0 L/100km",
                                                 "7.0 L/100km", "8.0 L/100km", "9.0 L/100km"}));
            QCOMPARE(p.adjustableRows(), QList<int>{});
            QCOMPARE(p.changedRows([&] {
                data.setByte(24, 0);
                data.setText(40, "");
            }), (QList<int>{0, 4}));
            QCOMPARE(p.shown(0), QString("MPG"));
            p.step(0, false);
            QCOMPARE(sent(), hex({frame("2E A0 02 00 00 ck")}));
        }
        HostSim::clearSentFrames();
        {
            Page p(Protocol, Mileage);
            const QStringList titles = {"Average speed", "Driving time", "Continuous mileage", "Unit of measure",
                "Instantaneous fuel consumption-unit of measure", "Instantaneous fuel consumption",
                "Electric back door", "MovingDirectionOfElectricRearDoor"};
            QCOMPARE(p.rows(), 8);
            for (int row = 0; row < 8; ++row)
                QCOMPARE(p.title(row), titles.at(row));
            QCOMPARE(p.shownTexts(), (QStringList{"54 km/h", "01:12", "412 km", "KM", "KM/L", "15.2", "Door closed",
                                                 "Outside"}));
            QCOMPARE(p.adjustableRows(), QList<int>{});
            QCOMPARE(p.changedRows([&] {
                data.setText(4, "01:13");
                data.setByte(12, 0);
                data.setByte(21, 1);
            }), (QList<int>{1, 3, 7}));
            QCOMPARE(p.shown(3), QString("Don't show"));
            QCOMPARE(p.shown(7), QString("Inside"));
            p.step(6, true);
            QCOMPARE(sent(), hex({frame("2E A0 02 00 00 ck")}));
        }
        HostSim::clearSentFrames();
        Page p(Protocol, LastMinutes);
        QCOMPARE(p.rows(), 16);
        QCOMPARE(p.title(0), QString("Unit of measure"));
        QCOMPARE(p.title(1), QString("Last 15 minutes"));
        QCOMPARE(p.title(10), QString("Last 6 minutes"));
        QCOMPARE(p.title(15), QString("Last 1 minutes"));
        QCOMPARE(p.shown(0), QString("MPG"));
        for (int row = 1; row < 16; ++row)
            QCOMPARE(p.shown(row), QString("%1 MPG").arg(29 + row));
        QCOMPARE(p.changedRows([&] {
            data.setText(136, "12 MPG");
            data.setByte(76, 1);
        }), (QList<int>{0, 15}));
        QCOMPARE(p.shown(15), QString("12 MPG"));
        p.step(15, false);
        QCOMPARE(sent(), hex({frame("2E A0 02 00 00 ck")}));
    }

    void multimediaRows()
    {
        DataBuffer data = buffer();
        const int discs[] = {0, 0, 1, 0, 1, 1};
        for (int i = 0; i < 6; ++i)
            data.setByte(196 + i, quint8(discs[i]));
        const int media[] = {4, 3, 5, 2, 1, 0, 2, 1, 0, 7};
        for (int i = 0; i < 10; ++i)
            data.setByte(202 + i, quint8(media[i]));
        data.setText(212, "98.1");
        data.setByte(216, 1);
        data.setBytes(220, presets({8750, 10790, 9010, 8800, 10000, 9460}));
        data.setByte(224, 3);
        data.setByte(225, 1);
        data.setByte(226, 1);
        data.setWord(228, 1234);
        data.setWord(230, 300);
        data.setText(232, "61:05");
        data.setText(236, "02:17");
        Page p(Protocol, Multimedia);
        QCOMPARE(p.rows(), 31);
        QCOMPARE(p.title(0), QString("Does DISC6 have a disc"));
        QCOMPARE(p.title(5), QString("Does DISC1 have a disc"));
        QCOMPARE(p.title(16), QString("Current frequency"));
        QCOMPARE(p.title(17), QString("Preset station-band"));
        QCOMPARE(p.title(18), QString("Preset station 1 "));
        QCOMPARE(p.title(23), QString("Preset station 6 "));
        QCOMPARE(p.title(24), QString("Currently selected disc number1"));
        QCOMPARE(p.title(25), QString("Currently selected disc number1"));
        QCOMPARE(p.title(30), QString("current time"));
        QCOMPARE(p.shownTexts(), (QStringList{"without", "without", "Have", "without", "Have", "Have",
            "Play status", "3", "USB", "Wait status", "ON", "Unlocked", "FM2", "stereo", "Non-scanning state", "7",
            "98.1", "FM1", "87.5MHz", "107.9MHz", "90.1MHz", "88MHz", "100MHz", "94.6MHz", "3", "Dish loop",
            "Shuffle play", "1234", "300", "61:05", "02:17"}));
        QCOMPARE(p.adjustableRows(), (QList<int>{10, 11}));

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        // AM stations are in KHz; the band changes every station's text.
        QCOMPARE(p.changedRows([&] {
            data.setByte(216, 16);
            data.setBytes(220, presets({531, 1008, 9010, 8800, 10000, 9460}));
            data.setWord(230, 301);
        }), (QList<int>{17, 18, 19, 20, 21, 22, 23, 28}));
        QCOMPARE(p.shown(17), QString("AM"));
        QCOMPARE(p.shown(18), QString("531KHz"));
        QCOMPARE(p.shown(20), QString("9010KHz"));
        QCOMPARE(p.shown(28), QString("301"));
        // Without a band of its own a station shows its bare number.
        QCOMPARE(p.changedRows([&] { data.setByte(216, 3); }), (QList<int>{17, 18, 19, 20, 21, 22, 23}));
        QCOMPARE(p.shown(17), QString());
        QCOMPARE(p.shown(19), QString("1008"));
    }

    // The maps of the player, the ceiling screen and the bands; bytes that
    // no map knows show nothing.
    void multimediaMaps_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<int>("raw");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int row, int byte, int raw, const char *expected) {
            QTest::newRow(name) << row << byte << raw << QString(expected);
        };
        add("player idle", 6, 202, 0, "Idle state");
        add("player eject", 6, 202, 5, "Eject status");
        add("player 6 is eject", 6, 202, 6, "Eject status");
        add("player 7 is error", 6, 202, 7, "Error status");
        add("player 8 unknown", 6, 202, 8, "");
        add("ceiling player 7 is error", 9, 205, 7, "Error status");
        add("ceiling player 4", 9, 205, 4, "Play status");
        add("ceiling off", 8, 204, 0, "OFF");
        add("ceiling A/V", 8, 204, 6, "A/V");
        add("ceiling 7", 8, 204, 7, "unknown");
        add("ceiling 255", 8, 204, 255, "unknown");
        add("ceiling 8", 8, 204, 8, "");
        add("band 1", 12, 208, 1, "FM1");
        add("band 2", 12, 208, 2, "FM2");
        add("band 16", 12, 208, 16, "AM");
        add("band 0", 12, 208, 0, "");
        add("band 3", 12, 208, 3, "");
        add("preset band 2", 17, 216, 2, "FM2");
        add("preset band 16", 17, 216, 16, "AM");
        add("preset band 255", 17, 216, 255, "");
        add("disc 4", 3, 199, 1, "Have");
        add("loop off", 25, 225, 0, "Loop off");
        add("loop beyond", 25, 225, 3, "");
        add("lock up", 11, 207, 1, "Lock up");
    }
    void multimediaMaps()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(int, raw);
        QFETCH(QString, expected);
        buffer().setByte(byte, quint8(raw));
        Page p(Protocol, Multimedia);
        QCOMPARE(p.shown(row), expected);
    }

    // Preset stations need all twelve bytes: shorter arrays leave the rows
    // as they are, empty until a complete set comes.
    void multimediaPresetsShort()
    {
        DataBuffer data = buffer();
        data.setByte(216, 1);
        data.setBytes(220, presets({8750, 10790, 9010, 8800, 10000, 9460}).left(11));
        Page p(Protocol, Multimedia);
        for (int row = 18; row < 24; ++row)
            QCOMPARE(p.shown(row), QString());
        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([&] { data.setBytes(220, QByteArray()); }), QList<int>{});

        QCOMPARE(p.changedRows([&] { data.setBytes(220, presets({8750, 10790, 9010, 8800, 10000, 9460})); }),
                 (QList<int>{18, 19, 20, 21, 22, 23}));
        QCOMPARE(p.shown(23), QString("94.6MHz"));
        QCOMPARE(p.changedRows([&] { data.setBytes(220, presets({9000}).left(1)); }), QList<int>{});
        QCOMPARE(p.shown(18), QString("87.5MHz"));
        // A longer array counts its first twelve bytes.
        QCOMPARE(p.changedRows([&] {
            data.setBytes(220, presets({8760, 10790, 9010, 8800, 10000, 9460, 7777}));
        }), QList<int>{18});
        QCOMPARE(p.shown(18), QString("87.6MHz"));
    }

    // The ceiling screen's power and lock go out as 2E 84 02 60 and 61; the
    // rows wait for the car.
    void multimediaFrames()
    {
        buffer().setByte(207, 1);
        Page p(Protocol, Multimedia);
        p.show();
        p.tap(10, RightArrow);
        p.tap(10, LeftArrow);
        p.tap(11, LeftArrow);
        p.tap(11, RightArrow);
        p.tap(6, RightArrow);
        p.tap(18, Middle);
        QCOMPARE(sent(), hexOf({setting(0x84, 0x60, 1), setting(0x84, 0x60, 0),
                                                          setting(0x84, 0x61, 0), setting(0x84, 0x61, 1)}));
        QCOMPARE(p.shown(10), QString("OFF"));
        QCOMPARE(p.shown(11), QString("Lock up"));
        QCOMPARE(p.changedRows([] { buffer().setByte(206, 1); }), QList<int>{10});
        QCOMPARE(p.shown(10), QString("ON"));
        // A read-only row sends nothing.
        HostSim::clearSentFrames();
        p.step(6, false);
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // Ids 50 and 51 use the family's pages on their own buffers: what they
    // show, what they keep, and where.
    void idsReadTheirOwnBuffers_data()
    {
        QTest::addColumn<int>("id");
        QTest::newRow("50") << 50;
        QTest::newRow("51") << 51;
    }
    void idsReadTheirOwnBuffers()
    {
        QFETCH(int, id);
        HostSim::setProtocolId(id);
        buffer(30).setByte(170, 0);
        buffer(30).setByte(186, 5);
        buffer(30).setText(0, "30 km/h");
        buffer(id).setByte(170, 2);
        buffer(id).setByte(186, 9);
        buffer(id).setText(0, "50 km/h");
        {
            Page p(id, Settings);
            QCOMPARE(p.shown(0), QString("Start after parking"));
            QCOMPARE(p.shown(21), QString("09 Highlander Manual Air Conditioner"));
            p.show();
            p.tap(21, RightArrow);
            QCOMPARE(int(buffer(id).byte(186)), 10);
            QCOMPARE(int(buffer(30).byte(186)), 5);
            QCOMPARE(sent(), hex({frame("2E E2 01 0B ck")}));
            QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), 10);
            QCOMPARE(p.changedRows([&] { buffer(30).setByte(170, 1); }), QList<int>{});
            QCOMPARE(p.changedRows([&] { buffer(id).setByte(170, 1); }), QList<int>{0});
        }
        Page p(id, Mileage);
        QCOMPARE(p.shown(0), QString("50 km/h"));
    }

    // The family end to end on each of its ids: every page opens from the
    // list with its requests and rows, and follows the car's data while it
    // is in front.
    void extendedViewShowsLivePages_data()
    {
        QTest::addColumn<int>("id");
        QTest::newRow("30") << 30;
        QTest::newRow("50") << 50;
        QTest::newRow("51") << 51;
    }
    void extendedViewShowsLivePages()
    {
        QFETCH(int, id);
        HostSim::setProtocolId(id);
        ExtendedView v;
        QVERIFY(v.exposed());
        struct Case
        {
            int rows;
            QStringList requests;
            int row;
            int offset;
            QString shown;
        };
        const QList<Case> cases = {
            {12, {"2E 90 02 25 00 ck"}, 7, 152, "Have TPMS equipment"},
            {8, {"2E 90 02 1F 00 ck"}, 0, 187, "Have"},
            {22, {"2E 90 02 50 00 ck", "2E 90 02 52 00 ck", "2E 90 02 22 00 ck"}, 0, 170, "ON"},
            {9, {"2E 90 02 31 00 ck"}, 5, 166, "ASL OFF"},
            {19, {"2E 90 02 26 00 ck"}, 0, 52, "ON"},
            {7, {"2E 90 02 23 00 ck"}, 0, 24, "KM/L"},
            {8, {"2E 90 02 21 00 ck"}, 3, 12, "MILE"},
            {16, {"2E 90 02 27 00 ck"}, 0, 76, "KM/L"},
            {31, {"2E 90 02 61 00 ck", "2E 90 02 66 00 ck"}, 10, 206, "ON"},
        };
        for (int index = 0; index < cases.size(); ++index) {
            Case const &c = cases.at(index);
            HostSim::clearSentFrames();
            CarExViewBase *stack = v.open(index);
            QVERIFY(stack->isVisible());
            QCOMPARE(stack->currentIndex(), index);
            QCOMPARE(sent(), hexOf(c.requests));
            QVERIFY(v.table());
            QCOMPARE(v.rows(), c.rows);
            QCOMPARE(v.shownAfter([&] { buffer(id).setByte(c.offset, 1); }, c.row), c.shown);
            v.back();
            QVERIFY(v.list->isVisible());
        }
    }

private:
    QTemporaryDir storage;
};

QTEST_MAIN(TestProtocol30)
#include "tst_protocol30.moc"
