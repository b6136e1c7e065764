#ifndef OPTIONS_H
#define OPTIONS_H

// The simulator's command line: one table of options, read with
// QCommandLineParser; --help and the manual page are made from the same
// table, so that neither can leave an option out.

#include <QString>
#include <QStringList>
#include <QTime>

namespace Options {

// Exit status when the simulator can't start: bad options, no plug-in, an
// unreadable scenario or catalogue, an output that can't be written.
// Scenarios themselves end with 0, 1 or 2.
constexpr int StartFailed = 3;

struct Values
{
    QString script;
    QString record;
    QString frames;
    QString screenshot;
    QString windowScreenshot;
    QString demoDirectory;
    QString galleryDirectory;
    QString catalogue;
    bool boxCoverage = false;
    // --serial: a real box's port; empty without one.
    QString serialDevice;
    qint32 serialBaudRate = 0;
    QString plugin;
    QString reversePlugin;
    QString platform;
    QString language;
    // The demo car's unless given.
    int protocol = 0;
    bool protocolGiven = false;
    bool zeroed = false;
    QTime clock;
    int zoom = 0;
    bool listProtocols = false;
    bool version = false;
    bool window = false;
    bool verbose = false;
    bool help = false;
    bool manualPage = false;
};

// Reads the arguments (the program's name first). False, with the reason in
// *error, for an unknown option, a missing or malformed value, or options
// that don't go together.
bool parse(QStringList const &arguments, Values *values, QString *error);

// Checks every file and folder the run will write before anything runs: a
// file's folder must exist and let it be written, a folder of pictures is
// made where missing; no file is named twice, and none is the scenario
// being run. False, with the path and the system's reason in *error.
bool checkOutputs(Values const &values, QString *error);

// What --help prints, and the manual page in roff.
QString helpText();
QString manualPage();

} // namespace Options

#endif // OPTIONS_H
