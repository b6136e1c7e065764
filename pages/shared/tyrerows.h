#ifndef TYREROWS_H
#define TYREROWS_H

#include "airdata.h"
#include "canobj.h"
#include "databuffer.h"
#include "row.h"

#include <QList>
#include <QString>
#include <QVariant>

// Readers for the rows of the tyre pages that show the tyre record inside
// the climate record rather than the protocol's buffer: Row::read() takes
// them by wheel. Without a record the pressures are empty, a status shows no
// option and a temperature its zero point (0 unless the page says other).
namespace TyreRows {

// The spare wheel, beside TirePressureInformation's four: only its pressure
// is recorded.
const int Spare = 4;

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
    case TirePressureInformation::RearRight: return tyres->rearRightPressure;
    default: return tyres->sparePressure;
    }
}

template <int Wheel>
QVariant status(DataBuffer const &)
{
    TirePressureInformation const *tyres = record();
    return tyres ? int(tyres->status[Wheel]) : -1;
}

template <int Wheel, int ZeroPoint = 0>
QVariant temperature(DataBuffer const &)
{
    TirePressureInformation const *tyres = record();
    return tyres ? int(tyres->temperature[Wheel]) : ZeroPoint;
}

// The four pressure rows that lead every tyre page, as ready texts.
inline QList<Row> pressureRows()
{
    typedef TirePressureInformation Tyres;
    return QList<Row>()
        << Row::text("Left front tire pressure value").read(pressure<Tyres::FrontLeft>)
        << Row::text("Right front tire pressure value").read(pressure<Tyres::FrontRight>)
        << Row::text("Left rear tire pressure value").read(pressure<Tyres::RearLeft>)
        << Row::text("Right rear tire pressure value").read(pressure<Tyres::RearRight>);
}

// A tyre temperature row: the byte as it stands, in whole degrees Celsius.
inline Row temperatureRow(const char *title, Row::Reader reader)
{
    return Row::of(TemperatureKind, title, {0, 255}).read(reader);
}

} // namespace TyreRows

#endif // TYREROWS_H
