#include "carexview43.h"

#include "carinfoitem.h"
#include "pages43.h"

CarExView43::CarExView43(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView43", "Body information"), makePage<CarInfoItem43_1>},
        {QT_TRANSLATE_NOOP("CarExView43", "Panorama and Auxiliary"), makePage<CarInfoItem43_2>},
        {QT_TRANSLATE_NOOP("CarExView43", "Body setting status"), makePage<CarInfoItem43_3>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView43::showIndex(int index)
{
    raisePage(index);
}

void CarExView43::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
