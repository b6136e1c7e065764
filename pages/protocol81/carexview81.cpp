#include "carexview81.h"

#include "carinfoitem.h"
#include "pages81.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r1({0x52, 0x40})},
    };
    return table;
}

} // namespace

CarExView81::CarExView81(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView81", "body information"), makePage<CarInfoItem81_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView81::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView81::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
