#include "sliderviewimte.h"

#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

SliderViewImte::SliderViewImte(QWidget *parent)
    : QWidget(parent)
    , m_lowest(0)
    , m_highest(100)
    , m_value(0)
    , m_slide(true)
    , m_lastX(-1)
{
    setMinimumSize(10, 10);
}

void SliderViewImte::setSlideState(bool slide)
{
    m_slide = slide;
}

bool SliderViewImte::slideState() const
{
    return m_slide;
}

int SliderViewImte::clipped(int value) const
{
    if (value > m_highest)
        value = m_highest;
    if (value < m_lowest)
        value = m_lowest;
    return value;
}

void SliderViewImte::setRange(int lowest, int highest)
{
    m_lowest = lowest;
    m_highest = highest;
    m_value = clipped(m_value);
}

void SliderViewImte::setValue(int value)
{
    m_value = clipped(value);
    update();
}

void SliderViewImte::getRange(int &lowest, int &highest) const
{
    lowest = m_lowest;
    highest = m_highest;
}

int SliderViewImte::getValue() const
{
    return m_value;
}

QRect SliderViewImte::grooveRect() const
{
    return m_groove;
}

int SliderViewImte::getValueByPos(int x)
{
    // The margin is a share of the groove, not of the widget: the finger's
    // scale and the painted groove differ on purpose.
    const int margin = int((m_groove.right() - m_groove.left() + 1) * 0.05);
    const int end = width() - margin;
    if (x < margin)
        return m_lowest;
    if (x > end)
        return m_highest;
    if (end == margin)
        return m_lowest;
    return m_lowest + qRound(double(m_highest - m_lowest) * (x - margin) / (end - margin));
}

void SliderViewImte::resizeEvent(QResizeEvent *event)
{
    const int w = event->size().width();
    const int h = event->size().height();
    setFixedSize(size());
    const int x1 = int(w * 0.05);
    const int x2 = x1 + int(w * 0.9) - 1;
    const int y1 = h / 4;
    const int y2 = y1 + h / 2 - 1;
    m_groove = QRect(QPoint(x1, y1), QPoint(x2, y2));
}

void SliderViewImte::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    const bool enabled = isEnabled();
    const int x1 = m_groove.left();
    const int x2 = m_groove.right();
    const int y1 = m_groove.top();
    const int y2 = m_groove.bottom();
    const int g = y2 - y1 + 1;
    const int top = y1 + g / 3;
    const int bar = y2 - top - g / 3;
    const int span = m_highest - m_lowest;
    const int fill = span != 0 ? int(double(m_value - m_lowest) / span * (x2 - x1 - 1)) : 0;

    painter.setBrush(QColor(40, 40, 40, enabled ? 250 : 50));
    painter.drawRoundedRect(QRect(x1, top, x2 - x1 + 1, bar), bar >> 1, bar >> 1);

    painter.setBrush(QColor(255, 255, 255, enabled ? 250 : 50));
    painter.drawRoundedRect(QRect(x1 + 1, top + 1, fill, bar - 2), (bar - 2) >> 1, (bar - 2) >> 1);

    painter.setBrush(enabled ? QColor(255, 255, 255, 255) : QColor(100, 100, 100, 255));
    const int knob = g & ~1;
    painter.drawEllipse(QRect(fill + x1 + 1 - (g >> 1), y1, knob, knob));
    event->accept();
}

void SliderViewImte::mousePressEvent(QMouseEvent *event)
{
    event->accept();
    if (!m_slide)
        return;
    m_lastX = event->pos().x();
    m_value = getValueByPos(m_lastX);
    update();
    emit valueChanged(m_value);
}

void SliderViewImte::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (!m_slide)
        return;
    m_lastX = event->pos().x();
    update();
    const int value = getValueByPos(m_lastX);
    if (value != m_value) {
        m_value = value;
        emit valueChanged(m_value);
    }
}

void SliderViewImte::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (!m_slide)
        return;
    m_lastX = -1;
    m_value = getValueByPos(event->pos().x());
    update();
    emit released(m_value);
}
