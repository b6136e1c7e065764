#include "pages72.h"

#include "../shared/tyrerows.h"
#include "datasavecontrol.h"
#include "frames.h"

namespace {

// --- Consumption by distance (72_4, 72_5) --------------------------------

// One row per 5 km from 0 to 250 km; row i shows byte i of the array less 25.
const int PotentialRows = 51;
const int PotentialStep = 5;
const int PotentialOffset = 25;
const int ElectricPotentials = 368;
const int FuelPotentials = 372;

QList<Row> potentialRows()
{
    QList<Row> rows;
    for (int i = 0; i < PotentialRows; ++i)
        rows << Row::text("km ordinate");
    return rows;
}

// The distance stands in front of the translated title: "250km ordinate".
void numberPotentialTitles(QList<ListData> &list)
{
    for (int i = 0; i < list.size() && i < PotentialRows; ++i)
        list[i].title = QString::number(PotentialStep * i) + list.at(i).title;
}

// An array shorter than the rows leaves the rows past its end empty.
QVariant potentialText(DataBuffer const &data, int offset, int row, const char *format)
{
    const QByteArray bytes = data.bytes(offset);
    if (row < 0 || row >= bytes.size())
        return QString();
    return QString::fromLatin1(format).arg(int(quint8(bytes.at(row))) - PotentialOffset);
}

// --- Driving mode (72_7) ---------------------------------------------------

const int DrivingMode = 324;
const int CustomMode = 3;

// 2E C6 03 mode packed 00: the three custom states share the packed byte,
// dynamic response x 64 + steering feel x 16 + air conditioning x 8, cut to
// eight bits; a state outside its options goes in as it stands. A change of
// one repeats the others from the buffer.
QByteArray drivingModeFrame(DataBuffer const &data, int row, int value)
{
    int states[3] = {data.byte(DrivingMode + 1), data.byte(DrivingMode + 2), data.byte(DrivingMode + 3)};
    if (row >= 1 && row <= 3)
        states[row - 1] = value;
    const int packed = (states[0] * 64 + states[1] * 16 + states[2] * 8) & 0xFF;
    if (row == 0)
        return Frames::make2E(0xC6, {value, value == CustomMode ? packed : 0, 0x00});
    return Frames::make2E(0xC6, {0x04, packed, 0x00});
}

// --- Panorama (72_9) ---------------------------------------------------------

const int PanoramaModel = 320;
const int CameraState = 322;

// 2E 82 01 code: each row's code comes from its value by the row's map.
QByteArray panoramaFrame(int, int code)
{
    return Frames::make2E(0x82, {code});
}
int featuresCode(int) { return 0; }
int turnSignalCode(int value) { return 16 + value; }
int auxiliaryLineCode(int value) { return 12 + value; }
int modelCode(int value) { return 2 + value; }

// The cameras Front, Front Left, Left, ... Front Right, Front Zoom, Back Zoom.
int cameraCode(int camera)
{
    static const int codes[] = {4, 5, 6, 7, 8, 9, 10, 11, 18, 19};
    return camera >= 0 && camera < 10 ? codes[camera] : 0;
}

// In 3D the camera steps through all ten views. In 2D only Front, Left, Back
// and Right exist (cameras 0, 2, 4, 6), and the step goes from the car's
// present camera, whatever the row shows; a state past the last camera
// counts as the last.
int cameraStep(DataBuffer const &data, int shown, bool down)
{
    if (data.byte(PanoramaModel) != 0)
        return qBound(0, down ? shown - 1 : shown + 1, 9);
    const int state = data.byte(CameraState);
    if (down)
        return state <= 2 ? 0 : state <= 4 ? 2 : state <= 6 ? 4 : 6;
    return state <= 1 ? 2 : state <= 3 ? 4 : 6;
}

// --- Body information (72_15) ----------------------------------------------

const int ModelRow = 3;
const int SelectedModel = 168;

// 2E EE 02 g m: the MG models in group 0x50 from m 0 ("null" goes out as
// FF), the Roewe models in group 0x51.
QByteArray modelFrame(int model)
{
    if (model < 9)
        return Frames::make2E(0xEE, {0x50, model - 1});
    return Frames::make2E(0xEE, {0x51, model - 9});
}

} // namespace

// --- 72_4, 72_5 --------------------------------------------------------------

QList<Row> CarInfoItem72_4::rowTable() const
{
    return potentialRows();
}

void CarInfoItem72_4::initlist()
{
    RowPage::initlist();
    numberPotentialTitles(list);
}

QVariant CarInfoItem72_4::currentValue(int row) const
{
    return potentialText(buffer(), ElectricPotentials, row, "%1kWh/km");
}

QList<Row> CarInfoItem72_5::rowTable() const
{
    return potentialRows();
}

void CarInfoItem72_5::initlist()
{
    RowPage::initlist();
    numberPotentialTitles(list);
}

QVariant CarInfoItem72_5::currentValue(int row) const
{
    return potentialText(buffer(), FuelPotentials, row, "%1L/km");
}

// --- 72_6 --------------------------------------------------------------------

QList<Row> CarInfoItem72_6::rowTable() const
{
    return QList<Row>()
        << Row::choice("Energy recovery class", {"light", "middle", "powerful"}).at(344)
        << Row::choice("Hybrid system mode", {"default mode", "Idle Charge Mode", "Driving charging mode",
                                              "Pure electric charging mode", "Engine driving mode",
                                              "Series driving mode", "Parallel driving mode",
                                              "Energy recovery mode"}).at(345)
        << Row::text("battery life").textAt(348)
        << Row::text("Fuel life").textAt(352)
        << Row::text("total battery life").textAt(356)
        << Row::text("Average power consumption for the last 250km").textAt(360)
        << Row::text("Average fuel consumption for the last 250km").textAt(364);
}

// --- 72_7 --------------------------------------------------------------------

QList<Row> CarInfoItem72_7::rowTable() const
{
    return QList<Row>()
        << Row::choice("driving mode", {"economy", "standard", "sports", "CUSTOM", "SUPER SPORT"})
               .at(DrivingMode).adjustable()
        << Row::choice("State under custom-dynamic response", {"economy", "standard", "sports"})
               .at(DrivingMode + 1).adjustable()
        << Row::choice("State under custom-steering feel", {"economy", "standard", "sports"})
               .at(DrivingMode + 2).adjustable()
        << Row::choice("State under custom-comfort air conditioning", {"economy", "standard"})
               .at(DrivingMode + 3).adjustable()
        << Row::text("coolant temperature").textAt(328)
        << Row::text("turbo pressure").textAt(332)
        << Row::text("hydraulics pressure").textAt(336)
        << Row::text("Intake air temperature").textAt(340);
}

void CarInfoItem72_7::valueStepped(int row, int value)
{
    if (row >= 0 && row <= 3)
        sendFrame(drivingModeFrame(buffer(), row, value));
}

// --- 72_8 --------------------------------------------------------------------

QList<Row> CarInfoItem72_8::rowTable() const
{
    using namespace TyreRows;
    typedef TirePressureInformation Tyres;
    return pressureRows()
        << Row::choice("Tire pressure front left", {"normal", "abnormal"}).read(status<Tyres::FrontLeft>)
        << Row::choice("Tire pressure front right", {"normal", "abnormal"}).read(status<Tyres::FrontRight>)
        << Row::choice("Tire pressure back left", {"normal", "abnormal"}).read(status<Tyres::RearLeft>)
        << Row::choice("Tire pressure back right", {"normal", "abnormal"}).read(status<Tyres::RearRight>)
        << temperatureRow("Temperature-front left", temperature<Tyres::FrontLeft>)
        << temperatureRow("Temperature-front right", temperature<Tyres::FrontRight>)
        << temperatureRow("Temperature-back left", temperature<Tyres::RearLeft>)
        << temperatureRow("Temperature-back right", temperature<Tyres::RearRight>)
        << Row::text("reset").id(12);
}

void CarInfoItem72_8::middlePressed(int row)
{
    // The reset row is the one with id 12.
    if (row >= 0 && row < list.size() && rowKey(row) == 12)
        emit TirePressure();
}

// --- 72_9 --------------------------------------------------------------------

QList<Row> CarInfoItem72_9::rowTable() const
{
    return QList<Row>()
        << Row::choice("Panorama status-features", {"without", "have"}).at(317).adjustable()
               .sendAs(featuresCode).frame(panoramaFrame)
        << Row::choice("Panorama status-turn on the turn signal automatically at low speed 360", {"OFF", "ON"})
               .at(318).adjustable().sendAs(turnSignalCode).frame(panoramaFrame)
        << Row::choice("Panorama status-car auxiliary line", {"OFF", "static", "dynamic", "dynamic+static"})
               .at(319).adjustable().sendAs(auxiliaryLineCode).frame(panoramaFrame)
        << Row::choice("Panorama status-model", {"2D", "3D"}).at(PanoramaModel).adjustable()
               .sendAs(modelCode).frame(panoramaFrame)
        << Row::choice("Panorama status-condition", {"quit", "Enter"}).at(321).adjustable().frame(panoramaFrame)
        << Row::choice("camera status", {"Front", "Front Left", "Left", "Back Left", "Back", "Back Right",
                                         "Right", "Front Right", "Front Zoom", "Back Zoom"})
               .at(CameraState).adjustable().stepWith(cameraStep).sendAs(cameraCode).frame(panoramaFrame);
}

// --- 72_10 -------------------------------------------------------------------

QList<Row> CarInfoItem72_10::rowTable() const
{
    static const char *const lamps[] = {
        "Engine malfunction warning light",
        "Engine emissions malfunction",
        "Airbag warning indicator",
        "Seat belt unfastened warning indicator",
        "Engine condensate temperature indicator Light",
        "EPB system fault warningLight",
        "High beam",
        "Cruise control malfunction warning indicator",
        "ABS warning indicator",
        "Traction control off warning light",
        "Remote key no power warning indicator",
        "Corner sensor warning indicator",
        "Handbrake warning light",
        "oil warning light",
    };
    QList<Row> rows;
    for (int r = 0; r < int(sizeof lamps / sizeof lamps[0]); ++r)
        rows << Row::choice(lamps[r], {"OFF", "ON"}).at(303 + r);
    return rows;
}

// --- 72_15 -------------------------------------------------------------------

QList<Row> CarInfoItem72_15::rowTable() const
{
    return QList<Row>()
        << Row::text("rear radar distance").textAt(156)
        << Row::text("front radar distance").textAt(160)
        << Row::text("ambient temperature").textAt(164)
        << Row::choice("Model selection", {
               "null", "MG-16 Ruiteng", "MG-15 Ruiteng", "MG-19 HS", "MG-7 ZS", "MG-19 EZS", "MG-20 ZS",
               "MG-19~20 MG6", "MG-20 MG5", "Roewe-Other", "Roewe-RX3", "Roewe-Ei5 low profile",
               "Roewe-Ei5 mid-spec", "Roewe-Roewe i5", "Roewe-Roewe i6", "Roewe-Roewe RX5", "Roewe-Roewe RX8",
               "Roewe-17 Roewe Ei6 hybrid", "Roewe-18 Roewe RX8 high-end",
               "Roewe-21 Roewe i5 (1.5T GT DCT light speed version)"}).at(SelectedModel).adjustable()
        << Row::text("Air PM2.5").textAt(172)
        << Row::text("Motor speed").textAt(176)
        << Row::text("Instantaneous voltage").textAt(180)
        << Row::text("Instantaneous current").textAt(184);
}

void CarInfoItem72_15::valueStepped(int row, int value)
{
    if (row != ModelRow)
        return;
    // The choice is the head unit's as well: kept in the buffer and the
    // store before the car hears of it, and shown at once.
    DataBuffer data = buffer();
    data.setByte(SelectedModel, quint8(value));
    DataSaveControl::saveUserData(QStringLiteral("CanbusCAR"), value);
    sendFrame(modelFrame(value));
    updateRow(row, value);
}
