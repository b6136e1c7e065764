#include "carexview123.h"

#include "carinfoitem.h"
#include "pages123.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x94, 0x95, 0x14, 0x27, 0x33, 0x25})},
        {1, r2({0x17})},
        {2, r2({0x38})},
    };
    return table;
}

} // namespace

CarExView123::CarExView123(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView123", "Basic information"), makePage<CarInfoItem123_1>},
        {QT_TRANSLATE_NOOP("CarExView123", "Original car power release state"), makePage<CarInfoItem123_2>},
        {QT_TRANSLATE_NOOP("CarExView123", "Vehicle driving fuel consumption information"), makePage<CarInfoItem123_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView123::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView123::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
