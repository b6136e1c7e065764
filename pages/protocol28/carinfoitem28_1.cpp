#include "carinfoitem28_1.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_1::CarInfoItem28_1(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem28_1::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x25, 0x27, 0x14, 0x2A, 0x60, 0x62});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
