#include "carexview82.h"

#include "carinfoitem.h"
#include "pages82.h"

CarExView82::CarExView82(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView82", "body information"), makePage<CarInfoItem82_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView82::showIndex(int index)
{
    raisePage(index);
}

void CarExView82::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
