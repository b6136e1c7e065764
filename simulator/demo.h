#ifndef DEMO_H
#define DEMO_H

// The demo car and the demo tour. Both are scenarios built into the
// simulator (demo/demo-data.scn, demo/demo-tour.scn): the car's data on
// protocol 28, and a walk through its screens with one screenshot per step.

#include "scenariorunner.h"

class SimulatorHost;

namespace Demo {

// The protocol of the demo car.
constexpr int ProtocolId = 28;

// Fills the host with the demo car's data, selects protocol 28 and tells
// the root.
Scenario::Result loadData(SimulatorHost &host);
// The demo data, then the tour, whose PNGs go into directory.
Scenario::Result runTour(SimulatorHost &host, QString const &directory);

} // namespace Demo

#endif // DEMO_H
