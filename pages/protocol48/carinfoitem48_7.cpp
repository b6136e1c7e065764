#include "pages48.h"

namespace {

// Row r shows byte 47 + r; every row goes out as 2E C9 02 sub value.
const int FirstByte = 47;
const int Setting = 0xC9;

const int HeadlightDelayRow = 12;
// The byte of "Ambient light", which the headlight delay is first built
// from until the first refresh reads its own byte.
const int AmbientLightByte = 58;

Row item(int row, int sub, const char *title, std::initializer_list<const char *> options)
{
    return Row::choice(title, options).at(FirstByte + row).adjustable().command(Setting, sub);
}

Row onOff(int row, int sub, const char *title)
{
    return item(row, sub, title, {"OFF", "ON"});
}

} // namespace

QList<Row> CarInfoItem48_7::rowTable() const
{
    return QList<Row>()
        << item(0, 0x00, "Lane keeping mode", {"warn", "Assist", "Warn + assist"})
        << item(1, 0x01, "Warning intensity", {"Low", "standard", "high"})
        << onOff(2, 0x02, "Reverse gear coming warning")
        << onOff(3, 0x03, "TCS traction control")
        << item(4, 0x04, "Cruise control", {"Adaptive", "standard"})
        << onOff(5, 0x05, "Automatic engine shutdown")
        << onOff(6, 0x10, "Distance reminder")
        << onOff(7, 0x11, "Active braking")
        << item(8, 0x12, "Sensitivity", {"Low", "standard", "high"})
        << onOff(9, 0x13, "Blind spot monitoring")
        << onOff(10, 0x14, "Fatigue driving warning")
        << Row::of(NumberKind, "Ambient light", {0, 100}).at(FirstByte + 11).adjustable().command(Setting, 0x20)
        // The car reports and takes the delay in seconds.
        << item(12, 0x21, "Headlight delay", {"OFF", "10s", "20s", "120s"})
               .showCodes(QList<int>() << 0 << 10 << 20 << 120).sendCodes(QList<int>() << 0 << 10 << 20 << 120)
        << onOff(13, 0x22, "Automatic high beam")
        << onOff(14, 0x30, "Electric trunk")
        << onOff(15, 0x40, "Automatic folding")
        << onOff(16, 0x50, "Switch prohibited")
        << onOff(17, 0x51, "Voice Feedback")
        << onOff(18, 0x52, "False lock warning")
        << item(19, 0x53, "Remote unlock", {"All doors", "Driver's door only"})
        << onOff(20, 0x54, "Automatically unlock")
        << onOff(21, 0x55, "Remote control on")
        << onOff(22, 0x56, "Remote control off")
        << onOff(23, 0x57, "Activate remote start")
        << item(24, 0x58, "Air conditioning control", {"automatic", "Last set"})
        << item(25, 0x59, "Steering wheel heating and seat air conditioning", {"automatic", "OFF"})
        << item(26, 0x5A, "cycle", {"5 minutes", "10 minutes", "15 minutes"})
        << onOff(27, 0x60, "Rain sensor wiper")
        << onOff(28, 0x61, "Repeat wiper once")
        << onOff(29, 0x62, "Rear wiper")
        << item(30, 0x70, "Tire pressure unit", {"PSI", "KPA", "BAR"})
        // The code 1 is left out on purpose.
        << item(31, 0x71, "Unit of measure", {"mi&mpg ", "km&l/100km ", "km&km/l"})
               .sendCodes(QList<int>() << 0 << 2 << 3)
        << item(32, 0x72, "Temperature unit", {"℃", "℉"})
        << item(33, 0x80, "Cockpit fresh air", {"freed", "Press down"});
}

void CarInfoItem48_7::initlist()
{
    RowPage::initlist();
    // The headlight delay starts from the ambient light's byte, read as
    // seconds; the first refresh puts it right.
    Row firstReading = rowSpec(HeadlightDelayRow);
    firstReading.at(AmbientLightByte);
    const QVariant value = firstReading.value(buffer());
    ListData row = list.at(HeadlightDelayRow);
    row.value = value.toInt();
    row.text = value.toString();
    list.replace(HeadlightDelayRow, row);
}
