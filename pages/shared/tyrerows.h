#ifndef TYREROWS_H
#define TYREROWS_H

#include "airdata.h"
#include "canobj.h"
#include "databuffer.h"

#include <QString>
#include <QVariant>

// Readers for the rows of the tyre pages that show the tyre record inside
// the climate record rather than the protocol's buffer: Row::read() takes
// them by wheel. Without a record the pressures are empty, a status shows no
// option and a temperature 0.
namespace TyreRows {

inline TirePressureInformation const *record()
{
    AirData const *air = CanObj::instance()->getAirData();
    return air ? &air->tirePressure : 0;
}

template <int Wheel>
QVariant pressure(DataBuffer const &)
{
    TirePressureInformation const *tyres = record();
    if (!tyres)
        return QString();
    switch (Wheel) {
    case TirePressureInformation::FrontLeft: return tyres->frontLeftPressure;
    case TirePressureInformation::FrontRight: return tyres->frontRightPressure;
    case TirePressureInformation::RearLeft: return tyres->rearLeftPressure;
    default: return tyres->rearRightPressure;
    }
}

template <int Wheel>
QVariant status(DataBuffer const &)
{
    TirePressureInformation const *tyres = record();
    return tyres ? int(tyres->status[Wheel]) : -1;
}

template <int Wheel>
QVariant temperature(DataBuffer const &)
{
    TirePressureInformation const *tyres = record();
    return tyres ? int(tyres->temperature[Wheel]) : 0;
}

} // namespace TyreRows

#endif // TYREROWS_H
