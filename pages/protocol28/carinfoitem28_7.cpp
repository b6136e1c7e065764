#include "carinfoitem28_7.h"

#include "frames.h"
#include "requests.h"

namespace {

// The setting frame without payload: what a change of a read-only row of
// this page would send.
QByteArray bareSetting(int, int)
{
    return Frames::make2E(0xC6, {0x00, 0x00});
}

} // namespace

CarInfoItem28_7::CarInfoItem28_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem28_7::rowTable() const
{
    return QList<Row>()
        << Row::text("Volkswagen inspection days").textAt(348).frame(bareSetting)
        << Row::text("Volkswagen inspection distance").textAt(352).frame(bareSetting)
        << Row::text("Oil change service days").textAt(356).frame(bareSetting)
        << Row::text("Oil change service distance").textAt(360).frame(bareSetting)
        << Row::choice("Wiper blade in maintenance position", {"OFF", "ON"}).at(364).adjustable()
               .command(0xC6, 0x8C);
}

void CarInfoItem28_7::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2q(0x63, {0x10, 0x11, 0x20, 0x21, 0x22});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
