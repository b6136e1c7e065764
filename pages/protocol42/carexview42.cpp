#include "carexview42.h"

#include "carinfoitem.h"
#include "pages42.h"

CarExView42::CarExView42(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView42", "Vehicle settings"), makePage<CarInfoItem42_1>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    // The reset row of page 42_1 opens the tyre panel.
    connect(widget(0), SIGNAL(TirePressure()), this, SIGNAL(TirePressure()));
}

void CarExView42::showIndex(int index)
{
    raisePage(index);
}

void CarExView42::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
