#include "carexview67.h"

#include "carinfoitem.h"
#include "frames.h"
#include "pages67.h"
#include "requests.h"

#include <QTimer>

using namespace Requests;

namespace {

// FD 06 90 group qualifier ck ck: the request of this family, whose
// checksum takes two bytes.
FrameList fd90(std::initializer_list<int> groups, int qualifier = 0)
{
    FrameList frames;
    for (int group : groups)
        frames.append(Frames::makeFD(0x90, {group, qualifier}, 2));
    return frames;
}

// The seventeen parts of the vehicle information, asked with length and
// command in each other's place: FD 90 06 7D part ck ck.
FrameList swappedVehicle()
{
    FrameList frames;
    for (int part = 0; part <= 0x10; ++part)
        frames.append(Frames::exact({0xFD, 0x90, 0x06, 0x7D, part, 0x00, 0x00}));
    return frames;
}

Table const &pageRequests()
{
    static const Table table({
        {0, fd90({0x7E}, 0xEF)}, // the voice state, asked of group 7E
        {1, fd90({0x7E})},
        {2, swappedVehicle()},
        {3, fd90({0x00})},
        {4, fd90({0x57})},
        {5, fd90({0x56})},
        {6, fd90({0x55})},
        {7, fd90({0x54})},
        {8, fd90({0x53})},
        {9, fd90({0x52})},
        {10, fd90({0x40, 0x41, 0x42})},
        {11, fd90({0x09, 0x08})},
        {12, fd90({0x01, 0x07, 0x51})},
    }, fd90({0x00}));
    return table;
}

} // namespace

CarExView67::CarExView67(QWidget *parent)
    : CarExViewBase(parent)
    , timer(0)
    , currentIndex(0)
{
    static const PageEntry pages[] = {
        {QT_TRANSLATE_NOOP("CarExView67", "Voice control feedback"), makePage<CarInfoItem67_1>},
        {QT_TRANSLATE_NOOP("CarExView67", "Function recognition"), makePage<CarInfoItem67_2>},
        {QT_TRANSLATE_NOOP("CarExView67", "Vehicle Information"), makePage<CarInfoItem67_3>},
        {QT_TRANSLATE_NOOP("CarExView67", "Amplifier Information"), makePage<CarInfoItem67_4>},
        {QT_TRANSLATE_NOOP("CarExView67", "New energy setting information 5"), makePage<CarInfoItem67_5>},
        {QT_TRANSLATE_NOOP("CarExView67", "New energy setting information 4"), makePage<CarInfoItem67_6>},
        {QT_TRANSLATE_NOOP("CarExView67", "New energy setting information 3"), makePage<CarInfoItem67_7>},
        {QT_TRANSLATE_NOOP("CarExView67", "New energy setting information 2"), makePage<CarInfoItem67_8>},
        {QT_TRANSLATE_NOOP("CarExView67", "New energy setting information 1"), makePage<CarInfoItem67_9>},
        {QT_TRANSLATE_NOOP("CarExView67", "vehicle setup command"), makePage<CarInfoItem67_10>},
        {QT_TRANSLATE_NOOP("CarExView67", "Panoramic image status"), makePage<CarInfoItem67_11>},
        {QT_TRANSLATE_NOOP("CarExView67", "Tire pressure information"), makePage<CarInfoItem67_12>},
        {QT_TRANSLATE_NOOP("CarExView67", "Basic body information"), makePage<CarInfoItem67_13>},
    };
    addPages(pages, int(sizeof pages / sizeof pages[0]));

    timer = new QTimer(this);
    connect(timer, SIGNAL(timeout()), this, SLOT(onCountdown()));
}

void CarExView67::showIndex(int index)
{
    currentIndex = index;
    raisePage(index);
    pageRequests().send(index);
}

void CarExView67::setData(QVariant const &)
{
    if (CarInfoItem *page = currentPage())
        page->ondataChanged();
}

void CarExView67::onCountdown()
{
    idleCountdown(timer, currentIndex);
}
