// The vehicle settings of protocol 64. The car counts its values from 1, so
// that 0 can mean that no value has arrived; the rows count from 0. Every
// change goes out as 2E 83 02 sub value.

#include "pages64.h"

#include "frames.h"

namespace {

const int FirstSetting = 212;
const int RestoreRow = 0;

// 0 (nothing yet) shows the first option, as 1 does.
int fromOneBased(int byte) { return byte == 0 ? 0 : byte - 1; }

// The sub-command and value of each row. The air conditioner type goes out
// as 0x80; the rows up to 12 have the sub-command of the row before them;
// a few rows send their value as it stands, the others one-based again.
QByteArray setupFrame(int row, int value)
{
    int sub = row;
    if (row == 1)
        sub = 0x80;
    else if (row <= 12)
        sub = row - 1;
    bool asItStands = false;
    switch (row) {
    case 11: case 12: case 18: case 28: case 30: case 32: case 39: case 40: case 41:
        asItStands = true;
        break;
    default:
        break;
    }
    return Frames::make2E(0x83, {sub, asItStands ? value : value + 1});
}

Row onOff(const char *title)
{
    return Row::choice(title, {"ON", "OFF"});
}

Row sound(const char *title)
{
    return Row::choice(title, {"sound 1", "sound 2", "sound 3"});
}

// A time of the air preconditioning: the car gives no scale, so the value
// is shown unscaled as minutes of the day.
Row preconditioningTime(const char *title)
{
    return Row::of(TimeOfDayKind, title, {0, 1, 0, 254}).clamp(Row::WindowClamp);
}

QVariant recoverText(DataBuffer const &)
{
    return CarInfoItem64_4::tr("recover");
}

} // namespace

QList<Row> CarInfoItem64_4::rowTable() const
{
    QList<Row> rows;
    rows << Row::text("restore vehicle settings").read(recoverText)
         << Row::choice("Air conditioner type", {"manual", "automatic"})
         << onOff("Body settings-automatic folding mirrors")
         << onOff("Body settings-wiper assist after reversing")
         << Row::choice("Body settings-remote unlock", {"driving door", "all doors"})
         << onOff("Body settings-automatic drivingLock")
         << onOff("Body settings-auto lock when flame out")
         << onOff("Body settings-rain off sunroof settings")
         << onOff("Air conditioning settings-unlock active ventilation")
         << onOff("Air conditioning settings-unlock down window ventilation")
         << onOff("Air conditioning settings-air conditioning self drying")
         << Row::choice("Light setup-headlight delay", {"OFF", "10s", "30s", "60s", "OFF"})
         << Row::choice("Lighting settings-one button steering", {"OFF", "3 times", "5 times", "7 times"})
         << sound("Instrument sound-welcome sound")
         << sound("Instrument sound-beep sound")
         << sound("Instrument sound-alarm sound")
         << onOff("Body setup-parking auto unlock")
         << onOff("Air conditioning settings-air purification system turns on automatically")
         << Row::choice("Body settings-window delay time", {"OFF", "30s", "60s", "90s", "OFF"})
         << onOff("Body settings-side window light function")
         << onOff("Body settings-window remote control")
         << Row::choice("Body setup-electric horn sound",
                        {"car search and door unlocked", "car search", "door not closed", "OFF"})
         << Row::choice("Body settings-unlock feedback method", {"light + sound", "light only", "sound only"})
         << onOff("Air conditioning settings-bluetooth calls to reduce fan speed")
         << onOff("Lighting setup-daytime running lights")
         << onOff("Lighting settings-ambient light brightness switch")
         << onOff("Light settings-auto high beam")
         << onOff("Cruise control-integrated adaptive cruise")
         << Row::choice("Cruise control-target beep", {"OFF", "Identify only hints", "just disappear the prompt",
                                                       "Recognition and disappearance are prompted"})
         << onOff("Front collision assist-front collision warning")
         << Row::choice("Front collision avoidance assist-front collision alert sensitivity",
                        {"high", "standard", "OFF"})
         << onOff("Front collision avoidance assist-automatic emergency braking")
         << Row::choice("Lane assist-sensitivity", {"high", "standard"})
         << Row::choice("Lane assist-function selection",
                        {"Warning only", "Correction only", "Early warning + correction", "OFF"})
         << Row::choice("Lane assist-early warning mode", {"sound", "vibrate", "sound + vibration"})
         << onOff("Lane assist-speed limit sign recognition")
         << onOff("Lane assist-speed warning")
         << onOff("360 panorama-low speed turn signal automatic activation")
         << onOff("360 panorama-automatic activation of the front radar")
         // Rows 39 and 41: no range from the car; the value as it stands.
         << Row::of(NumberKind, "Lighting settings-ambient light brightness", {0, 254})
         << Row::choice("Lane assist-vibration intensity", {"high", "standard", "OFF"})
         << Row::of(SpeedKind, "Lane assist speed warning bias", {0, 254})
         << onOff("Lane assist-speed warning sound")
         << onOff("Rear warning-parallel assist")
         << onOff("Rear warning-reversing lateral warning")
         << onOff("Rear warning-rear end warning")
         << onOff("Rear warning-rear rear end warning sound")
         << onOff("Sunroof settings-voice activated sunroof")
         << onOff("Sunroof settings-remote control sunroof")
         << onOff("Sunroof settings-rain sensing sunroof")
         << Row::choice("Lighting settings-ambient light color",
                        {"Red", "Purple", "Blue", "White", "Orange", "Royal Blue", "Green"})
         << onOff("Right blind spot image-turn signal automatic activation")
         << onOff("Right blind spot image-front radar automatic activation")
         << onOff("Body settings-driving mode memory")
         << onOff("Lighting settings-automatic adjustment of ambient lighting")
         << Row::choice("Lighting settings-automatic adjustment of ambient light",
                        {"Dim while driving", "closed while driving"})
         << Row::choice("Meter sound-volume level", {"OFF", "middle", "high"})
         << Row::choice("System settings-language", {"Chinese", "English"})
         << Row::choice("System settings-meter theme", {"Automatic", "Classic", "Sports", "Technology"})
         << onOff("Body setting-secondary Lock")
         << onOff("Body settings-smart welcome")
         << onOff("Body settings-latch automatically close windows")
         << onOff("Body settings-main driver door unlocked separately")
         << Row::choice("Custom driving mode-Power mode", {"Comfort", "Sport", "Economy"})
         << Row::choice("Custom driving mode-steering mode", {"Comfort", "Sport", "portable"})
         << Row::choice("Quick control-windows", {"OFF", "Breathable", "ON"})
         << Row::choice("Quick controls-driving mode", {"Comfort", "Sport", "Economy", "Custom"})
         << Row::choice("Air conditioning settings-air preconditioning", {"OFF", "default", "Custom"})
         << preconditioningTime("Air preconditioning custom-AM")
         << preconditioningTime("Air preconditioning custom-PM")
         << preconditioningTime("Air preconditioning custom-Night")
         << onOff("Lighting settings-ambient lighting function")
         << onOff("Lighting settings-ambient light music follow up function")
         << onOff("Body settings-wireless charging switch function")
         << onOff("Light setup-rechargeable breathing light");
    for (int r = RestoreRow + 1; r < rows.size(); ++r)
        rows[r].at(FirstSetting + r).display(fromOneBased).adjustable().frame(setupFrame);
    return rows;
}

void CarInfoItem64_4::middlePressed(int row)
{
    if (row == RestoreRow)
        sendFrame(Frames::make2E(0x83, {0x00, 0x01}));
}
