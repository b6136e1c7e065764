#include "carexview29.h"

#include "carinfoitem.h"
#include "pages29.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

CarExView29::CarExView29(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView29", "Parking assist status"), makePage<CarInfoItem29_1>},
        {QT_TRANSLATE_NOOP("CarExView29", "Amplifier status"), makePage<CarInfoItem29_2>},
        {QT_TRANSLATE_NOOP("CarExView29", "Body information"), makePage<CarInfoItem29_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView29::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    restartOn(timer, index, {0, 2}, 1000);
}

void CarExView29::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView29::onCountdown()
{
    countdown(timer, parkingAndBodyPolling(), currentIndex);
}
