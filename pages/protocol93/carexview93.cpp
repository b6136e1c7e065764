#include "carexview93.h"

#include "carinfoitem.h"
#include "pages93.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x25})},
    };
    return table;
}

} // namespace

CarExView93::CarExView93(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView93", "body information"), makePage<CarInfoItem93_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView93::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView93::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
