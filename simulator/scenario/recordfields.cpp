#include "recordfields.h"

#include "airdata.h"

namespace RecordFields {

namespace {

// The byte that the 32-bit offset names; null for none and for the bool at
// offset 4, which is set by value.
quint8 *bytePointer(AirData &air, int offset)
{
    if (offset >= 48 && offset <= 88)
        return reinterpret_cast<quint8 *>(&air.functions[offset - 48]);
    if (offset >= 89 && offset <= 102)
        return reinterpret_cast<quint8 *>(&air.seatHeating) + (offset - 89);
    TirePressureInformation &tyres = air.tirePressure;
    if (offset >= 105 && offset <= 107)
        return &tyres.reserved1[offset - 105];
    if (offset >= 129 && offset <= 132)
        return &tyres.status[offset - 129];
    if (offset >= 134 && offset <= 137)
        return &tyres.alarm[offset - 134];
    if (offset >= 139 && offset <= 142)
        return &tyres.temperature[offset - 139];
    if (offset >= 24 && offset <= 27)
        return &air.extra24[offset - 24];
    if (offset >= 32 && offset <= 34)
        return &air.extra32[offset - 32];
    switch (offset) {
    case 4: return &air.hasAirConditioner;
    case 5: return &air.showRequest;
    case 6: return &air.reserved6;
    case 7: return &air.leftTemperatureValid;
    case 8: return &air.leftTemperatureLow;
    case 9: return &air.leftTemperatureHigh;
    case 10: return &air.rightTemperatureValid;
    case 11: return &air.rightTemperatureLow;
    case 12: return &air.rightTemperatureHigh;
    case 13: return reinterpret_cast<quint8 *>(&air.leftTemperatureUnit);
    case 14: return reinterpret_cast<quint8 *>(&air.rightTemperatureUnit);
    case 15: return &air.reserved15;
    case 35: return &air.reserved35;
    case 40: return &air.extra40;
    case 41: return reinterpret_cast<quint8 *>(&air.extra41);
    case 42: return &air.reserved42[0];
    case 43: return &air.reserved42[1];
    case 103: return &air.reserved103;
    case 104: return &tyres.state;
    case 128: return &tyres.summary;
    case 133: return &tyres.reserved29;
    case 138: return &tyres.reserved34;
    case 143: return &tyres.reserved39;
    default: return nullptr;
    }
}

QString *textPointer(AirData &air, int offset)
{
    switch (offset) {
    case 16: return &air.leftTemperature;
    case 20: return &air.rightTemperature;
    case 28: return &air.extra28;
    case 36: return &air.extra36;
    case 44: return &air.outsideTemperature;
    case 108: return &air.tirePressure.frontLeftPressure;
    case 112: return &air.tirePressure.frontRightPressure;
    case 116: return &air.tirePressure.rearLeftPressure;
    case 120: return &air.tirePressure.rearRightPressure;
    case 124: return &air.tirePressure.sparePressure;
    default: return nullptr;
    }
}

} // namespace

bool isAirByte(int offset)
{
    static AirData probe;
    return bytePointer(probe, offset);
}

bool isAirByteSigned(int offset)
{
    return offset == 13 || offset == 14 || offset == 41 || (offset >= 48 && offset <= 88)
            || offset == 90 || offset == 91;
}

int airByte(AirData const &air, int offset)
{
    quint8 const *byte = bytePointer(const_cast<AirData &>(air), offset);
    if (!byte)
        return 0;
    return isAirByteSigned(offset) ? int(qint8(*byte)) : int(*byte);
}

bool setAirByte(AirData &air, int offset, int value)
{
    quint8 *byte = bytePointer(air, offset);
    if (!byte)
        return false;
    *byte = quint8(value);
    return true;
}

bool isAirText(int offset)
{
    static AirData probe;
    return textPointer(probe, offset);
}

QString airText(AirData const &air, int offset)
{
    QString const *text = textPointer(const_cast<AirData &>(air), offset);
    return text ? *text : QString();
}

bool setAirText(AirData &air, int offset, QString const &text)
{
    QString *field = textPointer(air, offset);
    if (!field)
        return false;
    *field = text;
    return true;
}

} // namespace RecordFields
