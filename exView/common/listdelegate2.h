#ifndef LISTDELEGATE2_H
#define LISTDELEGATE2_H

#include <QItemDelegate>

// The painter of a page's rows: the title in the left half; in the right
// half the two arrows at its ends (adjustable rows only) and, centred
// between, the value on its backdrop. It knows nothing of row kinds and
// reads all it draws from the index's roles (ListRole).
class ListDelegate2 : public QItemDelegate
{
    Q_OBJECT
public:
    explicit ListDelegate2(QObject *parent = 0);
    ~ListDelegate2();

    void paint(QPainter *painter, QStyleOptionViewItem const &option,
               QModelIndex const &index) const;
};

// What the rows of all the toolkit's lists begin with: the separator line at
// the bottom, the left icon, and the title's font and pen set on the
// painter. Returns the x, relative to the row, at which the title begins.
int paintRowFrame(QPainter *painter, QStyleOptionViewItem const &option, QModelIndex const &index);

#endif // LISTDELEGATE2_H
