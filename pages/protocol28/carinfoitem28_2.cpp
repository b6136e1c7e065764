#include "carinfoitem28_2.h"

#include "frames.h"
#include "requests.h"

CarInfoItem28_2::CarInfoItem28_2(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
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
