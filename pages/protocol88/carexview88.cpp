#include "carexview88.h"

#include "carinfoitem.h"
#include "frames.h"
#include "pages88.h"
#include "requests.h"

using namespace Requests;

namespace {

// 2E F1 01 code: the request of this family.
FrameList f1(std::initializer_list<int> codes)
{
    FrameList frames;
    for (int code : codes)
        frames.append(Frames::make2E(0xF1, {code}));
    return frames;
}

Table const &pageRequests()
{
    static const Table table({
        {0, f1({0x01, 0x0B})},
        {1, f1({0x06})},
        {2, f1({0x07})},
        {3, f1({0x10})},
        {4, f1({0x19})},
        {5, f1({0x31})},
        {6, f1({0x32})},
        {7, f1({0x33})},
    }, f1({0x00}));
    return table;
}

} // namespace

CarExView88::CarExView88(QWidget *parent)
    : CarExViewBase(parent)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView88", "body information"), makePage<CarInfoItem88_1>},
        {QT_TRANSLATE_NOOP("CarExView88", "Rear seat air conditioner information"), makePage<CarInfoItem88_2>},
        {QT_TRANSLATE_NOOP("CarExView88", "Vehicle Control Information 1"), makePage<CarInfoItem88_3>},
        {QT_TRANSLATE_NOOP("CarExView88", "CD status information"), makePage<CarInfoItem88_4>},
        {QT_TRANSLATE_NOOP("CarExView88", "Vehicle Control Information 3"), makePage<CarInfoItem88_5>},
        {QT_TRANSLATE_NOOP("CarExView88", "Amplifier status"), makePage<CarInfoItem88_6>},
        {QT_TRANSLATE_NOOP("CarExView88", "performance control system"), makePage<CarInfoItem88_7>},
        {QT_TRANSLATE_NOOP("CarExView88", "Hybrid information"), makePage<CarInfoItem88_8>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView88::showIndex(int index)
{
    raisePage(index);
    pageRequests().send(index);
}

void CarExView88::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
