#include "pages48.h"

#include "airdata.h"
#include "canobj.h"
#include "frames.h"

namespace {

// Everything on this page comes from the tyre record inside the climate
// record. Without a record the texts are empty and the choices show nothing.
TirePressureInformation const *tyres()
{
    AirData const *air = CanObj::instance()->getAirData();
    return air ? &air->tirePressure : 0;
}

template <QString TirePressureInformation::*Pressure>
QVariant pressure(DataBuffer const &)
{
    TirePressureInformation const *record = tyres();
    return record ? record->*Pressure : QString();
}

template <int Wheel>
QVariant temperature(DataBuffer const &)
{
    TirePressureInformation const *record = tyres();
    return record ? int(record->temperature[Wheel]) : 0;
}

template <int Wheel>
QVariant alarm(DataBuffer const &)
{
    TirePressureInformation const *record = tyres();
    return record ? int(record->status[Wheel]) : -1;
}

// The tyre temperatures are whole degrees Celsius.
const int Celsius = 0;

Row tyreTemperature(const char *title, Row::Reader reader)
{
    return Row::of(TemperatureKind, title, {0, 255}).read(reader).unit(Celsius);
}

Row tyreAlarm(const char *title, Row::Reader reader)
{
    return Row::choice(title, {"normal", "High voltage warning", "Low pressure warning", "Rapid leakage",
                               "Loss of signal", "Low sensor power", "Sensor error",
                               "Low pressure warning and quick leak"}).read(reader);
}

} // namespace

QList<Row> CarInfoItem48_9::rowTable() const
{
    typedef TirePressureInformation Tyres;
    return QList<Row>()
        << Row::text("Left front tire pressure value").read(pressure<&Tyres::frontLeftPressure>)
        << Row::text("Right front tire pressure value").read(pressure<&Tyres::frontRightPressure>)
        << Row::text("Left rear tire pressure value").read(pressure<&Tyres::rearLeftPressure>)
        << Row::text("Right rear tire pressure value").read(pressure<&Tyres::rearRightPressure>)
        << tyreTemperature("Front left tire pressure temperature", temperature<Tyres::FrontLeft>)
        << tyreTemperature("Front right tire temperature", temperature<Tyres::FrontRight>)
        << tyreTemperature("Rear left tire temperature", temperature<Tyres::RearLeft>)
        << tyreTemperature("Rear right tire temperature", temperature<Tyres::RearRight>)
        << tyreAlarm("Front left tire", alarm<Tyres::FrontLeft>)
        << tyreAlarm("Front right tire", alarm<Tyres::FrontRight>)
        << tyreAlarm("Rear left tire", alarm<Tyres::RearLeft>)
        << tyreAlarm("Rear right tire", alarm<Tyres::RearRight>);
}

void CarInfoItem48_9::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare frame of the
    // setting command, its value bytes unwritten.
    sendFrame(Frames::make2E(0xC6, {0xA7, 0x00, 0x00}));
}
