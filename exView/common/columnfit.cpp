#include "columnfit.h"

#include <QHeaderView>
#include <QResizeEvent>
#include <QTableView>

ColumnFit::ColumnFit(QTableView *view)
    : QObject(view)
    , m_view(view)
{
}

void ColumnFit::install(QTableView *view)
{
    // The header's own stretch would compute the same width later, on a
    // timer of its own, and tell the view, which repaints the list again.
    view->horizontalHeader()->setStretchLastSection(false);
    view->viewport()->installEventFilter(new ColumnFit(view));
}

bool ColumnFit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Resize || watched != m_view->viewport())
        return false;
    QHeaderView *header = m_view->horizontalHeader();
    const int last = header->count() - 1;
    if (last < 0)
        return false;
    const int width = static_cast<QResizeEvent *>(event)->size().width() - header->sectionPosition(last);
    if (width <= 0 || header->sectionSize(last) == width)
        return false;
    // The view learns the new width from a geometry update now, not from the
    // header's signal on a timer; the resize repaints the viewport anyway.
    const bool blocked = header->blockSignals(true);
    header->resizeSection(last, width);
    header->blockSignals(blocked);
    QMetaObject::invokeMethod(m_view, "updateGeometries");
    return false;
}
