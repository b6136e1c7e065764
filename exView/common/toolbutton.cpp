#include "toolbutton.h"

#include "headunitkeys.h"

#include <QKeyEvent>

ToolButton::ToolButton(QWidget *parent)
    : QToolButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

void ToolButton::keyPressEvent(QKeyEvent *event)
{
    if (HeadUnitKeys::isEnter(event->key())) {
        emit clicked(true);
        event->accept();
        return;
    }
    event->ignore();
}
