#include "carexview49.h"

#include "carinfoitem.h"
#include "pages49.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {1, r2({0x50})},
        {2, r2({0x4F})},
        {3, r2({0x4E})},
        {4, r2({0x40})},
        {6, r2({0x52})},
    };
    return table;
}

} // namespace

CarExView49::CarExView49(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView49", "Parking assist status"), makePage<CarInfoItem49_1>},
        {QT_TRANSLATE_NOOP("CarExView49", "Setting item status"), makePage<CarInfoItem49_2>},
        {QT_TRANSLATE_NOOP("CarExView49", "Setting item setting 1"), makePage<CarInfoItem49_3>},
        {QT_TRANSLATE_NOOP("CarExView49", "Setting item setting 2"), makePage<CarInfoItem49_4>},
        {QT_TRANSLATE_NOOP("CarExView49", "Panorama information"), makePage<CarInfoItem49_5>},
        {QT_TRANSLATE_NOOP("CarExView49", "PM2.5 data"), makePage<CarInfoItem49_6>},
        {QT_TRANSLATE_NOOP("CarExView49", "Tire pressure information"), makePage<CarInfoItem49_7>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView49::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView49::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
