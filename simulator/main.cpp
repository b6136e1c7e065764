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
#include "options.h"
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

using Options::StartFailed;

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
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    Options::Values options;
    QString error;
    if (!Options::parse(arguments, &options, &error)) {
        printError(error);
        std::fprintf(stderr, "Try headunit-sim --help.\n");
        return StartFailed;
    }
    if (options.help || options.manualPage) {
        // Qt's help names the program as it was called.
        QCoreApplication app(argc, argv);
        std::fputs(qPrintable(options.help ? Options::helpText() : Options::manualPage()), stdout);
        return 0;
    }
    if (options.version) {
        std::printf("headunit-sim %s (Qt %s)\n", SIMULATOR_VERSION, qVersion());
        return 0;
    }
    // Every output first: nothing runs for a result that can't be written.
    if (!Options::checkOutputs(options, &error)) {
        printError(error);
        return StartFailed;
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
    // A catalogue named on the command line is the one wanted: one that
    // can't be read, or that the box refuses, stops the run.
    if (!boxReady && !options.catalogue.isEmpty()) {
        printError(boxError);
        return StartFailed;
    }
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
        QByteArray bytes;
        if (!Scenario::read(options.script, &name, &bytes, &error)) {
            printError(error);
            return StartFailed;
        }
        if (!Scenario::decode(name, bytes, &source, &error) || !Scenario::parse(name, source, &script, &error)) {
            std::fprintf(stderr, "%s\n", qPrintable(error));
            return Scenario::Malformed;
        }
    }

    // A real decoder box on a serial port, once the simulated one has its
    // place: it is off while the real one is linked.
    auto linkBox = [&] {
        if (options.serialDevice.isEmpty() || host.openLink(options.serialDevice, options.serialBaudRate, &error))
            return true;
        printError(QStringLiteral("serial %1").arg(error));
        return false;
    };

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
        if (!linkBox())
            return StartFailed;
        int status = Scenario::Passed;
        if (options.script.isEmpty()) {
            Scenario::Result start;
            if (options.zeroed)
                Demo::selectProtocol(host, options.protocol);
            else
                start = Demo::startCar(host, options.protocol);
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
    if (QGuiApplication::platformName() != QLatin1String("offscreen") && QGuiApplication::primaryScreen())
        window.fitDesktop(QGuiApplication::primaryScreen()->availableGeometry().size());
    if (options.script.isEmpty())
        window.startDemoCar(options.protocol, !options.zeroed);
    // In the window the car answers: the box is on.
    host.box().setEnabled(true);
    if (!linkBox())
        return StartFailed;
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
