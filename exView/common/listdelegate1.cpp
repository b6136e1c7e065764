#include "listdelegate1.h"

#include <QPainter>

ListDelegate1::ListDelegate1(QObject *parent)
    : QItemDelegate(parent)
{
}

ListDelegate1::~ListDelegate1()
{
}

void ListDelegate1::paint(QPainter *painter, QStyleOptionViewItem const &, QModelIndex const &) const
{
    painter->save();
    painter->restore();
}
