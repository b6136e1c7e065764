#include "pages48.h"

#include "frames.h"

namespace {

// Every command of this page is 2E C6 03 A9 code 00.
QByteArray mediaCommand(int, int code)
{
    return Frames::make2E(0xC6, {0xA9, code, 0x00});
}

// A band is sent as its index + 1 but reported as 1, 2, 3, 16 or 17.
int bandCode(int option) { return option + 1; }

// Presets 1 to 6 are their own options; anything else is "Is not".
int presetOption(int preset) { return preset >= 1 && preset <= 6 ? preset : 0; }
// Presets are chosen by the codes 9 ("Is not") to 15.
int presetCode(int option) { return option + 9; }

} // namespace

QList<Row> CarInfoItem48_2::rowTable() const
{
    return QList<Row>()
        // A band code the list doesn't know shows no band.
        << Row::choice("Radio band", {"FM1", "FM2", "FM3", "AM1", "AM2"}).at(188)
               .showCodes(QList<int>() << 1 << 2 << 3 << 16 << 17).adjustable().sendAs(bandCode).frame(mediaCommand)
        << Row::text("Radio frequency").textAt(192)
        << Row::choice("Radio Pre-made radio", {"Is not", "1", "2", "3", "4", "5", "6"}).at(196)
               .display(presetOption).adjustable().sendAs(presetCode).frame(mediaCommand)
        // Previous and next track: the command, not the number.
        << Row::of(NumberKind, "CD-current track", {0, 65535}).wordAt(198).adjustable().direction(0x21, 0x22)
               .frame(mediaCommand)
        << Row::of(NumberKind, "CD-total repertoire", {0, 65535}).wordAt(200)
        << Row::text("CD-current time").textAt(204)
        << Row::text("CD-total time").textAt(208)
        << Row::choice("CD status", {"Don't show", "No CD", "Reading disc", "Ejecting disc", "Disc error"}).at(212)
        << Row::choice("CD playback status", {"pause", "Play"}).at(213).adjustable()
               .sendCodes(QList<int>() << 0x23 << 0x24).frame(mediaCommand)
        << Row::choice("CD loop", {"OFF", "ON"}).at(214).adjustable()
               .sendCodes(QList<int>() << 0x27 << 0x28).frame(mediaCommand)
        << Row::choice("CD random", {"OFF", "ON"}).at(215).adjustable()
               .sendCodes(QList<int>() << 0x25 << 0x26).frame(mediaCommand)
        << Row::choice("CD source", {"Radio", "CD", "CD list"}).at(216)
        << Row::choice("CD character format", {"Unicode", "ASKII"}).at(217)
        << Row::of(NumberKind, "CD Pre-made station number or line number", {0, 255}).at(218);
}
