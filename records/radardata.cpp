#include "radardata.h"

#include <string.h>

namespace {

bool anyNonZero(quint8 const *bytes, int count)
{
    for (int i = 0; i < count; ++i) {
        if (bytes[i])
            return true;
    }
    return false;
}

// Makes the record known to the meta-type system as soon as the library that
// holds it is loaded, so that a QVariant can carry it across the seam.
const int radarDataTypeId = qRegisterMetaType<RadarData>("RadarData");

} // namespace

RadarData::RadarData()
    : valid(1), scale(10)
{
    memset(distances, 0, sizeof(distances));
    memset(secondDistances, 0, sizeof(secondDistances));
}

void RadarData::clear()
{
    valid = 0;
    memset(distances, 0, sizeof(distances));
    memset(secondDistances, 0, sizeof(secondDistances));
}

bool RadarData::isWarningState() const
{
    return valid == 1 && anyNonZero(distances, DistanceCount);
}

bool RadarData::isBothSides() const
{
    return valid == 1 && anyNonZero(secondDistances, DistanceCount);
}
