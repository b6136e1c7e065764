// Protocol 48, Ford cars with SYNC: the rows that each of its ten pages
// builds from the data buffer and the records, and the frames of their
// arrows and middle strips byte for byte, each with its checksum slot.

#include "exviewtests.h"

#include "airdata.h"
#include "carbodydata.h"


using PageTest::ExtendedView;
using PageTest::frame;
using PageTest::hex;
using PageTest::hexOf;
using PageTest::LeftArrow;
using PageTest::Middle;
using PageTest::RightArrow;
using PageTest::byteText;
using PageTest::sent;

namespace {

const int Protocol = 48;

enum PageIndex {
    Parking, Multimedia, Sync, Massage, Amplifier, AmbientLight, SettingItems, BasicInformation, Tyres, SyncCommand
};

DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

typedef PageTest::FamilyPage<Protocol> Page;

} // namespace

class TestProtocol48 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
    }

    void parkingAssistRows()
    {
        DataBuffer data = buffer();
        data.setByte(32, 1);
        data.setByte(34, 3);
        data.setByte(35, 4);
        data.setByte(41, 1);
        data.setByte(46, 2);
        Page p(Parking);
        QCOMPARE(p.rows(), 15);
        QCOMPARE(p.title(4), QString("Electric drive-drive with motor"));
        QCOMPARE(p.title(5), QString("Electric drive-motor with ngine"));
        QCOMPARE(p.title(12), QString("Oil driven_motor with engine"));
        QCOMPARE(p.title(14), QString("Automatic parking status"));
        QCOMPARE(p.shown(0), QString("ON"));
        QCOMPARE(p.shown(1), QString("OFF"));
        QCOMPARE(p.shown(2), QString("Rear radar failure"));
        QCOMPARE(p.shown(3), QString("German"));
        QCOMPARE(p.shown(9), QString("ON"));
        QCOMPARE(p.shown(14), QString("Vertical parking"));
        for (int row = 0; row < 15; ++row)
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), row == 3 || row == 14);

        // The parking state is signed and capped at its last option.
        QCOMPARE(p.changedRows([&] { data.setByte(46, 0x7F); }), QList<int>{14});
        QCOMPARE(p.shown(14), QString("Parallel parking space"));
        QCOMPARE(p.changedRows([&] { data.setByte(46, 0x80); }), QList<int>{14});
        QCOMPARE(p.value(14), -128);
        QCOMPARE(p.shown(14), QString());

        // Its arrows send 2E C6 03 A8 state 00, and the row waits.
        p.show();
        QCOMPARE(p.arrow(14, false), hexOf({"2E C6 03 A8 00 00 ck"}));
        data.setByte(46, 9);
        p.page()->ondataChanged();
        QCOMPARE(p.arrow(14, false), hexOf({"2E C6 03 A8 03 00 ck"}));
        QCOMPARE(p.arrow(14, true), hexOf({"2E C6 03 A8 02 00 ck"}));
        QCOMPARE(p.value(14), 3);
        // The radar and drive rows have no arrows.
        QCOMPARE(p.arrow(0, false), QString());
    }

    // The language byte is a car code, mapped to an option; a code that the
    // map skips or doesn't know keeps its own number.
    void languageShown_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("shown");
        QTest::newRow("first") << 2 << 0 << "British English";
        QTest::newRow("12") << 12 << 10 << "Dutch";
        QTest::newRow("14 after the gap") << 14 << 11 << "Polish";
        QTest::newRow("18") << 18 << 13 << "Swedish";
        QTest::newRow("25") << 25 << 19 << "Australian English";
        QTest::newRow("last") << 31 << 24 << "Thai";
        QTest::newRow("13 skipped") << 13 << 13 << "Swedish";
        QTest::newRow("16 skipped") << 16 << 16 << "Finnish";
        QTest::newRow("30 skipped") << 30 << 30 << "";
        QTest::newRow("0 unknown") << 0 << 0 << "British English";
        QTest::newRow("signed -1") << 0xFF << -1 << "";
        QTest::newRow("signed -128") << 0x80 << -128 << "";
        QTest::newRow("127") << 0x7F << 127 << "";
    }
    void languageShown()
    {
        QFETCH(int, code);
        QFETCH(int, value);
        QFETCH(QString, shown);
        buffer().setByte(35, quint8(code));
        Page p(Parking);
        QCOMPARE(p.value(3), value);
        QCOMPARE(p.shown(3), shown);
        // A refresh finds nothing to change.
        QCOMPARE(p.changedRows([] {}), QList<int>{});
    }

    // A step sends the car's code of the new option and shows it at once.
    void languageSteps_data()
    {
        QTest::addColumn<int>("code");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("sent");
        QTest::addColumn<QString>("shown");
        QTest::newRow("Dutch up") << 12 << false << 14 << "Polish";
        QTest::newRow("Polish down") << 14 << true << 12 << "Dutch";
        QTest::newRow("Czech up") << 15 << false << 18 << "Swedish";
        QTest::newRow("Australian down") << 25 << true << 23 << "Portuguese Brazilian";
        QTest::newRow("skipped 13 up") << 13 << false << 19 << "Danish";
        QTest::newRow("first down stays") << 2 << true << 2 << "British English";
        QTest::newRow("last up stays") << 31 << false << 31 << "Thai";
        QTest::newRow("negative up") << 0xF0 << false << 2 << "British English";
        QTest::newRow("beyond down") << 100 << true << 31 << "Thai";
    }
    void languageSteps()
    {
        QFETCH(int, code);
        QFETCH(bool, down);
        QFETCH(int, sent);
        QFETCH(QString, shown);
        buffer().setByte(35, quint8(code));
        Page p(Parking);
        p.show();
        QCOMPARE(p.arrow(3, down), hexOf({"2E C6 03 A4 " + byteText(sent) + " 00 ck"}));
        QCOMPARE(p.shown(3), shown);
        // The buffer is the car's: the next refresh shows its code again.
        p.page()->ondataChanged();
        QCOMPARE(p.value(3), Page(Parking).value(3));
    }

    void multimediaRows_data()
    {
        QTest::addColumn<int>("band");
        QTest::addColumn<QString>("shown");
        QTest::newRow("FM1") << 1 << "FM1";
        QTest::newRow("FM3") << 3 << "FM3";
        QTest::newRow("AM1") << 16 << "AM1";
        QTest::newRow("AM2") << 17 << "AM2";
        QTest::newRow("0 unknown") << 0 << "";
        QTest::newRow("4 unknown") << 4 << "";
        QTest::newRow("255 unknown") << 255 << "";
    }
    void multimediaRows()
    {
        QFETCH(int, band);
        QFETCH(QString, shown);
        DataBuffer data = buffer();
        data.setByte(188, quint8(band));
        data.setText(192, QStringLiteral("98.7 MHz"));
        data.setByte(196, 4);
        data.setWord(198, 12);
        data.setWord(200, 300);
        data.setText(204, QStringLiteral("01:23"));
        data.setText(208, QStringLiteral("45:00"));
        const int statuses[] = {2, 1, 1, 0, 1, 1, 42};
        for (int i = 0; i < 7; ++i)
            data.setByte(212 + i, quint8(statuses[i]));
        Page p(Multimedia);
        QCOMPARE(p.rows(), 14);
        const QStringList texts = {shown, "98.7 MHz", "4", "12", "300", "01:23", "45:00", "Reading disc", "Play",
                                   "ON", "OFF", "CD", "ASKII", "42"};
        for (int row = 0; row < texts.size(); ++row)
            QCOMPARE(p.shown(row), texts.at(row));
        QCOMPARE(p.title(2), QString("Radio Pre-made radio"));
        QCOMPARE(p.title(13), QString("CD Pre-made station number or line number"));
        for (int row = 0; row < 14; ++row)
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), QList<int>({0, 2, 3, 8, 9, 10}).contains(row));

        // Presets outside 1 to 6 are "Is not".
        QCOMPARE(p.changedRows([&] { data.setByte(196, 7); }), QList<int>{2});
        QCOMPARE(p.shown(2), QString("Is not"));
        QCOMPARE(p.changedRows([&] { data.setByte(196, 0xFF); }), QList<int>{});
    }

    // Every arrow sends 2E C6 03 A9 code 00: codes for bands, presets and
    // the CD switches, a direction for the track.
    void multimediaCommands_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("raw");
        QTest::addColumn<bool>("down");
        QTest::addColumn<int>("code");
        QTest::newRow("FM1 up") << 0 << 188 << 1 << false << 0x02;
        QTest::newRow("AM1 up") << 0 << 188 << 16 << false << 0x05;
        QTest::newRow("AM1 down") << 0 << 188 << 16 << true << 0x03;
        QTest::newRow("AM2 up stays") << 0 << 188 << 17 << false << 0x05;
        QTest::newRow("unknown band up") << 0 << 188 << 9 << false << 0x01;
        QTest::newRow("preset none up") << 2 << 196 << 0 << false << 0x0A;
        QTest::newRow("preset 6 up stays") << 2 << 196 << 6 << false << 0x0F;
        QTest::newRow("preset 1 down") << 2 << 196 << 1 << true << 0x09;
        QTest::newRow("previous track") << 3 << 198 << 5 << true << 0x21;
        QTest::newRow("previous track at 0") << 3 << 198 << 0 << true << 0x21;
        QTest::newRow("next track") << 3 << 198 << 5 << false << 0x22;
        QTest::newRow("pause") << 8 << 213 << 1 << true << 0x23;
        QTest::newRow("play") << 8 << 213 << 0 << false << 0x24;
        QTest::newRow("play again") << 8 << 213 << 1 << false << 0x24;
        QTest::newRow("loop off") << 9 << 214 << 1 << true << 0x27;
        QTest::newRow("loop on") << 9 << 214 << 0 << false << 0x28;
        QTest::newRow("random off") << 10 << 215 << 0 << true << 0x25;
        QTest::newRow("random on") << 10 << 215 << 0 << false << 0x26;
    }
    void multimediaCommands()
    {
        QFETCH(int, row);
        QFETCH(int, offset);
        QFETCH(int, raw);
        QFETCH(bool, down);
        QFETCH(int, code);
        if (row == 3)
            buffer().setWord(offset, quint16(raw));
        else
            buffer().setByte(offset, quint8(raw));
        Page p(Multimedia);
        p.show();
        const QString before = p.shown(row);
        QCOMPARE(p.arrow(row, down), hexOf({"2E C6 03 A9 " + byteText(code) + " 00 ck"}));
        // The row changes when the car answers.
        QCOMPARE(p.shown(row), before);
    }

    void syncInformation()
    {
        DataBuffer data = buffer();
        const int texts[] = {132, 140, 148, 156, 160, 168, 172};
        for (int offset : texts)
            data.setText(offset, QString("text %1").arg(offset));
        data.setByte(136, 15);
        data.setByte(137, 64);
        data.setByte(144, 5);
        data.setByte(152, 1);
        data.setByte(164, 1);
        const int flags[] = {2, 1, 1, 0, 1, 1, 0, 4, 3, 3};
        for (int i = 0; i < 10; ++i)
            data.setByte(176 + i, quint8(flags[i]));
        Page p(Sync);
        QCOMPARE(p.rows(), 22);
        const QStringList shown = {"text 132", "15", "64.0%", "text 140", "5", "text 148", "UP DOWN", "text 156",
            "text 160", "Can be selected", "text 168", "text 172", "MEDIA", "With SYNC module", "connected",
            "Don't show", "Voice status", "Call status", "unavailable", "4", "3", "SYNC VERSION V3"};
        for (int row = 0; row < 22; ++row) {
            QCOMPARE(p.shown(row), shown.at(row));
            QVERIFY(!p.index(row).data(AdjustableRole).toBool());
        }
        QCOMPARE(p.title(21), QString("Current SYNC System Version"));
        QCOMPARE(p.changedRows([&] {
            data.setText(156, QStringLiteral("3/12"));
            data.setByte(185, 7); // beyond the options
        }), (QList<int>{7, 21}));
        QCOMPARE(p.shown(21), QString());

        // No arrows; a step reached by other means sends the bare frame.
        p.show();
        p.tap(1, RightArrow);
        QVERIFY(HostSim::sentFrames().isEmpty());
        p.step(1, false);
        QCOMPARE(sent(), hexOf({"2E A0 02 00 00 ck"}));
    }

    // 2E C6 03 A7 function b5: a value, or 1 for the right arrow and 2 for
    // the left on the adjustment rows, whatever the row shows.
    void seatMassage_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("frame");
        QTest::newRow("driver function up") << 1 << false << "2E C6 03 A7 0A 02 ck";
        QTest::newRow("passenger function down") << 2 << true << "2E C6 03 A7 0B 00 ck";
        QTest::newRow("driver high up") << 3 << false << "2E C6 03 A7 00 01 ck";
        QTest::newRow("driver high down") << 3 << true << "2E C6 03 A7 00 02 ck";
        QTest::newRow("driver medium up") << 4 << false << "2E C6 03 A7 01 01 ck";
        QTest::newRow("driver low down at 0") << 5 << true << "2E C6 03 A7 02 02 ck";
        QTest::newRow("driver backrest up") << 6 << false << "2E C6 03 A7 06 02 ck";
        QTest::newRow("driver cushion down") << 7 << true << "2E C6 03 A7 07 00 ck";
        QTest::newRow("passenger high up at 10") << 8 << false << "2E C6 03 A7 03 01 ck";
        QTest::newRow("passenger medium down") << 9 << true << "2E C6 03 A7 04 02 ck";
        QTest::newRow("passenger low up") << 10 << false << "2E C6 03 A7 05 01 ck";
        QTest::newRow("passenger backrest down") << 11 << true << "2E C6 03 A7 08 01 ck";
        QTest::newRow("passenger cushion up stays") << 12 << false << "2E C6 03 A7 09 02 ck";
    }
    void seatMassage()
    {
        QFETCH(int, row);
        QFETCH(bool, down);
        QFETCH(QString, frame);
        const int bytes[] = {1, 1, 1, 4, 6, 0, 1, 1, 10, 3, 5, 2, 2};
        for (int i = 0; i < 13; ++i)
            buffer().setByte(117 + i, quint8(bytes[i]));
        Page p(Massage);
        QCOMPARE(p.rows(), 13);
        QVERIFY(!p.index(0).data(AdjustableRole).toBool());
        QCOMPARE(p.shown(0), QString("Have"));
        QCOMPARE(p.shown(1), QString("Adjustment"));
        QCOMPARE(p.shown(3), QString("4"));
        QCOMPARE(p.shown(12), QString("high"));
        p.show();
        const QString before = p.shown(row);
        QCOMPARE(p.arrow(row, down), hexOf({frame}));
        QCOMPARE(p.shown(row), before);
    }

    void amplifierRows()
    {
        const int bytes[] = {7, 0, 14, 9, 3, 2, 1, 1, 30};
        for (int row = 0; row < 9; ++row)
            buffer().setByte(108 + row, quint8(bytes[row]));
        Page p(Amplifier);
        QCOMPARE(p.rows(), 10);
        QCOMPARE(p.titles(), (QStringList{"Treble", "Midrange", "bass", "attenuation", "balance",
                                          "SpeedAnd volume adjustment", "Sound effect mode", "All round", "volume",
                                          "Reset all"}));
        const QStringList shown = {"0", "-7", "7", "2", "-4", "middle", "Surround sound", "Back seat", "30",
                                   "Reset"};
        for (int row = 0; row < 10; ++row) {
            QCOMPARE(p.shown(row), shown.at(row));
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), row != 9);
        }
    }

    // 2E C3 02 row value, the places of "All round" turned, the volume on a
    // command of its own; the rows wait for the car.
    void amplifierFrames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("raw");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("frame");
        QTest::newRow("treble up") << 0 << 7 << false << "2E C3 02 00 08 ck";
        QTest::newRow("midrange down at 0") << 1 << 0 << true << "2E C3 02 01 00 ck";
        QTest::newRow("bass up at 14") << 2 << 14 << false << "2E C3 02 02 0E ck";
        QTest::newRow("attenuation down") << 3 << 9 << true << "2E C3 02 03 08 ck";
        QTest::newRow("balance up") << 4 << 3 << false << "2E C3 02 04 04 ck";
        QTest::newRow("speed volume up stays") << 5 << 3 << false << "2E C3 02 05 03 ck";
        QTest::newRow("sound effect down") << 6 << 1 << true << "2E C3 02 06 00 ck";
        QTest::newRow("whole car stays") << 7 << 0 << true << "2E C3 02 07 00 ck";
        QTest::newRow("back seat goes out as 2") << 7 << 0 << false << "2E C3 02 07 02 ck";
        QTest::newRow("driving side goes out as 1") << 7 << 1 << false << "2E C3 02 07 01 ck";
        QTest::newRow("back seat from the driving side") << 7 << 2 << true << "2E C3 02 07 02 ck";
        QTest::newRow("volume up") << 8 << 12 << false << "2E C2 01 0D ck";
        QTest::newRow("volume up at 30") << 8 << 30 << false << "2E C2 01 1E ck";
        QTest::newRow("volume down at 0") << 8 << 0 << true << "2E C2 01 00 ck";
    }
    void amplifierFrames()
    {
        QFETCH(int, row);
        QFETCH(int, raw);
        QFETCH(bool, down);
        QFETCH(QString, frame);
        buffer().setByte(108 + row, quint8(raw));
        Page p(Amplifier);
        p.show();
        QCOMPARE(p.arrow(row, down), hexOf({frame}));
        QCOMPARE(p.value(row), raw);
    }

    // Only the middle of "Reset all" sends, 2E C3 02 FF with the value
    // byte left at zero.
    void amplifierReset()
    {
        Page p(Amplifier);
        p.show();
        p.tap(9, LeftArrow);
        p.tap(9, RightArrow);
        p.tap(8, Middle);
        p.tap(0, Middle);
        QVERIFY(HostSim::sentFrames().isEmpty());
        p.tap(9, Middle);
        QCOMPARE(sent(), hexOf({"2E C3 02 FF 00 ck"}));
        QCOMPARE(HostSim::sentFrames().at(0).size(), 6);
    }

    void ambientLightRows()
    {
        DataBuffer data = buffer();
        data.setByte(84, 1);
        data.setText(88, QStringLiteral("35 ug/m3"));
        data.setByte(92, 10);
        data.setText(96, QStringLiteral("2h 10min"));
        data.setByte(100, 80);
        data.setByte(101, 12);
        data.setByte(102, 5);
        data.setByte(103, 1);
        data.setByte(104, 3);
        data.setByte(105, 45);
        Page p(AmbientLight);
        QCOMPARE(p.rows(), 10);
        const QStringList shown = {"Can't press", "35 ug/m3", "fast charging", "2h 10min", "80.0%",
                                   "battery temperature", "Engine temperature is too low", "Have", "soft blue",
                                   "45"};
        for (int row = 0; row < 10; ++row) {
            QCOMPARE(p.shown(row), shown.at(row));
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), row >= 8);
        }
        QCOMPARE(p.title(1), QString("Inside the car PM 2.5"));
        QCOMPARE(p.title(8), QString("Ambient light-colour"));
    }

    // Byte 106 chooses the colours when the rows are built; a later model
    // changes them only on a page built anew.
    void ambientLightColours()
    {
        buffer().setByte(104, 7);
        buffer().setByte(106, 6);
        {
            Page p(AmbientLight);
            QCOMPARE(p.index(8).data(OptionsRole).toStringList(),
                     (QStringList{"OFF", "Earthy yellow", "Red", "Pink", "Purple", "Blue", "Green", "Sky blue"}));
            QCOMPARE(p.shown(8), QString("Sky blue"));
            buffer().setByte(106, 5);
            p.page()->ondataChanged();
            p.page()->createView();
            QCOMPARE(p.shown(8), QString("Sky blue"));
        }
        Page p(AmbientLight);
        QCOMPARE(p.index(8).data(OptionsRole).toStringList(),
                 (QStringList{"OFF", "ice blue", "orange", "soft blue", "red", "green", "blue", "purple"}));
        QCOMPARE(p.shown(8), QString("purple"));
    }

    // 2E C5 02 colour brightness: each row restates the other from the
    // buffer; the brightness steps by 5 from the buffer, within 0 to 100.
    void ambientLightFrame_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("colour");
        QTest::addColumn<int>("brightness");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("frame");
        QTest::newRow("colour up") << 8 << 2 << 40 << false << "2E C5 02 03 28 ck";
        QTest::newRow("colour down at OFF") << 8 << 0 << 100 << true << "2E C5 02 00 64 ck";
        QTest::newRow("colour up at the last") << 8 << 7 << 0 << false << "2E C5 02 07 00 ck";
        QTest::newRow("brightness up") << 9 << 4 << 40 << false << "2E C5 02 04 2D ck";
        QTest::newRow("brightness up from 95") << 9 << 4 << 95 << false << "2E C5 02 04 64 ck";
        QTest::newRow("brightness up from 96") << 9 << 4 << 96 << false << "2E C5 02 04 64 ck";
        QTest::newRow("brightness up from 100") << 9 << 4 << 100 << false << "2E C5 02 04 64 ck";
        QTest::newRow("brightness up from 200") << 9 << 4 << 200 << false << "2E C5 02 04 64 ck";
        QTest::newRow("brightness down") << 9 << 1 << 40 << true << "2E C5 02 01 23 ck";
        QTest::newRow("brightness down from 5") << 9 << 1 << 5 << true << "2E C5 02 01 00 ck";
        QTest::newRow("brightness down from 4") << 9 << 1 << 4 << true << "2E C5 02 01 00 ck";
        QTest::newRow("brightness down from 0") << 9 << 1 << 0 << true << "2E C5 02 01 00 ck";
        QTest::newRow("brightness down from 200") << 9 << 1 << 200 << true << "2E C5 02 01 C3 ck";
    }
    void ambientLightFrame()
    {
        QFETCH(int, row);
        QFETCH(int, colour);
        QFETCH(int, brightness);
        QFETCH(bool, down);
        QFETCH(QString, frame);
        buffer().setByte(104, quint8(colour));
        buffer().setByte(105, quint8(brightness));
        Page p(AmbientLight);
        p.show();
        QCOMPARE(p.arrow(row, down), hexOf({frame}));
        // The car answers; until then the row and the buffer stay.
        QCOMPARE(int(buffer().byte(104)), colour);
        QCOMPARE(int(buffer().byte(105)), brightness);
        QCOMPARE(p.value(row), row == 8 ? colour : brightness);
    }

    // Every row goes out as 2E C9 02 sub value, the headlight delay in
    // seconds and the unit of measure without the code 1.
    void settingItems()
    {
        const int subs[] = {0x00, 0x01, 0x02, 0x03, 0x04, 0x05, 0x10, 0x11, 0x12, 0x13, 0x14, 0x20,
                            0x21, 0x22, 0x30, 0x40, 0x50, 0x51, 0x52, 0x53, 0x54, 0x55, 0x56, 0x57,
                            0x58, 0x59, 0x5A, 0x60, 0x61, 0x62, 0x70, 0x71, 0x72, 0x80};
        DataBuffer data = buffer();
        data.setByte(58, 40); // ambient light
        data.setByte(59, 20); // headlight delay
        data.setByte(77, 1);  // tyre pressure unit
        data.setByte(78, 1);  // unit of measure
        data.setByte(79, 1);  // temperature unit
        Page p(SettingItems);
        QCOMPARE(p.rows(), 34);
        QCOMPARE(p.title(12), QString("Headlight delay"));
        QCOMPARE(p.title(25), QString("Steering wheel heating and seat air conditioning"));
        QCOMPARE(p.shown(0), QString("warn"));
        QCOMPARE(p.shown(11), QString("40"));
        QCOMPARE(p.shown(30), QString("KPA"));
        QCOMPARE(p.shown(31), QString("km&l/100km "));
        QCOMPARE(p.shown(32), QString::fromUtf8("℉"));
        QCOMPARE(p.shown(33), QString("freed"));

        p.show();
        QStringList frames;
        for (int row = 0; row < 34; ++row) {
            QVERIFY(p.index(row).data(AdjustableRole).toBool());
            if (row == 12 || row == 31)
                continue;
            const int value = p.value(row);
            const int highest = row == 11 ? 100 : p.index(row).data(OptionsRole).toList().size() - 1;
            p.tap(row, RightArrow);
            frames << QString("2E C9 02 %1 %2 ck").arg(byteText(subs[row]), byteText(qMin(value + 1, highest)));
        }
        QCOMPARE(sent(), hexOf(frames));
        HostSim::clearSentFrames();

        // Unit of measure: the options go out as 0, 2, 3.
        QCOMPARE(p.arrow(31, true), hexOf({"2E C9 02 71 00 ck"}));
        QCOMPARE(p.arrow(31, false), hexOf({"2E C9 02 71 03 ck"}));
        data.setByte(78, 0);
        p.page()->ondataChanged();
        QCOMPARE(p.arrow(31, false), hexOf({"2E C9 02 71 02 ck"}));
    }

    // The headlight delay is first read from the ambient light's byte, as
    // seconds; the first refresh takes its own byte. Seconds that no option
    // has show nothing.
    void headlightDelay()
    {
        DataBuffer data = buffer();
        data.setByte(58, 10);
        data.setByte(59, 120);
        Page p(SettingItems);
        QCOMPARE(p.shown(12), QString("10s"));
        QCOMPARE(p.changedRows([] {}), QList<int>{12});
        QCOMPARE(p.shown(12), QString("120s"));
        QCOMPARE(p.changedRows([] {}), QList<int>{});

        p.show();
        QCOMPARE(p.arrow(12, true), hexOf({"2E C9 02 21 14 ck"}));
        QCOMPARE(p.arrow(12, false), hexOf({"2E C9 02 21 78 ck"}));
        QCOMPARE(p.changedRows([&] { data.setByte(59, 0); }), QList<int>{12});
        QCOMPARE(p.shown(12), QString("OFF"));
        QCOMPARE(p.arrow(12, false), hexOf({"2E C9 02 21 0A ck"}));
        QCOMPARE(p.changedRows([&] { data.setByte(59, 3); }), QList<int>{12});
        QCOMPARE(p.shown(12), QString());
        QCOMPARE(p.arrow(12, false), hexOf({"2E C9 02 21 00 ck"}));
        QCOMPARE(p.arrow(12, true), hexOf({"2E C9 02 21 00 ck"}));

        // An ambient light byte that is no delay: the row starts empty.
        data.setByte(58, 50);
        Page fresh(SettingItems);
        QCOMPARE(fresh.shown(12), QString());
    }

    void basicInformationRows()
    {
        DataBuffer data = buffer();
        for (int row = 0; row < 25; ++row)
            data.setByte(row, quint8(row % 2));
        data.setByte(19, 2);
        data.setByte(25, 87);
        HostSim::airData()->outsideTemperature = QString::fromUtf8("21.5℃");
        CarbodyData *body = HostSim::carbodyData();
        body->byte36 = 200;
        body->distance = 123456;
        body->value12 = 380;
        body->value32 = 72;
        body->remainingFuel = 90;
        body->distanceUnit = 0;
        Page p(BasicInformation);
        QCOMPARE(p.rows(), 32);
        QCOMPARE(p.title(1), QString("Turn signal  setting"));
        QCOMPARE(p.title(7), QString("MileageUnit"));
        QCOMPARE(p.shown(0), QString("OFF"));
        QCOMPARE(p.shown(1), QString("Flashes 3 time"));
        QCOMPARE(p.shown(10), QString("0s"));
        QCOMPARE(p.shown(19), QString("Restricted"));
        const QStringList readOuts = {QString::fromUtf8("21.5℃"), "200", "123456.0km", "380.0km", "7.2L/100km",
                                      "45.0%", "87.0%"};
        for (int i = 0; i < readOuts.size(); ++i) {
            QCOMPARE(p.shown(25 + i), readOuts.at(i));
            QVERIFY(!p.index(25 + i).data(AdjustableRole).toBool());
        }
        for (int row = 0; row < 25; ++row)
            QVERIFY(p.index(row).data(AdjustableRole).toBool());

        // The distances show kilometres whatever unit the body record gives;
        // a consumption below 0 shows as 0.
        QCOMPARE(p.changedRows([&] {
            body->distanceUnit = 1;
            body->value32 = -5;
        }), (QList<int>{29}));
        QCOMPARE(p.shown(27), QString("123456.0km"));
        QCOMPARE(p.shown(28), QString("380.0km"));
        QCOMPARE(p.shown(29), QString("0.0L/100km"));

        // Without the records the read-outs are empty or zero.
        HostSim::setRecordAvailable(HostSim::AirRecord, false);
        HostSim::setRecordAvailable(HostSim::CarbodyRecord, false);
        p.page()->ondataChanged();
        QCOMPARE(p.shown(25), QString());
        QCOMPARE(p.shown(27), QString("0.0km"));
        QCOMPARE(p.shown(30), QString("0.0%"));
    }

    // 2E C6 03 sub b4 b5 in its three shapes: state codes under 0xA3, the
    // value under a sub of its own, a number and the value under 0xB0.
    void basicInformationFrames_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("raw");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("frame");
        QTest::newRow("traction ON is 1") << 0 << 0 << false << "2E C6 03 A3 01 00 ck";
        QTest::newRow("traction OFF is 2") << 0 << 1 << true << "2E C6 03 A3 02 00 ck";
        QTest::newRow("turn signal 1 time") << 1 << 1 << true << "2E C6 03 A3 03 00 ck";
        QTest::newRow("turn signal 3 times") << 1 << 1 << false << "2E C6 03 A3 04 00 ck";
        QTest::newRow("information tone on") << 2 << 0 << false << "2E C6 03 A3 06 00 ck";
        QTest::newRow("warning tone off") << 3 << 0 << true << "2E C6 03 A3 07 00 ck";
        QTest::newRow("enhanced parking") << 4 << 0 << false << "2E C6 03 AD 01 00 ck";
        QTest::newRow("video zoomed in") << 5 << 0 << false << "2E C6 03 AB 13 00 ck";
        QTest::newRow("video not zoomed") << 5 << 1 << true << "2E C6 03 AB 12 00 ck";
        QTest::newRow("rear view keep off") << 6 << 1 << true << "2E C6 03 AE 00 00 ck";
        QTest::newRow("mileage in miles") << 7 << 0 << false << "2E C6 03 A3 0F 00 ck";
        QTest::newRow("headlight sensitivity") << 8 << 1 << false << "2E C6 03 B0 00 02 ck";
        QTest::newRow("intelligent unlocking") << 9 << 0 << false << "2E C6 03 B0 01 01 ck";
        QTest::newRow("welcome light at 60s") << 10 << 3 << false << "2E C6 03 B0 02 03 ck";
        QTest::newRow("remote window") << 11 << 1 << true << "2E C6 03 B0 03 00 ck";
        QTest::newRow("wireless charging") << 12 << 0 << false << "2E C6 03 B0 04 01 ck";
        QTest::newRow("speed lock is 8") << 13 << 0 << false << "2E C6 03 B0 08 01 ck";
        QTest::newRow("indoor lamp is 5") << 14 << 2 << true << "2E C6 03 B0 05 01 ck";
        QTest::newRow("mirror manual") << 15 << 0 << false << "2E C6 03 A3 11 00 ck";
        QTest::newRow("defrosting is 7") << 16 << 0 << false << "2E C6 03 B0 07 01 ck";
        QTest::newRow("stay with me is 9") << 17 << 3 << true << "2E C6 03 B0 09 02 ck";
        QTest::newRow("arrow keys on is 0x17") << 18 << 0 << false << "2E C6 03 A3 17 00 ck";
        QTest::newRow("arrow keys off is 0x18") << 18 << 1 << true << "2E C6 03 A3 18 00 ck";
        QTest::newRow("charging restricted") << 19 << 1 << false << "2E C6 03 A3 1B 00 ck";
        QTest::newRow("charging off") << 19 << 1 << true << "2E C6 03 A3 19 00 ck";
        QTest::newRow("ramp start on is 0x15") << 20 << 0 << false << "2E C6 03 A3 15 00 ck";
        QTest::newRow("split screen") << 21 << 0 << false << "2E C6 03 AF 01 00 ck";
        QTest::newRow("ambient light on is 0x13") << 22 << 0 << false << "2E C6 03 A3 13 00 ck";
        QTest::newRow("buzzer") << 23 << 1 << true << "2E C6 03 A6 00 00 ck";
        QTest::newRow("rain sensor") << 24 << 0 << false << "2E C6 03 A5 01 00 ck";
        QTest::newRow("state byte beyond the options") << 0 << 9 << true << "2E C6 03 A3 01 00 ck";
    }
    void basicInformationFrames()
    {
        QFETCH(int, row);
        QFETCH(int, raw);
        QFETCH(bool, down);
        QFETCH(QString, frame);
        buffer().setByte(row, quint8(raw));
        Page p(BasicInformation);
        p.show();
        QCOMPARE(p.arrow(row, down), hexOf({frame}));
        QCOMPARE(p.value(row), raw);
    }

    void tyreInformation()
    {
        TirePressureInformation &tyres = HostSim::airData()->tirePressure;
        tyres.frontLeftPressure = "2.4 bar";
        tyres.frontRightPressure = "2.5 bar";
        tyres.rearLeftPressure = "2.3 bar";
        tyres.rearRightPressure = "2.2 bar";
        const int temperatures[] = {25, 26, 0, 255};
        const int alarms[] = {0, 3, 7, 8};
        for (int wheel = 0; wheel < 4; ++wheel) {
            tyres.temperature[wheel] = quint8(temperatures[wheel]);
            tyres.status[wheel] = quint8(alarms[wheel]);
        }
        Page p(Tyres);
        QCOMPARE(p.rows(), 12);
        QCOMPARE(p.title(4), QString("Front left tire pressure temperature"));
        QCOMPARE(p.title(5), QString("Front right tire temperature"));
        QCOMPARE(p.title(11), QString("Rear right tire"));
        const QStringList shown = {"2.4 bar", "2.5 bar", "2.3 bar", "2.2 bar", QString::fromUtf8("25.0℃"),
            QString::fromUtf8("26.0℃"), QString::fromUtf8("0.0℃"), QString::fromUtf8("255.0℃"), "normal",
            "Rapid leakage", "Low pressure warning and quick leak", ""};
        for (int row = 0; row < 12; ++row) {
            QCOMPARE(p.shown(row), shown.at(row));
            QVERIFY(!p.index(row).data(AdjustableRole).toBool());
        }
        QCOMPARE(p.changedRows([&] {
            tyres.rearLeftPressure = "1.8 bar";
            tyres.temperature[TirePressureInformation::FrontRight] = 30;
            tyres.status[TirePressureInformation::RearRight] = 4;
        }), (QList<int>{2, 5, 11}));
        QCOMPARE(p.shown(11), QString("Loss of signal"));

        // No arrows; a step reached by other means sends the bare frame.
        p.show();
        p.tap(4, RightArrow);
        QVERIFY(HostSim::sentFrames().isEmpty());
        p.step(4, false);
        QCOMPARE(sent(), hexOf({"2E C6 03 A7 00 00 ck"}));

        // Without the climate record the rows are empty.
        HostSim::setRecordAvailable(HostSim::AirRecord, false);
        p.page()->ondataChanged();
        QCOMPARE(p.shown(0), QString());
        QCOMPARE(p.shown(8), QString());
    }

    void syncCommandRows()
    {
        DataBuffer data = buffer();
        data.setByte(224, 1);
        data.setByte(225, 17);
        data.setText(228, QStringLiteral("FM 101.1"));
        data.setByte(232, 7);
        data.setByte(233, 3);
        data.setByte(106, 4);
        data.setByte(107, 2);
        data.setByte(235, 1);
        data.setByte(236, 5);
        Page p(SyncCommand);
        QCOMPARE(p.rows(), 10);
        const QStringList shown = {"TUNER", "FM1", "FM 101.1", "7", "Next track", "7", "19-20 Fox", "High dividend",
                                   "ON", "Southwest"};
        for (int row = 0; row < 10; ++row) {
            QCOMPARE(p.shown(row), shown.at(row));
            QCOMPARE(p.index(row).data(AdjustableRole).toBool(), row >= 6);
        }
        // Source parameter codes outside the map stand for themselves.
        QCOMPARE(p.changedRows([&] { data.setByte(225, 2); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString("AM2"));
        QCOMPARE(p.changedRows([&] { data.setByte(225, 3); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString("FM2"));
        QCOMPARE(p.changedRows([&] { data.setByte(225, 0); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString("AM1"));
        QCOMPARE(p.changedRows([&] { data.setByte(225, 20); }), QList<int>{1});
        QCOMPARE(p.shown(1), QString());
        // The preset and the track read the one byte.
        QCOMPARE(p.changedRows([&] { data.setByte(232, 9); }), (QList<int>{3, 5}));
    }

    // The model and its configuration go out together and are kept in the
    // buffer; the model is saved; the rows move at once.
    void syncCommandModel()
    {
        DataBuffer data = buffer();
        data.setByte(106, 4);
        data.setByte(107, 2);
        Page p(SyncCommand);
        p.show();
        QCOMPARE(p.arrow(6, false), hexOf({"2E 91 02 05 02 ck"}));
        QCOMPARE(int(data.byte(106)), 5);
        QCOMPARE(p.shown(6), QString("19 Taurus, 18 Mondeo hybrids"));
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), 5);

        QCOMPARE(p.arrow(7, true), hexOf({"2E 91 02 05 01 ck"}));
        QCOMPARE(int(data.byte(107)), 1);
        QCOMPARE(p.shown(7), QString("Mid-range"));
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), 5);

        // At the last model the frame restates it, and it is saved again.
        data.setByte(106, 7);
        p.page()->ondataChanged();
        HostSim::clearSentFrames();
        QCOMPARE(p.arrow(6, false), hexOf({"2E 91 02 07 01 ck"}));
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), 7);
        QCOMPARE(p.arrow(6, true), hexOf({"2E 91 02 06 01 ck"}));
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), 6);
        QCOMPARE(p.changedRows([] {}), QList<int>{});

        // The model chosen here picks the ambient light's colours of a page
        // built afterwards.
        Page light(AmbientLight);
        QCOMPARE(light.index(8).data(OptionsRole).toStringList().at(1), QString("Earthy yellow"));
    }

    // 2E C4 01 b: the compass function in bit 7 and the direction below it,
    // each change restating the other from the buffer.
    void compassByte_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("function");
        QTest::addColumn<int>("direction");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("frame");
        QTest::addColumn<int>("stored");
        QTest::newRow("function on") << 8 << 0 << 5 << false << "2E C4 01 85 ck" << 1;
        QTest::newRow("function off") << 8 << 1 << 5 << true << "2E C4 01 05 ck" << 0;
        QTest::newRow("function stays on") << 8 << 1 << 0 << false << "2E C4 01 80 ck" << 1;
        QTest::newRow("direction east, function on") << 9 << 1 << 1 << false << "2E C4 01 82 ck" << 2;
        QTest::newRow("direction north, function off") << 9 << 0 << 1 << true << "2E C4 01 00 ck" << 0;
        QTest::newRow("direction stays northwest") << 9 << 1 << 7 << false << "2E C4 01 87 ck" << 7;
        QTest::newRow("large direction byte wraps") << 8 << 0 << 0x90 << false << "2E C4 01 10 ck" << 1;
    }
    void compassByte()
    {
        QFETCH(int, row);
        QFETCH(int, function);
        QFETCH(int, direction);
        QFETCH(bool, down);
        QFETCH(QString, frame);
        QFETCH(int, stored);
        DataBuffer data = buffer();
        data.setByte(235, quint8(function));
        data.setByte(236, quint8(direction));
        const QVariant saved = HostSim::savedUserData("CanbusCAR");
        Page p(SyncCommand);
        p.show();
        QCOMPARE(p.arrow(row, down), hexOf({frame}));
        QCOMPARE(int(data.byte(row == 8 ? 235 : 236)), stored);
        QCOMPARE(p.value(row), stored);
        // Only the model is saved.
        QCOMPARE(HostSim::savedUserData("CanbusCAR"), saved);
    }

    // The family end to end: the first page asks for its group; every page
    // opens from the list with its rows and follows the car while in front.
    void extendedViewShowsLivePages()
    {
        ExtendedView v;
        QVERIFY(v.exposed());
        QCOMPARE(v.list->model()->rowCount(), 10);
        struct Case
        {
            QString title;
            int rows;
            int row;
            std::function<void()> change;
            QString shown;
        };
        const QList<Case> cases = {
            {"Parking assist status", 15, 3, [] { buffer().setByte(35, 18); }, "Swedish"},
            {"Multimedia information", 14, 0, [] { buffer().setByte(188, 16); }, "AM1"},
            {"SYNC information", 22, 12, [] { buffer().setByte(176, 3); }, "PHONE"},
            {"Seat massage", 13, 6, [] { buffer().setByte(123, 2); }, "high"},
            {"Power amplifier status", 10, 8, [] { buffer().setByte(116, 21); }, "21"},
            {"Smart Xinfeng", 10, 9, [] { buffer().setByte(105, 55); }, "55"},
            {"Set item status", 34, 12, [] { buffer().setByte(59, 20); }, "20s"},
            {"Basic Information", 32, 31, [] { buffer().setByte(25, 66); }, "66.0%"},
            {"Tire pressure information", 12, 0,
             [] { HostSim::airData()->tirePressure.frontLeftPressure = "2.4 bar"; }, "2.4 bar"},
            {"SYNC command", 10, 9, [] { buffer().setByte(236, 4); }, "South"},
        };
        for (int index = 0; index < cases.size(); ++index) {
            Case const &c = cases.at(index);
            HostSim::clearSentFrames();
            CarExViewBase *stack = v.open(index);
            QVERIFY(stack->isVisible());
            QCOMPARE(stack->currentIndex(), index);
            QCOMPARE(v.page()->getTitle(), c.title);
            QCOMPARE(sent(), index == 0 ? hexOf({"2E 90 01 27 ck"}) : QString());
            QVERIFY(v.table());
            QCOMPARE(v.rows(), c.rows);
            QCOMPARE(v.shownAfter(c.change, c.row), c.shown);
            v.back();
            QVERIFY(v.list->isVisible());
        }
    }
};

QTEST_MAIN(TestProtocol48)
#include "tst_protocol48.moc"
