#include "carinfoitem28_4.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_4::CarInfoItem28_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem28_4::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2q(0x50, {
        0x10, 0x11, 0x12, 0x20, 0x21, 0x22, 0x30, 0x31, 0x32, 0x40, 0x41,
        0x42, 0x50, 0x51, 0x52, 0x60, 0x61, 0x70, 0x71, 0x72, 0x80});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
