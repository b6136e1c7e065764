#include "carexview98.h"

#include "carinfoitem.h"
#include "pages98.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x14})},
        {1, r2q(0x40, {0xFF})},
        {2, r2q(0x50, {0xFF})},
    };
    return table;
}

} // namespace

CarExView98::CarExView98(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView98", "body information"), makePage<CarInfoItem98_1>},
        {QT_TRANSLATE_NOOP("CarExView98", "Setting item information"), makePage<CarInfoItem98_2>},
        {QT_TRANSLATE_NOOP("CarExView98", "Trip information"), makePage<CarInfoItem98_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView98::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView98::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
