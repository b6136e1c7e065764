#include "carinfoitem67_8.h"

#include "family67.h"

namespace {

const int ResetRow = 6;

QVariant resetText(DataBuffer const &)
{
    return CarInfoItem67_8::tr("reset");
}

} // namespace

CarInfoItem67_8::CarInfoItem67_8(QString const &title, QWidget *parent)
    : MiddleRowPage(title, parent)
{
}

QList<Row> CarInfoItem67_8::rowTable() const
{
    return Family67::numbered(QList<Row>()
        << Row::of(NumberKind, "ECO level", {0, 8}).at(264)
        << Row::text("average energy consumption").textAt(268)
        << Row::text("Hybrid fuel consumption").textAt(272)
        << Row::text("Motor energy consumption").textAt(276)
        << Row::text("total mileage").textAt(280)
        << Row::text("Energy consumption record").textAt(284)
        << Row::text("Energy information: initialization").read(resetText));
}

void CarInfoItem67_8::middlePressed(int row)
{
    // FD 06 A9 00 01: initialise the energy information.
    if (row >= 0 && row < list.size() && rowKey(row) == ResetRow)
        sendFrame(Family67::frame(0xA9, {0x00, 0x01}));
}
