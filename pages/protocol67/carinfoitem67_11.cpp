#include "carinfoitem67_11.h"

#include "family67.h"

namespace {

// Row i shows byte 196 + i.
const int FirstByte = 196;

enum Row67_11 { PanoramaView = 1, ParkingGuidance = 2, DistanceWarning = 3, FrontViewMode = 4, RearImage = 7 };

// FD 05 84 value for the panorama's view; FD 06 85 n value for the parking
// aids, the front view mode and the rear camera's image. The rear view mode
// has no frame of its own.
QByteArray panoramaFrame(int id, int value)
{
    switch (id) {
    case PanoramaView:
        return Family67::frame(0x84, {value});
    case ParkingGuidance:
    case DistanceWarning:
    case FrontViewMode:
        return Family67::frame(0x85, {id - 1, value});
    case RearImage:
        return Family67::frame(0x85, {0x04, value});
    default:
        return QByteArray();
    }
}

} // namespace

CarInfoItem67_11::CarInfoItem67_11(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
}

QList<Row> CarInfoItem67_11::rowTable() const
{
    QList<Row> rows = QList<Row>()
        << Row::choice("Before and after image status",
                       {"Exit Panorama", "Current is forward view", "Current is backward view"})
        << Row::choice("Panoramic image status",
                       {"Exit Panorama", "Panorama + Forward", "Forward Only", "Forward + Left", "Forward + Right",
                        "Backward Only (in Forward Mode)", "Panorama + Backward",
                        "Backward Only View (in backward mode)", "Back view + Left view", "Back view + Right view",
                        "Back view + Down view"}).adjustable()
        << Row::choice("Rear view parking guidance", {"OFF", "Open"}).adjustable()
        << Row::choice("Parking distance warning", {"OFF", "Open"}).adjustable()
        << Row::choice("front view mode",
                       {"null", "All views", "Front camera only", "Front + Front left", "Front + Front right"})
               .adjustable()
        << Row::choice("rear view mode", {"null", "All Views", "Back Only", "Back + Left Back", "Back + Right Back"})
               .adjustable()
        << Row::choice("Rear camera-enter and exit", {"quit", "Enter"})
        // Read-only; its frame stands ready all the same.
        << Row::choice("Rear samera-image status",
                       {"no image", "Image 1", "Image 2", "Image 3", "Image 4", "Image 5"});
    for (int i = 0; i < rows.size(); ++i)
        rows[i].at(FirstByte + i).frame(panoramaFrame);
    return Family67::numbered(rows);
}
