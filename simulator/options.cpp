#include "options.h"

#include "boxlink.h"
#include "demo.h"
#include "scenariorunner.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <cerrno>
#include <limits>
#include <sys/stat.h>
#include <unistd.h>

namespace Options {

namespace {

// The options, as --help and the manual page show them. A value's name is
// empty for a switch.
struct Option
{
    char const *name;
    char const *value;
    char const *help;
};

const Option Table[] = {
    {"script", "FILE",
     "run a scenario (- reads standard input); headless unless --window is given"},
    {"window", "", "show the window, also while a scenario runs"},
    {"record", "FILE",
     "write what is done on the screen and the panels as a scenario that replays it; with --script, "
     "what the script does"},
    {"frames", "FILE", "save the frame log (TX frames, RX answers) at the end, headless or from the window"},
    {"screenshot", "FILE", "save the head unit's screen as PNG at the end"},
    {"window-screenshot", "FILE",
     "show the window, run the scenario if one is given, save the whole window as PNG and quit"},
    {"demo", "DIR", "run the demo tour headless, one PNG per step into DIR (made if missing)"},
    {"gallery", "DIR",
     "open every page of every family with sample data, one PNG per screen of each page and an "
     "index.html into DIR (made if missing), headless"},
    {"box-coverage", "", "print how many adjustable rows the decoder box answers"},
    {"serial", "DEVICE[:BAUD]",
     "link a real decoder box on the serial port DEVICE, 8 data bits, no parity, one stop bit, at BAUD "
     "(default 38400): the frames go out on it, what it sends back shows in the frame log, and the "
     "simulated box is off; a port that can't be opened ends the simulator with 3"},
    {"catalogue", "FILE",
     "the decoder box's catalogue (default: $CARCONTROL_CATALOGUE_FILE, else the build's); one named "
     "here must be readable and valid"},
    {"protocol", "N",
     "start on protocol N (default 28): the window and --screenshot with the catalogue's sample data, "
     "a scenario with nothing else (its protocol line wins)"},
    {"zeroed", "",
     "start with zeroed buffers: --protocol and the window without demo or sample data, and the Car panel's "
     "Sample data off"},
    {"clock", "HH:MM", "the head unit's clock stands at this time (--demo and --gallery: 10:08 unless given)"},
    {"list-protocols", "", "print every protocol id with its family's first pages"},
    {"zoom", "PERCENT", "the window's screen at 50 to 100 per cent of its size (default: what fits the desktop)"},
    {"language", "LOCALE",
     "the head unit's locale, e.g. zh_CN: the plug-in shows its texts in that language where it has them"},
    {"plugin", "FILE", "the car control plug-in (default: $CARCONTROL_PLUGIN_DIR/libcarcontrol.so)"},
    {"reverse-plugin", "FILE", "the reverse plug-in (default: libreversesample.so beside the car control plug-in)"},
    {"platform", "NAME", "Qt platform plug-in, e.g. offscreen"},
    {"verbose", "", "print the plug-in's debug lines and each scenario line"},
    {"version", "", "print the simulator's version and Qt's"},
    {"help", "", "print the options"},
};

// Printed by the hidden --manual-page: the build checks the installed page
// against it.
char const ManualPageOption[] = "manual-page";

char const Description[] =
    "A car head unit on the desktop: it loads the car control plug-in as the head unit does, plays the "
    "car's data and the decoder box that answers the plug-in's command frames, and shows the head unit's "
    "screen with a control panel. Scenarios drive it headless: open a page, set bytes, tap, expect frames "
    "and texts.\n\nWithout options: the window on protocol 28 with demo data.";

// The exit status, as --help and the manual page list it.
const struct
{
    int status;
    char const *meaning;
} ExitStatus[] = {
    {0, "the scenario ran to its end, or the window was closed"},
    {1, "an expectation of the scenario failed"},
    {2, "a line of the scenario is malformed (nothing ran)"},
    {3, "the simulator can't start: bad options, no plug-in, an unreadable scenario or catalogue, an output "
        "that can't be written"},
};

void addOptions(QCommandLineParser *parser)
{
    // --platform was also written -platform, as Qt's own programs take it.
    parser->setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (Option const &option : Table) {
        QStringList names{QLatin1String(option.name)};
        if (qstrcmp(option.name, "help") == 0)
            names << QStringLiteral("h");
        parser->addOption(QCommandLineOption(names, QLatin1String(option.help), QLatin1String(option.value)));
    }
    QCommandLineOption manual(QLatin1String(ManualPageOption), QStringLiteral("the manual page in roff"));
    manual.setFlags(QCommandLineOption::HiddenFromHelp);
    parser->addOption(manual);
    QString description = QLatin1String(Description) + QStringLiteral("\n\nExit status:");
    for (auto const &exit : ExitStatus)
        description += QStringLiteral("\n  %1  %2").arg(exit.status).arg(QLatin1String(exit.meaning));
    parser->setApplicationDescription(description);
}

// A number from the value of an option, within min..max.
bool number(QString const &text, int base, int min, int max, int *value)
{
    bool ok = false;
    *value = text.toInt(&ok, base);
    return ok && *value >= min && *value <= max;
}

bool fail(QString *error, QString const &reason)
{
    *error = reason;
    return false;
}

// Why path can't be written as a file: empty when it can.
QString unwritableFile(QString const &path)
{
    const QByteArray native = QFile::encodeName(path);
    struct stat status;
    if (::stat(native.constData(), &status) == 0) {
        if (S_ISDIR(status.st_mode))
            return qt_error_string(EISDIR);
        return ::access(native.constData(), W_OK) == 0 ? QString() : qt_error_string(errno);
    }
    if (errno != ENOENT)
        return qt_error_string(errno);
    // A new file: its folder must be there and take it.
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    if (::stat(folder.constData(), &status) != 0)
        return qt_error_string(errno);
    if (!S_ISDIR(status.st_mode))
        return qt_error_string(ENOTDIR);
    return ::access(folder.constData(), W_OK | X_OK) == 0 ? QString() : qt_error_string(errno);
}

// The same file under two names is the same key.
QString fileKey(QString const &path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    if (!canonical.isEmpty())
        return canonical;
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : QDir(folder).filePath(info.fileName());
}

// Roff for a line of plain text: the hyphens of options are minus signs, and
// a leading dot or quote isn't taken as a request.
QString roff(QString text)
{
    text.replace(QLatin1Char('\\'), QLatin1String("\\e")).replace(QLatin1Char('-'), QLatin1String("\\-"));
    if (text.startsWith(QLatin1Char('.')) || text.startsWith(QLatin1Char('\'')))
        text.prepend(QLatin1String("\\&"));
    return text;
}

} // namespace

bool parse(QStringList const &arguments, Values *values, QString *error)
{
    QCommandLineParser parser;
    addOptions(&parser);
    if (!parser.parse(arguments))
        return fail(error, parser.errorText());
    if (!parser.positionalArguments().isEmpty())
        return fail(error, QStringLiteral("unexpected argument %1").arg(parser.positionalArguments().first()));

    Values v;
    v.protocol = Demo::ProtocolId;
    v.script = parser.value(QStringLiteral("script"));
    v.record = parser.value(QStringLiteral("record"));
    v.frames = parser.value(QStringLiteral("frames"));
    v.screenshot = parser.value(QStringLiteral("screenshot"));
    v.windowScreenshot = parser.value(QStringLiteral("window-screenshot"));
    v.demoDirectory = parser.value(QStringLiteral("demo"));
    v.galleryDirectory = parser.value(QStringLiteral("gallery"));
    v.catalogue = parser.value(QStringLiteral("catalogue"));
    v.plugin = parser.value(QStringLiteral("plugin"));
    v.reversePlugin = parser.value(QStringLiteral("reverse-plugin"));
    v.platform = parser.value(QStringLiteral("platform"));
    v.language = parser.value(QStringLiteral("language"));
    v.boxCoverage = parser.isSet(QStringLiteral("box-coverage"));
    if (parser.isSet(QStringLiteral("serial"))) {
        QString reason;
        if (!BoxLink::parseTarget(parser.value(QStringLiteral("serial")), &v.serialDevice, &v.serialBaudRate, &reason))
            return fail(error, QStringLiteral("--serial: %1").arg(reason));
    }
    v.listProtocols = parser.isSet(QStringLiteral("list-protocols"));
    v.version = parser.isSet(QStringLiteral("version"));
    v.verbose = parser.isSet(QStringLiteral("verbose"));
    v.zeroed = parser.isSet(QStringLiteral("zeroed"));
    v.help = parser.isSet(QStringLiteral("help"));
    v.manualPage = parser.isSet(QLatin1String(ManualPageOption));
    v.window = parser.isSet(QStringLiteral("window")) || parser.isSet(QStringLiteral("window-screenshot"));

    // Options given with an empty value name nothing.
    for (char const *name : {"script", "record", "frames", "screenshot", "window-screenshot", "demo", "gallery",
                             "catalogue", "plugin", "reverse-plugin", "platform", "language", "protocol", "clock",
                             "zoom"}) {
        if (parser.isSet(QLatin1String(name)) && parser.value(QLatin1String(name)).isEmpty())
            return fail(error, QStringLiteral("--%1 needs a value").arg(QLatin1String(name)));
    }
    if (!v.language.isEmpty()) {
        const QLocale locale(v.language);
        if (locale.language() == QLocale::C && v.language != QLatin1String("C"))
            return fail(error, QStringLiteral("--language %1 is not a locale").arg(v.language));
    }
    if (parser.isSet(QStringLiteral("protocol"))) {
        const QString text = parser.value(QStringLiteral("protocol"));
        if (!number(text, 0, 0, std::numeric_limits<int>::max(), &v.protocol))
            return fail(error, QStringLiteral("--protocol %1 is not a protocol id").arg(text));
        v.protocolGiven = true;
    }
    if (parser.isSet(QStringLiteral("clock"))) {
        const QString text = parser.value(QStringLiteral("clock"));
        v.clock = QTime::fromString(text, QStringLiteral("HH:mm"));
        if (!v.clock.isValid())
            return fail(error, QStringLiteral("--clock %1 is no time of the form HH:MM").arg(text));
    }
    if (parser.isSet(QStringLiteral("zoom"))) {
        const QString text = parser.value(QStringLiteral("zoom"));
        if (!number(text, 10, 50, 100, &v.zoom))
            return fail(error, QStringLiteral("--zoom %1 is not a percentage from 50 to 100").arg(text));
    }

    if (!v.demoDirectory.isEmpty() && (!v.script.isEmpty() || v.window))
        return fail(error, QStringLiteral("--demo runs on its own, without --script or --window"));
    if (!v.galleryDirectory.isEmpty() && (!v.script.isEmpty() || v.window || !v.demoDirectory.isEmpty()))
        return fail(error, QStringLiteral("--gallery runs on its own, without --script, --window or --demo"));
    // The gallery opens every family, the demo tour is the demo car's; the
    // others look at no protocol.
    if (v.protocolGiven) {
        const QString other = !v.galleryDirectory.isEmpty() ? QStringLiteral("--gallery")
                : !v.demoDirectory.isEmpty()                ? QStringLiteral("--demo")
                : v.boxCoverage                             ? QStringLiteral("--box-coverage")
                : v.listProtocols                           ? QStringLiteral("--list-protocols")
                                                            : QString();
        if (!other.isEmpty())
            return fail(error, QStringLiteral("--protocol has no meaning with %1").arg(other));
    }
    if (!v.serialDevice.isEmpty() && (!v.demoDirectory.isEmpty() || !v.galleryDirectory.isEmpty() || v.boxCoverage
                                      || v.listProtocols))
        return fail(error, QStringLiteral("--serial goes with a scenario or the window"));
    if ((!v.record.isEmpty() || !v.frames.isEmpty()) && (!v.demoDirectory.isEmpty() || !v.galleryDirectory.isEmpty()))
        return fail(error, QStringLiteral("--record and --frames go with a scenario or the window, not with --demo or --gallery"));
    *values = v;
    return true;
}

bool checkOutputs(Values const &values, QString *error)
{
    const struct
    {
        char const *option;
        QString const &path;
        char const *what;
    } files[] = {
        {"--record", values.record, "the recording"},
        {"--frames", values.frames, "the frame log"},
        {"--screenshot", values.screenshot, "the screenshot"},
        {"--window-screenshot", values.windowScreenshot, "the window's picture"},
    };
    QString scriptKey;
    if (!values.script.isEmpty() && values.script != QLatin1String("-"))
        scriptKey = fileKey(values.script);
    QStringList keys, owners;
    for (auto const &file : files) {
        if (file.path.isEmpty())
            continue;
        const QString reason = unwritableFile(file.path);
        if (!reason.isEmpty())
            return fail(error, QStringLiteral("%1: can't write %2: %3").arg(file.path, QLatin1String(file.what), reason));
        const QString key = fileKey(file.path);
        if (key == scriptKey)
            return fail(error, QStringLiteral("%1: %2 would overwrite the scenario that --script runs")
                                   .arg(file.path, QLatin1String(file.option)));
        const int other = keys.indexOf(key);
        if (other >= 0)
            return fail(error, QStringLiteral("%1: named by both %2 and %3; each output needs a file of its own")
                                   .arg(file.path, owners.at(other), QLatin1String(file.option)));
        keys << key;
        owners << QLatin1String(file.option);
    }
    // The folders of the pictures are made where missing, so that a tour
    // can go into a new folder.
    for (QString const &folder : {values.demoDirectory, values.galleryDirectory}) {
        if (folder.isEmpty())
            continue;
        if (!Scenario::makeFolder(folder, error))
            return false;
        if (::access(QFile::encodeName(folder).constData(), W_OK | X_OK) != 0)
            return fail(error, QStringLiteral("%1: can't write pictures into the folder: %2")
                                   .arg(folder, qt_error_string(errno)));
    }
    return true;
}

QString helpText()
{
    QCommandLineParser parser;
    addOptions(&parser);
    return parser.helpText();
}

QString manualPage()
{
    QString page = QStringLiteral(
        ".\\\" The options come from the simulator's table: headunit-sim --manual-page\n"
        ".TH HEADUNIT-SIM 1 \"\" \"carcontrol\" \"User Commands\"\n"
        ".SH NAME\n"
        "headunit-sim \\- a head unit, a car and its decoder box on the desktop\n"
        ".SH SYNOPSIS\n"
        ".B headunit-sim\n"
        "[\\fIoptions\\fR]\n"
        ".SH DESCRIPTION\n");
    const QStringList paragraphs = QString::fromLatin1(Description).split(QStringLiteral("\n\n"));
    for (int i = 0; i < paragraphs.size(); ++i)
        page += (i ? QStringLiteral(".PP\n") : QString()) + roff(paragraphs.at(i)) + QLatin1Char('\n');
    page += QStringLiteral(".SH OPTIONS\n");
    for (Option const &option : Table) {
        page += QStringLiteral(".TP\n");
        if (*option.value)
            page += QStringLiteral(".BI %1 \" %2\"\n").arg(roff(QStringLiteral("--") + QLatin1String(option.name)),
                                                           QLatin1String(option.value));
        else
            page += QStringLiteral(".B %1\n").arg(roff(QStringLiteral("--") + QLatin1String(option.name)));
        page += roff(QLatin1String(option.help)) + QStringLiteral(".\n");
    }
    page += QStringLiteral(".SH EXIT STATUS\n");
    for (auto const &exit : ExitStatus)
        page += QStringLiteral(".TP\n.B %1\n%2.\n").arg(exit.status).arg(roff(QLatin1String(exit.meaning)));
    page += QStringLiteral(
        ".SH ENVIRONMENT\n"
        ".TP\n"
        ".B CARCONTROL_PLUGIN_DIR, CARCONTROL_RESOURCE_ROOT, CARCONTROL_CATALOGUE_FILE\n"
        "override where the plug-ins, the artwork and the catalogue are; by default\n"
        "they lie beside the installed program.\n"
        ".SH FILES\n"
        ".TP\n"
        ".I /usr/share/doc/carcontrol-bench/scenarios.md\n"
        "the scenario language: every command, its arguments and what it checks.\n"
        ".TP\n"
        ".I /usr/share/doc/carcontrol-bench/examples/\n"
        "example scenarios, one or more for each family of pages; run one with\n"
        ".B headunit-sim \\-\\-script\n"
        ".IR FILE .\n");
    return page;
}

} // namespace Options
