#include "custombuttonbase.h"

#include <QBasicTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimerEvent>

class CustomButtonBasePrivate
{
public:
    bool pressed = false;
    bool ignoresMouse = false;
    bool longPressEnabled = false;
    bool longPressFired = false;
    int longPressDelay = 1000;
    int repeatInterval = 0;
    QBasicTimer longPressTimer;
    QBasicTimer repeatTimer;

    void startHold(QObject *owner)
    {
        longPressFired = false;
        if (longPressEnabled)
            longPressTimer.start(longPressDelay, owner);
        if (repeatInterval > 0)
            repeatTimer.start(repeatInterval, owner);
    }

    void stopHold()
    {
        longPressTimer.stop();
        repeatTimer.stop();
    }
};

CustomButtonBase::CustomButtonBase(QWidget *parent)
    : QWidget(parent)
    , d(new CustomButtonBasePrivate)
{
    setFocusPolicy(Qt::StrongFocus);
}

CustomButtonBase::~CustomButtonBase()
{
    delete d;
}

void CustomButtonBase::setEnableLongPressed(bool enable, int milliseconds)
{
    d->longPressEnabled = enable;
    d->longPressDelay = milliseconds;
}

void CustomButtonBase::setEmitPressedSignalOnPressHold(int milliseconds)
{
    d->repeatInterval = milliseconds;
}

bool CustomButtonBase::isPressed() const
{
    return d->pressed;
}

bool CustomButtonBase::ignoresMouse() const
{
    return d->ignoresMouse;
}

void CustomButtonBase::setIgnoresMouse(bool ignore)
{
    d->ignoresMouse = ignore;
    setAttribute(Qt::WA_TransparentForMouseEvents, ignore);
}

void CustomButtonBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == d->longPressTimer.timerId()) {
        d->longPressTimer.stop();
        if (d->pressed) {
            d->longPressFired = true;
            emit longPressed();
        }
    } else if (event->timerId() == d->repeatTimer.timerId()) {
        if (d->pressed)
            emit pressed();
        else
            d->repeatTimer.stop();
    } else {
        QWidget::timerEvent(event);
    }
}

void CustomButtonBase::mousePressEvent(QMouseEvent *event)
{
    if (d->ignoresMouse || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    d->pressed = true;
    d->startHold(this);
    update();
    emit pressed();
}

void CustomButtonBase::mouseMoveEvent(QMouseEvent *event)
{
    if (d->ignoresMouse || !d->pressed) {
        event->ignore();
        return;
    }
    // A finger that slides off the button gives up the press.
    if (!rect().contains(event->pos())) {
        d->pressed = false;
        d->stopHold();
        update();
        emit released();
    }
}

void CustomButtonBase::mouseReleaseEvent(QMouseEvent *event)
{
    if (d->ignoresMouse || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    if (!d->pressed)
        return;
    d->pressed = false;
    d->stopHold();
    const bool click = rect().contains(event->pos()) && !d->longPressFired;
    update();
    emit released();
    if (click)
        emit clicked();
}

namespace {

bool isSelectKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select
        || key == Qt::Key_Space;
}

} // namespace

void CustomButtonBase::keyPressEvent(QKeyEvent *event)
{
    if (!isSelectKey(event->key())) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!event->isAutoRepeat() && !d->pressed) {
        d->pressed = true;
        d->startHold(this);
        update();
        emit pressed();
    }
}

void CustomButtonBase::keyReleaseEvent(QKeyEvent *event)
{
    if (!isSelectKey(event->key())) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    if (event->isAutoRepeat() || !d->pressed)
        return;
    d->pressed = false;
    d->stopHold();
    update();
    emit released();
    if (!d->longPressFired)
        emit clicked();
}
