#include "family87.h"
#include "pages87.h"

using Family87::bit;

namespace {

const int SwitchByte = 80;
const int MondayByte = 81;
const int HourByte = 88;
const int MinuteByte = 89;

// FD 06 8B days hi lo: the switch in bit 7, Monday in bit 6 down to Sunday
// in bit 0; the time as minutes of the day, high byte first.
QByteArray presetFrame(DataBuffer const &data, int)
{
    int days = bit(data, SwitchByte, 0x80);
    for (int day = 0; day < 7; ++day)
        days |= bit(data, MondayByte + day, 0x40 >> day);
    const int minutes = data.byte(HourByte) * 60 + data.byte(MinuteByte);
    return Frames::makeFD(0x8B, {days, minutes >> 8, minutes & 0xFF});
}

} // namespace

QList<Row> CarInfoItem87_4::rowTable() const
{
    QList<Row> rows;
    rows << Row::choice("Preset switch", {"OFF", "ON"}).id(0).at(SwitchByte).adjustable().group(presetFrame);
    static const char *const days[] = {
        QT_TRANSLATE_NOOP("CarInfoItem87_4", "Monday"), QT_TRANSLATE_NOOP("CarInfoItem87_4", "Tuesday"),
        QT_TRANSLATE_NOOP("CarInfoItem87_4", "Wednesday"), QT_TRANSLATE_NOOP("CarInfoItem87_4", "Thursday"),
        QT_TRANSLATE_NOOP("CarInfoItem87_4", "Friday"), QT_TRANSLATE_NOOP("CarInfoItem87_4", "Saturday"),
        QT_TRANSLATE_NOOP("CarInfoItem87_4", "Sunday")};
    for (int day = 0; day < 7; ++day)
        rows << Row::choice(days[day], {"OFF", "ON"}).id(1 + day).at(MondayByte + day).adjustable()
                    .group(presetFrame);
    rows << Row::of(NumberKind, "time(hour)", {0, 23}).id(8).at(HourByte).adjustable().group(presetFrame)
         << Row::of(NumberKind, "time(Minute)", {0, 59}).id(9).at(MinuteByte).adjustable().group(presetFrame);
    return rows;
}
