#include "family87.h"
#include "pages87.h"

using Family87::Code;
using Family87::codeOf;

namespace {

const int ThemeColour = 31;

// The sub-command of each row that the car lets the user set; a row
// without one sends nothing.
const Code SubCommands[] = {
    {0, 0x02}, {1, 0x11}, {2, 0x14}, {4, 0x01}, {7, 0x03}, {8, 0x1A}, {9, 0x1B}, {10, 0x0A}, {11, 0x18},
    {12, 0x12}, {13, 0x05}, {14, 0x13}, {15, 0x06}, {19, 0x07}, {20, 0x08}, {21, 0x1E}, {23, 0x19},
    {24, 0x0C}, {25, 0x0D}, {26, 0x0E}, {27, 0x0F}, {28, 0x0B}, {29, 0x15}, {30, 0x16}, {ThemeColour, 0x17},
    {32, 0x1C}, {33, 0x1D}};

// The theme colours go out as the car's codes.
const Code ColourCodes[] = {{0, 0}, {1, 2}, {2, 3}, {3, 6}, {4, 7}, {5, 8}, {6, 1}};

QByteArray statusFrame(int key, int value)
{
    const int sub = codeOf(SubCommands, key, -1);
    if (sub < 0)
        return QByteArray();
    if (key == ThemeColour)
        value = codeOf(ColourCodes, value, 0);
    return Family87::setting(sub, value);
}

Row choice(int id, const char *title, std::initializer_list<const char *> options)
{
    return Row::choice(title, options).id(id).at(90 + id).adjustable().frame(statusFrame);
}

// The rows that the car only reports.
Row state(int id, const char *title, std::initializer_list<const char *> options)
{
    return Row::choice(title, options).id(id).at(90 + id);
}

} // namespace

QList<Row> CarInfoItem87_5::rowTable() const
{
    return QList<Row>()
        << choice(0, "rear wiper", {"Disable when reversing", "Enable when reversing"})
        << choice(1, "Driving assist brake", {"OFF", "ON"})
        << choice(2, "temperature unit", {"Celsius", "Fahrenheit"})
        << state(3, "Door self locking status", {"Disable", "enable"})
        << choice(4, "driver assistance system", {"Disable", "enable"})
        << state(5, "Central door lock status", {"unlocked", "locked"})
        << state(6, "Trip computer currently displayed page", {"Page0", "Page1", "Page2"})
        << choice(7, "day lighting", {"OFF", "Open"})
        << choice(8, "Electric trunkLid", {"OFF", "Open"})
        << choice(9, "The trunk opens automatically", {"OFF", "Open"})
        << choice(10, "Fuel consumption unit setting", {"KM/L-KM", "L/100KM-KM", "MPG"})
        << choice(11, "emergency braking", {"OFF", "Near", "Standard", "Far"})
        << choice(12, "Follow up turn headlights", {"OFF", "Open"})
        // The car reports the mood lighting by number, without names.
        << Row::of(NumberKind, "mood lighting status", {0, 255}).id(13).at(103).adjustable().frame(statusFrame)
        << choice(14, "Unlock the trunk only", {"OFF", "Open"})
        << choice(15, "Reversing radar deactivated", {"OFF", "Open"})
        << state(16, "Reversing state", {"non-reversing", "reverse"})
        << state(17, "PGear or handbrake", {"P file", "non-P file"})
        << state(18, "light status", {"OFF", "Open"})
        << choice(19, "Take me home lighting", {"OFF", "15s", "30s", "60s"})
        << choice(20, "Welcome lighting", {"OFF", "15s", "30s", "60s"})
        << choice(21, "Rear view mirror adaptive", {"OFF", "Open"})
        // The car names no sub-command for the sound settings: its arrows send nothing.
        << choice(22, "Sound settings", {"classic sound", "Crystal Rhythm", "urban rhythm", "Jungle Dream"})
        << choice(23, "Disable auto folding mirrors", {"OFF", "Open"})
        << choice(24, "Blind spot detection", {"OFF", "Open"})
        << choice(25, "Engine start stop function is deactivated", {"OFF", "Open"})
        << choice(26, "Welcome function", {"OFF", "Open"})
        << choice(27, "door opening options", {"Driver's door only", "All doors"})
        << choice(28, "language", {"English", "Chinese", "French"})
        << choice(29, "Fatigue detection system", {"OFF", "Open"})
        << choice(30, "Traction control system", {"OFF", "Open"})
        << choice(ThemeColour, "theme color", {"sapphire blue", "agate red", "Jade green", "Crimson", "Sky Blue",
                                               "Bright Brown", "Deerskin Brown"})
        << choice(32, "Speed limit reminder", {"OFF", "Open"})
        << choice(33, "Traffic sign recognition", {"OFF", "Open"});
}
