#include "pages48.h"

#include "frames.h"

QList<Row> CarInfoItem48_3::rowTable() const
{
    // The texts come formatted from the car.
    return QList<Row>()
        << Row::text("Current menu type").textAt(132)
        << Row::of(NumberKind, "The currently selected item in the menu", {0, 15}).at(136)
        << Row::of(PercentKind, "MenuItem display percentage", {0, 100}).at(137)
        << Row::text("Current dialog type").textAt(140)
        << Row::of(NumberKind, "Selected item in current dialog", {0, 5}).at(144)
        << Row::text("Large icon of current menu").textAt(148)
        << Row::choice("Menu percentage display bar properties", {"NONE", "UP DOWN", "UP", "DOWN"}).at(152)
        << Row::text("Line number").textAt(156)
        << Row::text("Current row attributes").textAt(160)
        << Row::choice("Current row attributes-SelectRow", {"Not selectable", "Can be selected"}).at(164)
        << Row::text("Track play time").textAt(168)
        << Row::text("Phone talk time").textAt(172)
        << Row::choice("SYNC current working mode", {"OFF", "ON", "MEDIA", "PHONE"}).at(176)
        << Row::choice("SYNC device presence bit", {"No SYNC module", "With SYNC module"}).at(177)
        << Row::choice("Bluetooth device connection bit", {"not connected", "connected"}).at(178)
        << Row::choice("SMS display position", {"Don't show", "Show SMS icon"}).at(179)
        << Row::choice("SYNC voice status bit", {"Non-voice state", "Voice status"}).at(180)
        << Row::choice("Phone call status bit", {"Non-calling state", "Call status"}).at(181)
        << Row::choice("INFO button status under SYNC MEDIA menu", {"unavailable", "Available"}).at(182)
        << Row::of(NumberKind, "Phone battery status", {0, 4}).at(183)
        << Row::of(NumberKind, "Cell phone signal status", {0, 4}).at(184)
        << Row::choice("Current SYNC System Version", {"SYNC VERSION NONE", "SYNC VERSION V1", "SYNC VERSION V2",
                                                       "SYNC VERSION V3"}).at(185);
}

void CarInfoItem48_3::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare frame of this
    // command, its payload unwritten.
    sendFrame(Frames::make2E(0xA0, {0x00, 0x00}));
}
