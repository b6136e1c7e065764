#ifndef DEBUGLOG_H
#define DEBUGLOG_H

// The debug lines that the plug-in and the host write, kept from the start
// of the process, for the window's log and for scenarios that look for a
// line.

#include <QStringList>

namespace DebugLog {

// Keeps every message written from now on. echo: also print the debug lines;
// warnings and worse are always printed.
void capture(bool echo);
// All messages kept so far, oldest first.
QStringList lines();
// The messages from index first on.
QStringList since(int first);

} // namespace DebugLog

#endif // DEBUGLOG_H
