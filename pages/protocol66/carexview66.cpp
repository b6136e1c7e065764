#include "carexview66.h"

#include "carinfoitem.h"
#include "pages66.h"

CarExView66::CarExView66(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView66", "Basic Information"), makePage<CarInfoItem66_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView66::showIndex(int index)
{
    raisePage(index);
}

void CarExView66::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
