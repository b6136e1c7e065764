#include "carexview122.h"

#include "carinfoitem.h"
#include "pages122.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r1({0x40, 0x50})},
        {1, r1({0x39})},
        {2, r1({0x38, 0x41, 0x42, 0x43})},
        {3, r1({0x37})},
        {4, r2q(0x7D, {0x06})},
        {5, voice()},
        {6, function()},
        {7, vehicle()},
    };
    return table;
}

} // namespace

CarExView122::CarExView122(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView122", "Vehicle Information"), makePage<CarInfoItem122_1>},
        {QT_TRANSLATE_NOOP("CarExView122", "Vehicle Information 1"), makePage<CarInfoItem122_2>},
        {QT_TRANSLATE_NOOP("CarExView122", "Setting item information"), makePage<CarInfoItem122_3>},
        {QT_TRANSLATE_NOOP("CarExView122", "Setting item display"), makePage<CarInfoItem122_4>},
        {QT_TRANSLATE_NOOP("CarExView122", "Body Information"), makePage<CarInfoItem122_5>},
        {QT_TRANSLATE_NOOP("CarExView122", "Voice control feedback"), makePage<CarInfoItem122_6>},
        {QT_TRANSLATE_NOOP("CarExView122", "Function recognition"), makePage<CarInfoItem122_7>},
        {QT_TRANSLATE_NOOP("CarExView122", "Vehicle Information"), makePage<CarInfoItem122_8>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView122::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView122::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
