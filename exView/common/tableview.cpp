#include "tableview.h"

#include "columnfit.h"
#include "listdata.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QScrollBar>

TableView::TableView(QWidget *parent)
    : ListView(parent)
    , pressedZone(NoZone)
{
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    // The scroll bar takes no room from the rows: the arrows that the rows
    // draw at the view's right edge and the zones that take their taps stay
    // in the same place.
    verticalScrollBar()->setStyleSheet(QStringLiteral("QScrollBar:vertical { width: 0px; }"));
    ColumnFit::install(this);
}

TableView::~TableView()
{
}

// The zone of a touch in a row whose right half begins at middle. All
// bounds are inclusive: the arrows' squares are one pixel wider than the
// row's height.
TableView::Zone TableView::zoneAt(QMouseEvent *event, int middle) const
{
    const int width = this->width();
    const int height = verticalHeader()->defaultSectionSize();
    const int x = qRound(event->localPos().x());
    if (middle <= x && x <= middle + height)
        return LeftArrowZone;
    if (x > middle + height && x < width - height)
        return MiddleZone;
    if (x >= width - height && x <= width)
        return RightArrowZone;
    return NoZone;
}

void TableView::mousePressEvent(QMouseEvent *event)
{
    ListView::mousePressEvent(event);
    pressedIndex = currentIndex();
    pressedZone = NoZone;
    const int middle = QModelIndex(pressedIndex).data(LeftButtonXRole).toInt();
    if (middle < 1)
        return;
    pressedZone = zoneAt(event, middle);
}

void TableView::mouseReleaseEvent(QMouseEvent *event)
{
    const bool moved = canMoved();
    const QModelIndex released = indexAt(event->pos());
    const int middle = released.data(LeftButtonXRole).toInt();
    // A pressed row that went away while the finger was down (the rows were
    // replaced) takes no tap.
    if (!moved && middle >= 1 && pressedIndex.isValid()) {
        const Zone zone = zoneAt(event, middle);
        if (zone == MiddleZone) {
            if (pressedZone == MiddleZone)
                emit itemBtMiddle(pressedIndex);
        } else if (zone == pressedZone && zone != NoZone && released.data(AdjustableRole).toBool()) {
            emit itemBtClicked(pressedIndex, zone == LeftArrowZone);
        }
    }
    ListView::mouseReleaseEvent(event);
}

// The enter keys have no effect of their own on a page: no key steps a row.
void TableView::keyPressEvent(QKeyEvent *event)
{
    ListView::keyPressEvent(event);
}
