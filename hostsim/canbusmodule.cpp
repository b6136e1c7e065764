#include "canbusmodule.h"

#include "hoststate.h"

QObject *CanbusModule::signalObject()
{
    return HostSim::canbusSignals();
}
