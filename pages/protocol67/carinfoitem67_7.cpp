#include "carinfoitem67_7.h"

#include "family67.h"

CarInfoItem67_7::CarInfoItem67_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_7::rowTable() const
{
    return Family67::numbered(QList<Row>()
        << Row::text("electricity").textAt(288)
        << Row::text("gasoline").textAt(292)
        << Row::text("total mileage").textAt(296)
        << Row::text("battery percentage").textAt(300)
        << Row::text("Estimated charging time-cradle charging").textAt(304)
        << Row::text("Estimated charging time-portable charging").textAt(308)
        << Row::of(NumberKind, "battery power", {0, 8}).at(312)
        << Row::choice("Energy flowchart UI", {"UI0 Hybrid Mode", "UI1 Idle Mode", "UI2 Motor Running",
                                               "UI3 Hybrid Mode", "UI4 Engine Running", "UI5 Charging",
                                               "UI6 Charging", "UI7 Transmitter Braking", "UI8 Charging",
                                               "UI9 is charging", "UI10 is charging", "UI11 is charging"})
               .at(313));
}

void CarInfoItem67_7::valueStepped(int, int)
{
    sendFrame(Family67::skeleton());
}
