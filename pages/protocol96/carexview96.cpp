#include "carexview96.h"

#include "carinfoitem.h"
#include "pages96.h"
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
        {3, r2({0x25})},
        {4, r2({0x17})},
        {5, r2({0x40})},
        {6, r2({0x50})},
    };
    return table;
}

} // namespace

CarExView96::CarExView96(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView96", "Voice control feedback"), makePage<CarInfoItem96_1>},
        {QT_TRANSLATE_NOOP("CarExView96", "Function recognition"), makePage<CarInfoItem96_2>},
        {QT_TRANSLATE_NOOP("CarExView96", "Vehicle Information"), makePage<CarInfoItem96_3>},
        {QT_TRANSLATE_NOOP("CarExView96", "body information"), makePage<CarInfoItem96_4>},
        {QT_TRANSLATE_NOOP("CarExView96", "Amplifier Information"), makePage<CarInfoItem96_5>},
        {QT_TRANSLATE_NOOP("CarExView96", "fuel consumption information"), makePage<CarInfoItem96_6>},
        {QT_TRANSLATE_NOOP("CarExView96", "Setting item information"), makePage<CarInfoItem96_7>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView96::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView96::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView96::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
