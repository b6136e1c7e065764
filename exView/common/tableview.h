#ifndef TABLEVIEW_H
#define TABLEVIEW_H

#include "listview.h"

#include <QPersistentModelIndex>

// The view of a page's rows. The right half of each row holds three tap
// zones: the left arrow, a square of the row's height at the middle of the
// view; the right arrow, the same square at the right edge; and the strip
// between them. A tap, press and release in the same zone without scrolling
// the list, becomes a signal to the page: itemBtClicked for the arrows of an
// adjustable row (true for the left arrow, false for the right), and
// itemBtMiddle for the strip of any row. The title half takes no taps.
class TableView : public ListView
{
    Q_OBJECT
public:
    explicit TableView(QWidget *parent = 0);
    ~TableView();

signals:
    void itemBtClicked(QModelIndex index, bool leftRight);
    void itemBtMiddle(QModelIndex index);

protected:
    void mousePressEvent(QMouseEvent *event);
    void mouseReleaseEvent(QMouseEvent *event);
    void keyPressEvent(QKeyEvent *event);

private:
    enum Zone { NoZone = -1, LeftArrowZone = 0, RightArrowZone = 1, MiddleZone = 2 };

    Zone zoneAt(QMouseEvent *event, int middle) const;

    QPersistentModelIndex pressedIndex;
    Zone pressedZone;
};

#endif // TABLEVIEW_H
