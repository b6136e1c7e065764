#include "mainwindow.h"

#include "bufferview.h"
#include "canobj.h"
#include "catalogue.h"
#include "demo.h"
#include "hostsim.h"
#include "panels.h"
#include "simulatorhost.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTime>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <cstdio>

namespace {

// How often the window looks at the climate commands and debug lines.
constexpr int PollMs = 200;
constexpr int PanelWidth = 500;

QPushButton *panelButton(QString const &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    // The head unit's screen keeps the keyboard focus.
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

QWidget *scrolled(QWidget *content)
{
    auto *area = new QScrollArea;
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

QString timeText(qint64 ms)
{
    return QStringLiteral("%1.%2").arg(ms / 1000).arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

} // namespace

MainWindow::MainWindow(SimulatorHost &host, QWidget *parent)
    : QMainWindow(parent)
    , m_host(host)
    , m_runner(host)
{
    setWindowTitle(tr("Head-unit simulator"));

    auto *central = new QWidget(this);
    auto *layout = new QHBoxLayout(central);

    // The head unit's screen, at its real size.
    QWidget *screen = HostSim::screen();
    auto *frame = new QWidget(central);
    frame->setFixedSize(screen->size());
    screen->setParent(frame);
    screen->move(0, 0);
    screen->show();
    auto *screenColumn = new QVBoxLayout;
    screenColumn->addWidget(frame);
    screenColumn->addWidget(makeKeys());
    screenColumn->addStretch(1);
    layout->addLayout(screenColumn);

    // The control panel.
    auto *panel = new QSplitter(Qt::Vertical, central);
    panel->setFixedWidth(PanelWidth);
    auto *tabs = new QTabWidget(panel);
    m_climate = new ClimateEditor(host);
    tabs->addTab(scrolled(makeCarPage()), tr("Car"));
    tabs->addTab(scrolled(m_climate), tr("Climate"));
    tabs->addTab(scrolled(new BodyPanel(host)), tr("Body"));
    tabs->addTab(scrolled(new ReversePanel(host)), tr("Reverse"));
    tabs->addTab(new BufferView, tr("Data buffer"));
    panel->addWidget(tabs);
    panel->addWidget(makeLogs());
    panel->setStretchFactor(0, 1);
    panel->setStretchFactor(1, 1);
    layout->addWidget(panel);
    setCentralWidget(central);

    connect(&host, &SimulatorHost::frameSent, this, &MainWindow::appendFrame);
    startTimer(PollMs);
    statusBar()->showMessage(tr("Plug-in: %1").arg(host.pluginFile()));
}

QWidget *MainWindow::makeCarPage()
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);

    auto *vehicle = new QGroupBox(tr("Vehicle"), page);
    auto *vehicleForm = new QFormLayout(vehicle);
    m_protocols = new QComboBox(vehicle);
    m_protocols->addItem(tr("0: no vehicle"), 0);
    for (int id : Catalogue::protocolIds()) {
        const int family = Catalogue::familyOf(id);
        m_protocols->addItem(family == id ? tr("%1").arg(id) : tr("%1 (family %2)").arg(id).arg(family), id);
    }
    m_family = new QLabel(vehicle);
    vehicleForm->addRow(tr("Protocol"), m_protocols);
    vehicleForm->addRow(tr("Page family"), m_family);
    auto *rightDriver = new QCheckBox(tr("Right-hand drive"), vehicle);
    auto *wallpaper = new QCheckBox(tr("Wallpaper"), vehicle);
    vehicleForm->addRow(rightDriver);
    vehicleForm->addRow(wallpaper);
    layout->addWidget(vehicle);
    connect(m_protocols, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        selectProtocol(m_protocols->itemData(index).toInt());
    });
    connect(rightDriver, &QCheckBox::toggled, this, [this](bool right) {
        HostSim::setRightDriver(right);
        m_host.call(QStringLiteral("setRightDriver"), {right});
    });
    connect(wallpaper, &QCheckBox::toggled, this, [](bool on) {
        HostSim::setWallpaper(on ? SimulatorHost::wallpaper() : QPixmap());
        HostSim::screen()->update();
    });

    auto *views = new QGroupBox(tr("Screens"), page);
    auto *viewGrid = new QGridLayout(views);
    const QList<QPair<QString, QString> > shows = {
        {tr("Extended view"), QStringLiteral("showExView")},
        {tr("Second extended view"), QStringLiteral("showExViewDialogView")},
        {tr("Overlays"), QStringLiteral("showDialogView")},
        {tr("Raise overlays"), QStringLiteral("showUiRaise")},
    };
    for (int i = 0; i < shows.size(); ++i) {
        QPushButton *button = panelButton(shows.at(i).first, views);
        button->setToolTip(shows.at(i).second + QStringLiteral("()"));
        const QString operation = shows.at(i).second;
        connect(button, &QPushButton::clicked, this, [this, operation] { m_host.call(operation); });
        viewGrid->addWidget(button, i / 2, i % 2);
    }
    QPushButton *notify = panelButton(tr("Data changed"), views);
    notify->setToolTip(tr("The \"canbus\" module emits dataChanged()"));
    connect(notify, &QPushButton::clicked, this, [] { HostSim::notifyDataChanged(); });
    viewGrid->addWidget(notify, 2, 0);
    layout->addWidget(views);

    auto *command = new QGroupBox(tr("Scenario command"), page);
    auto *commandLayout = new QHBoxLayout(command);
    m_command = new QLineEdit(command);
    m_command->setPlaceholderText(tr("e.g. tap title 1, expect row 1 \"9\", buf 106 9"));
    QPushButton *run = panelButton(tr("Run"), command);
    commandLayout->addWidget(m_command);
    commandLayout->addWidget(run);
    connect(m_command, &QLineEdit::returnPressed, this, &MainWindow::runCommandLine);
    connect(run, &QPushButton::clicked, this, &MainWindow::runCommandLine);
    layout->addWidget(command);
    layout->addStretch(1);
    return page;
}

// The head unit's hardware keys, in a row under the screen as on the
// unit's front.
QWidget *MainWindow::makeKeys()
{
    auto *keys = new QWidget;
    auto *row = new QHBoxLayout(keys);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new QLabel(tr("Keys:"), keys));
    for (HeadUnitKeys::Key const &key : HeadUnitKeys::all()) {
        if (!key.label)
            continue;
        QPushButton *button = panelButton(QString::fromUtf8(key.label), keys);
        button->setToolTip(QStringLiteral("%1 (0x%2)").arg(QLatin1String(key.name)).arg(key.code, 0, 16));
        const int code = key.code;
        connect(button, &QPushButton::clicked, this, [this, code] { m_host.key(code); });
        row->addWidget(button);
    }
    row->addStretch(1);
    return keys;
}

QWidget *MainWindow::makeLogs()
{
    auto *tabs = new QTabWidget;
    const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);

    m_frames = new QTreeWidget(tabs);
    m_frames->setHeaderLabels({tr("Time"), tr("Bytes"), tr("Family"), tr("Command")});
    m_frames->setRootIsDecorated(false);
    m_frames->setFont(fixed);
    m_frames->header()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_frames->header()->setStretchLastSection(false);

    m_commands = new QTreeWidget(tabs);
    m_commands->setHeaderLabels({tr("Time"), tr("Key"), tr("Value")});
    m_commands->setRootIsDecorated(false);

    m_debug = new QPlainTextEdit(tabs);
    m_debug->setReadOnly(true);
    m_debug->setFont(fixed);
    m_debug->setMaximumBlockCount(5000);

    tabs->addTab(m_frames, tr("Frames"));
    tabs->addTab(m_commands, tr("Climate commands"));
    tabs->addTab(m_debug, tr("Debug lines"));
    QPushButton *clear = new QPushButton(tr("Clear"), tabs);
    clear->setFocusPolicy(Qt::NoFocus);
    tabs->setCornerWidget(clear);
    connect(clear, &QPushButton::clicked, this, [this] {
        m_frames->clear();
        m_commands->clear();
        m_debug->clear();
    });
    return tabs;
}

void MainWindow::startDemoCar(int protocolId)
{
    if (protocolId == Demo::ProtocolId) {
        const Scenario::Result result = Demo::loadData(m_host);
        if (result.status != Scenario::Passed)
            showStatus(result.message, true);
        m_climate->load();
    }
    selectProtocol(protocolId);
}

void MainWindow::selectProtocol(int protocolId)
{
    HostSim::setProtocolId(protocolId);
    m_host.call(QStringLiteral("setProtocolId"), {protocolId});
    showProtocol(protocolId);
}

void MainWindow::showProtocol(int protocolId)
{
    m_shownProtocol = protocolId;
    int index = m_protocols->findData(protocolId);
    if (index < 0) {
        // An id outside the catalogue, chosen by a scenario.
        m_protocols->addItem(tr("%1: no page family").arg(protocolId), protocolId);
        index = m_protocols->count() - 1;
    }
    m_protocols->setCurrentIndex(index);
    const int family = Catalogue::familyOf(protocolId);
    m_family->setText(family ? tr("CarExView%1").arg(family) : tr("none: the extended view stays empty"));
    setWindowTitle(tr("Head-unit simulator: protocol %1").arg(protocolId));
}

int MainWindow::runScenario(Scenario::Script const &script)
{
    const Scenario::Result result = m_runner.run(script);
    if (result.status == Scenario::Passed) {
        showStatus(tr("%1: all %2 lines ran").arg(script.file).arg(script.commands.size()), false);
    } else {
        std::fprintf(stderr, "%s\n", qPrintable(result.message));
        showStatus(result.message, true);
    }
    m_climate->load();
    return result.status;
}

void MainWindow::runCommandLine()
{
    Scenario::Command command;
    command.line = 1;
    bool isCommand = false;
    QString error;
    if (!Scenario::parseLine(m_command->text(), &command, &isCommand, &error)) {
        showStatus(tr("malformed: %1").arg(error), true);
        return;
    }
    if (!isCommand)
        return;
    QString failure;
    if (m_runner.execute(command, &failure))
        showStatus(tr("done: %1").arg(command.source), false);
    else
        showStatus(failure, true);
    m_climate->load();
    m_command->selectAll();
}

void MainWindow::showStatus(QString const &text, bool failed)
{
    statusBar()->setStyleSheet(failed ? QStringLiteral("color: rgb(200, 30, 30);") : QString());
    statusBar()->showMessage(text);
}

void MainWindow::appendFrame(qint64 ms, QByteArray const &frame)
{
    const QString family = frame.isEmpty() ? QString()
            : QStringLiteral("%1").arg(quint8(frame.at(0)), 2, 16, QLatin1Char('0')).toUpper();
    const QString command = frame.size() < 2 ? QString()
            : QStringLiteral("%1").arg(quint8(frame.at(1)), 2, 16, QLatin1Char('0')).toUpper();
    auto *item = new QTreeWidgetItem(m_frames, {timeText(ms), Scenario::hex(frame), family, command});
    m_frames->scrollToItem(item);
}

void MainWindow::pollLogs()
{
    const auto commands = HostSim::climateCommands();
    if (commands.size() < m_commandsShown)
        m_commandsShown = 0;
    for (int i = m_commandsShown; i < commands.size(); ++i) {
        auto *item = new QTreeWidgetItem(m_commands, {QTime::currentTime().toString(QStringLiteral("hh:mm:ss.zzz")),
                                                      commands.at(i).first, commands.at(i).second});
        m_commands->scrollToItem(item);
    }
    m_commandsShown = commands.size();

    const QStringList lines = SimulatorHost::messages();
    for (int i = m_messagesShown; i < lines.size(); ++i)
        m_debug->appendPlainText(lines.at(i));
    m_messagesShown = lines.size();
}

void MainWindow::timerEvent(QTimerEvent *)
{
    pollLogs();
    // A scenario or the command line may have chosen another protocol.
    if (CanObj::id() != m_shownProtocol)
        showProtocol(CanObj::id());
}
