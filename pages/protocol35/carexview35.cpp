#include "carexview35.h"

#include "carinfoitem.h"
#include "pages35.h"

CarExView35::CarExView35(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView35", "Vehicle setting information"), makePage<CarInfoItem35_1>},
        {QT_TRANSLATE_NOOP("CarExView35", "Mileage information"), makePage<CarInfoItem35_2>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView35::showIndex(int index)
{
    raisePage(index);
}

void CarExView35::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
