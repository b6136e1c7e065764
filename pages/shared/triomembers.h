#ifndef TRIOMEMBERS_H
#define TRIOMEMBERS_H

// A family of decoder boxes reports the same three data sets whatever the
// car, so seventeen protocols open with the same trio of pages: "Voice
// control feedback", "Function recognition" and "Vehicle Information". The
// pages are written once (triopages.h); this table holds what differs from
// one protocol to the next.
//
// Offsets: the layout that most members use puts the vehicle fields at 4 to
// 104, the function flags at 108 to 144 and the voice states at 145 to 152.
// A member moves each of the three blocks as a whole.

// How a member's trio pages speak to the decoder box.
enum TrioFrames {
    TrioFrames2E,   // 2E command length payload ck
    TrioFramesFD    // the 0xFD family with two checksum bytes
};

// The ids of the rows of a member's pages.
enum TrioRowIds {
    TrioNoIds,      // rows built without id
    TrioIdsSkip34,  // id is the row's index; on the vehicle page from row 34
                    // on it is the index plus one (id 34 is never used)
    TrioIdsByIndex  // id is the row's index on every page
};

// What a step on the function page does; none of its rows has arrows, so it
// only happens when something calls the page's onValueChanged.
enum TrioFunctionStep {
    TrioFunctionSkeleton,   // the skeleton frame goes out, the row stays
    TrioFunctionShowsStep   // the frame goes out and the row moves at once
};

struct TrioMember
{
    int protocol;
    // Indices of the voice, function and vehicle pages in the member's stack.
    int voiceIndex;
    int functionIndex;
    int vehicleIndex;
    // First byte of the function flags, of the voice states, and where the
    // vehicle fields begin (4 in the common layout).
    int functionOffset;
    int voiceOffset;
    int vehicleOffset;
    // Rows of the function page, and rows of the common vehicle list that the
    // member shows (the first ones).
    int functionRows;
    int vehicleRows;
    TrioFrames frames;
    TrioRowIds rowIds;
    // Levels of the wiper row beyond "Don't scratch".
    int wiperLevels;
    TrioFunctionStep functionStep;
    // Whether the vehicle page's skeleton frame goes out; where it doesn't,
    // a step there is prepared and dropped.
    bool vehicleSends;
    // A last vehicle row "Vehicle settings", an empty text.
    bool vehicleSettingsRow;
};

namespace Trio {

// The full lengths of the lists.
const int VoiceRows = 8;
const int FunctionRows = 37;
const int VehicleRows = 40;
// Where the vehicle fields begin in the common layout.
const int CommonVehicleOffset = 4;

// The member of this protocol id, or null.
TrioMember const *member(int protocol);
// All members, by protocol id.
TrioMember const *members();
int memberCount();

} // namespace Trio

#endif // TRIOMEMBERS_H
