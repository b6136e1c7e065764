#include "setpagewidget.h"

#include "headunitkeys.h"
#include "setitembase.h"

#include <QFocusEvent>
#include <QKeyEvent>

SetPageWidget::SetPageWidget(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
}

SetItemBase *SetPageWidget::getFocusWidget() const
{
    for (int i = 0; i < m_lines.size(); ++i) {
        if (m_lines.at(i)->isInFocus())
            return m_lines.at(i);
    }
    return 0;
}

// Entering the page, from above as from below, lands on the last line.
void SetPageWidget::focusInEvent(QFocusEvent *event)
{
    if (!getFocusWidget() && !m_lines.isEmpty())
        m_lines.last()->setFocus();
    event->accept();
}

void SetPageWidget::keyPressEvent(QKeyEvent *event)
{
    using namespace HeadUnitKeys;
    const int key = event->key();
    if (isLeft(key) || isRight(key)) {
        event->accept();
        return;
    }
    if (!isUp(key) && !isDown(key)) {
        event->ignore();
        return;
    }
    // A page without lines keeps nothing: down passes on, up stops here.
    if (m_lines.isEmpty()) {
        event->setAccepted(isUp(key));
        return;
    }
    const int line = m_lines.indexOf(getFocusWidget());
    if (line < 0) {
        m_lines.last()->setFocus();
        event->accept();
    } else if (isUp(key)) {
        if (line > 0)
            m_lines.at(line - 1)->setFocus();
        event->accept();
    } else if (line < m_lines.size() - 1) {
        m_lines.at(line + 1)->setFocus();
        event->accept();
    } else {
        event->ignore();
    }
}
