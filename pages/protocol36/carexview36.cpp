#include "carexview36.h"

#include "carinfoitem.h"
#include "pages36.h"

CarExView36::CarExView36(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView36", "Parking assist status"), makePage<CarInfoItem36_1>},
        {QT_TRANSLATE_NOOP("CarExView36", "Fuel consumption and mileage information"), makePage<CarInfoItem36_2>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView36::showIndex(int index)
{
    raisePage(index);
}

void CarExView36::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
