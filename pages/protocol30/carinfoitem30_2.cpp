#include "pages30.h"

QList<Row> CarInfoItem30_2::rowTable() const
{
    return QList<Row>()
        << Row::choice("Hybrid electric vehicle", {"without", "Have"}).at(187)
        << Row::choice("Wheel drive motor", {"without", "Have"}).at(189)
        << Row::choice("Battery driven motor", {"without", "Have"}).at(190)
        << Row::choice("Engine driven wheels", {"without", "Have"}).at(191)
        << Row::choice("Engine drive motor", {"without", "Have"}).at(192)
        << Row::choice("Motor drive wheels", {"without", "Have"}).at(193)
        << Row::choice("Motor drive battery", {"without", "Have"}).at(194)
        << Row::of(NumberKind, "Battery power", {0, 15}).at(188);
}
