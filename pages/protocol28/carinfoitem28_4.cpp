#include "carinfoitem28_4.h"

#include "frames.h"
#include "requests.h"

namespace {

// The decoder box sends ready texts with their units, row r at 236 + 4 x r.
const int FirstText = 236;

const char *const titles[] = {
    "Fuel mileage",
    "Electric range",
    "Total cruising range",
    "Distance since start",
    "Mileage since refueling",
    "Long term mileage",
    "Average consumption since start",
    "Average consumption since refueling",
    "Long term average consumption",
    "Average vehicle speed since start",
    "Average speed since refueling",
    "Long term average speed",
    "Driving time since start",
    "Travel time since refueling",
    "Long driving Time",
    "Instantaneous fuel consumption",
    "Comfortable Appliances",
    "Average power consumption since startup",
    "Average power consumption since refueling",
    "Long withAn average power consumption",
    "Engine Oil Display",
};

} // namespace

CarInfoItem28_4::CarInfoItem28_4(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
    setShowsStepAtOnce(true);
}

QList<Row> CarInfoItem28_4::rowTable() const
{
    QList<Row> rows;
    for (int r = 0; r < int(sizeof titles / sizeof titles[0]); ++r)
        rows << Row::text(titles[r]).textAt(FirstText + 4 * r);
    return rows;
}

void CarInfoItem28_4::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare setting frame.
    sendFrame(Frames::make2E(0xC6, {0x00, 0x00}));
}

void CarInfoItem28_4::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2q(0x50, {
        0x10, 0x11, 0x12, 0x20, 0x21, 0x22, 0x30, 0x31, 0x32, 0x40, 0x41,
        0x42, 0x50, 0x51, 0x52, 0x60, 0x61, 0x70, 0x71, 0x72, 0x80});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
