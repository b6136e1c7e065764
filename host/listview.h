#ifndef LISTVIEW_H
#define LISTVIEW_H

#include <QTableView>

class ListViewPrivate;

// The head unit's scrolling list: a QTableView of one column with hidden
// headers, the column stretched to the viewport, scrolled per pixel by
// touch. A press makes the row under the finger current; a drag beyond a
// small threshold scrolls the list, and canMoved() then says so until the
// next press.
class ListView : public QTableView
{
    Q_OBJECT
public:
    explicit ListView(QWidget *parent = 0);
    ~ListView();

    // True when the finger moved the list since the last press: the touch
    // was a scroll, not a tap.
    bool canMoved() const;

    // When on (the default), a scroll that ends comes to rest on a row
    // boundary.
    void setSnapToRow(bool snap);
    // When on (the default), a drag may pull the list beyond its ends; it
    // springs back on release.
    void setScrollOutOfViewport(bool allow);

protected:
    void timerEvent(QTimerEvent *event);
    void mousePressEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void mouseMoveEvent(QMouseEvent *event);
    void keyPressEvent(QKeyEvent *event);
    void keyReleaseEvent(QKeyEvent *event);
    void showEvent(QShowEvent *event);
    void hideEvent(QHideEvent *event);
    void currentChanged(QModelIndex const &current, QModelIndex const &previous);
    void resizeEvent(QResizeEvent *event);

private:
    friend class ListViewPrivate;
    ListViewPrivate *const d;
};

#endif // LISTVIEW_H
