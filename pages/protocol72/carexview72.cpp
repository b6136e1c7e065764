#include "carexview72.h"

#include "carinfoitem.h"
#include "pages72.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, voice()},
        {1, function()},
        {2, vehicle()},
        {3, r3({0x63})},
        {4, r3({0x64})},
        {5, r3({0x54, 0x60})},
        {6, r3({0x53})},
        {7, r3({0x52})},
        {8, r3({0x50})},
        {9, r3({0x44})},
        {10, r3({0x42})},
        {11, r3({0x41})},
        {12, r3({0x40})},
        {13, r3({0x39})},
        {14, r3({0x27, 0x43, 0x61, 0x62})},
    };
    return table;
}

} // namespace

CarExView72::CarExView72(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView72", "Voice control feedback"), makePage<CarInfoItem72_1>},
        {QT_TRANSLATE_NOOP("CarExView72", "Function recognition"), makePage<CarInfoItem72_2>},
        {QT_TRANSLATE_NOOP("CarExView72", "Vehicle Information"), makePage<CarInfoItem72_3>},
        {QT_TRANSLATE_NOOP("CarExView72", "List of potentials"), makePage<CarInfoItem72_4>},
        {QT_TRANSLATE_NOOP("CarExView72", "Oil Potential List"), makePage<CarInfoItem72_5>},
        {QT_TRANSLATE_NOOP("CarExView72", "energy management"), makePage<CarInfoItem72_6>},
        {QT_TRANSLATE_NOOP("CarExView72", "driving mode"), makePage<CarInfoItem72_7>},
        {QT_TRANSLATE_NOOP("CarExView72", "Tire pressure information"), makePage<CarInfoItem72_8>},
        {QT_TRANSLATE_NOOP("CarExView72", "Panoramic information"), makePage<CarInfoItem72_9>},
        {QT_TRANSLATE_NOOP("CarExView72", "Warning message"), makePage<CarInfoItem72_10>},
        {QT_TRANSLATE_NOOP("CarExView72", "Vehicle Setup Information 3"), makePage<CarInfoItem72_11>},
        {QT_TRANSLATE_NOOP("CarExView72", "Vehicle Setup Information 2"), makePage<CarInfoItem72_12>},
        {QT_TRANSLATE_NOOP("CarExView72", "Vehicle Setup Information"), makePage<CarInfoItem72_13>},
        {QT_TRANSLATE_NOOP("CarExView72", "Vehicle Setup Information 4"), makePage<CarInfoItem72_14>},
        {QT_TRANSLATE_NOOP("CarExView72", "body information"), makePage<CarInfoItem72_15>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    // The reset row of page 72_8 opens the tyre panel.
    connect(widget(7), SIGNAL(TirePressure()), this, SIGNAL(TirePressure()));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView72::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView72::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView72::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
