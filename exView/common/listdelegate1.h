#ifndef LISTDELEGATE1_H
#define LISTDELEGATE1_H

#include <QItemDelegate>

// A painter that leaves its entries blank.
class ListDelegate1 : public QItemDelegate
{
    Q_OBJECT
public:
    explicit ListDelegate1(QObject *parent = 0);
    ~ListDelegate1();

    void paint(QPainter *painter, QStyleOptionViewItem const &option,
               QModelIndex const &index) const;
};

#endif // LISTDELEGATE1_H
