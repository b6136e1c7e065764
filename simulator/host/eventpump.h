#ifndef EVENTPUMP_H
#define EVENTPUMP_H

// Delivering what is pending, as the head unit's event loop would between
// two inputs.

namespace EventPump {

// Delivers every pending event, deferred deletions included, and what
// those post in turn.
void settle();
// Runs the event loop for ms milliseconds, timers included, then settles.
void wait(int ms);

} // namespace EventPump

#endif // EVENTPUMP_H
