#include "pages87.h"

namespace {

// A path of the energy flow: lit or not.
Row path(int id, const char *title)
{
    return Row::choice(title, {"Bright"}).id(id).at(157 + id);
}

} // namespace

QList<Row> CarInfoItem87_9::rowTable() const
{
    return QList<Row>()
        << Row::choice("model", {"Standard", "Sport", "Comfort", "Economy", "Sand", "Mud", "Snow", "Electric",
                                 "4WD", "Hybrid"}).id(0).at(157)
        << path(1, "engine")
        << path(2, "The engine charges the battery")
        << path(3, "battery driven front wheels")
        << path(4, "battery driven rear wheel")
        << path(5, "Front wheel brake energy recovery")
        << path(6, "Rear brake energy recovery")
        << path(7, "engine driven front wheels")
        << Row::choice("tire rolling", {"still", "scroll"}).id(8).at(165);
}
