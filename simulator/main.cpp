// headunit-sim: a car head unit on the desktop. It loads the car control
// plug-in as the head unit's framework does, plays the car and the decoder
// box, shows the head unit's screen and every frame the plug-in sends, and
// runs scenarios: scripted end-to-end tests of the plug-in.

#include "debuglog.h"
#include "demo.h"
#include "eventpump.h"
#include "framelog.h"
#include "gallery.h"
#include "logpanel.h"
#include "mainwindow.h"
#include "recorder.h"
#include "scenariorunner.h"
#include "seriallink.h"
#include "simulatorhost.h"

#include "catalogue.h"
#include "hostsim.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>
#include <QTemporaryDir>
#include <QTime>
#include <QTimer>

#include <cstdio>
#include <memory>

namespace {

// Exit status when the simulator can't start: bad options, no plug-in, an
// unreadable scenario. Scenarios themselves end with 0, 1 or 2.
constexpr int StartFailed = 3;

char const Usage[] =
    "usage: headunit-sim [options]\n"
    "\n"
    "Without options: the head unit's screen and the control panel in a window,\n"
    "on protocol 28 with demo data.\n"
    "\n"
    "  --script FILE       run a scenario (- reads standard input); headless\n"
    "                      unless --window is given. Exit status: 0 all lines ran,\n"
    "                      1 an expectation failed, 2 a malformed line\n"
    "  --window            show the window, also while a scenario runs\n"
    "  --record FILE       write what is done on the screen and the panels as a\n"
    "                      scenario that replays it; with --script, what the\n"
    "                      script does\n"
    "  --frames FILE       save the frame log (TX frames, RX answers) at the end\n"
    "  --screenshot FILE   save the head unit's screen as PNG at the end\n"
    "  --window-screenshot FILE  show the window, run the scenario if one is\n"
    "                      given, save the whole window as PNG and quit\n"
    "  --demo DIR          run the demo tour headless, one PNG per step into DIR\n"
    "  --gallery DIR       open every page of every family with sample data, one\n"
    "                      PNG per screen of each page and an index.html into\n"
    "                      DIR, headless\n"
    "  --box-coverage      print how many adjustable rows the decoder box answers\n"
    "  --catalogue FILE    the decoder box's catalogue (default: the build's,\n"
    "                      or $CARCONTROL_CATALOGUE_FILE)\n"
    "  --protocol N        start on protocol N (default 28): the window and\n"
    "                      --screenshot with the catalogue's sample data, a\n"
    "                      scenario with nothing else (its protocol line wins)\n"
    "  --clock HH:MM       the head unit's clock stands at this time (--demo and\n"
    "                      --gallery: 10:08 unless given)\n"
    "  --list-protocols    print every protocol id with its family's first pages\n"
    "  --zoom PERCENT      the window's screen at 50 to 100 per cent of its size\n"
    "                      (default: what fits the desktop)\n"
    "  --language LOCALE   the head unit's locale, e.g. zh_CN: the plug-in shows\n"
    "                      its texts in that language where it has them\n"
    "  --plugin FILE       the car control plug-in (default:\n"
    "                      $CARCONTROL_PLUGIN_DIR/libcarcontrol.so)\n"
    "  --reverse-plugin FILE  the reverse plug-in (default: libreversesample.so\n"
    "                      beside the car control plug-in)\n"
    "  --platform NAME     Qt platform plug-in, e.g. offscreen\n"
    "  --verbose           print the plug-in's debug lines and each scenario line\n"
    "  --version           the simulator's version\n"
    "  --help              this text\n";

struct Options
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
    QString plugin;
    QString reversePlugin;
    QString platform;
    QString language;
    int protocol = Demo::ProtocolId;
    bool protocolGiven = false;
    QTime clock;
    int zoom = 0;
    bool listProtocols = false;
    bool version = false;
    bool window = false;
    bool verbose = false;
    bool help = false;
};

bool parseOptions(int argc, char **argv, Options *options, QString *error)
{
    for (int i = 1; i < argc; ++i) {
        const QString arg = QString::fromLocal8Bit(argv[i]);
        auto value = [&](QString *out) {
            if (i + 1 >= argc) {
                *error = QStringLiteral("%1 needs a value").arg(arg);
                return false;
            }
            *out = QString::fromLocal8Bit(argv[++i]);
            return true;
        };
        if (arg == QLatin1String("--script")) {
            if (!value(&options->script))
                return false;
        } else if (arg == QLatin1String("--record")) {
            if (!value(&options->record))
                return false;
        } else if (arg == QLatin1String("--frames")) {
            if (!value(&options->frames))
                return false;
        } else if (arg == QLatin1String("--screenshot")) {
            if (!value(&options->screenshot))
                return false;
        } else if (arg == QLatin1String("--window-screenshot")) {
            if (!value(&options->windowScreenshot))
                return false;
            options->window = true;
        } else if (arg == QLatin1String("--demo")) {
            if (!value(&options->demoDirectory))
                return false;
        } else if (arg == QLatin1String("--gallery")) {
            if (!value(&options->galleryDirectory))
                return false;
        } else if (arg == QLatin1String("--catalogue")) {
            if (!value(&options->catalogue))
                return false;
        } else if (arg == QLatin1String("--box-coverage")) {
            options->boxCoverage = true;
        } else if (arg == QLatin1String("--plugin")) {
            if (!value(&options->plugin))
                return false;
        } else if (arg == QLatin1String("--reverse-plugin")) {
            if (!value(&options->reversePlugin))
                return false;
        } else if (arg == QLatin1String("--platform") || arg == QLatin1String("-platform")) {
            if (!value(&options->platform))
                return false;
        } else if (arg == QLatin1String("--language")) {
            if (!value(&options->language))
                return false;
            const QLocale locale(options->language);
            if (locale.language() == QLocale::C && options->language != QLatin1String("C")) {
                *error = QStringLiteral("--language %1 is not a locale").arg(options->language);
                return false;
            }
        } else if (arg == QLatin1String("--protocol")) {
            QString text;
            bool ok = false;
            if (!value(&text))
                return false;
            options->protocol = text.toInt(&ok, 0);
            if (!ok || options->protocol < 0) {
                *error = QStringLiteral("--protocol %1 is not a protocol id").arg(text);
                return false;
            }
            options->protocolGiven = true;
        } else if (arg == QLatin1String("--clock")) {
            QString text;
            if (!value(&text))
                return false;
            options->clock = QTime::fromString(text, QStringLiteral("HH:mm"));
            if (!options->clock.isValid()) {
                *error = QStringLiteral("--clock %1 is no time of the form HH:MM").arg(text);
                return false;
            }
        } else if (arg == QLatin1String("--zoom")) {
            QString text;
            bool ok = false;
            if (!value(&text))
                return false;
            options->zoom = text.toInt(&ok);
            if (!ok || options->zoom < 50 || options->zoom > 100) {
                *error = QStringLiteral("--zoom %1 is not a percentage from 50 to 100").arg(text);
                return false;
            }
        } else if (arg == QLatin1String("--list-protocols")) {
            options->listProtocols = true;
        } else if (arg == QLatin1String("--version")) {
            options->version = true;
        } else if (arg == QLatin1String("--window")) {
            options->window = true;
        } else if (arg == QLatin1String("--verbose")) {
            options->verbose = true;
        } else if (arg == QLatin1String("--help") || arg == QLatin1String("-h")) {
            options->help = true;
        } else {
            *error = QStringLiteral("unknown option %1").arg(arg);
            return false;
        }
    }
    if (!options->demoDirectory.isEmpty() && (!options->script.isEmpty() || options->window)) {
        *error = QStringLiteral("--demo runs on its own, without --script or --window");
        return false;
    }
    if (!options->galleryDirectory.isEmpty() && (!options->script.isEmpty() || options->window
                                                 || !options->demoDirectory.isEmpty())) {
        *error = QStringLiteral("--gallery runs on its own, without --script, --window or --demo");
        return false;
    }
    // The gallery opens every family, the demo tour is the demo car's; the
    // others look at no protocol.
    if (options->protocolGiven) {
        const QString other = !options->galleryDirectory.isEmpty() ? QStringLiteral("--gallery")
                : !options->demoDirectory.isEmpty()                ? QStringLiteral("--demo")
                : options->boxCoverage                             ? QStringLiteral("--box-coverage")
                : options->listProtocols                           ? QStringLiteral("--list-protocols")
                                                                   : QString();
        if (!other.isEmpty()) {
            *error = QStringLiteral("--protocol has no meaning with %1").arg(other);
            return false;
        }
    }
    if ((!options->record.isEmpty() || !options->frames.isEmpty())
            && (!options->demoDirectory.isEmpty() || !options->galleryDirectory.isEmpty())) {
        *error = QStringLiteral("--record and --frames go with a scenario or the window, not with --demo or --gallery");
        return false;
    }
    return true;
}

// Where the plug-ins, the artwork and the catalogue are, unless the
// environment names them: beside the simulator when it is installed (the
// bench package's tree, relative to bin/), else the build tree's.
void setDefaultEnvironment()
{
    const QDir bin = QFileInfo(QStringLiteral("/proc/self/exe")).canonicalPath();
    auto setDefault = [&bin](const char *name, QString const &installed, QString const &built) {
        if (!qEnvironmentVariableIsEmpty(name))
            return;
        const QString path = QDir::cleanPath(bin.filePath(installed));
        if (QFileInfo::exists(path))
            qputenv(name, QFile::encodeName(path));
        else if (QFileInfo::exists(built))
            qputenv(name, QFile::encodeName(built));
    };
    setDefault("CARCONTROL_PLUGIN_DIR", QStringLiteral(SIMULATOR_INSTALLED_PLUGIN_DIR),
               QStringLiteral(SIMULATOR_PLUGIN_DIR));
    setDefault("CARCONTROL_RESOURCE_ROOT", QStringLiteral(SIMULATOR_INSTALLED_RESOURCE_ROOT),
               QStringLiteral(SIMULATOR_RESOURCE_ROOT));
    setDefault("CARCONTROL_CATALOGUE_FILE", QStringLiteral(SIMULATOR_INSTALLED_CATALOGUE_FILE),
               QStringLiteral(SIMULATOR_CATALOGUE_FILE));
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void printError(QString const &text)
{
    std::fprintf(stderr, "headunit-sim: %s\n", qPrintable(text));
}

bool saveScreenshot(SimulatorHost &host, QString const &file)
{
    Scenario::Runner runner(host);
    QString failure;
    if (!runner.screenshot(file, &failure)) {
        printError(failure);
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    Options options;
    QString error;
    if (!parseOptions(argc, argv, &options, &error)) {
        printError(error);
        std::fputs(Usage, stderr);
        return StartFailed;
    }
    if (options.help) {
        std::fputs(Usage, stdout);
        return 0;
    }
    if (options.version) {
        std::printf("headunit-sim %s (Qt %s)\n", SIMULATOR_VERSION, qVersion());
        return 0;
    }
    // The folders of the pictures first: nothing runs for pictures that
    // can't be written.
    for (QString const &folder : {options.demoDirectory, options.galleryDirectory}) {
        if (!folder.isEmpty() && !Scenario::makeFolder(folder, &error)) {
            printError(error);
            return StartFailed;
        }
    }

    const bool headless = !options.window
            && (!options.script.isEmpty() || !options.demoDirectory.isEmpty() || !options.screenshot.isEmpty()
                || !options.galleryDirectory.isEmpty() || options.boxCoverage || options.listProtocols);
    if (!options.platform.isEmpty())
        qputenv("QT_QPA_PLATFORM", options.platform.toLocal8Bit());
    else if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (!headless && !hasDisplay() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        printError(QStringLiteral("no display for the window; use --demo DIR, --script FILE or --platform offscreen"));
        return StartFailed;
    }
    setDefaultEnvironment();
    // Headless runs may have no runtime directory; a private one
    // keeps Qt from warning about it.
    std::unique_ptr<QTemporaryDir> runtime;
    if (headless && qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        runtime.reset(new QTemporaryDir);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime->path()));
    }

    // The options are the simulator's alone: Qt would take --plugin and
    // others for its own.
    int appArgc = 1;
    QApplication app(appArgc, argv);
    QApplication::setApplicationName(QStringLiteral("headunit-sim"));
    // The head unit's locale, before the plug-in's root (which loads its
    // translation) is made.
    if (!options.language.isEmpty())
        QLocale::setDefault(QLocale(options.language));
    DebugLog::capture(options.verbose || !headless);

    // Headless runs keep the head unit's settings to themselves, so that
    // runs side by side don't see each other's.
    std::unique_ptr<QTemporaryDir> storage;
    if (headless && qEnvironmentVariableIsEmpty("CARCONTROL_STORAGE_DIR")) {
        storage.reset(new QTemporaryDir);
        HostSim::setStorageDirectory(storage->path());
    }

    SimulatorHost host;
    host.setLink(new SerialLink);
    // The decoder box: without its catalogue it stays off, and the
    // simulator runs all the same.
    QString boxError;
    const bool boxReady = host.loadCatalogue(
        options.catalogue.isEmpty() ? SimulatorHost::defaultCatalogueFile() : options.catalogue, &boxError);
    if (options.boxCoverage) {
        if (!boxReady) {
            printError(QStringLiteral("no decoder box: %1").arg(boxError));
            return StartFailed;
        }
        std::printf("The decoder box answers %d of %d adjustable rows.\n", host.box().answeredRows(),
                    host.box().adjustableRows());
        return 0;
    }
    if (options.listProtocols) {
        for (int id : Catalogue::protocolIds()) {
            const QStringList titles = host.box().pageTitles(id);
            std::printf("%3d  family %3d  %s\n", id, Catalogue::familyOf(id),
                        qPrintable(titles.isEmpty() ? QString() : titles.join(QStringLiteral(", "))));
        }
        if (!boxReady)
            printError(QStringLiteral("no page titles without the catalogue: %1").arg(boxError));
        return 0;
    }
    // The gallery's pictures show the catalogue's sample data: without it
    // they would show zeroed pages.
    if (!boxReady && !options.galleryDirectory.isEmpty()) {
        printError(QStringLiteral("no gallery without the catalogue: %1").arg(boxError));
        return StartFailed;
    }
    if (!boxReady && !headless)
        printError(QStringLiteral("the decoder box stays off: %1").arg(boxError));
    const QTime clock = options.clock.isValid() || (options.demoDirectory.isEmpty() && options.galleryDirectory.isEmpty())
            ? options.clock
            : QTime::fromString(QLatin1String(Demo::ClockTime), QStringLiteral("HH:mm"));
    HostSim::setFixedClock(clock);
    const QString plugin = options.plugin.isEmpty() ? SimulatorHost::defaultPluginFile() : options.plugin;
    // A reverse plug-in named on the command line replaces the host's search:
    // when it can't be loaded, reversing shows no picture at all.
    if (!options.reversePlugin.isEmpty()) {
        HostSim::setReversePluginFile(options.reversePlugin);
        if (!QFileInfo::exists(options.reversePlugin))
            printError(QStringLiteral("%1: no such reverse plug-in; reversing shows no picture")
                           .arg(options.reversePlugin));
    } else {
        const QString reversePlugin = SimulatorHost::defaultReversePluginFile(plugin);
        if (QFileInfo::exists(reversePlugin))
            HostSim::setReversePluginFile(reversePlugin);
    }
    if (!host.load(plugin, &error)) {
        printError(error);
        return StartFailed;
    }

    if (!options.demoDirectory.isEmpty()) {
        HostSim::screen()->show();
        const Scenario::Result result = Demo::runTour(host, options.demoDirectory);
        for (QString const &png : result.screenshots)
            std::printf("%s\n", qPrintable(png));
        if (result.status != Scenario::Passed)
            printError(result.message);
        return result.status;
    }

    if (!options.galleryDirectory.isEmpty()) {
        HostSim::screen()->show();
        const Scenario::Result result = Gallery::write(host, options.galleryDirectory);
        if (result.status != Scenario::Passed) {
            printError(result.message);
            return result.status;
        }
        std::printf("%d pictures into %s\n", int(result.screenshots.size()),
                    qPrintable(QDir(options.galleryDirectory).filePath(QStringLiteral("index.html"))));
        return result.status;
    }

    Scenario::Script script;
    if (!options.script.isEmpty()) {
        QString name, source;
        if (!Scenario::read(options.script, &name, &source, &error)) {
            printError(error);
            return StartFailed;
        }
        if (!Scenario::parse(name, source, &script, &error)) {
            std::fprintf(stderr, "%s\n", qPrintable(error));
            return Scenario::Malformed;
        }
    }

    if (headless) {
        HostSim::screen()->show();
        EventPump::settle();
        FrameLog frames;
        frames.attach(host);
        Recorder recorder(host);
        if (!options.record.isEmpty() && !recorder.start(options.record, &error)) {
            printError(error);
            return StartFailed;
        }
        int status = Scenario::Passed;
        if (options.script.isEmpty()) {
            const Scenario::Result start = Demo::startCar(host, options.protocol);
            if (start.status != Scenario::Passed) {
                printError(start.message);
                return StartFailed;
            }
        } else {
            if (options.protocolGiven)
                Demo::selectProtocol(host, options.protocol);
            Scenario::Runner runner(host);
            runner.setTrace(options.verbose);
            const Scenario::Result result = runner.run(script);
            if (result.status != Scenario::Passed)
                std::fprintf(stderr, "%s\n", qPrintable(result.message));
            status = result.status;
        }
        recorder.stop();
        if (!options.frames.isEmpty() && !frames.save(options.frames, &error)) {
            printError(error);
            status = qMax(status, int(Scenario::Failed));
        }
        if (!options.screenshot.isEmpty() && !saveScreenshot(host, options.screenshot) && status == Scenario::Passed)
            status = Scenario::Failed;
        return status;
    }

    // A desktop smaller than the window at its real size gets the screen
    // scaled; a headless run keeps it at its size.
    int zoom = options.zoom;
    if (!zoom && QGuiApplication::platformName() != QLatin1String("offscreen") && QGuiApplication::primaryScreen())
        zoom = MainWindow::fittingZoom(QGuiApplication::primaryScreen()->availableGeometry().size());
    MainWindow window(host, zoom ? zoom : 100);
    if (options.script.isEmpty())
        window.startDemoCar(options.protocol);
    // In the window the car answers: the box is on.
    host.box().setEnabled(true);
    LogPanel *logs = window.findChild<LogPanel *>();
    if (!options.record.isEmpty() && !logs->startRecording(options.record, &error)) {
        printError(error);
        return StartFailed;
    }
    window.show();
    int status = Scenario::Passed;
    if (!options.script.isEmpty() && options.protocolGiven)
        Demo::selectProtocol(host, options.protocol);
    QTimer::singleShot(0, &window, [&] {
        if (!options.script.isEmpty())
            status = window.runScenario(script);
        if (!options.windowScreenshot.isEmpty()) {
            QString saveError;
            if (!window.saveWindow(options.windowScreenshot, &saveError)) {
                printError(saveError);
                status = Scenario::Failed;
            }
            window.close();
        }
    });
    const int appStatus = app.exec();
    logs->stopRecording();
    if (!options.frames.isEmpty() && !logs->frameLog().save(options.frames, &error))
        printError(error);
    if (!options.screenshot.isEmpty())
        saveScreenshot(host, options.screenshot);
    host.unload();
    return options.script.isEmpty() ? appStatus : status;
}
