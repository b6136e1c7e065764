#include "carinfoitem67_13.h"

#include "datasavecontrol.h"
#include "family67.h"

namespace {

const int ModelByte = 161;

enum Row67_13 { ModelSelection = 2, Hybrid = 13, Compass = 14, Language = 15 };

// The models and compass bearings have no names: they show their number.
QList<QVariant> numbers(int count)
{
    QList<QVariant> options;
    for (int i = 0; i < count; ++i)
        options.append(i);
    return options;
}

// Models 0 to 13 go out as their number, the last two as 0x81 and 0x82.
int modelCode(int model)
{
    switch (model) {
    case 14: return 0x81;
    case 15: return 0x82;
    default: return model;
    }
}

// FD 06 A9, 86 or 03, the value, a zero byte.
QByteArray bodyFrame(int id, int value)
{
    switch (id) {
    case Hybrid: return Family67::frame(0xA9, {value, 0x00});
    case Compass: return Family67::frame(0x86, {value, 0x00});
    case Language: return Family67::frame(0x03, {value, 0x00});
    default: return QByteArray();
    }
}

Row seatSwitch(const char *title)
{
    return Row::choice(title, {"OFF", "Open"});
}

} // namespace

CarInfoItem67_13::CarInfoItem67_13(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_13::rowTable() const
{
    QList<Row> rows = QList<Row>()
        << Row::text("Outside temperature information").textAt(156)
        << Row::of(NumberKind, "Backlight adjustment", {0, 21}).at(160)
        << Row::of(ChoiceKind, "Model selection", numbers(16)).at(ModelByte).adjustable();
    const char *const seat[] = {"Seat-seat forward", "Seat-seat back", "Seat-seat up", "Seat seat down",
                                "Seat-seat lift", "Seat-seat lower", "Backrest-seat back forward",
                                "Backrest-backrest of the seat", "Backrest-seat back up", "Backrest-seat back down"};
    for (int i = 0; i < 10; ++i)
        rows << seatSwitch(seat[i]).at(162 + i);
    rows << Row::choice("Hybrid", {"Non-hybrid/electric models", "Hybrid/Electric Vehicles"}).at(172)
                .adjustable().frame(bodyFrame)
         << Row::of(ChoiceKind, "Compass information-bearing", numbers(16)).at(173).adjustable().frame(bodyFrame)
         << Row::choice("language settings", {"Chinese", "English"}).at(174).adjustable().frame(bodyFrame);
    return Family67::numbered(rows);
}

void CarInfoItem67_13::valueStepped(int row, int value)
{
    if (rowKey(row) != ModelSelection) {
        RowPage::valueStepped(row, value);
        return;
    }
    // The model is kept in the buffer and by the head unit before the car
    // hears of it: FD 06 EE 20 code.
    DataBuffer data = buffer();
    data.setByte(ModelByte, quint8(value));
    DataSaveControl::saveUserData(QStringLiteral("CanbusCAR"), value);
    sendFrame(Family67::frame(0xEE, {0x20, modelCode(value)}));
}
