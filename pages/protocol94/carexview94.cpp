#include "carexview94.h"

#include "carinfoitem.h"
#include "pages94.h"
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

CarExView94::CarExView94(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView94", "body information"), makePage<CarInfoItem94_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView94::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView94::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
