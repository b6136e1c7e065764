#include "carexview68.h"

#include "carinfoitem.h"
#include "pages68.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x24, 0x10})},
        {1, r2Series(0x40, 0, 42) + r2q(0x40, {0xFE, 0xFF})},
        {2, r2({0x41})},
    };
    return table;
}

} // namespace

CarExView68::CarExView68(QWidget *parent)
    : CarExViewBase(parent)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView68", "vehicle settings"), makePage<CarInfoItem68_1>},
        {QT_TRANSLATE_NOOP("CarExView68", "Setting item status information"), makePage<CarInfoItem68_2>},
        {QT_TRANSLATE_NOOP("CarExView68", "Set item status 2 information"), makePage<CarInfoItem68_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView68::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView68::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
