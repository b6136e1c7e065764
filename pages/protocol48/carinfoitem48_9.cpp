#include "pages48.h"

#include "../shared/tyrerows.h"
#include "frames.h"

namespace {

Row tyreAlarm(const char *title, Row::Reader reader)
{
    return Row::choice(title, {"normal", "High voltage warning", "Low pressure warning", "Rapid leakage",
                               "Loss of signal", "Low sensor power", "Sensor error",
                               "Low pressure warning and quick leak"}).read(reader);
}

} // namespace

QList<Row> CarInfoItem48_9::rowTable() const
{
    // Everything on this page comes from the tyre record inside the climate
    // record; the alarms are the wheels' status bytes.
    using namespace TyreRows;
    typedef TirePressureInformation Tyres;
    return pressureRows()
        << temperatureRow("Front left tire pressure temperature", temperature<Tyres::FrontLeft>)
        << temperatureRow("Front right tire temperature", temperature<Tyres::FrontRight>)
        << temperatureRow("Rear left tire temperature", temperature<Tyres::RearLeft>)
        << temperatureRow("Rear right tire temperature", temperature<Tyres::RearRight>)
        << tyreAlarm("Front left tire", status<Tyres::FrontLeft>)
        << tyreAlarm("Front right tire", status<Tyres::FrontRight>)
        << tyreAlarm("Rear left tire", status<Tyres::RearLeft>)
        << tyreAlarm("Rear right tire", status<Tyres::RearRight>);
}

void CarInfoItem48_9::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare frame of the
    // setting command, its value bytes unwritten.
    sendFrame(Frames::make2E(0xC6, {0xA7, 0x00, 0x00}));
}
