#include "carexview97.h"

#include "carinfoitem.h"
#include "pages97.h"
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
        {3, r2({0x32})},
        {4, r2({0x25})},
        {5, r2({0x33, 0x41})},
        {6, r2({0x40})},
    };
    return table;
}

} // namespace

CarExView97::CarExView97(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView97", "Voice control feedback"), makePage<CarInfoItem97_1>},
        {QT_TRANSLATE_NOOP("CarExView97", "Function recognition"), makePage<CarInfoItem97_2>},
        {QT_TRANSLATE_NOOP("CarExView97", "Vehicle Information"), makePage<CarInfoItem97_3>},
        {QT_TRANSLATE_NOOP("CarExView97", "body information"), makePage<CarInfoItem97_4>},
        {QT_TRANSLATE_NOOP("CarExView97", "Tire pressure information"), makePage<CarInfoItem97_5>},
        {QT_TRANSLATE_NOOP("CarExView97", "Fuel consumption and mileage information"), makePage<CarInfoItem97_6>},
        {QT_TRANSLATE_NOOP("CarExView97", "set item status"), makePage<CarInfoItem97_7>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView97::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView97::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView97::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
