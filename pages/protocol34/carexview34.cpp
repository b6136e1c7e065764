#include "carexview34.h"

#include "carinfoitem.h"
#include "pages34.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

CarExView34::CarExView34(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView34", "Parking assist status"), makePage<CarInfoItem34_1>},
        {QT_TRANSLATE_NOOP("CarExView34", "Amplifier status"), makePage<CarInfoItem34_2>},
        {QT_TRANSLATE_NOOP("CarExView34", "Body information"), makePage<CarInfoItem34_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView34::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    restartOn(timer, index, {0, 2}, 10000);
}

void CarExView34::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView34::onCountdown()
{
    countdown(timer, parkingAndBodyPolling(), currentIndex);
}
