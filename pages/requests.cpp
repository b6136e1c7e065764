#include "requests.h"

#include "frames.h"

#include <QTimer>

namespace Requests {

namespace {

const int FdRequestCommand = 0x8F;
const int VoiceGroup = 0x7D;
const int FunctionGroup = 0x7E;
const int VoiceStateQualifier = 0xEF;
const int LastVehiclePart = 0x10;

} // namespace

FrameList r1(std::initializer_list<int> groups)
{
    FrameList frames;
    for (int group : groups)
        frames.append(Frames::request1(group));
    return frames;
}

FrameList r2(std::initializer_list<int> groups)
{
    FrameList frames;
    for (int group : groups)
        frames.append(Frames::request(group));
    return frames;
}

FrameList r2q(int group, std::initializer_list<int> qualifiers)
{
    FrameList frames;
    for (int qualifier : qualifiers)
        frames.append(Frames::request(group, qualifier));
    return frames;
}

FrameList r2Series(int group, int first, int last)
{
    FrameList frames;
    for (int qualifier = first; qualifier <= last; ++qualifier)
        frames.append(Frames::request(group, qualifier));
    return frames;
}

FrameList r3(std::initializer_list<int> groups)
{
    FrameList frames;
    for (int group : groups)
        frames.append(Frames::request3(group));
    return frames;
}

FrameList fd8F(std::initializer_list<int> codes)
{
    FrameList frames;
    for (int code : codes)
        frames.append(Frames::makeFD(FdRequestCommand, {code}));
    return frames;
}

FrameList voice()
{
    return r2q(VoiceGroup, {VoiceStateQualifier});
}

FrameList function()
{
    return r2({FunctionGroup});
}

FrameList vehicle()
{
    return r2Series(VoiceGroup, 0, LastVehiclePart);
}

void send(FrameList const &frames)
{
    for (int i = 0; i < frames.size(); ++i)
        Frames::send(frames.at(i));
}

Table::Table(std::initializer_list<Entry> entries, FrameList const &otherwise)
    : m_entries(entries)
    , m_otherwise(otherwise)
{
}

bool Table::lists(int index) const
{
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).index == index)
            return true;
    }
    return false;
}

FrameList Table::frames(int index) const
{
    for (int i = 0; i < m_entries.size(); ++i) {
        if (m_entries.at(i).index == index)
            return m_entries.at(i).frames;
    }
    return m_otherwise;
}

void Table::send(int index) const
{
    Requests::send(frames(index));
}

void restartOn(QTimer *timer, int index, std::initializer_list<int> pages, int interval)
{
    timer->stop();
    for (int page : pages) {
        if (page == index) {
            timer->start(interval);
            return;
        }
    }
}

void countdown(QTimer *timer, Table const &table, int index)
{
    if (table.lists(index))
        table.send(index);
    else
        timer->stop();
}

void idleCountdown(QTimer *timer, int index)
{
    static const Table runsOn = {{5, FrameList()}};
    countdown(timer, runsOn, index);
}

Table const &parkingAndBodyPolling()
{
    static const Table table = {
        {0, r1({0x25})},
        {1, FrameList()},
        {2, r1({0x14, 0x16}) + r2q(0x41, {0x02, 0x03})},
    };
    return table;
}

} // namespace Requests
