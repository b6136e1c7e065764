#include "slider.h"

#include "headunitkeys.h"

#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

Slider::Slider(QWidget *parent)
    : QWidget(parent)
    , m_lowest(0)
    , m_highest(1)
    , m_value(0)
    , m_groove(0)
    , m_handle(0)
    , m_focusedHandle(0)
    , m_adjusting(false)
{
    setFocusPolicy(Qt::StrongFocus);
}

Slider::~Slider()
{
    delete m_groove;
    delete m_handle;
    delete m_focusedHandle;
}

void Slider::setImage(QString const &groove, QString const &handle, QString const &focusedHandle)
{
    delete m_groove;
    delete m_handle;
    delete m_focusedHandle;
    m_groove = new QImage(groove);
    m_handle = new QImage(handle);
    m_focusedHandle = new QImage(focusedHandle);
    if (!m_groove->isNull())
        setFixedSize(m_groove->size());
    update();
}

void Slider::setRange(int lowest, int highest)
{
    if (lowest == m_lowest && highest == m_highest)
        return;
    m_lowest = lowest;
    m_highest = highest;
    update();
}

void Slider::setValue(int value, bool emitSignal)
{
    if (value == m_value)
        return;
    m_value = value;
    update();
    if (emitSignal)
        emit valueChanged(m_value);
}

int Slider::getValue() const
{
    return m_value;
}

int Slider::lowest() const
{
    return m_lowest;
}

int Slider::highest() const
{
    return m_highest;
}

bool Slider::isAdjusting() const
{
    return m_adjusting;
}

QImage const *Slider::handleImage() const
{
    QImage const *image = hasFocus() ? m_focusedHandle : m_handle;
    return image && !image->isNull() ? image : 0;
}

int Slider::convertPosToValue(QPoint const &pos) const
{
    QImage const *handle = handleImage();
    const int half = handle ? handle->width() >> 1 : 0;
    const int range = m_highest - m_lowest;
    const int track = width() - 2 * half;
    if (track <= 0)
        return m_lowest;
    const int offset = qRound(double(pos.x() - half) * range / track);
    return m_lowest + qBound(0, offset, qMax(range, 0));
}

void Slider::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    const int w = width();
    const int h = height();
    if (m_groove && !m_groove->isNull())
        painter.drawImage((w - m_groove->width()) / 2, (h - m_groove->height()) / 2, *m_groove);
    if (QImage const *handle = handleImage()) {
        const int span = m_highest - m_lowest;
        const int x = span != 0 ? (m_value - m_lowest) * (w - handle->width()) / span : 0;
        painter.drawImage(x, (h - handle->height()) / 2, *handle);
    }
}

void Slider::mousePressEvent(QMouseEvent *event)
{
    setValue(convertPosToValue(event->pos()), true);
    event->accept();
}

void Slider::mouseMoveEvent(QMouseEvent *event)
{
    setValue(convertPosToValue(event->pos()), true);
    event->accept();
}

void Slider::mouseReleaseEvent(QMouseEvent *event)
{
    // The press and the moves set the value already.
    event->accept();
}

void Slider::focusOutEvent(QFocusEvent *event)
{
    m_adjusting = false;
    event->accept();
    update();
}

void Slider::keyPressEvent(QKeyEvent *event)
{
    using namespace HeadUnitKeys;
    const int key = event->key();
    if (isEnter(key)) {
        m_adjusting = !m_adjusting;
        event->accept();
        return;
    }
    const bool down = isLeft(key) || isDown(key) || isPrevious(key);
    const bool up = isRight(key) || isUp(key) || isNext(key);
    if ((!down && !up) || !m_adjusting) {
        event->ignore();
        return;
    }
    step(down);
    event->accept();
}

// One step from the keys. Only the bound in the direction of travel is
// looked at: lowering 0 with a lowest value of 0 wraps to 255.
void Slider::step(bool down)
{
    const int candidate = (down ? m_value - 1 : m_value + 1) & 0xFF;
    if (down ? candidate < m_lowest : candidate > m_highest)
        return;
    setValue(candidate, true);
}
