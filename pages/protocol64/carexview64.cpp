#include "carexview64.h"

#include "carinfoitem.h"
#include "pages64.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x53})},
        {1, voice()},
        {2, function()},
        {3, vehicle()},
        {4, r2({0x38, 0x39})},
        {5, r2({0x7D})},
        {6, r2({0x33})},
        {7, r2({0x31, 0x32})},
    };
    return table;
}

} // namespace

CarExView64::CarExView64(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView64", "Energy management setup information"), makePage<CarInfoItem64_1>},
        {QT_TRANSLATE_NOOP("CarExView64", "Voice control feedback"), makePage<CarInfoItem64_2>},
        {QT_TRANSLATE_NOOP("CarExView64", "Function recognition"), makePage<CarInfoItem64_3>},
        {QT_TRANSLATE_NOOP("CarExView64", "vehicle setup information"), makePage<CarInfoItem64_4>},
        {QT_TRANSLATE_NOOP("CarExView64", "Tire pressure warning message"), makePage<CarInfoItem64_5>},
        {QT_TRANSLATE_NOOP("CarExView64", "Vehicle Information"), makePage<CarInfoItem64_6>},
        {QT_TRANSLATE_NOOP("CarExView64", "automatic parking status"), makePage<CarInfoItem64_7>},
        {QT_TRANSLATE_NOOP("CarExView64", "Panoramic information"), makePage<CarInfoItem64_8>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    // The reset row of page 64_5 opens the tyre panel.
    connect(widget(4), SIGNAL(TirePressure()), this, SIGNAL(TirePressure()));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView64::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView64::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView64::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
