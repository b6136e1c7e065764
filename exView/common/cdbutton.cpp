#include "cdbutton.h"

#include "keysound.h"

#include <QMouseEvent>
#include <QPainter>

CDButton::CDButton(QWidget *parent)
    : QWidget(parent)
    , m_usable(true)
    , m_pressed(false)
    , m_normal(0, 0, 0, 0)
    , m_pressedColor(0, 0, 0, 0)
    , m_notUsable(0, 0, 0, 0)
    , m_scale(0.3)
{
    setMinimumSize(10, 20);
}

void CDButton::setBackgroundColor(QColor const &normal, QColor const &pressed, QColor const &notUsable)
{
    m_normal = normal;
    m_pressedColor = pressed;
    m_notUsable = notUsable;
    update();
}

void CDButton::setText(QString const &text, double const &scale)
{
    const bool changed = text != m_text;
    m_text = text;
    m_scale = scale;
    update();
    if (changed)
        emit textChanged();
}

void CDButton::setProhibit(bool usable)
{
    m_usable = usable;
    update();
}

QString CDButton::text() const
{
    return m_text;
}

double CDButton::textScale() const
{
    return m_scale;
}

bool CDButton::isUsable() const
{
    return m_usable;
}

bool CDButton::isPressed() const
{
    return m_pressed;
}

void CDButton::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setPen(Qt::NoPen);
    if (!m_usable)
        painter.setBrush(m_notUsable);
    else
        painter.setBrush(m_pressed ? m_pressedColor : m_normal);
    painter.drawRoundedRect(rect(), 1.0, 1.0);
    if (!m_text.isEmpty()) {
        QFont textFont = font();
        textFont.setPixelSize(qMax(1, int(height() * m_scale)));
        painter.setFont(textFont);
        painter.setPen(QColor(0, 0, 0, 255));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_text);
    }
    event->accept();
}

void CDButton::mousePressEvent(QMouseEvent *event)
{
    KeySound::playTouchSound();
    m_pressed = true;
    update();
    event->accept();
}

void CDButton::mouseReleaseEvent(QMouseEvent *event)
{
    m_pressed = false;
    update();
    if (rect().contains(event->pos()) && m_usable)
        emit clicked();
    event->accept();
}
