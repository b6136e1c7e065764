#include "carexview124.h"

#include "carinfoitem.h"
#include "pages124.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x24, 0x16})},
        {1, r2({0x40})},
        {2, r2({0x26, 0x27, 0x25})},
    };
    return table;
}

} // namespace

CarExView124::CarExView124(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView124", "Basic information"), makePage<CarInfoItem124_1>},
        {QT_TRANSLATE_NOOP("CarExView124", "Vehicle settings information"), makePage<CarInfoItem124_2>},
        {QT_TRANSLATE_NOOP("CarExView124", "CD/DVD status"), makePage<CarInfoItem124_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView124::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView124::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
