#include "family87.h"
#include "pages87.h"

using Family87::bit;

namespace {

const int SwitchByte = 124;
const int FirstStateByte = 125;
const int FirstSpeedByte = 130;
const int Speeds = 5;

// FD 09 88 flags and the five speeds: the switch in bit 6, the states of
// speeds 1 to 5 in bits 5 down to 1.
QByteArray memoryFrame(DataBuffer const &data, int)
{
    int flags = bit(data, SwitchByte, 0x40);
    for (int i = 0; i < Speeds; ++i)
        flags |= bit(data, FirstStateByte + i, 0x20 >> i);
    QByteArray payload(1, char(flags));
    for (int i = 0; i < Speeds; ++i)
        payload.append(char(data.byte(FirstSpeedByte + i)));
    return Frames::makeFD(0x88, payload);
}

} // namespace

QList<Row> CarInfoItem87_6::rowTable() const
{
    static const char *const states[] = {
        QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 1 state"), QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 2 state"),
        QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 3 state"), QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 4 state"),
        QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 5 state")};
    static const char *const speeds[] = {
        QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 1"), QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 2"),
        QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 3"), QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 4"),
        QT_TRANSLATE_NOOP("CarInfoItem87_6", "speed 5")};
    QList<Row> rows;
    rows << Row::choice("memory speed", {"OFF", "Open"}).id(0).at(SwitchByte).adjustable().group(memoryFrame);
    for (int i = 0; i < Speeds; ++i)
        rows << Row::choice(states[i], {"Cancel", "choose"}).id(1 + i).at(FirstStateByte + i).adjustable()
                    .group(memoryFrame);
    // A speed steps up to 256, which the byte holds as 0.
    for (int i = 0; i < Speeds; ++i)
        rows << Row::of(SpeedKind, speeds[i], {0, 256}).id(1 + Speeds + i).at(FirstSpeedByte + i).adjustable()
                    .group(memoryFrame);
    return rows;
}
