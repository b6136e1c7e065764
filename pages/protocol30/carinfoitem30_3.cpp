#include "pages30.h"

#include "datasavecontrol.h"
#include "frames.h"
#include "listmodel1.h"

namespace {

// The page's two setting commands, and the command that picks the model.
const int Vehicle = 0x83;
const int Media = 0x84;
const int ModelCommand = 0xE2;

// The bytes that the page keeps itself: the car doesn't report them.
const int TrackByte = 182;
const int ReversingTrackByte = 183;
const int Compass3DByte = 184;
const int CompassByte = 185;
const int ModelByte = 186;

const int TrackRow = 16;
const int ReversingTrackRow = 17;
const int PanoramaExitRow = 18;
const int Compass3DRow = 19;
const int CompassRow = 20;
const int ModelRow = 21;

// The buffer byte that keeps the row's value, or -1 for a row that the car
// reports.
int keptByte(int row)
{
    switch (row) {
    case TrackRow: return TrackByte;
    case ReversingTrackRow: return ReversingTrackByte;
    case Compass3DRow: return Compass3DByte;
    case CompassRow: return CompassByte;
    case ModelRow: return ModelByte;
    default: return -1;
    }
}

// --- Value maps ---------------------------------------------------------

int plusOne(int value) { return value + 1; }
int plusTwo(int value) { return value + 2; }
int plusFour(int value) { return value + 4; }

// --- Frames -------------------------------------------------------------

// 2E 83 02 30 x: the 3D flag in bit 7, the compass direction below it,
// both from the buffer.
QByteArray compassFrame(DataBuffer const &data)
{
    return Frames::make2E(Vehicle, {0x30, 0x80 * data.byte(Compass3DByte) + data.byte(CompassByte)});
}

// The decoder box's code of each model, by option index. Codes 4 and 7
// belong to no model; "null" has none and sends nothing.
const int NoModel = -1;
const int modelCodes[] = {
    NoModel, 0x00, 0x01, 0x02, 0x03, 0x05, 0x06, 0x08, 0x09, 0x0A, 0x0B, 0x0C, 0x0D, 0x0E,
    0x0F, 0x10, 0x11, 0x12, 0x13, 0x14, 0x15, 0x16, 0x17, 0x18, 0x80, 0x81, 0x82};
const int Models = int(sizeof modelCodes / sizeof modelCodes[0]);

// 2E E2 01 code, or nothing for "null" and indices without a code.
QByteArray modelFrame(int, int index)
{
    if (index < 0 || index >= Models || modelCodes[index] == NoModel)
        return QByteArray();
    return Frames::make2E(ModelCommand, {modelCodes[index]});
}

QVariant exitText(DataBuffer const &)
{
    return CarInfoItem30_3::tr("exit");
}

} // namespace

QList<Row> CarInfoItem30_3::rowTable() const
{
    return QList<Row>()
        // 0 .. 10: what the car reports of itself
        << Row::choice("Convenience service", {"OFF", "ON", "Start after parking"}).at(170).adjustable()
               .command(Vehicle, 0x25)
        << Row::choice("Outside Lighting Off Time", {"OFF", "7.5s", "15S", "30S"}).at(171).adjustable()
               .sendAs(plusFour).command(Vehicle, 0x0C)
        << Row::choice("Front Radar Distance", {"near", "Far"}).at(173).adjustable().sendAs(plusTwo)
               .command(Media, 0x17)
        << Row::choice("Fuel Consumption Unit", {"L/100KM", "KM/L"}).at(174)
        << Row::choice("Color Theme", {"Azure blue", "blue-green", "Dark orange", "Bright orange"}).at(175)
        << Row::choice("Mute Switch", {"Non-mute", "mute"}).at(176).adjustable().command(Media, 0x0A)
        << Row::choice("Amplifier Switch", {"OFF", "ON"}).at(177).adjustable().command(Media, 0x08)
        << Row::choice("Panoramic Cut", {"without", "Have"}).at(178)
        << Row::choice("Original car panoramic camera node", {"without", "Have"}).at(179)
        << Row::choice("Original car rear seat node", {"without", "Have"}).at(180)
        << Row::choice("Original car power amplifier node", {"without", "Have"}).at(181)
        // 11
        << Row::choice("language settings",
                       {"Simplified Chinese", "traditional Chinese", "English", "German", "French", "Spanish",
                        "Italian", "Portuguese", "Dutch", "Swedish", "Norwegian", "Danish", "Russian", "Finnish",
                        "Greek", "Polish", "Ukrainian", "Turkish", "Hungarian", "Czech", "Slovak", "Roman"})
               .at(172).adjustable().command(Vehicle, 0x26)
        // 12 .. 15: radar
        << Row::choice("Radar setting status", {"OFF", "ON"}).at(71).adjustable().command(Vehicle, 0x16)
        << Row::choice("Radar distance behind", {"near", "Far"}).at(72).adjustable().command(Vehicle, 0x17)
        << Row::choice("Radar switch", {"OFF", "ON"}).at(73)
        << Row::of(NumberKind, "Radar volume intensity", {0, 5}).at(74).adjustable().command(Vehicle, 0x15)
        // 16 .. 21: kept by the page
        << Row::choice("Set panoramic track",
                       {"Panorama trajectory setting", "Panorama automatic and non-automatic setting",
                        "Reverse gear mode setting", "Reverse gear trajectory setting",
                        "Tandem reversing open narrow confirmation Agree",
                        "Tandem reverse open narrow confirmation Return", "Track and dynamic trajectory switch"})
               .at(TrackByte).adjustable().sendAs(plusOne).command(Vehicle, 0x21)
        << Row::choice("Set reversing trajectory",
                       {"Display dynamic track line", "Display static track line", "Display warning line"})
               .at(ReversingTrackByte).adjustable().command(Vehicle, 0x22)
        << Row::text("Panorama exit").read(exitText)
        << Row::choice("Compass 2D/3D display", {"2D display", "3D display"}).at(Compass3DByte).adjustable()
        << Row::choice("Compass", {"Zhengnan", "Southwest", "True West", "Northwest", "True North", "Northeast",
                                   "True East", "Southeast"}).at(CompassByte).adjustable()
        << Row::choice("Model selection",
                       {"null", "12 Camry models, 10-14 Domineering automatic air conditioners",
                        " 15 Camry, 15 Reiz", "12 LAND CRUISEs", "16 LAND CRUISE, 12 Reiz", "09 Camry (08-11)",
                        "14 Domineering Manual Air Conditioning Models",
                        "15~18 models Highlander automatic air conditioner",
                        "15~18 models Highlander manual air conditioner", "09 Highlander Manual Air Conditioner",
                        "09 Highlander automatic air conditioner",
                        "7 models of old Corolla (automatic air conditioning)",
                        // two zero-width spaces (U+200B) behind "14 "
                        "14 \xE2\x80\x8B\xE2\x80\x8B" "models of Corolla (automatic air conditioning)",
                        "05~09 old Ruizhi (automatic air conditioner)", "09~12 old RAV4 (automatic air conditioner)",
                        "14 Tundra (Automatic Air Conditioning)", "14 Tundra (manual air conditioner)",
                        "18 Domineering (Automatic Air Conditioning)", "18 Domineering Manual Air Conditioners",
                        "07~15 models of Lancool top (4-zone automatic air conditioning)",
                        "18 Camrys (Automatic Air Conditioning)", "16~18 RAV4 Rongfang (Automatic Air Conditioning)",
                        "13th generation crown (10-12 styles)", "13 top models of Reiz (automatic air conditioner)",
                        "Horizontal screen-18-21 Camry-top configuration (with LCD instrument)",
                        "Horizontal screen-21 models of Asian lion-top configuration (with LCD instrument)",
                        "Horizontal screen - 22 Highlanders - top configuration (with LCD instrument)"})
               .at(ModelByte).adjustable().frame(modelFrame);
}

void CarInfoItem30_3::valueStepped(int row, int value)
{
    DataBuffer data = buffer();
    // A kept value goes into the buffer first, so that the frame and the
    // next refresh see it.
    const int kept = keptByte(row);
    if (kept >= 0)
        data.setByte(kept, quint8(value));
    if (row == ModelRow)
        DataSaveControl::saveUserData(QStringLiteral("CanbusCAR"), value);

    QByteArray frame;
    if (row == Compass3DRow || row == CompassRow)
        frame = compassFrame(data);
    else
        frame = rowSpec(row).frameFor(row, value);
    // A read-only row has only the skeleton of the frame; a model without a
    // code sends nothing.
    if (frame.isEmpty() && !rowSpec(row).isAdjustable())
        frame = Frames::make2E(Vehicle, {0x00, 0x00});
    if (!frame.isEmpty())
        sendFrame(frame);

    // The row shows the new value at once; a text has no number to show.
    if (rowSpec(row).kind() != TextKind)
        model->setData(model->index(row, 0), value, ValueRole);
}

void CarInfoItem30_3::middlePressed(int row)
{
    if (row == PanoramaExitRow)
        sendFrame(Frames::make2E(Vehicle, {0x20, 0x00}));
}
