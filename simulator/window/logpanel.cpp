#include "logpanel.h"

#include "debuglog.h"
#include "hostsim.h"
#include "recorder.h"
#include "simulatorhost.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

// How often the panel looks at the climate commands and debug lines.
constexpr int PollMs = 200;
// What the panel keeps of a long run: the newest frames and debug lines.
constexpr int MaxFrames = 5000;
constexpr int MaxDebugLines = 5000;
// The frame log shows at least these many rows, also on a small desktop.
constexpr int MinFrameRows = 8;

enum Column { TimeColumn, DirectionColumn, BytesColumn, FamilyColumn, CommandColumn, MeaningColumn };

// A byte in hex; nothing for -1.
QString byteText(int value)
{
    return value < 0 ? QString() : QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')).toUpper();
}

QTreeWidget *table(QStringList const &headers, QWidget *parent)
{
    auto *tree = new QTreeWidget(parent);
    tree->setHeaderLabels(headers);
    tree->setRootIsDecorated(false);
    tree->setUniformRowHeights(true);
    return tree;
}

QPushButton *toolButton(QString const &text, QString const &name, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    // The head unit's screen keeps the keyboard focus.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

LogPanel::LogPanel(SimulatorHost &host, QWidget *parent)
    : QTabWidget(parent)
    , m_host(host)
    , m_recorder(new Recorder(host, this))
    , m_frames(table({tr("Time"), tr("Dir"), tr("Bytes"), tr("Family"), tr("Command"), tr("Meaning")}, this))
    , m_commands(table({tr("Time"), tr("Key"), tr("Value")}, this))
    , m_debug(new QPlainTextEdit(this))
{
    m_frames->setObjectName(QStringLiteral("frameLog"));
    m_commands->setObjectName(QStringLiteral("climateCommandLog"));
    m_debug->setObjectName(QStringLiteral("debugLog"));
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_frames->setFont(fixed);
    m_frames->header()->setStretchLastSection(true);
    fitColumns();
    m_debug->setReadOnly(true);
    m_debug->setFont(fixed);
    m_debug->setMaximumBlockCount(MaxDebugLines);

    addTab(makeFrameTab(), tr("Frames"));
    addTab(m_commands, tr("Climate commands"));
    addTab(m_debug, tr("Debug lines"));
    auto *clearButton = toolButton(tr("Clear"), QStringLiteral("clearLogs"), this);
    setCornerWidget(clearButton);
    connect(clearButton, &QPushButton::clicked, this, &LogPanel::clear);

    m_log.attach(host);
    connect(&m_log, &FrameLog::appended, this, &LogPanel::appendEntry);
    startTimer(PollMs);
}

// The columns as wide as their texts, the meaning the rest, each one
// widened by dragging its edge (the log then scrolls sideways); the frame
// log at least MinFrameRows rows high.
void LogPanel::fitColumns()
{
    const auto fit = [](QTreeWidget *tree, int column, QString const &sample) {
        const QFontMetrics metrics = tree->fontMetrics();
        const int padding = 2 * metrics.horizontalAdvance(QLatin1Char(' '));
        tree->setColumnWidth(column, qMax(metrics.horizontalAdvance(sample),
                                          tree->header()->fontMetrics().horizontalAdvance(tree->headerItem()->text(column)))
                                         + 2 * padding);
    };
    fit(m_frames, TimeColumn, QStringLiteral("00000.000"));
    fit(m_frames, DirectionColumn, QStringLiteral("TX"));
    // A 2E frame of eight bytes.
    fit(m_frames, BytesColumn, QStringLiteral("2E A8 04 01 0A 00 00 4A"));
    fit(m_frames, FamilyColumn, QStringLiteral("FD"));
    fit(m_frames, CommandColumn, QStringLiteral("A8"));
    m_frames->header()->setSectionResizeMode(QHeaderView::Interactive);
    m_frames->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_frames->setMinimumHeight(m_frames->header()->sizeHint().height() + MinFrameRows * (m_frames->fontMetrics().height() + 4)
                               + 2 * m_frames->frameWidth());
    fit(m_commands, 0, QStringLiteral("00000.000"));
    // Keys such as "AirTemperatureUnit".
    fit(m_commands, 1, QStringLiteral("AirConditionerTemperature"));
}

QWidget *LogPanel::makeFrameTab()
{
    auto *tab = new QWidget(this);
    auto *layout = new QVBoxLayout(tab);
    layout->setContentsMargins(0, 0, 0, 0);

    auto *tools = new QHBoxLayout;
    m_record = toolButton(tr("Record"), QStringLiteral("recordButton"), tab);
    m_record->setCheckable(true);
    m_record->setToolTip(tr("Write what you do on the screen and the panels as a scenario"));
    QPushButton *save = toolButton(tr("Save log..."), QStringLiteral("saveLogButton"), tab);
    QPushButton *load = toolButton(tr("Load log..."), QStringLiteral("loadLogButton"), tab);
    QPushButton *replay = toolButton(tr("Replay log..."), QStringLiteral("replayLogButton"), tab);
    replay->setToolTip(tr("Send a saved log's TX frames to the decoder box"));
    for (QPushButton *button : {m_record, save, load, replay})
        tools->addWidget(button);
    tools->addStretch(1);
    layout->addLayout(tools);

    auto *filters = new QHBoxLayout;
    m_family = new QComboBox(tab);
    m_family->setObjectName(QStringLiteral("frameFamilyFilter"));
    m_family->addItem(tr("All families"), QString());
    m_family->addItem(QStringLiteral("2E"), QStringLiteral("2E"));
    m_family->addItem(QStringLiteral("FD"), QStringLiteral("FD"));
    m_command = new QLineEdit(tab);
    m_command->setObjectName(QStringLiteral("frameCommandFilter"));
    m_command->setPlaceholderText(tr("Command, e.g. A8"));
    m_command->setMaximumWidth(140);
    m_text = new QLineEdit(tab);
    m_text->setObjectName(QStringLiteral("frameTextFilter"));
    m_text->setPlaceholderText(tr("Text, e.g. Treble"));
    m_text->setClearButtonEnabled(true);
    filters->addWidget(m_family);
    filters->addWidget(m_command);
    filters->addWidget(m_text, 1);
    layout->addLayout(filters);
    layout->addWidget(m_frames, 1);

    connect(m_family, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &LogPanel::applyFilter);
    connect(m_command, &QLineEdit::textChanged, this, &LogPanel::applyFilter);
    connect(m_text, &QLineEdit::textChanged, this, &LogPanel::applyFilter);
    connect(m_record, &QPushButton::toggled, this, &LogPanel::toggleRecording);
    const QString filter = tr("Frame logs (*.log *.txt);;All files (*)");
    connect(save, &QPushButton::clicked, this, [this, filter] {
        const QString file = QFileDialog::getSaveFileName(this, tr("Save the frame log"), QStringLiteral("frames.log"), filter);
        QString error;
        if (!file.isEmpty())
            emit message(saveLog(file, &error) ? tr("Frame log saved to %1").arg(file) : error, !error.isEmpty());
    });
    connect(load, &QPushButton::clicked, this, [this, filter] {
        const QString file = QFileDialog::getOpenFileName(this, tr("Load a frame log"), QString(), filter);
        QString error;
        if (!file.isEmpty())
            emit message(loadLog(file, &error) ? tr("Frame log loaded from %1").arg(file) : error, !error.isEmpty());
    });
    connect(replay, &QPushButton::clicked, this, [this, filter] {
        const QString file = QFileDialog::getOpenFileName(this, tr("Replay a frame log into the decoder box"), QString(), filter);
        QString error;
        if (!file.isEmpty())
            emit message(replayLog(file, &error) ? tr("Replayed %1").arg(file) : error, !error.isEmpty());
    });
    return tab;
}

FrameLog &LogPanel::frameLog()
{
    return m_log;
}

bool LogPanel::saveLog(QString const &file, QString *error)
{
    return m_log.save(file, error);
}

bool LogPanel::loadLog(QString const &file, QString *error)
{
    QList<FrameLog::Entry> entries;
    if (!FrameLog::load(file, &entries, error))
        return false;
    m_log.clear();
    m_frames->clear();
    for (FrameLog::Entry const &entry : qAsConst(entries))
        m_log.append(entry);
    return true;
}

bool LogPanel::replayLog(QString const &file, QString *error)
{
    return FrameLog::replay(m_host, file, error);
}

bool LogPanel::startRecording(QString const &file, QString *error)
{
    if (!m_recorder->start(file, error))
        return false;
    const QSignalBlocker blocker(m_record);
    m_record->setChecked(true);
    m_record->setText(tr("Stop recording"));
    return true;
}

void LogPanel::stopRecording()
{
    const bool was = m_recorder->isRecording();
    m_recorder->stop();
    const QSignalBlocker blocker(m_record);
    m_record->setChecked(false);
    m_record->setText(tr("Record"));
    if (was)
        emit message(tr("Recording written to %1").arg(m_recorder->file()), false);
}

bool LogPanel::isRecording() const
{
    return m_recorder->isRecording();
}

void LogPanel::toggleRecording(bool on)
{
    if (!on) {
        stopRecording();
        return;
    }
    const QString file = QFileDialog::getSaveFileName(this, tr("Record a scenario"), QStringLiteral("recording.scn"),
                                                      tr("Scenarios (*.scn);;All files (*)"));
    QString error;
    if (file.isEmpty() || !startRecording(file, &error)) {
        const QSignalBlocker blocker(m_record);
        m_record->setChecked(false);
        if (!file.isEmpty())
            emit message(error, true);
        return;
    }
    emit message(tr("Recording to %1").arg(file), false);
}

void LogPanel::appendEntry(FrameLog::Entry const &entry)
{
    QByteArray const &frame = entry.frame;
    const bool noise = entry.fromBox && entry.piece == FrameSplitter::Noise;
    auto *item = new QTreeWidgetItem(m_frames, {FrameLog::timeText(entry.ms), FrameLog::directionText(entry),
                                                FrameLog::bytesText(entry),
                                                byteText(noise || frame.isEmpty() ? -1 : quint8(frame.at(0))),
                                                byteText(noise ? -1 : FrameSplitter::command(frame)), entry.meaning});
    if (entry.direction == FrameLog::Rx) {
        for (int column = 0; column < item->columnCount(); ++column)
            item->setForeground(column, Qt::darkBlue);
    }
    if (entry.meaning.startsWith(QLatin1String("unknown frame")) || (entry.fromBox && entry.piece != FrameSplitter::Frame))
        item->setForeground(MeaningColumn, Qt::darkRed);
    item->setHidden(!accepts(item));
    while (m_frames->topLevelItemCount() > MaxFrames)
        delete m_frames->takeTopLevelItem(0);
    if (!item->isHidden())
        m_frames->scrollToItem(item);
}

bool LogPanel::accepts(QTreeWidgetItem const *item) const
{
    const QString family = m_family->currentData().toString();
    if (!family.isEmpty() && item->text(FamilyColumn) != family)
        return false;
    const QString command = m_command->text().trimmed();
    if (!command.isEmpty() && item->text(CommandColumn).compare(command, Qt::CaseInsensitive) != 0)
        return false;
    const QString text = m_text->text().trimmed();
    if (text.isEmpty())
        return true;
    for (int column = 0; column < item->columnCount(); ++column) {
        if (item->text(column).contains(text, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

void LogPanel::applyFilter()
{
    for (int i = 0; i < m_frames->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = m_frames->topLevelItem(i);
        item->setHidden(!accepts(item));
    }
}

void LogPanel::poll()
{
    const auto commands = HostSim::climateCommands();
    if (commands.size() < m_commandsShown)
        m_commandsShown = 0;
    // Seconds since the start, as the frame log counts them.
    const QString now = FrameLog::timeText(m_host.elapsed());
    for (int i = m_commandsShown; i < commands.size(); ++i) {
        auto *item = new QTreeWidgetItem(m_commands, {now, commands.at(i).first, commands.at(i).second});
        m_commands->scrollToItem(item);
        // A key longer than its column widens it.
        if (m_commands->fontMetrics().horizontalAdvance(item->text(1)) >= m_commands->columnWidth(1))
            m_commands->resizeColumnToContents(1);
    }
    m_commandsShown = commands.size();

    const QStringList lines = DebugLog::since(m_linesShown);
    for (QString const &line : lines)
        m_debug->appendPlainText(line);
    m_linesShown = DebugLog::end();
}

void LogPanel::clear()
{
    m_log.clear();
    m_frames->clear();
    m_commands->clear();
    m_debug->clear();
}

void LogPanel::timerEvent(QTimerEvent *)
{
    poll();
}
