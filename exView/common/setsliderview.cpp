#include "setsliderview.h"

#include "slider.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QLabel>

SetSliderView::SetSliderView(QString const &title, QWidget *parent)
    : SetItemBase(parent)
    , m_slider(new Slider(this))
    , m_valueLabel(new QLabel(this))
{
    m_slider->setObjectName(QStringLiteral("slider"));
    m_valueLabel->setObjectName(QStringLiteral("valueLabel"));
    setMinimumHeight(lineHeight());
    setGround(QColor(25, 25, 25, 255));

    m_valueLabel->setMinimumWidth(30);
    m_valueLabel->setStyleSheet(QStringLiteral("QLabel{color:white;font:18px;}"));
    m_valueLabel->setText(QString::number(m_slider->getValue(), 10));

    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->addWidget(makeTitleLabel(title), 1);
    layout->addWidget(m_slider, 0);
    layout->addWidget(m_valueLabel, 0);
    layout->setSpacing(20);
    layout->setContentsMargins(0, 0, 10, 0);

    connect(m_slider, SIGNAL(valueChanged(int)), this, SLOT(onValueChanged(int)));
}

bool SetSliderView::isInFocus() const
{
    return m_slider->hasFocus() || hasFocus();
}

void SetSliderView::setImage(QString const &groove, QString const &handle, QString const &focusedHandle)
{
    m_slider->setImage(groove, handle, focusedHandle);
}

void SetSliderView::setRange(int lowest, int highest)
{
    m_slider->setRange(lowest, highest);
}

void SetSliderView::setValue(int value, bool emitSignal)
{
    m_slider->setValue(value, emitSignal);
    m_valueLabel->setText(QString::number(value, 10));
}

int SetSliderView::getValue() const
{
    return m_slider->getValue();
}

void SetSliderView::onValueChanged(int value)
{
    m_valueLabel->setText(QString::number(value, 10));
    emit valueChanged(value);
}

void SetSliderView::focusInEvent(QFocusEvent *event)
{
    m_slider->setFocus();
    event->accept();
}
