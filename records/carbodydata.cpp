#include "carbodydata.h"

#include <string.h>

CarbodyData::CarbodyData()
    : byte0(-1), handbrake(-1), byte2(-1), byte3(0), distanceUnit(-1),
      distance(0), value12(0), engineSpeed(0), speedUnit(-1), reserved21(0),
      speed(0), speedUnit2(-1), reserved25(0), value26(0), batteryVoltage(0),
      remainingFuel(0), byte31(-1), value32(0), condensateFault(-1),
      byte35(-1), byte36(0), temperatureUnit(-1), outsideTemperature(0),
      seatBelt(-1), autoParkingFault(-1), cleaningFluid(-1)
{
    memset(reserved5, 0, sizeof(reserved5));
}

bool CarbodyData::isWarningState() const
{
    return seatBelt == 1 || autoParkingFault == 1 || condensateFault == 1;
}

bool CarbodyData::compareseatBelt(CarbodyData const &other) const
{
    return seatBelt == other.seatBelt;
}

bool CarbodyData::compareWarningPart(CarbodyData const &other) const
{
    return seatBelt == other.seatBelt && condensateFault == other.condensateFault;
}

bool CarbodyData::compare(CarbodyData const &other) const
{
    return byte0 == other.byte0
            && handbrake == other.handbrake
            && byte2 == other.byte2
            && byte3 == other.byte3
            && distanceUnit == other.distanceUnit
            && distance == other.distance
            && value12 == other.value12
            && engineSpeed == other.engineSpeed
            && speedUnit == other.speedUnit
            && speed == other.speed
            && speedUnit2 == other.speedUnit2
            && value26 == other.value26
            && batteryVoltage == other.batteryVoltage
            && remainingFuel == other.remainingFuel
            && byte31 == other.byte31
            && value32 == other.value32
            && condensateFault == other.condensateFault
            && byte35 == other.byte35
            && byte36 == other.byte36
            && temperatureUnit == other.temperatureUnit
            && outsideTemperature == other.outsideTemperature
            && seatBelt == other.seatBelt
            && autoParkingFault == other.autoParkingFault
            && cleaningFluid == other.cleaningFluid;
}
