#include "pages30.h"

#include "frames.h"
#include "listmodel1.h"

namespace {

// The ceiling screen's power and rear system lock: 2E 84 02 sub value.
const int Media = 0x84;

// The discs lie in the buffer from DISC6 at 196 down to DISC1 at 201.
const int FirstDiscByte = 196;
const char *const discTitles[] = {
    QT_TRANSLATE_NOOP("CarInfoItem30_9", "Does DISC6 have a disc"),
    QT_TRANSLATE_NOOP("CarInfoItem30_9", "Does DISC5 have a disc"),
    QT_TRANSLATE_NOOP("CarInfoItem30_9", "Does DISC4 have a disc"),
    QT_TRANSLATE_NOOP("CarInfoItem30_9", "Does DISC3 have a disc"),
    QT_TRANSLATE_NOOP("CarInfoItem30_9", "Does DISC2 have a disc"),
    QT_TRANSLATE_NOOP("CarInfoItem30_9", "Does DISC1 have a disc"),
};
const int Discs = int(sizeof discTitles / sizeof discTitles[0]);

// The band of the preset stations and the six stations themselves: 16-bit
// numbers, low byte first, in a byte array.
const int PresetBandByte = 216;
const int PresetArray = 220;
const int FirstPresetRow = 18;
const int Presets = 6;
// An array shorter than this holds no complete set of stations.
const int PresetBytes = 2 * Presets;

bool isPresetRow(int row) { return row >= FirstPresetRow && row < FirstPresetRow + Presets; }

// --- Display maps -------------------------------------------------------

// The player's states skip a code: from 6 on, a state shows one option
// lower.
int playerState(int code) { return code < 6 ? code : code - 1; }

// The ceiling screen's source: 255 is "unknown".
int ceilingSource(int code) { return code == 255 ? 7 : code; }

// The bands FM1, FM2 and AM are codes 1, 2 and 16; other codes show nothing.
int band(int code)
{
    switch (code) {
    case 1: return 0;
    case 2: return 1;
    case 16: return 2;
    default: return -1;
    }
}

// A preset station in the band's unit: FM in hundredths of a MHz, AM in
// KHz. Another band byte shows the bare number.
QString presetText(QByteArray const &presets, int station, int bandCode)
{
    const int low = quint8(presets.at(2 * station));
    const int high = quint8(presets.at(2 * station + 1));
    const int number = low | (high << 8);
    switch (bandCode) {
    case 1:
    case 2:
        return QString::fromLatin1("%1").arg(number * 0.01, 0, 'g', -1, QLatin1Char(' ')) + QLatin1String("MHz");
    case 16:
        return QString::fromLatin1("%1").arg(number * 1.0, 0, 'g', -1, QLatin1Char(' ')) + QLatin1String("KHz");
    default:
        return QString::number(number);
    }
}

const QList<QVariant> &playerStates()
{
    static const QList<QVariant> states = QList<QVariant>()
        << QString::fromLatin1("Idle state") << QString::fromLatin1("Load status")
        << QString::fromLatin1("Wait status") << QString::fromLatin1("Disc Reading status")
        << QString::fromLatin1("Play status") << QString::fromLatin1("Eject status")
        << QString::fromLatin1("Error status");
    return states;
}

const QList<QVariant> &bands()
{
    static const QList<QVariant> names = QList<QVariant>()
        << QString::fromLatin1("FM1") << QString::fromLatin1("FM2") << QString::fromLatin1("AM");
    return names;
}

} // namespace

QList<Row> CarInfoItem30_9::rowTable() const
{
    QList<Row> rows;
    // 0 .. 5: the disc changer
    for (int disc = 0; disc < Discs; ++disc)
        rows << Row::choice(discTitles[disc], {"without", "Have"}).at(FirstDiscByte + disc);
    // 6 .. 11: player and ceiling screen
    rows << Row::of(ChoiceKind, "CD player status", playerStates()).at(202).display(playerState)
         << Row::of(NumberKind, "Currently selected disc number", {0, 15}).at(203)
         << Row::choice("Ceiling screen status",
                        {"OFF", "DISC", "DISC CD", "DISC DVD", "SD ", "USB", "A/V", "unknown"}).at(204)
                .display(ceilingSource)
         << Row::of(ChoiceKind, "Ceiling media status-CD player status", playerStates()).at(205)
                .display(playerState)
         << Row::choice("Ceiling media status-power supply", {"OFF", "ON"}).at(206).adjustable().command(Media, 0x60)
         << Row::choice("Ceiling media status-rear system lock", {"Unlocked", "Lock up"}).at(207).adjustable()
                .command(Media, 0x61)
    // 12 .. 17: the radio
         << Row::of(ChoiceKind, "Current frequency-band", bands()).at(208).display(band)
         << Row::choice("Current frequency-stereo state", {"Monaural", "stereo"}).at(209)
         << Row::choice("Current frequency-scan status", {"Non-scanning state", "Scan status"}).at(210)
         << Row::of(NumberKind, "Current frequency-preset station number", {0, 15}).at(211)
         << Row::text("Current frequency").textAt(212)
         << Row::of(ChoiceKind, "Preset station-band", bands()).at(PresetBandByte).display(band);
    // 18 .. 23: the preset stations, numbered in initlist()
    for (int station = 0; station < Presets; ++station)
        rows << Row::text("Preset station");
    // 24 .. 30: the player
    rows << Row::of(NumberKind, "Currently selected disc number1", {0, 15}).at(224)
         << Row::choice("Currently selected disc number1", {"Loop off", "Dish loop", "Single cycle"}).at(225)
         << Row::choice("Play order", {"play in order", "Shuffle play"}).at(226)
         << Row::of(NumberKind, "Total repertoire", {0, 65535}).wordAt(228)
         << Row::of(NumberKind, "Current track", {0, 65535}).wordAt(230)
         << Row::text("total time").textAt(232)
         << Row::text("current time").textAt(236);
    return rows;
}

void CarInfoItem30_9::initlist()
{
    RowPage::initlist();
    // The station's number stands behind the translated title.
    for (int station = 0; station < Presets; ++station) {
        ListData numbered = list.at(FirstPresetRow + station);
        numbered.title += tr(" %1 ").arg(station + 1);
        list.replace(FirstPresetRow + station, numbered);
    }
}

QVariant CarInfoItem30_9::currentValue(int row) const
{
    if (!isPresetRow(row))
        return RowPage::currentValue(row);
    const DataBuffer data = buffer();
    const QByteArray presets = data.bytes(PresetArray);
    // Without a complete set of stations the row keeps what it shows: empty
    // until a complete set has come.
    if (presets.size() < PresetBytes)
        return model ? model->getListData().at(row).text : QString();
    return presetText(presets, row - FirstPresetRow, data.byte(PresetBandByte));
}
