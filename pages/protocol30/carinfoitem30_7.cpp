#include "pages30.h"

#include "frames.h"

QList<Row> CarInfoItem30_7::rowTable() const
{
    return QList<Row>()
        << Row::text("Average speed").textAt(0)
        << Row::text("Driving time").textAt(4)
        << Row::text("Continuous mileage").textAt(8)
        << Row::choice("Unit of measure", {"Don't show", "MILE", "KM"}).at(12)
        << Row::choice("Instantaneous fuel consumption-unit of measure", {"MPG", "KM/L", "L/100KM"}).at(13)
        << Row::text("Instantaneous fuel consumption").textAt(16)
        << Row::choice("Electric back door", {"Door open", "Door closed"}).at(20)
        << Row::choice("MovingDirectionOfElectricRearDoor", {"Outside", "Inside"}).at(21);
}

void CarInfoItem30_7::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare frame.
    sendFrame(Frames::make2E(0xA0, {0x00, 0x00}));
}
