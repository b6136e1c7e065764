#include "carexview69.h"

#include "carinfoitem.h"
#include "pages69.h"
#include "requests.h"

using namespace Requests;

namespace {

Table const &pageRequests()
{
    static const Table table = {
        {0, r2({0x11, 0x3C, 0x3D})},
        {1, r2({0x38, 0x39})},
        {2, r2({0x3A})},
        {3, r2({0x3B, 0x50})},
        {4, r2({0x3E})},
        {5, r2({0x40})},
    };
    return table;
}

} // namespace

CarExView69::CarExView69(QWidget *parent)
    : CarExViewBase(parent)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView69", "vehicle settings"), makePage<CarInfoItem69_1>},
        {QT_TRANSLATE_NOOP("CarExView69", "Tire pressure information"), makePage<CarInfoItem69_2>},
        {QT_TRANSLATE_NOOP("CarExView69", "Original car setting item information feedback"), makePage<CarInfoItem69_3>},
        {QT_TRANSLATE_NOOP("CarExView69", "360 panoramic information feedback"), makePage<CarInfoItem69_4>},
        {QT_TRANSLATE_NOOP("CarExView69", "energy information"), makePage<CarInfoItem69_5>},
        {QT_TRANSLATE_NOOP("CarExView69", "Original car setting item information 2"), makePage<CarInfoItem69_6>},
        {QT_TRANSLATE_NOOP("CarExView69", "Dashcam settings"), makePage<CarInfoItem69_7>},
        {QT_TRANSLATE_NOOP("CarExView69", "voice control"), makePage<CarInfoItem69_8>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));
}

void CarExView69::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView69::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}
