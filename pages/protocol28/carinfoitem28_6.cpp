#include "carinfoitem28_6.h"

#include "../shared/tyrerows.h"
#include "frames.h"
#include "requests.h"

namespace {

// The row whose middle opens the tyre panel.
const int ResetRow = 8;

// The alarm byte to its option: 0, 2, 3, 4 to the first four, anything
// else to "No display".
int alarmOption(int alarm)
{
    switch (alarm) {
    case 0: return 0;
    case 2: return 1;
    case 3: return 2;
    case 4: return 3;
    default: return 4;
    }
}

// Everything on this page comes from the tyre record inside the climate
// record. Without a record the texts are empty and the choices show nothing.
QVariant alarmType(DataBuffer const &)
{
    TirePressureInformation const *record = TyreRows::record();
    return alarmOption(record ? record->alarm[0] : -1);
}

QVariant resetText(DataBuffer const &)
{
    return CarInfoItem28_6::tr("Reset");
}

} // namespace

CarInfoItem28_6::CarInfoItem28_6(QString const &title, QWidget *parent)
    : ClickRowPage(title, parent)
{
    // A status page: a step moves the row and tells the car nothing.
    setShowsStepAtOnce(true);
}

QList<Row> CarInfoItem28_6::rowTable() const
{
    using namespace TyreRows;
    typedef TirePressureInformation Tyres;
    return pressureRows()
        << Row::choice("Front left tire", {"normal", "abnormal"}).read(status<Tyres::FrontLeft>)
        << Row::choice("Front right tire", {"normal", "abnormal"}).read(status<Tyres::FrontRight>)
        << Row::choice("Rear left tire", {"normal", "abnormal"}).read(status<Tyres::RearLeft>)
        << Row::choice("Rear right tire", {"normal", "abnormal"}).read(status<Tyres::RearRight>)
        << Row::text("TPMS").read(resetText)
        << Row::choice("alarm type", {"Tire pressure is normal", "Please check tire pressure",
                                      "Tire pressure is too low", "Tire loss", "No display"}).read(alarmType);
}

void CarInfoItem28_6::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x66, 0x68});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}

void CarInfoItem28_6::middlePressed(int row)
{
    if (row == ResetRow)
        emit TirePressure();
}
