#include "carinfoitem28_2.h"

#include "frames.h"
#include "requests.h"

namespace {

// 2E A8 02 row value: the row's index is the sub-command.
QByteArray amplifierFrame(int row, int value)
{
    return Frames::make2E(0xA8, {row, value});
}

} // namespace

CarInfoItem28_2::CarInfoItem28_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
    // Frames go straight to the decoder box; the rows move when the car
    // answers.
}

QList<Row> CarInfoItem28_2::rowTable() const
{
    // The tone and balance rows: lowest, zero point, highest.
    return QList<Row>()
        << Row::of(NumberKind, "volume", {0, 30}).at(105).adjustable().frame(amplifierFrame)
        << Row::of(NumberKind, "Treble", {0, 9, 18}).at(106).adjustable().frame(amplifierFrame)
        << Row::of(NumberKind, "Midrange", {0, 9, 18}).at(107).adjustable().frame(amplifierFrame)
        << Row::of(NumberKind, "bass", {0, 9, 18}).at(108).adjustable().frame(amplifierFrame)
        << Row::of(NumberKind, "Front And Back Balance", {0, 9, 18}).at(109).adjustable().frame(amplifierFrame)
        << Row::of(NumberKind, "Left And Right Balance", {0, 9, 18}).at(110).adjustable().frame(amplifierFrame)
        << Row::of(NumberKind, "Speed Adjustment", {0, 7}).at(111).adjustable().frame(amplifierFrame);
}

void CarInfoItem28_2::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x51});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}

void CarInfoItem28_2::onLeftBtClicked(QModelIndex)
{
}

void CarInfoItem28_2::onRightBtClicked(QModelIndex)
{
}
