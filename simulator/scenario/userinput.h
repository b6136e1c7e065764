#ifndef USERINPUT_H
#define USERINPUT_H

// The user's finger and the head unit's hardware keys: taps, long presses
// and key presses, delivered as real Qt mouse and key events to the widgets
// on the screen. The taps that aim at an item (a title, a zone of a row, a
// button of the base bar) find it through the screen probe, scroll it into
// view and tap its point of the screen.

#include <QModelIndex>
#include <QPoint>
#include <QString>

class QAbstractItemView;
class ScreenProbe;
class QWidget;

class UserInput
{
public:
    explicit UserInput(ScreenProbe const &probe);

    // Press and release to the widget under the point of the screen.
    void tapAt(QPoint const &screenPoint);
    // Press and release to the widget itself, at its centre.
    void tapWidget(QWidget *widget);
    // Press, hold for ms milliseconds with the event loop running, release,
    // at the widget's centre.
    void longPress(QWidget *widget, int ms);
    // Press and release of a key to the focused widget of the screen.
    void key(int code);

    // False, with what was missing in *failure, when there is nothing to tap.
    bool tapTitle(int index, QString *failure);
    enum Zone { LeftZone, MiddleZone, RightZone };
    bool tapRow(int row, Zone zone, QString *failure);
    // "back" or "home".
    bool tapBar(QString const &button, QString *failure);
    // An entry of the open list dialog, scrolled into view first.
    bool tapEntry(int index, QString *failure);
    // A finger pressed at from, moved to to in steps, released there; all
    // to the widget under from, as a real finger's touches go to the widget
    // it pressed. Points of the widget's own, or of the screen.
    void drag(QWidget *widget, QPoint const &from, QPoint const &to);
    void dragAt(QPoint const &screenFrom, QPoint const &screenTo);

private:
    // Item index of a shown view, scrolled into sight; an invalid index and
    // the failure, naming what the view counts (noun), if it has no such item.
    QModelIndex visibleItem(QAbstractItemView *view, int index, QString const &noun, QString *failure) const;
    // A tap in the middle of an item.
    void tapItem(QAbstractItemView *view, QModelIndex const &item);

    ScreenProbe const &m_probe;
};

#endif // USERINPUT_H
