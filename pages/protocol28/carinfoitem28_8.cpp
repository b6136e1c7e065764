#include "carinfoitem28_8.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_8::CarInfoItem28_8(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

void CarInfoItem28_8::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x54});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
