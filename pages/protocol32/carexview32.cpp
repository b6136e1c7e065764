#include "carexview32.h"

#include "carinfoitem.h"
#include "pages32.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {1, voice()},
        {2, r1({0x7E})}, // the function list in the short form
        {3, vehicle()},
    };
    return table;
}

Table const &polling()
{
    static const Table table = {
        {5, r1({0x68, 0x6A, 0x27})},
    };
    return table;
}

} // namespace

CarExView32::CarExView32(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView32", "Multimedia information"), makePage<CarInfoItem32_1>},
        {QT_TRANSLATE_NOOP("CarExView32", "Voice control feedback"), makePage<CarInfoItem32_2>},
        {QT_TRANSLATE_NOOP("CarExView32", "Function recognition"), makePage<CarInfoItem32_3>},
        {QT_TRANSLATE_NOOP("CarExView32", "Vehicle setting information"), makePage<CarInfoItem32_4>},
        {QT_TRANSLATE_NOOP("CarExView32", "Amplifier information"), makePage<CarInfoItem32_5>},
        {QT_TRANSLATE_NOOP("CarExView32", "Vehicle Information"), makePage<CarInfoItem32_6>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView32::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    timer->stop(); // before the requests go out
    pageRequests().send(index);
    restartOn(timer, index, {5}, 1000);
}

void CarExView32::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView32::onCountdown()
{
    countdown(timer, polling(), currentIndex);
}
