#include "carinfoitem28_3.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_3::CarInfoItem28_3(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem28_3::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2q(0x40, {
        0x00, 0x10, 0x20, 0x30, 0x31, 0x40, 0x50, 0x51, 0x52, 0x60,
        0x70, 0x80, 0x90, 0xA0, 0xB0, 0xB1, 0xB2, 0xC0, 0xC1});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
