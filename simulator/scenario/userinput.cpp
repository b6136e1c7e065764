#include "userinput.h"

#include "eventpump.h"
#include "listdata.h"
#include "screenprobe.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTableView>

namespace {

void sendMouse(QWidget *widget, QEvent::Type type, QPoint const &local)
{
    const QPointF windowPos = widget->mapTo(widget->window(), local);
    const QPointF screenPos = widget->mapToGlobal(local);
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, QPointF(local), windowPos, screenPos, button, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// Press, then release if the press left the widget alive.
void click(QWidget *widget, QPoint const &local)
{
    QPointer<QWidget> alive = widget;
    sendMouse(widget, QEvent::MouseButtonPress, local);
    if (alive)
        sendMouse(widget, QEvent::MouseButtonRelease, local);
}

// The point of an item, in the coordinates of the screen: x in the
// viewport, and the middle of the part of the item's rectangle that the
// viewport shows.
QPoint itemPoint(QAbstractItemView *view, QRect const &rect, int x, QWidget *screen)
{
    const QRect shown = rect.intersected(view->viewport()->rect());
    return view->viewport()->mapTo(screen, QPoint(x, shown.center().y()));
}

} // namespace

UserInput::UserInput(ScreenProbe const &probe)
    : m_probe(probe)
{
}

void UserInput::tapAt(QPoint const &screenPoint)
{
    QWidget *screen = m_probe.screen();
    QWidget *target = screen->childAt(screenPoint);
    if (!target)
        target = screen;
    click(target, target->mapFrom(screen, screenPoint));
}

void UserInput::tapWidget(QWidget *widget)
{
    click(widget, widget->rect().center());
}

void UserInput::longPress(QWidget *widget, int ms)
{
    QPointer<QWidget> alive = widget;
    const QPoint centre = widget->rect().center();
    sendMouse(widget, QEvent::MouseButtonPress, centre);
    EventPump::wait(ms);
    if (alive)
        sendMouse(widget, QEvent::MouseButtonRelease, centre);
}

void UserInput::key(int code)
{
    QPointer<QWidget> target = m_probe.focusTarget();
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
    QApplication::sendEvent(target, &press);
    if (target) {
        QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier);
        QApplication::sendEvent(target, &release);
    }
}

bool UserInput::tapTitle(int index, QString *failure)
{
    QAbstractItemView *list = m_probe.titleList();
    if (!ScreenProbe::isShown(list)) {
        *failure = m_probe.extendedView() ? QStringLiteral("the list of titles hidden")
                                          : QStringLiteral("no extended view");
        return false;
    }
    const QModelIndex item = visibleItem(list, index, QStringLiteral("titles"), failure);
    if (!item.isValid())
        return false;
    tapItem(list, item);
    return true;
}

bool UserInput::tapRow(int row, Zone zone, QString *failure)
{
    QTableView *table = m_probe.pageTable();
    if (!ScreenProbe::isShown(table)) {
        *failure = QStringLiteral("no page in front");
        return false;
    }
    const QModelIndex item = visibleItem(table, row, QStringLiteral("rows"), failure);
    if (!item.isValid())
        return false;

    // The zones of the row's right half, as the page table tells them apart:
    // from where that half begins, the left arrow's square as wide as a row
    // is high, the middle strip, and the right arrow's square at the edge.
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
    tapAt(itemPoint(table, table->visualRect(item), x, m_probe.screen()));
    return true;
}

bool UserInput::tapEntry(int index, QString *failure)
{
    QAbstractItemView *list = m_probe.dialogEntries();
    if (!ScreenProbe::isShown(list)) {
        *failure = QStringLiteral("no list dialog open");
        return false;
    }
    const QModelIndex item = visibleItem(list, index, QStringLiteral("entries"), failure);
    if (!item.isValid())
        return false;
    tapItem(list, item);
    return true;
}

QModelIndex UserInput::visibleItem(QAbstractItemView *view, int index, QString const &noun,
                                   QString *failure) const
{
    const int count = view->model() ? view->model()->rowCount() : 0;
    if (index < 0 || index >= count) {
        *failure = QStringLiteral("%1 %2").arg(count).arg(noun);
        return QModelIndex();
    }
    const QModelIndex item = view->model()->index(index, 0);
    view->scrollTo(item);
    EventPump::settle();
    return item;
}

void UserInput::tapItem(QAbstractItemView *view, QModelIndex const &item)
{
    const QRect rect = view->visualRect(item);
    tapAt(itemPoint(view, rect, rect.center().x(), m_probe.screen()));
}

void UserInput::drag(QWidget *widget, QPoint const &from, QPoint const &to)
{
    constexpr int Steps = 10;
    QPointer<QWidget> alive = widget;
    sendMouse(widget, QEvent::MouseButtonPress, from);
    for (int i = 1; i <= Steps && alive; ++i)
        sendMouse(widget, QEvent::MouseMove, from + (to - from) * i / Steps);
    if (alive)
        sendMouse(widget, QEvent::MouseButtonRelease, to);
}

void UserInput::dragAt(QPoint const &screenFrom, QPoint const &screenTo)
{
    QWidget *screen = m_probe.screen();
    QWidget *target = screen->childAt(screenFrom);
    if (!target)
        target = screen;
    drag(target, target->mapFrom(screen, screenFrom), target->mapFrom(screen, screenTo));
}

bool UserInput::tapBar(QString const &button, QString *failure)
{
    QWidget *bar = m_probe.baseBar();
    if (!ScreenProbe::isShown(bar)) {
        *failure = QStringLiteral("no base bar on the screen");
        return false;
    }
    QWidget *target = bar->findChild<QWidget *>(button);
    if (!ScreenProbe::isShown(target)) {
        *failure = QStringLiteral("no %1 button on the base bar").arg(button);
        return false;
    }
    tapAt(target->mapTo(m_probe.screen(), target->rect().center()));
    return true;
}
