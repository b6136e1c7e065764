#ifndef RADARDATA_H
#define RADARDATA_H

#include <QMetaType>
#include <QtGlobal>

// The parking radar record, 18 bytes. It travels in a QVariant to the
// reverse view, so it is a registered meta-type.
class RadarData
{
public:
    enum { DistanceCount = 8 };

    RadarData();

    // Validity mark and both groups of distances to 0; the scale stays.
    void clear();
    // A displayed distance is non-zero and the record is valid.
    bool isWarningState() const;
    // A distance of the second group is non-zero and the record is valid.
    bool isBothSides() const;

    quint8 valid;                          // 0: 1 when valid
    quint8 scale;                          // 1: scale of the distances
    quint8 distances[DistanceCount];       // 2..9: the displayed group
    quint8 secondDistances[DistanceCount]; // 10..17: not passed on
};

Q_DECLARE_METATYPE(RadarData)

#endif // RADARDATA_H
