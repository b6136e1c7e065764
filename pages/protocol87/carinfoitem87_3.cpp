#include "family87.h"
#include "pages87.h"

#include "datasavecontrol.h"

using Family87::Code;
using Family87::codeOf;

namespace {

enum Id { Backlight, CarModel, Configuration, AirVolume, Language, PanoramaState, PanoramaMode, Compass, Mute,
          Volume, MeterLeft, MeterRight };

const int CarModelByte = 69;
const int ConfigurationByte = 70;

// FD 06 A7 model configuration 00: the model and its configuration as a
// pair, seven bytes with the checksum. The model row counts the model from
// 0, the configuration row sends the model's byte as it stands; no pair goes
// out without a model.
QByteArray pairFrame(int model, int configuration)
{
    return Frames::makeFD(0xA7, {model, configuration, 0x00});
}

QByteArray modelFrame(DataBuffer const &data, int)
{
    const int model = data.byte(CarModelByte);
    return model ? pairFrame(model - 1, data.byte(ConfigurationByte)) : QByteArray();
}

QByteArray configurationFrame(DataBuffer const &data, int)
{
    const int model = data.byte(CarModelByte);
    const int configuration = data.byte(ConfigurationByte);
    return model && configuration ? pairFrame(model, configuration) : QByteArray();
}

// The panorama modes go out as the car's codes.
const Code PanoramaCodes[] = {{0, 0}, {1, 2}, {2, 5}, {3, 4}, {4, 3}, {5, 6}, {6, 7}, {7, 8}};

int panoramaCode(int mode)
{
    return codeOf(PanoramaCodes, mode, 0);
}

QByteArray commandFrame(int key, int value)
{
    switch (key) {
    case AirVolume:
        return Frames::makeFD(0x8A, {0x09, value});
    case Language:
        return Family87::setting(0x0B, value);
    case PanoramaState:
    case PanoramaMode:
        return Frames::makeFD(0xA8, {value});
    default:
        return QByteArray();
    }
}

QByteArray compassFrame(DataBuffer const &data, int)
{
    return Frames::makeFD(0xA9, {data.byte(75)});
}

// FD 04 C4: the volume in the low seven bits, mute in the top bit.
QByteArray soundFrame(DataBuffer const &data, int)
{
    return Frames::makeFD(0xC4, {(data.byte(77) & 0x7F) | Family87::bit(data, 76, 0x80)});
}

QByteArray meterFrame(DataBuffer const &data, int)
{
    return Frames::makeFD(0x8C, {data.byte(78), data.byte(79)});
}

} // namespace

QList<Row> CarInfoItem87_3::rowTable() const
{
    // The language and the compass direction show their raw numbers: the
    // car reports 32 languages and 16 directions without names.
    return QList<Row>()
        << Row::of(NumberKind, "Backlight brightness", {0, 15}).id(Backlight).at(68)
        << Row::choice("car model", {"null", "3008", "308,408,C3-XR retain the original car screen",
                                     "4008 Keep the original car screen", "other", "Brazil version C4",
                                     "3008,408 before 13 and 13,etc.,keep the original car small screen"})
               .id(CarModel).at(CarModelByte).adjustable().group(modelFrame)
        << Row::choice("configure", {"null", "Low profile", "Medium profile", "High profile"})
               .id(Configuration).at(ConfigurationByte).adjustable().group(configurationFrame)
        << Row::choice("Air volume intensity", {"Low", "Medium", "High"}).id(AirVolume).at(71).adjustable()
               .frame(commandFrame)
        << Row::of(NumberKind, "language", {0, 31}).id(Language).at(72).adjustable().frame(commandFrame)
        << Row::choice("Panorama state", {"quit", "Enter"}).id(PanoramaState).at(73).adjustable()
               .frame(commandFrame)
        << Row::choice("Panorama mode", {"null", "Standard View", "Auto View", "Zoom View",
                                         "180° View", "Front View", "360°", "Back View"})
               .id(PanoramaMode).at(74).adjustable().sendAs(panoramaCode).frame(commandFrame)
        << Row::of(NumberKind, "Compass information-directions", {0, 15}).id(Compass).at(75).adjustable()
               .group(compassFrame)
        << Row::choice("mute control", {"Not muted", "mute"}).id(Mute).at(76).adjustable().group(soundFrame)
        << Row::of(NumberKind, "volume value", {0, 30}).id(Volume).at(77).adjustable().group(soundFrame)
        << Row::choice("LCD meter custom mode(left)", {"null", "Temperature", "Tachometer", "Trip Computer",
                                                       "Media", "Fatigue Monitoring", "Driving Assist",
                                                       "Mixed Streaming", "Navigation"})
               .id(MeterLeft).at(78).adjustable().group(meterFrame)
        << Row::choice("LCD meter custom mode(right)", {"null", "Temperature", "Tachometer", "Trip Computer",
                                                        "Media", "Fatigue Monitoring", "Driving Assist",
                                                        "Mixed Streaming", "Navigation"})
               .id(MeterRight).at(79).adjustable().group(meterFrame);
}

void CarInfoItem87_3::valueStepped(int row, int value)
{
    // The head unit keeps the car model and its configuration for itself.
    const int key = rowKey(row);
    if (key == CarModel)
        DataSaveControl::saveUserData(QStringLiteral("CanbusCAR"), value);
    else if (key == Configuration)
        DataSaveControl::saveUserData(QStringLiteral("CanbusCARConfigure"), value);
    RowPage::valueStepped(row, value);
}
