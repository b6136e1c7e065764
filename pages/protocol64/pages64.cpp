#include "pages64.h"

#include "../shared/tyrerows.h"
#include "frames.h"
#include "listmodel1.h"

#include <QByteArray>

namespace {

// --- Energy management (64_1) ------------------------------------------------

// Start hour, start minute, end hour, end minute of the charging appointment.
const int FirstTimeRow = 2;
const int LastTimeRow = 5;
const int ChargingTimes = 296;
// The charging target and current: the car reports neither, so these rows
// show the last choice made here.
const int SocRow = 8;
const int CurrentRow = 9;

// 2E 84 05 01 h1 m1 h2 m2: the appointment goes out whole from the buffer.
QByteArray appointmentFrame(DataBuffer const &data)
{
    return Frames::make2E(0x84, {0x01, data.byte(ChargingTimes), data.byte(ChargingTimes + 1),
                                 data.byte(ChargingTimes + 2), data.byte(ChargingTimes + 3)});
}

// Off and weak go out as 2, on and powerful as 1.
int switchCode(int value) { return value == 0 ? 2 : 1; }
// Long battery life charges to 60 %, long cruising range to 100 %.
int socCode(int value) { return value == 0 ? 60 : 100; }
// The current in amperes.
int currentCode(int value)
{
    static const int amperes[] = {8, 10, 16, 32};
    return value >= 0 && value < 4 ? amperes[value] : 0;
}

// --- Tyre warnings (64_5) ----------------------------------------------------

const int ResetRow = 40;
const int FirstWarning = 180;

// Eight warnings for each wheel, front left, front right, rear left, rear
// right; two of the front right wheel's are spelt their own way.
QList<QByteArray> makeWarningTitles()
{
    static const char *const wheels[] = {"Front left tire warning-", "Front right tire warning-",
                                         "Rear left tire warning-", "Rear right tire warning-"};
    static const char *const warnings[] = {"sensor failure", "Sensor battery low", "sensor missing", "fast leak",
                                           "temperature alert", "system error", "low pressure warning",
                                           "high pressure warning"};
    QList<QByteArray> titles;
    for (int wheel = 0; wheel < 4; ++wheel) {
        for (int w = 0; w < 8; ++w) {
            QByteArray warning = warnings[w];
            if (wheel == TirePressureInformation::FrontRight && w == 1)
                warning = "sensor batteryLow";
            if (wheel == TirePressureInformation::FrontRight && w == 5)
                warning = "system Error";
            titles << QByteArray(wheels[wheel]) + warning;
        }
    }
    return titles;
}

// The rows keep pointers to the titles: they live as long as the program.
QList<QByteArray> const &warningTitles()
{
    static const QList<QByteArray> titles = makeWarningTitles();
    return titles;
}

QVariant resetText(DataBuffer const &)
{
    return CarInfoItem64_5::tr("reset");
}

// --- Automatic parking (64_7) --------------------------------------------------

const int ModelRow = 5;
const int SelectedModel = 177;

// 2E A6 02 x 00: 1 closes the skylight, 2 opens it.
QByteArray skylightFrame(int, int value)
{
    return Frames::make2E(0xA6, {value == 0 ? 1 : 2, 0x00});
}

// --- Panorama (64_8) -----------------------------------------------------------

const int TrackModeRow = 3;
const int TrackMode = 156;

// 2E A7 01 code for the video status; "null" has no code and sends 0. The
// code 0x10 stands for both 120° views.
int videoCode(int value)
{
    static const int codes[] = {0x00, 0x01, 0x03, 0x04, 0x02, 0x10, 0x11, 0x05, 0x10, 0x12};
    return value >= 0 && value < 10 ? codes[value] : 0;
}
QByteArray videoFrame(int, int code)
{
    return Frames::make2E(0xA7, {code});
}

} // namespace

// --- 64_1 --------------------------------------------------------------------

QList<Row> CarInfoItem64_1::rowTable() const
{
    return QList<Row>()
        << Row::text("start time").textAt(288)
        << Row::text("End time").textAt(292)
        << Row::of(NumberKind, "make an appointment to charge:start time-time", {0, 23}).at(ChargingTimes).adjustable()
        << Row::of(NumberKind, "make an appointment to charge:start time-minute", {0, 59}).at(ChargingTimes + 1)
               .adjustable()
        << Row::of(NumberKind, "make an appointment to charge:end time-time", {0, 23}).at(ChargingTimes + 2)
               .adjustable()
        << Row::of(NumberKind, "make an appointment to charge:end time-minute", {0, 59}).at(ChargingTimes + 3)
               .adjustable()
        << Row::choice("creep mode", {"OFF", "ON"}).at(300).adjustable().sendAs(switchCode).command(0x84, 3)
        << Row::choice("The strength of energy recovery", {"weak", "powerful"}).at(301).adjustable()
               .sendAs(switchCode).command(0x84, 2)
        << Row::choice("Adjustable charging SOC", {"long battery life", "long cruising range"}).adjustable()
               .sendAs(socCode).command(0x84, 4)
        << Row::choice("Adjustable charging current", {"8A", "10A", "16A", "32A"}).adjustable()
               .sendAs(currentCode).command(0x84, 5)
        << Row::text("recharge mileage").textAt(304);
}

QVariant CarInfoItem64_1::currentValue(int row) const
{
    if ((row == SocRow || row == CurrentRow) && model)
        return model->getListData().at(row).value;
    return RowPage::currentValue(row);
}

void CarInfoItem64_1::valueStepped(int row, int value)
{
    if (row >= FirstTimeRow && row <= LastTimeRow) {
        DataBuffer data = buffer();
        data.setByte(ChargingTimes + row - FirstTimeRow, quint8(value));
        sendFrame(appointmentFrame(data));
        return;
    }
    RowPage::valueStepped(row, value);
    if (row == SocRow || row == CurrentRow)
        updateRow(row, value);
}

// --- 64_5 --------------------------------------------------------------------

QList<Row> CarInfoItem64_5::rowTable() const
{
    using namespace TyreRows;
    typedef TirePressureInformation Tyres;
    QList<Row> rows = pressureRows();
    rows << temperatureRow("Front left tire pressure temperature", temperature<Tyres::FrontLeft>)
         << temperatureRow("Front right tire temperature", temperature<Tyres::FrontRight>)
         << temperatureRow("Rear left tire temperature", temperature<Tyres::RearLeft>)
         << temperatureRow("Rear right tire temperature", temperature<Tyres::RearRight>);
    QList<QByteArray> const &titles = warningTitles();
    for (int w = 0; w < titles.size(); ++w)
        rows << Row::choice(titles.at(w).constData(), {"none", "have"}).at(FirstWarning + w);
    rows << Row::text("Tire pressure reset settings").read(resetText);
    return rows;
}

void CarInfoItem64_5::middlePressed(int row)
{
    if (row == ResetRow)
        emit TirePressure();
}

// --- 64_7 --------------------------------------------------------------------

QList<Row> CarInfoItem64_7::rowTable() const
{
    return QList<Row>()
        << Row::choice("Highlight", {"None", "Parallel parking UI highlighted", "Vertical parking UI highlighted",
                                     "Parking out UI highlighted", "Inclined parking UI highlighted"}).at(160)
        << Row::text("UI interface").textAt(164)
        // Closed or open: the frame knows two states.
        << Row::of(NumberKind, "skylight", {0, 1}).at(168).adjustable().frame(skylightFrame)
        << Row::text("Remaining maintenance mileage").textAt(172)
        << Row::of(NumberKind, "Backlight level information", {0, 255}).at(176)
        << Row::choice("Model selection", {
               "null", "Changan Auchan X70A", "18 Changan Lingxuan", "18 Changan Yidong DT",
               "18 Changan Auchan A600/20 Changan Auchan Changxing", "17 Changan CX70",
               "18 Changan Auchan Kesai/21 Changan Auchan Kesai Pro", "18 Changan CS75/20 Changan CS75",
               "19 Changan Yuexiang", "19 Changan CS15", "20 Changan Auchan X7", "19 Changan Yidong",
               "19 Changan CS35 PLUS", "19 Changan Auchan Still", "19 models of Changan Yuexiang low-end",
               "21 models of Changan CS15 E-Pro"}).at(SelectedModel).adjustable();
}

void CarInfoItem64_7::valueStepped(int row, int value)
{
    if (row != ModelRow) {
        RowPage::valueStepped(row, value);
        return;
    }
    // The choice is kept in the buffer and shown at once.
    DataBuffer data = buffer();
    data.setByte(SelectedModel, quint8(value));
    sendFrame(Frames::make2E(0xEE, {0x03, value}));
    updateRow(row, value);
}

// --- 64_8 --------------------------------------------------------------------

QList<Row> CarInfoItem64_8::rowTable() const
{
    return QList<Row>()
        << Row::choice("right Video", {"OFF", "ON"}).at(153).adjustable()
        << Row::choice("Panoramic Video", {"OFF", "ON"}).at(154).adjustable()
        << Row::choice("video Status", {"null", "Front video", "Left video", "Right video", "Back video",
                                        "Front video 120° view", "Front video 180° view", "Left and right video",
                                        "Back video 120° view", "Back video 180° view"})
               .at(155).adjustable().sendAs(videoCode).frame(videoFrame)
        << Row::choice("Parking track mode", {"null", "Normal mode", "Parallel mode", "Disable auxiliary line",
                                              "Invalid"}).at(TrackMode).adjustable();
}

void CarInfoItem64_8::valueStepped(int row, int value)
{
    DataBuffer data = buffer();
    switch (row) {
    case 0:
        // 2E 85 02 t 20: the right video goes with the stored track mode.
        sendFrame(Frames::make2E(0x85, {data.byte(TrackMode), 0x20}));
        break;
    case 1:
        sendFrame(Frames::make2E(0x85, {data.byte(TrackMode), 0x40}));
        break;
    case TrackModeRow:
        // The track mode is stored first, then sent, and shown at once.
        data.setByte(TrackMode, quint8(value));
        sendFrame(Frames::make2E(0x85, {value, 0x00}));
        updateRow(row, value);
        break;
    default:
        RowPage::valueStepped(row, value);
        break;
    }
}
