#include "carexview28.h"

#include "carinfoitem.h"
#include "carinfoitem28_1.h"
#include "carinfoitem28_2.h"
#include "carinfoitem28_3.h"
#include "carinfoitem28_4.h"
#include "carinfoitem28_5.h"
#include "carinfoitem28_6.h"
#include "carinfoitem28_7.h"
#include "carinfoitem28_8.h"

CarExView28::CarExView28(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView28", "Parking assist status"), makePage<CarInfoItem28_1>},
        {QT_TRANSLATE_NOOP("CarExView28", "Amplifier status"), makePage<CarInfoItem28_2>},
        {QT_TRANSLATE_NOOP("CarExView28", "Body information"), makePage<CarInfoItem28_3>},
        {QT_TRANSLATE_NOOP("CarExView28", "Driving data"), makePage<CarInfoItem28_4>},
        {QT_TRANSLATE_NOOP("CarExView28", "Electronic Sisplay"), makePage<CarInfoItem28_5>},
        {QT_TRANSLATE_NOOP("CarExView28", "Tire pressure information"), makePage<CarInfoItem28_6>},
        {QT_TRANSLATE_NOOP("CarExView28", "Car condition check"), makePage<CarInfoItem28_7>},
        {QT_TRANSLATE_NOOP("CarExView28", "Electric management status"), makePage<CarInfoItem28_8>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    // The reset row of page 28_6 opens the tyre panel.
    connect(widget(5), SIGNAL(TirePressure()), this, SIGNAL(TirePressure()));

    forwardPageFrames();
}

void CarExView28::showIndex(int index)
{
    raisePage(index);
    if (CarInfoItem *page = currentPage())
        page->refreshLater();
}

void CarExView28::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
