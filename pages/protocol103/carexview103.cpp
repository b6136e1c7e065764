#include "carexview103.h"

#include "carinfoitem.h"
#include "pages103.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table({
        {0, r1({0x36})},
        {1, r1({0x60})},
        {2, r1({0x00})},
    }, r1({0x00}));
    return table;
}

} // namespace

CarExView103::CarExView103(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView103", "body information"), makePage<CarInfoItem103_1>},
        {QT_TRANSLATE_NOOP("CarExView103", "Tire pressure monitoring"), makePage<CarInfoItem103_2>},
        {QT_TRANSLATE_NOOP("CarExView103", "Amplifier Information"), makePage<CarInfoItem103_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView103::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView103::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
