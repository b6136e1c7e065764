#include "carinfoitem28_5.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_5::CarInfoItem28_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem28_5::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x52, 0x53});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
