#include "recorder.h"

#include "airdata.h"
#include "basecontrol.h"
#include "canobj.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "hostsim.h"
#include "keys.h"
#include "listdata.h"
#include "radardata.h"
#include "recordfields.h"
#include "scenario.h"
#include "simulatorhost.h"
#include "vehiclestate.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDateTime>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStackedWidget>
#include <QTableView>
#include <QTimer>

#include <functional>

namespace {

// A press held this long is a long press; a finger that moved this far
// between press and release dragged.
constexpr qint64 LongPressMs = 300;
constexpr int DragPixels = 3;
// A wait reaches this far past the last frame or answer that came in it,
// and no further than the time that passed.
constexpr qint64 WaitMarginMs = 100;
// What a fresh host's replay does on its own once the recording's first
// lines brought back the screen: a page asks for its data 100 ms after it
// shows.
constexpr int SettleMs = 200;
// Bytes of one buf, air, body or radar line.
constexpr int RunBytes = 16;
constexpr int AirRecordBytes = 144;
const int AirTextOffsets[] = {16, 20, 28, 36, 44, 108, 112, 116, 120, 124};
char const *const HostFlags[] = {"rightDriver", "showReverseLine", "hadReverseLine", "disableRadar"};

QByteArray bytesOf(void const *data, int size)
{
    return QByteArray(static_cast<char const *>(data), size);
}

// "COMMAND OFFSET B..." for each run of bytes that differ, at most RunBytes
// a line; value(i) gives the byte as the scenario writes it.
template <typename Value>
QStringList runs(QString const &command, QByteArray const &before, QByteArray const &after, Value value,
                 std::function<bool(int)> const &takes = nullptr)
{
    const auto differs = [&](int at) {
        return (!takes || takes(at)) && (at >= before.size() || before.at(at) != after.at(at));
    };
    QStringList lines;
    int i = 0;
    while (i < after.size()) {
        if (!differs(i)) {
            ++i;
            continue;
        }
        QString line = QStringLiteral("%1 %2").arg(command).arg(i);
        int n = 0;
        for (; i < after.size() && differs(i) && n < RunBytes; ++i, ++n)
            line += QLatin1Char(' ') + QString::number(value(i));
        lines << line;
    }
    return lines;
}

QString keyName(int code)
{
    for (HeadUnitKeys::Key const &key : HeadUnitKeys::all()) {
        if (key.code == code)
            return QLatin1String(key.name);
    }
    return QString::number(code);
}

bool isVerbatim(Scenario::Command const &c)
{
    using Scenario::Kind;
    return Scenario::VehicleState::changes(c) || c.kind == Kind::Notify || c.kind == Kind::Call
            || c.kind == Kind::Box || c.kind == Kind::BoxDelay || c.kind == Kind::Replay;
}

bool isInput(Scenario::Command const &c)
{
    using Scenario::Kind;
    switch (c.kind) {
    case Kind::Key: case Kind::TapTitle: case Kind::TapRow: case Kind::TapBar: case Kind::TapButton:
    case Kind::TapObject: case Kind::TapAt: case Kind::LongPress: case Kind::LongPressButton:
    case Kind::TapEntry: case Kind::Drag: case Kind::DragAt:
        return true;
    default:
        return false;
    }
}

// A call's arguments as the language writes them; false for one it can't.
bool argumentText(QVariant const &value, QString *text)
{
    if (value.userType() == qMetaTypeId<RadarData>()) {
        *text = QStringLiteral("radar");
        return true;
    }
    switch (value.type()) {
    case QVariant::Bool:
        *text = value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
        return true;
    case QVariant::Int: case QVariant::LongLong: case QVariant::UInt:
        *text = QString::number(value.toLongLong());
        return true;
    case QVariant::String:
        *text = Scenario::quoted(value.toString());
        return true;
    default:
        return false;
    }
}

} // namespace

Recorder::Recorder(SimulatorHost &host, QObject *parent)
    : QObject(parent)
    , m_host(host)
{
    m_clock.start();
}

Recorder::~Recorder()
{
    stop();
}

Recorder::State Recorder::fresh()
{
    State state;
    const AirData air;
    state.air = QByteArray(AirRecordBytes, '\0');
    for (int offset = 0; offset < AirRecordBytes; ++offset)
        state.air[offset] = char(RecordFields::airByte(air, offset));
    for (int offset : AirTextOffsets)
        state.airTexts << RecordFields::airText(air, offset);
    state.airType = air.airType;
    const CardoorData door;
    const CarbodyData body;
    const RadarData radar;
    state.door = bytesOf(&door, int(sizeof door));
    state.body = bytesOf(&body, RecordFields::CarbodyBytes);
    state.radar = bytesOf(&radar, RecordFields::RadarBytes);
    // A fresh host: left-hand drive, a guide line reported and wanted, the
    // radar shown.
    state.flags = {false, true, true, false};
    return state;
}

Recorder::State Recorder::now() const
{
    State state = m_state;
    state.protocol = CanObj::id();
    // The buffers seen so far and the current one.
    state.buffers.insert(state.protocol, QByteArray());
    for (auto it = state.buffers.begin(); it != state.buffers.end(); ++it)
        it.value() = bytesOf(HostSim::buffer(it.key()).data(), HostSim::bufferSize());
    AirData const &air = *HostSim::airData();
    state.air = QByteArray(AirRecordBytes, '\0');
    for (int offset = 0; offset < AirRecordBytes; ++offset)
        state.air[offset] = char(RecordFields::airByte(air, offset));
    state.airTexts.clear();
    for (int offset : AirTextOffsets)
        state.airTexts << RecordFields::airText(air, offset);
    state.airType = air.airType;
    state.door = bytesOf(HostSim::cardoorData(), int(sizeof(CardoorData)));
    state.body = bytesOf(HostSim::carbodyData(), RecordFields::CarbodyBytes);
    state.radar = bytesOf(HostSim::radarData(), RecordFields::RadarBytes);
    CanObj const *can = CanObj::instance();
    state.flags = {can->isRightDriver(), can->isShowReverseLine(), can->hadReverseLine(), can->disableRadar()};
    state.wallpaper = BaseControl::getInstance()->getBackgroundPixmap() != nullptr;
    return state;
}

bool Recorder::start(QString const &file, QString *error)
{
    stop();
    m_file.setFileName(file);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text)) {
        *error = QStringLiteral("%1: can't write the recording: %2").arg(file, m_file.errorString());
        return false;
    }
    m_lines.clear();
    m_frames.clear();
    m_commandsSeen = HostSim::climateCommands().size();
    m_recording = true;
    m_commandDepth = 0;
    m_finishPending = m_callPending = m_inputAction = m_keyDown = false;
    m_pressActive = false;
    m_touchedRow = -1;
    write(QStringLiteral("# Recorded with headunit-sim, %1; replay with headunit-sim --script FILE")
              .arg(QDateTime::currentDateTime().toString(Qt::ISODate)));

    // A replay starts on a fresh host: first the car as it is now, and the
    // screen as far as a scenario can bring it back.
    m_state = fresh();
    writeChanges(true);
    bool settle = false;
    if (CanObj::id() != 0) {
        write(QStringLiteral("call setProtocolId %1").arg(CanObj::id()));
        settle = true;
    }
    DecoderBox const &box = m_host.box();
    if (box.isEnabled()) {
        if (box.delay() != DecoderBox::DefaultDelayMs)
            write(QStringLiteral("box delay %1").arg(box.delay()));
        write(QStringLiteral("box on"));
    }
    ScreenProbe const &probe = m_host.probe();
    if (ScreenProbe::isShown(probe.extendedView())) {
        write(QStringLiteral("call showExView"));
        if (probe.currentPage())
            write(QStringLiteral("tap title %1").arg(probe.pageStack()->currentIndex()));
        settle = true;
    }
    if (ScreenProbe::isShown(probe.dialogView()))
        write(QStringLiteral("# not brought back: the overlays were showing when the recording began"));
    if (settle) {
        // What the replay's first lines send isn't what was recorded.
        write(QStringLiteral("wait %1").arg(SettleMs));
        write(QStringLiteral("drop frames"));
    }

    connect(&m_host, &SimulatorHost::frameSent, this, [this](qint64, QByteArray const &frame) {
        // A frame without bytes puts nothing on the bus.
        if (frame.isEmpty())
            return;
        m_frames.append(frame);
        m_lastEvent = m_clock.elapsed();
    });
    connect(&m_host, &SimulatorHost::commandStarted, this, &Recorder::commandStarted);
    connect(&m_host, &SimulatorHost::commandFinished, this, &Recorder::commandFinished);
    connect(&m_host, &SimulatorHost::aboutToCall, this, &Recorder::rootCalled);
    connect(&m_host, &SimulatorHost::called, this, [this] {
        if (m_callPending) {
            m_callPending = false;
            finish();
        }
    });
    connect(HostSim::canbusSignals(), SIGNAL(dataChanged()), this, SLOT(onDataChanged()));
    connect(&m_host.box(), &DecoderBox::answered, this,
            [this](QByteArray const &, QList<DecoderBox::WrittenByte> const &written) {
        // The replay's box writes the same: it isn't the person's change.
        for (DecoderBox::WrittenByte const &byte : written) {
            QByteArray &buffer = m_state.buffers[byte.bufferId];
            if (buffer.isEmpty())
                buffer = QByteArray(HostSim::bufferSize(), '\0');
            buffer[byte.offset] = char(byte.value);
        }
        m_lastEvent = m_clock.elapsed();
    });
    connect(&m_host.box(), &DecoderBox::enabledChanged, this, [this](bool on) {
        if (m_commandDepth > 0)
            return;
        flush();
        write(on ? QStringLiteral("box on") : QStringLiteral("box off"));
    });
    qApp->installEventFilter(this);
    m_actionEnd = m_clock.elapsed();
    m_lastEvent = -1;
    return true;
}

void Recorder::stop()
{
    if (!m_recording)
        return;
    if (qApp)
        qApp->removeEventFilter(this);
    flush();
    write(QStringLiteral("# end of the recording"));
    m_recording = false;
    disconnect(&m_host, nullptr, this, nullptr);
    disconnect(&m_host.box(), nullptr, this, nullptr);
    disconnect(HostSim::canbusSignals(), nullptr, this, nullptr);
    m_file.close();
}

bool Recorder::isRecording() const
{
    return m_recording;
}

QString Recorder::file() const
{
    return m_file.fileName();
}

QStringList Recorder::lines() const
{
    return m_lines;
}

void Recorder::write(QStringList const &lines)
{
    for (QString const &line : lines)
        write(line);
}

void Recorder::write(QString const &line)
{
    m_lines << line;
    m_file.write(line.toUtf8() + '\n');
    // Nothing is lost if the simulator ends unexpectedly.
    m_file.flush();
    emit lineWritten(line);
}

void Recorder::writeChanges(bool preamble)
{
    const State current = now();
    const int id = current.protocol;
    if (current.protocol != m_state.protocol)
        write(QStringLiteral("protocol %1").arg(id));

    QByteArray before = m_state.buffers.value(id);
    // A buffer not seen before is a fresh host's: zeros, its texts unknown.
    const bool firstSight = before.isEmpty();
    if (firstSight)
        before = QByteArray(HostSim::bufferSize(), '\0');
    QByteArray const &after = current.buffers.value(id);
    // Text fields hold handles to their texts: where the catalogue knows a
    // text field, the text is written instead of the handle's bytes.
    QList<int> texts;
    if (preamble || firstSight) {
        const DataBuffer buffer = HostSim::buffer(id);
        const QList<int> known = m_host.box().textOffsets(id);
        for (int offset : known) {
            const QString text = buffer.text(offset);
            if (text.isEmpty())
                continue;
            write(QStringLiteral("text %1 %2").arg(offset).arg(Scenario::quoted(text)));
            texts << offset;
        }
    }
    const auto notText = [&texts](int at) {
        for (int offset : qAsConst(texts)) {
            if (at >= offset && at < offset + 4)
                return false;
        }
        return true;
    };
    write(runs(QStringLiteral("buf"), before, after, [&after](int i) { return quint8(after.at(i)); }, notText));

    write(runs(QStringLiteral("air"), m_state.air, current.air,
               [&current](int i) {
                   return RecordFields::isAirByteSigned(i) ? int(qint8(current.air.at(i))) : int(quint8(current.air.at(i)));
               },
               [](int at) { return RecordFields::isAirByte(at); }));
    for (int i = 0; i < current.airTexts.size(); ++i) {
        if (current.airTexts.at(i) != m_state.airTexts.value(i))
            write(QStringLiteral("air.text %1 %2").arg(AirTextOffsets[i]).arg(Scenario::quoted(current.airTexts.at(i))));
    }
    if (current.airType != m_state.airType)
        write(QStringLiteral("air.type %1").arg(current.airType));
    if (current.door != m_state.door) {
        QStringList bytes;
        for (char byte : current.door)
            bytes << QString::number(quint8(byte));
        write(QStringLiteral("door ") + bytes.join(QLatin1Char(' ')));
    }
    write(runs(QStringLiteral("body"), m_state.body, current.body, [&current](int i) { return quint8(current.body.at(i)); }));
    write(runs(QStringLiteral("radar"), m_state.radar, current.radar,
               [&current](int i) { return quint8(current.radar.at(i)); }));
    for (int i = 0; i < current.flags.size(); ++i) {
        if (current.flags.at(i) != m_state.flags.value(i))
            write(QStringLiteral("host %1 %2").arg(QLatin1String(HostFlags[i])).arg(current.flags.at(i) ? 1 : 0));
    }
    if (current.wallpaper != m_state.wallpaper)
        write(current.wallpaper ? QStringLiteral("wallpaper on") : QStringLiteral("wallpaper off"));
    m_state = current;
}

void Recorder::writeScreen()
{
    ScreenProbe const &probe = m_host.probe();
    QAbstractItemView *titles = probe.titleList();
    if (probe.currentPage() && titles && titles->model()) {
        const QString title = titles->model()->index(probe.pageStack()->currentIndex(), 0).data().toString();
        write(QStringLiteral("expect page %1").arg(Scenario::quoted(title)));
        QTableView *table = probe.pageTable();
        if (m_touchedRow >= 0 && table && table->model() && m_touchedRow < table->model()->rowCount()) {
            const QString text = table->model()->index(m_touchedRow, 0).data(DisplayValueRole).toString();
            write(QStringLiteral("expect row %1 %2").arg(m_touchedRow).arg(Scenario::quoted(text)));
        }
    } else if (ScreenProbe::isShown(titles)) {
        write(QStringLiteral("expect shown list"));
    }
}

void Recorder::flush()
{
    if (m_finishPending)
        finish();
    const qint64 now = m_clock.elapsed();
    if (m_lastEvent >= 0) {
        // Frames or answers came after the last action: the replay waits
        // for them.
        qint64 ms = qMin(now - m_actionEnd, m_lastEvent - m_actionEnd + WaitMarginMs);
        ms = (qMax<qint64>(ms, 0) + 9) / 10 * 10;
        write(QStringLiteral("wait %1").arg(ms));
        writeFrames();
        writeScreen();
        // The box's answers are the car's; the plug-in may have written too.
        m_state = this->now();
    }
    m_actionEnd = now;
    m_lastEvent = -1;
}

void Recorder::writeFrames()
{
    for (QByteArray const &frame : qAsConst(m_frames))
        write(QStringLiteral("expect frame ") + Scenario::hex(frame));
    m_frames.clear();
    // The climate commands the action gave, in their order.
    const auto commands = HostSim::climateCommands();
    for (int i = qMin(m_commandsSeen, int(commands.size())); i < commands.size(); ++i)
        write(QStringLiteral("expect command %1 %2").arg(commands.at(i).first, Scenario::quoted(commands.at(i).second)));
    m_commandsSeen = commands.size();
}

void Recorder::finish()
{
    m_finishPending = false;
    writeFrames();
    if (m_inputAction)
        writeScreen();
    m_inputAction = false;
    // A key whose release never came (the press took its widget away).
    m_keyDown = false;
    m_state = now();
    m_actionEnd = m_clock.elapsed();
    m_lastEvent = -1;
}

void Recorder::finishLater()
{
    if (m_finishPending)
        return;
    m_finishPending = true;
    QTimer::singleShot(0, this, [this] {
        if (m_finishPending)
            finish();
    });
}

void Recorder::commandStarted(Scenario::Command const &command)
{
    ++m_commandDepth;
    if (isVerbatim(command) || isInput(command))
        flush();
    if (isVerbatim(command)) {
        writeChanges();
        write(command.source);
    } else if (command.kind == Scenario::Kind::Screenshot) {
        write(QStringLiteral("# not replayed: ") + command.source);
    }
}

void Recorder::commandFinished(Scenario::Command const &command)
{
    endPress();
    // A buffer that the command wrote by its id is the command's.
    if (command.id != Scenario::CurrentProtocol && !m_state.buffers.contains(command.id))
        m_state.buffers.insert(command.id, QByteArray());
    if (isVerbatim(command) || isInput(command))
        finish();
    m_commandDepth = qMax(0, m_commandDepth - 1);
}

void Recorder::rootCalled(QString const &operation, QVariantList const &args)
{
    if (m_commandDepth > 0)
        return;
    flush();
    writeChanges();
    QString line = QStringLiteral("call ") + operation;
    for (QVariant const &arg : args) {
        if (!arg.isValid())
            break;
        QString text;
        if (!argumentText(arg, &text)) {
            write(QStringLiteral("# not recorded: call %1 with an argument of type %2")
                      .arg(operation, QLatin1String(arg.typeName())));
            return;
        }
        line += QLatin1Char(' ') + text;
    }
    write(line);
    // The call's frames and changes are in when it returns (called()).
    m_callPending = true;
}

void Recorder::onDataChanged()
{
    if (m_commandDepth > 0 || m_host.box().isAnswering())
        return;
    flush();
    writeChanges();
    write(QStringLiteral("notify"));
    // The plug-in's own slots ran before this one: what it did is in.
    finish();
}

bool Recorder::onScreen(QWidget *widget) const
{
    QWidget *screen = m_host.screen();
    return widget && (widget == screen || screen->isAncestorOf(widget));
}

QString Recorder::tapAt(QWidget *widget, QPoint const &local)
{
    ScreenProbe const &probe = m_host.probe();
    QWidget *screen = m_host.screen();
    m_touchedRow = -1;
    // The item of a shown view under the point, in the view's viewport.
    const auto itemAt = [&](QAbstractItemView *view, QPoint *point) {
        if (!ScreenProbe::isShown(view))
            return QModelIndex();
        QWidget *viewport = view->viewport();
        if (widget != viewport && !viewport->isAncestorOf(widget))
            return QModelIndex();
        *point = widget->mapTo(viewport, local);
        return view->indexAt(*point);
    };
    QPoint point;
    QModelIndex item = itemAt(probe.titleList(), &point);
    if (item.isValid())
        return QStringLiteral("tap title %1").arg(item.row());
    item = itemAt(probe.dialogEntries(), &point);
    if (item.isValid())
        return QStringLiteral("tap entry %1").arg(item.row());
    QTableView *table = probe.pageTable();
    item = itemAt(table, &point);
    if (item.isValid()) {
        // The zones of the row's right half, as tap row aims at them.
        const int width = table->width();
        const int height = table->verticalHeader()->defaultSectionSize();
        int middle = item.data(LeftButtonXRole).toInt();
        if (middle < 1)
            middle = width / 2;
        if (point.x() >= middle) {
            m_touchedRow = item.row();
            const char *zone = point.x() < middle + height ? "left" : point.x() >= width - height ? "right" : "middle";
            return QStringLiteral("tap row %1 %2").arg(item.row()).arg(QLatin1String(zone));
        }
    }
    QWidget *bar = probe.baseBar();
    if (ScreenProbe::isShown(bar) && bar->isAncestorOf(widget)) {
        for (char const *name : {"back", "home"}) {
            QWidget *button = bar->findChild<QWidget *>(QLatin1String(name));
            if (button && (button == widget || button->isAncestorOf(widget)))
                return QStringLiteral("tap bar %1").arg(QLatin1String(name));
        }
    }
    for (QWidget *w = widget; w && w != screen; w = w->parentWidget()) {
        QString text;
        if (ScreenProbe::textOf(w, &text) && !text.isEmpty() && probe.findButton(text) == w)
            return QStringLiteral("tap button %1").arg(Scenario::quoted(text));
    }
    // A widget by its name, where a tap at its centre does the same.
    const QString name = widget->objectName();
    if (!name.isEmpty() && probe.findWidget(name) == widget
            && (qobject_cast<QAbstractButton *>(widget)
                || (local - widget->rect().center()).manhattanLength() <= DragPixels))
        return QStringLiteral("tap ") + name;
    const QPoint at = widget->mapTo(screen, local);
    return QStringLiteral("tap at %1 %2").arg(at.x()).arg(at.y());
}

void Recorder::pressed(QWidget *widget, QPoint const &local)
{
    endPress();
    flush();
    writeChanges();
    m_pressActive = true;
    m_pressWidget = widget;
    m_pressTap = tapAt(widget, local);
    m_pressRow = m_touchedRow;
    m_pressScreen = widget->mapTo(m_host.screen(), local);
    m_pressMs = m_clock.elapsed();
}

void Recorder::released(QWidget *widget, QPoint const &local)
{
    m_pressActive = false;
    const QPoint releaseScreen = widget->mapTo(m_host.screen(), local);
    const qint64 held = m_clock.elapsed() - m_pressMs;
    m_touchedRow = -1;
    if ((releaseScreen - m_pressScreen).manhattanLength() > DragPixels) {
        write(QStringLiteral("drag at %1 %2 %3 %4").arg(m_pressScreen.x()).arg(m_pressScreen.y())
                  .arg(releaseScreen.x()).arg(releaseScreen.y()));
    } else if (held >= LongPressMs) {
        const qint64 ms = (held + 5) / 10 * 10;
        const QString button = QStringLiteral("tap button ");
        if (m_pressTap.startsWith(button))
            write(QStringLiteral("longpress button %1 %2").arg(m_pressTap.mid(button.size())).arg(ms));
        else if (!m_pressTap.startsWith(QLatin1String("tap at ")) && m_pressTap.count(QLatin1Char(' ')) == 1)
            write(QStringLiteral("longpress %1 %2").arg(m_pressTap.mid(4)).arg(ms));
        else
            write(QStringLiteral("# not recorded: a press held %1 ms at %2 %3 (%4), which longpress can't name")
                      .arg(ms).arg(m_pressScreen.x()).arg(m_pressScreen.y()).arg(m_pressTap));
    } else {
        write(m_pressTap);
        m_touchedRow = m_pressRow;
    }
    m_inputAction = true;
    if (m_commandDepth == 0)
        finishLater();
}

void Recorder::endPress()
{
    if (!m_pressActive)
        return;
    m_pressActive = false;
    write(m_pressTap);
    m_touchedRow = m_pressRow;
    m_inputAction = true;
}

bool Recorder::eventFilter(QObject *watched, QEvent *event)
{
    if (!m_recording || !watched->isWidgetType())
        return false;
    auto *widget = static_cast<QWidget *>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress: case QEvent::MouseButtonDblClick: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        // A press that a child left to its parent comes again: the first
        // is the one that counts.
        if (!onScreen(widget)
                || (m_pressActive && m_pressWidget && (widget == m_pressWidget || widget->isAncestorOf(m_pressWidget))))
            break;
        if (mouse->button() != Qt::LeftButton) {
            const QPoint at = widget->mapTo(m_host.screen(), mouse->pos());
            write(QStringLiteral("# not recorded: a press of another mouse button at %1 %2").arg(at.x()).arg(at.y()));
            break;
        }
        pressed(widget, mouse->pos());
        break;
    }
    case QEvent::MouseButtonRelease: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (m_pressActive && mouse->button() == Qt::LeftButton && onScreen(widget))
            released(widget, mouse->pos());
        break;
    }
    case QEvent::Wheel:
        if (onScreen(widget)) {
            const QPoint at = widget->mapTo(m_host.screen(), static_cast<QWheelEvent *>(event)->position().toPoint());
            write(QStringLiteral("# not recorded: a turn of the wheel at %1 %2").arg(at.x()).arg(at.y()));
        }
        break;
    case QEvent::KeyPress: {
        auto *key = static_cast<QKeyEvent *>(event);
        if (!onScreen(widget) || m_keyDown)
            break;
        m_keyDown = true;
        if (key->isAutoRepeat()) {
            write(QStringLiteral("# not recorded: the key %1 repeating").arg(keyName(key->key())));
            break;
        }
        flush();
        writeChanges();
        write(QStringLiteral("key ") + keyName(key->key()));
        m_inputAction = true;
        if (m_commandDepth == 0)
            finishLater();
        break;
    }
    case QEvent::KeyRelease:
        if (onScreen(widget))
            m_keyDown = false;
        break;
    default:
        break;
    }
    return false;
}
