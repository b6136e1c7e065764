#include "carexview105.h"

#include "carinfoitem.h"
#include "pages105.h"
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
        {3, r2({0x81})},
        {4, r2({0x72})},
        {5, r2({0x73})},
        {6, r2({0x71})},
        {7, r2({0x61})},
        {8, r2({0x91, 0x10, 0x0A})},
    };
    return table;
}

} // namespace

CarExView105::CarExView105(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView105", "Voice control feedback"), makePage<CarInfoItem105_1>},
        {QT_TRANSLATE_NOOP("CarExView105", "Function recognition"), makePage<CarInfoItem105_2>},
        {QT_TRANSLATE_NOOP("CarExView105", "Vehicle Information"), makePage<CarInfoItem105_3>},
        {QT_TRANSLATE_NOOP("CarExView105", "On-board computer information"), makePage<CarInfoItem105_4>},
        {QT_TRANSLATE_NOOP("CarExView105", "Vehicle Setup Information 2"), makePage<CarInfoItem105_5>},
        {QT_TRANSLATE_NOOP("CarExView105", "Vehicle Setup Information 1"), makePage<CarInfoItem105_6>},
        {QT_TRANSLATE_NOOP("CarExView105", "Vehicle Setup Information"), makePage<CarInfoItem105_7>},
        {QT_TRANSLATE_NOOP("CarExView105", "Tire pressure information"), makePage<CarInfoItem105_8>},
        {QT_TRANSLATE_NOOP("CarExView105", "body information"), makePage<CarInfoItem105_9>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView105::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView105::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView105::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
