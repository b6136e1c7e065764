#include "carinfoitem67_4.h"

#include "family67.h"

namespace {

// Row i shows byte 376 + i; the page writes these bytes itself.
const int FirstByte = 376;

enum Row67_4 { Volume, FrontRear, LeftRight, Bass, Alto, Treble };

// One command per group: the volume alone, the two balances together, the
// three tones together, each from the buffer.
QByteArray amplifierFrame(DataBuffer const &data, int id)
{
    switch (id) {
    case Volume:
        return Family67::frame(0x05, {data.byte(FirstByte)});
    case FrontRear:
    case LeftRight:
        return Family67::frame(0x07, {data.byte(FirstByte + 1), data.byte(FirstByte + 2)});
    default:
        return Family67::frame(0x08, {data.byte(FirstByte + 3), data.byte(FirstByte + 4), data.byte(FirstByte + 5)});
    }
}

} // namespace

CarInfoItem67_4::CarInfoItem67_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_4::rowTable() const
{
    // The tone rows: lowest, zero point, highest.
    return Family67::numbered(QList<Row>()
        << Row::of(NumberKind, "Volume adjustment", {0, 35}).at(FirstByte + Volume).adjustable()
        << Row::of(NumberKind, "front and rear balance", {0, 14}).at(FirstByte + FrontRear).adjustable()
        << Row::of(NumberKind, "balance left and right", {0, 14}).at(FirstByte + LeftRight).adjustable()
        << Row::of(NumberKind, "bass", {0, 10, 20}).at(FirstByte + Bass).adjustable()
        << Row::of(NumberKind, "Alto", {0, 10, 20}).at(FirstByte + Alto).adjustable()
        << Row::of(NumberKind, "Treble", {0, 10, 20}).at(FirstByte + Treble).adjustable());
}

void CarInfoItem67_4::valueStepped(int row, int value)
{
    const int id = rowKey(row);
    if (id < Volume || id > Treble)
        return;
    DataBuffer data = buffer();
    data.setByte(FirstByte + id, quint8(value));
    sendFrame(amplifierFrame(data, id));
    updateRow(row, value);
}
