#include "pages124.h"

#include "canobj.h"
#include "carbodydata.h"
#include "frames.h"

namespace {

// --- Basic information ------------------------------------------------------

// The body record's states; a car that doesn't report one shows the first
// option.
QVariant bodyState(qint8 CarbodyData::*field)
{
    CarbodyData const *body = CanObj::instance()->getCarbodyData();
    if (!body)
        return 0;
    const int value = body->*field;
    return value < 0 ? 0 : value;
}

QVariant reversingState(DataBuffer const &) { return bodyState(&CarbodyData::byte2); }
QVariant handbrakeState(DataBuffer const &) { return bodyState(&CarbodyData::handbrake); }
QVariant lightState(DataBuffer const &) { return bodyState(&CarbodyData::byte35); }

// --- Vehicle settings -------------------------------------------------------

// Row r of the settings lies at byte 16 + r.
const int FirstSettingByte = 16;
const int SettingCommand = 0xC6;

// One setting: its title and options, the code that names it in the frame,
// and whether the car counts its options from 1 while the buffer gives the
// row's index.
struct Setting
{
    const char *title;
    const char *options[6];
    int code;
    bool countsFromOne;
};

const Setting settings[] = {
    {"Automatic locking mode",
     {"OFF", "Lock:exiting park,unlock:enter park", "Lock:exiting park", "Lock:Unlock while,driving:flameout",
      "Lock:When driving", 0},
     0x01, false},
    {"Keyless lock sound volume", {"OFF", "High", "medium", "low", 0}, 0x02, false},
    {"Automatic relock time", {"90s", "60s", "30s", 0}, 0x03, true},
    {"Unlock mode", {"Once: All the doors", "Once: the driver's side door, twice: all the doors", 0}, 0x04, true},
    {"Exit vehicle lock", {"not select", "select", 0}, 0x05, false},
    {"Inductive wiper", {"not select", "select", 0}, 0x31, false},
    {"Triple flashing turn signal", {"not select", "select", 0}, 0x11, false},
    {"Turn signal volume", {"High", "low", 0}, 0x12, true},
    {"When the door is opened-the interior lights automatically turn off", {"60s", "30s", "10s", 0}, 0x21, true},
    {"When the door is closed-the interior lights automatically turn off", {"60s", "30s", "15s", "7.5s", 0}, 0x22,
     true},
    {"Lamp reminder", {"OFF", "High", "low", 0}, 0x23, false},
    {"Adaptive front lighting system", {"not select", "select", 0}, 0x24, false},
    {"Headlight off timer", {"OFF", "30s", "60s", "90s", "120s", 0}, 0x25, false},
    {"Automatic headlights on", {"Bright", "Medium brightness", "Medium", "Medium darkness", "Dark", 0}, 0x26, true},
};
const int SettingCount = int(sizeof settings / sizeof settings[0]);

int plusOne(int value) { return value + 1; }

// 2E C6 03 code value 00; the row's key is its id.
QByteArray settingFrame(int id, int value)
{
    if (id < 0 || id >= SettingCount)
        return QByteArray();
    return Frames::make2E(SettingCommand, {settings[id].code, value, 0});
}

} // namespace

QList<Row> CarInfoItem124_1::rowTable() const
{
    return QList<Row>()
        << Row::text("Avarage speed").id(0).textAt(4)
        << Row::text("Engine speed").id(1).textAt(8)
        << Row::text("Version information").id(2).textAt(0)
        << Row::choice("Reversing state", {"Non reversing", "Reversing"}).id(8).read(reversingState)
        << Row::choice("P-gear or handbrake status", {"P gear", "Non P gear"}).id(9).read(handbrakeState)
        << Row::choice("Light info", {"OFF", "ON"}).id(10).read(lightState)
        << Row::choice("Park assist system status", {"OFF", "ON"}).id(3).at(12)
        << Row::choice("Current audio selection status of decoding box", {"CD/DVD", "AUX"}).id(4).at(38);
}

QList<Row> CarInfoItem124_2::rowTable() const
{
    QList<Row> rows;
    for (int id = 0; id < SettingCount; ++id) {
        Setting const &setting = settings[id];
        QList<QVariant> options;
        for (int o = 0; setting.options[o]; ++o)
            options.append(QString::fromUtf8(setting.options[o]));
        Row row = Row::of(ChoiceKind, setting.title, options).id(id).at(FirstSettingByte + id).adjustable()
                      .frame(settingFrame);
        if (setting.countsFromOne)
            row.sendAs(plusOne);
        rows << row;
    }
    return rows;
}
