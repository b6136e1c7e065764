#include "carexview99.h"

#include "carinfoitem.h"
#include "pages99.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r1({0x50})},
        {1, r1({0x40})},
    };
    return table;
}

} // namespace

CarExView99::CarExView99(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView99", "body information"), makePage<CarInfoItem99_2>},
        {QT_TRANSLATE_NOOP("CarExView99", "Panorama state"), makePage<CarInfoItem99_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView99::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView99::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
