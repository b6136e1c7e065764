#include "carexview31.h"

#include "carinfoitem.h"
#include "pages31.h"
#include "requests.h"

#include <QHideEvent>
#include <QTimer>

using namespace Requests;

CarExView31::CarExView31(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView31", "Parking assist status"), makePage<CarInfoItem31_1>},
        {QT_TRANSLATE_NOOP("CarExView31", "Fuel consumption and mileage information"), makePage<CarInfoItem31_2>},
        {QT_TRANSLATE_NOOP("CarExView31", "Power flow information"), makePage<CarInfoItem31_3>},
        {QT_TRANSLATE_NOOP("CarExView31", "Original car radio data"), makePage<CarInfoItem31_4>},
        {QT_TRANSLATE_NOOP("CarExView31", "Backlight adjustment information"), makePage<CarInfoItem31_5>},
        {QT_TRANSLATE_NOOP("CarExView31", "Vehicle setting status"), makePage<CarInfoItem31_6>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    // The reset row of page 31_3 opens the tyre panel.
    connect(widget(2), SIGNAL(TirePressure()), this, SIGNAL(TirePressure()));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));

    forwardPageFrames();
}

void CarExView31::showIndex(int index)
{
    raisePage(index);
    if (index == 1)
        timer->start(1000);
    else
        timer->stop();
}

void CarExView31::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView31::hideEvent(QHideEvent *event)
{
    CarExViewBase::hideEvent(event);
    if (timer->isActive())
        timer->stop();
}

void CarExView31::onCountdown()
{
    // The same requests whatever page is in front.
    Requests::send(r2q(0x33, {0x02, 0x01}));
}
