#include "simulatorhost.h"

#include "canobj.h"
#include "carcontrolinterface.h"
#include "eventpump.h"
#include "hostsim.h"
#include "rootcalls.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLinearGradient>
#include <QPainter>
#include <QPolygon>

namespace {

const char CarControlIid[] = "cantheme/0.1";

} // namespace

SimulatorHost::SimulatorHost(QObject *parent)
    : QObject(parent)
    , m_input(m_probe)
{
    m_clock.start();
    connect(CanObj::instance(), &CanObj::sendDataToCan, this, [this](QByteArray const &frame) {
        emit frameSent(m_clock.elapsed(), frame);
    });
    // The box hears a frame once it is on its way, after whoever logs it;
    // while a real box is linked, the real one alone.
    connect(this, &SimulatorHost::frameSent, &m_box, [this](qint64, QByteArray const &frame) {
        if (m_link && m_link->state() != BoxLink::Unlinked)
            m_link->send(frame);
        else
            m_box.receive(frame);
    }, Qt::QueuedConnection);
    // What the box can't answer goes to the debug lines too, where
    // scenarios look for it.
    connect(&m_box, &DecoderBox::unanswered, this, [](QString const &line) {
        qDebug("[DecoderBox] %s", qPrintable(line));
    });
}

SimulatorHost::~SimulatorHost()
{
    unload();
}

QString SimulatorHost::defaultPluginFile()
{
    return QDir(qEnvironmentVariable("CARCONTROL_PLUGIN_DIR")).filePath(QStringLiteral("libcarcontrol.so"));
}

QString SimulatorHost::defaultReversePluginFile(QString const &pluginFile)
{
    return QFileInfo(pluginFile).dir().filePath(QStringLiteral("libreversesample.so"));
}

bool SimulatorHost::load(QString const &pluginFile, QString *error)
{
    unload();
    // Qt's loader says only that it can't load a file it doesn't find.
    const QFileInfo file(pluginFile);
    if (!file.exists()) {
        *error = QStringLiteral("%1: no such plug-in file").arg(pluginFile);
        return false;
    }
    if (!file.isFile() || !file.isReadable()) {
        *error = QStringLiteral("%1: %2").arg(pluginFile, file.isFile() ? QStringLiteral("can't be read")
                                                                          : QStringLiteral("not a file"));
        return false;
    }
    // Qt's loader looks for a relative name in its library paths, not here.
    m_loader.setFileName(file.absoluteFilePath());
    // The framework reads the metadata before it loads the library.
    const QJsonObject meta = m_loader.metaData();
    if (meta.isEmpty()) {
        *error = QStringLiteral("%1: not a Qt plug-in (%2)").arg(pluginFile, m_loader.errorString());
        return false;
    }
    const QString iid = meta.value(QStringLiteral("IID")).toString();
    if (iid != QLatin1String(CarControlIid)) {
        *error = QStringLiteral("%1: the plug-in's interface is \"%2\", not \"%3\"")
                     .arg(pluginFile, iid, QLatin1String(CarControlIid));
        return false;
    }
    QObject *instance = m_loader.instance();
    if (!instance) {
        *error = QStringLiteral("%1: %2").arg(pluginFile, m_loader.errorString());
        return false;
    }
    m_root = qobject_cast<CarControlInterface *>(instance);
    if (!m_root) {
        *error = QStringLiteral("%1: the root object doesn't offer CarControlInterface").arg(pluginFile);
        return false;
    }
    return true;
}

void SimulatorHost::unload()
{
    if (!m_root)
        return;
    QObject *root = m_root;
    m_root = nullptr;
    delete root;
    EventPump::settle();
}

CarControlInterface *SimulatorHost::root() const
{
    return m_root;
}

QString SimulatorHost::pluginFile() const
{
    return m_loader.fileName();
}

void SimulatorHost::call(QString const &operation, QVariantList const &args)
{
    if (m_root)
        emit aboutToCall(operation, args);
    if (m_root && !RootCalls::invoke(m_root, operation, args))
        qWarning("headunit-sim: the root has no operation %s", qPrintable(operation));
    if (m_root)
        emit called(operation);
}

QWidget *SimulatorHost::screen() const
{
    return m_probe.screen();
}

ScreenProbe const &SimulatorHost::probe() const
{
    return m_probe;
}

UserInput &SimulatorHost::input()
{
    return m_input;
}

QPixmap SimulatorHost::wallpaper()
{
    const QSize size = HostSim::screenSize();
    QPixmap picture(size);
    QPainter painter(&picture);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(36, 62, 104));
    sky.setColorAt(0.6, QColor(214, 120, 72));
    sky.setColorAt(1, QColor(40, 28, 36));
    painter.fillRect(picture.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(24, 20, 30));
    const int horizon = size.height() * 3 / 4;
    const int step = size.width() / 8;
    QPolygon hills;
    hills << QPoint(0, size.height()) << QPoint(0, horizon);
    for (int x = 0; x <= size.width(); x += step)
        hills << QPoint(x, horizon - (x / step % 2 ? size.height() / 10 : 0));
    hills << QPoint(size.width(), size.height());
    painter.drawPolygon(hills);
    return picture;
}

QList<QByteArray> SimulatorHost::pendingFrames() const
{
    const QList<QByteArray> frames = HostSim::sentFrames();
    return frames.mid(qMin(m_framesConsumed, frames.size()));
}

void SimulatorHost::consumeFrame()
{
    m_framesConsumed = qMin(m_framesConsumed + 1, HostSim::sentFrames().size());
}

void SimulatorHost::dropFrames()
{
    m_framesConsumed = HostSim::sentFrames().size();
}

QList<QPair<QString, QString> > SimulatorHost::pendingCommands() const
{
    const auto commands = HostSim::climateCommands();
    return commands.mid(qMin(m_commandsConsumed, commands.size()));
}

qint64 SimulatorHost::elapsed() const
{
    return m_clock.elapsed();
}

QString SimulatorHost::defaultCatalogueFile()
{
    return qEnvironmentVariable("CARCONTROL_CATALOGUE_FILE");
}

DecoderBox &SimulatorHost::box()
{
    return m_box;
}

bool SimulatorHost::loadCatalogue(QString const &file, QString *error)
{
    if (file.isEmpty()) {
        m_catalogueError = QStringLiteral("no catalogue file named");
        m_box.load(QJsonObject(), nullptr);
    } else if (m_box.load(file, &m_catalogueError)) {
        m_catalogueError.clear();
        return true;
    }
    *error = m_catalogueError;
    return false;
}

QString SimulatorHost::catalogueError() const
{
    return m_catalogueError;
}

void SimulatorHost::setLink(BoxLink *link)
{
    delete m_link;
    m_link = link;
    if (!link)
        return;
    link->setParent(this);
    connect(link, &BoxLink::received, this, &SimulatorHost::report);
    connect(link, &BoxLink::stateChanged, this, [this](BoxLink::State state, QString const &reason) {
        if (state == BoxLink::Linked && m_box.isEnabled()) {
            m_boxWasOn = true;
            m_box.setEnabled(false);
        } else if (state == BoxLink::Unlinked && m_boxWasOn) {
            m_boxWasOn = false;
            m_box.setEnabled(true);
        }
        emit linkStateChanged(state, reason);
    });
}

BoxLink *SimulatorHost::link() const
{
    return m_link;
}

bool SimulatorHost::openLink(QString const &device, qint32 baudRate, QString *error)
{
    if (!m_link) {
        *error = QStringLiteral("%1: this build has no serial link").arg(device);
        return false;
    }
    return m_link->open(device, baudRate, error);
}

void SimulatorHost::closeLink()
{
    if (m_link)
        m_link->close();
}

QList<FrameSplitter::Piece> SimulatorHost::pendingReports() const
{
    return m_reports;
}

void SimulatorHost::consumeReports(int count)
{
    m_reports.erase(m_reports.begin(), m_reports.begin() + qBound(0, count, m_reports.size()));
}

void SimulatorHost::report(FrameSplitter::Piece const &piece)
{
    m_reports.append(piece);
    if (m_reports.size() > MaxReports)
        m_reports.removeFirst();
    emit reported(m_clock.elapsed(), piece);
}

void SimulatorHost::consumeCommand()
{
    m_commandsConsumed = qMin(m_commandsConsumed + 1, HostSim::climateCommands().size());
}
