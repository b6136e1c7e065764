#include "carexview78.h"

#include "carinfoitem.h"
#include "pages78.h"
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
        {3, r1({0x36})},
        {4, r1({0x40})},
    };
    return table;
}

} // namespace

CarExView78::CarExView78(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView78", "Voice control feedback"), makePage<CarInfoItem78_1>},
        {QT_TRANSLATE_NOOP("CarExView78", "Function recognition"), makePage<CarInfoItem78_2>},
        {QT_TRANSLATE_NOOP("CarExView78", "Vehicle Information"), makePage<CarInfoItem78_3>},
        {QT_TRANSLATE_NOOP("CarExView78", "body information"), makePage<CarInfoItem78_4>},
        {QT_TRANSLATE_NOOP("CarExView78", "vehicle settings"), makePage<CarInfoItem78_5>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView78::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView78::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView78::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
