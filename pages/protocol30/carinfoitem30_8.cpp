#include "pages30.h"

#include "frames.h"

namespace {

// Row r (1 to 15) shows the text at 80 + 4 x (r - 1): the oldest minute
// first.
const int FirstMinuteText = 80;

const char *const minuteTitles[] = {
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 15 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 14 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 13 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 12 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 11 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 10 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 9 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 8 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 7 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 6 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 5 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 4 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 3 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 2 minutes"),
    QT_TRANSLATE_NOOP("CarInfoItem30_8", "Last 1 minutes"),
};

} // namespace

QList<Row> CarInfoItem30_8::rowTable() const
{
    QList<Row> rows;
    rows << Row::choice("Unit of measure", {"MPG", "KM/L", "L/100KM"}).at(76);
    for (int i = 0; i < int(sizeof minuteTitles / sizeof minuteTitles[0]); ++i)
        rows << Row::text(minuteTitles[i]).textAt(FirstMinuteText + 4 * i);
    return rows;
}

void CarInfoItem30_8::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare frame.
    sendFrame(Frames::make2E(0xA0, {0x00, 0x00}));
}
