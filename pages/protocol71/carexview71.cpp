#include "carexview71.h"

#include "carinfoitem.h"
#include "pages71.h"
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
        {3, r1({0x25, 0x14})},
    };
    return table;
}

} // namespace

CarExView71::CarExView71(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView71", "Voice control feedback"), makePage<CarInfoItem71_1>},
        {QT_TRANSLATE_NOOP("CarExView71", "Function recognition"), makePage<CarInfoItem71_2>},
        {QT_TRANSLATE_NOOP("CarExView71", "Vehicle Information"), makePage<CarInfoItem71_3>},
        {QT_TRANSLATE_NOOP("CarExView71", "body information"), makePage<CarInfoItem71_4>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView71::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView71::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView71::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
