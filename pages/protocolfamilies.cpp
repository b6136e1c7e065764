#include "catalogue.h"

// Which page family serves which protocol ids. This table holds no page
// code, so that tools can list the vehicles without linking the pages.

namespace {

// A run of protocol ids served by one page family.
struct IdBlock
{
    int first;
    int last;
    int family;
};

// In ascending order of ids, without overlaps.
const IdBlock idBlocks[] = {
    {28, 28, 28},
    {29, 29, 29},
    {30, 30, 30},
    {31, 31, 31},
    {32, 32, 32},
    {33, 33, 33},
    {34, 34, 34},
    {35, 35, 35},
    {36, 36, 36},
    {37, 39, 37},
    {40, 40, 40},
    {42, 42, 42},
    {43, 44, 43},
    {45, 47, 45},
    {48, 48, 48},
    {49, 49, 49},
    {50, 51, 30},
    {53, 53, 31},
    {54, 54, 32},
    {55, 55, 45},
    {56, 56, 56},
    {57, 57, 33},
    {60, 62, 60},
    {64, 64, 64},
    {65, 65, 65},
    {66, 66, 66},
    {67, 67, 67},
    {68, 68, 68},
    {69, 69, 69},
    {70, 70, 70},
    {71, 71, 71},
    {72, 72, 72},
    {74, 77, 74},
    {78, 78, 78},
    {79, 79, 79},
    {80, 80, 80},
    {81, 81, 81},
    {82, 82, 82},
    {84, 84, 84},
    {85, 85, 81},
    {86, 86, 86},
    {87, 87, 87},
    {88, 92, 88},
    {93, 93, 93},
    {94, 95, 94},
    {96, 96, 96},
    {97, 97, 97},
    {98, 98, 98},
    {99, 100, 99},
    {101, 101, 74},
    {102, 102, 102},
    {103, 104, 103},
    {105, 105, 105},
    {122, 122, 122},
    {123, 123, 123},
    {124, 124, 124},
};

IdBlock const *blockOf(int protocolId)
{
    for (IdBlock const &block : idBlocks) {
        if (protocolId >= block.first && protocolId <= block.last)
            return &block;
    }
    return 0;
}

} // namespace

namespace Catalogue {

QList<int> protocolIds()
{
    QList<int> ids;
    for (IdBlock const &block : idBlocks) {
        for (int id = block.first; id <= block.last; ++id)
            ids.append(id);
    }
    return ids;
}

int familyOf(int protocolId)
{
    IdBlock const *block = blockOf(protocolId);
    return block ? block->family : 0;
}

} // namespace Catalogue
