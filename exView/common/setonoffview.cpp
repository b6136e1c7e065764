#include "setonoffview.h"

#include "onoffbutton.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>

SetOnOffView::SetOnOffView(QString const &title, QWidget *parent)
    : SetItemBase(parent)
    , m_button(new OnOffButton(this))
{
    m_button->setObjectName(QStringLiteral("onOffButton"));
    setMinimumHeight(lineHeight());
    setGround(QColor(25, 25, 25, 255));

    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->addWidget(makeTitleLabel(title), 1);
    layout->addWidget(m_button, 0);
    layout->setSpacing(20);
    layout->setContentsMargins(0, 0, 10, 0);

    connect(m_button, SIGNAL(clicked()), this, SLOT(onBtClicked()));
}

bool SetOnOffView::isInFocus() const
{
    return m_button->hasFocus() || hasFocus();
}

void SetOnOffView::setOnOff(bool on, bool emitSignal)
{
    if (on == m_button->onOff())
        return;
    m_button->setOnOff(on);
    if (emitSignal)
        emit onoffChanged(on);
}

bool SetOnOffView::getOnOff() const
{
    return m_button->onOff();
}

void SetOnOffView::setImage(QString const &on, QString const &onFocused, QString const &off,
                            QString const &offFocused)
{
    m_button->setImage(on, onFocused, off, offFocused);
}

void SetOnOffView::onBtClicked()
{
    m_button->setOnOff(!m_button->onOff());
    emit onoffChanged(m_button->onOff());
}

void SetOnOffView::focusInEvent(QFocusEvent *event)
{
    m_button->setFocus();
    event->accept();
}
