#ifndef LISTDELEGATE_H
#define LISTDELEGATE_H

#include <QItemDelegate>

// Base of the head unit's list painters. After sizeHint it adds three virtual
// operations, in this order.
class ListDelegate : public QItemDelegate
{
    Q_OBJECT
public:
    explicit ListDelegate(QObject *parent = 0);
    ~ListDelegate();

    QSize sizeHint(QStyleOptionViewItem const &option, QModelIndex const &index) const;

    // Sets the painter's pen and font for an entry's text; selected entries
    // in the highlight colour.
    virtual void setFontColorStyle(QPainter *painter, QStyleOptionViewItem const &option,
                                   QModelIndex const &index, bool selected) const;
    // Draws the entry's title (Qt::DisplayRole) in the option's rectangle;
    // the rectangle used is stored in textRect when given.
    virtual void paintText(QPainter *painter, QStyleOptionViewItem const &option,
                           QModelIndex const &index, QRect *textRect) const;
    // Draws the entry's title in rect with the given alignment flags.
    virtual void paintText(QRect const &rect, QPainter *painter,
                           QStyleOptionViewItem const &option, QModelIndex const &index,
                           QRect *textRect, int flags) const;
};

#endif // LISTDELEGATE_H
