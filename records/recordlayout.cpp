// The byte layout of the records is a format shared with the closed CAN-bus
// module of the head unit. On the head unit's 32-bit build every offset and
// extent below is checked at compile time; on a 64-bit desktop, where a
// QString takes eight bytes, only the order of the fields is the same.

#include "airdata.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "radardata.h"

#include <stddef.h>

#include <type_traits>

#define RECORD_AT(type, member, offset) \
    static_assert(sizeof(void *) != 4 || offsetof(type, member) == offset, \
                  #type "::" #member " must lie at byte " #offset)
#define RECORD_SIZE(type, size) \
    static_assert(sizeof(void *) != 4 || sizeof(type) == size, \
                  #type " must take " #size " bytes")

// Sizes that hold on every platform.
static_assert(sizeof(SeatHeatingData) == 14, "SeatHeatingData must take 14 bytes");
static_assert(sizeof(CardoorData) == 6, "CardoorData must take 6 bytes");
static_assert(sizeof(RadarData) == 18, "RadarData must take 18 bytes");
static_assert(sizeof(CarbodyData) == 44, "CarbodyData must take 44 bytes");
static_assert(offsetof(CarbodyData, cleaningFluid) == 42, "CarbodyData has 43 bytes of data");
static_assert(offsetof(RadarData, secondDistances) == 10, "RadarData's second group at byte 10");

RECORD_SIZE(AirData, 148);
RECORD_AT(AirData, airType, 0);
RECORD_AT(AirData, hasAirConditioner, 4);
RECORD_AT(AirData, showRequest, 5);
RECORD_AT(AirData, reserved6, 6);
RECORD_AT(AirData, leftTemperatureValid, 7);
RECORD_AT(AirData, leftTemperatureLow, 8);
RECORD_AT(AirData, leftTemperatureHigh, 9);
RECORD_AT(AirData, rightTemperatureValid, 10);
RECORD_AT(AirData, rightTemperatureLow, 11);
RECORD_AT(AirData, rightTemperatureHigh, 12);
RECORD_AT(AirData, leftTemperatureUnit, 13);
RECORD_AT(AirData, rightTemperatureUnit, 14);
RECORD_AT(AirData, leftTemperature, 16);
RECORD_AT(AirData, rightTemperature, 20);
RECORD_AT(AirData, extra24, 24);
RECORD_AT(AirData, extra28, 28);
RECORD_AT(AirData, extra32, 32);
RECORD_AT(AirData, extra36, 36);
RECORD_AT(AirData, extra40, 40);
RECORD_AT(AirData, extra41, 41);
RECORD_AT(AirData, outsideTemperature, 44);
RECORD_AT(AirData, functions, 48);
RECORD_AT(AirData, seatHeating, 89);
RECORD_AT(AirData, tirePressure, 104);
RECORD_AT(AirData, raw, 144);

RECORD_SIZE(TirePressureInformation, 40);
RECORD_AT(TirePressureInformation, state, 0);
RECORD_AT(TirePressureInformation, frontLeftPressure, 4);
RECORD_AT(TirePressureInformation, frontRightPressure, 8);
RECORD_AT(TirePressureInformation, rearLeftPressure, 12);
RECORD_AT(TirePressureInformation, rearRightPressure, 16);
RECORD_AT(TirePressureInformation, sparePressure, 20);
RECORD_AT(TirePressureInformation, summary, 24);
RECORD_AT(TirePressureInformation, status, 25);
RECORD_AT(TirePressureInformation, alarm, 30);
RECORD_AT(TirePressureInformation, temperature, 35);

RECORD_AT(SeatHeatingData, hasSeatHeating, 0);
RECORD_AT(SeatHeatingData, leftSeat, 1);
RECORD_AT(SeatHeatingData, rightSeat, 2);
RECORD_AT(SeatHeatingData, stored, 3);

RECORD_AT(CardoorData, frontLeftDoor, 0);
RECORD_AT(CardoorData, frontRightDoor, 1);
RECORD_AT(CardoorData, rearLeftDoor, 2);
RECORD_AT(CardoorData, rearRightDoor, 3);
RECORD_AT(CardoorData, trunk, 4);
RECORD_AT(CardoorData, hood, 5);

RECORD_AT(CarbodyData, byte0, 0);
RECORD_AT(CarbodyData, handbrake, 1);
RECORD_AT(CarbodyData, byte2, 2);
RECORD_AT(CarbodyData, byte3, 3);
RECORD_AT(CarbodyData, distanceUnit, 4);
RECORD_AT(CarbodyData, distance, 8);
RECORD_AT(CarbodyData, value12, 12);
RECORD_AT(CarbodyData, engineSpeed, 16);
RECORD_AT(CarbodyData, speedUnit, 20);
RECORD_AT(CarbodyData, speed, 22);
RECORD_AT(CarbodyData, speedUnit2, 24);
RECORD_AT(CarbodyData, value26, 26);
RECORD_AT(CarbodyData, batteryVoltage, 28);
RECORD_AT(CarbodyData, remainingFuel, 30);
RECORD_AT(CarbodyData, byte31, 31);
RECORD_AT(CarbodyData, value32, 32);
RECORD_AT(CarbodyData, condensateFault, 34);
RECORD_AT(CarbodyData, byte35, 35);
RECORD_AT(CarbodyData, byte36, 36);
RECORD_AT(CarbodyData, temperatureUnit, 37);
RECORD_AT(CarbodyData, outsideTemperature, 38);
RECORD_AT(CarbodyData, seatBelt, 40);
RECORD_AT(CarbodyData, autoParkingFault, 41);
RECORD_AT(CarbodyData, cleaningFluid, 42);

RECORD_AT(RadarData, valid, 0);
RECORD_AT(RadarData, scale, 1);
RECORD_AT(RadarData, distances, 2);
RECORD_AT(RadarData, secondDistances, 10);

// A byte below 0 means that the car lacks the function or doesn't report the
// value, and the module writes it as 0xFF. These fields are signed types of
// their own on every target, also where plain char is unsigned (ARM).
#define SIGNED_BYTE(record, member) \
    static_assert(std::is_same<std::remove_extent<decltype(record::member)>::type, qint8>::value \
                  && std::is_signed<qint8>::value, #record "::" #member " must be a signed byte")

SIGNED_BYTE(AirData, leftTemperatureUnit);
SIGNED_BYTE(AirData, rightTemperatureUnit);
SIGNED_BYTE(AirData, extra41);
SIGNED_BYTE(AirData, functions);
SIGNED_BYTE(SeatHeatingData, leftSeat);
SIGNED_BYTE(SeatHeatingData, rightSeat);
SIGNED_BYTE(CarbodyData, byte0);
SIGNED_BYTE(CarbodyData, handbrake);
SIGNED_BYTE(CarbodyData, byte2);
SIGNED_BYTE(CarbodyData, byte3);
SIGNED_BYTE(CarbodyData, distanceUnit);
SIGNED_BYTE(CarbodyData, speedUnit);
SIGNED_BYTE(CarbodyData, speedUnit2);
SIGNED_BYTE(CarbodyData, byte31);
SIGNED_BYTE(CarbodyData, condensateFault);
SIGNED_BYTE(CarbodyData, byte35);
SIGNED_BYTE(CarbodyData, temperatureUnit);
SIGNED_BYTE(CarbodyData, seatBelt);
SIGNED_BYTE(CarbodyData, autoParkingFault);
SIGNED_BYTE(CarbodyData, cleaningFluid);
