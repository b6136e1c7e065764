#include "family87.h"
#include "pages87.h"

using Family87::bit;

namespace {

// The scheduled mileage, a 16-bit value.
const int MileageWord = 64;

// FD 06 82 flags hi lo: the three switches in bits 7 to 5 and the page
// shown in the low bits; then the scheduled mileage, high byte first.
QByteArray tripFrame(DataBuffer const &data, int)
{
    const int flags = bit(data, 60, 0x80) | bit(data, 61, 0x40) | bit(data, 62, 0x20) | (data.byte(63) & 0x1F);
    const int mileage = data.word(MileageWord);
    return Frames::makeFD(0x82, {flags, mileage >> 8, mileage & 0xFF});
}

} // namespace

QList<Row> CarInfoItem87_2::rowTable() const
{
    return QList<Row>()
        << Row::text("Instant fuel consumption").id(0).textAt(12)
        << Row::text("recharge mileage").id(1).textAt(16)
        << Row::text("set mileage").id(2).textAt(20)
        << Row::text("Start stop function timing").id(3).textAt(24)
        << Row::text("Instantaneous speed").id(4).textAt(28)
        << Row::text("Average fuel consumption").id(5).textAt(32)
        << Row::text("average speed").id(6).textAt(36)
        << Row::text("Indicates accumulated mileage").id(7).textAt(40)
        << Row::text("Average fuel consumption 2").id(8).textAt(44)
        << Row::text("average speed 2").id(9).textAt(48)
        << Row::text("Indicates accumulated mileage 2").id(10).textAt(52)
        << Row::text("Outdoor temperature").id(11).textAt(56)
        << Row::choice("Set scheduled mileage", {"normal", "Default mileage"}).id(12).at(60).adjustable()
               .group(tripFrame)
        << Row::choice("Clear the PAGE1 parameter", {"normal", "clear"}).id(13).at(61).adjustable()
               .group(tripFrame)
        << Row::choice("Clear the PAGE2 parameter", {"normal", "clear"}).id(14).at(62).adjustable()
               .group(tripFrame)
        // The mileage that the flag frame carries is the row's own value.
        << Row::of(DistanceKind, "Set predetermined mileage parameters", {0, 3000}).id(15).wordAt(MileageWord)
               .adjustable().group(tripFrame)
        << Row::choice("Trip computer currently displayed page", {"Page0", "Page1", "Page2"}).id(16).at(63)
               .adjustable().group(tripFrame);
}
