#include "carinfoitem67_12.h"

#include "../shared/tyrerows.h"
#include "family67.h"

namespace {

// Pressures from bytes 108 to 120 of the climate record, temperatures from
// bytes 139 to 142 with 40 for 0 degrees: without a record, the zero point.
const int ZeroDegrees = 40;

// The sensor states would lie at bytes 176 to 195, beyond the end of the
// climate record: nothing is read there, and the rows show no option.
QVariant beyondRecord(DataBuffer const &)
{
    return -1;
}

// A temperature counted from the zero point.
Row shiftedTemperatureRow(const char *title, Row::Reader reader)
{
    return Row::of(TemperatureKind, title, {0, ZeroDegrees, 255}).read(reader);
}

Row stateRow(const char *title, std::initializer_list<const char *> options)
{
    return Row::choice(title, options).read(beyondRecord);
}

Row sensorFault(const char *title) { return stateRow(title, {"No trouble", "malfunction"}); }
Row battery(const char *title) { return stateRow(title, {"battery is normal", "battery is too low"}); }
Row temperatureState(const char *title) { return stateRow(title, {"normal", "slightly higher", "Severely high"}); }
Row airLeak(const char *title) { return stateRow(title, {"No air leakage", "air leak"}); }
Row pressureState(const char *title)
{
    return stateRow(title, {"normal", "Severely low", "slightly lower", "slightly higher", "Severely high"});
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
        << sensorFault("Rear right sensor fault status")
        << sensorFault("Rear left sensor fault status")
        << sensorFault("Front right sensor fault status")
        << sensorFault("Front left sensor fault status")
        << battery("Front left tire-battery status")
        << temperatureState("Front left tire-sensor temperature status")
        << pressureState("Front left tire-sensor pressure status")
        << airLeak("Front left tire-airLeak detection")
        << battery("front right tire--battery status")
        << temperatureState("front right tire-sensor temperature status")
        << pressureState("front right tire-sensor pressure status")
        << airLeak("front right tire-air leak detection")
        << battery("rear left tire-battery status")
        << temperatureState("rear left tire-sensor temperature status")
        << pressureState("rear left tire-sensor pressure status")
        << airLeak("rear left tire-air leak detection")
        << battery("rear right tire-battery status")
        << temperatureState("rear right tire-sensor temperature status")
        << pressureState("rear right tire-sensor pressure status")
        << airLeak("rear right tire-air leak detection"));
}

void CarInfoItem67_12::valueStepped(int, int)
{
    sendFrame(Family67::skeleton());
}
