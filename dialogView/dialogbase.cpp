#include "dialogbase.h"

DialogBase::DialogBase(QWidget *parent)
    : QWidget(parent)
    , m_needShow(false)
{
}

bool DialogBase::needShow() const
{
    return m_needShow;
}

void DialogBase::setVisible(bool visible)
{
    QWidget::setVisible(visible);
    m_needShow = visible;
}

// A shown overlay takes the keyboard.
void DialogBase::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_needShow = true;
    setFocus(Qt::OtherFocusReason);
}

void DialogBase::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_needShow = false;
    emit hided();
}
