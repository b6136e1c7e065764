#include "pages87.h"

#include "frames.h"

namespace {

enum Id { Hours, Minutes, Reserve, ReserveDistance };

// FD 06 83 01 hi lo: the total charging time in minutes, high byte first;
// FD 06 83 02 reserve distance: the energy reserve.
QByteArray chargingFrame(DataBuffer const &data, int key)
{
    if (key == Hours || key == Minutes) {
        const int minutes = data.byte(200) * 60 + data.byte(201);
        return Frames::makeFD(0x83, {0x01, minutes >> 8, minutes & 0xFF});
    }
    return Frames::makeFD(0x83, {0x02, data.byte(202), data.byte(203)});
}

} // namespace

QList<Row> CarInfoItem87_11::rowTable() const
{
    return QList<Row>()
        << Row::of(NumberKind, "Charging-total time(hours)", {0, 23}).id(Hours).at(200).adjustable()
               .group(chargingFrame)
        << Row::of(NumberKind, "Charging-total time(Minute)", {0, 59}).id(Minutes).at(201).adjustable()
               .group(chargingFrame)
        << Row::choice("energy reserve", {"OFF", "ON"}).id(Reserve).at(202).adjustable().group(chargingFrame)
        << Row::choice("Energy reserve-distance", {"10km", "20km", "MAX"}).id(ReserveDistance).at(203)
               .adjustable().group(chargingFrame);
}
