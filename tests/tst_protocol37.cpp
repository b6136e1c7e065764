// Protocol 37's pages (General Motors cars with OnStar): the rows of the
// seven tables from the data buffer and the records, the frames of their
// arrows and taps byte for byte, the rows that keep local state; the panel
// keys pressed, held and released with the mouse; the OnStar keypad's
// frames, its number and the call's digit packing, the service's state.

#include "pagetests.h"

#include "airdata.h"
#include "canobj.h"
#include "carbodydata.h"
#include "customimagebutton.h"
#include "datasavecontrol.h"
#include "protocol37/pages37.h"

#include <QGridLayout>
#include <QTemporaryDir>

using PageTest::frame;
using PageTest::hex;
using PageTest::hexOf;
using PageTest::Page;
using PageTest::sent;

namespace {

const int Protocol = 37;

enum PageIndex { Parking, Hybrid, BodyClimate, BodyControl2, BodyControl, Climate, PanelKeys, Tyres, OnStar };

DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

// A page of the family's own widgets, in front on a shown window.
class KeyPage : public Page
{
public:
    explicit KeyPage(int index) : Page(Protocol, index)
    {
        show();
        HostSim::clearSentFrames();
    }

    CustomImageButton *key(QString const &text) const
    {
        const auto buttons = page()->findChildren<CustomImageButton *>();
        for (CustomImageButton *button : buttons) {
            if (button->text() == text && !button->testAttribute(Qt::WA_TransparentForMouseEvents))
                return button;
        }
        return nullptr;
    }
    CustomImageButton *part(QString const &name) const { return page()->findChild<CustomImageButton *>(name); }

    void tap(QString const &text)
    {
        CustomImageButton *button = key(text);
        QVERIFY2(button, qPrintable(text));
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
    }
    void dial(QString const &keys)
    {
        for (QChar c : keys)
            tap(QString(c));
    }
    QString number() const { return part("numberField")->text(); }

    // The grid cell of a widget: row and column.
    QPair<int, int> cell(QWidget *widget) const
    {
        auto *grid = qobject_cast<QGridLayout *>(page()->layout());
        const int index = grid ? grid->indexOf(widget) : -1;
        if (index < 0)
            return {-1, -1};
        int row, column, rowSpan, columnSpan;
        grid->getItemPosition(index, &row, &column, &rowSpan, &columnSpan);
        return {row, column};
    }
};

} // namespace

class TestProtocol37 : public QObject
{
    Q_OBJECT

private slots:
    // The head unit's store of this run alone.
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

    // Every table has its rows in the order on screen, titles as the car's
    // menu spells them.
    void tables_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QList<int>>("sample");
        QTest::addColumn<QStringList>("titles");
        QTest::newRow("parking") << int(Parking) << 26 << QList<int>{0, 8, 12, 15, 22, 23, 25}
            << QStringList{"Parking space type", "Language", "Outdoor temperature", "TripA-miles",
                           "TripB-average fuel consumption", "Clear TripA information", "Steering wheel button type"};
        QTest::newRow("hybrid") << int(Hybrid) << 14 << QList<int>{0, 1, 2, 11, 12, 13}
            << QStringList{"Hybrid electric vehicle", "battery power tye", "Motor drive battery",
                           "Regeneration of energy", "Battery level (20 models for smooth tour)", "Vehicle settings"};
        QTest::newRow("body climate") << int(BodyClimate) << 9 << QList<int>{4, 8}
            << QStringList{"Remote start seat heating-driver's side", "Color settings for body atmosphere"};
        QTest::newRow("body control 2") << int(BodyControl2) << 27 << QList<int>{3, 19, 26}
            << QStringList{"Auto relock doores", "Left or right hand traffic", "Charging limit"};
        QTest::newRow("body control") << int(BodyControl) << 13 << QList<int>{6, 12}
            << QStringList{"Remote control unlockLight feedback", "Car body central control operation sign"};
        QTest::newRow("climate") << int(Climate) << 11 << QList<int>{8, 9}
            << QStringList{"Climate switch host air conditioning control interface",
                           "Ventilation mode(20 types of smooth patrol)"};
        QTest::newRow("tyres") << int(Tyres) << 4 << QList<int>{0, 3}
            << QStringList{"Left front tire pressure value", "Right rear tire pressure value"};
    }
    void tables()
    {
        QFETCH(int, index);
        QFETCH(int, rows);
        QFETCH(QList<int>, sample);
        QFETCH(QStringList, titles);
        Page p(Protocol, index);
        QCOMPARE(p.rows(), rows);
        for (int i = 0; i < sample.size(); ++i)
            QCOMPARE(p.title(sample.at(i)), titles.at(i));
    }

    // Page 37_1 shows bytes, 16-bit values and texts of the buffer, the
    // outside temperature and the small light of the records; a refresh
    // touches only the rows whose source changed.
    void parkingRows()
    {
        DataBuffer data = buffer();
        data.setByte(76, 1);
        data.setByte(79, 40);
        data.setText(80, "Space found");
        data.setWord(84, 312);
        data.setWord(86, 123);
        data.setByte(89, 16);
        data.setByte(90, 7);
        data.setText(92, "42 km/h");
        data.setText(100, "1234 km");
        data.setText(128, "6.1 L");
        data.setByte(132, 3);
        HostSim::airData()->outsideTemperature = QString::fromUtf8("21℃");
        HostSim::carbodyData()->byte35 = -1;
        HostSim::carbodyData()->byte36 = 9;
        Page p(Protocol, Parking);
        const QStringList shown = {"vertical", "left", "quit", "40.0%", "Space found", "312.0km", "12.3L/100km",
            "Exit 360 panorama", "Korean", "7", "42 km/h", "Parking sensor off", QString::fromUtf8("21℃"), "OFF",
            "9", "1234 km", "", "", "", "", "", "", "6.1 L", "Clear", "Clear",
            "20 Explorers/Mai Ruibao XL/ Trailblazer"};
        for (int row = 0; row < shown.size(); ++row)
            QCOMPARE(p.shown(row), shown.at(row));

        QCOMPARE(p.changedRows([] {}), QList<int>{});
        QCOMPARE(p.changedRows([&] {
            data.setWord(86, 124);
            data.setText(116, "88 km");
            HostSim::carbodyData()->byte35 = 1;
        }), (QList<int>{6, 13, 19}));
        QCOMPARE(p.shown(13), QString("ON"));
        // A negative small light byte counts as off, a change from on included.
        QCOMPARE(p.changedRows([] { HostSim::carbodyData()->byte35 = -5; }), QList<int>{13});
        QCOMPARE(p.value(13), 0);
    }

    // Each arrow sends its row's frame with the stepped value, clamped to
    // the row's range, the value translated where the car wants a code.
    void steps_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("start");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("frame");

        QTest::newRow("37_1 space level") << int(Parking) << 0 << 76 << 1 << true << "2E 83 02 5F 01 ck";
        QTest::newRow("37_1 space vertical") << int(Parking) << 0 << 76 << 0 << false << "2E 83 02 5F 02 ck";
        QTest::newRow("37_1 orientation left") << int(Parking) << 1 << 77 << 0 << true << "2E 83 02 5F 03 ck";
        QTest::newRow("37_1 orientation right") << int(Parking) << 1 << 77 << 0 << false << "2E 83 02 5F 04 ck";
        QTest::newRow("37_1 panorama") << int(Parking) << 7 << 88 << 0 << false
                                       << "2E 99 06 01 00 00 00 00 00 ck";
        QTest::newRow("37_1 language last") << int(Parking) << 8 << 89 << 16 << false << "2E 87 01 10 ck";
        QTest::newRow("37_1 volume") << int(Parking) << 9 << 90 << 7 << false << "2E 88 01 08 ck";
        QTest::newRow("37_1 volume top") << int(Parking) << 9 << 90 << 15 << false << "2E 88 01 0F ck";
        QTest::newRow("37_3 seat heating") << int(BodyClimate) << 0 << 56 << 0 << false << "2E 82 02 41 01 ck";
        QTest::newRow("37_3 rear area") << int(BodyClimate) << 3 << 59 << 1 << false << "2E 82 02 44 02 ck";
        QTest::newRow("37_3 driver's seat on") << int(BodyClimate) << 4 << 60 << 0 << false << "2E 82 02 41 02 ck";
        QTest::newRow("37_3 driver's seat off") << int(BodyClimate) << 4 << 60 << 1 << true << "2E 82 02 41 00 ck";
        QTest::newRow("37_3 ramp") << int(BodyClimate) << 5 << 51 << 0 << false << "2E 83 02 51 01 ck";
        QTest::newRow("37_3 colour last") << int(BodyClimate) << 8 << 54 << 17 << false << "2E 83 02 20 12 ck";
        QTest::newRow("37_4 mirrors") << int(BodyControl2) << 16 << 40 << 2 << false << "2E 83 02 5A 03 ck";
        QTest::newRow("37_4 traffic") << int(BodyControl2) << 19 << 43 << 0 << false << "2E 83 02 10 01 ck";
        QTest::newRow("37_4 headlight") << int(BodyControl2) << 25 << 49 << 2 << true << "2E 83 02 5E 01 ck";
        QTest::newRow("37_4 charging") << int(BodyControl2) << 26 << 50 << 0 << false << "2E 83 02 22 01 ck";
        QTest::newRow("37_5 first") << int(BodyControl) << 0 << 11 << 0 << false << "2E 83 02 00 01 ck";
        QTest::newRow("37_5 horn") << int(BodyControl) << 7 << 18 << 3 << false << "2E 83 02 07 03 ck";
        QTest::newRow("37_5 remote start") << int(BodyControl) << 11 << 22 << 1 << true << "2E 83 02 0B 00 ck";
        QTest::newRow("37_6 volume") << int(Climate) << 0 << 0 << 1 << false << "2E 82 02 00 02 ck";
        QTest::newRow("37_6 seat heating") << int(Climate) << 5 << 5 << 0 << false << "2E 82 02 08 01 ck";
        QTest::newRow("37_6 ventilation only") << int(Climate) << 9 << 9 << 1 << true << "2E 82 02 07 14 ck";
        QTest::newRow("37_6 comfortable") << int(Climate) << 9 << 9 << 2 << false << "2E 82 02 07 16 ck";
    }
    void steps()
    {
        QFETCH(int, index);
        QFETCH(int, row);
        QFETCH(int, offset);
        QFETCH(int, start);
        QFETCH(bool, down);
        QFETCH(QString, frame);
        buffer().setByte(offset, quint8(start));
        Page p(Protocol, index);
        p.show();
        QCOMPARE(p.value(row), start);
        p.tap(row, down ? PageTest::LeftArrow : PageTest::RightArrow);
        QCOMPARE(sent(), hexOf({frame}));
        // A setting waits for the car's answer.
        QCOMPARE(p.value(row), start);
    }

    // Rows that only show send nothing, even when a step reaches them.
    void readOnlyRows_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QList<int>>("rows");
        QTest::newRow("37_1") << int(Parking) << QList<int>{2, 3, 4, 5, 6, 10, 11, 12, 13, 14, 15, 22, 23, 24};
        QTest::newRow("37_2") << int(Hybrid) << QList<int>{0, 1, 6, 12};
        QTest::newRow("37_5") << int(BodyControl) << QList<int>{12};
        QTest::newRow("37_6") << int(Climate) << QList<int>{8, 10};
        QTest::newRow("37_8") << int(Tyres) << QList<int>{0, 1, 2, 3};
    }
    void readOnlyRows()
    {
        QFETCH(int, index);
        QFETCH(QList<int>, rows);
        Page p(Protocol, index);
        for (int row : rows) {
            QVERIFY(!p.index(row).data(AdjustableRole).toBool());
            p.step(row, false);
            p.step(row, true);
        }
        QCOMPARE(sent(), QString());
    }

    // The language shows a step at once; the steering wheel button type is
    // written into the buffer and the head unit's settings, sent and shown.
    void parkingLocalState()
    {
        buffer().setByte(89, 1);
        Page p(Protocol, Parking);
        p.show();
        p.tap(8, PageTest::RightArrow);
        QCOMPARE(sent(), hexOf({"2E 87 01 02 ck"}));
        QCOMPARE(p.shown(8), QString("German"));

        HostSim::clearSentFrames();
        p.tap(25, PageTest::RightArrow);
        QCOMPARE(sent(), hexOf({"2E 83 02 81 01 ck"}));
        QCOMPARE(int(buffer().byte(132)), 1);
        QCOMPARE(DataSaveControl::readSettingData("SteeringWheelButtonType", QVariant(), QString()).toInt(), 1);
        QCOMPARE(p.shown(25), QString("15 GL8 2.4L Deluxe Edition"));
        // At the first option the left arrow stores and sends the same again.
        HostSim::clearSentFrames();
        p.tap(25, PageTest::LeftArrow);
        p.tap(25, PageTest::LeftArrow);
        QCOMPARE(sent(), hexOf({"2E 83 02 81 00 ck", "2E 83 02 81 00 ck"}));
        QCOMPARE(DataSaveControl::readSettingData("SteeringWheelButtonType", QVariant(), QString()).toInt(), 0);
        QCOMPARE(p.value(25), 0);
    }

    // The middle of the two "Clear" rows clears a trip; other middles do
    // nothing.
    void clearTrips()
    {
        Page p(Protocol, Parking);
        p.show();
        p.tap(23, PageTest::Middle);
        p.tap(24, PageTest::Middle);
        QCOMPARE(sent(), hexOf({"2E 83 02 60 01 ck", "2E 83 02 60 02 ck"}));
        HostSim::clearSentFrames();
        for (int row : {0, 8, 22, 25})
            p.tap(row, PageTest::Middle);
        QCOMPARE(sent(), QString());
    }

    // The model choice is stored in byte 55 and as "CanbusCAR" and shown at
    // once; the car hears the model counted from the first real one, and of
    // "null" nothing.
    void hybridModel()
    {
        buffer().setByte(55, 1);
        Page p(Protocol, Hybrid);
        p.show();
        QCOMPARE(p.shown(13), QString("New Regal"));
        p.tap(13, PageTest::RightArrow);
        QCOMPARE(sent(), hexOf({"2E E2 01 01 ck"}));
        QCOMPARE(int(buffer().byte(55)), 2);
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), 2);
        QCOMPARE(p.shown(13), QString("New Cruze"));

        HostSim::clearSentFrames();
        p.tap(13, PageTest::LeftArrow);
        p.tap(13, PageTest::LeftArrow);
        QCOMPARE(sent(), hexOf({"2E E2 01 00 ck"}));
        QCOMPARE(int(buffer().byte(55)), 0);
        QCOMPARE(HostSim::savedUserData("CanbusCAR").toInt(), 0);
        QCOMPARE(p.shown(13), QString("null"));

        buffer().setByte(55, 34);
        p.page()->ondataChanged();
        HostSim::clearSentFrames();
        p.tap(13, PageTest::RightArrow);
        QCOMPARE(sent(), hexOf({"2E E2 01 21 ck"}));
        QCOMPARE(p.shown(13), QString::fromUtf8("20 GL8 652T mid-to-high configuration"));
    }

    // The hybrid flow, the colour themes and the tyre texts as the car
    // reports them.
    void shownTexts()
    {
        DataBuffer data = buffer();
        data.setByte(61, 1);
        data.setByte(62, 6);
        data.setByte(72, 1);
        data.setByte(73, 85);
        data.setByte(54, 13);
        HostSim::airData()->tirePressure.frontLeftPressure = "2.3bar";
        HostSim::airData()->tirePressure.rearRightPressure = "2.1bar";
        Page hybrid(Protocol, Hybrid);
        QCOMPARE(hybrid.shown(0), QString("Have"));
        QCOMPARE(hybrid.shown(1), QString("6"));
        QCOMPARE(hybrid.shown(2), QString("without"));
        QCOMPARE(hybrid.shown(11), QString("Have"));
        QCOMPARE(hybrid.shown(12), QString("85.0%"));
        Page colours(Protocol, BodyClimate);
        const QList<QVariant> options = colours.index(8).data(OptionsRole).toList();
        QCOMPARE(options.size(), 19);
        QCOMPARE(options.at(6).toString(), QString("Cozy Blue No.6"));
        QCOMPARE(options.at(7).toString(), QString("Twilight Purple No.1"));
        QCOMPARE(options.at(18).toString(), QString("Morning Golden No.6"));
        QCOMPARE(colours.shown(8), QString("Morning Golden No.1"));
        Page tyres(Protocol, Tyres);
        QCOMPARE(tyres.shown(0), QString("2.3bar"));
        QCOMPARE(tyres.shown(3), QString("2.1bar"));
        QCOMPARE(tyres.changedRows([] { HostSim::airData()->tirePressure.rearLeftPressure = "1.9bar"; }),
                 QList<int>{2});
    }

    // The stack asks for the OnStar groups when the keypad comes to the
    // front, and for nothing on the other pages.
    void requests()
    {
        QWidget window;
        CarExViewBase *stack = createPageStack(Protocol, &window);
        for (int index = 0; index < 8; ++index)
            stack->showIndex(index);
        QCOMPARE(sent(), QString());
        stack->showIndex(OnStar);
        QCOMPARE(sent(), hexOf({"2E 90 01 41 ck", "2E 90 01 42 ck"}));
    }

    // Seventeen keys in the panel's grid, each key's code its place in the
    // order; a tap is a press and a release.
    void panelLayout()
    {
        KeyPage p(PanelKeys);
        const QStringList texts = {"NONE", "OK", "SETTING", "BC", "LEFT", "RIGH", "FM/AM", "CD/MP3",
                                   "1", "2", "3", "4", "5", "6", "7", "8", "9"};
        const QList<QPair<int, int>> cells = {{1, 1}, {1, 2}, {2, 1}, {2, 2}, {3, 1}, {3, 2}, {4, 1}, {4, 2},
                                              {1, 4}, {1, 5}, {1, 6}, {2, 4}, {2, 5}, {2, 6}, {3, 4}, {3, 5}, {3, 6}};
        QCOMPARE(p.page()->findChildren<CustomImageButton *>().size(), 17);
        for (int code = 0; code < texts.size(); ++code) {
            CustomImageButton *key = p.key(texts.at(code));
            QVERIFY2(key, qPrintable(texts.at(code)));
            QCOMPARE(p.cell(key), cells.at(code));
            QVERIFY(key->isVisible());
            HostSim::clearSentFrames();
            p.tap(texts.at(code));
            QCOMPARE(sent(), hexOf({QString("2E C6 01 %1 ck").arg(code, 2, 16, QChar('0')), "2E C6 01 00 ck"}));
        }
        // A second createView() builds nothing more.
        p.page()->createView();
        QCOMPARE(p.page()->findChildren<CustomImageButton *>().size(), 17);
    }

    // A held key: the press, a repeat every second, and the release; the
    // held key is remembered for onCountdown().
    void panelHold()
    {
        KeyPage p(PanelKeys);
        QMetaObject::invokeMethod(p.page(), "onCountdown");
        QCOMPARE(sent(), hexOf({"2E C6 01 00 ck"}));
        HostSim::clearSentFrames();

        CustomImageButton *key = p.key("FM/AM");
        QTest::mousePress(key, Qt::LeftButton, {}, key->rect().center());
        QCOMPARE(sent(), hexOf({"2E C6 01 06 ck"}));
        QTRY_COMPARE_WITH_TIMEOUT(HostSim::sentFrames().size(), 2, 3000);
        QTest::mouseRelease(key, Qt::LeftButton, {}, key->rect().center());
        QCOMPARE(sent(), hexOf({"2E C6 01 06 ck", "2E C6 01 06 ck", "2E C6 01 00 ck"}));

        HostSim::clearSentFrames();
        QMetaObject::invokeMethod(p.page(), "onCountdown");
        QCOMPARE(sent(), hexOf({"2E C6 01 06 ck"}));
        // A short tap of another key doesn't replace the held one.
        p.tap("9");
        HostSim::clearSentFrames();
        QMetaObject::invokeMethod(p.page(), "onCountdown");
        QCOMPARE(sent(), hexOf({"2E C6 01 06 ck"}));
    }

    // The half bytes of the number's characters, and the call's ten data
    // bytes.
    void numberPacking_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("bytes");
        QTest::newRow("example") << "1234#" << "12 34 BF FF FF FF FF FF FF FF";
        QTest::newRow("empty") << "" << "FF FF FF FF FF FF FF FF FF FF";
        QTest::newRow("odd") << "555" << "55 5F FF FF FF FF FF FF FF FF";
        QTest::newRow("star and hash") << "*0#9" << "A0 B9 FF FF FF FF FF FF FF FF";
        QTest::newRow("twenty") << "01234567890123456789" << "01 23 45 67 89 01 23 45 67 89";
        QTest::newRow("past twenty") << "9876543210987654321012345" << "98 76 54 32 10 98 76 54 32 10";
        QTest::newRow("unknown characters") << "1+2a" << "1F 2F FF FF FF FF FF FF FF FF";
    }
    void numberPacking()
    {
        QFETCH(QString, number);
        QFETCH(QString, bytes);
        QCOMPARE(QString(CarInfoItem37_9::packNumber(number).toHex(' ').toUpper()), bytes);
    }

    void halfBytes()
    {
        const QStringList characters = {"0", "5", "9", "*", "#", "", "A", " ", "12"};
        const QList<int> halves = {0, 5, 9, 10, 11, 15, 15, 15, 15};
        for (int i = 0; i < characters.size(); ++i)
            QCOMPARE(CarInfoItem37_9::getPhone(characters.at(i)), halves.at(i));
    }

    // Each key of the keypad: its frame, and what it adds to the number.
    void keypadKeys_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("frame");
        QTest::addColumn<QString>("number");
        for (int d = 0; d <= 9; ++d)
            QTest::newRow(qPrintable("digit " + QString::number(d))) << QString::number(d)
                << QString("2E 85 01 8%1 ck").arg(d) << "12" + QString::number(d);
        QTest::newRow("star") << "*" << "2E 85 01 8A ck" << "12*";
        QTest::newRow("hash") << "#" << "2E 85 01 8B ck" << "12#";
        QTest::newRow("off") << "OFF" << "2E 85 01 00 ck" << "12";
        QTest::newRow("on") << "ON" << "2E 85 01 01 ck" << "12";
        QTest::newRow("answer") << "Answer" << "2E 85 01 02 ck" << "12";
        QTest::newRow("hang up") << "hang Up" << "2E 85 01 03 ck" << "12";
        QTest::newRow("call") << "call" << "2E 86 0A 12 FF FF FF FF FF FF FF FF FF ck" << "12";
    }
    void keypadKeys()
    {
        QFETCH(QString, key);
        QFETCH(QString, frame);
        QFETCH(QString, number);
        KeyPage p(OnStar);
        p.dial("12");
        HostSim::clearSentFrames();
        p.tap(key);
        QCOMPARE(sent(), hexOf({frame}));
        QCOMPARE(p.number(), number);
    }

    // The call with the example number, and the layout of the keypad.
    void keypadCallAndLayout()
    {
        KeyPage p(OnStar);
        p.dial("1234#");
        QCOMPARE(p.number(), QString("1234#"));
        HostSim::clearSentFrames();
        p.tap("call");
        QCOMPARE(sent(), hexOf({"2E 86 0A 12 34 BF FF FF FF FF FF FF FF ck"}));
        QCOMPARE(HostSim::sentFrames().first().size(), 14);

        const QList<QPair<QString, QPair<int, int>>> cells = {
            {"1", {1, 1}}, {"2", {1, 2}}, {"3", {1, 3}}, {"#", {1, 4}}, {"OFF", {1, 5}},
            {"4", {2, 1}}, {"5", {2, 2}}, {"6", {2, 3}}, {"0", {2, 4}}, {"ON", {2, 5}},
            {"7", {3, 1}}, {"8", {3, 2}}, {"9", {3, 3}}, {"*", {3, 4}}, {"Answer", {3, 5}}, {"hang Up", {4, 5}}};
        for (auto const &cell : cells)
            QCOMPARE(p.cell(p.key(cell.first)), cell.second);
        // The top line: state, number, delete key and "call" from left to right.
        const QList<QWidget *> top = {p.part("stateLabel"), p.part("numberField"), p.part("deleteButton"),
                                      p.key("call")};
        for (int i = 1; i < top.size(); ++i)
            QVERIFY(top.at(i - 1)->geometry().right() < top.at(i)->geometry().left());
        QVERIFY(p.part("statusLine1")->geometry().right() < p.part("statusLine2")->geometry().left());
        QVERIFY(p.part("statusLine1")->geometry().top() > p.key("7")->geometry().bottom());
        // The display parts only show: a tap on the number field sends nothing.
        HostSim::clearSentFrames();
        QTest::mouseClick(p.part("numberField"), Qt::LeftButton);
        QCOMPARE(sent(), QString());
        QCOMPARE(p.number(), QString("1234#"));
    }

    // The delete key takes the last character and hands the bus a frame
    // without bytes, which puts nothing on it; held, it clears the number.
    void deleteKey()
    {
        KeyPage p(OnStar);
        QSignalSpy signalled(CanObj::instance(), &CanObj::sendDataToCan);
        CustomImageButton *del = p.part("deleteButton");
        QTest::mouseClick(del, Qt::LeftButton, {}, del->rect().center());
        QCOMPARE(p.number(), QString());
        QCOMPARE(signalled.count(), 1);
        QCOMPARE(signalled.first().first().toByteArray(), QByteArray());
        QCOMPARE(sent(), QString());

        p.dial("0*7");
        QTest::mouseClick(del, Qt::LeftButton, {}, del->rect().center());
        QCOMPARE(p.number(), QString("0*"));
        HostSim::clearSentFrames();
        p.tap("call");
        QCOMPARE(sent(), hexOf({"2E 86 0A 0A FF FF FF FF FF FF FF FF FF ck"}));

        QTest::mousePress(del, Qt::LeftButton, {}, del->rect().center());
        QTRY_COMPARE_WITH_TIMEOUT(p.number(), QString(), 3000);
        QTest::mouseRelease(del, Qt::LeftButton, {}, del->rect().center());
        QCOMPARE(p.number(), QString());
    }

    // The state label by byte 140 (empty beyond the five states), the two
    // status lines, and from "Dialing" on the number the service reports.
    void serviceState_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("number");
        QTest::newRow("off") << 0 << "OnStar system off" << "55";
        QTest::newRow("on") << 1 << "OnStar System on" << "55";
        QTest::newRow("input") << 2 << "Phone input" << "4008";
        QTest::newRow("dialing") << 3 << "Dialing" << "4008";
        QTest::newRow("connected") << 4 << "Call connected" << "4008";
        QTest::newRow("beyond") << 5 << "" << "4008";
        QTest::newRow("far beyond") << 255 << "" << "4008";
    }
    void serviceState()
    {
        QFETCH(int, state);
        QFETCH(QString, text);
        QFETCH(QString, number);
        KeyPage p(OnStar);
        p.dial("55");
        DataBuffer data = buffer();
        data.setByte(140, quint8(state));
        data.setText(136, "4008");
        data.setText(144, "Signal good");
        data.setText(148, "Minutes left 12");
        p.page()->ondataChanged();
        QCOMPARE(p.part("stateLabel")->text(), text);
        QCOMPARE(p.part("statusLine1")->text(), QString("Signal good"));
        QCOMPARE(p.part("statusLine2")->text(), QString("Minutes left 12"));
        QCOMPARE(p.number(), number);
    }

    // Coming back to the keypad starts a new number; while the service
    // dials, its number shows instead.
    void reentry()
    {
        KeyPage p(OnStar);
        p.dial("911");
        p.page()->createView();
        QCOMPARE(p.number(), QString());
        p.dial("7");
        HostSim::clearSentFrames();
        p.tap("call");
        QCOMPARE(sent(), hexOf({"2E 86 0A 7F FF FF FF FF FF FF FF FF FF ck"}));

        buffer().setByte(140, 3);
        buffer().setText(136, "4008");
        buffer().setText(144, "Calling");
        p.page()->createView();
        QCOMPARE(p.number(), QString("4008"));
        QCOMPARE(p.part("stateLabel")->text(), QString("Dialing"));
        QCOMPARE(p.part("statusLine1")->text(), QString("Calling"));
        // The entered number starts empty all the same.
        p.dial("1");
        QCOMPARE(p.number(), QString("1"));
    }

private:
    QTemporaryDir storage;
};

QTEST_MAIN(TestProtocol37)
#include "tst_protocol37.moc"
