#include "carexview79.h"

#include "carinfoitem.h"
#include "pages79.h"
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
        {3, r1({0x37})},
        {4, r1({0x27, 0x29})},
        {5, r1({0x40})},
        {6, r1({0x41})},
    };
    return table;
}

} // namespace

CarExView79::CarExView79(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView79", "Voice control feedback"), makePage<CarInfoItem79_1>},
        {QT_TRANSLATE_NOOP("CarExView79", "Function recognition"), makePage<CarInfoItem79_2>},
        {QT_TRANSLATE_NOOP("CarExView79", "Vehicle Information"), makePage<CarInfoItem79_3>},
        {QT_TRANSLATE_NOOP("CarExView79", "body information"), makePage<CarInfoItem79_4>},
        {QT_TRANSLATE_NOOP("CarExView79", "Original car setup information"), makePage<CarInfoItem79_5>},
        {QT_TRANSLATE_NOOP("CarExView79", "energy information"), makePage<CarInfoItem79_6>},
        {QT_TRANSLATE_NOOP("CarExView79", "energy efficient driving"), makePage<CarInfoItem79_7>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView79::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView79::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView79::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
