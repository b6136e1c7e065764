#include "logpanel.h"

#include "debuglog.h"
#include "frames.h"
#include "hostsim.h"
#include "scenario.h"
#include "simulatorhost.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTime>
#include <QTreeWidget>

namespace {

// How often the panel looks at the climate commands and debug lines.
constexpr int PollMs = 200;
// What the panel keeps of a long run: the newest frames and debug lines.
constexpr int MaxFrames = 5000;
constexpr int MaxDebugLines = 5000;

QString timeText(qint64 ms)
{
    return QStringLiteral("%1.%2").arg(ms / 1000).arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

QString byteText(QByteArray const &frame, int index)
{
    return frame.size() > index ? QStringLiteral("%1").arg(quint8(frame.at(index)), 2, 16, QLatin1Char('0')).toUpper()
                                : QString();
}

QTreeWidget *table(QStringList const &headers, QWidget *parent)
{
    auto *tree = new QTreeWidget(parent);
    tree->setHeaderLabels(headers);
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    return tree;
}

} // namespace

LogPanel::LogPanel(SimulatorHost &host, QWidget *parent)
    : QTabWidget(parent)
    , m_frames(table({tr("Time"), tr("Bytes"), tr("Family"), tr("Command")}, this))
    , m_commands(table({tr("Time"), tr("Key"), tr("Value")}, this))
    , m_debug(new QPlainTextEdit(this))
{
    m_frames->setObjectName(QStringLiteral("frameLog"));
    m_commands->setObjectName(QStringLiteral("climateCommandLog"));
    m_debug->setObjectName(QStringLiteral("debugLog"));
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_frames->setFont(fixed);
    m_frames->header()->setStretchLastSection(false);
    m_frames->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_debug->setReadOnly(true);
    m_debug->setFont(fixed);
    m_debug->setMaximumBlockCount(MaxDebugLines);

    addTab(m_frames, tr("Frames"));
    addTab(m_commands, tr("Climate commands"));
    addTab(m_debug, tr("Debug lines"));
    auto *clearButton = new QPushButton(tr("Clear"), this);
    clearButton->setFocusPolicy(Qt::NoFocus);
    setCornerWidget(clearButton);
    connect(clearButton, &QPushButton::clicked, this, &LogPanel::clear);

    connect(&host, &SimulatorHost::frameSent, this, &LogPanel::appendFrame);
    connect(&host.box(), &DecoderBox::unanswered, this, [this, &host](QString const &line) {
        appendBoxLine(host.elapsed(), line);
    });
    startTimer(PollMs);
}

void LogPanel::appendBoxLine(qint64 ms, QString const &line)
{
    auto *item = new QTreeWidgetItem(m_frames, {timeText(ms), line, tr("box"), QString()});
    item->setForeground(1, Qt::darkRed);
    m_frames->scrollToItem(item);
}

void LogPanel::appendFrame(qint64 ms, QByteArray const &frame)
{
    // Family 2E has its command in byte 1, family FD (length first) in byte 2.
    const int commandAt = !frame.isEmpty() && quint8(frame.at(0)) == Frames::FamilyFD ? 2 : 1;
    auto *item = new QTreeWidgetItem(m_frames, {timeText(ms), Scenario::hex(frame), byteText(frame, 0),
                                                byteText(frame, commandAt)});
    while (m_frames->topLevelItemCount() > MaxFrames)
        delete m_frames->takeTopLevelItem(0);
    m_frames->scrollToItem(item);
}

void LogPanel::poll()
{
    const auto commands = HostSim::climateCommands();
    if (commands.size() < m_commandsShown)
        m_commandsShown = 0;
    const QString now = QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz"));
    for (int i = m_commandsShown; i < commands.size(); ++i) {
        auto *item = new QTreeWidgetItem(m_commands, {now, commands.at(i).first, commands.at(i).second});
        m_commands->scrollToItem(item);
    }
    m_commandsShown = commands.size();

    const QStringList lines = DebugLog::since(m_linesShown);
    for (QString const &line : lines)
        m_debug->appendPlainText(line);
    m_linesShown = DebugLog::end();
}

void LogPanel::clear()
{
    m_frames->clear();
    m_commands->clear();
    m_debug->clear();
}

void LogPanel::timerEvent(QTimerEvent *)
{
    poll();
}
