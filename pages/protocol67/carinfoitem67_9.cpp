#include "carinfoitem67_9.h"

#include "family67.h"

namespace {

// Row i shows byte 219 + i.
const int FirstByte = 219;

enum Row67_9 {
    AppointmentWay = 0,
    AppointmentFirst = 1,
    AppointmentStart = 1,
    AppointmentEnd = 3,
    AppointmentSunday = 5,
    AppointmentLast = 11,
    TimeSetting1First = 12,
    TimeSetting1Last = 21,
    TimeSetting2First = 22,
    TimeSetting2Last = 31,
    ScheduledStart = 32,
    ScheduledEnd = 34,
    ReservationSwitch = 36,
    DefrostSwitch = 37,
    ReservedTime = 38,
    DiscountedTime = 39,
    PileCurrent = 40,
    PortableCurrent = 41,
    AirTemperature = 42
};

int byteOf(int id) { return FirstByte + id; }

// The appointment way: the car counts from 1; 0 shows as "OFF" as well.
int appointmentOption(int way) { return way > 0 ? way - 1 : 0; }
int appointmentCode(int option) { return option + 1; }

// The minutes of a time count tens of minutes.
Row minuteRow(const char *title)
{
    return Row::of(NumberKind, title, {0, 5}).factor(10.0);
}

Row hourRow(const char *title)
{
    return Row::of(NumberKind, title, {0, 23});
}

Row repeatRow(const char *title)
{
    return Row::choice(title, {"none", "have"});
}

Row switchRow(const char *title)
{
    return Row::choice(title, {"OFF", "ON"});
}

Row currentRow(const char *title)
{
    return Row::choice(title, {"biggest", "reduce", "least"});
}

// A time as one byte: the hour in the low five bits, the tens of minutes
// above them.
int packedTime(DataBuffer const &data, int minuteByte)
{
    return data.byte(minuteByte + 1) + 0x20 * data.byte(minuteByte);
}

// The repeat days from Sunday's byte on: Monday to Saturday in bits 0 to 5,
// Sunday in bit 6.
int weekdays(DataBuffer const &data, int sundayByte)
{
    int days = (data.byte(sundayByte) & 1) << 6;
    for (int day = 1; day <= 6; ++day)
        days |= (data.byte(sundayByte + day) & 1) << (day - 1);
    return days;
}

// FD 08 A9 02: the appointment's start, end and days.
QByteArray appointmentGroup(DataBuffer const &data)
{
    return Family67::frame(0xA9, {0x02, packedTime(data, byteOf(AppointmentStart)),
                                  packedTime(data, byteOf(AppointmentEnd)), weekdays(data, byteOf(AppointmentSunday))});
}

// FD 07 A9 05 or 06: a time setting's time, its days and its switch in bit 7.
QByteArray timeSettingGroup(DataBuffer const &data, int group, int firstId)
{
    const int days = weekdays(data, byteOf(firstId + 2)) | (data.byte(byteOf(firstId + 9)) & 1) << 7;
    return Family67::frame(0xA9, {group, packedTime(data, byteOf(firstId)), days});
}

// The scheduled charging and the charging current, groups 4, 7 and 3.
QByteArray chargingGroup(DataBuffer const &data, int id)
{
    switch (id) {
    case ReservationSwitch:
    case DefrostSwitch:
    case AirTemperature:
        return Family67::frame(0xA9, {0x07, data.byte(byteOf(AirTemperature))
                                                + 0x40 * data.byte(byteOf(DefrostSwitch))
                                                + 0x80 * data.byte(byteOf(ReservationSwitch))});
    case PileCurrent:
    case PortableCurrent:
        return Family67::frame(0xA9, {0x03, data.byte(byteOf(PortableCurrent))
                                                + 4 * data.byte(byteOf(PileCurrent))});
    default:
        return Family67::frame(0xA9, {0x04, data.byte(byteOf(DiscountedTime)) + 2 * data.byte(byteOf(ReservedTime)),
                                      packedTime(data, byteOf(ScheduledStart)),
                                      packedTime(data, byteOf(ScheduledEnd))});
    }
}

QByteArray groupFrame(DataBuffer const &data, int id)
{
    if (id <= AppointmentLast)
        return appointmentGroup(data);
    if (id <= TimeSetting1Last)
        return timeSettingGroup(data, 0x05, TimeSetting1First);
    if (id <= TimeSetting2Last)
        return timeSettingGroup(data, 0x06, TimeSetting2First);
    return chargingGroup(data, id);
}

} // namespace

CarInfoItem67_9::CarInfoItem67_9(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_9::rowTable() const
{
    QList<Row> rows = QList<Row>()
        << Row::choice("How To Set Up An Appointment", {"OFF", "way 1", "way 2"}).display(appointmentOption)
        << minuteRow("Appointment time-start time(minute)")
        << hourRow("Appointment time-start time(hour)")
        << minuteRow("Appointment time_end time(minute)")
        << hourRow("Appointment time_end time(hour)")
        << repeatRow("Appointment time-repeat(Sunday)")
        << repeatRow("Appointment time-repeat(Monday)")
        << repeatRow("Appointment time-repeat(Tuesday)")
        << repeatRow("Appointment time-repeat(Wednesday)")
        << repeatRow("Appointment time-repeat(Thursday)")
        << repeatRow("Appointment time-repeat(Friday)")
        << repeatRow("Appointment time-repeat(Saturday)")
        << minuteRow("Charging settings-time settings 1(Minute)")
        << hourRow("Charging settings-time settings 1(hour)")
        << repeatRow("Charging settings-time settings 1-repeat(Sunday)")
        << repeatRow("Charging settings-time settings 1-repeat(Monday)")
        << repeatRow("Charging settings-time settings 1-repeat(Tuesday)")
        << repeatRow("Charging settings-time settings 1-repeat(Wednesday)")
        << repeatRow("Charging settings-time settings 1-repeat(Thursday)")
        << repeatRow("Charging settings-time settings 1-repeat(Friday)")
        << repeatRow("Charging settings-time settings 1-repeat(Saturday)")
        << switchRow("Charging settings-time settings 1")
        << minuteRow("Charging settings-time settings 2(minute)")
        << hourRow("Charging settings-time settings 2(hour)")
        << repeatRow("Charging settings-time settings 2-repeat(Sunday)")
        << repeatRow("Charging settings-time settings 2-repeat(Monday)")
        << repeatRow("Charging settings-time settings 2-repeat(Tuesday)")
        << repeatRow("Charging settings-time settings 2-repeat(Wednesday)")
        << repeatRow("Charging settings-time settings 2-repeat(Thursday)")
        << repeatRow("Charging settings-time settings 2-repeat(Friday)")
        << repeatRow("Charging settings-time settings 2-repeat(Saturday)")
        << switchRow("Charging settings-time settings 2")
        << minuteRow("Charging settings-scheduled charging time-start time(minute)")
        << hourRow("Charging settings-scheduled charging time-start time(hour)")
        << minuteRow("Charging settings-scheduled charging time-end time(minute)")
        << hourRow("Charging settings-scheduled charging time-end time(hour)")
        << switchRow("Charging current-reservation air conditioning temperature switch")
        << switchRow("Charging current-defrost before scheduling an air conditionere")
        << switchRow("Charging current-reserve charging time")
        << Row::choice("Charging current-discounted time charging", {"Priority charging during discounted time",
                                                                     "Charge only during discounted time"})
        << currentRow("Charging current-set the normal charging current(charging pile)")
        << currentRow("Charging current-set normal charge current(portable)")
        << Row::of(TemperatureKind, "Charging current-reservation air conditioning temperature", {0, -29, 26});
    for (int i = 0; i < rows.size(); ++i)
        rows[i].at(byteOf(i)).adjustable();
    return Family67::numbered(rows);
}

void CarInfoItem67_9::valueStepped(int row, int value)
{
    const int id = rowKey(row);
    if (id == AppointmentWay) {
        sendFrame(Family67::frame(0xA9, {0x01, appointmentCode(value)}));
        return;
    }
    if (id < AppointmentFirst || id > AirTemperature)
        return;
    // The new value takes its byte, the group goes out from the buffer, and
    // the row waits for the car.
    DataBuffer data = buffer();
    data.setByte(byteOf(id), quint8(value));
    sendFrame(groupFrame(data, id));
}
