#include "mainwindow.h"

#include "bufferview.h"
#include "canobj.h"
#include "demo.h"
#include "hostsim.h"
#include "keys.h"
#include "logpanel.h"
#include "panels.h"
#include "simulatorhost.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <cstdio>

namespace {

constexpr int PanelWidth = 540;
constexpr int MinZoom = 50;
// What the window takes beside the screen: its margins, the row of keys,
// the status bar and a title bar's worth for the desktop's frame.
constexpr int WindowExtraWidth = 40;
constexpr int WindowExtraHeight = 130;
// What a desktop's frame takes above a window.
constexpr int TitleBarHeight = 30;
// How often the window title follows the protocol.
constexpr int TitleMs = 500;

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
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFrameShape(QFrame::NoFrame);
    return area;
}

} // namespace

MainWindow::MainWindow(SimulatorHost &host, int zoom, QWidget *parent)
    : QMainWindow(parent)
    , m_host(host)
    , m_runner(host)
    , m_zoom(qBound(MinZoom, zoom, 100))
{
    setWindowTitle(tr("Head-unit simulator"));
    auto *central = new QWidget(this);
    auto *layout = new QHBoxLayout(central);

    auto *screenColumn = new QVBoxLayout;
    screenColumn->addWidget(makeScreen());
    screenColumn->addWidget(makeKeys());
    screenColumn->addStretch(1);
    layout->addLayout(screenColumn);

    auto *panel = new QSplitter(Qt::Vertical, central);
    panel->setFixedWidth(PanelWidth);
    auto *controls = new QWidget(panel);
    auto *controlsLayout = new QVBoxLayout(controls);
    controlsLayout->setContentsMargins(0, 0, 0, 0);
    auto *tabs = new QTabWidget(controls);
    m_car = new CarPanel(host);
    m_climate = new ClimateEditor(host);
    m_body = new BodyPanel(host);
    m_reverse = new ReversePanel(host);
    tabs->addTab(scrolled(m_car), tr("Car"));
    tabs->addTab(scrolled(m_climate), tr("Climate"));
    tabs->addTab(scrolled(m_body), tr("Body"));
    tabs->addTab(scrolled(m_reverse), tr("Reverse"));
    tabs->addTab(new BufferView, tr("Data buffer"));
    controlsLayout->addWidget(tabs);
    controlsLayout->addWidget(makeCommandLine());
    panel->addWidget(controls);
    auto *logs = new LogPanel(host, panel);
    connect(logs, &LogPanel::message, this, &MainWindow::showStatus);
    panel->addWidget(logs);
    panel->setStretchFactor(0, 3);
    panel->setStretchFactor(1, 2);
    // Neither the panels nor the logs can be pushed out of sight.
    panel->setChildrenCollapsible(false);
    layout->addWidget(panel);
    setCentralWidget(central);

    statusBar()->showMessage(tr("Plug-in: %1").arg(host.pluginFile()));
    startTimer(TitleMs);
}

MainWindow::~MainWindow()
{
    QWidget *screen = m_host.screen();
    if (screen->parentWidget() == m_screenFrame) {
        screen->hide();
        screen->setParent(nullptr);
    }
}

int MainWindow::fittingZoom(QSize const &desktop)
{
    const QSize screen = HostSim::screenSize();
    int zoom = 100;
    while (zoom > MinZoom
           && (screen.width() * zoom / 100 + PanelWidth + WindowExtraWidth > desktop.width()
               || screen.height() * zoom / 100 + WindowExtraHeight > desktop.height()))
        zoom -= 5;
    return zoom;
}

int MainWindow::zoom() const
{
    return m_zoom;
}

void MainWindow::fitDesktop(QSize const &available)
{
    resize(qMin(sizeHint().width(), available.width()), available.height() - TitleBarHeight);
}

// The head unit's screen, at its real size or drawn scaled by the zoom. A
// scaled screen lies in a graphics view, which hands taps and keys on to
// its widgets at their own coordinates.
QWidget *MainWindow::makeScreen()
{
    QWidget *screen = m_host.screen();
    m_screenFrame = new QWidget;
    m_screenFrame->setFixedSize(screen->size());
    screen->setParent(m_screenFrame);
    screen->move(0, 0);
    screen->show();
    if (m_zoom == 100)
        return m_screenFrame;
    auto *scene = new QGraphicsScene(this);
    scene->addWidget(m_screenFrame);
    auto *view = new QGraphicsView(scene);
    view->setObjectName(QStringLiteral("zoomedScreen"));
    view->setFrameShape(QFrame::NoFrame);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    view->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    view->scale(m_zoom / 100.0, m_zoom / 100.0);
    view->setFixedSize(screen->size() * m_zoom / 100);
    view->setSceneRect(QRectF(QPointF(0, 0), QSizeF(screen->size())));
    return view;
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
        connect(button, &QPushButton::clicked, this, [this, code] { m_host.input().key(code); });
        row->addWidget(button);
    }
    row->addStretch(1);
    return keys;
}

QWidget *MainWindow::makeCommandLine()
{
    auto *line = new QWidget;
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    m_command = new QLineEdit(line);
    m_command->setObjectName(QStringLiteral("commandLine"));
    m_command->setPlaceholderText(tr("A scenario command, e.g. tap title 1 or expect row 1 \"2\""));
    QPushButton *run = panelButton(tr("Run"), line);
    row->addWidget(m_command);
    row->addWidget(run);
    connect(m_command, &QLineEdit::returnPressed, this, &MainWindow::runCommandLine);
    connect(run, &QPushButton::clicked, this, &MainWindow::runCommandLine);
    return line;
}

void MainWindow::startDemoCar(int protocolId, bool withData)
{
    if (withData) {
        const Scenario::Result result = Demo::startCar(m_host, protocolId);
        if (result.status != Scenario::Passed)
            showStatus(result.message, true);
    } else {
        Demo::selectProtocol(m_host, protocolId);
    }
    m_car->setSampleData(withData);
    reloadPanels();
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
    reloadPanels();
    return result.status;
}

bool MainWindow::saveWindow(QString const &file, QString *error)
{
    return Scenario::savePicture(grab(), file, error);
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
    reloadPanels();
    m_command->selectAll();
}

void MainWindow::showStatus(QString const &text, bool failed)
{
    statusBar()->setStyleSheet(failed ? QStringLiteral("color: rgb(200, 30, 30);") : QString());
    statusBar()->showMessage(text);
}

void MainWindow::reloadPanels()
{
    m_car->load();
    m_climate->load();
    m_body->load();
    m_reverse->load();
}

void MainWindow::timerEvent(QTimerEvent *)
{
    // A scenario, the command line or the buffer editor may have chosen
    // another protocol.
    m_car->load();
    const QString title = tr("Head-unit simulator: protocol %1").arg(CanObj::id());
    setWindowTitle(m_zoom == 100 ? title : tr("%1 (screen at %2%)").arg(title).arg(m_zoom));
}
