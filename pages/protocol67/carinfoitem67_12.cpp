#include "carinfoitem67_12.h"

#include "../shared/tyrerows.h"
#include "family67.h"

namespace {

// Pressures from bytes 108 to 120 of the climate record, temperatures from
// bytes 139 to 142 with 40 for 0 degrees: without a record, the zero point.
const int ZeroDegrees = 40;

// A temperature counted from the zero point.
Row shiftedTemperatureRow(const char *title, Row::Reader reader)
{
    return Row::of(TemperatureKind, title, {0, ZeroDegrees, 255}).read(reader);
}

// The sensor states lie in the protocol's own buffer from byte 176 on:
// four fault rows, then four rows for each wheel.
const int FirstStateByte = 176;

QList<Row> stateRows()
{
    static const char *const faults[] = {
        "Rear right sensor fault status", "Rear left sensor fault status",
        "Front right sensor fault status", "Front left sensor fault status"};
    struct Wheel {
        const char *battery;
        const char *temperature;
        const char *pressure;
        const char *airLeak;
    };
    static const Wheel wheels[] = {
        {"Front left tire-battery status", "Front left tire-sensor temperature status",
         "Front left tire-sensor pressure status", "Front left tire-airLeak detection"},
        {"front right tire--battery status", "front right tire-sensor temperature status",
         "front right tire-sensor pressure status", "front right tire-air leak detection"},
        {"rear left tire-battery status", "rear left tire-sensor temperature status",
         "rear left tire-sensor pressure status", "rear left tire-air leak detection"},
        {"rear right tire-battery status", "rear right tire-sensor temperature status",
         "rear right tire-sensor pressure status", "rear right tire-air leak detection"}};

    QList<Row> rows;
    int offset = FirstStateByte;
    for (const char *fault : faults)
        rows << Row::choice(fault, {"No trouble", "malfunction"}).at(offset++);
    for (Wheel const &wheel : wheels) {
        rows << Row::choice(wheel.battery, {"battery is normal", "battery is too low"}).at(offset);
        rows << Row::choice(wheel.temperature, {"normal", "slightly higher", "Severely high"}).at(offset + 1);
        rows << Row::choice(wheel.pressure,
                            {"normal", "Severely low", "slightly lower", "slightly higher", "Severely high"})
                    .at(offset + 2);
        rows << Row::choice(wheel.airLeak, {"No air leakage", "air leak"}).at(offset + 3);
        offset += 4;
    }
    return rows;
}

} // namespace

CarInfoItem67_12::CarInfoItem67_12(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_12::rowTable() const
{
    using namespace TyreRows;
    typedef TirePressureInformation Tyres;
    return Family67::numbered(pressureRows()
        << shiftedTemperatureRow("Temperature-front reft", temperature<Tyres::FrontLeft, ZeroDegrees>)
        << shiftedTemperatureRow("Temperature-front right", temperature<Tyres::FrontRight, ZeroDegrees>)
        << shiftedTemperatureRow("Temperature-back left", temperature<Tyres::RearLeft, ZeroDegrees>)
        << shiftedTemperatureRow("Temperature-back right", temperature<Tyres::RearRight, ZeroDegrees>)
        << stateRows());
}

void CarInfoItem67_12::valueStepped(int, int)
{
    sendFrame(Family67::skeleton());
}
