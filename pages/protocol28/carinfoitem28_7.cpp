#include "carinfoitem28_7.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_7::CarInfoItem28_7(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem28_7::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2q(0x63, {0x10, 0x11, 0x20, 0x21, 0x22});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
