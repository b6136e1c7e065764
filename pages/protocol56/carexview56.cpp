#include "carexview56.h"

#include "carinfoitem.h"
#include "pages56.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {1, voice()},
        {2, function()},
        {3, vehicle()},
    };
    return table;
}

Table const &polling()
{
    static const Table table = {
        {3, FrameList()}, // the timer runs on, asking nothing
    };
    return table;
}

} // namespace

CarExView56::CarExView56(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView56", "Body information"), makePage<CarInfoItem56_1>},
        {QT_TRANSLATE_NOOP("CarExView56", "Voice control feedback"), makePage<CarInfoItem56_2>},
        {QT_TRANSLATE_NOOP("CarExView56", "Function recognition"), makePage<CarInfoItem56_3>},
        {QT_TRANSLATE_NOOP("CarExView56", "Vehicle Information"), makePage<CarInfoItem56_6>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView56::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
    restartOn(timer, index, {3}, 1000);
}

void CarExView56::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView56::onCountdown()
{
    countdown(timer, polling(), currentIndex);
}
