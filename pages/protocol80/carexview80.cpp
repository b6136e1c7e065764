#include "carexview80.h"

#include "carinfoitem.h"
#include "pages80.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x61})},
        {1, r2({0x60})},
    };
    return table;
}

} // namespace

CarExView80::CarExView80(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView80", "AVM set feedback status"), makePage<CarInfoItem80_1>},
        {QT_TRANSLATE_NOOP("CarExView80", "body information"), makePage<CarInfoItem80_2>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView80::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView80::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
