#include "airdata.h"

#include <string.h>

// ---------------------------------------------------------------------------
// SeatHeatingData

SeatHeatingData::SeatHeatingData()
    : hasSeatHeating(0), leftSeat(0), rightSeat(0)
{
    memset(stored, 0, sizeof(stored));
}

SeatHeatingData::SeatHeatingData(SeatHeatingData const &other)
    : hasSeatHeating(other.hasSeatHeating),
      leftSeat(other.leftSeat),
      rightSeat(other.rightSeat)
{
    // stored[i] is record byte i + 3.
    memset(stored, 0, sizeof(stored));
    stored[0] = other.stored[0];  // 3
    stored[1] = other.stored[1];  // 4
    stored[2] = other.stored[2];  // 5
    stored[4] = other.stored[4];  // 7
    stored[5] = other.stored[5];  // 8
    stored[7] = other.stored[7];  // 10
    stored[8] = other.stored[8];  // 11
}

// ---------------------------------------------------------------------------
// TirePressureInformation

TirePressureInformation::TirePressureInformation()
    : state(0), summary(0), reserved29(0), reserved34(0), reserved39(0)
{
    memset(reserved1, 0, sizeof(reserved1));
    memset(status, 0, sizeof(status));
    memset(alarm, 0, sizeof(alarm));
    memset(temperature, 0, sizeof(temperature));
    clear();
}

TirePressureInformation::TirePressureInformation(TirePressureInformation const &other)
    : state(other.state),
      frontLeftPressure(other.frontLeftPressure),
      frontRightPressure(other.frontRightPressure),
      rearLeftPressure(other.rearLeftPressure),
      rearRightPressure(other.rearRightPressure),
      sparePressure(other.sparePressure),
      summary(other.summary),
      reserved29(0),
      reserved34(0),
      reserved39(other.reserved39)
{
    memcpy(reserved1, other.reserved1, sizeof(reserved1));
    memcpy(status, other.status, sizeof(status));
    memcpy(alarm, other.alarm, sizeof(alarm));
    memcpy(temperature, other.temperature, sizeof(temperature));
}

TirePressureInformation &TirePressureInformation::operator=(TirePressureInformation const &other)
{
    state = other.state;
    memcpy(reserved1, other.reserved1, sizeof(reserved1));
    frontLeftPressure = other.frontLeftPressure;
    frontRightPressure = other.frontRightPressure;
    rearLeftPressure = other.rearLeftPressure;
    rearRightPressure = other.rearRightPressure;
    sparePressure = other.sparePressure;
    summary = other.summary;
    memcpy(status, other.status, sizeof(status));
    memcpy(alarm, other.alarm, sizeof(alarm));
    memcpy(temperature, other.temperature, sizeof(temperature));
    reserved39 = other.reserved39;
    return *this;
}

void TirePressureInformation::clear()
{
    const QString none = QStringLiteral("--");
    state = 255;
    frontLeftPressure = none;
    frontRightPressure = none;
    rearLeftPressure = none;
    rearRightPressure = none;
    sparePressure = none;
    summary = 255;
    memset(status, 0, sizeof(status));
    memset(alarm, 0, sizeof(alarm));
    memset(temperature, 0, sizeof(temperature));
}

// ---------------------------------------------------------------------------
// AirData

AirData::AirData()
    : airType(0),
      hasAirConditioner(1),
      showRequest(0),
      reserved6(1),
      reserved15(0),
      reserved35(0),
      reserved103(0)
{
    memset(reserved42, 0, sizeof(reserved42));
    clear();
}

AirData::AirData(AirData const &other)
{
    copyFrom(other);
}

AirData &AirData::operator=(AirData const &other)
{
    if (this != &other)
        copyFrom(other);
    return *this;
}

void AirData::copyFrom(AirData const &other)
{
    airType = other.airType;
    hasAirConditioner = other.hasAirConditioner;
    showRequest = other.showRequest;
    reserved6 = other.reserved6;
    leftTemperatureValid = other.leftTemperatureValid;
    leftTemperatureLow = other.leftTemperatureLow;
    leftTemperatureHigh = other.leftTemperatureHigh;
    rightTemperatureValid = other.rightTemperatureValid;
    rightTemperatureLow = other.rightTemperatureLow;
    rightTemperatureHigh = other.rightTemperatureHigh;
    leftTemperatureUnit = other.leftTemperatureUnit;
    rightTemperatureUnit = other.rightTemperatureUnit;
    reserved15 = other.reserved15;
    leftTemperature = other.leftTemperature;
    rightTemperature = other.rightTemperature;
    memcpy(extra24, other.extra24, sizeof(extra24));
    extra28 = other.extra28;
    memcpy(extra32, other.extra32, sizeof(extra32));
    reserved35 = other.reserved35;
    extra36 = other.extra36;
    extra40 = other.extra40;
    extra41 = other.extra41;
    memcpy(reserved42, other.reserved42, sizeof(reserved42));
    outsideTemperature = other.outsideTemperature;
    memcpy(functions, other.functions, sizeof(functions));
    // All fourteen bytes of the seat record, not its own copy rule.
    seatHeating.hasSeatHeating = other.seatHeating.hasSeatHeating;
    seatHeating.leftSeat = other.seatHeating.leftSeat;
    seatHeating.rightSeat = other.seatHeating.rightSeat;
    memcpy(seatHeating.stored, other.seatHeating.stored, sizeof(seatHeating.stored));
    reserved103 = other.reserved103;
    tirePressure = other.tirePressure;
    raw = other.raw;
}

void AirData::clear()
{
    airType = 0;
    showRequest = 0;
    leftTemperatureValid = 1;
    leftTemperatureLow = 0;
    leftTemperatureHigh = 0;
    rightTemperatureValid = 1;
    rightTemperatureLow = 0;
    rightTemperatureHigh = 0;
    leftTemperatureUnit = 0;
    rightTemperatureUnit = 0;
    leftTemperature.clear();
    rightTemperature.clear();
    memset(extra24, 0, sizeof(extra24));
    extra28 = QString(QChar(0xFF));
    memset(extra32, 0, sizeof(extra32));
    extra36 = QString(QChar(0xFF));
    extra40 = 0;
    extra41 = -1;
    outsideTemperature.clear();
    memset(functions, -1, sizeof(functions));
    seatHeating.hasSeatHeating = 0;
    seatHeating.leftSeat = 0;
    seatHeating.rightSeat = 0;
    memset(seatHeating.stored, 0, sizeof(seatHeating.stored));
    raw.resize(0);
}

qint8 AirData::function(int byte) const
{
    if (byte < FirstFunction || byte > LastFunction)
        return -1;
    return functions[byte - FirstFunction];
}

void AirData::setFunction(int byte, qint8 value)
{
    if (byte < FirstFunction || byte > LastFunction)
        return;
    functions[byte - FirstFunction] = value;
}

namespace {

// Seat record byte n is AirData byte 89 + n; stored[i] is seat byte i + 3.
// AirData bytes 95 and 98 are thus stored[3] and stored[6].
bool sameSeatHeating(SeatHeatingData const &a, SeatHeatingData const &b)
{
    if (a.hasSeatHeating != b.hasSeatHeating || a.leftSeat != b.leftSeat
            || a.rightSeat != b.rightSeat)
        return false;
    for (int i = 0; i < 11; ++i) {
        if (i == 3 || i == 6)
            continue;
        if (a.stored[i] != b.stored[i])
            return false;
    }
    // The crossing of the module's comparison: byte 98 of this record
    // against byte 95 of the other, and neither byte against its twin.
    return a.stored[6] == b.stored[3];
}

// Same size, and the one found inside the other from index 0 on.
bool sameRaw(QByteArray const &a, QByteArray const &b)
{
    return a.size() == b.size() && a.indexOf(b) >= 0;
}

} // namespace

bool AirData::compare(AirData const &other) const
{
    // Bytes 4, 6, 40, 41, the outside temperature and the tyre record are
    // left out: a change of those alone is no change of the climate.
    return airType == other.airType
            && showRequest == other.showRequest
            && leftTemperatureValid == other.leftTemperatureValid
            && leftTemperatureLow == other.leftTemperatureLow
            && leftTemperatureHigh == other.leftTemperatureHigh
            && rightTemperatureValid == other.rightTemperatureValid
            && rightTemperatureLow == other.rightTemperatureLow
            && rightTemperatureHigh == other.rightTemperatureHigh
            && leftTemperatureUnit == other.leftTemperatureUnit
            && rightTemperatureUnit == other.rightTemperatureUnit
            && leftTemperature == other.leftTemperature
            && rightTemperature == other.rightTemperature
            && extra28 == other.extra28
            && extra36 == other.extra36
            && memcmp(extra24, other.extra24, sizeof(extra24)) == 0
            && memcmp(extra32, other.extra32, sizeof(extra32)) == 0
            && memcmp(functions, other.functions, sizeof(functions)) == 0
            && sameSeatHeating(seatHeating, other.seatHeating)
            && sameRaw(raw, other.raw);
}
