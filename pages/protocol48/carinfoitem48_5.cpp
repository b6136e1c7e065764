#include "pages48.h"

#include "frames.h"

namespace {

// 2E C3 02 row value: the row's index is the sub-command.
const int Amplifier = 0xC3;
const int FirstByte = 108;
const int ResetRow = 9;
const int ResetSub = 0xFF;

// The tone and balance rows: lowest, zero point, highest.
Row tone(const char *title, int row)
{
    return Row::of(NumberKind, title, {0, 7, 14}).at(FirstByte + row).adjustable().command(Amplifier, row);
}

QVariant resetText(DataBuffer const &)
{
    return CarInfoItem48_5::tr("Reset");
}

} // namespace

QList<Row> CarInfoItem48_5::rowTable() const
{
    return QList<Row>()
        << tone("Treble", 0)
        << tone("Midrange", 1)
        << tone("bass", 2)
        << tone("attenuation", 3)
        << tone("balance", 4)
        << Row::choice("SpeedAnd volume adjustment", {"OFF", "Low", "middle", "high"}).at(FirstByte + 5)
               .adjustable().command(Amplifier, 5)
        << Row::choice("Sound effect mode", {"stereo", "Surround sound"}).at(FirstByte + 6).adjustable()
               .command(Amplifier, 6)
        // The car numbers the last two places the other way round.
        << Row::choice("All round", {"Whole car", "Back seat", "Driving side"}).at(FirstByte + 7).adjustable()
               .sendCodes(QList<int>() << 0 << 2 << 1).command(Amplifier, 7)
        // The volume has a command of its own: 2E C2 01 value.
        << Row::of(NumberKind, "volume", {0, 30}).at(FirstByte + 8).adjustable().command(0xC2, {Row::Value})
        << Row::text("Reset all").read(resetText);
}

void CarInfoItem48_5::middlePressed(int row)
{
    // The reset has no value: its byte stays zero.
    if (row == ResetRow)
        sendFrame(Frames::make2E(Amplifier, {ResetSub, 0x00}));
}
