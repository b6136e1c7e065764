#include "family87.h"
#include "pages87.h"

using Family87::bit;

namespace {

// Byte 70 holds the car's configuration; byte 10 the amplifier row.
const int ConfigurationByte = 70;
const int AmplifierByte = 10;
const int OwnPathConfiguration = 3;

// The first amplifier takes the balance and tone rows within 2 .. 16 and
// counts them from 2.
bool firstAmplifier(DataBuffer const &data)
{
    return data.byte(AmplifierByte) == 0;
}

const int FirstLowest = 2;
const int FirstHighest = 16;

// A balance or tone row steps over 0 .. 18, and the first amplifier holds it
// within its own range.
int balanceStep(DataBuffer const &data, int current, bool down)
{
    const int value = qBound(0, down ? current - 1 : current + 1, 18);
    return firstAmplifier(data) ? qBound(FirstLowest, value, FirstHighest) : value;
}

// FD 0B C5 and eight bytes: the balances, bass and treble; the middle; the
// loudness, the speed-linked volume and the sound effect; the centre
// speaker and the subwoofer; the amplifier counted from 1. The first
// amplifier counts balance and tone from 2: only the stepped row was held
// within its range (balanceStep), the others go out as the car reported
// them, less 2 in eight bits, so that 0 leaves as FE. A car whose
// configuration takes a road of its own gets nothing from this page.
QByteArray amplifierFrame(DataBuffer const &data, int)
{
    if (data.byte(ConfigurationByte) == OwnPathConfiguration)
        return QByteArray();
    int tones[4];
    for (int i = 0; i < 4; ++i) {
        const int value = data.byte(i);
        tones[i] = firstAmplifier(data) ? (value - FirstLowest) & 0xFF : value;
    }
    const int switches = bit(data, 5, 0x80) | bit(data, 6, 0x40) | (data.byte(7) & 0x3F);
    const int speakers = ((data.byte(8) & 0x0F) << 4) | (data.byte(9) & 0x0F);
    return Frames::makeFD(0xC5, {tones[0], tones[1], tones[2], tones[3], data.byte(4), switches, speakers,
                                 data.byte(AmplifierByte) + 1});
}

} // namespace

QList<Row> CarInfoItem87_1::rowTable() const
{
    // Balance and tone rows: lowest, zero point, highest.
    return QList<Row>()
        << Row::of(NumberKind, "front and rear balance", {0, 9, 18}).id(0).at(0).adjustable()
               .stepWith(balanceStep).group(amplifierFrame)
        << Row::of(NumberKind, "balance left and right", {0, 9, 18}).id(1).at(1).adjustable()
               .stepWith(balanceStep).group(amplifierFrame)
        << Row::of(NumberKind, "Bass", {0, 9, 18}).id(2).at(2).adjustable()
               .stepWith(balanceStep).group(amplifierFrame)
        << Row::of(NumberKind, "Treble", {0, 9, 18}).id(3).at(3).adjustable()
               .stepWith(balanceStep).group(amplifierFrame)
        << Row::of(NumberKind, "Medium", {0, 9, 18}).id(4).at(4).adjustable().group(amplifierFrame)
        << Row::choice("Loudness", {"OFF", "ON"}).id(5).at(5).adjustable().group(amplifierFrame)
        << Row::choice("Volume linked to speed", {"OFF", "ON"}).id(6).at(6).adjustable().group(amplifierFrame)
        << Row::choice("sound effect", {"User", "Classical", "Jazz-Blues", "Pop-Rock", "Vocal", "Techno"})
               .id(7).at(7).adjustable().group(amplifierFrame)
        << Row::of(NumberKind, "Centrik speaker", {0, 3, 6}).id(8).at(8).adjustable().group(amplifierFrame)
        << Row::of(NumberKind, "Subwoofer", {0, 3, 6}).id(9).at(9).adjustable().group(amplifierFrame)
        << Row::choice("Amplifier", {"Amplifier 1", "Amplifier 2"}).id(10).at(AmplifierByte).adjustable()
               .group(amplifierFrame);
}
