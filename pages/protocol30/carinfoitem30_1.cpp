#include "pages30.h"

#include "../shared/tyrerows.h"
#include "frames.h"

QList<Row> CarInfoItem30_1::rowTable() const
{
    // The pressures come from the tyre record inside the climate record.
    return TyreRows::pressureRows()
        << Row::text("Spare tire").read(TyreRows::pressure<TyreRows::Spare>)
        << Row::text("Instantaneous power consumption").textAt(144)
        << Row::text("One way distance").textAt(148)
        << Row::choice("TPMS status information", {"No TPMS device", "Have TPMS equipment"}).at(152)
        << Row::choice("TPMS alarm screen", {"normal status", "Show alarm screen"}).at(153)
        << Row::choice("TPMS spare tire", {"Don't show", "show"}).at(154)
        << Row::choice("TPMS tire display mode", {"Line up", "Show a car"}).at(155)
        << Row::choice("TPMS unit", {"BAR", "PSI", "KPA"}).at(156);
}

void CarInfoItem30_1::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare setting frame.
    sendFrame(Frames::make2E(0xC6, {0x00, 0x00}));
}
