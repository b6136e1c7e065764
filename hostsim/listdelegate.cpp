#include "listdelegate.h"

#include <QPainter>

namespace {

const int RowHeight = 80;
const int TextMargin = 24;

// The list library's own item roles: the title's pixel size and the text
// colours, normal and selected.
const int FontSizeRole = 378;
const int TextColorRole = 367;
const int SelectedTextColorRole = 368;

// The layout argument of paintText is the list library's own code, not Qt's
// alignment: 3 is one line, left-aligned and vertically centred. Anything
// else is taken as Qt alignment flags.
int textFlags(int layout)
{
    if (layout == 3)
        return Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine;
    return layout;
}

} // namespace

ListDelegate::ListDelegate(QObject *parent)
    : QItemDelegate(parent)
{
}

ListDelegate::~ListDelegate()
{
}

QSize ListDelegate::sizeHint(QStyleOptionViewItem const &option, QModelIndex const &) const
{
    return QSize(option.rect.width(), RowHeight);
}

void ListDelegate::setFontColorStyle(QPainter *painter, QStyleOptionViewItem const &option,
                                     QModelIndex const &index, bool selected) const
{
    QFont font = option.font;
    font.setFamily(QStringLiteral("DejaVu Sans"));
    const int size = index.data(FontSizeRole).toInt();
    font.setPixelSize(size > 0 ? size : 24);
    painter->setFont(font);
    const QVariant colour = index.data(selected ? SelectedTextColorRole : TextColorRole);
    if (colour.canConvert<QColor>() && colour.value<QColor>().isValid())
        painter->setPen(colour.value<QColor>());
    else
        painter->setPen(selected ? QColor(0, 170, 255) : QColor(240, 240, 240));
}

void ListDelegate::paintText(QPainter *painter, QStyleOptionViewItem const &option,
                             QModelIndex const &index, QRect *textRect) const
{
    const QRect rect = option.rect.adjusted(TextMargin, 0, -TextMargin, 0);
    paintText(rect, painter, option, index, textRect, Qt::AlignLeft | Qt::AlignVCenter);
}

void ListDelegate::paintText(QRect const &rect, QPainter *painter, QStyleOptionViewItem const &option,
                             QModelIndex const &index, QRect *textRect, int flags) const
{
    painter->save();
    setFontColorStyle(painter, option, index, option.state & QStyle::State_Selected);
    QRect used;
    painter->drawText(rect, textFlags(flags), index.data(Qt::DisplayRole).toString(), &used);
    painter->restore();
    if (textRect)
        *textRect = used;
}
