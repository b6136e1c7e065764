#include "airdialogbase.h"

#include <QTimerEvent>

AirDialogBase::AirDialogBase(QWidget *parent)
    : DialogBase(parent)
    , rightDriver(false)
    , hideDelay(10000)
    , hideTimerId(0)
{
}

void AirDialogBase::setRightDriver(bool right)
{
    rightDriver = right;
}

void AirDialogBase::setData(AirData const &record)
{
    airData = record;
}

AirData const &AirDialogBase::getData() const
{
    return airData;
}

void AirDialogBase::resetHideTimer()
{
    if (hideTimerId) {
        killTimer(hideTimerId);
        hideTimerId = 0;
    }
    hideTimerId = startTimer(hideDelay, Qt::CoarseTimer);
}

void AirDialogBase::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != hideTimerId) {
        DialogBase::timerEvent(event);
        return;
    }
    killTimer(hideTimerId);
    hideTimerId = 0;
    hide();
    event->accept();
}

void AirDialogBase::showEvent(QShowEvent *event)
{
    DialogBase::showEvent(event);
    if (!hideTimerId)
        hideTimerId = startTimer(hideDelay, Qt::CoarseTimer);
}

void AirDialogBase::hideEvent(QHideEvent *event)
{
    DialogBase::hideEvent(event);
    if (hideTimerId) {
        killTimer(hideTimerId);
        hideTimerId = 0;
    }
}
