#ifndef CANOBJ_H
#define CANOBJ_H

#include "airdata.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "radardata.h"

#include <QByteArray>
#include <QObject>
#include <QVariant>

// The facade of the head unit's CAN-bus module: the one source of vehicle
// data and the one sink of command frames. A process-wide singleton.
class CanObj : public QObject
{
    Q_OBJECT
public:
    // Never null; valid for the life of the process.
    static CanObj *instance();
    // The protocol id of the selected vehicle; below 1 when none is selected.
    static int id();

    // The data buffer of a protocol. Never null; its address doesn't change
    // while the process runs. Read and write it through DataBuffer.
    unsigned char *getDataPointerById(int id);
    QVariant getDataById(int id) const;

    // The current records; the same objects on every call.
    AirData const *getAirData() const;
    CardoorData const *getCardoorData() const;
    CarbodyData const *getCarbodyData() const;
    RadarData const *getRadarData() const;

    bool isRightDriver() const;
    bool isShowReverseLine() const;
    bool hadReverseLine() const;
    bool disableRadar() const;

    // Writes the decoder box's checksum into the last place of the frame
    // (the last two places on protocol 67). May be called again on the same
    // array after a byte changed.
    static void autoCalculateChecksum(QByteArray &frame);

signals:
    // Emitting it sends the frame to the decoder box.
    void sendDataToCan(QByteArray frame);

private:
    explicit CanObj(QObject *parent = 0);
};

#endif // CANOBJ_H
