#include "pages48.h"

#include "datasavecontrol.h"
#include "frames.h"

namespace {

const int CarModelByte = 106;
const int ConfigurationByte = 107;
const int CompassFunctionByte = 235;
const int CompassDirectionByte = 236;

const int CarModelRow = 6;
const int ConfigurationRow = 7;
const int CompassFunctionRow = 8;
const int CompassDirectionRow = 9;

// The byte that a row's new value is kept in.
int storedAt(int row)
{
    switch (row) {
    case CarModelRow: return CarModelByte;
    case ConfigurationRow: return ConfigurationByte;
    case CompassFunctionRow: return CompassFunctionByte;
    case CompassDirectionRow: return CompassDirectionByte;
    default: return -1;
    }
}

// 2E 91 02 model configuration: the car and its equipment.
QByteArray carFrame(DataBuffer const &data)
{
    return Frames::make2E(0x91, {data.byte(CarModelByte), data.byte(ConfigurationByte)});
}

// 2E C4 01 b: the compass function in bit 7, the direction below it, in
// one byte.
QByteArray compassFrame(DataBuffer const &data)
{
    return Frames::make2E(0xC4, {(data.byte(CompassDirectionByte) + (data.byte(CompassFunctionByte) << 7)) & 0xFF});
}

} // namespace

QList<Row> CarInfoItem48_10::rowTable() const
{
    return QList<Row>()
        << Row::choice("source", {"OFF", "TUNER", "DISC"}).at(224)
        << Row::choice("source parameter", {"AM1", "AM2", "FM1", "FM2"}).at(225)
               .showCodes(QList<int>() << 1 << 2 << 17 << 18, Row::UnlistedStandsForItself)
        << Row::text("Radio frequency").textAt(228)
        // Both read the one byte.
        << Row::of(NumberKind, "Radio-preset station", {0, 10}).at(232)
        << Row::choice("CD Control", {"Play", "Pause", "Previous track", "Next track", "Random track",
                                      "Random folder", "Repeat track", "Repeat folder"}).at(233)
        << Row::of(NumberKind, "CD-play Track", {0, 255}).at(232)
        << Row::choice("Model settings", {"null", "12 Fox, Yibo, Maverick, 13 Carnival", "17-18 Winged Tiger",
                                          "Demolition SYNC", "19-20 Fox", "19 Taurus, 18 Mondeo hybrids",
                                          "19 Territory", "19 wing tigers"}).at(CarModelByte).adjustable()
        << Row::choice("Model settings-Configuration", {"Low profile", "Mid-range", "High dividend"})
               .at(ConfigurationByte).adjustable()
        << Row::choice("Compass function", {"OFF", "ON"}).at(CompassFunctionByte).adjustable()
        << Row::choice("Compass-direction", {"North", "Northeast", "East", "Southeast", "South", "Southwest",
                                             "West", "Northwest"}).at(CompassDirectionByte).adjustable();
}

void CarInfoItem48_10::valueStepped(int row, int value)
{
    const int byte = storedAt(row);
    if (byte < 0)
        return;
    // The new value goes into the buffer, and the frame restates its
    // neighbour from there.
    DataBuffer data = buffer();
    data.setByte(byte, quint8(value));
    if (row == CarModelRow || row == ConfigurationRow)
        sendFrame(carFrame(data));
    else
        sendFrame(compassFrame(data));
    if (row == CarModelRow)
        DataSaveControl::saveUserData(QStringLiteral("CanbusCAR"), value);
    // The row doesn't wait for the car.
    updateRow(row, value);
}
