#include "carexview74.h"

#include "carinfoitem.h"
#include "pages74.h"
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
        {3, r1({0x36, 0x37, 0x31})},
        {4, r1({0x27})},
        {5, r1({0x29})},
        {6, r1({0x41})},
        {7, r1({0x42})},
    };
    return table;
}

} // namespace

CarExView74::CarExView74(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView74", "Voice control feedback"), makePage<CarInfoItem74_1>},
        {QT_TRANSLATE_NOOP("CarExView74", "Function recognition"), makePage<CarInfoItem74_2>},
        {QT_TRANSLATE_NOOP("CarExView74", "Vehicle Information"), makePage<CarInfoItem74_3>},
        {QT_TRANSLATE_NOOP("CarExView74", "body information"), makePage<CarInfoItem74_4>},
        {QT_TRANSLATE_NOOP("CarExView74", "Original car information"), makePage<CarInfoItem74_5>},
        {QT_TRANSLATE_NOOP("CarExView74", "The status of the original car setting item is returned"),
         makePage<CarInfoItem74_6>},
        {QT_TRANSLATE_NOOP("CarExView74", "original car fault information"), makePage<CarInfoItem74_7>},
        {QT_TRANSLATE_NOOP("CarExView74", "Car health examination"), makePage<CarInfoItem74_8>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView74::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView74::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView74::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
