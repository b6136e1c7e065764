#include "pages30.h"

#include "frames.h"

QList<Row> CarInfoItem30_6::rowTable() const
{
    return QList<Row>()
        << Row::choice("Unit of measure", {"MPG", "KM/L", "L/100KM"}).at(24)
        << Row::text("Current trip fuel consumption").textAt(28)
        << Row::text("Stroke 1 fuel consumption").textAt(32)
        << Row::text("Stroke 2 fuel consumption").textAt(36)
        << Row::text("Stroke 3 fuel consumption").textAt(40)
        << Row::text("Stroke 4 fuel consumption").textAt(44)
        << Row::text("Stroke 5 fuel consumption").textAt(48);
}

void CarInfoItem30_6::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare frame.
    sendFrame(Frames::make2E(0xA0, {0x00, 0x00}));
}
