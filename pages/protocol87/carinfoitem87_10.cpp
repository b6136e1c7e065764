#include "pages87.h"

namespace {

// The graphs' grids: six of power consumption, six of recovery, both on a
// scale of 30, and six of fuel consumption on a scale of 10.
const int FirstGridByte = 180;
const int Grids = 18;
const int PowerGrids = 12;

const char *const GridTitles[Grids] = {
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Power consumption first grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Power consumption second grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Power consumption third grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Power consumption fourth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Power consumption fifth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Power consumption sixth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Recycle the first grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Recycle the second grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Recycle the third grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Recycle the fourth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Recycle the fifth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Recycle the sixth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Fuel consumption first grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Fuel consumption second grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Fuel consumption third grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Fuel consumption fourth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Fuel consumption fifth grid"),
    QT_TRANSLATE_NOOP("CarInfoItem87_10", "Fuel consumption sixth grid")};

} // namespace

QList<Row> CarInfoItem87_10::rowTable() const
{
    QList<Row> rows;
    rows << Row::choice("Power consumption graph-X axis spacing", {"0~60min", "0~180min"}).id(0).at(168)
         << Row::choice("Fuel consumption graph-X axis spacing", {"0~60min", "0~180min"}).id(1).at(169)
         << Row::text("Average power consumption").id(2).textAt(172)
         << Row::text("Average fuel consumption").id(3).textAt(176);
    for (int i = 0; i < Grids; ++i)
        rows << Row::of(NumberKind, GridTitles[i], {0, i < PowerGrids ? 30 : 10}).id(4 + i).at(FirstGridByte + i);
    return rows;
}
