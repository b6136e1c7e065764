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
    int protocolId = 0;
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

// The size of a data buffer; any offset a protocol uses lies below it.
constexpr int BufferSize = 8192;

} // namespace HostSim

#endif // HOSTSTATE_H
