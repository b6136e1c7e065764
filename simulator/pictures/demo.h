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
// The time on the head unit's clock in the demo tour and the gallery, so
// that two runs give the same pictures.
constexpr char ClockTime[] = "10:08";

// Selects the protocol and tells the root, as the factory settings do.
void selectProtocol(SimulatorHost &host, int protocolId);
// A car on protocolId with data: the demo car's on its own protocol, the
// catalogue's sample values on the others.
Scenario::Result startCar(SimulatorHost &host, int protocolId);
// The sample data of a car other than the demo car: the catalogue's sample
// values, then demo/sample-data.scn for the rows that read the climate
// record or read their buffer by their own rules.
Scenario::Result writeSamples(SimulatorHost &host, int protocolId);

// Fills the host with the demo car's data, selects protocol 28 and tells
// the root.
Scenario::Result loadData(SimulatorHost &host);
// The demo data, then the tour, whose PNGs go into directory.
Scenario::Result runTour(SimulatorHost &host, QString const &directory);

} // namespace Demo

#endif // DEMO_H
