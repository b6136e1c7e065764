#include "carexview84.h"

#include "carinfoitem.h"
#include "pages84.h"
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

CarExView84::CarExView84(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView84", "body information"), makePage<CarInfoItem84_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView84::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView84::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
