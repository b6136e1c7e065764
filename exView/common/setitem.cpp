#include "setitem.h"

#include "setitembase.h"
#include "setitemsview.h"

#include <QPainter>

SetItem::SetItem(QString const &text, unsigned char value, QWidget *parent)
    : QLabel(text, parent)
    , m_value(value)
{
    setFocusPolicy(Qt::StrongFocus);
    setMinimumHeight(SetItemBase::lineHeight());
    setStyleSheet(QStringLiteral(
        "QLabel{background-color:transparent;color:white;font:16px;padding-left:8px;border:0px solid transparent;}"));
}

unsigned char SetItem::value() const
{
    return m_value;
}

void SetItem::setSelected(bool selected)
{
    SetItemsView *view = qobject_cast<SetItemsView *>(parentWidget());
    if (!view)
        return;
    view->m_selected = selected ? this : 0;
    view->update();
    update();
}

void SetItem::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        SetItemsView const *view = qobject_cast<SetItemsView const *>(parentWidget());
        if (view && view->selectedItem() == this) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(3, 36, 170, 255));
        }
        painter.setPen(QPen(hasFocus() ? QColor(Qt::white) : QColor(50, 50, 50, 255), 2.0,
                            Qt::SolidLine));
        painter.drawRoundedRect(QRectF(QPointF(1, 1), QPointF(width() - 2, height() - 2)), 1.0, 1.0);
    }
    QLabel::paintEvent(event);
}

void SetItem::mouseReleaseEvent(QMouseEvent *event)
{
    QLabel::mouseReleaseEvent(event);
    emit clicked();
}

void SetItem::focusInEvent(QFocusEvent *event)
{
    QLabel::focusInEvent(event);
    update();
}

void SetItem::focusOutEvent(QFocusEvent *event)
{
    QLabel::focusOutEvent(event);
    update();
}
