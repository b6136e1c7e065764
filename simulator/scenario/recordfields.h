#ifndef RECORDFIELDS_H
#define RECORDFIELDS_H

// The fields of the climate record by their offsets in its fixed 32-bit
// layout, whatever the platform: on a 64-bit desktop a QString takes eight
// bytes, so the record's own bytes lie elsewhere, and the simulator finds the
// field that the offset names instead. The body and radar records hold no
// pointers and have the same layout everywhere; they are written as bytes.

#include <QString>

class AirData;

namespace RecordFields {

// A one-byte field of AirData: bytes 4 to 15, 24 to 27, 32 to 35, 40 to 43,
// 48 to 107 and the byte fields of the tyre record (104 to 107, 128 to 143).
bool isAirByte(int offset);
// Fields that hold signed values: the temperature units (13, 14), byte 41,
// the functions (48 to 88) and the seats (90, 91).
bool isAirByteSigned(int offset);
// The field's value, signed where the field is; 0 for no byte field.
int airByte(AirData const &air, int offset);
// Stores the low eight bits of value.
// False, changing nothing, for an offset without a byte field.
bool setAirByte(AirData &air, int offset, int value);

// The text fields: 16, 20, 28, 36, 44 and the tyre texts 108 to 124.
bool isAirText(int offset);
QString airText(AirData const &air, int offset);
bool setAirText(AirData &air, int offset, QString const &text);

// The sizes of the records that are written as bytes: the body record's 43
// bytes of data and the radar record's 18.
constexpr int CarbodyBytes = 43;
constexpr int RadarBytes = 18;

} // namespace RecordFields

#endif // RECORDFIELDS_H
