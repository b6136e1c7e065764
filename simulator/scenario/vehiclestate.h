#ifndef VEHICLESTATE_H
#define VEHICLESTATE_H

// The scenario commands that play the car and the CAN-bus module: they
// change the host's data (the protocol id, data buffers, records, flags,
// settings, the wallpaper) and signal nothing.

namespace Scenario {

struct Command;

namespace VehicleState {

// Whether the command is one of these.
bool changes(Command const &command);
// Applies it to the host. The parser has checked its offsets and values.
void apply(Command const &command);

} // namespace VehicleState

} // namespace Scenario

#endif // VEHICLESTATE_H
