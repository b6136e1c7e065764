#include "carinfoitem67_5.h"

#include "family67.h"

namespace {

// Row i of the settings reads byte 352 + i, up to the driving mode; the two
// texts and the last two rows follow at their own places.
const int FirstByte = 352;
const int SpeedLimitByte = 355;
const int ModeInformationByte = 372;
const int ResetByte = 373;

enum Row67_5 {
    SpeedLimit = 3,
    FirstGroupRow = SpeedLimit,
    LastGroupRow = 9,
    DriveModeReset = 14
};

// The ECO speed limit as the car codes it: "none", then 90 to 130 km/h.
const int SpeedCodes[] = {0xFE, 0x5A, 0x64, 0x6E, 0x78, 0x82};
const int SpeedOptions = int(sizeof SpeedCodes / sizeof SpeedCodes[0]);

int speedOption(int code) { return Family67::indexOf(code, SpeedCodes, SpeedOptions); }
int speedCode(int option) { return Family67::codeAt(option, SpeedCodes, SpeedOptions, SpeedCodes[0]); }

// The car's mode byte: 5 is "SMART", 0 to 2 the first three, anything
// else the first.
int modeInformation(int mode)
{
    if (mode == 5)
        return 3;
    return mode < 3 ? mode : 0;
}

// FD 08 A9 0A a b c: the air conditioning rows, the energy regeneration
// rows and the speed limit code, from the buffer, with the stepped setting
// in its byte's place. The buffer itself stays as the car reported it.
QByteArray modeGroup(DataBuffer const &data, int changedByte, int changedValue)
{
    const auto setting = [&](int offset) { return offset == changedByte ? changedValue : int(data.byte(offset)); };
    const int air = 0x40 * setting(359) + 4 * setting(360) + 0x10 * setting(361);
    const int regeneration = 0x10 * setting(356) + setting(357) + 4 * setting(358);
    return Family67::frame(0xA9, {0x0A, air, regeneration, setting(SpeedLimitByte)});
}

} // namespace

CarInfoItem67_5::CarInfoItem67_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_5::rowTable() const
{
    return Family67::numbered(QList<Row>()
        << Row::of(PercentKind, "SPORT mode", {0, 100}).at(FirstByte)
        << Row::of(PercentKind, "COMFORT mode", {0, 100}).at(FirstByte + 1)
        << Row::of(PercentKind, "ECO mode", {0, 100}).at(FirstByte + 2)
        << Row::choice("ECO mode-speed limit", {"none", "90KM/H", "100KM/H", "110KM/H", "120KM/H", "130KM/H"})
               .at(SpeedLimitByte).display(speedOption).adjustable()
        << Row::choice("ECO mode-coasting energy regeneration", {"Grade 1", "Grade 2", "Grade 3"})
               .at(FirstByte + 4).adjustable()
        << Row::choice("COMFORT mode-coasting energy regeneration", {"Grade 1", "Grade 2", "Grade 3"})
               .at(FirstByte + 5).adjustable()
        << Row::choice("SPORT mode-coasting Energy regeneration", {"Grade 1", "Grade 2", "Grade 3"})
               .at(FirstByte + 6).adjustable()
        << Row::choice("ECO mode-air Conditioning control", {"standard", "ECO"}).at(FirstByte + 7).adjustable()
        << Row::choice("COMFORT mode-air conditioning control", {"standard", "ECO"}).at(FirstByte + 8).adjustable()
        << Row::choice("SPORT mode-air conditioning control", {"standard", "ECO"}).at(FirstByte + 9).adjustable()
        << Row::choice("driving mode", {"COMFORT", "SPORT", "ECO"}).at(FirstByte + 10)
        << Row::text("ECO energy saving-CO2 emission reduction(travel distance)").textAt(364)
        << Row::text("ECO energy saving-CO2 emission reduction(CO2 emission reduction)").textAt(368)
        << Row::choice("Driving mode information", {"COMFORT", "SPORT", "ECO", "SMART"})
               .at(ModeInformationByte).display(modeInformation)
        << Row::choice("Vehicle settings-drive mode reset", {"Cancel", "Sure"}).at(ResetByte).adjustable());
}

void CarInfoItem67_5::valueStepped(int row, int value)
{
    const int id = rowKey(row);
    if (id == DriveModeReset) {
        sendFrame(Family67::frame(0xA9, {0x0B, value}));
        return;
    }
    if (id < FirstGroupRow || id > LastGroupRow)
        return;
    // The group goes out with the new setting in its byte's place, the speed
    // limit as its code; the row waits for the car.
    sendFrame(modeGroup(buffer(), FirstByte + id, quint8(id == SpeedLimit ? speedCode(value) : value)));
}
