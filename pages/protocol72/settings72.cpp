// The setting pages of protocol 72: every change goes out as
// 2E C6 03 group item value.

#include "pages72.h"

#include "frames.h"

namespace {

const int Setup = 0xC6;

// A setting whose options the car doesn't name: its byte as it stands.
Row rawSetting(const char *title)
{
    return Row::of(NumberKind, title, {0, 255});
}

Row onOff(const char *title)
{
    return Row::choice(title, {"OFF", "ON"});
}

Row offOpen(const char *title)
{
    return Row::choice(title, {"OFF", "Open"});
}

Row duration(const char *title)
{
    return Row::choice(title, {"30s", "1 minute", "1 minute 30s", "2 minute", "2 minute 30s", "3 minute",
                               "3 minute 30s", "4 minute", "4 minute 30s", "5 minute"});
}

// The times 30, 60 and 90 s of an item whose values 0 and 1 are off and on.
int afterOnOff(int value) { return value + 2; }
// Languages count from 1.
int oneBased(int value) { return value + 1; }

// Each row r reads byte first + r, and all rows step.
QList<Row> placed(QList<Row> rows, int first)
{
    for (int r = 0; r < rows.size(); ++r)
        rows[r].at(first + r).adjustable();
    return rows;
}

// The lamps of "take me home" (item 1) and of the car search light (item
// 3) share one value: reversing lights bit 7, low beam bit 6, rear fog lamps
// bit 5. A change of one lamp repeats the two others from the buffer, each
// byte on when not zero.
QByteArray lampFrame(DataBuffer const &data, int item, int firstLampByte, int lamp, int on)
{
    int packed = 0;
    for (int k = 0; k < 3; ++k) {
        const int state = k == lamp ? on : data.byte(firstLampByte + k);
        if (state != 0)
            packed |= 0x80 >> k;
    }
    return Frames::make2E(Setup, {0x02, item, packed});
}

// The speed limit alarm steps by 4 km/h, and any step from 30 or below
// lands on 30.
int speedAlarmStep(DataBuffer const &, int shown, bool down)
{
    if (down)
        return shown > 34 ? shown - 4 : 30;
    return shown > 29 ? qMin(240, shown + 4) : 30;
}

// 72_13 reads from byte 243, 72_14 from byte 188 but for its row 29.
const int First13 = 243;
const int First14 = 188;

} // namespace

// --- 72_11 -------------------------------------------------------------------

QList<Row> CarInfoItem72_11::rowTable() const
{
    QList<Row> rows = placed(QList<Row>()
        << rawSetting("Comfortable and convenient-take me home").command(Setup, 3, 1)
        << rawSetting("Comfortable and convenient-car search instructions").command(Setup, 3, 2)
        << rawSetting("Comfortable and convenient-unlock mode").command(Setup, 1, 3)
        << rawSetting("Comfortable and convenient-smart near car unlock").command(Setup, 1, 4)
        << rawSetting("Driving maintenance-tire pressure reset").command(Setup, 4, 1)
        << rawSetting("reset"), 297);
    rows[5].adjustable(false);
    return rows;
}

// --- 72_12 -------------------------------------------------------------------

QList<Row> CarInfoItem72_12::rowTable() const
{
    QList<Row> rows = placed(QList<Row>()
        << onOff("Comfortable and convenient-take me home").command(Setup, 3, 1)
        << Row::choice("Comfortable and convenient-car search instructions", {"Lights only", "Lights+Speakers"})
               .command(Setup, 3, 2)
        << Row::choice("Comfortable and convenient-steering feel", {"Normal", "Comfort", "Sports"})
               .command(Setup, 3, 3)
        << Row::choice("Comfortable and convenient-unlock mode", {"All doors", "Driver's side only"})
               .command(Setup, 1, 3)
        << Row::choice("Comfortable and convenient-smart near car unlock", {"All doors", "Driver's side only"})
               .command(Setup, 1, 4)
        << onOff("Comfortable and convenient-driving lock").command(Setup, 1, 1)
        << offOpen("Comfortable and convenient-automatic folding and unfolding of exterior mirrors")
               .command(Setup, 8, 1)
        << onOff("Air conditioner-rear window defrost and defogging linkage").command(Setup, 5, 1)
        << Row::choice("Air conditioner-air volume in automatic mode", {"Low", "Medium", "High"})
               .command(Setup, 5, 2)
        << Row::choice("Air conditioner-zone temperature settings",
                       {"Default single zone", "Default dual zone", "Default last time"}).command(Setup, 5, 3)
        << Row::choice("Driving maintenance-tire pressure reset", {"end", "start"}).command(Setup, 4, 1)
        << offOpen("Driving maintenance-body stability control").command(Setup, 4, 2)
        << offOpen("Driving maintenance-economical driving").command(Setup, 4, 3)
        << offOpen("Driving maintenance-steep descent control system").command(Setup, 4, 4)
        << Row::choice("reset", {"end", "start"})
        << offOpen("Assisted driving-warning tones for pedestrians").command(Setup, 6, 1)
        << Row::choice("Assisted driving-pedestrian warning sound volume", {"Small", "Large"}).command(Setup, 6, 10)
        << onOff("Assisted driving-parking assist system").command(Setup, 6, 11)
        << Row::of(NumberKind, "Meter brightness", {0, 10}).command(Setup, 7, 1)
        << offOpen("Advanced driver assistance-speed assist").command(Setup, 6, 2)
        << Row::choice("Advanced driver assistance-assist mode",
                       {"Manual speed limit", "Overspeed alarm", "Intelligent speed limit"}).command(Setup, 6, 3)
        << offOpen("Advanced driver assistance-Lane departure warning").command(Setup, 6, 4)
        << Row::choice("Advanced driver assistance-alarm sensitivity", {"Low", "Medium", "High"})
               .command(Setup, 6, 5)
        << offOpen("Advanced driver assistance-alarm tone").command(Setup, 6, 6)
        << offOpen("Advanced driver assistance-vibration reminder").command(Setup, 6, 12)
        << offOpen("Advanced driver assistance-forward collision Assist").command(Setup, 6, 7)
        << Row::choice("Advanced driver assistance-assist mode1", {"Alarm", "Alarm + automatic braking"})
               .command(Setup, 6, 8)
        << Row::choice("Advanced driver assistance-alarm sensitivity", {"Low", "Medium", "High"})
               .command(Setup, 6, 9)
        << offOpen("Advanced driver assistance-rear driving assistance system").command(Setup, 6, 13)
        << offOpen("Advanced driver assistance-blind spot detection").command(Setup, 6, 14)
        << offOpen("Advanced driver assistance-lane change assist").command(Setup, 6, 15)
        << offOpen("Advanced driver assistance-rear traffic warning").command(Setup, 6, 16)
        << offOpen("Lighting-welcome lights").command(Setup, 3, 4)
        << Row::choice("Lighting-the welcome light stays on", {"30s", "60s", "90s"}).sendAs(afterOnOff)
               .command(Setup, 3, 4)
        << Row::choice("Lighting-take me home and keep the lights on", {"30s", "60s", "90s"}).sendAs(afterOnOff)
               .command(Setup, 3, 1)
        << offOpen("Lighting-car search indication duration").command(Setup, 2, 4)
        << Row::of(NumberKind, "sunroof status", {0, 10}).command(Setup, 9, 1)
        << offOpen("Advanced driver assistance-lane keeping assist").command(Setup, 6, 17)
        << Row::choice("Advanced driver assistance-assist mode",
                       {"Alarm", "Alarm + Lane Keeping", "Alarm + Lane Departure Assist"}).command(Setup, 6, 18)
        << Row::choice("Advanced driver assistance-alarm sensitivity", {"Low", "Standard", "High"})
               .command(Setup, 6, 19)
        << offOpen("Advanced driver assistance-traffic jam assist").command(Setup, 6, 20)
        << Row::choice("language", {"Chinese", "English"}).sendAs(oneBased).command(Setup, 10, 1), 255);
    // The reset row only shows the car's state.
    rows[14].adjustable(false);
    return rows;
}

// --- 72_13 -------------------------------------------------------------------

namespace {

const int HomeLamps13 = 4;
const int SearchLamps13 = 8;

} // namespace

QList<Row> CarInfoItem72_13::rowTable() const
{
    // The lamp rows are one bit each.
    const QList<QVariant> bit = {0, 1};
    return placed(QList<Row>()
        << rawSetting("Lock control-travel lock").command(Setup, 1, 1)
        << rawSetting("Lock control-unlock").command(Setup, 1, 2)
        << rawSetting("Lock control-unlock mode").command(Setup, 1, 3)
        << rawSetting("Lock control-smart near car unlock").command(Setup, 1, 4)
        << Row::of(NumberKind, "Lighting control-take me home(reversing lights)", bit)
        << Row::of(NumberKind, "Lighting control-take me home(low beam lights)", bit)
        << Row::of(NumberKind, "Lighting control-take me home(rear fog lamps)", bit)
        << duration("Lighting Control-take me home duration").command(Setup, 2, 2)
        << Row::of(NumberKind, "Lighting control-car search light(reversing lights)", bit)
        << Row::of(NumberKind, "Lighting control-car search light(low beam lights)", bit)
        << Row::of(NumberKind, "Lighting control-car search light(rear fog lamps)", bit)
        << duration("Lighting control-car search indication duration").command(Setup, 2, 4), First13);
}

void CarInfoItem72_13::valueStepped(int row, int value)
{
    if (row >= HomeLamps13 && row < HomeLamps13 + 3)
        sendFrame(lampFrame(buffer(), 1, First13 + HomeLamps13, row - HomeLamps13, value));
    else if (row >= SearchLamps13 && row < SearchLamps13 + 3)
        sendFrame(lampFrame(buffer(), 3, First13 + SearchLamps13, row - SearchLamps13, value));
    else
        RowPage::valueStepped(row, value);
}

// --- 72_14 -------------------------------------------------------------------

namespace {

const int HomeLamps14 = 3;
const int SearchLamps14 = 7;
// Row 29 shows the byte of row 28; byte 217 belongs to no row.
const int SharedByteRow = 29;

} // namespace

QList<Row> CarInfoItem72_14::rowTable() const
{
    QList<Row> rows = placed(QList<Row>()
        << onOff("Lock control-travel lock").command(Setup, 1, 1)
        << onOff("Lock control-unlock").command(Setup, 1, 2)
        << Row::choice("Lock control-smart near car unlock", {"All doors", "driver side only"})
               .command(Setup, 1, 3)
        << onOff("Lighting control-take me home(reversing lights)")
        << onOff("Lighting control-take me home(low beam lights)")
        << onOff("Lighting control-take me home(rear fog lamps)")
        << duration("Lighting Control-take me home duration").command(Setup, 2, 2)
        << onOff("Lighting control-car search light(reversing lights)")
        << onOff("Lighting control-car search light(low beam lights)")
        << onOff("Lighting control-car search light(rear fog lamps)")
        << duration("Lighting control-car search indication duration").command(Setup, 2, 4)
        << Row::choice("Comfortable and convenient-take me home", {"OFF", "Open", "30s", "60s", "90s"})
               .command(Setup, 3, 1)
        << Row::choice("Comfortable and convenient-car search instructions", {"Lights only", "Lights+Speakers"})
               .command(Setup, 3, 2)
        << Row::choice("Comfortable and convenient-steering feel", {"Normal", "Comfort", "Sports"})
               .command(Setup, 3, 3)
        << Row::choice("Comfortable and convenient-welcome light", {"OFF", "Open", "30s", "60s", "90s"})
               .command(Setup, 3, 4)
        << onOff("Driving maintenance-body stability control").command(Setup, 4, 2)
        << onOff("Driving maintenance-economic model").command(Setup, 4, 3)
        << onOff("Driving maintenance-steep descent control system").command(Setup, 4, 4)
        << Row::choice("Driving maintenance-body stability control mode", {"standard", "sports"})
               .command(Setup, 4, 5)
        << onOff("Air conditioner-rear window defrost and defogging linkage").command(Setup, 5, 1)
        << Row::choice("Air conditioner-air volume in automatic mode", {"Low", "Medium", "High"})
               .command(Setup, 5, 2)
        << Row::choice("Air conditioner-zone temperature settings",
                       {"Default single area", "Default dual area", "Default last time"}).command(Setup, 5, 3)
        << Row::choice("Air conditioner-outside air quality sensor sensitivity", {"OFF", "Low", "High"})
               .command(Setup, 5, 4)
        << onOff("Assisted driving-alert pedestrian sound").command(Setup, 6, 1)
        << onOff("Assisted driving-speed assist").command(Setup, 6, 2)
        << Row::choice("Assisted driving-assist mode",
                       {"Manual speed limit", "Overspeed alarm", "Intelligent speed limit"}).command(Setup, 6, 3)
        << onOff("Assisted driving-lane departure warning").command(Setup, 6, 4)
        << Row::choice("Assisted driving-alarm sensitivity", {"Low", "Medium", "High"}).command(Setup, 6, 5)
        << onOff("Assisted driving-alarm tone").command(Setup, 6, 6)
        << onOff("Assisted driving-forward ollision assist").command(Setup, 6, 7)
        << onOff("Assisted driving-assist mode").command(Setup, 6, 8)
        << Row::choice("Assisted driving-alarm sensitivity", {"Low", "Medium", "High"}).command(Setup, 6, 9)
        << Row::choice("Assisted driving-pedestrian warning sound volume", {"Small", "Large"}).command(Setup, 6, 10)
        << onOff("Assisted driving-parking assist system").command(Setup, 6, 11)
        << onOff("Assisted driving-vibration eminder").command(Setup, 6, 12)
        << onOff("Assisted driving-rear driving assistance system").command(Setup, 6, 13)
        << onOff("Assisted driving-blind spot detection").command(Setup, 6, 14)
        << onOff("Assisted driving-Lane change assist system").command(Setup, 6, 15)
        << onOff("Assisted driving-rear traffic warning").command(Setup, 6, 16)
        << onOff("Assisted driving-lane keeping assist").command(Setup, 6, 17)
        << Row::choice("Assisted driving-assist mode",
                       {"Alarm", "Alarm + Lane Keeping", "Alarm + Lane Departure Assist"}).command(Setup, 6, 18)
        << Row::choice("Assisted driving-alarm sensitivity", {"Low", "Standard", "High"}).command(Setup, 6, 19)
        << onOff("Assisted driving-traffic jam assist").command(Setup, 6, 20)
        << onOff("Assisted driving-speed limit alarm").command(Setup, 6, 21)
        << Row::of(SpeedKind, "Assisted driving-speed limit alarm value", {0, 240}).stepWith(speedAlarmStep)
               .command(Setup, 6, 22)
        << Row::of(NumberKind, "Meter brightness", {0, 10}).command(Setup, 7, 1)
        << onOff("Others-automatic folding and unfolding of exterior rearview mirrors").command(Setup, 8, 1)
        << onOff("Others-radar alarm tone").command(Setup, 8, 2)
        // The four window rows go by no name of their own.
        << Row::choice("", {"OFF", "ON", "All closed", "fully open"}).command(Setup, 9, 2)
        << Row::choice("", {"OFF", "ON", "All closed", "fully open"}).command(Setup, 9, 3)
        << Row::choice("", {"OFF", "ON", "All closed", "fully open"}).command(Setup, 9, 4)
        << Row::choice("", {"OFF", "ON", "All closed", "fully open"}).command(Setup, 9, 5)
        << onOff("Windows and locks-door lock").command(Setup, 9, 6)
        << Row::of(NumberKind, "Windows and locks-trunk opening", {0, 152}).command(Setup, 9, 7)
        << Row::choice("language", {"Chinese", "English"}).sendAs(oneBased).command(Setup, 10, 1), First14);
    rows[SharedByteRow].at(First14 + SharedByteRow - 1);
    return rows;
}

void CarInfoItem72_14::valueStepped(int row, int value)
{
    if (row >= HomeLamps14 && row < HomeLamps14 + 3)
        sendFrame(lampFrame(buffer(), 1, First14 + HomeLamps14, row - HomeLamps14, value));
    else if (row >= SearchLamps14 && row < SearchLamps14 + 3)
        sendFrame(lampFrame(buffer(), 3, First14 + SearchLamps14, row - SearchLamps14, value));
    else
        RowPage::valueStepped(row, value);
}
