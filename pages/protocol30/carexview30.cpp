#include "carexview30.h"

#include "carinfoitem.h"
#include "pages30.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x25})},
        {1, r2({0x1F})},
        {2, r2({0x50, 0x52, 0x22})},
        {3, r2({0x31})},
        {4, r2({0x26})},
        {5, r2({0x23})},
        {6, r2({0x21})},
        {7, r2({0x27})},
        {8, r2({0x61, 0x66})},
    };
    return table;
}

} // namespace

CarExView30::CarExView30(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView30", "Tire pressure information"), makePage<CarInfoItem30_1>},
        {QT_TRANSLATE_NOOP("CarExView30", "Hybrid information"), makePage<CarInfoItem30_2>},
        {QT_TRANSLATE_NOOP("CarExView30", "Vehicle setting status"), makePage<CarInfoItem30_3>},
        {QT_TRANSLATE_NOOP("CarExView30", "Amplifier information"), makePage<CarInfoItem30_4>},
        {QT_TRANSLATE_NOOP("CarExView30", "Body setting status"), makePage<CarInfoItem30_5>},
        {QT_TRANSLATE_NOOP("CarExView30", "Historical fuel consumption information"), makePage<CarInfoItem30_6>},
        {QT_TRANSLATE_NOOP("CarExView30", "Mileage information"), makePage<CarInfoItem30_7>},
        {QT_TRANSLATE_NOOP("CarExView30", "Fuel consumption in the past 15 minutes"), makePage<CarInfoItem30_8>},
        {QT_TRANSLATE_NOOP("CarExView30", "Multimedia information"), makePage<CarInfoItem30_9>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView30::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView30::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
