#include "carexview86.h"

#include "carinfoitem.h"
#include "pages86.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table({
        {0, fd8F({0x00})},
        {1, fd8F({0x33, 0x34, 0x35, 0x33})}, // 33 again at the end
    }, fd8F({0x00}));
    return table;
}

} // namespace

CarExView86::CarExView86(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView86", "Amplifier Information"), makePage<CarInfoItem86_1>},
        {QT_TRANSLATE_NOOP("CarExView86", "Trip computer information"), makePage<CarInfoItem86_2>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView86::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView86::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
