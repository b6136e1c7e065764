#include "carexview70.h"

#include "carinfoitem.h"
#include "pages70.h"
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
        {3, r2({0x51, 0x36})},
        {4, r2({0x25})},
    };
    return table;
}

} // namespace

CarExView70::CarExView70(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView70", "Voice control feedback"), makePage<CarInfoItem70_1>},
        {QT_TRANSLATE_NOOP("CarExView70", "Function recognition"), makePage<CarInfoItem70_2>},
        {QT_TRANSLATE_NOOP("CarExView70", "Vehicle Information"), makePage<CarInfoItem70_3>},
        {QT_TRANSLATE_NOOP("CarExView70", "set item status"), makePage<CarInfoItem70_4>},
        {QT_TRANSLATE_NOOP("CarExView70", "Tire pressure display"), makePage<CarInfoItem70_5>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView70::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView70::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView70::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
