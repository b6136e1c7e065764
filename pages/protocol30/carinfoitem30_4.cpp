#include "pages30.h"

namespace {

// Every setting of this page is 2E 84 02 sub value.
const int Amplifier = 0x84;

// The tone rows go out two above the step, and the car puts them right.
int plusTwo(int value) { return value + 2; }

// ASL: the byte 1 is "ASL OFF", anything else "ASL ON"; they go out as 1
// and 8.
int aslOption(int byte) { return byte == 1 ? 0 : 1; }
int aslCode(int option) { return option == 0 ? 1 : 8; }

} // namespace

QList<Row> CarInfoItem30_4::rowTable() const
{
    // Balance and tone rows: lowest, zero point, highest.
    return QList<Row>()
        << Row::of(NumberKind, "FAD indicator", {0, 7, 14}).at(161).adjustable().command(Amplifier, 0x01)
        << Row::of(NumberKind, "BAL indicator", {0, 7, 14}).at(162).adjustable().command(Amplifier, 0x02)
        << Row::of(NumberKind, "BASS indicator", {0, 5, 10}).at(163).adjustable().sendAs(plusTwo)
               .command(Amplifier, 0x04)
        << Row::of(NumberKind, "TRE indicator", {0, 5, 10}).at(164).adjustable().sendAs(plusTwo)
               .command(Amplifier, 0x05)
        << Row::of(NumberKind, "MID indicator", {0, 5, 10}).at(165).adjustable().sendAs(plusTwo)
               .command(Amplifier, 0x06)
        << Row::choice("ASL indicator", {"ASL OFF", "ASL ON"}).at(166).display(aslOption).adjustable()
               .sendAs(aslCode).command(Amplifier, 0x03)
        << Row::of(NumberKind, "Current volume", {0, 63}).at(167).adjustable().command(Amplifier, 0x07)
        << Row::choice("Loopback sound", {"without", "Have"}).at(168).adjustable().command(Amplifier, 0x09)
        << Row::choice("Beep", {"without", "Have"}).at(169).adjustable().command(Amplifier, 0x0B);
}
