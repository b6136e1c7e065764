#include "carexview45.h"

#include "carinfoitem.h"
#include "pages45.h"

CarExView45::CarExView45(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView45", "Vehicle Information"), makePage<CarInfoItem45_1>},
        {QT_TRANSLATE_NOOP("CarExView45", "Vehicle Information 1"), makePage<CarInfoItem45_2>},
        {QT_TRANSLATE_NOOP("CarExView45", "Setting item information"), makePage<CarInfoItem45_3>},
        {QT_TRANSLATE_NOOP("CarExView45", "Setting item display"), makePage<CarInfoItem45_4>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView45::showIndex(int index)
{
    raisePage(index);
}

void CarExView45::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
