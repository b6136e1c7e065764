#include "carexview40.h"

#include "carinfoitem.h"
#include "pages40.h"

CarExView40::CarExView40(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView40", "Body information"), makePage<CarInfoItem40_1>},
        {QT_TRANSLATE_NOOP("CarExView40", "Amplifier information"), makePage<CarInfoItem40_2>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView40::showIndex(int index)
{
    raisePage(index);
}

void CarExView40::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
