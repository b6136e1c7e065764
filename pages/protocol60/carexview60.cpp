#include "carexview60.h"

#include "carinfoitem.h"
#include "pages60.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {1, r2({0x31})},
        {3, r2({0x37})},
        {5, r2({0x42})},
    };
    return table;
}

Table const &polling()
{
    static const Table table = {
        {0, r2({0x29})},
        {2, r2({0x36})},
    };
    return table;
}

} // namespace

CarExView60::CarExView60(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView60", "Body information"), makePage<CarInfoItem60_1>},
        {QT_TRANSLATE_NOOP("CarExView60", "Original car setting information"), makePage<CarInfoItem60_2>},
        {QT_TRANSLATE_NOOP("CarExView60", "Original vehicle vehicle information 2"), makePage<CarInfoItem60_3>},
        {QT_TRANSLATE_NOOP("CarExView60", "Amplifier information"), makePage<CarInfoItem60_4>},
        {QT_TRANSLATE_NOOP("CarExView60", "CD status information"), makePage<CarInfoItem60_5>},
        {QT_TRANSLATE_NOOP("CarExView60", "Panorama information"), makePage<CarInfoItem60_6>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView60::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    timer->stop(); // before the requests go out
    pageRequests().send(index);
    restartOn(timer, index, {0, 2}, 1500);
}

void CarExView60::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView60::onCountdown()
{
    countdown(timer, polling(), currentIndex);
}
