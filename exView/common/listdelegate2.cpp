#include "listdelegate2.h"

#include "listdata.h"

#include <QPainter>

namespace {

const int TitleFlags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
const int ValueFlags = Qt::AlignCenter | Qt::TextWordWrap;

// A font size role's pixels; none given means a third of the row.
int pixelSize(QModelIndex const &index, int role, QRect const &rect)
{
    const int size = index.data(role).toInt();
    return qMax(1, size < 1 ? rect.height() / 3 : size);
}

// Whether text, wrapped at the painter's font, stands whole in box.
bool fits(QPainter *painter, QRect const &box, QString const &text)
{
    const QRect needed = painter->fontMetrics().boundingRect(box, TitleFlags, text);
    return needed.height() <= box.height() && needed.width() <= box.width();
}

// The title, word wrapped in its box. One that needs more lines than the
// row has room for shrinks, down to three quarters of its size, and then
// gives up its last words for an ellipsis: it never runs into the rows
// beside it.
void drawTitle(QPainter *painter, QRect const &box, QString const &text)
{
    if (!fits(painter, box, text)) {
        QFont font = painter->font();
        const int smallest = qMax(1, font.pixelSize() * 3 / 4);
        while (font.pixelSize() > smallest && !fits(painter, box, text)) {
            font.setPixelSize(font.pixelSize() - 1);
            painter->setFont(font);
        }
        if (!fits(painter, box, text)) {
            const QString ellipsis(QChar(0x2026));
            QString shown = text;
            while (!shown.isEmpty() && !fits(painter, box, shown + ellipsis)) {
                const int space = shown.lastIndexOf(QLatin1Char(' '));
                shown = space > 0 ? shown.left(space) : shown.left(shown.size() - 1);
            }
            painter->drawText(box, TitleFlags, shown + ellipsis);
            return;
        }
    }
    painter->drawText(box, TitleFlags, text);
}

} // namespace

int paintRowFrame(QPainter *painter, QStyleOptionViewItem const &option, QModelIndex const &index)
{
    const QRect &rect = option.rect;
    const int height = rect.bottom() - rect.top() + 1;
    const bool enabled = index.data(EnabledRole).toBool();
    const bool selected = option.state & QStyle::State_Selected;

    // The separator is the row's bottom line of pixels: filled, it costs a
    // tenth of a line drawn with a translucent pen, for the same pixels.
    if (index.data(SeparatorRole).toInt() != 0)
        painter->fillRect(rect.left(), rect.bottom(), rect.width(), 1, QColor(100, 100, 100, 100));

    int textX = index.data(TextXRole).toInt();
    const int iconRole = !enabled ? DisabledLeftIconRole
                                  : (selected ? SelectedLeftIconRole : LeftIconRole);
    if (QPixmap const *icon = presentPixmap(index.data(iconRole))) {
        const int iconX = index.data(LeftIconXRole).toInt();
        painter->drawPixmap(rect.left() + iconX, rect.top() + (height - icon->height()) / 2, *icon);
        textX = icon->width() + iconX + 10;
    }

    QFont font = painter->font();
    font.setPixelSize(pixelSize(index, TitleFontSizeRole, rect));
    painter->setFont(font);

    // The list has no colour of its own for a disabled entry.
    QColor colour = qvariant_cast<QColor>(index.data(selected ? SelectedTextColorRole : TextColorRole));
    painter->setPen(colour.isValid() ? colour : QColor(Qt::white));
    return textX;
}

ListDelegate2::ListDelegate2(QObject *parent)
    : QItemDelegate(parent)
{
}

ListDelegate2::~ListDelegate2()
{
}

void ListDelegate2::paint(QPainter *painter, QStyleOptionViewItem const &option,
                          QModelIndex const &index) const
{
    painter->save();

    const QRect &rect = option.rect;
    const int left = rect.left();
    const int top = rect.top();
    const int right = rect.right();
    const int height = rect.bottom() - top + 1;

    const int textX = paintRowFrame(painter, option, index);
    const int middle = index.data(LeftButtonXRole).toInt();

    drawTitle(painter, QRect(left + textX, top, middle - textX, height), index.data(TitleRole).toString());

    // The arrows fill squares of the row's height: the left one begins at
    // the middle, the right one ends at the right edge. The views take taps
    // in the same squares.
    const bool adjustable = index.data(AdjustableRole).toBool();
    if (adjustable) {
        if (QPixmap const *arrow = presentPixmap(index.data(LeftArrowRole))) {
            const int inset = (height - arrow->height()) / 2;
            painter->drawPixmap(left + middle + inset, top + inset, *arrow);
        }
        if (QPixmap const *arrow = presentPixmap(index.data(RightArrowRole))) {
            const int inset = (height - arrow->height()) / 2;
            painter->drawPixmap(left + (right - height) + inset, top + inset, *arrow);
        }
    }

    // The value's backdrop is centred in the right half.
    int backdropWidth = 0;
    int backdropHeight = 0;
    if (QPixmap const *backdrop = presentPixmap(index.data(ValueBackdropRole))) {
        backdropWidth = backdrop->width();
        backdropHeight = backdrop->height();
        painter->drawPixmap((right + middle - backdropWidth) / 2, top + (height - backdropHeight) / 2,
                            *backdrop);
    }

    // The value wraps inside the backdrop; without a backdrop it is centred
    // on that place and not clipped away.
    const QString value = index.data(DisplayValueRole).toString();
    if (!value.isEmpty()) {
        QFont font = painter->font();
        font.setPixelSize(pixelSize(index, ValueFontSizeRole, rect));
        painter->setFont(font);
        painter->drawText(QRect((right + middle - backdropWidth) / 2,
                                top + (height - backdropHeight) / 2,
                                backdropWidth, backdropHeight),
                          backdropWidth > 0 ? ValueFlags : ValueFlags | Qt::TextDontClip, value);
    }

    painter->restore();
}
