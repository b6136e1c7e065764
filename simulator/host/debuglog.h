#ifndef DEBUGLOG_H
#define DEBUGLOG_H

// The debug lines that the plug-in and the host write, for the window's log
// and for scenarios that look for a line. The newest MaxLines are kept; a
// line's index counts from the start of the process, so that a reader who
// asks for the lines since an index gets what it hasn't seen, minus any that
// were dropped meanwhile.

#include <QStringList>

namespace DebugLog {

const int MaxLines = 20000;

// Keeps every message written from now on. echo: also print the debug lines;
// warnings and worse are always printed.
void capture(bool echo);
// The messages kept, oldest first.
QStringList lines();
// The kept messages whose index is first or later.
QStringList since(qint64 first);
// The index that the next message will have.
qint64 end();

} // namespace DebugLog

#endif // DEBUGLOG_H
