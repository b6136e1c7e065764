// Protocol 87's eleven pages: the rows that each builds from the data
// buffer, the rows that a refresh touches, and the frames of every arrow
// byte for byte, with the buffer written before a group frame is packed;
// the two amplifiers, the saved car model, and the pages live in the
// extended view.

#include "exviewtests.h"


#include <QTemporaryDir>

#include <memory>

using namespace PageTest;

namespace {

const int Protocol = 87;

enum PageIndex { Amplifier, Trip, Body, Preset, Status, Memory, Cruise, Items, Flow, Statistics, Charging };

DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

void setBytes(int offset, QList<int> const &values)
{
    PageTest::setBytes(buffer(), offset, values);
}

// A page of the family, shown.
class Page87 : public Page
{
public:
    explicit Page87(int index) : Page(Protocol, index) { show(); }
};

QString fd(QString const &text)
{
    return text.isEmpty() ? QString() : hexOf({text});
}

} // namespace

class TestProtocol87 : public QObject
{
    Q_OBJECT

    // A store of the head unit's settings of each test's own.
    std::unique_ptr<QTemporaryDir> storage;

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
        storage.reset(new QTemporaryDir);
        HostSim::setStorageDirectory(storage->path());
    }

    void amplifierRows()
    {
        setBytes(0, {9, 11, 2, 16, 255, 1, 0, 3, 3, 6, 0});
        Page87 p(Amplifier);
        QCOMPARE(p.rows(), 11);
        const QStringList shown = {"0", "2", "-7", "7", "246", "ON", "OFF", "Pop-Rock", "0", "3", "Amplifier 1"};
        for (int row = 0; row < shown.size(); ++row) {
            QCOMPARE(p.shown(row), shown.at(row));
            QVERIFY(p.adjustable(row));
        }
        QCOMPARE(p.title(8), QString("Centrik speaker"));
        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([] { setBytes(7, {9}); setBytes(10, {1}); }), (QList<int>{7, 10}));
        QCOMPARE(p.shown(7), QString()); // no such sound effect
        QCOMPARE(p.shown(10), QString("Amplifier 2"));
    }

    // One frame for the whole page, FD 0B C5: the first amplifier holds the
    // balance and tone rows within 2 .. 16 and counts them from 2; the second
    // sends the bytes as they stand.
    void amplifierFrames_data()
    {
        QTest::addColumn<int>("amplifier");
        QTest::addColumn<int>("configuration");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("written");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int amplifier, int configuration, int row, bool down, int written,
                      const char *expected) {
            QTest::newRow(name) << amplifier << configuration << row << down << written << QString(expected);
        };
        // Bytes 0 to 9: 9 11 2 16 9 1 0 3 3 6.
        add("1: balance up", 0, 1, 0, false, 10, "FD 0B C5 08 09 00 0E 09 83 36 01 ck");
        add("1: bass held at 2", 0, 1, 2, true, 2, "FD 0B C5 07 09 00 0E 09 83 36 01 ck");
        add("1: treble held at 16", 0, 1, 3, false, 16, "FD 0B C5 07 09 00 0E 09 83 36 01 ck");
        add("1: middle", 0, 1, 4, false, 10, "FD 0B C5 07 09 00 0E 0A 83 36 01 ck");
        add("1: loudness off", 0, 1, 5, true, 0, "FD 0B C5 07 09 00 0E 09 03 36 01 ck");
        add("1: speed volume on", 0, 1, 6, false, 1, "FD 0B C5 07 09 00 0E 09 C3 36 01 ck");
        add("1: sound effect", 0, 1, 7, false, 4, "FD 0B C5 07 09 00 0E 09 84 36 01 ck");
        add("1: centre speaker", 0, 1, 8, true, 2, "FD 0B C5 07 09 00 0E 09 83 26 01 ck");
        add("1: subwoofer at top", 0, 1, 9, false, 6, "FD 0B C5 07 09 00 0E 09 83 36 01 ck");
        add("1: to amplifier 2", 0, 1, 10, false, 1, "FD 0B C5 09 0B 02 10 09 83 36 02 ck");
        add("2: bass raw", 1, 1, 2, true, 1, "FD 0B C5 09 0B 01 10 09 83 36 02 ck");
        add("2: treble to 17", 1, 1, 3, false, 17, "FD 0B C5 09 0B 02 11 09 83 36 02 ck");
        add("2: to amplifier 1", 1, 1, 10, true, 0, "FD 0B C5 07 09 00 0E 09 83 36 01 ck");
        // A car configured as 3 takes a road of its own: the row steps as
        // it would, and nothing goes out.
        add("configuration 3, treble", 1, 3, 3, false, 17, "");
        add("configuration 3, bass", 1, 3, 2, false, 3, "");
        add("configuration 3, amplifier 1 balance", 0, 3, 0, true, 8, "");
        add("configuration 3, amplifier", 0, 3, 10, false, 1, "");
    }
    void amplifierFrames()
    {
        QFETCH(int, amplifier);
        QFETCH(int, configuration);
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(int, written);
        QFETCH(QString, expected);
        setBytes(0, {9, 11, 2, 16, 9, 1, 0, 3, 3, 6, amplifier});
        setBytes(70, {configuration});
        Page87 p(Amplifier);
        const QString before = p.shown(row);
        QCOMPARE(p.arrow(row, down), fd(expected));
        QCOMPARE(int(buffer().byte(row)), written);
        QCOMPARE(p.shown(row), before);
    }

    // The first amplifier holds only the stepped row within 2 .. 16; the
    // other balance and tone bytes go out as the car reported them, less 2
    // in eight bits, whichever side of the stepped row they lie on.
    void amplifierNeighbours_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("neighbour");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        const QList<QPair<int, QString>> neighbours = {{0, "FE"}, {1, "FF"}, {2, "00"},
                                                        {16, "0E"}, {17, "0F"}, {18, "10"}};
        for (int row = 0; row < 4; ++row) {
            for (auto const &n : neighbours) {
                for (bool down : {false, true}) {
                    QStringList tones = {n.second, n.second, n.second, n.second};
                    tones[row] = down ? "06" : "08"; // 9 stepped to 8 or 10, less 2
                    QTest::addRow("row %d, others %d, %s", row, n.first, down ? "left" : "right")
                        << row << 9 << n.first << down
                        << QString("FD 0B C5 %1 09 83 36 01 ck").arg(tones.join(' '));
                }
            }
        }
        QTest::newRow("stepped from 18 is held at 16")
            << 1 << 18 << 0 << true << QString("FD 0B C5 FE 0E FE FE 09 83 36 01 ck");
        QTest::newRow("stepped from 0 is held at 2")
            << 2 << 0 << 18 << false << QString("FD 0B C5 10 10 00 10 09 83 36 01 ck");
    }
    void amplifierNeighbours()
    {
        QFETCH(int, row);
        QFETCH(int, start);
        QFETCH(int, neighbour);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        setBytes(0, {neighbour, neighbour, neighbour, neighbour, 9, 1, 0, 3, 3, 6, 0});
        setBytes(row, {start});
        setBytes(70, {1});
        Page87 p(Amplifier);
        QCOMPARE(p.arrow(row, down), fd(expected));
    }

    void tripComputer()
    {
        const QStringList texts = {"5.2L/100km", "120km", "300km", "00:12", "63km/h", "6.8L/100km", "45km/h",
                                   "1234km", "7.1L/100km", "50km/h", "980km", "18.5"};
        for (int i = 0; i < texts.size(); ++i)
            buffer().setText(12 + 4 * i, texts.at(i));
        setBytes(60, {0, 1, 0, 2});
        buffer().setWord(64, 1200);
        Page87 p(Trip);
        QCOMPARE(p.rows(), 17);
        for (int row = 0; row < texts.size(); ++row) {
            QCOMPARE(p.shown(row), texts.at(row));
            QVERIFY(!p.adjustable(row));
        }
        QCOMPARE(p.shown(13), QString("clear"));
        QCOMPARE(p.shown(15), QString("1200.0km"));
        QCOMPARE(p.shown(16), QString("Page2"));
        QCOMPARE(p.changedRows([] { buffer().setText(56, "19.0"); buffer().setWord(64, 80); }), (QList<int>{11, 15}));
        QCOMPARE(p.shown(15), QString("80.0km"));
        buffer().setWord(64, 1200);

        // FD 06 82 flags hi lo: the switches in bits 7 to 5, the page below;
        // the mileage high byte first.
        QCOMPARE(p.arrow(0, false), QString());
        QCOMPARE(p.arrow(12, false), fd("FD 06 82 C2 04 B0 ck"));
        QCOMPARE(p.arrow(13, true), fd("FD 06 82 82 04 B0 ck"));
        QCOMPARE(p.arrow(14, false), fd("FD 06 82 A2 04 B0 ck"));
        QCOMPARE(p.arrow(16, true), fd("FD 06 82 A1 04 B0 ck"));
        // The step starts from the row as shown, 80, not from the buffer.
        QCOMPARE(p.arrow(15, true), fd("FD 06 82 A1 00 4F ck"));
        buffer().setWord(64, 3000);
        p.page()->ondataChanged();
        QCOMPARE(p.arrow(15, false), fd("FD 06 82 A1 0B B8 ck"));
        QCOMPARE(int(buffer().word(64)), 3000);
    }

    void bodyRows()
    {
        setBytes(68, {12, 2, 1, 1, 17, 0, 4, 9, 0, 20, 1, 8});
        Page87 p(Body);
        QCOMPARE(p.rows(), 12);
        const QStringList shown = {"12", "308,408,C3-XR retain the original car screen", "Low profile", "Medium",
                                   "17", "quit", QString::fromUtf8("180° View"), "9", "Not muted", "20",
                                   "Temperature", "Navigation"};
        for (int row = 0; row < shown.size(); ++row)
            QCOMPARE(p.shown(row), shown.at(row));
        QVERIFY(!p.adjustable(0));
        QCOMPARE(p.arrow(0, false), QString());
        QCOMPARE(p.changedRows([] { setBytes(72, {31}); setBytes(75, {15}); }), (QList<int>{4, 7}));
        QCOMPARE(p.shown(4), QString("31"));
        QCOMPARE(p.arrow(4, false), fd("FD 05 80 0B 1F ck"));

        // The volume at its top and muted: the top bit over 30.
        QCOMPARE(p.changedRows([] { setBytes(76, {1, 30}); }), (QList<int>{8, 9}));
        QCOMPARE(p.arrow(9, false), fd("FD 04 C4 9E ck"));
    }

    // The car model and its configuration go out as a pair, and only with a
    // model; both are saved whatever goes out.
    void bodyFrames_data()
    {
        QTest::addColumn<int>("model");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        auto add = [](const char *name, int model, int row, bool down, const char *expected) {
            QTest::newRow(name) << model << row << down << QString(expected);
        };
        add("model counted from 0", 2, 1, false, "FD 06 A7 02 01 00 ck");
        add("model to null", 1, 1, true, "");
        add("configuration with model", 2, 2, false, "FD 06 A7 02 02 00 ck");
        add("configuration without model", 0, 2, false, "");
        add("configuration to null", 2, 2, true, "");
        add("air volume", 2, 3, false, "FD 05 8A 09 02 ck");
        add("language", 2, 4, false, "FD 05 80 0B 12 ck");
        add("panorama enter", 2, 5, false, "FD 04 A8 01 ck");
        add("compass", 2, 7, false, "FD 04 A9 0A ck");
        add("mute", 2, 8, false, "FD 04 C4 94 ck");
        add("volume", 2, 9, false, "FD 04 C4 15 ck");
        add("meter left", 2, 10, false, "FD 05 8C 02 08 ck");
        add("meter right at last", 2, 11, false, "FD 05 8C 01 08 ck");
    }
    void bodyFrames()
    {
        QFETCH(int, model);
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        setBytes(68, {12, model, 1, 1, 17, 0, 4, 9, 0, 20, 1, 8});
        Page87 p(Body);
        QCOMPARE(p.arrow(row, down), fd(expected));
        if (row == 1 || row == 2) {
            const int stepped = qBound(0, p.value(row) + (down ? -1 : 1), row == 1 ? 6 : 3);
            QCOMPARE(int(buffer().byte(68 + row)), stepped);
            QCOMPARE(HostSim::savedUserData(row == 1 ? "CanbusCAR" : "CanbusCARConfigure").toInt(), stepped);
            QVERIFY(!HostSim::savedUserData(row == 1 ? "CanbusCARConfigure" : "CanbusCAR").isValid());
        }
    }

    void bodyPanoramaCodes()
    {
        Page87 p(Body);
        // Option index to the car's code, the last option kept at the top.
        const int codes[] = {0, 2, 5, 4, 3, 6, 7, 8, 8};
        for (int mode = 0; mode < 8; ++mode) {
            buffer().setByte(74, quint8(mode));
            p.page()->ondataChanged();
            QCOMPARE(p.arrow(6, false), fd(QString("FD 04 A8 %1 ck").arg(codes[mode + 1], 2, 16, QChar('0'))));
        }
        buffer().setByte(74, 1);
        p.page()->ondataChanged();
        QCOMPARE(p.arrow(6, true), fd("FD 04 A8 00 ck"));
    }

    // FD 06 8B days hi lo: the switch in bit 7, Monday in bit 6 down to
    // Sunday in bit 0, the time in minutes of the day.
    void presets_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::newRow("switch") << 0 << false << "FD 06 8B 80 01 C2 ck";
        const char *days[] = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
        for (int day = 0; day < 7; ++day)
            QTest::newRow(days[day]) << 1 + day << false
                                     << QString("FD 06 8B %1 01 C2 ck").arg(0x40 >> day, 2, 16, QChar('0'));
        QTest::newRow("hour") << 8 << false << "FD 06 8B 00 01 FE ck";
        QTest::newRow("hour down") << 8 << true << "FD 06 8B 00 01 86 ck";
        QTest::newRow("minute") << 9 << false << "FD 06 8B 00 01 C3 ck";
        QTest::newRow("switch stays off") << 0 << true << "FD 06 8B 00 01 C2 ck";
    }
    void presets()
    {
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        setBytes(88, {7, 30});
        Page87 p(Preset);
        QCOMPARE(p.arrow(row, down), fd(expected));
    }

    void presetsTogether()
    {
        // A stray byte sets only its own day; the top of the day is 23:59.
        setBytes(80, {1, 0, 255, 0, 0, 1, 0, 0, 23, 58});
        Page87 p(Preset);
        QCOMPARE(p.rows(), 10);
        QCOMPARE(p.title(7), QString("Sunday"));
        QCOMPARE(p.shown(2), QString());
        QCOMPARE(p.shown(8), QString("23"));
        QCOMPARE(p.arrow(9, false), fd("FD 06 8B A4 05 9F ck"));
        QCOMPARE(p.arrow(7, false), fd("FD 06 8B A5 05 9F ck"));
        QCOMPARE(p.arrow(8, false), fd("FD 06 8B A5 05 9F ck"));
        QCOMPARE(p.changedRows([] {}), (QList<int>{7, 9}));
    }

    // FD 05 80 sub value by row id; the theme colour goes out as a code.
    void carStatus()
    {
        Page87 p(Status);
        QCOMPARE(p.rows(), 34);
        QCOMPARE(p.title(33), QString("Traffic sign recognition"));
        const QMap<int, int> subs = {{0, 0x02}, {1, 0x11}, {2, 0x14}, {4, 0x01}, {7, 0x03}, {8, 0x1A},
            {9, 0x1B}, {10, 0x0A}, {11, 0x18}, {12, 0x12}, {13, 0x05}, {14, 0x13}, {15, 0x06}, {19, 0x07},
            {20, 0x08}, {21, 0x1E}, {23, 0x19}, {24, 0x0C}, {25, 0x0D}, {26, 0x0E}, {27, 0x0F}, {28, 0x0B},
            {29, 0x15}, {30, 0x16}, {31, 0x17}, {32, 0x1C}, {33, 0x1D}};
        const QList<int> reported = {3, 5, 6, 16, 17, 18};
        for (int row = 0; row < 34; ++row) {
            QCOMPARE(p.adjustable(row), !reported.contains(row));
            const int value = row == 31 ? 2 : 1;
            const QString expected = subs.contains(row)
                ? fd(QString("FD 05 80 %1 %2 ck").arg(subs[row], 2, 16, QChar('0')).arg(value)) : QString();
            QVERIFY2(p.arrow(row, false) == expected, qPrintable(QString::number(row)));
        }
        // The mood lighting shows its number.
        QCOMPARE(p.changedRows([] { setBytes(103, {200}); setBytes(92, {1}); }), (QList<int>{2, 13}));
        QCOMPARE(p.shown(13), QString("200"));
        QCOMPARE(p.shown(2), QString("Fahrenheit"));
        buffer().setByte(103, 255);
        p.page()->ondataChanged();
        QCOMPARE(p.arrow(13, false), fd("FD 05 80 05 FF ck"));

        const int codes[] = {2, 3, 6, 7, 8, 1, 1};
        for (int colour = 0; colour < 7; ++colour) {
            buffer().setByte(121, quint8(colour));
            p.page()->ondataChanged();
            QCOMPARE(p.arrow(31, false), fd(QString("FD 05 80 17 %1 ck").arg(codes[colour], 2, 16, QChar('0'))));
        }
        buffer().setByte(121, 1);
        p.page()->ondataChanged();
        QCOMPARE(p.arrow(31, true), fd("FD 05 80 17 00 ck"));
    }

    // FD 09 88 flags and the five speeds: one frame for the page. A speed
    // steps up to 256, which its byte holds as 0.
    void memorySpeeds()
    {
        setBytes(124, {1, 1, 0, 1, 0, 1, 30, 50, 80, 255, 0});
        Page87 p(Memory);
        QCOMPARE(p.rows(), 11);
        QCOMPARE(p.shown(6), QString("30.0km/h"));
        QCOMPARE(p.shown(9), QString("255.0km/h"));
        QCOMPARE(p.shown(2), QString("Cancel"));
        QCOMPARE(p.arrow(9, false), fd("FD 09 88 6A 1E 32 50 00 00 ck"));
        QCOMPARE(p.changedRows([] {}), QList<int>{9});
        QCOMPARE(p.shown(9), QString("0.0km/h"));
        QCOMPARE(p.arrow(6, true), fd("FD 09 88 6A 1D 32 50 00 00 ck"));
        QCOMPARE(p.arrow(2, false), fd("FD 09 88 7A 1D 32 50 00 00 ck"));
        QCOMPARE(p.arrow(0, true), fd("FD 09 88 3A 1D 32 50 00 00 ck"));
        QCOMPARE(p.arrow(10, true), fd("FD 09 88 3A 1D 32 50 00 00 ck"));
    }

    // FD 0A 89 50: the six cruising speeds; FD 0A 89 90: the six limits.
    void cruiseAndLimits()
    {
        setBytes(135, {30, 40, 50, 60, 70, 80, 50, 60, 70, 90, 110, 130, 1, 0});
        Page87 p(Cruise);
        QCOMPARE(p.rows(), 14);
        QCOMPARE(p.shown(11), QString("130.0km/h"));
        QCOMPARE(p.shown(12), QString("pop up"));
        QCOMPARE(p.arrow(2, false), fd("FD 0A 89 50 1E 28 33 3C 46 50 ck"));
        QCOMPARE(p.arrow(6, true), fd("FD 0A 89 90 31 3C 46 5A 6E 82 ck"));
        QCOMPARE(p.arrow(5, false), fd("FD 0A 89 50 1E 28 33 3C 46 51 ck"));
        QCOMPARE(p.arrow(12, false), QString());
        QCOMPARE(p.arrow(13, false), QString());
        buffer().setByte(146, 255);
        p.page()->ondataChanged();
        QCOMPARE(p.arrow(11, false), fd("FD 0A 89 90 31 3C 46 5A 6E 00 ck"));
    }

    void settingItems()
    {
        setBytes(149, {0, 1, 1, 0, 1, 0, 1, 0});
        Page87 p(Items);
        QCOMPARE(p.rows(), 8);
        QCOMPARE(p.shown(1), QString("ON"));
        const QStringList expected = {fd("FD 05 80 1F 01 ck"), fd("FD 05 80 20 01 ck"), "", "", "",
                                      fd("FD 05 80 23 01 ck"), fd("FD 05 80 21 01 ck"), fd("FD 05 80 22 01 ck")};
        for (int row = 0; row < 8; ++row)
            QCOMPARE(p.arrow(row, false), expected.at(row));
        QCOMPARE(p.changedRows([] { setBytes(150, {0}); }), QList<int>{1});
    }

    void energyFlowAndStatistics()
    {
        setBytes(157, {7, 1, 0, 1, 1, 0, 0, 2, 1});
        Page87 flow(Flow);
        QCOMPARE(flow.rows(), 9);
        // A path has the one option "Bright": it shows at 0, and nothing beyond.
        const QStringList shown = {"Electric", "", "Bright", "", "", "Bright", "Bright", "", "scroll"};
        for (int row = 0; row < 9; ++row) {
            QCOMPARE(flow.shown(row), shown.at(row));
            QVERIFY(!flow.adjustable(row));
        }
        QCOMPARE(flow.changedRows([] { setBytes(157, {9}); }), QList<int>{0});
        QCOMPARE(flow.shown(0), QString("Hybrid"));

        setBytes(168, {1, 0});
        buffer().setText(172, "14.2kWh/100km");
        buffer().setText(176, "5.1L/100km");
        for (int i = 0; i < 18; ++i)
            buffer().setByte(180 + i, quint8(i));
        Page87 statistics(Statistics);
        QCOMPARE(statistics.rows(), 22);
        QCOMPARE(statistics.shown(0), QString("0~180min"));
        QCOMPARE(statistics.shown(3), QString("5.1L/100km"));
        QCOMPARE(statistics.title(9), QString("Power consumption sixth grid"));
        QCOMPARE(statistics.title(10), QString("Recycle the first grid"));
        QCOMPARE(statistics.title(21), QString("Fuel consumption sixth grid"));
        QCOMPARE(statistics.shown(21), QString("17"));
        for (int row = 0; row < 22; ++row)
            QVERIFY(!statistics.adjustable(row));
        QCOMPARE(statistics.changedRows([] { buffer().setText(172, "9.9kWh/100km"); setBytes(190, {30}); }),
                 (QList<int>{2, 14}));
        QCOMPARE(statistics.arrow(14, false), QString());
    }

    // FD 06 83 01 hi lo: the charging time in minutes; FD 06 83 02: the
    // energy reserve and its distance.
    void charging()
    {
        setBytes(200, {5, 45, 1, 2});
        Page87 p(Charging);
        QCOMPARE(p.rows(), 4);
        QCOMPARE(p.shown(3), QString("MAX"));
        QCOMPARE(p.arrow(0, false), fd("FD 06 83 01 01 95 ck"));
        QCOMPARE(p.arrow(1, true), fd("FD 06 83 01 01 94 ck"));
        QCOMPARE(p.arrow(2, true), fd("FD 06 83 02 00 02 ck"));
        QCOMPARE(p.arrow(3, false), fd("FD 06 83 02 00 02 ck"));
        QCOMPARE(p.arrow(3, true), fd("FD 06 83 02 00 01 ck"));
        QCOMPARE(p.changedRows([] {}), (QList<int>{0, 1, 2, 3}));
        QCOMPARE(p.shown(0), QString("6"));
    }

    // On id 87 every page opens from the list with its rows and follows the
    // car's data while it is in front.
    void extendedViewShowsLivePages()
    {
        ExtendedView v;
        QVERIFY(v.exposed());
        struct Case
        {
            int rows;
            int row;
            int offset;
            QString shown;
        };
        const QList<Case> cases = {
            {11, 10, 10, "Amplifier 2"}, {17, 16, 63, "Page1"}, {12, 1, 69, "3008"}, {10, 7, 87, "ON"},
            {34, 0, 90, "Enable when reversing"}, {11, 1, 125, "choose"}, {14, 12, 147, "pop up"}, {8, 0, 149, "ON"},
            {9, 8, 165, "scroll"}, {22, 1, 169, "0~180min"}, {4, 2, 202, "ON"},
        };
        QCOMPARE(v.list->model()->rowCount(), cases.size());
        for (int index = 0; index < cases.size(); ++index) {
            Case const &c = cases.at(index);
            HostSim::clearSentFrames();
            CarExViewBase *stack = v.open(index);
            QVERIFY(stack->isVisible());
            QCOMPARE(stack->currentIndex(), index);
            QVERIFY(!HostSim::sentFrames().isEmpty());
            QCOMPARE(quint8(HostSim::sentFrames().at(0).at(2)), quint8(0x8F));
            QVERIFY(v.table());
            QCOMPARE(v.rows(), c.rows);
            QCOMPARE(v.shownAfter([&] { buffer().setByte(c.offset, 1); }, c.row), c.shown);
            v.back();
            QVERIFY(v.list->isVisible());
        }
    }
};

QTEST_MAIN(TestProtocol87)
#include "tst_protocol87.moc"
