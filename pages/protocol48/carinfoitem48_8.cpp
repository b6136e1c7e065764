#include "pages48.h"

#include "../shared/climaterows.h"
#include "canobj.h"
#include "carbodydata.h"

#include <climits>

namespace {

// Rows 0 to 24 show bytes 0 to 24 and go out as 2E C6 03 sub b4 b5, in one
// of three shapes: a code for each state under 0xA3, the value in b4 under
// a sub of its own, or a number and the value under 0xB0. Missing bytes
// are 0.
const int Setting = 0xC6;
const int States = 0xA3;
const int Numbered = 0xB0;
const int OilLifeByte = 25;

Row body(int row, const char *title, std::initializer_list<const char *> options)
{
    return Row::choice(title, options).at(row).adjustable();
}

// A state sent as its code under 0xA3.
Row state(int row, const char *title, std::initializer_list<const char *> options, QList<int> const &codes)
{
    return body(row, title, options).sendCodes(codes).command(Setting, {States, Row::Value, 0x00});
}

// The value as b4 under a sub of its own.
Row own(int row, int sub, const char *title, std::initializer_list<const char *> options)
{
    return body(row, title, options).command(Setting, {sub, Row::Value, 0x00});
}

// The value as b5 under 0xB0, after the setting's number.
Row numbered(int row, int number, const char *title, std::initializer_list<const char *> options)
{
    return body(row, title, options).command(Setting, {Numbered, number, Row::Value});
}

QList<int> codes(int first, int second)
{
    return QList<int>() << first << second;
}

// The read-outs from the body record; without a record they are 0.
CarbodyData const *bodyRecord()
{
    return CanObj::instance()->getCarbodyData();
}

QVariant backlight(DataBuffer const &)
{
    return bodyRecord() ? int(bodyRecord()->byte36) : 0;
}

// A row holds an int: larger counts stop at its highest.
int count(quint32 value)
{
    return int(qMin<quint32>(value, INT_MAX));
}

QVariant drivenDistance(DataBuffer const &)
{
    return bodyRecord() ? count(bodyRecord()->distance) : 0;
}

QVariant rechargeMileage(DataBuffer const &)
{
    return bodyRecord() ? count(bodyRecord()->value12) : 0;
}

// Below 0 the car has no consumption to tell.
QVariant averageConsumption(DataBuffer const &)
{
    return bodyRecord() ? qMax(0, int(bodyRecord()->value32)) : 0;
}

QVariant remainingFuel(DataBuffer const &)
{
    return bodyRecord() ? int(bodyRecord()->remainingFuel) : 0;
}

const int LitresPer100Km = 2;

} // namespace

QList<Row> CarInfoItem48_8::rowTable() const
{
    return QList<Row>()
        << state(0, "Traction control system", {"OFF", "ON"}, codes(2, 1))
        << state(1, "Turn signal  setting", {"Flashes 1 time", "Flashes 3 time"}, codes(3, 4))
        << state(2, "Information tone", {"OFF", "ON"}, codes(5, 6))
        << state(3, "Warning tone", {"OFF", "ON"}, codes(7, 8))
        << own(4, 0xAD, "Enhanced parking assist", {"OFF", "ON"})
        << body(5, "Reversing video zoom", {"No amplification", "Zoomed in"}).sendCodes(codes(0x12, 0x13))
               .command(Setting, {0xAB, Row::Value, 0x00})
        << own(6, 0xAE, "Rear view keep", {"OFF", "ON"})
        << state(7, "MileageUnit", {"KM", "MILE"}, codes(0x0E, 0x0F))
        << numbered(8, 0, "Auto headlight sensitivity", {"Low", "middle", "high"})
        << numbered(9, 1, "Intelligent unlocking", {"OFF", "ON"})
        << numbered(10, 2, "Welcome light duration", {"0s", "15s", "30s", "60s"})
        << numbered(11, 3, "Remote control car window", {"OFF", "ON"})
        << numbered(12, 4, "Wireless charging", {"OFF", "ON"})
        << numbered(13, 8, "Speed lock", {"OFF", "ON"})
        << numbered(14, 5, "Indoor lamp time", {"5m", "10m", "15m"})
        << state(15, "Rearview mirror folding mode", {"automatic", "Manual"}, codes(0x10, 0x11))
        << numbered(16, 7, "After defrosting time", {"5m", "10m"})
        << numbered(17, 9, "Stay with me home", {"30s", "1m", "2m", "3m"})
        << state(18, "Instrument arrow keys", {"OFF", "ON"}, codes(0x18, 0x17))
        << state(19, "charging indicator", {"OFF", "ON", "Restricted"}, codes(0x19, 0x1A) << 0x1B)
        << state(20, "Ramp start assist", {"OFF", "ON"}, codes(0x16, 0x15))
        // b5 isn't written: it stays zero.
        << own(21, 0xAF, "Rear view split screen", {"OFF", "ON"})
        << state(22, "Ambient light settings", {"OFF", "ON"}, codes(0x14, 0x13))
        << own(23, 0xA6, "Buzzer alarm", {"OFF", "ON"})
        << own(24, 0xA5, "Rain sensor", {"OFF", "ON"})
        << Row::text("Ambient temperature information").read(ClimateRows::outsideTemperature)
        << Row::of(NumberKind, "Backlight adjustment", {0, 255}).read(backlight)
        // The distances show kilometres: the page reads no unit of the car's.
        << Row::of(DistanceKind, "driven distance", {0, 0xFFFFFF}).read(drivenDistance)
        << Row::of(DistanceKind, "recharge mileage", {0, 65535}).read(rechargeMileage)
        << Row::of(DistanceKind, "Average fuel consumption", {0, 511}).read(averageConsumption)
               .unit(LitresPer100Km).factor(0.1)
        << Row::of(PercentKind, "Remaining oil", {0, 255}).read(remainingFuel).factor(0.5)
        << Row::of(PercentKind, "Oil life", {0, 100}).at(OilLifeByte);
}
