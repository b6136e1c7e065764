#include "carinfoitem28_3.h"

#include "frames.h"
#include "requests.h"

namespace {

// Every setting of this page is 2E C6 02 sub value.
const int Setting = 0xC6;

const int SpeedUnitByte = 114;
const int SpeedAlarmRow = 3;
const int ParkingAutomaticActivationRow = 19;
const int ParkingActivationRow = 20;

// --- Step rules ---------------------------------------------------------

// The speed alarm steps in the car's unit: by 10 within 30 .. 240 km/h, by
// 5 within 20 .. 150 mph. In an unknown unit it stays where it is.
int speedAlarmStep(DataBuffer const &buffer, int speed, bool down)
{
    switch (buffer.byte(SpeedUnitByte)) {
    case 0:
        return qBound(30, down ? speed - 10 : speed + 10, 240);
    case 1:
        return qBound(20, down ? speed - 5 : speed + 5, 150);
    default:
        return speed;
    }
}

bool speedUnitKnown(DataBuffer const &buffer)
{
    return buffer.byte(SpeedUnitByte) <= 1;
}

// --- Value maps: the option shown and the code sent ---------------------

// Rows 28 and 29 share sub-command 0x45: the radar thumbnail switched on
// goes out as 4, off as 5.
int radarThumbnailCode(int on) { return on == 1 ? 4 : 5; }

// Light colour: warm white, green, blue are codes 1, 4, 5.
int lightColourCode(int option)
{
    switch (option) {
    case 0: return 1;
    case 1: return 4;
    case 2: return 5;
    default: return 0;
    }
}
int lightColourOption(int code)
{
    switch (code) {
    case 1: return 0;
    case 4: return 1;
    case 5: return 2;
    default: return code;
    }
}

// Rows 74 and 80 share sub-command 0x96: "mi/kWh" of the pure electric
// unit is code 3.
int pureConsumptionCode(int option) { return option == 2 ? 3 : option; }
int pureConsumptionOption(int code) { return code == 3 ? 2 : code; }

// Individual climate: "Sport" is code 2, anything else 0.
int individualClimateCode(int option) { return option == 1 ? 2 : 0; }
int individualClimateOption(int code) { return code == 2 ? 1 : code; }

// E-mode: "GTE" is code 5.
int eModeCode(int option) { return option == 4 ? 5 : option; }
int eModeOption(int code) { return code == 5 ? 4 : code; }

// The reversing camera's picture values are reported as 30 .. 70; the row
// counts from 30, and 0 stays 0.
int cameraPictureValue(int code) { return code == 0 ? 0 : code - 30; }

// Off-road air conditioning: "economy" is code 2.
int offRoadClimateCode(int option) { return option == 1 ? 2 : option; }
int offRoadClimateOption(int code) { return code == 2 ? 1 : code; }

// User accounts count from 1.
int userAccountCode(int option) { return option + 1; }

// Assigning the key is a command: whatever the row shows, it sends 1.
int assignKeyCode(int) { return 1; }

// Meter mode: classic and the three views are codes 2 to 5; "customize"
// goes out as 3, the code of "view 1", and comes back as 255.
int meterModeCode(int option)
{
    switch (option) {
    case 0: return 2;
    case 1: return 3;
    case 2: return 4;
    case 3: return 5;
    case 4: return 3;
    default: return 0;
    }
}
int meterModeOption(int code)
{
    switch (code) {
    case 2: return 0;
    case 3: return 1;
    case 4: return 2;
    case 5: return 3;
    case 255: return 4;
    default: return code;
    }
}

// Languages: the first fourteen options are their own codes, the others
// have these.
const int FirstCodedLanguage = 14;
const int languageCodes[] = {0x10, 0x11, 0x12, 0x14, 0x16, 0x17, 0x1A, 0x1D, 0x1E, 0x1F,
                             0x20, 0x21, 0x25, 0x26, 0x27, 0x28, 0x29, 0x2A, 0x2B};
const int CodedLanguages = int(sizeof languageCodes / sizeof languageCodes[0]);

int languageCode(int option)
{
    if (option >= FirstCodedLanguage && option < FirstCodedLanguage + CodedLanguages)
        return languageCodes[option - FirstCodedLanguage];
    return option;
}
// The option of a language code. The first fourteen are their own codes; a
// code that no option has keeps its own number too: the row shows the option
// at that index where there is one, and steps go on from there.
int languageOption(int code)
{
    for (int i = 0; i < CodedLanguages; ++i) {
        if (languageCodes[i] == code)
            return FirstCodedLanguage + i;
    }
    return code;
}

} // namespace

CarInfoItem28_3::CarInfoItem28_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
    // A step shows at once and goes out through the stack.
    setSendRoad(SendThroughSignal);
    setShowsStepAtOnce(true);
}

QList<Row> CarInfoItem28_3::rowTable() const
{
    return QList<Row>()
        // 0 .. 4: stability control and tyres
        << Row::choice("ESC system", {"OFF", "ACTIVATED", "ESC movement"}).at(112).adjustable().command(Setting, 0x10)
        << Row::choice("Tire settings-Speeding reminder", {"OFF", "ON"}).at(113).adjustable().command(Setting, 0x20)
        << Row::choice("Tire settings-speed unit", {"km/h", "mph"}).at(114)
        << Row::of(SpeedKind, "Tire settings-speed alarm", {0, 255}).at(115).unitAt(SpeedUnitByte).adjustable()
               .stepWith(speedAlarmStep).command(Setting, 0x21)
        << Row::choice("Tire settings-direct tire pressure monitoring", {"Comfortable", "standard", "Fully loaded"})
               .at(116).adjustable().command(Setting, 0x23)
        // 5 .. 18: driver assistance
        << Row::choice("Driving assistance system-adaptive lane guide", {"OFF", "ON"}).at(117).adjustable()
               .command(Setting, 0x30)
        << Row::choice("Driving assistance system-fatigue driving", {"OFF", "ON"}).at(118).adjustable()
               .command(Setting, 0x31)
        << Row::choice("Driving assistance system-active lane guide is available", {"OFF", "ON"}).at(119)
               .adjustable().command(Setting, 0x36)
        << Row::choice("Driving assistance system-preventive occupant protection system", {"OFF", "ON"}).at(120)
               .adjustable().command(Setting, 0x3E)
        << Row::choice("Driver assistance 2-vehicle distance last selected", {"OFF", "ON"}).at(121).adjustable()
               .command(Setting, 0x32)
        << Row::choice("Driver assistance 2-front assist system activated", {"OFF", "ON"}).at(122).adjustable()
               .command(Setting, 0x33)
        << Row::choice("Driver assistance 2-early warning", {"OFF", "ON"}).at(123).adjustable()
               .command(Setting, 0x34)
        << Row::choice("Driver assistance 2-display distance alarm", {"OFF", "ON"}).at(124).adjustable()
               .command(Setting, 0x35)
        << Row::choice("Driver assistance 2-ACC travel program", {"Comfort", "Normal", "Sport", "Eco"}).at(125)
               .adjustable().command(Setting, 0x37)
        << Row::choice("Driver assistance 2-ACC vehicle distance",
                       {"Extremely small", "small", "medium", "Big", "great"}).at(126).adjustable()
               .command(Setting, 0x38)
        << Row::choice("Driver assistance 2-steep slope descent system", {"OFF", "ON"}).at(127).adjustable()
               .command(Setting, 0x39)
        << Row::choice("Driver assistance 2-blind spot monitoring", {"OFF", "ON"}).at(128).adjustable()
               .command(Setting, 0x3D)
        << Row::choice("Driver assistance 2-warning reminder", {"OFF", "Postpone", "Timely", "in advance"}).at(129)
               .adjustable().command(Setting, 0x3C)
        << Row::of(NumberKind, "Driver assistance 2-brightness ofLane change assist system", {0, 5}).at(130)
               .adjustable().command(Setting, 0x3F)
        // 19 .. 29: parking and shunting
        << Row::choice("Parking and shunting-automatic activation", {"OFF", "ON"}).at(131).adjustable()
               .command(Setting, 0x40)
        << Row::choice("Parking and shunting-activation", {"OFF", "ON"}).at(132)
        << Row::choice("Parking and shunting-parking brake function", {"OFF", "ON"}).at(133).adjustable()
               .command(Setting, 0x3A)
        << Row::choice("Parking and shunting-exit parking assist", {"OFF", "ON"}).at(134).adjustable()
               .command(Setting, 0x3B)
        << Row::of(NumberKind, "Parking and shunting-front volume", {0, 9}).at(135).adjustable()
               .command(Setting, 0x41)
        << Row::of(NumberKind, "Parking and shunting-Front tone", {0, 9}).at(136).adjustable()
               .command(Setting, 0x42)
        << Row::of(NumberKind, "Parking and shunting-rear volume", {0, 9}).at(137).adjustable()
               .command(Setting, 0x43)
        << Row::of(NumberKind, "Parking and ahunting-back tone", {0, 9}).at(138).adjustable()
               .command(Setting, 0x44)
        << Row::choice("Parking and shunting-reverse mode",
                       {"Vertical parking", "Parallel parking", "Distance monitoring", "Lateral traffic",
                        "Right view mode", "Left view mode", "Two-sided mode"}).at(139).adjustable()
               .command(Setting, 0x46)
        << Row::choice("Parking and shunting-panoramic video", {"Forward looking", "Left view", "rearview",
                                                                "Right view"}).at(140).adjustable()
               .command(Setting, 0x45)
        << Row::choice("Parking and shunting-radar thumbnail", {"OFF", "ON"}).at(141).adjustable()
               .sendAs(radarThumbnailCode).command(Setting, 0x45)
        // 30 .. 44: lights
        << Row::choice("Light-turn on time", {"Early", "Medium", "Late"}).at(142).adjustable().command(Setting, 0x50)
        << Row::choice("Light-automatic driving lights", {"OFF", "ON"}).at(143).adjustable().command(Setting, 0x51)
        << Row::choice("Light-lane change flasher", {"OFF", "ON"}).at(144).adjustable().command(Setting, 0x52)
        << Row::choice("Light-daytime running lights", {"OFF", "ON"}).at(145).adjustable().command(Setting, 0xC8)
        << Row::of(PercentKind, "Light-Instrument/switch lighting", {0, 100}).at(146).adjustable().stepBy(10)
               .command(Setting, 0x53)
        << Row::of(TimeSpanKind, "Light-home mode", {0, 30}).at(147).adjustable().stepBy(5).command(Setting, 0x54)
        << Row::of(TimeSpanKind, "Light-away from home mode", {0, 30}).at(148).adjustable().stepBy(5)
               .command(Setting, 0x55)
        << Row::choice("Light-travel mode", {"Keep Right", "Keep left"}).at(149).adjustable().command(Setting, 0x56)
        << Row::of(NumberKind, "Light-headlight distance", {0, 6}).at(150).adjustable().command(Setting, 0x5F)
        << Row::of(PercentKind, "Light-door ambient lighting", {0, 100}).at(151).adjustable().stepBy(10)
               .command(Setting, 0x57)
        << Row::of(PercentKind, "Light-space pace adjusting lights", {0, 100}).at(152).adjustable().stepBy(10)
               .command(Setting, 0x58)
        << Row::choice("Light-dynamic headlight follower", {"OFF", "ON"}).at(153).adjustable().command(Setting, 0x59)
        << Row::choice("Light_dynamic lighting assist", {"OFF", "ON"}).at(154).adjustable().command(Setting, 0x5A)
        << Row::choice("Light-background lighting", {"OFF", "ON"}).at(155)
        << Row::choice("Light Colour", {"Warm white", "Green", "Blue"}).at(156).display(lightColourOption)
               .adjustable().sendAs(lightColourCode).command(Setting, 0x4C)
        // 45 .. 48: ambient lighting
        << Row::of(PercentKind, "Ambient lighting-roof ambient lighting", {0, 100}).at(157).adjustable().stepBy(10)
               .command(Setting, 0x5B)
        << Row::of(PercentKind, "Ambient lighting-front ambient lighting", {0, 100}).at(158).adjustable().stepBy(10)
               .command(Setting, 0x5C)
        << Row::choice("Ambient lighting-ambient lighting", {"OFF", "Manual", "automatic"}).at(159).adjustable()
               .command(Setting, 0x4A)
        << Row::choice("Ambient lighting-car light color",
                       {"OFF", "White", "tangerine", "blue", "Red", "Orange", "yellow", "light green", "gem blue",
                        "dark blue", "pink"}).at(160).adjustable().command(Setting, 0x5E)
        // 49 .. 53: mirrors and wipers (byte 161 is row 113's)
        << Row::choice("Mirrors and wipers-synchronization adjustment mirror", {"OFF", "ON"}).at(162).adjustable()
               .command(Setting, 0x60)
        << Row::choice("Mirrors and wipers-reversing mirror is lowered profile", {"OFF", "ON"}).at(163).adjustable()
               .command(Setting, 0x61)
        << Row::choice("Mirrors and wipers-automatic rain wiper", {"OFF", "ON"}).at(164).adjustable()
               .command(Setting, 0x62)
        << Row::choice("Mirrors and wipers-rear window wiper when reverse gear", {"OFF", "ON"}).at(165).adjustable()
               .command(Setting, 0x63)
        << Row::choice("Mirrors and wipers-parked off the mirror", {"OFF", "ON"}).at(166).adjustable()
               .command(Setting, 0x64)
        // 54 .. 62: opening and closing
        << Row::choice("Opening and closing-easy opening of car windows", {"closure", "Driver", "All windows"})
               .at(167).adjustable().command(Setting, 0x70)
        << Row::choice("Opening and closing-dDoor unlock", {"Unilateral doors", "single doors", "All doors"})
               .at(168).adjustable().command(Setting, 0x71)
        << Row::choice("Opening and closing-aAutomatic lock", {"OFF", "ON"}).at(169).adjustable()
               .command(Setting, 0x72)
        << Row::choice("Opening and closing-Inductive ail box", {"OFF", "ON"}).at(170).adjustable()
               .command(Setting, 0x74)
        << Row::choice("Opening and closing-front window", {"OFF", "ON"}).at(171).adjustable().command(Setting, 0x66)
        << Row::choice("Opening and closing-rear eindow", {"OFF", "ON"}).at(172).adjustable().command(Setting, 0x67)
        << Row::choice("Opening and closing-sliding aunroof", {"OFF", "ON"}).at(173).adjustable()
               .command(Setting, 0x68)
        << Row::choice("Opening and closing-indoor monitoring system", {"OFF", "ON"}).at(174).adjustable()
               .command(Setting, 0x73)
        << Row::choice("Opening and closing-voice feedback", {"OFF", "ON"}).at(175).adjustable()
               .command(Setting, 0x75)
        // 63 .. 72: multi-function display
        << Row::choice("MFD-current fuel consumption", {"OFF", "ON"}).at(176).adjustable().command(Setting, 0x80)
        << Row::choice("MFD-average fuel consumption", {"OFF", "ON"}).at(177).adjustable().command(Setting, 0x81)
        << Row::choice("MFD-Comfortable Appliances", {"OFF", "ON"}).at(178).adjustable().command(Setting, 0x82)
        << Row::choice("MFD-economic operation tips", {"OFF", "ON"}).at(179).adjustable().command(Setting, 0x83)
        << Row::choice("MFD-driving time", {"OFF", "ON"}).at(180).adjustable().command(Setting, 0x84)
        << Row::choice("MFD-driven distance", {"OFF", "ON"}).at(181).adjustable().command(Setting, 0x85)
        << Row::choice("MFD-average speed", {"OFF", "ON"}).at(182).adjustable().command(Setting, 0x86)
        << Row::choice("MFD-digital speed display", {"OFF", "ON"}).at(183).adjustable().command(Setting, 0x87)
        << Row::choice("MFD-speed aalarm", {"OFF", "ON"}).at(184).adjustable().command(Setting, 0x88)
        << Row::choice("MFD-oil temperature", {"OFF", "ON"}).at(185).adjustable().command(Setting, 0x89)
        // 73 .. 80: units
        << Row::choice("unit-volume", {"L", "gal(UK)", "gal(US)"}).at(186).adjustable().command(Setting, 0x93)
        << Row::choice("unit-power consumption", {"KWH/100KM", "KM/KWH"}).at(187).adjustable().command(Setting, 0x96)
        << Row::choice("unit-temperature", {"℃", "℉"}).at(188).adjustable().command(Setting, 0x92)
        << Row::choice("unit-speed", {"km/h", "mph"}).at(189).adjustable().command(Setting, 0x91)
        << Row::choice("unit-mileage", {"km", "mi"}).at(190).adjustable().command(Setting, 0x90)
        << Row::choice("unit-fuel consumption", {"mpg(UK)", "L/100km", "mpg(US)", "km/L"}).at(191).adjustable()
               .command(Setting, 0x94)
        << Row::choice("unit-tire pressure", {"bar", "psi", "kPa"}).at(192).adjustable().command(Setting, 0x95)
        << Row::choice("unit-power consumption(PurePower)", {"kWh/100km", "km/kWh", "mi/kWh"}).at(193)
               .display(pureConsumptionOption).adjustable().sendAs(pureConsumptionCode).command(Setting, 0x96)
        // 81 .. 88: driving mode
        << Row::choice("Body MODE display", {"disappear", "pop up"}).at(194)
        << Row::choice("Body MODE button", {"freed", "Press down"}).at(195)
        << Row::choice("Driving mode", {"standard", "sports", "economy", "personalise", "Snowfield", "Off-road",
                                        "Off-road personalization", "Comfortable", "economy+"}).at(196)
               .adjustable().command(Setting, 0xD0)
        << Row::choice("Individual engine", {"Normal", "Sport", "ECO"}).at(197).adjustable().command(Setting, 0xD2)
        << Row::choice("Individual steering", {"Normal", "Sport"}).at(198).adjustable().command(Setting, 0xD1)
        << Row::choice("Individual frontLight", {"Normal", "Sport", "ECO"}).at(199).adjustable()
               .command(Setting, 0xD5)
        << Row::choice("Individual climate", {"Normal", "Sport"}).at(200).display(individualClimateOption)
               .adjustable().sendAs(individualClimateCode).command(Setting, 0xD3)
        << Row::choice("E_MODE mode", {"E-MODE ", "Hybrid", "Battery maintenance", "Battery charge mode", "GTE"})
               .at(201).display(eModeOption).adjustable().sendAs(eModeCode).command(Setting, 0xF0)
        // 89 .. 94: key, seat, reversing camera
        << Row::choice("The car key is activated", {"OFF", "ON"}).at(202)
        << Row::choice("Remote keyless memory match", {"OFF", "ON"}).at(203).adjustable().command(Setting, 0xCB)
        << Row::choice("Drivers seat", {"OFF", "ON"}).at(204).adjustable().command(Setting, 0xC9)
        << Row::of(NumberKind, "Reversing radar-brightness value", {30, 70}).at(205).display(cameraPictureValue)
        << Row::of(NumberKind, "Reversing radar-contrast value", {30, 70}).at(206).display(cameraPictureValue)
        << Row::of(NumberKind, "Reversing radar-saturated color value", {30, 70}).at(207)
               .display(cameraPictureValue)
        // 95 .. 101: off-road
        << Row::choice("Off-road drive device", {"standard", "Off-road"}).at(208).adjustable().command(Setting, 0xE2)
        << Row::choice("Off-road turn to", {"standard", "sports"}).at(209).adjustable().command(Setting, 0xE1)
        << Row::choice("Off-road four wheel drive", {"standard", "Off-road"}).at(210).adjustable()
               .command(Setting, 0xE3)
        << Row::choice("Off-road air conditioning", {"standard", "economy"}).at(211).display(offRoadClimateOption)
               .adjustable().sendAs(offRoadClimateCode).command(Setting, 0xE4)
        << Row::choice("Off-road downhill assist", {"OFF", "ON"}).at(212).adjustable().command(Setting, 0xE5)
        << Row::choice("Off-road ramp start", {"OFF", "ON"}).at(213).adjustable().command(Setting, 0xE6)
        << Row::choice("Off-road parking assist", {"OFF", "ON"}).at(214).adjustable().command(Setting, 0xE7)
        // 102 .. 105: keys and user accounts
        << Row::choice("Tange personalise", {"Deactivate", "activation"}).at(215).adjustable().command(Setting, 0xA0)
        << Row::choice("Tange user account", {"Driver", "Driver 2", "Driver 3", "Visitor"}).at(216).adjustable()
               .sendAs(userAccountCode).command(Setting, 0xA1)
        << Row::choice("Tange key distribution", {"automatic", "Manual"}).at(217).adjustable().command(Setting, 0xA2)
        << Row::choice("Tange assign the key to the current user account", {"invalid", "fail", "wait", "success"})
               .at(218).adjustable().sendAs(assignKeyCode).command(Setting, 0xA3)
        // 106 .. 109: electric drive (bytes 220 to 223 hold a text, 226 is unused)
        << Row::choice("Electric-maximum charging current", {"5 amps", "10 amps", "13 amps", "maximum"}).at(219)
               .adjustable().command(Setting, 0xF1)
        << Row::text("Electric-in car temperature").textAt(220).command(Setting, 0xF2)
        << Row::choice("Electric-use battery powered air onditioning", {"OFF", "ON"}).at(224).adjustable()
               .command(Setting, 0xF3)
        << Row::of(NumberKind, "Electric-battery charging offline", {0, 100}).at(225).adjustable().stepBy(10)
               .command(Setting, 0xF4)
        // 110 .. 112: instrument display
        << Row::choice("Meter mode", {"classic", "view 1", "view 2", "view 3", "customize"}).at(227)
               .display(meterModeOption).adjustable().sendAs(meterModeCode).command(Setting, 0xE9)
        << Row::choice("Instrument displayon theLeft", {"Mileage", "Destination information", "compass", "Audio",
                                                        "accelerate", "consumption", "driven distance",
                                                        "Driving time", "navigation"}).at(228).adjustable()
               .command(Setting, 0xEA)
        << Row::choice("Right instrument display", {"Mileage", "Destination information", "compass", "Audio",
                                                    "accelerate", "consumption", "driven distance", "Driving time",
                                                    "navigation"}).at(229).adjustable().command(Setting, 0xEB)
        // 113 .. 115
        << Row::of(NumberKind, "All regions", {0, 100}).at(161).adjustable().stepBy(10).command(Setting, 0x5D)
        << Row::choice("Language", {"Germany", "Britain", "America", "France", "Italy", "Spain", "Portugal", "Poland",
                                    "Czech", "Hungary", "Denmark", "Sweden", "Finland", "Netherlands", "Russia",
                                    "Greece", "Korea", "Mexico", "Turkish", "China", "Brazil", "Norway", "Paraguay",
                                    "Serbia", "Slovakia", "Romania", "Bosnia and Herzegovina", "Slovenia",
                                    "Bulgaria", "Austria", "Estonia", "Lithuania", "Ukraine"}).at(230)
               .display(languageOption).adjustable().sendAs(languageCode).command(Setting, 0x00)
        << Row::choice("Start stop close", {"OFF", "ON"}).at(231).adjustable().command(Setting, 0x11);
}

void CarInfoItem28_3::initlist()
{
    RowPage::initlist();
    // The activation row starts out with the state of automatic activation,
    // byte 131, and shows its own byte from the first change on.
    ListData activation = list.at(ParkingActivationRow);
    activation.value = list.at(ParkingAutomaticActivationRow).value;
    list.replace(ParkingActivationRow, activation);
}

void CarInfoItem28_3::valueStepped(int row, int value)
{
    // In an unknown speed unit the speed alarm's value byte isn't written:
    // it goes out as the zero the frame starts with.
    if (row == SpeedAlarmRow && !speedUnitKnown(buffer()))
        value = 0;
    QByteArray frame = rowSpec(row).frameFor(row, value);
    // A row without a sub-command has only the skeleton of the frame.
    if (frame.isEmpty())
        frame = Frames::make2E(Setting, {0x00, 0x00});
    sendFrame(frame);
}

void CarInfoItem28_3::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2q(0x40, {
        0x00, 0x10, 0x20, 0x30, 0x31, 0x40, 0x50, 0x51, 0x52, 0x60,
        0x70, 0x80, 0x90, 0xA0, 0xB0, 0xB1, 0xB2, 0xC0, 0xC1});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
