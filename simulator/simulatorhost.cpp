#include "simulatorhost.h"

#include "appframework.h"
#include "basebar.h"
#include "canobj.h"
#include "carcontrolinterface.h"
#include "customimagebutton.h"
#include "hostsim.h"
#include "listdata.h"
#include "zorvrollingtext.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QHeaderView>
#include <QJsonObject>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QMutex>
#include <QPainter>
#include <QStackedWidget>
#include <QTableView>
#include <QTimer>

#include <cstdio>

// --- Keys ---------------------------------------------------------------------

namespace HeadUnitKeys {

QList<Key> const &all()
{
    static const QList<Key> keys = {
        {"enter", 0x1100041, "Enter"},
        {"back", 0x110002A, "Back"},
        {"up", 0x110003F, "\u25B2"},
        {"down", 0x1100040, "\u25BC"},
        {"left", 0x110003D, "\u25C0"},
        {"right", 0x110003E, "\u25B6"},
        {"next", 0x110004D, "Next"},
        {"previous", 0x110004E, "Previous"},
        {"remote-enter", 0x1400009, nullptr},
        {"remote-up", 0x140000A, nullptr},
        {"remote-down", 0x140000B, nullptr},
        {"remote-left", 0x140000C, nullptr},
        {"remote-right", 0x140000D, nullptr},
        {"remote-back", 0x140000F, nullptr},
    };
    return keys;
}

int code(QString const &name)
{
    for (Key const &key : all()) {
        if (name == QLatin1String(key.name))
            return key.code;
    }
    return -1;
}

} // namespace HeadUnitKeys

// --- Debug lines ------------------------------------------------------------------

namespace {

struct MessageStore
{
    QMutex mutex;
    QStringList lines;
    bool echo = false;
    QtMessageHandler previous = nullptr;
};

MessageStore &messageStore()
{
    static MessageStore store;
    return store;
}

void keepMessage(QtMsgType type, QMessageLogContext const &context, QString const &message)
{
    MessageStore &store = messageStore();
    bool echo;
    {
        QMutexLocker lock(&store.mutex);
        store.lines.append(message);
        echo = store.echo;
    }
    if ((echo || (type != QtDebugMsg && type != QtInfoMsg)) && store.previous)
        store.previous(type, context, message);
}

const char CarControlIid[] = "cantheme/0.1";

void sendMouse(QWidget *widget, QEvent::Type type, QPoint const &local)
{
    const QPointF windowPos = widget->mapTo(widget->window(), local);
    const QPointF screenPos = widget->mapToGlobal(local);
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, QPointF(local), windowPos, screenPos, Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// The point of an item, in the coordinates of the screen: the middle of the
// part of its rectangle that the viewport shows.
QPoint itemPoint(QAbstractItemView *view, QRect const &rect, int x, QWidget *screen)
{
    const QRect shown = rect.intersected(view->viewport()->rect());
    return view->viewport()->mapTo(screen, QPoint(x, shown.center().y()));
}

} // namespace

// --- The host -------------------------------------------------------------------

SimulatorHost::SimulatorHost(QObject *parent)
    : QObject(parent)
{
    m_clock.start();
    for (int level = 0; level < 4; ++level) {
        QWidget *widget = zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchy(level));
        widget->installEventFilter(this);
        m_levels.append(widget);
    }
    connect(CanObj::instance(), &CanObj::sendDataToCan, this, [this](QByteArray const &frame) {
        emit frameSent(m_clock.elapsed(), frame);
    });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && screen()->isAncestorOf(now))
            m_lastFocus = now;
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
    m_loader.setFileName(pluginFile);
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
    settle();
}

CarControlInterface *SimulatorHost::root() const
{
    return m_root;
}

QString SimulatorHost::pluginFile() const
{
    return m_loader.fileName();
}

QList<SimulatorHost::Operation> const &SimulatorHost::operations()
{
    static const QList<Operation> list = {
        {"setProtocolId", "i"},
        {"setReverse", "b"},
        {"setReverseSignalState", "b"},
        {"setRightDriver", "b"},
        {"setOtherProperty", "sv"},
        {"setData", "?v"},
        {"showDialogView", ""},
        {"showExView", ""},
        {"showExViewDialogView", ""},
        {"showUiRaise", ""},
        {"onAirConditionerVisibleChanged", "b"},
        {"onAirConditionerDataChanged", ""},
        {"onCardoorDataChanged", ""},
        {"onCarbodyDataChanged", ""},
        {"onRadarDataChanged", "r"},
        {"onTrajectoryDataChanged", "iib"},
    };
    return list;
}

SimulatorHost::Operation const *SimulatorHost::operation(QString const &name)
{
    for (Operation const &op : operations()) {
        if (name == QLatin1String(op.name))
            return &op;
    }
    return nullptr;
}

void SimulatorHost::call(QString const &name, QVariantList const &args)
{
    if (!m_root)
        return;
    CarControlInterface *root = m_root;
    const QVariant a0 = args.value(0);
    if (name == QLatin1String("setProtocolId")) {
        root->setProtocolId(a0.toInt());
    } else if (name == QLatin1String("setReverse")) {
        root->setReverse(a0.toBool());
    } else if (name == QLatin1String("setReverseSignalState")) {
        root->setReverseSignalState(a0.toBool());
    } else if (name == QLatin1String("setRightDriver")) {
        const bool right = a0.toBool();
        root->setRightDriver(right);
    } else if (name == QLatin1String("setOtherProperty")) {
        root->setOtherProperty(a0.toString(), args.value(1));
    } else if (name == QLatin1String("setData")) {
        root->setData(a0);
    } else if (name == QLatin1String("showDialogView")) {
        root->showDialogView();
    } else if (name == QLatin1String("showExView")) {
        root->showExView();
    } else if (name == QLatin1String("showExViewDialogView")) {
        root->showExViewDialogView();
    } else if (name == QLatin1String("showUiRaise")) {
        root->showUiRaise();
    } else if (name == QLatin1String("onAirConditionerVisibleChanged")) {
        root->onAirConditionerVisibleChanged(a0.toBool());
    } else if (name == QLatin1String("onAirConditionerDataChanged")) {
        root->onAirConditionerDataChanged();
    } else if (name == QLatin1String("onCardoorDataChanged")) {
        root->onCardoorDataChanged();
    } else if (name == QLatin1String("onCarbodyDataChanged")) {
        root->onCarbodyDataChanged();
    } else if (name == QLatin1String("onRadarDataChanged")) {
        if (args.isEmpty())
            root->onRadarDataChanged();
        else
            root->onRadarDataChanged(a0);
    } else if (name == QLatin1String("onTrajectoryDataChanged")) {
        root->onTrajectoryDataChanged(a0.toInt(), args.value(1).toInt(), args.value(2).toBool());
    } else {
        qWarning("headunit-sim: no operation %s", qPrintable(name));
    }
}

void SimulatorHost::settle()
{
    // A round can post more: a deleted view updates its level, a shown page
    // lays itself out.
    for (int round = 0; round < 4; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    }
}

void SimulatorHost::wait(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    settle();
}

// --- The screen -------------------------------------------------------------------

QWidget *SimulatorHost::screen() const
{
    return HostSim::screen();
}

QWidget *SimulatorHost::dialogView() const
{
    for (auto it = m_shownViews.crbegin(); it != m_shownViews.crend(); ++it) {
        if (*it && (*it)->inherits("DialogView"))
            return *it;
    }
    // Made but never shown.
    QWidget *level = zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel0);
    const auto children = level->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child->inherits("DialogView"))
            return child;
    }
    return nullptr;
}

QWidget *SimulatorHost::extendedView() const
{
    for (auto it = m_shownViews.crbegin(); it != m_shownViews.crend(); ++it) {
        QWidget *view = *it;
        if (view && view->inherits("ExView") && !view->isHidden())
            return view;
    }
    return nullptr;
}

QWidget *SimulatorHost::viewChild(QWidget *view, char const *name) const
{
    return view ? view->findChild<QWidget *>(QLatin1String(name), Qt::FindDirectChildrenOnly) : nullptr;
}

QAbstractItemView *SimulatorHost::titleList() const
{
    return qobject_cast<QAbstractItemView *>(viewChild(extendedView(), "listView"));
}

QStackedWidget *SimulatorHost::pageStack() const
{
    return qobject_cast<QStackedWidget *>(viewChild(extendedView(), "stack"));
}

QWidget *SimulatorHost::currentPage() const
{
    QStackedWidget *stack = pageStack();
    QAbstractItemView *list = titleList();
    if (!stack || (list && !list->isHidden()))
        return nullptr;
    return stack->currentWidget();
}

QTableView *SimulatorHost::pageTable() const
{
    QWidget *page = currentPage();
    if (!page)
        return nullptr;
    const auto tables = page->findChildren<QTableView *>();
    QTableView *fallback = nullptr;
    for (QTableView *table : tables) {
        if (!table->inherits("TableView"))
            continue;
        if (table->isVisibleTo(page))
            return table;
        if (!fallback)
            fallback = table;
    }
    if (!fallback && !tables.isEmpty())
        fallback = tables.first();
    return fallback;
}

QWidget *SimulatorHost::part(QString const &name) const
{
    if (name == QLatin1String("list"))
        return titleList();
    if (name == QLatin1String("page"))
        return pageStack();
    if (name == QLatin1String("tire"))
        return viewChild(extendedView(), "tirePressure");
    if (name == QLatin1String("extended"))
        return extendedView();
    if (name == QLatin1String("dialog"))
        return dialogView();
    if (name == QLatin1String("air"))
        return viewChild(dialogView(), "airView");
    if (name == QLatin1String("door"))
        return viewChild(dialogView(), "carDoorView");
    if (name == QLatin1String("reverse"))
        return viewChild(dialogView(), "reverseView");
    return findWidget(name);
}

QWidget *SimulatorHost::findWidget(QString const &objectName) const
{
    // Depth first: the lower UI levels come first, so the last of several
    // lies highest.
    const auto widgets = screen()->findChildren<QWidget *>(objectName);
    for (auto it = widgets.crbegin(); it != widgets.crend(); ++it) {
        if (isShown(*it))
            return *it;
    }
    return widgets.isEmpty() ? nullptr : widgets.last();
}

QObject *SimulatorHost::findObject(QString const &objectName) const
{
    if (QWidget *widget = findWidget(objectName))
        return widget;
    return screen()->findChild<QObject *>(objectName);
}

bool SimulatorHost::isShown(QWidget const *widget)
{
    return widget && widget->isVisible();
}

bool SimulatorHost::textOf(QWidget const *widget, QString *text)
{
    if (auto *label = qobject_cast<QLabel const *>(widget))
        *text = label->text();
    else if (auto *button = qobject_cast<QAbstractButton const *>(widget))
        *text = button->text();
    else if (auto *imageButton = qobject_cast<CustomImageButton const *>(widget))
        *text = imageButton->text();
    else if (auto *rolling = qobject_cast<ZorvRollingText const *>(widget))
        *text = rolling->text();
    else
        return false;
    return true;
}

bool SimulatorHost::downStateOf(QWidget const *widget, bool *down)
{
    if (auto *button = qobject_cast<QAbstractButton const *>(widget))
        *down = button->isDown() || button->isChecked();
    else if (auto *imageButton = qobject_cast<CustomImageButton const *>(widget))
        *down = imageButton->isDown();
    else
        return false;
    return true;
}

QStringList SimulatorHost::visibleTexts() const
{
    QStringList texts;
    const auto widgets = screen()->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        QString text;
        if (isShown(widget) && textOf(widget, &text))
            texts << text;
    }
    return texts;
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
    QPolygon hills;
    hills << QPoint(0, size.height()) << QPoint(0, horizon);
    for (int x = 0; x <= size.width(); x += size.width() / 8)
        hills << QPoint(x, horizon - (x / (size.width() / 8) % 2 ? size.height() / 10 : 0));
    hills << QPoint(size.width(), size.height());
    painter.drawPolygon(hills);
    return picture;
}

// --- Input --------------------------------------------------------------------------

void SimulatorHost::tapAt(QPoint const &screenPoint)
{
    QWidget *target = screen()->childAt(screenPoint);
    if (!target)
        target = screen();
    const QPoint local = target->mapFrom(screen(), screenPoint);
    QPointer<QWidget> alive = target;
    sendMouse(target, QEvent::MouseButtonPress, local);
    if (alive)
        sendMouse(target, QEvent::MouseButtonRelease, local);
}

void SimulatorHost::tapWidget(QWidget *widget)
{
    QPointer<QWidget> alive = widget;
    const QPoint centre = widget->rect().center();
    sendMouse(widget, QEvent::MouseButtonPress, centre);
    if (alive)
        sendMouse(widget, QEvent::MouseButtonRelease, centre);
}

void SimulatorHost::longPress(QWidget *widget, int ms)
{
    QPointer<QWidget> alive = widget;
    const QPoint centre = widget->rect().center();
    sendMouse(widget, QEvent::MouseButtonPress, centre);
    wait(ms);
    if (alive)
        sendMouse(widget, QEvent::MouseButtonRelease, centre);
}

QWidget *SimulatorHost::focusTarget() const
{
    QWidget *focus = QApplication::focusWidget();
    if (focus && (focus == screen() || screen()->isAncestorOf(focus)))
        return focus;
    if (m_lastFocus && isShown(m_lastFocus))
        return m_lastFocus;
    if (QWidget *view = extendedView())
        return view;
    if (isShown(dialogView()))
        return dialogView();
    return screen();
}

void SimulatorHost::key(int code)
{
    QPointer<QWidget> target = focusTarget();
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
    QApplication::sendEvent(target, &press);
    if (target) {
        QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier);
        QApplication::sendEvent(target, &release);
    }
}

bool SimulatorHost::tapTitle(int index, QString *failure)
{
    QAbstractItemView *list = titleList();
    if (!isShown(list)) {
        *failure = extendedView() ? QStringLiteral("the list of titles hidden")
                                  : QStringLiteral("no extended view");
        return false;
    }
    const int count = list->model()->rowCount();
    if (index < 0 || index >= count) {
        *failure = QStringLiteral("%1 titles").arg(count);
        return false;
    }
    const QModelIndex item = list->model()->index(index, 0);
    list->scrollTo(item);
    settle();
    const QRect rect = list->visualRect(item);
    tapAt(itemPoint(list, rect, rect.center().x(), screen()));
    return true;
}

bool SimulatorHost::tapRow(int row, Zone zone, QString *failure)
{
    QTableView *table = pageTable();
    if (!isShown(table)) {
        *failure = QStringLiteral("no page in front");
        return false;
    }
    const int count = table->model() ? table->model()->rowCount() : 0;
    if (row < 0 || row >= count) {
        *failure = QStringLiteral("%1 rows").arg(count);
        return false;
    }
    const QModelIndex item = table->model()->index(row, 0);
    table->scrollTo(item);
    settle();

    // The zones of the row's right half, as the table tells them apart.
    const int width = table->width();
    const int height = table->verticalHeader()->defaultSectionSize();
    int middle = item.data(LeftButtonXRole).toInt();
    if (middle < 1)
        middle = width / 2;
    int x = (middle + width) / 2;
    if (zone == LeftZone)
        x = middle + height / 2;
    else if (zone == RightZone)
        x = width - height / 2;
    tapAt(itemPoint(table, table->visualRect(item), x, screen()));
    return true;
}

bool SimulatorHost::tapBar(QString const &button, QString *failure)
{
    QWidget *bar = viewChild(extendedView(), "baseBar");
    if (!bar)
        bar = HostSim::lastBaseBar();
    if (!isShown(bar)) {
        *failure = QStringLiteral("no base bar on the screen");
        return false;
    }
    QWidget *target = bar->findChild<QWidget *>(button);
    if (!isShown(target)) {
        *failure = QStringLiteral("no %1 button on the base bar").arg(button);
        return false;
    }
    tapAt(target->mapTo(screen(), target->rect().center()));
    return true;
}

QWidget *SimulatorHost::findButton(QString const &text) const
{
    const auto widgets = screen()->findChildren<QWidget *>();
    for (auto it = widgets.crbegin(); it != widgets.crend(); ++it) {
        QWidget *widget = *it;
        if (!isShown(widget))
            continue;
        if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
            if (button->text() == text)
                return button;
        } else if (auto *imageButton = qobject_cast<CustomImageButton *>(widget)) {
            if (imageButton->text() == text)
                return imageButton;
        }
    }
    return nullptr;
}

// --- Frames and climate commands ----------------------------------------------------

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

void SimulatorHost::consumeCommand()
{
    m_commandsConsumed = qMin(m_commandsConsumed + 1, HostSim::climateCommands().size());
}

// --- Debug lines ---------------------------------------------------------------------

void SimulatorHost::captureMessages(bool echo)
{
    MessageStore &store = messageStore();
    {
        QMutexLocker lock(&store.mutex);
        store.echo = echo;
    }
    QtMessageHandler previous = qInstallMessageHandler(keepMessage);
    if (previous != keepMessage)
        store.previous = previous;
}

QStringList SimulatorHost::messages()
{
    MessageStore &store = messageStore();
    QMutexLocker lock(&store.mutex);
    return store.lines;
}

// --- Which view is in front ---------------------------------------------------------

bool SimulatorHost::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ChildAdded: {
        // A new top-level view of the plug-in on a UI level.
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType() && m_levels.contains(watched))
            child->installEventFilter(this);
        break;
    }
    case QEvent::ChildRemoved:
        if (m_levels.contains(watched))
            emit viewsChanged();
        break;
    case QEvent::Show:
        if (watched->isWidgetType() && !m_levels.contains(watched)) {
            QWidget *view = static_cast<QWidget *>(watched);
            m_shownViews.removeAll(view);
            m_shownViews.removeAll(QPointer<QWidget>());
            m_shownViews.append(view);
            emit viewsChanged();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
