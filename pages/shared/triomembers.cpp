#include "triomembers.h"

namespace Trio {

namespace {

// protocol, indices (voice, function, vehicle), offsets (function, voice,
// vehicle), rows (function, vehicle), frames, ids, wiper levels, function
// step, vehicle page sends, "Vehicle settings" row.
//
// 32 and 33 lack the last four function flags and the last five vehicle
// rows (the window percentages); 32 shows "Vehicle settings" in their place.
// 67 speaks 0xFD and numbers its rows by index throughout. 72 and 64 know
// five wiper levels, move the function row at once and keep the vehicle
// page's frame to themselves.
const TrioMember table[] = {
    {32, 1, 2, 5, 126, 159, 4, 33, 35, TrioFrames2E, TrioNoIds, 7, TrioFunctionSkeleton, true, true},
    {33, 1, 2, 5, 208, 241, 112, 33, 35, TrioFrames2E, TrioNoIds, 7, TrioFunctionSkeleton, true, false},
    {56, 1, 2, 3, 148, 185, 40, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {64, 1, 2, 5, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 5, TrioFunctionShowsStep, false, false},
    {65, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {67, 0, 1, 2, 108, 145, 4, 37, 40, TrioFramesFD, TrioIdsByIndex, 7, TrioFunctionSkeleton, true, false},
    {70, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {71, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {72, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 5, TrioFunctionShowsStep, false, false},
    {74, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {78, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {79, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {96, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {97, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {102, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {105, 0, 1, 2, 108, 145, 4, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
    {122, 5, 6, 7, 212, 249, 108, 37, 40, TrioFrames2E, TrioIdsSkip34, 7, TrioFunctionSkeleton, true, false},
};

const int count = int(sizeof table / sizeof table[0]);

} // namespace

TrioMember const *member(int protocol)
{
    for (int i = 0; i < count; ++i) {
        if (table[i].protocol == protocol)
            return &table[i];
    }
    return 0;
}

TrioMember const *members()
{
    return table;
}

int memberCount()
{
    return count;
}

} // namespace Trio
