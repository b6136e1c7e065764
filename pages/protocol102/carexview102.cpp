#include "carexview102.h"

#include "carinfoitem.h"
#include "pages102.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, voice()},
        {1, function()},
        {2, vehicle()},
    };
    return table;
}

} // namespace

CarExView102::CarExView102(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView102", "Voice control feedback"), makePage<CarInfoItem102_1>},
        {QT_TRANSLATE_NOOP("CarExView102", "Function recognition"), makePage<CarInfoItem102_2>},
        {QT_TRANSLATE_NOOP("CarExView102", "Vehicle Information"), makePage<CarInfoItem102_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView102::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView102::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView102::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
