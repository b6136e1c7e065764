#include "pages48.h"

namespace {

// 2E C6 03 A7 function value: a value, or the direction of a step.
const int Setting = 0xC6;
const int Massage = 0xA7;

// The adjustment rows send 1 for the right arrow and 2 for the left.
const int Up = 1;
const int Down = 2;

Row side(const char *title, int offset, int function)
{
    return Row::choice(title, {"without", "Adjustment", "massage"}).at(offset).adjustable()
        .command(Setting, {Massage, function, Row::Value});
}

Row adjustment(const char *title, int offset, int function)
{
    return Row::of(NumberKind, title, {0, 10}).at(offset).adjustable().direction(Down, Up)
        .command(Setting, {Massage, function, Row::Value});
}

Row massage(const char *title, int offset, int function)
{
    return Row::choice(title, {"OFF", "Low", "high"}).at(offset).adjustable()
        .command(Setting, {Massage, function, Row::Value});
}

} // namespace

QList<Row> CarInfoItem48_4::rowTable() const
{
    return QList<Row>()
        << Row::choice("Functional status", {"without", "Have"}).at(117)
        << side("Driver side function", 118, 0x0A)
        << side("Passenger function", 119, 0x0B)
        << adjustment("Driver side adjustment-high", 120, 0)
        << adjustment("Driver side adjustment-medium", 121, 1)
        << adjustment("Driving side adjustment-low", 122, 2)
        << massage("Driving side massage backrest", 123, 6)
        << massage("Driving side massage cushion", 124, 7)
        << adjustment("Passenger side adjustment-high", 125, 3)
        << adjustment("Passenger side adjustment-medium", 126, 4)
        << adjustment("Passenger side adjustment-low", 127, 5)
        << massage("Passenger side massage backrest", 128, 8)
        << massage("Passenger side massage cushion", 129, 9);
}
