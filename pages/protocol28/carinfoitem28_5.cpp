#include "carinfoitem28_5.h"

#include "frames.h"
#include "requests.h"

#include <cstring>

namespace {

// The energy recovery history: two arrays of fifteen 16-bit values in host
// order, the first for minutes 1 to 15, the second for minutes 16 to 30.
const int FirstHistoryRow = 10;
const int HistoryMinutes = 30;
const int HistoryBytes = 30;
const int HistoryOffsets[] = {340, 344};

int historyOffset(int minute) { return HistoryOffsets[(minute - 1) / 15]; }
int historyIndex(int minute) { return (minute - 1) % 15; }

// A complete array's value for the minute: x 0.1, general format, in kWh.
QString historyText(QByteArray const &history, int minute)
{
    quint16 value = 0;
    std::memcpy(&value, history.constData() + 2 * historyIndex(minute), sizeof value);
    return QStringLiteral("%1").arg(value * 0.1, 0, 'g', -1, QLatin1Char(' ')) + QStringLiteral("kWh");
}

} // namespace

CarInfoItem28_5::CarInfoItem28_5(QString const &title, QWidget *parent)
    : RowPage(title, parent)
{
    setShowsStepAtOnce(true);
}

QList<Row> CarInfoItem28_5::rowTable() const
{
    return QList<Row>()
        << Row::of(DistanceKind, "Endurance potential", {0, 65535}).wordAt(320).factor(0.1)
        << Row::of(DistanceKind, "Battery life", {0, 65535}).wordAt(322).factor(0.1)
        << Row::choice("Energy flow", {"none", "TEnergy flow to high-voltage battery",
                                       "Energy flow from high voltage battery"}).wordAt(324)
        << Row::choice("engine", {"not bright", "Bright"}).wordAt(326)
        << Row::choice("Tire drive", {"none", "Electric drive", "Internal combustion engine drive",
                                      "Energy recovery", "Co-drive"}).wordAt(328)
        << Row::of(NumberKind, "battery power", {0, 100}).at(330)
        << Row::of(DistanceKind, "driven distance", {0, 65535}).wordAt(332).factor(0.1)
        << Row::of(DistanceKind, "zero emission", {0, 65535}).wordAt(334).factor(0.1)
        << Row::of(PercentKind, "Proportion", {0, 100}).at(336)
        << Row::of(ElectricKind, "This energy recovery value", {0, 65535}).wordAt(338).unit(1).factor(0.1);
}

void CarInfoItem28_5::initlist()
{
    RowPage::initlist();
    // One row per minute of the history; the number stands between the
    // translated parts of the title. A short array leaves its rows empty.
    const DataBuffer data = buffer();
    for (int minute = 1; minute <= HistoryMinutes; ++minute) {
        const QString title = tr("Energy recovery value at") + tr(" %1 ").arg(minute) + tr("minute");
        const QByteArray history = data.bytes(historyOffset(minute));
        const QString text = history.size() < HistoryBytes ? QString() : historyText(history, minute);
        list.append(ListData(TextKind, title, text, QList<QVariant>(), false, 0, 1.0));
    }
}

void CarInfoItem28_5::ondataChanged()
{
    RowPage::ondataChanged();
    if (!model)
        return;
    // A short array leaves its rows as they are.
    const DataBuffer data = buffer();
    for (int minute = 1; minute <= HistoryMinutes; ++minute) {
        const QByteArray history = data.bytes(historyOffset(minute));
        if (history.size() >= HistoryBytes)
            updateRow(FirstHistoryRow + minute - 1, historyText(history, minute));
    }
}

void CarInfoItem28_5::valueStepped(int, int)
{
    // The rows are read-only; the page keeps only the bare setting frame.
    sendFrame(Frames::make2E(0xC6, {0x00, 0x00}));
}

void CarInfoItem28_5::refreshDataFromCanbus()
{
    const Requests::FrameList requests = Requests::r2({0x52, 0x53});
    for (QByteArray const &frame : requests)
        emit sendData(Frames::sealed(frame));
}
