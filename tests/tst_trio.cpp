// The voice, function and vehicle pages that seventeen families share: for
// every member its classes, rows, titles, buffer and offsets, and what its
// stack asks on those pages; the display maps and their fallbacks; the
// frames that a step on a read-only row sends, byte for byte; and the pages
// live in the extended view of each member's id.

#include "exviewtests.h"



#include <cstring>

using namespace PageTest;

namespace {

// A member: its page classes, their stack indices, its offsets and the
// lengths of its lists.
struct Member
{
    int protocol;
    QStringList classes;  // voice, function, vehicle
    int voiceIndex;
    int functionIndex;
    int vehicleIndex;
    int functionOffset;
    int voiceOffset;
    int vehicleOffset;
    int functionRows;
    int vehicleRows;
};

QStringList classesOf(int protocol, int voice, int function, int vehicle)
{
    const QString name = QString("CarInfoItem%1_%2").arg(protocol);
    return {name.arg(voice), name.arg(function), name.arg(vehicle)};
}

QList<Member> const &memberList()
{
    static const QList<Member> list = [] {
        QList<Member> m = {
            {32, classesOf(32, 2, 3, 6), 1, 2, 5, 126, 159, 4, 33, 36},
            {33, classesOf(33, 2, 3, 6), 1, 2, 5, 208, 241, 112, 33, 35},
            {56, classesOf(56, 2, 3, 6), 1, 2, 3, 148, 185, 40, 37, 40},
            {64, classesOf(64, 2, 3, 6), 1, 2, 5, 108, 145, 4, 37, 40},
        };
        for (int protocol : {65, 67, 70, 71, 72, 74, 78, 79, 96, 97, 102, 105})
            m.append({protocol, classesOf(protocol, 1, 2, 3), 0, 1, 2, 108, 145, 4, 37, 40});
        m.append({122, classesOf(122, 6, 7, 8), 5, 6, 7, 212, 249, 108, 37, 40});
        return m;
    }();
    return list;
}

Member const &member(int protocol)
{
    for (Member const &m : memberList()) {
        if (m.protocol == protocol)
            return m;
    }
    qFatal("no member %d", protocol);
    return memberList().first();
}

void clearBuffer(int protocol)
{
    DataBuffer data = HostSim::buffer(protocol);
    std::memset(data.data(), 0, 512);
}

// Distinctive values in the three blocks of a layout, and where they show.
void writeVoiceProbe(DataBuffer data, int voiceOffset)
{
    data.setByte(voiceOffset, 3);
    data.setByte(voiceOffset + 7, 1);
}

void writeFunctionProbe(DataBuffer data, int functionOffset, int rows)
{
    data.setByte(functionOffset, 1);
    data.setByte(functionOffset + rows - 1, 1);
}

// Offsets of the common layout (vehicle fields from 4) moved by the member's.
void writeVehicleProbe(DataBuffer data, int vehicleOffset, int protocol)
{
    const int d = vehicleOffset - 4;
    data.setText(d + 4, QString("%1 km").arg(protocol));
    data.setByte(d + 27, 5);
    data.setWord(d + 56, 0xBEEF);
    data.setText(d + 96, QStringLiteral("LSVAU2180N2183294"));
    data.setByte(d + 104, 64);
}

struct Probe
{
    int row;
    QString before;
    QString after;
};

QList<Probe> voiceProbes()
{
    return {{0, "This feature is not supported", "Closing"}, {7, "Driving position", "Co-pilot"}};
}

QList<Probe> functionProbes(Member const &m)
{
    return {{0, "OFF", "ON"}, {m.functionRows - 1, "OFF", "ON"}};
}

QList<Probe> vehicleProbes(Member const &m)
{
    QList<Probe> probes = {
        {0, "", QString("%1 km").arg(m.protocol)}, {11, "Don't scratch", "Level 5"}, {19, "0", "48879"},
        {34, "", "LSVAU2180N2183294"}};
    if (m.vehicleRows == 40)
        probes.append({39, "0.0%", "64.0%"});
    return probes;
}

QList<int> rowsOf(QList<Probe> const &probes)
{
    QList<int> rows;
    for (Probe const &probe : probes)
        rows << probe.row;
    return rows;
}

QList<int> distinct(std::function<int(Member const &)> const &field)
{
    QList<int> values;
    for (Member const &m : memberList()) {
        if (!values.contains(field(m)))
            values << field(m);
    }
    return values;
}

} // namespace

class TestTrio : public QObject
{
    Q_OBJECT

private:
    void addMemberRows()
    {
        QTest::addColumn<int>("protocol");
        for (Member const &m : memberList())
            QTest::newRow(qPrintable(QString::number(m.protocol))) << m.protocol;
    }

    struct PageCase
    {
        int index;
        QString title;
        int rows;
        QString firstTitle;
        QString lastTitle;
        QList<Probe> probes;
    };

    static QList<PageCase> pageCases(Member const &m)
    {
        const QString lastVehicle = m.protocol == 32 ? "Vehicle settings"
            : m.vehicleRows == 35 ? "Frame Number Information" : "Skylight opening and closing";
        return {
            {m.voiceIndex, "Voice control feedback", 8, "Skylight", "Air conditioning seat heating",
             voiceProbes()},
            {m.functionIndex, "Function recognition", m.functionRows, "The width light",
             m.functionRows == 37 ? "Car window-rear right" : "Tire speed information", functionProbes(m)},
            {m.vehicleIndex, "Vehicle Information", m.vehicleRows, "total mileage", lastVehicle, vehicleProbes(m)},
        };
    }

    enum Which { Voice, Function, Vehicle };

    // Opens one of the member's three pages and checks its class, title,
    // rows and probe rows.
    void checkPage(Member const &m, Which which, bool probed)
    {
        const PageCase c = pageCases(m).at(which);
        Page p(m.protocol, c.index);
        QCOMPARE(p.page()->metaObject()->className(), qPrintable(m.classes.at(which)));
        QCOMPARE(p.page()->getTitle(), c.title);
        QCOMPARE(p.rows(), c.rows);
        QCOMPARE(p.title(0), c.firstTitle);
        QCOMPARE(p.title(c.rows - 1), c.lastTitle);
        for (Probe const &probe : c.probes)
            QCOMPARE(p.shown(probe.row), probed ? probe.after : probe.before);
        for (int row = 0; row < c.rows; ++row)
            QVERIFY(!p.index(row).data(AdjustableRole).toBool());
    }

private slots:
    void init()
    {
        HostSim::reset();
        // Another car is selected: each member's pages read their own buffer.
        HostSim::setProtocolId(28);
    }

    // Each member's classes, titles, row counts and offsets: the probe values
    // show when they lie at the member's offsets, in its own buffer, and not
    // at another member's offsets or in the selected protocol's buffer.
    void memberPages_data() { addMemberRows(); }
    void memberPages()
    {
        QFETCH(int, protocol);
        Member const &m = member(protocol);

        // The selected protocol's buffer holds the values at the member's offsets.
        writeVoiceProbe(HostSim::buffer(28), m.voiceOffset);
        writeFunctionProbe(HostSim::buffer(28), m.functionOffset, m.functionRows);
        writeVehicleProbe(HostSim::buffer(28), m.vehicleOffset, m.protocol);
        for (Which which : {Voice, Function, Vehicle})
            checkPage(m, which, false);

        // The member's own buffer holds them at the other members' offsets,
        // one block at a time. A buffer of the head unit holds only its own
        // protocol's layout, and on its 32-bit build a text field is the
        // object itself, so a byte of another layout in it can't be read
        // there: this part runs on the desktop.
        const DataBuffer own = HostSim::buffer(protocol);
        if (sizeof(void *) == 8) {
            for (int offset : distinct([](Member const &x) { return x.voiceOffset; })) {
                if (offset != m.voiceOffset)
                    writeVoiceProbe(own, offset);
            }
            checkPage(m, Voice, false);
            clearBuffer(protocol);
            for (int offset : distinct([](Member const &x) { return x.functionOffset; })) {
                if (offset != m.functionOffset)
                    writeFunctionProbe(own, offset, m.functionRows);
            }
            checkPage(m, Function, false);
            clearBuffer(protocol);
            for (int offset : distinct([](Member const &x) { return x.vehicleOffset; })) {
                if (offset != m.vehicleOffset)
                    writeVehicleProbe(own, offset, m.protocol);
            }
            checkPage(m, Vehicle, false);
            clearBuffer(protocol);
        }

        // At its own offsets they show, and a refresh touches only their rows.
        struct Block
        {
            int index;
            QList<Probe> probes;
            std::function<void()> write;
        };
        const QList<Block> blocks = {
            {m.voiceIndex, voiceProbes(), [&] { writeVoiceProbe(own, m.voiceOffset); }},
            {m.functionIndex, functionProbes(m), [&] { writeFunctionProbe(own, m.functionOffset, m.functionRows); }},
            {m.vehicleIndex, vehicleProbes(m), [&] { writeVehicleProbe(own, m.vehicleOffset, m.protocol); }},
        };
        for (Block const &block : blocks) {
            Page p(protocol, block.index);
            QCOMPARE(p.changedRows(block.write), rowsOf(block.probes));
            for (Probe const &probe : block.probes)
                QCOMPARE(p.shown(probe.row), probe.after);
            QCOMPARE(p.changedRows([] {}), QList<int>());
        }
        for (Which which : {Voice, Function, Vehicle})
            checkPage(m, which, true);
    }

    // What a member's stack asks for on its trio's indices (and the frames
    // that the trio's stacks send beside them), straight to the decoder box.
    void requests_data()
    {
        QTest::addColumn<int>("protocol");
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("expected");
        const QStringList voice = {"2E 90 02 7D EF ck"};
        const QStringList function = {"2E 90 02 7E 00 ck"};
        const QStringList vehicle = series("2E 90 02 7D %1 ck", 0, 16);
        for (Member const &m : memberList()) {
            const QString name = QString::number(m.protocol);
            if (m.protocol == 67)
                continue;
            QTest::newRow(qPrintable(name + " voice")) << m.protocol << m.voiceIndex << voice;
            QTest::newRow(qPrintable(name + " function")) << m.protocol << m.functionIndex
                << (m.protocol == 32 ? QStringList{"2E 90 01 7E ck"} : function);
            if (m.vehicleIndex == 5) {
                // The seventeen frames go with index 3; the vehicle page asks
                // for one part on 64, and on 32 and 33 by the stack's timer.
                QTest::newRow(qPrintable(name + " index 3")) << m.protocol << 3 << vehicle;
                QTest::newRow(qPrintable(name + " vehicle")) << m.protocol << 5
                    << (m.protocol == 64 ? QStringList{"2E 90 02 7D 00 ck"} : QStringList());
            } else {
                QTest::newRow(qPrintable(name + " vehicle")) << m.protocol << m.vehicleIndex << vehicle;
            }
        }
        QTest::newRow("122 index 4") << 122 << 4 << QStringList{"2E 90 02 7D 06 ck"};
        QTest::newRow("67 voice") << 67 << 0 << QStringList{"FD 06 90 7E EF ck ck"};
        QTest::newRow("67 function") << 67 << 1 << QStringList{"FD 06 90 7E 00 ck ck"};
        QTest::newRow("67 vehicle") << 67 << 2 << series("FD 90 06 7D %1 ck ck", 0, 16);
    }
    void requests()
    {
        QFETCH(int, protocol);
        QFETCH(int, index);
        QFETCH(QStringList, expected);
        HostSim::setProtocolId(protocol);
        QWidget window;
        CarExViewBase *stack = createPageStack(protocol, &window);
        stack->showIndex(index);
        QCOMPARE(sent(), hexOf(expected, protocol));
    }

    // The voice states, the current window and the seat choice, by byte.
    void voiceMaps_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<QString>("shown");
        const QStringList states = {"This feature is not supported", "Closed", "Already opened", "Closing",
                                    "opening", "This feature is not supported"};
        for (int row : {0, 2, 3, 4, 5}) {
            for (int byte = 0; byte <= 5; ++byte)
                QTest::newRow(qPrintable(QString("state row %1 byte %2").arg(row).arg(byte)))
                    << row << byte << states.at(byte);
            QTest::newRow(qPrintable(QString("state row %1 byte 255").arg(row))) << row << 255 << states.at(0);
        }
        const QList<QPair<int, QString>> windows = {{0, "Front right"}, {1, "Back right"}, {2, "Front left"},
            {3, "Back left"}, {16, "All car windows"}, {4, "Front right"}, {15, "Front right"},
            {17, "Front right"}, {255, "Front right"}};
        for (auto const &w : windows)
            QTest::newRow(qPrintable(QString("window byte %1").arg(w.first))) << 1 << w.first << w.second;
        QTest::newRow("temperature seat 0") << 6 << 0 << "Driving position";
        QTest::newRow("temperature seat 1") << 6 << 1 << "Co-pilot";
        QTest::newRow("heating seat 1") << 7 << 1 << "Co-pilot";
        QTest::newRow("heating seat beyond") << 7 << 2 << "";
    }
    void voiceMaps()
    {
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(QString, shown);
        Page p(71, 0);
        HostSim::buffer(71).setByte(145 + row, quint8(byte));
        p.page()->ondataChanged();
        QCOMPARE(p.shown(row), shown);
    }

    // The vehicle rows' maps: lamps, wiper levels by member, the skylight
    // whose bytes 0 and 1 look alike, locks, 16-bit pulse counts and the
    // window percentages; empty texts.
    void vehicleMaps()
    {
        Page p(71, 2);
        DataBuffer data = HostSim::buffer(71);
        QCOMPARE(p.index(11).data(OptionsRole).toList().size(), 8);
        QCOMPARE(p.index(11).data(OptionsRole).toList().last().toString(), QString("Level 7"));
        struct Case
        {
            int offset;
            int byte;
            int row;
            QString shown;
        };
        const QList<Case> cases = {
            {20, 1, 4, "ON"}, {26, 0, 10, "OFF"}, {27, 7, 11, "Level 7"}, {27, 0, 11, "Don't scratch"},
            {80, 0, 27, "Full open"}, {80, 1, 27, "Full open"}, {80, 2, 27, "All off"}, {80, 3, 27, "Half open"},
            {81, 0, 28, "Lock up"}, {84, 1, 31, "Unlock"}, {100, 100, 35, "100.0%"}, {103, 37, 38, "37.0%"}};
        for (Case const &c : cases) {
            data.setByte(c.offset, quint8(c.byte));
            p.page()->ondataChanged();
            QCOMPARE(p.shown(c.row), c.shown);
        }
        QCOMPARE(p.changedRows([&] {
            data.setWord(62, 65535);
            data.setText(92, QStringLiteral("7.9L/100km"));
        }), (QList<int>{22, 33}));
        QCOMPARE(p.shown(22), QString("65535"));
        QCOMPARE(p.shown(33), QString("7.9L/100km"));
        QCOMPARE(p.shown(32), QString());
        // A text that empties again is written again.
        QCOMPARE(p.changedRows([&] { data.setText(92, QString()); }), QList<int>{33});
        QCOMPARE(p.shown(33), QString());

        // 72 and 64 know five wiper levels.
        for (int protocol : {72, 64}) {
            Page q(protocol, member(protocol).vehicleIndex);
            const QList<QVariant> options = q.index(11).data(OptionsRole).toList();
            QCOMPARE(options.size(), 6);
            QCOMPARE(options.last().toString(), QString("Level 5"));
            HostSim::buffer(protocol).setByte(27, 6);
            q.page()->ondataChanged();
            QCOMPARE(q.shown(11), QString());
        }
    }

    // Any byte in the voice rows and the vehicle's choice rows shows one of
    // the row's options or nothing; nothing breaks.
    void anyByte()
    {
        Page voice(33, 1);
        Page vehicle(33, 5);
        DataBuffer data = HostSim::buffer(33);
        for (int byte = 0; byte < 256; ++byte) {
            for (int row = 0; row < 8; ++row)
                data.setByte(241 + row, quint8(byte));
            for (int offset = 20 + 108; offset <= 84 + 108; ++offset) {
                if (offset - 108 <= 27 || offset - 108 >= 80)
                    data.setByte(offset, quint8(byte));
            }
            voice.page()->ondataChanged();
            vehicle.page()->ondataChanged();
            for (int row = 0; row < 6; ++row) {
                const QString shown = voice.shown(row);
                QVERIFY2(!shown.isEmpty(), qPrintable(QString("row %1 byte %2").arg(row).arg(byte)));
                QVERIFY(voice.index(row).data(OptionsRole).toList().contains(shown));
            }
        }
        QCOMPARE(vehicle.shown(0), QString());
    }

    // Row ids: the index, but from row 34 of the vehicle page the index plus
    // one; 32 and 33 build their rows without ids; 67 numbers by index.
    void rowIds_data()
    {
        QTest::addColumn<int>("protocol");
        QTest::addColumn<QList<int>>("voice");    // ids of rows 0 and 7
        QTest::addColumn<QList<int>>("function"); // rows 0 and 32
        QTest::addColumn<QList<int>>("vehicle");  // rows 0, 33, 34, 39
        QTest::newRow("71") << 71 << QList<int>{0, 7} << QList<int>{0, 32} << QList<int>{0, 33, 35, 40};
        QTest::newRow("122") << 122 << QList<int>{0, 7} << QList<int>{0, 32} << QList<int>{0, 33, 35, 40};
        QTest::newRow("72") << 72 << QList<int>{0, 7} << QList<int>{0, 32} << QList<int>{0, 33, 35, 40};
        QTest::newRow("67") << 67 << QList<int>{0, 7} << QList<int>{0, 32} << QList<int>{0, 33, 34, 39};
        QTest::newRow("32") << 32 << QList<int>{-1, -1} << QList<int>{-1, -1} << QList<int>{-1, -1, -1};
        QTest::newRow("33") << 33 << QList<int>{-1, -1} << QList<int>{-1, -1} << QList<int>{-1, -1, -1};
    }
    void rowIds()
    {
        QFETCH(int, protocol);
        QFETCH(QList<int>, voice);
        QFETCH(QList<int>, function);
        QFETCH(QList<int>, vehicle);
        Member const &m = member(protocol);
        const QList<QPair<int, QList<int>>> pages = {
            {m.voiceIndex, voice}, {m.functionIndex, function}, {m.vehicleIndex, vehicle}};
        const QList<QList<int>> rows = {{0, 7}, {0, 32}, {0, 33, 34, 39}};
        for (int i = 0; i < 3; ++i) {
            Page p(protocol, pages.at(i).first);
            QList<int> ids;
            for (int k = 0; k < pages.at(i).second.size(); ++k)
                ids << p.index(rows.at(i).at(k)).data(IdRole).toInt();
            QCOMPARE(ids, pages.at(i).second);
        }
    }

    // The two voice frames, by member family: row 0 tells the direction,
    // row 1 the stepped window with "All car windows" as 16, in a frame one
    // byte shorter than its length says (0x0B stands in the checksum slot,
    // which the checksum then fills). The other rows send nothing.
    void voiceFrames_data()
    {
        QTest::addColumn<int>("protocol");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("byte");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("71 skylight right") << 71 << 0 << 1 << false << QStringList{"2E EF 03 7D 01 01 ck"};
        QTest::newRow("71 skylight left") << 71 << 0 << 1 << true << QStringList{"2E EF 03 7D 01 00 ck"};
        QTest::newRow("71 skylight left, feature missing") << 71 << 0 << 0 << true
            << QStringList{"2E EF 03 7D 01 00 ck"};
        QTest::newRow("71 window up") << 71 << 1 << 2 << false << QStringList{"2E EF 04 7D 02 03 ck"};
        QTest::newRow("71 window down") << 71 << 1 << 2 << true << QStringList{"2E EF 04 7D 02 01 ck"};
        QTest::newRow("71 window up to all") << 71 << 1 << 3 << false << QStringList{"2E EF 04 7D 02 10 ck"};
        QTest::newRow("71 window all, up") << 71 << 1 << 16 << false << QStringList{"2E EF 04 7D 02 10 ck"};
        QTest::newRow("71 window all, down") << 71 << 1 << 16 << true << QStringList{"2E EF 04 7D 02 03 ck"};
        QTest::newRow("71 window first, down") << 71 << 1 << 0 << true << QStringList{"2E EF 04 7D 02 00 ck"};
        for (int row = 2; row < 8; ++row)
            QTest::newRow(qPrintable(QString("71 row %1").arg(row))) << 71 << row << 1 << false << QStringList();
        QTest::newRow("33 skylight right") << 33 << 0 << 2 << false << QStringList{"2E EF 03 7D 01 01 ck"};
        QTest::newRow("33 window down") << 33 << 1 << 1 << true << QStringList{"2E EF 04 7D 02 00 ck"};
        QTest::newRow("122 window up") << 122 << 1 << 0 << false << QStringList{"2E EF 04 7D 02 01 ck"};
        QTest::newRow("72 skylight left") << 72 << 0 << 3 << true << QStringList{"2E EF 03 7D 01 00 ck"};
        QTest::newRow("64 window up to all") << 64 << 1 << 3 << false << QStringList{"2E EF 04 7D 02 10 ck"};
        QTest::newRow("67 skylight right") << 67 << 0 << 2 << false << QStringList{"FD 07 EF 7D 01 01 ck ck"};
        QTest::newRow("67 skylight left") << 67 << 0 << 2 << true << QStringList{"FD 07 EF 7D 01 00 ck ck"};
        QTest::newRow("67 window up to all") << 67 << 1 << 3 << false << QStringList{"FD 07 EF 7D 02 10 ck ck"};
        QTest::newRow("67 window down") << 67 << 1 << 1 << true << QStringList{"FD 07 EF 7D 02 00 ck ck"};
        QTest::newRow("67 row 5") << 67 << 5 << 1 << true << QStringList();
    }
    void voiceFrames()
    {
        QFETCH(int, protocol);
        QFETCH(int, row);
        QFETCH(int, byte);
        QFETCH(bool, down);
        QFETCH(QStringList, expected);
        HostSim::setProtocolId(protocol);
        Member const &m = member(protocol);
        HostSim::buffer(protocol).setByte(m.voiceOffset + row, quint8(byte));
        Page p(protocol, m.voiceIndex);
        const int before = p.value(row);
        p.step(row, down);
        const QList<QByteArray> sent = HostSim::sentFrames();
        QCOMPARE(hex(sent), hexOf(expected, protocol));
        for (QByteArray const &f : sent)
            QCOMPARE(f.size(), protocol == 67 ? 8 : 7);
        // The row waits for the car.
        QCOMPARE(p.value(row), before);
        QVERIFY(p.signalled.isEmpty());
    }

    // The read-only pages' steps: the skeletons of the function and vehicle
    // pages, payload left at zero. 72 and 64 move the function row at once
    // and keep the vehicle page's frame back. The arrows themselves, tapped,
    // send nothing anywhere.
    void readOnlySteps_data()
    {
        QTest::addColumn<int>("protocol");
        QTest::addColumn<bool>("vehiclePage");
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QString>("shownAfter");
        QTest::newRow("71 function") << 71 << false << 3 << false << QStringList{"2E A0 02 00 00 ck"} << "OFF";
        QTest::newRow("71 vehicle lamp") << 71 << true << 5 << false << QStringList{"2E E2 02 00 00 ck"} << "OFF";
        QTest::newRow("71 vehicle text") << 71 << true << 0 << true << QStringList{"2E E2 02 00 00 ck"} << "";
        QTest::newRow("32 function") << 32 << false << 32 << false << QStringList{"2E A0 02 00 00 ck"} << "OFF";
        QTest::newRow("32 settings row") << 32 << true << 35 << false << QStringList{"2E E2 02 00 00 ck"} << "";
        QTest::newRow("122 vehicle") << 122 << true << 39 << false << QStringList{"2E E2 02 00 00 ck"} << "0.0%";
        QTest::newRow("67 function") << 67 << false << 3 << false << QStringList{"FD A0 02 00 ck ck"} << "OFF";
        QTest::newRow("67 vehicle") << 67 << true << 4 << false << QStringList{"FD E2 02 00 ck ck"} << "OFF";
        QTest::newRow("72 function up") << 72 << false << 3 << false << QStringList{"2E A0 02 00 00 ck"} << "ON";
        QTest::newRow("72 function down") << 72 << false << 3 << true << QStringList{"2E A0 02 00 00 ck"} << "OFF";
        QTest::newRow("72 vehicle") << 72 << true << 4 << false << QStringList() << "OFF";
        QTest::newRow("64 function up") << 64 << false << 36 << false << QStringList{"2E A0 02 00 00 ck"} << "ON";
        QTest::newRow("64 vehicle") << 64 << true << 11 << false << QStringList() << "Don't scratch";
    }
    void readOnlySteps()
    {
        QFETCH(int, protocol);
        QFETCH(bool, vehiclePage);
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QStringList, expected);
        QFETCH(QString, shownAfter);
        HostSim::setProtocolId(protocol);
        Member const &m = member(protocol);
        Page p(protocol, vehiclePage ? m.vehicleIndex : m.functionIndex);
        p.show();
        p.tap(row, LeftArrow);
        p.tap(row, RightArrow);
        QVERIFY(HostSim::sentFrames().isEmpty());

        p.step(row, down);
        QCOMPARE(sent(), hexOf(expected, protocol));
        QCOMPARE(p.shown(row), shownAfter);
        QVERIFY(p.signalled.isEmpty());
    }

    // Each member's id selected, its extended view opens the three pages
    // from the list; their rows follow the buffer while they are in front.
    void extendedView_data() { addMemberRows(); }
    void extendedView()
    {
        QFETCH(int, protocol);
        Member const &m = member(protocol);
        HostSim::setProtocolId(protocol);
        ExtendedView v;
        QVERIFY(v.exposed());
        DataBuffer data = HostSim::buffer(protocol);
        struct Case
        {
            int index;
            QString title;
            int row;
            std::function<void()> change;
            QString shown;
        };
        const QList<Case> cases = {
            {m.voiceIndex, "Voice control feedback", 5, [&] { data.setByte(m.voiceOffset + 5, 2); },
             "Already opened"},
            {m.functionIndex, "Function recognition", 7, [&] { data.setByte(m.functionOffset + 7, 1); }, "ON"},
            {m.vehicleIndex, "Vehicle Information", 12,
             [&] { data.setText(m.vehicleOffset + 24, QStringLiteral("88 km/h")); }, "88 km/h"},
        };
        for (Case const &c : cases) {
            CarExViewBase *stack = v.open(c.index);
            QVERIFY(stack->isVisible());
            QCOMPARE(stack->currentIndex(), c.index);
            QCOMPARE(v.page()->getTitle(), c.title);
            QVERIFY(v.table());
            QVERIFY(v.table()->isVisible());
            QCOMPARE(v.shownAfter(c.change, c.row), c.shown);
            v.back();
            QVERIFY(v.list->isVisible());
        }
    }
};

QTEST_MAIN(TestTrio)
#include "tst_trio.moc"
