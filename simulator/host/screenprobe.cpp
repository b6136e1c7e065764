#include "screenprobe.h"

#include "appframework.h"
#include "basebar.h"
#include "customimagebutton.h"
#include "hostsim.h"
#include "zorvrollingtext.h"

#include <QAbstractButton>
#include <QApplication>
#include <QChildEvent>
#include <QLabel>
#include <QMetaProperty>
#include <QStackedWidget>
#include <QTableView>

namespace {

constexpr int UiLevels = 4;

// A widget that paints its own text shows it as its text property.
bool hasTextProperty(QWidget const *widget)
{
    const int index = widget->metaObject()->indexOfProperty("text");
    return index >= 0 && widget->metaObject()->property(index).type() == QVariant::String;
}

} // namespace

ScreenProbe::ScreenProbe(QObject *parent)
    : QObject(parent)
{
    for (int level = 0; level < UiLevels; ++level) {
        QWidget *widget = zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchy(level));
        widget->installEventFilter(this);
        m_levels.append(widget);
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now && screen()->isAncestorOf(now))
            m_lastFocus = now;
    });
}

QWidget *ScreenProbe::screen() const
{
    return HostSim::screen();
}

QWidget *ScreenProbe::dialogView() const
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

QWidget *ScreenProbe::extendedView() const
{
    for (auto it = m_shownViews.crbegin(); it != m_shownViews.crend(); ++it) {
        QWidget *view = *it;
        if (view && view->inherits("ExView") && !view->isHidden())
            return view;
    }
    return nullptr;
}

QWidget *ScreenProbe::viewChild(QWidget *view, char const *name) const
{
    return view ? view->findChild<QWidget *>(QLatin1String(name), Qt::FindDirectChildrenOnly) : nullptr;
}

QAbstractItemView *ScreenProbe::titleList() const
{
    return qobject_cast<QAbstractItemView *>(viewChild(extendedView(), "listView"));
}

QStackedWidget *ScreenProbe::pageStack() const
{
    return qobject_cast<QStackedWidget *>(viewChild(extendedView(), "stack"));
}

QWidget *ScreenProbe::currentPage() const
{
    QStackedWidget *stack = pageStack();
    if (!stack || stack->isHidden())
        return nullptr;
    return stack->currentWidget();
}

QTableView *ScreenProbe::pageTable() const
{
    QWidget *page = currentPage();
    if (!page)
        return nullptr;
    // The page's own table; a page may hold other item views besides.
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

QWidget *ScreenProbe::baseBar() const
{
    if (QWidget *bar = viewChild(extendedView(), "baseBar"))
        return bar;
    return HostSim::lastBaseBar();
}

QWidget *ScreenProbe::part(QString const &name) const
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

QWidget *ScreenProbe::findWidget(QString const &objectName) const
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

QObject *ScreenProbe::findObject(QString const &objectName) const
{
    if (QWidget *widget = findWidget(objectName))
        return widget;
    return screen()->findChild<QObject *>(objectName);
}

QWidget *ScreenProbe::findButton(QString const &text) const
{
    const auto widgets = screen()->findChildren<QWidget *>();
    for (auto it = widgets.crbegin(); it != widgets.crend(); ++it) {
        QWidget *widget = *it;
        QString shown;
        const bool button = qobject_cast<QAbstractButton *>(widget) || qobject_cast<CustomImageButton *>(widget)
                || (!qobject_cast<QLabel *>(widget) && !qobject_cast<ZorvRollingText *>(widget)
                    && hasTextProperty(widget));
        if (button && isShown(widget) && textOf(widget, &shown) && shown == text)
            return widget;
    }
    return nullptr;
}

QWidget *ScreenProbe::listDialog() const
{
    const auto widgets = screen()->findChildren<QWidget *>();
    for (auto it = widgets.crbegin(); it != widgets.crend(); ++it) {
        if ((*it)->inherits("ListDialog") && isShown(*it))
            return *it;
    }
    return nullptr;
}

QAbstractItemView *ScreenProbe::dialogEntries() const
{
    QWidget *dialog = listDialog();
    return dialog ? dialog->findChild<QAbstractItemView *>() : nullptr;
}

QStringList ScreenProbe::visibleTexts() const
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

QWidget *ScreenProbe::focusTarget() const
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

bool ScreenProbe::isShown(QWidget const *widget)
{
    return widget && widget->isVisible();
}

bool ScreenProbe::isOnScreen(QWidget const *widget) const
{
    if (!isShown(widget) || !screen()->isAncestorOf(widget))
        return false;
    const QRect area = QRect(widget->mapTo(screen(), QPoint(0, 0)), widget->size()).intersected(screen()->rect());
    if (area.isEmpty())
        return false;
    // What lies higher than the widget: at each step up to the screen, the
    // visible siblings stacked over the step. A UI level is a clear sheet:
    // what covers is the views on it.
    auto covers = [&](QWidget const *over) {
        return over->isVisible() && !over->testAttribute(Qt::WA_TransparentForMouseEvents)
            && QRect(over->mapTo(screen(), QPoint(0, 0)), over->size()).contains(area);
    };
    for (QWidget const *step = widget; step != screen(); step = step->parentWidget()) {
        const QObjectList siblings = step->parentWidget()->children();
        for (int i = siblings.indexOf(const_cast<QWidget *>(step)) + 1; i < siblings.size(); ++i) {
            QWidget const *over = qobject_cast<QWidget const *>(siblings.at(i));
            if (!over || over->isWindow())
                continue;
            if (!m_levels.contains(const_cast<QWidget *>(over))) {
                if (covers(over))
                    return false;
                continue;
            }
            const auto views = over->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
            for (QWidget const *view : views) {
                if (!view->isWindow() && covers(view))
                    return false;
            }
        }
    }
    return true;
}

bool ScreenProbe::textOf(QWidget const *widget, QString *text)
{
    if (auto *label = qobject_cast<QLabel const *>(widget))
        *text = label->text();
    else if (auto *button = qobject_cast<QAbstractButton const *>(widget))
        *text = button->text();
    else if (auto *imageButton = qobject_cast<CustomImageButton const *>(widget))
        *text = imageButton->text();
    else if (auto *rolling = qobject_cast<ZorvRollingText const *>(widget))
        *text = rolling->text();
    else if (hasTextProperty(widget))
        *text = widget->property("text").toString();
    else
        return false;
    return true;
}

bool ScreenProbe::downStateOf(QWidget const *widget, bool *down)
{
    if (auto *button = qobject_cast<QAbstractButton const *>(widget))
        *down = button->isDown() || button->isChecked();
    else if (auto *imageButton = qobject_cast<CustomImageButton const *>(widget))
        *down = imageButton->isDown();
    else
        return false;
    return true;
}

bool ScreenProbe::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ChildAdded: {
        // A new top-level view of the plug-in on a UI level.
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child->isWidgetType() && m_levels.contains(watched))
            child->installEventFilter(this);
        break;
    }
    case QEvent::Show:
        if (watched->isWidgetType() && !m_levels.contains(watched)) {
            QWidget *view = static_cast<QWidget *>(watched);
            m_shownViews.removeAll(view);
            m_shownViews.removeAll(QPointer<QWidget>());
            m_shownViews.append(view);
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}
