#include "carexview33.h"

#include "carinfoitem.h"
#include "pages33.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {1, voice()},
        {2, function()},
        {3, vehicle()},
        {4, r2({0x54})},
        {6, r2({0x53})},
        {7, r2({0x55})},
        {8, r2({0x58})},
    };
    return table;
}

Table const &polling()
{
    static const Table table = {
        {5, r1({0x68, 0x6A})},
    };
    return table;
}

} // namespace

CarExView33::CarExView33(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView33", "Compass information"), makePage<CarInfoItem33_1>},
        {QT_TRANSLATE_NOOP("CarExView33", "Voice control feedback"), makePage<CarInfoItem33_2>},
        {QT_TRANSLATE_NOOP("CarExView33", "Function recognition"), makePage<CarInfoItem33_3>},
        {QT_TRANSLATE_NOOP("CarExView33", "Original car settings"), makePage<CarInfoItem33_4>},
        {QT_TRANSLATE_NOOP("CarExView33", "New energy display information"), makePage<CarInfoItem33_5>},
        {QT_TRANSLATE_NOOP("CarExView33", "Vehicle Information"), makePage<CarInfoItem33_6>},
        {QT_TRANSLATE_NOOP("CarExView33", "New energy setting information"), makePage<CarInfoItem33_7>},
        {QT_TRANSLATE_NOOP("CarExView33", "Intelligent perception system information"), makePage<CarInfoItem33_8>},
        {QT_TRANSLATE_NOOP("CarExView33", "Vehicle control information"), makePage<CarInfoItem33_9>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView33::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
    restartOn(timer, index, {5}, 1000);
}

void CarExView33::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView33::onCountdown()
{
    countdown(timer, polling(), currentIndex);
}
