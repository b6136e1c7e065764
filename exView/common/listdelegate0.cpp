#include "listdelegate0.h"

#include "listdata.h"
#include "listdelegate2.h"

#include <QPainter>

namespace {

// The host list painter's placement of an entry's title.
const int TitlePlacement = 3;

} // namespace

ListDelegate0::ListDelegate0(QObject *parent)
    : ListDelegate(parent)
{
}

ListDelegate0::~ListDelegate0()
{
}

void ListDelegate0::paint(QPainter *painter, QStyleOptionViewItem const &option,
                          QModelIndex const &index) const
{
    painter->save();

    const QRect &rect = option.rect;
    const int height = rect.bottom() - rect.top() + 1;
    const int textX = paintRowFrame(painter, option, index);

    QRect textRect;
    paintText(QRect(QPoint(rect.left() + textX, rect.top()), QPoint(rect.right(), rect.bottom())),
              painter, option, index, &textRect, TitlePlacement);

    const bool enabled = index.data(EnabledRole).toBool();
    const bool selected = option.state & QStyle::State_Selected;
    const int iconRole = !enabled ? DisabledRightIconRole
                                  : (selected ? SelectedRightIconRole : RightIconRole);
    if (QPixmap const *icon = presentPixmap(index.data(iconRole))) {
        const int margin = index.data(RightIconMarginRole).toInt();
        painter->drawPixmap(rect.right() - margin - icon->width(),
                            rect.top() + (height - icon->height()) / 2, *icon);
    }

    painter->restore();
}
