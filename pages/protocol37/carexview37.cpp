#include "carexview37.h"

#include "carinfoitem.h"
#include "pages37.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {8, r1({0x41, 0x42})},
    };
    return table;
}

} // namespace

CarExView37::CarExView37(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView37", "Automatic parking information"), makePage<CarInfoItem37_1>},
        {QT_TRANSLATE_NOOP("CarExView37", "Hybrid information"), makePage<CarInfoItem37_2>},
        {QT_TRANSLATE_NOOP("CarExView37", "Body air conditioning settings"), makePage<CarInfoItem37_3>},
        {QT_TRANSLATE_NOOP("CarExView37", "Body control setting information 2"), makePage<CarInfoItem37_4>},
        {QT_TRANSLATE_NOOP("CarExView37", "Body control setting information"), makePage<CarInfoItem37_5>},
        {QT_TRANSLATE_NOOP("CarExView37", "Body air conditioning control information"), makePage<CarInfoItem37_6>},
        {QT_TRANSLATE_NOOP("CarExView37", "Simulate the key information of the original car panel"),
         makePage<CarInfoItem37_7>},
        {QT_TRANSLATE_NOOP("CarExView37", "Tire pressure information"), makePage<CarInfoItem37_8>},
        {QT_TRANSLATE_NOOP("CarExView37", "OnStar Information"), makePage<CarInfoItem37_9>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView37::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView37::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
