#ifndef LISTDELEGATE0_H
#define LISTDELEGATE0_H

#include "listdelegate.h"

// The painter of a plain list of titles (ListModel0): separator, left icon,
// the title drawn by the host list's painter, and a right icon.
class ListDelegate0 : public ListDelegate
{
    Q_OBJECT
public:
    explicit ListDelegate0(QObject *parent = 0);
    ~ListDelegate0();

    void paint(QPainter *painter, QStyleOptionViewItem const &option,
               QModelIndex const &index) const;
};

#endif // LISTDELEGATE0_H
