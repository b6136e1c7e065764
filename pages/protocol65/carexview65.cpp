#include "carexview65.h"

#include "carinfoitem.h"
#include "pages65.h"
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
        {3, r1({0x74})},
        {4, r1({0x72, 0x73})},
        {5, r1({0x70, 0x71})},
        {6, r1({0x60, 0x61, 0x62})},
        {7, r1({0x52})},
        {8, r1({0x50, 0x51})},
        {9, r1({0x41})},
        {10, r1({0x40})},
        {11, r1({0x31})},
        {12, r1({0x27, 0x30})},
        {13, r1({0x26})},
    };
    return table;
}

} // namespace

CarExView65::CarExView65(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView65", "Voice control feedback"), makePage<CarInfoItem65_1>},
        {QT_TRANSLATE_NOOP("CarExView65", "Function recognition"), makePage<CarInfoItem65_2>},
        {QT_TRANSLATE_NOOP("CarExView65", "Vehicle Information"), makePage<CarInfoItem65_3>},
        {QT_TRANSLATE_NOOP("CarExView65", "Security Settings Status Information"), makePage<CarInfoItem65_4>},
        {QT_TRANSLATE_NOOP("CarExView65", "Original car radio status information"), makePage<CarInfoItem65_5>},
        {QT_TRANSLATE_NOOP("CarExView65", "Original car amplifier settings"), makePage<CarInfoItem65_6>},
        {QT_TRANSLATE_NOOP("CarExView65", "CD/DVD media information"), makePage<CarInfoItem65_7>},
        {QT_TRANSLATE_NOOP("CarExView65", "i-stop information"), makePage<CarInfoItem65_8>},
        {QT_TRANSLATE_NOOP("CarExView65", "fuel information"), makePage<CarInfoItem65_9>},
        {QT_TRANSLATE_NOOP("CarExView65", "set item status"), makePage<CarInfoItem65_10>},
        {QT_TRANSLATE_NOOP("CarExView65", "driving display"), makePage<CarInfoItem65_11>},
        {QT_TRANSLATE_NOOP("CarExView65", "Maintenance information"), makePage<CarInfoItem65_12>},
        {QT_TRANSLATE_NOOP("CarExView65", "Basic Information"), makePage<CarInfoItem65_13>},
        {QT_TRANSLATE_NOOP("CarExView65", "Tire pressure display"), makePage<CarInfoItem65_14>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView65::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView65::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView65::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
