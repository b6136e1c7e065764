#ifndef HOSTSTATE_H
#define HOSTSTATE_H

// The state of the desktop host that its files share. Everything lives on the
// GUI thread.

#include "airdata.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "hostsim.h"
#include "radardata.h"

#include <QDateTime>
#include <QHash>
#include <QPixmap>
#include <QPointer>

#include <memory>

class QPluginLoader;

namespace HostSim {

struct VehicleState
{
    VehicleState() = default;
    VehicleState(VehicleState const &) = delete;
    VehicleState &operator=(VehicleState const &) = delete;
    // The data buffers go with the host.
    ~VehicleState();

    int protocolId = 0;
    // The data buffers handed out, by protocol id: BufferSize bytes each,
    // made on first demand and kept for the life of the host, as the CAN-bus
    // module keeps them.
    QHash<int, unsigned char *> buffers;

    AirData air;
    CardoorData door;
    CarbodyData body;
    RadarData radar;
    bool recordAvailable[4] = {true, true, true, true};

    bool rightDriver = false;
    bool showReverseLine = true;
    bool hadReverseLine = true;
    bool disableRadar = false;

    QList<QByteArray> frames;
};

struct ServiceState
{
    QList<QPair<QString, QString> > climateCommands;
    QList<int> passedKeys;
    int screensaverRequests = 0;
    QStringList activities;
    QPixmap wallpaper;
    qint64 clockOffsetMs = 0;
    int touchSounds = 0;
    QString reversePluginFile;
    std::unique_ptr<QPluginLoader> reverseLoader;
};

VehicleState &vehicle();
ServiceState &services();

void showHostMessage(QString const &text);
void hideHostMessage();

// Appends what the host records of a call, dropping the oldest beyond
// MaxKeptRecords.
template <typename T>
void keepRecord(QList<T> &records, T const &record)
{
    records.append(record);
    if (records.size() > MaxKeptRecords)
        records.removeFirst();
}

// The size of a data buffer; any offset a protocol uses lies below it.
constexpr int BufferSize = 8192;

} // namespace HostSim

#endif // HOSTSTATE_H
