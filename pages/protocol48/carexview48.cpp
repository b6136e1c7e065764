#include "carexview48.h"

#include "carinfoitem.h"
#include "pages48.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r1({0x27})},
    };
    return table;
}

} // namespace

CarExView48::CarExView48(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView48", "Parking assist status"), makePage<CarInfoItem48_1>},
        {QT_TRANSLATE_NOOP("CarExView48", "Multimedia information"), makePage<CarInfoItem48_2>},
        {QT_TRANSLATE_NOOP("CarExView48", "SYNC information"), makePage<CarInfoItem48_3>},
        {QT_TRANSLATE_NOOP("CarExView48", "Seat massage"), makePage<CarInfoItem48_4>},
        {QT_TRANSLATE_NOOP("CarExView48", "Power amplifier status"), makePage<CarInfoItem48_5>},
        {QT_TRANSLATE_NOOP("CarExView48", "Smart Xinfeng"), makePage<CarInfoItem48_6>},
        {QT_TRANSLATE_NOOP("CarExView48", "Set item status"), makePage<CarInfoItem48_7>},
        {QT_TRANSLATE_NOOP("CarExView48", "Basic Information"), makePage<CarInfoItem48_8>},
        {QT_TRANSLATE_NOOP("CarExView48", "Tire pressure information"), makePage<CarInfoItem48_9>},
        {QT_TRANSLATE_NOOP("CarExView48", "SYNC command"), makePage<CarInfoItem48_10>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView48::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView48::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
