#include "pages48.h"

#include "frames.h"

namespace {

const int ColourByte = 104;
const int BrightnessByte = 105;
const int CarModelByte = 106;
// The car model whose ambient light has colours of its own.
const int OwnColoursModel = 6;

const int ColourRow = 8;
const int BrightnessRow = 9;

// 2E C5 02 colour brightness: the two go out together, so that each change
// restates the other.
QByteArray ambientLightFrame(int colour, int brightness)
{
    return Frames::make2E(0xC5, {colour, brightness});
}

// The brightness steps by 5 from what the car reports, up to 100 and down
// to 0.
int brightnessStep(DataBuffer const &buffer, int, bool down)
{
    const int brightness = buffer.byte(BrightnessByte);
    if (down)
        return brightness < 5 ? 0 : brightness - 5;
    return brightness < 96 ? brightness + 5 : 100;
}

const char *const Reasons[] = {
    "without", "Driving force demand", "Too fast", "Heater demand", "Neutral", "Engine temperature is too low",
    "Battery charging", "Low speed", "Normal operation", "Low utilization", "Fuel maintenance",
    "Engine brake start", "battery temperature"};

Row reason(const char *title, int offset)
{
    QList<QVariant> options;
    for (const char *text : Reasons)
        options << QString::fromUtf8(text);
    return Row::of(ChoiceKind, title, options).at(offset);
}

} // namespace

// The colour options follow the car model byte.
bool CarInfoItem48_6::tableFollowsBuffer() const
{
    return true;
}

QList<Row> CarInfoItem48_6::rowTable() const
{
    // The colours depend on the car model as the page finds it when it
    // builds its rows.
    const bool ownColours = buffer().byte(CarModelByte) == OwnColoursModel;
    Row colour = ownColours
        ? Row::choice("Ambient light-colour",
                      {"OFF", "Earthy yellow", "Red", "Pink", "Purple", "Blue", "Green", "Sky blue"})
        : Row::choice("Ambient light-colour",
                      {"OFF", "ice blue", "orange", "soft blue", "red", "green", "blue", "purple"});
    colour.at(ColourByte).adjustable();
    return QList<Row>()
        << Row::choice("Cockpit fresh air", {"Can be pressed", "Can't press"}).at(84)
        << Row::text("Inside the car PM 2.5").textAt(88)
        << Row::choice("Vehicle energy status",
                       {"without", "Hybrid drive", "Charging high voltage battery", "idling", "idling charging",
                        "electric drive", "engine drive", "remotely started", "charging completed",
                        "fast charging completed", "fast charging"}).at(92)
        << Row::text("Time to fully charge").textAt(96)
        << Row::of(PercentKind, "Battery energy", {0, 100}).at(100)
        << reason("Reason 1", 101)
        << reason("Reason 2", 102)
        << Row::choice("Ambient light-Adaptive", {"without", "Have"}).at(103)
        << colour
        << Row::of(NumberKind, "Ambient light-brightness value", {0, 100}).at(BrightnessByte).adjustable()
               .stepWith(brightnessStep);
}

void CarInfoItem48_6::valueStepped(int row, int value)
{
    const DataBuffer data = buffer();
    if (row == ColourRow)
        sendFrame(ambientLightFrame(value, data.byte(BrightnessByte)));
    else if (row == BrightnessRow)
        sendFrame(ambientLightFrame(data.byte(ColourByte), value));
}
