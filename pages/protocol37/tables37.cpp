// The row tables of family 37: pages 37_1 to 37_6 and 37_8.

#include "pages37.h"

#include "../shared/climaterows.h"
#include "../shared/tyrerows.h"
#include "canobj.h"
#include "carbodydata.h"
#include "datasavecontrol.h"
#include "frames.h"

#include <QStringList>

namespace {

// The car's common setting frame, 2E 83 02 sub value, and the climate
// setting frame, 2E 82 02 sub value.
const int BodySetting = 0x83;
const int ClimateSetting = 0x82;

// --- 37_1 -----------------------------------------------------------------

const int LanguageRow = 8;
const int ClearTripARow = 23;
const int ClearTripBRow = 24;
const int SteeringWheelButtonRow = 25;
const int SteeringWheelButtonByte = 132;

// Parking space type goes out as 1 (level) or 2 (vertical), orientation as
// 3 (left) or 4 (right), both under sub-command 5F.
int parkingSpaceCode(int value) { return value == 0 ? 1 : 2; }
int orientationCode(int value) { return value == 0 ? 3 : 4; }

QByteArray panoramaFrame(int, int value) { return Frames::make2E(0x99, {value, 0, 0, 0, 0, 0}); }
QByteArray languageFrame(int, int value) { return Frames::make2E(0x87, {value}); }
QByteArray warningVolumeFrame(int, int value) { return Frames::make2E(0x88, {value}); }

// The small light's switch is a signed byte: a negative one (no such
// light) shows as off.
QVariant smallLightSwitch(DataBuffer const &)
{
    CarbodyData const *body = CanObj::instance()->getCarbodyData();
    return body ? qMax(0, int(body->byte35)) : 0;
}

QVariant smallLightLevel(DataBuffer const &)
{
    CarbodyData const *body = CanObj::instance()->getCarbodyData();
    return body ? int(body->byte36) : 0;
}

QVariant clearText(DataBuffer const &)
{
    return CarInfoItem37_1::tr("Clear");
}

// --- 37_2 -----------------------------------------------------------------

const int ModelRow = 13;
const int ModelByte = 55;

// The model goes out counted from the first real model; "null" sends nothing.
QByteArray modelFrame(int, int value)
{
    return value > 0 ? Frames::make2E(0xE2, {value - 1}) : QByteArray();
}

// --- 37_3 -----------------------------------------------------------------

// The driver's side seat heating shares sub-command 41 with both sides and
// tells itself apart by the value: 2 for on, 0 for off.
int driverSeatHeatingCode(int value) { return value != 0 ? 2 : 0; }

// "OFF", then six shades of each of the three colour themes.
QList<QVariant> atmosphereColours()
{
    static const char *const themes[] = {"Cozy Blue", "Twilight Purple", "Morning Golden"};
    QList<QVariant> options;
    options << QStringLiteral("OFF");
    for (int t = 0; t < 3; ++t) {
        for (int shade = 1; shade <= 6; ++shade)
            options << QString::fromLatin1("%1 No.%2").arg(QLatin1String(themes[t])).arg(shade);
    }
    return options;
}

// --- 37_6 -----------------------------------------------------------------

// The ventilation mode goes out as 20, 21 or 22.
int ventilationCode(int value) { return value + 20; }

} // namespace

// --- 37_1 -----------------------------------------------------------------

QList<Row> CarInfoItem37_1::rowTable() const
{
    QList<Row> rows;
    rows << Row::choice("Parking space type", {"level", "vertical"}).at(76).adjustable()
                .sendAs(parkingSpaceCode).command(BodySetting, 0x5F)
         << Row::choice("Orientation type", {"left", "right"}).at(77).adjustable()
                .sendAs(orientationCode).command(BodySetting, 0x5F)
         << Row::choice("Automatic parking interface", {"quit", "Enter"}).at(78)
         << Row::of(PercentKind, "Parking progress", {0, 100}).at(79)
         << Row::text("Prompt information").textAt(80)
         << Row::of(DistanceKind, "recharge mileage", {0, 65535}).wordAt(84)
         << Row::of(DistanceKind, "Average fuel consumption", {0, 65535}).wordAt(86).unit(2).factor(0.1)
         << Row::choice("Panorama status 360", {"Exit 360 panorama", "Enter 360 panorama"}).at(88).adjustable()
                .frame(panoramaFrame)
         << Row::choice("Language", {"Chinese", "English", "German", "Italian", "French", "Swedish", "Spanish",
                                     "Dutch", "Portuguese", "Norwegian", "Finnish", "Danish", "Polish", "Turkish",
                                     "Arabic", "Russian", "Korean"}).at(89).adjustable().frame(languageFrame)
         << Row::of(NumberKind, "Warning sound volume setting", {0, 15}).at(90).adjustable()
                .frame(warningVolumeFrame)
         << Row::text("Speed signal").textAt(92)
         << Row::choice("Reversing radar switch information", {"Parking sensor off", "Reversing radar is on"})
                .at(96)
         << Row::text("Outdoor temperature").read(ClimateRows::outsideTemperature)
         << Row::choice("Small light switch indication", {"OFF", "ON"}).read(smallLightSwitch)
         << Row::of(NumberKind, "Small light brightness level", {0, 11}).read(smallLightLevel);
    // Rows 15 to 22: the two trip computers, four texts each.
    static const char *const trips[] = {
        "TripA-miles", "TripA-average speed", "TripA-fuel consumption", "TripA-average fuel consumption",
        "TripB-miles", "TripB-average speed", "TripB-fuel consumption", "TripB-average fuel consumption"};
    for (int i = 0; i < 8; ++i)
        rows << Row::text(trips[i]).textAt(100 + 4 * i);
    rows << Row::text("Clear TripA information").read(clearText)
         << Row::text("Clear TripB information").read(clearText)
         << Row::choice("Steering wheel button type", {"default", "15 GL8 2.4L Deluxe Edition", "20 Regal/20 Regal",
                                                       "20 Explorers/Mai Ruibao XL/ Trailblazer"})
                .at(SteeringWheelButtonByte).adjustable().command(BodySetting, 0x81);
    return rows;
}

void CarInfoItem37_1::valueStepped(int row, int value)
{
    // The head unit keeps the steering wheel's button layout: the choice
    // goes into the buffer and the store before the car hears of it.
    if (row == SteeringWheelButtonRow) {
        DataBuffer data = buffer();
        data.setByte(SteeringWheelButtonByte, quint8(value));
        DataSaveControl::saveSettingData(QStringLiteral("SteeringWheelButtonType"), value, QString());
    }
    RowPage::valueStepped(row, value);
    if (row == LanguageRow || row == SteeringWheelButtonRow)
        updateRow(row, value);
}

void CarInfoItem37_1::middlePressed(int row)
{
    if (row == ClearTripARow)
        sendFrame(Frames::make2E(BodySetting, {0x60, 0x01}));
    else if (row == ClearTripBRow)
        sendFrame(Frames::make2E(BodySetting, {0x60, 0x02}));
}

// --- 37_2 -----------------------------------------------------------------

QList<Row> CarInfoItem37_2::rowTable() const
{
    // Rows 0 and 2 to 11: whether a part of the hybrid drive is there or
    // active, bytes 61 and 63 to 72.
    static const char *const flows[] = {
        "Hybrid electric vehicle", "Motor drive battery", "Motor drive wheels", "Engine drive motor",
        "Engine driven wheels", "Battery driven motor", "Wheel drive motor", "Energy off", "Battery energy",
        "Engine energy", "Regeneration of energy"};
    QList<Row> rows;
    rows << Row::choice(flows[0], {"without", "Have"}).at(61)
         << Row::of(NumberKind, "battery power tye", {0, 8}).at(62);
    for (int i = 1; i < 11; ++i)
        rows << Row::choice(flows[i], {"without", "Have"}).at(62 + i);
    rows << Row::of(PercentKind, "Battery level (20 models for smooth tour)", {0, 100}).at(73)
         << Row::choice("Vehicle settings", {
                "null", "New Regal", "New Cruze", "Old Mai Rui Bao low configuration",
                "Old Mai Rui Bao high configuration", "Old Regal low configuration", "Old Regal high configuration",
                "Cadillac SRX low configuration", "Cadillac SRX high configuration", "New Excelle low configuration",
                "New Excelle high configuration", "New GL8 ES low configuration", "New GL8 ES high configuration",
                "Weilang low configuration", "Weilang high configuration", "Old Yinglang low configuration",
                "Old Yinglang high configuration", "Cadillac CTS low configuration", "Cadillac CTS high configuration",
                "Mai Rui Bao XL low configuration", "Mai Rui Bao XL high configuration",
                "New LaCrosse low configuration", "New LaCrosse high configuration", "Old LaCrosse low configuration",
                "Old LaCrosse high configuration", "ATS‐L low configuration", "ATS‐L high configuration",
                "Old Mai Ruibao Top configuration", "New Cruze top configuration",
                "Volando mid-to-low configuration (horizontal screen only)",
                "Volando top configuration (horizontal screen only)", "19 models of Cruze low configuration",
                "21 models of Cruze low configuration", "20 models of GL8 652T low configuration",
                "20 GL8 652T mid-to-high configuration"}).at(ModelByte).adjustable().frame(modelFrame);
    return rows;
}

void CarInfoItem37_2::valueStepped(int row, int value)
{
    // The model is the head unit's choice: it is kept in the buffer and the
    // store and shown at once, and only then told to the car.
    if (row == ModelRow) {
        DataBuffer data = buffer();
        data.setByte(ModelByte, quint8(value));
        DataSaveControl::saveUserData(QStringLiteral("CanbusCAR"), value);
        updateRow(row, value);
    }
    RowPage::valueStepped(row, value);
}

// --- 37_3 -----------------------------------------------------------------

QList<Row> CarInfoItem37_3::rowTable() const
{
    return QList<Row>()
        << Row::choice("Remote start seat heating", {"OFF", "ON"}).at(56).adjustable()
               .command(ClimateSetting, 0x41)
        << Row::choice("Remotely start the seat blower", {"OFF", "ON"}).at(57).adjustable()
               .command(ClimateSetting, 0x42)
        << Row::choice("Air conditioner remote start", {"automatic", "Last set"}).at(58).adjustable()
               .command(ClimateSetting, 0x43)
        << Row::choice("Air conditioning in the Rear area starts",
                       {"Back zone closed", "Back zone and front zone are the same", "Back zone and previous setting"})
               .at(59).adjustable().command(ClimateSetting, 0x44)
        << Row::choice("Remote start seat heating-driver's side", {"OFF", "ON"}).at(60).adjustable()
               .sendAs(driverSeatHeatingCode).command(ClimateSetting, 0x41)
        << Row::choice("Ramp start assist", {"standard", "advanced"}).at(51).adjustable()
               .command(BodySetting, 0x51)
        << Row::choice("Adaptive cruise start reminder", {"OFF", "ON"}).at(52).adjustable()
               .command(BodySetting, 0x52)
        << Row::choice("Rear seat reminder", {"OFF", "ON"}).at(53).adjustable().command(BodySetting, 0x53)
        << Row::of(ChoiceKind, "Color settings for body atmosphere", atmosphereColours()).at(54).adjustable()
               .command(BodySetting, 0x20);
}

// --- 37_4 -----------------------------------------------------------------

QList<Row> CarInfoItem37_4::rowTable() const
{
    // Each row's sub-command; row r reads byte 24 + r.
    static const int codes[] = {0x0C, 0x0D, 0x0E, 0x0F, 0x16, 0x17, 0x18, 0x19, 0x1A, 0x1B, 0x54, 0x55, 0x56, 0x57,
                                0x58, 0x59, 0x5A, 0x5B, 0x5C, 0x10, 0x11, 0x13, 0x14, 0x15, 0x5D, 0x5E, 0x22};
    QList<Row> rows = QList<Row>()
        << Row::choice("Near car unlock setting-unlock", {"All doors", "Driver's door only"})
        << Row::choice("Forgotten key reminder", {"OFF", "ON"})
        << Row::choice("Personalization by driver", {"OFF", "ON"})
        << Row::choice("Auto relock doores", {"OFF", "ON"})
        << Row::choice("Wing blind spot warning", {"OFF", "ON"})
        << Row::choice("Automatically lock when leaving the car", {"OFF", "ON", "Activate when the horn buzzes"})
        << Row::choice("Automatic anti collision preparation", {"OFF", "alarm", "Alarm and brake"})
        << Row::choice("Car status notification", {"OFF", "ON"})
        << Row::choice("Automatic wiper", {"OFF", "ON"})
        << Row::choice("Remote window control", {"OFF", "ON"})
        << Row::choice("Collision/detection-prompt type", {"Alarm tone", "Safety seats"})
        << Row::choice("Pre pedestrian detection", {"OFF", "alarm", "Alarm and brake"})
        << Row::choice("Rear vehicle passing warning", {"OFF", "ON"})
        << Row::choice("Lane change tips", {"OFF", "ON"})
        << Row::choice("Recall memory location", {"OFF", "ON"})
        << Row::choice("Convenient drop off options", {"OFF", "ON"})
        << Row::choice("Reverse mirrors automatically tilt", {"OFF", "Driver and passenger", "Driver", "passenger"})
        << Row::choice("Auto rearview mirror folding", {"OFF", "ON"})
        << Row::choice("Auto holding of the vehicle",
                       {"Long-term automatic parking brake", "Short-acting automatic parking brake"})
        << Row::choice("Left or right hand traffic", {"Left-Hand Traffic", "Rght-Hand Traffic"})
        << Row::choice("Adaptive forward lighting", {"Corner and Bend Lighting", "Intelligent Distribution"})
        << Row::choice("Auto assisted rear view mirror", {"OFF", "ON"})
        << Row::choice("Driver seat automatically returns", {"OFF", "ON"})
        << Row::choice("Automatic driver key recognition", {"OFF", "ON"})
        << Row::choice("Movement steering", {"OFF", "ON"})
        << Row::choice("Adaptive headlight", {"OFF", "Corner and corner lighting", "Smart light distribution"})
        << Row::choice("Charging limit", {"maximum", "6 amp"});
    for (int r = 0; r < rows.size(); ++r)
        rows[r].at(24 + r).adjustable().command(BodySetting, codes[r]);
    return rows;
}

// --- 37_5 -----------------------------------------------------------------

QList<Row> CarInfoItem37_5::rowTable() const
{
    // Row r reads byte 11 + r and goes out under sub-command r.
    QList<Row> rows = QList<Row>()
        << Row::choice("Find car light function", {"OFF", "ON"})
        << Row::choice("Delay setting of lock out headlights", {"OFF", "30s", "1minute", "2minute"})
        << Row::choice("Prevent automatic lock when opening", {"OFF", "ON"})
        << Row::choice("Automatically lock at start", {"OFF", "ON"})
        << Row::choice("Automatic parking unlock", {"OFF", "Driver's door", "All doors"})
        << Row::choice("Delayed lock", {"OFF", "ON"})
        << Row::choice("Remote control unlockLight feedback", {"OFF", "ON"})
        << Row::choice("Remote control door lock light/horn feedback",
                       {"Lights only", "Lights and horns", "Horn only", "OFF"})
        << Row::choice("Remote unlock setting", {"Driver's door", "All doors"})
        << Row::choice("Wipers start automatically after reversing", {"OFF", "ON"})
        << Row::choice("Remote control to lock the door", {"OFF", "ON"})
        << Row::choice("Remotely start the vehicle", {"OFF", "ON"})
        << Row::choice("Car body central control operation sign", {"Inoperable", "Operable"});
    const int lastSetting = rows.size() - 2;
    for (int r = 0; r < rows.size(); ++r) {
        rows[r].at(11 + r);
        if (r <= lastSetting)
            rows[r].adjustable().command(BodySetting, r);
    }
    return rows;
}

// --- 37_6 -----------------------------------------------------------------

QList<Row> CarInfoItem37_6::rowTable() const
{
    // Row r reads byte r. Rows 8 and 10 only show.
    QList<Row> rows = QList<Row>()
        << Row::choice("Automatic mode air volume setting", {"low", "medium", "high"}).adjustable()
               .command(ClimateSetting, 0x00)
        << Row::choice("Air quality sensor settings", {"OFF", "Low sensitivity", "High sensitivity"}).adjustable()
               .command(ClimateSetting, 0x01)
        << Row::choice("Air conditioning zone temperature",
                       {"Unified settings", "Partition settings", "Follow last setting"}).adjustable()
               .command(ClimateSetting, 0x02)
        << Row::choice("Automatic defogging of rear window", {"OFF", "ON"}).adjustable().command(ClimateSetting, 0x03)
        << Row::choice("Automatic defogging of front window", {"OFF", "ON"}).adjustable()
               .command(ClimateSetting, 0x04)
        << Row::choice("Automatic seat heating", {"OFF", "ON"}).adjustable().command(ClimateSetting, 0x08)
        << Row::choice("Remote start seat automatic heating", {"OFF", "ON"}).adjustable()
               .command(ClimateSetting, 0x05)
        << Row::choice("Air conditioner start mode setting", {"OFF", "ON", "Follow last setting"}).adjustable()
               .command(ClimateSetting, 0x06)
        << Row::choice("Climate switch host air conditioning control interface", {"Don't switch", "Switch"})
        << Row::choice("Ventilation mode(20 types of smooth patrol)", {"Ventilation only", "economy", "Comfortable"})
               .adjustable().sendAs(ventilationCode).command(ClimateSetting, 0x07)
        << Row::choice("Wind speed automatic", {"Show wind speed value", "Show wind speed automatically"});
    for (int r = 0; r < rows.size(); ++r)
        rows[r].at(r);
    return rows;
}

// --- 37_8 -----------------------------------------------------------------

QList<Row> CarInfoItem37_8::rowTable() const
{
    return TyreRows::pressureRows();
}
