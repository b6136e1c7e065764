#ifndef CLIMATEROWS_H
#define CLIMATEROWS_H

#include "airdata.h"
#include "canobj.h"
#include "databuffer.h"

#include <QString>
#include <QVariant>

// Readers for the rows that show the climate record rather than the
// protocol's buffer: Row::read() takes them. Without a record a text is
// empty.
namespace ClimateRows {

// The outside temperature, as the ready text the record carries.
inline QVariant outsideTemperature(DataBuffer const &)
{
    AirData const *air = CanObj::instance()->getAirData();
    return air ? air->outsideTemperature : QString();
}

} // namespace ClimateRows

#endif // CLIMATEROWS_H
