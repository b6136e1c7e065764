#include "scenariorunner.h"

#include "eventpump.h"
#include "framelog.h"
#include "hostsim.h"
#include "radardata.h"
#include "simulatorhost.h"
#include "vehiclestate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QRegularExpression>
#include <QSaveFile>
#include <QWidget>

#include <cstdio>
#include <filesystem>
#include <system_error>

namespace Scenario {

bool makeFolder(QString const &path, QString *error)
{
    std::error_code code;
    const std::filesystem::path folder(QFile::encodeName(path).constData());
    std::filesystem::create_directories(folder, code);
    if (!code && std::filesystem::is_directory(folder, code))
        return true;
    *error = QStringLiteral("can't make the folder %1: %2")
                 .arg(path, code ? QString::fromLocal8Bit(code.message().c_str()) : QStringLiteral("Not a directory"));
    return false;
}

bool savePicture(QPixmap const &picture, QString const &path, QString *error)
{
    QString folderError;
    if (!makeFolder(QFileInfo(path).absolutePath(), &folderError)) {
        *error = QStringLiteral("can't write %1: %2").arg(path, folderError);
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !picture.save(&file, "PNG") || !file.commit()) {
        *error = QStringLiteral("can't write %1: %2").arg(path, file.errorString());
        return false;
    }
    return true;
}

Runner::Runner(SimulatorHost &host)
    : m_host(host)
    , m_expectations(host)
{
}

void Runner::setOutputDirectory(QString const &directory)
{
    m_outputDirectory = directory;
}

void Runner::setTrace(bool trace)
{
    m_trace = trace;
}

Result Runner::run(Script const &script)
{
    Result result;
    // A scenario speaks for the car itself: the decoder box answers only
    // where the scenario switches it on.
    m_host.box().setEnabled(false);
    m_host.box().setDelay(DecoderBox::DefaultDelayMs);
    for (Command const &command : script.commands) {
        if (m_trace)
            std::fprintf(stderr, "%s:%d: %s\n", qPrintable(script.file), command.line, qPrintable(command.source));
        QString failure;
        if (!execute(command, &failure)) {
            result.status = Failed;
            result.message = QStringLiteral("%1:%2: %3").arg(script.file).arg(command.line).arg(failure);
            break;
        }
    }
    result.screenshots = m_screenshots;
    return result;
}

bool Runner::execute(Command const &command, QString *failure)
{
    emit m_host.commandStarted(command);
    bool held = true;
    if (VehicleState::changes(command))
        VehicleState::apply(command);
    else if (Expectations::isExpectation(command))
        held = m_expectations.check(command, failure);
    else if (command.kind == Kind::Notify)
        HostSim::notifyDataChanged();
    else if (command.kind == Kind::Call)
        callRoot(command);
    else if (command.kind == Kind::Screenshot)
        held = screenshot(command.texts.value(0), failure);
    else if (command.kind == Kind::Box || command.kind == Kind::BoxDelay)
        held = setBox(command, failure);
    else if (command.kind == Kind::Replay)
        held = replay(command.texts.value(0), failure);
    else if (command.kind == Kind::Serial)
        held = linkBox(command.texts.value(0), failure);
    else
        held = giveInput(command, failure);
    EventPump::settle();
    emit m_host.commandFinished(command);
    return held;
}

bool Runner::replay(QString const &file, QString *failure)
{
    QString error;
    if (!FrameLog::replay(m_host, file, &error)) {
        *failure = QStringLiteral("expected a replay got %1").arg(error);
        return false;
    }
    // The box answers each frame after its delay: the pages follow before
    // the next line.
    constexpr int AnswerMarginMs = 20;
    EventPump::wait(m_host.box().delay() + AnswerMarginMs);
    return true;
}

bool Runner::linkBox(QString const &target, QString *failure)
{
    // ${NAME}: the environment's, so that one scenario names the stand-in
    // of the tests and the port of a bench.
    static const QRegularExpression variable(QStringLiteral("\\$\\{([A-Za-z_][A-Za-z0-9_]*)\\}"));
    QString expanded = target;
    QRegularExpressionMatch match;
    while ((match = variable.match(expanded)).hasMatch()) {
        const QString name = match.captured(1);
        if (!qEnvironmentVariableIsSet(qPrintable(name))) {
            *failure = QStringLiteral("expected the environment variable %1 for serial %2 got none").arg(name, target);
            return false;
        }
        expanded.replace(match.capturedStart(), match.capturedLength(), qEnvironmentVariable(qPrintable(name)));
    }
    QString device, error;
    qint32 baudRate = 0;
    if (!BoxLink::parseTarget(expanded, &device, &baudRate, &error) || !m_host.openLink(device, baudRate, &error)) {
        *failure = QStringLiteral("expected a decoder box on serial %1 got %2").arg(expanded, error);
        return false;
    }
    return true;
}

bool Runner::setBox(Command const &command, QString *failure)
{
    DecoderBox &box = m_host.box();
    if (command.kind == Kind::BoxDelay) {
        box.setDelay(int(command.numbers.value(0)));
        return true;
    }
    const bool on = command.name == QLatin1String("on");
    box.setEnabled(on);
    if (on && !box.isEnabled()) {
        *failure = QStringLiteral("expected a decoder box got none: %1").arg(m_host.catalogueError());
        return false;
    }
    return true;
}

void Runner::callRoot(Command const &command)
{
    QVariantList args = command.args;
    // onRadarDataChanged radar: the variant holds the record as it is now.
    if (command.texts.value(0) == QLatin1String("radar"))
        args = {QVariant::fromValue(*HostSim::radarData())};
    m_host.call(command.name, args);
}

bool Runner::giveInput(Command const &c, QString *failure)
{
    UserInput &input = m_host.input();
    ScreenProbe const &probe = m_host.probe();
    QString missing;
    switch (c.kind) {
    case Kind::Key:
        input.key(int(c.numbers.value(0)));
        return true;
    case Kind::TapTitle:
        if (input.tapTitle(int(c.numbers.value(0)), &missing))
            return true;
        *failure = QStringLiteral("expected title %1 to tap got %2").arg(c.numbers.value(0)).arg(missing);
        return false;
    case Kind::TapRow: {
        const UserInput::Zone zone = c.name == QLatin1String("left") ? UserInput::LeftZone
                : c.name == QLatin1String("right") ? UserInput::RightZone : UserInput::MiddleZone;
        if (input.tapRow(int(c.numbers.value(0)), zone, &missing))
            return true;
        *failure = QStringLiteral("expected row %1 to tap got %2").arg(c.numbers.value(0)).arg(missing);
        return false;
    }
    case Kind::TapBar:
        if (input.tapBar(c.name, &missing))
            return true;
        *failure = QStringLiteral("expected the bar's %1 button got %2").arg(c.name, missing);
        return false;
    case Kind::TapButton: case Kind::LongPressButton:
        if (QWidget *button = probe.findButton(c.texts.value(0))) {
            if (c.kind == Kind::TapButton)
                input.tapWidget(button);
            else
                input.longPress(button, int(c.numbers.value(0)));
            return true;
        }
        *failure = QStringLiteral("expected a visible button %1 got none").arg(quoted(c.texts.value(0)));
        return false;
    case Kind::TapObject: case Kind::LongPress: {
        QWidget *widget = probe.findWidget(c.name);
        if (!ScreenProbe::isShown(widget)) {
            *failure = QStringLiteral("expected a visible %1 got %2")
                           .arg(c.name, widget ? QStringLiteral("hidden") : QStringLiteral("missing"));
            return false;
        }
        if (c.kind == Kind::TapObject)
            input.tapWidget(widget);
        else
            input.longPress(widget, int(c.numbers.value(0)));
        return true;
    }
    case Kind::TapAt: {
        const QPoint point(int(c.numbers.value(0)), int(c.numbers.value(1)));
        if (!m_host.screen()->rect().contains(point)) {
            *failure = QStringLiteral("expected a point of the screen got %1 %2, outside %3x%4")
                           .arg(point.x()).arg(point.y()).arg(m_host.screen()->width()).arg(m_host.screen()->height());
            return false;
        }
        input.tapAt(point);
        return true;
    }
    case Kind::TapEntry:
        if (input.tapEntry(int(c.numbers.value(0)), &missing))
            return true;
        *failure = QStringLiteral("expected entry %1 to tap got %2").arg(c.numbers.value(0)).arg(missing);
        return false;
    case Kind::Drag: {
        QWidget *widget = probe.findWidget(c.name);
        if (!ScreenProbe::isShown(widget)) {
            *failure = QStringLiteral("expected a visible %1 got %2")
                           .arg(c.name, widget ? QStringLiteral("hidden") : QStringLiteral("missing"));
            return false;
        }
        // Per cents of the width: 100 is the last pixel.
        const int last = widget->width() - 1;
        const int y = widget->height() / 2;
        input.drag(widget, QPoint(int(last * c.numbers.value(0) / 100), y),
                   QPoint(int(last * c.numbers.value(1) / 100), y));
        return true;
    }
    case Kind::DragAt: {
        const QPoint from(int(c.numbers.value(0)), int(c.numbers.value(1)));
        const QPoint to(int(c.numbers.value(2)), int(c.numbers.value(3)));
        if (!m_host.screen()->rect().contains(from)) {
            *failure = QStringLiteral("expected a point of the screen got %1 %2, outside %3x%4")
                           .arg(from.x()).arg(from.y()).arg(m_host.screen()->width()).arg(m_host.screen()->height());
            return false;
        }
        input.dragAt(from, to);
        return true;
    }
    case Kind::Wait:
        EventPump::wait(int(c.numbers.value(0)));
        return true;
    default:
        return true;
    }
}

bool Runner::screenshot(QString const &file, QString *failure)
{
    const QString path = QFileInfo(file).isAbsolute() || m_outputDirectory.isEmpty()
            ? file : QDir(m_outputDirectory).filePath(file);
    QString error;
    if (!savePicture(m_host.screen()->grab(), path, &error)) {
        *failure = error;
        return false;
    }
    m_screenshots << QFileInfo(path).absoluteFilePath();
    return true;
}

} // namespace Scenario
