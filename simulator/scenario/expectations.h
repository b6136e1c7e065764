#ifndef EXPECTATIONS_H
#define EXPECTATIONS_H

// The scenario commands that check what the plug-in did: the frames it sent
// to the decoder box, the climate commands it gave the head unit, the rows
// and titles of the extended view in front, the entries of an open list
// dialog, what the screen shows, what the plug-in saved and logged, what a
// real decoder box sent. Frames and climate commands are read in order:
// expect frame and expect command consume what they matched. expect rx
// waits for a frame of the real box and consumes it with everything the box
// sent before it.

#include <QString>

class SimulatorHost;

namespace Scenario {

struct Command;

class Expectations
{
public:
    explicit Expectations(SimulatorHost &host);

    // Whether the command is an expectation (drop frames included).
    static bool isExpectation(Command const &command);
    // False, with "expected ... got ..." in *failure, when it doesn't hold.
    bool check(Command const &command, QString *failure);

private:
    bool checkFrames(Command const &command, QString *failure);
    bool checkTitles(Command const &command, QString *failure);
    bool checkRows(Command const &command, QString *failure);
    bool checkScreen(Command const &command, QString *failure);
    bool checkHost(Command const &command, QString *failure);
    bool checkEntries(Command const &command, QString *failure);
    bool checkReports(Command const &command, QString *failure);

    SimulatorHost &m_host;
};

} // namespace Scenario

#endif // EXPECTATIONS_H
