#include "pages48.h"

namespace {

const int LanguageByte = 35;
const int ParkingStateByte = 46;

// Parking settings are 2E C6 03 sub value 00.
const int Setting = 0xC6;
const int LanguageSub = 0xA4;
const int ParkingSub = 0xA8;

Row offOn(const char *title, int offset)
{
    return Row::choice(title, {"OFF", "ON"}).at(offset);
}

// The car's codes of the languages, in the order of the options. The map
// isn't arithmetic: 13, 16, 17, 24 and 30 are no languages.
QList<int> languageCodes()
{
    return QList<int>() << 2 << 3 << 4 << 5 << 6 << 7 << 8 << 9 << 10 << 11 << 12 << 14 << 15 << 18 << 19
                        << 20 << 21 << 22 << 23 << 25 << 26 << 27 << 28 << 29 << 31;
}

// The language byte is signed. A code outside the map keeps its own
// number as the row's value: 13 shows the option at index 13, a negative
// or large code none.
QVariant languageCode(DataBuffer const &buffer)
{
    return int(buffer.signedByte(LanguageByte));
}

// The parking state is signed; anything above 3 is the last state.
QVariant parkingState(DataBuffer const &buffer)
{
    return qMin(int(buffer.signedByte(ParkingStateByte)), 3);
}

} // namespace

QList<Row> CarInfoItem48_1::rowTable() const
{
    return QList<Row>()
        << offOn("Rear radar working status", 32)
        << offOn("Front radar working status", 33)
        << Row::choice("Radar status", {"normal", "External radar failure", "Front radar failure",
                                        "Rear radar failure"}).at(34)
        << Row::choice("language settings",
                       {"British English", "American English", "German", "Italian", "French", "Canadian French",
                        "Spanish", "Latin Spanish", "Turkish", "Russian", "Dutch", "Polish", "Czech", "Swedish",
                        "Danish", "Norwegian", "Finnish", "Portuguese", "Portuguese Brazilian",
                        "Australian English", "Korean", "Simplified Chinese", "Traditional Chinese", "Arabic",
                        "Thai"})
               .read(languageCode)
               .showCodes(languageCodes(), Row::UnlistedStandsForItself).sendCodes(languageCodes())
               .adjustable().showsStepAtOnce().command(Setting, {LanguageSub, Row::Value, 0x00})
        << offOn("Electric drive-drive with motor", 36)
        << offOn("Electric drive-motor with ngine", 37)
        << offOn("Electric drive-battery with motor", 38)
        << offOn("Electric drive-battery with other", 39)
        << offOn("Electric drive-battery with air conditioner", 40)
        << offOn("Electric drive-the battery is pluggedIn", 41)
        << offOn("Oil driven_fuel with engine", 42)
        << offOn("Oil driven_drive with engine", 43)
        << offOn("Oil driven_motor with engine", 44)
        << offOn("Parking assist function", 45)
        << Row::choice("Automatic parking status", {"OFF", "Parallel parking", "Vertical parking",
                                                    "Parallel parking space"})
               .read(parkingState).adjustable().command(Setting, {ParkingSub, Row::Value, 0x00});
}
