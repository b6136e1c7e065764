#ifndef SCENARIORUNNER_H
#define SCENARIORUNNER_H

// Runs a parsed scenario against the simulator's host, line by line: the
// vehicle state goes into the host, calls go to the plug-in's root, input is
// delivered as real events, expectations are checked. Every line ends with
// the pending events delivered, deferred deletions included, so that what a
// line caused is on the screen (or gone from it) before the next.

#include "expectations.h"
#include "scenario.h"

#include <QString>
#include <QStringList>

class QPixmap;
class SimulatorHost;

namespace Scenario {

// The folders and pictures that runs write. False, with the path and the
// system's reason in *error, when they can't be made.
bool makeFolder(QString const &path, QString *error);
bool savePicture(QPixmap const &picture, QString const &path, QString *error);

// The exit status of a scenario run.
enum Status { Passed = 0, Failed = 1, Malformed = 2 };

struct Result
{
    Status status = Passed;
    // For a failure: "FILE:LINE: expected ... got ...".
    QString message;
    // The files that screenshot wrote, in order.
    QStringList screenshots;
};

class Runner
{
public:
    explicit Runner(SimulatorHost &host);

    // Where screenshot puts a file given by a relative path; the working
    // directory unless set.
    void setOutputDirectory(QString const &directory);
    // Print each line before it runs.
    void setTrace(bool trace);

    // Runs the commands in order, up to the first failure.
    Result run(Script const &script);
    // Runs one command and delivers the pending events. False, with
    // "expected ... got ..." in *failure, when it didn't hold.
    bool execute(Command const &command, QString *failure);
    // Saves the screen as PNG (a relative path goes into the output
    // directory). False, with the reason in *failure, when it can't.
    bool screenshot(QString const &file, QString *failure);

private:
    void callRoot(Command const &command);
    bool setBox(Command const &command, QString *failure);
    bool replay(QString const &file, QString *failure);
    bool linkBox(QString const &target, QString *failure);
    bool giveInput(Command const &command, QString *failure);

    SimulatorHost &m_host;
    Expectations m_expectations;
    QString m_outputDirectory;
    bool m_trace = false;
    QStringList m_screenshots;
};

} // namespace Scenario

#endif // SCENARIORUNNER_H
