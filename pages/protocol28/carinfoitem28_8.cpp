#include "carinfoitem28_8.h"

#include "frames.h"
#include "requests.h"

namespace {

// Row r shows byte 368 + r. Rows 0 to 2 are the three charging locations,
// location 3 first; then one block of settings per location, from location
// 1; the last row is the pop-up switch.
const int FirstByte = 368;
const int LocationRows = 3;
const int BlockRows = 19;
const int Locations = 3;
const int BulletFrameRow = LocationRows + Locations * BlockRows;

int blockBase(int location) { return FirstByte + LocationRows + (location - 1) * BlockRows; }
int locationOfRow(int row) { return (row - LocationRows) / BlockRows + 1; }

// Departure minutes go in fives, wrapping to 0 from 55 upward.
int departureMinuteStep(DataBuffer const &, int minute, bool down)
{
    if (down)
        return minute < 6 ? 0 : minute - 5;
    return minute < 55 ? minute + 5 : 0;
}

// Night charging starts and ends on the hour or the half hour.
int nightMinuteStep(DataBuffer const &, int minute, bool down)
{
    if (down)
        return minute < 30 ? 0 : minute - 30;
    return minute < 30 ? minute + 30 : 0;
}

// Charging online never stops below 10 %.
int batteryStep(DataBuffer const &, int level, bool down)
{
    return qBound(10, down ? level - 1 : level + 1, 100);
}

// The settings of one location, from its first byte.
QList<Row> locationBlock(int b)
{
    return QList<Row>()
        << Row::of(NumberKind, "Departure hour", {0, 23}).at(b).adjustable()
        << Row::of(NumberKind, "Departure minutes", {0, 59}).at(b + 1).adjustable()
               .stepsFromBuffer().stepWith(departureMinuteStep)
        << Row::choice("frequency", {"once", "repeat"}).at(b + 2).adjustable()
        << Row::choice("Charge", {"OFF", "ON"}).at(b + 3).adjustable()
        << Row::choice("Air conditioning control", {"OFF", "ON"}).at(b + 4).adjustable()
        << Row::choice("Night time current", {"OFF", "ON"}).at(b + 5).adjustable()
        << Row::choice("Maximum charging current", {"5A", "10A", "13A", "max"}).at(b + 6).adjustable()
        << Row::choice("Sunday", {"Cancel", "Check"}).at(b + 7).adjustable()
        << Row::choice("Saturday", {"Cancel", "Check"}).at(b + 8).adjustable()
        << Row::choice("Friday", {"Cancel", "Check"}).at(b + 9).adjustable()
        << Row::choice("Thursday", {"Cancel", "Check"}).at(b + 10).adjustable()
        << Row::choice("Wednesday", {"Cancel", "Check"}).at(b + 11).adjustable()
        << Row::choice("Tuesday", {"Cancel", "Check"}).at(b + 12).adjustable()
        << Row::choice("Monday", {"Cancel", "Check"}).at(b + 13).adjustable()
        << Row::of(NumberKind, "Start hour of night session", {0, 23}).at(b + 14).adjustable()
        << Row::of(NumberKind, "Start minute of night session", {0, 59}).at(b + 15).adjustable()
               .stepsFromBuffer().stepWith(nightMinuteStep)
        << Row::of(NumberKind, "End hour of night time", {0, 23}).at(b + 16).adjustable()
        << Row::of(NumberKind, "End minute of night session", {0, 59}).at(b + 17).adjustable()
               .stepsFromBuffer().stepWith(nightMinuteStep)
        << Row::of(NumberKind, "Battery charging online", {0, 100}).at(b + 18).adjustable()
               .stepsFromBuffer().stepWith(batteryStep);
}

// 2E A5 03 00 m 00: the locations in use, location 3 in bit 2 down to
// location 1 in bit 0.
QByteArray locationsFrame(DataBuffer const &data)
{
    const int m = 4 * data.byte(FirstByte) + 2 * data.byte(FirstByte + 1) + data.byte(FirstByte + 2);
    return Frames::make2E(0xA5, {0x00, m, 0x00});
}

// 2E A5 0A location and the nine bytes of its block: departure, the
// switches and the current in one byte, the days in another (Sunday in
// bit 7 down to Monday in bit 1), the night charging times and the battery level.
QByteArray locationFrame(DataBuffer const &data, int location)
{
    const int b = blockBase(location);
    const int switches = 0x80 * data.byte(b + 2) + 0x40 * data.byte(b + 3) + 0x20 * data.byte(b + 4)
                         + 0x10 * data.byte(b + 5) + data.byte(b + 6);
    const int days = 0x80 * data.byte(b + 7) + 0x40 * data.byte(b + 8) + 0x20 * data.byte(b + 9)
                     + 0x10 * data.byte(b + 10) + 8 * data.byte(b + 11) + 4 * data.byte(b + 12)
                     + 2 * data.byte(b + 13);
    return Frames::make2E(0xA5, {location, data.byte(b), data.byte(b + 1), switches, days,
                                 data.byte(b + 14), data.byte(b + 15), data.byte(b + 16), data.byte(b + 17),
                                 data.byte(b + 18)});
}

// The frame of the group that the row belongs to, from the buffer.
QByteArray groupFrame(DataBuffer const &data, int row)
{
    if (row < LocationRows)
        return locationsFrame(data);
    if (row < BulletFrameRow)
        return locationFrame(data, locationOfRow(row));
    return Frames::make2E(0xA5, {0x80, data.byte(FirstByte + row)});
}

} // namespace

CarInfoItem28_8::CarInfoItem28_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem28_8::rowTable() const
{
    QList<Row> rows;
    rows << Row::choice("Electric management-Location 3", {"Cancel", "Check"}).at(FirstByte).adjustable()
         << Row::choice("Electric management-Location 2", {"Cancel", "Check"}).at(FirstByte + 1).adjustable()
         << Row::choice("Electric management-Location 1", {"Cancel", "Check"}).at(FirstByte + 2).adjustable();
    for (int location = 1; location <= Locations; ++location)
        rows << locationBlock(blockBase(location));
    rows << Row::choice("Bullet frame", {"disappear", "Bullet frame"}).at(FirstByte + BulletFrameRow).adjustable();
    return rows;
}

void CarInfoItem28_8::initlist()
{
    RowPage::initlist();
    // A location's settings carry its name in front.
    for (int row = LocationRows; row < BulletFrameRow; ++row) {
        ListData named = list.at(row);
        named.title = tr("Location %1-").arg(locationOfRow(row)) + named.title;
        list.replace(row, named);
    }
}

void CarInfoItem28_8::valueStepped(int row, int value)
{
    // The new value goes into the buffer, and the whole group goes out
    // from there; the row moves when the car answers.
    DataBuffer data = buffer();
    data.setByte(FirstByte + row, quint8(value));
    sendFrame(groupFrame(data, row));
}

void CarInfoItem28_8::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x54});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
