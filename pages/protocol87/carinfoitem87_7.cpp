#include "family87.h"
#include "pages87.h"

namespace {

const int FirstCruiseByte = 135;
const int FirstLimitByte = 141;
const int GroupSize = 6;

// FD 0A 89 group and its six speeds: 0x50 the cruising speeds, 0x90 the
// speed limits.
QByteArray speedsFrame(DataBuffer const &data, int key)
{
    const bool limits = key >= GroupSize;
    const int first = limits ? FirstLimitByte : FirstCruiseByte;
    QByteArray payload(1, char(limits ? 0x90 : 0x50));
    for (int i = 0; i < GroupSize; ++i)
        payload.append(char(data.byte(first + i)));
    return Frames::makeFD(0x89, payload);
}

} // namespace

QList<Row> CarInfoItem87_7::rowTable() const
{
    static const char *const titles[] = {
        QT_TRANSLATE_NOOP("CarInfoItem87_7", "Cruising speed 1"), QT_TRANSLATE_NOOP("CarInfoItem87_7", "Cruising speed 2"),
        QT_TRANSLATE_NOOP("CarInfoItem87_7", "Cruising speed 3"), QT_TRANSLATE_NOOP("CarInfoItem87_7", "Cruising speed 4"),
        QT_TRANSLATE_NOOP("CarInfoItem87_7", "Cruising speed 5"), QT_TRANSLATE_NOOP("CarInfoItem87_7", "Cruising speed 6"),
        QT_TRANSLATE_NOOP("CarInfoItem87_7", "Speed limit 1"), QT_TRANSLATE_NOOP("CarInfoItem87_7", "Speed limit 2"),
        QT_TRANSLATE_NOOP("CarInfoItem87_7", "Speed limit 3"), QT_TRANSLATE_NOOP("CarInfoItem87_7", "Speed limit 4"),
        QT_TRANSLATE_NOOP("CarInfoItem87_7", "Speed limit 5"), QT_TRANSLATE_NOOP("CarInfoItem87_7", "Speed limit 6")};
    QList<Row> rows;
    // A speed steps up to 256, which the byte holds as 0.
    for (int i = 0; i < 2 * GroupSize; ++i)
        rows << Row::of(SpeedKind, titles[i], {0, 256}).id(i).at(FirstCruiseByte + i).adjustable()
                    .group(speedsFrame);
    rows << Row::choice("speed limit popup", {"OFF", "pop up"}).id(12).at(147)
         << Row::choice("cruise speed popup", {"OFF", "pop up"}).id(13).at(148);
    return rows;
}
