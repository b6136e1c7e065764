#ifndef SCREENPROBE_H
#define SCREENPROBE_H

// Finds the plug-in's views and widgets on the head unit's screen, as a
// person looking at it would name them: the overlays, the extended view in
// front, its list of titles, the page in front and its rows, any widget by
// objectName or by the text it shows. It watches the host's UI levels to
// know which view was shown last.

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

class QAbstractItemView;
class QStackedWidget;
class QTableView;
class QWidget;

class ScreenProbe : public QObject
{
    Q_OBJECT
public:
    explicit ScreenProbe(QObject *parent = nullptr);

    // The host's screen.
    QWidget *screen() const;

    // The overlay coordinator, or null.
    QWidget *dialogView() const;
    // Of the extended views that exist and aren't hidden, the one shown last;
    // null if none.
    QWidget *extendedView() const;
    // The list of page titles of that view, and its stack of pages.
    QAbstractItemView *titleList() const;
    QStackedWidget *pageStack() const;
    // The page in front: the current page of the stack while the stack
    // shows. Null otherwise.
    QWidget *currentPage() const;
    // The table of rows of the page in front, or null.
    QTableView *pageTable() const;
    // The base bar of the extended view in front, else the one made last.
    QWidget *baseBar() const;
    // The parts of the screen by the names of the scenario language: list,
    // page, tire, extended, dialog, air, door, reverse; any other name is an
    // objectName (see findWidget()).
    QWidget *part(QString const &name) const;

    // A widget of the screen by objectName: of several, the visible one that
    // lies highest; else any. Null if none.
    QWidget *findWidget(QString const &objectName) const;
    // The same, for any object on the screen, widget or not.
    QObject *findObject(QString const &objectName) const;
    // The visible button, of those lying highest, whose text is text: a
    // push button, a picture button, or a widget that paints its own text
    // and shows it as its text property.
    QWidget *findButton(QString const &text) const;
    // The list dialog that lies highest among the visible ones, and the
    // list of its entries; null if no list dialog shows.
    QWidget *listDialog() const;
    QAbstractItemView *dialogEntries() const;
    // The texts that the visible labels and buttons of the screen show.
    QStringList visibleTexts() const;
    // Where the keys go: the focused widget of the screen, else the one that
    // had the focus last, else the view in front, else the screen.
    QWidget *focusTarget() const;

    // The widget exists and is visible on the screen.
    static bool isShown(QWidget const *widget);
    // The widget is shown and a person sees it: no view of the plug-in that
    // lies higher covers it whole.
    bool isOnScreen(QWidget const *widget) const;
    // The text that a label, a button or a rolling text shows, or the text
    // property of a widget that paints its own text; false for other
    // widgets.
    static bool textOf(QWidget const *widget, QString *text);
    // Whether a button is down (pressed, checked or latched); false for
    // other widgets.
    static bool downStateOf(QWidget const *widget, bool *down);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *viewChild(QWidget *view, char const *name) const;

    QList<QObject *> m_levels;
    // Top-level views in the order they were shown; the last is in front.
    QList<QPointer<QWidget> > m_shownViews;
    QPointer<QWidget> m_lastFocus;
};

#endif // SCREENPROBE_H
