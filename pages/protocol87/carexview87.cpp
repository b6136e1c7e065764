#include "carexview87.h"

#include "carinfoitem.h"
#include "pages87.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table({
        {0, fd8F({0x00})},
        {1, fd8F({0x33, 0x34, 0x35, 0x33})}, // 33 again at the end
        {2, fd8F({0x27, 0x01, 0x40})},
        {3, fd8F({0x22})},
        {4, fd8F({0x38})},
        {5, fd8F({0x3B})},
        {6, fd8F({0x3D, 0x3F})},
        {7, fd8F({0x41})},
        {8, fd8F({0x50})},
        {9, fd8F({0x51})},
        {10, fd8F({0x52, 0x53})},
    }, fd8F({0x00}));
    return table;
}

} // namespace

CarExView87::CarExView87(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView87", "Amplifier Information"), makePage<CarInfoItem87_1>},
        {QT_TRANSLATE_NOOP("CarExView87", "Trip computer information"), makePage<CarInfoItem87_2>},
        {QT_TRANSLATE_NOOP("CarExView87", "body information"), makePage<CarInfoItem87_3>},
        {QT_TRANSLATE_NOOP("CarExView87", "Air conditioner preset state"), makePage<CarInfoItem87_4>},
        {QT_TRANSLATE_NOOP("CarExView87", "car status"), makePage<CarInfoItem87_5>},
        {QT_TRANSLATE_NOOP("CarExView87", "Memory speed value"), makePage<CarInfoItem87_6>},
        {QT_TRANSLATE_NOOP("CarExView87", "Cruising speed, speed limit"), makePage<CarInfoItem87_7>},
        {QT_TRANSLATE_NOOP("CarExView87", "set item status 2"), makePage<CarInfoItem87_8>},
        {QT_TRANSLATE_NOOP("CarExView87", "Hybrid information-energy flow"), makePage<CarInfoItem87_9>},
        {QT_TRANSLATE_NOOP("CarExView87", "Hybrid information-statistics"), makePage<CarInfoItem87_10>},
        {QT_TRANSLATE_NOOP("CarExView87", "Hybrid information-charging and battery storage"),
         makePage<CarInfoItem87_11>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView87::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView87::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
