#include "carinfoitem28_6.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_6::CarInfoItem28_6(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
}

void CarInfoItem28_6::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x66, 0x68});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}

void CarInfoItem28_6::middlePressed(int row)
{
    if (row == 8) // the reset row
        emit TirePressure();
}
