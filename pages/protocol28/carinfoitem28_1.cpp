#include "carinfoitem28_1.h"

#include "../shared/climaterows.h"
#include "frames.h"
#include "requests.h"

CarInfoItem28_1::CarInfoItem28_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
    // A status page: a step moves the row and tells the car nothing.
    setShowsStepAtOnce(true);
}

QList<Row> CarInfoItem28_1::rowTable() const
{
    return QList<Row>()
        << Row::choice("Rear radar working status", {"close", "open"}).at(36)
        << Row::choice("Front radar working status", {"close", "open"}).at(37)
        << Row::choice("Park assist system status", {"close", "open"}).at(38)
        << Row::choice("Radar sound state", {"silent", "Vocalize"}).at(39)
        << Row::text("Ambient temperature information").read(ClimateRows::outsideTemperature)
        << Row::of(NumberKind, "Screen brightness value", {0, 255}).at(40)
        << Row::of(NumberKind, "Key brightness value", {0, 255}).at(41)
        << Row::choice("PM 2.5 Value in tthe ccar",
                       {"Green", "yellow", "orange", "red", "purple", "dark red", "white"}).at(42)
        << Row::text("Vehicle reminder 1").textAt(44)
        << Row::text("Vehicle reminder 2").textAt(48)
        << Row::text("Vehicle reminder 3").textAt(52)
        << Row::text("Vehicle reminder 4").textAt(56)
        << Row::text("Vehicle reminder 5").textAt(60)
        << Row::text("Vehicle reminder 6").textAt(64)
        << Row::choice("Start-stop system", {"deactivated", "activated"}).at(68)
        << Row::text("Conv.Consumers prompt message 1").textAt(72)
        << Row::text("Conv.Consumers prompt message 2").textAt(76)
        << Row::text("Conv.Consumers prompt message 3").textAt(80);
}

void CarInfoItem28_1::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x25, 0x27, 0x14, 0x2A, 0x60, 0x62});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
