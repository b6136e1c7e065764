#include "catalogueexport.h"

#include "canobj.h"
#include "carexviewbase.h"
#include "carinfoitem.h"
#include "catalogue.h"
#include "hostsim.h"
#include "listdata.h"
#include "listmodel1.h"
#include "row.h"
#include "rowpage.h"

#include <QJsonDocument>
#include <QMap>
#include <QSet>
#include <QStringList>

#include <cstring>
#include <memory>
#include <optional>

namespace CatalogueExport {

namespace {

// One byte written into a buffer: (byte & ~mask) | (value & mask).
struct Write
{
    int offset;
    int mask;
    int value;
};
typedef QList<Write> Writes;

QJsonArray toJson(Writes const &writes)
{
    QJsonArray array;
    for (Write const &w : writes)
        array.append(QJsonArray{w.offset, w.mask, w.value});
    return array;
}

// The checksum's place: the last two bytes of an 0xFD frame on protocol 67,
// the last byte elsewhere.
int checksumBytes(QByteArray const &frame, int protocolId)
{
    return quint8(frame.at(0)) == 0xFD && protocolId == 67 ? 2 : 1;
}

bool isRequest(QByteArray const &frame)
{
    if (frame.size() < 3)
        return false;
    const quint8 header = quint8(frame.at(0));
    if (header == 0x2E)
        return quint8(frame.at(1)) == 0x90;
    return header == 0xFD && (quint8(frame.at(2)) == 0x90 || quint8(frame.at(2)) == 0x8F || quint8(frame.at(1)) == 0x90);
}

QString hexByte(int byte)
{
    return QStringLiteral("%1").arg(byte & 0xFF, 2, 16, QLatin1Char('0')).toUpper();
}

// "2E A8 02 01 0A ck": the checksum's place marked, and "??" for a byte that
// the page copies from the buffer as it stands.
QString frameText(QByteArray const &frame, QByteArray const &care, int protocolId)
{
    const int slotCount = checksumBytes(frame, protocolId);
    QStringList tokens;
    for (int i = 0; i < frame.size() - slotCount; ++i)
        tokens << (quint8(care.at(i)) == 0 ? QStringLiteral("??") : hexByte(frame.at(i)));
    for (int i = 0; i < slotCount; ++i)
        tokens << QStringLiteral("ck");
    return tokens.join(QLatin1Char(' '));
}

// The bytes of a frame behind header, command and length, without the
// checksum.
QByteArray payload(QByteArray const &frame, int protocolId)
{
    return frame.mid(3, frame.size() - 3 - checksumBytes(frame, protocolId));
}

QString hexText(QByteArray const &bytes)
{
    return QString::fromLatin1(bytes.toHex(' ').toUpper());
}

// A step that lands on a value: from which shown value, by which arrow.
struct Transition
{
    int from;
    bool down;
};

// What one step did: the frame it sent and the buffer before and after.
struct Capture
{
    QByteArray frame;
    QByteArray before;
    QByteArray after;
};

class PageRunner
{
public:
    PageRunner(RowPage *page, ListModel1 *model, int protocolId)
        : m_page(page), m_model(model), m_protocolId(protocolId), m_bufferId(page->dataBufferId())
    {
    }

    DataBuffer buffer() const { return HostSim::buffer(m_bufferId); }
    int bufferId() const { return m_bufferId; }
    void fill(quint8 byte) { std::memset(buffer().data(), byte, size_t(HostSim::bufferSize())); }
    QByteArray snapshot() const
    {
        return QByteArray(reinterpret_cast<const char *>(buffer().data()), HostSim::bufferSize());
    }
    void apply(Writes const &writes)
    {
        DataBuffer data = buffer();
        for (Write const &w : writes)
            data.setByte(w.offset, quint8((data.byte(w.offset) & ~w.mask) | (w.value & w.mask)));
    }
    int shown(int row) const { return m_model->getListData().at(row).value; }
    // The row's value as the screen shows it: with its unit, or the option's text.
    QString shownText(int row) const { return m_model->index(row, 0).data(DisplayValueRole).toString(); }
    // The page reads the buffer anew.
    void refresh() { m_page->ondataChanged(); }

    // The bytes that make the row show value, by the row's own reading of
    // its place; none where the row has no byte or 16-bit place, or no raw
    // value there shows value. Where several raw values show the same, the
    // one among preferred wins: the car reports what the frame carried.
    static std::optional<Writes> placeFor(Row const &row, int value, QByteArray const &preferred = QByteArray())
    {
        QByteArray scratch(HostSim::bufferSize(), '\0');
        DataBuffer data(reinterpret_cast<unsigned char *>(scratch.data()));
        const int offset = row.sourceOffset();
        if (offset < 0 || offset + 1 >= HostSim::bufferSize())
            return std::nullopt;
        if (row.source() == Row::ByteSource) {
            const int place = (row.sourceMask() << row.sourceShift()) & 0xFF;
            for (char byte : preferred) {
                const int raw = quint8(byte);
                if (raw > (row.sourceMask() & 0xFF))
                    continue;
                row.store(data, raw);
                if (row.value(data).toInt() == value)
                    return Writes{{offset, place, data.byte(offset)}};
            }
            for (int raw = 0; raw <= (row.sourceMask() & 0xFF); ++raw) {
                row.store(data, raw);
                if (row.value(data).toInt() == value)
                    return Writes{{offset, place, data.byte(offset)}};
            }
        } else if (row.source() == Row::WordSource) {
            auto found = [&](int raw) {
                row.store(data, raw);
                return row.value(data).toInt() == value;
            };
            bool ok = value >= 0 && value <= 0xFFFF && found(value);
            for (int raw = 0; !ok && raw <= 0xFFFF; ++raw)
                ok = found(raw);
            if (ok)
                return Writes{{offset, 0xFF, data.byte(offset)}, {offset + 1, 0xFF, data.byte(offset + 1)}};
        }
        return std::nullopt;
    }

    // Steps the row for real from the transition's value, on a buffer
    // filled with fillByte.
    Capture step(int row, Row const *tableRow, Transition const &t, quint8 fillByte)
    {
        fill(fillByte);
        if (tableRow && tableRow->startsStepFromBuffer()) {
            if (std::optional<Writes> place = placeFor(*tableRow, t.from))
                apply(*place);
        }
        m_page->ondataChanged();
        const QModelIndex index = m_model->index(row, 0);
        m_model->setData(index, t.from, ValueRole);
        Capture capture;
        capture.before = snapshot();
        HostSim::clearSentFrames();
        m_page->onValueChanged(index, t.down);
        capture.after = snapshot();
        const QList<QByteArray> frames = HostSim::sentFrames();
        for (QByteArray const &frame : frames) {
            if (!isRequest(frame)) {
                capture.frame = frame;
                break;
            }
        }
        if (capture.frame.isEmpty() && !frames.isEmpty())
            capture.frame = frames.first();
        return capture;
    }

    // The page shows value on row once the car reported writes.
    bool shows(int row, Writes const &writes, int value)
    {
        fill(0);
        apply(writes);
        m_page->ondataChanged();
        return shown(row) == value;
    }

private:
    RowPage *m_page;
    ListModel1 *m_model;
    int m_protocolId;
    int m_bufferId;
};

QJsonValue optionValue(QVariant const &option)
{
    if (option.type() == QVariant::String)
        return option.toString();
    if (option.type() == QVariant::Double)
        return option.toDouble();
    return option.toInt();
}

QJsonObject sourceOf(Row const *tableRow)
{
    QJsonObject source;
    if (!tableRow)
        return source;
    switch (tableRow->source()) {
    case Row::NoSource:
        break;
    case Row::ByteSource:
        source = {{"type", "byte"}, {"offset", tableRow->sourceOffset()}, {"mask", tableRow->sourceMask()},
                  {"shift", tableRow->sourceShift()}};
        break;
    case Row::WordSource:
        source = {{"type", "word"}, {"offset", tableRow->sourceOffset()}};
        break;
    case Row::TextSource:
        source = {{"type", "text"}, {"offset", tableRow->sourceOffset()}};
        break;
    case Row::ReaderSource:
        source = {{"type", "reader"}};
        break;
    }
    return source;
}

// A value that a row shows on the demo screens: a choice as on a zeroed
// buffer (a choice may be the context of other rows, such as a unit or a
// mode, and the frames were taken in that context); a number from the
// middle of its range.
// A choice whose option says that the car reports nothing ("null"), where
// the row has other options to show.
bool isNullChoice(ListData const &data, int value)
{
    return data.kind == ChoiceKind && data.options.size() > 1 && value >= 0 && value < data.options.size()
        && data.options.at(value).toString() == QLatin1String("null");
}

int sampleValue(ListData const &data, int zeroValue)
{
    const int n = data.options.size();
    if (data.kind == ChoiceKind) {
        const int value = zeroValue >= 0 && zeroValue < n ? zeroValue : 0;
        return isNullChoice(data, value) ? (value + 1) % n : value;
    }
    if (n >= 2 && data.options.first().type() != QVariant::String)
        return (data.options.first().toInt() + data.options.at(n == 2 || n == 3 ? n - 1 : 1).toInt()) / 2;
    return 1;
}

QJsonObject exportRow(PageRunner &runner, int index, ListData const &data, Row const *tableRow, int protocolId)
{
    // The title as the page shows it: some pages number or complete their
    // table's titles ("0km ordinate" from "km ordinate").
    QJsonObject row{{"title", data.title.isEmpty() && tableRow ? QString::fromUtf8(tableRow->title()) : data.title},
                    {"kind", data.kind},
                    {"unit", data.unit},
                    {"factor", data.factor},
                    {"adjustable", data.adjustable}};
    QJsonArray options;
    for (QVariant const &option : data.options)
        options.append(optionValue(option));
    row["options"] = options;
    if (data.id >= 0)
        row["id"] = data.id;
    const QJsonObject source = sourceOf(tableRow);
    if (!source.isEmpty())
        row["source"] = source;

    if (!data.adjustable || data.kind == TextKind) {
        if (tableRow && data.kind != TextKind) {
            runner.fill(0);
            runner.refresh();
            const int value = sampleValue(data, runner.shown(index));
            const std::optional<Writes> place = PageRunner::placeFor(*tableRow, value);
            if (place && runner.shows(index, *place, value))
                row["sample"] = QJsonObject{{"value", value}, {"writes", toJson(*place)}};
        }
        return row;
    }

    // Every value the row steps to, from what it shows on a zeroed buffer.
    const Row plain = Row::of(data.kind, "", data.options);
    Row const &rule = tableRow ? *tableRow : plain;
    runner.fill(0);
    runner.refresh();
    const int start = runner.shown(index);
    QMap<int, Transition> reached;
    QList<int> queue{start};
    QSet<int> seen{queue.first()};
    while (!queue.isEmpty() && reached.size() < MaxSteps) {
        const int current = queue.takeFirst();
        for (bool down : {true, false}) {
            const int value = rule.step(current, down, data.options, runner.buffer());
            if (!reached.contains(value))
                reached.insert(value, Transition{current, down});
            if (!seen.contains(value)) {
                seen.insert(value);
                queue.append(value);
            }
        }
    }
    const bool direction = tableRow && tableRow->sendsDirection();
    bool answered = queue.isEmpty() && !direction;
    if (direction)
        row["direction"] = true;

    // Every step on a zeroed buffer first: the bits in which the frames of
    // the row's values differ carry the value.
    QMap<int, Capture> captures;
    QByteArray carriesValue;
    for (auto it = reached.constBegin(); it != reached.constEnd(); ++it) {
        const Capture capture = runner.step(index, tableRow, it.value(), 0x00);
        captures.insert(it.key(), capture);
        QByteArray const &first = captures.first().frame;
        if (carriesValue.isEmpty())
            carriesValue = QByteArray(first.size(), '\0');
        if (capture.frame.size() == first.size()) {
            for (int i = 0; i < first.size(); ++i)
                carriesValue[i] = char(carriesValue.at(i) | (capture.frame.at(i) ^ first.at(i)));
        }
    }

    QJsonArray steps;
    QMap<QString, Writes> byPattern;
    for (auto it = reached.constBegin(); it != reached.constEnd(); ++it) {
        const int value = it.key();
        Capture const &capture = captures[value];
        QJsonObject step{{"value", value}};
        if (capture.frame.isEmpty()) {
            answered = false;
            steps.append(step);
            continue;
        }
        // Bits that the page takes from the buffer as it stands (other rows
        // of a group, a setting that goes along, copied or packed by
        // arithmetic): they change when the same step runs on buffers of
        // other patterns, and don't carry the value.
        QByteArray care(capture.frame.size(), char(0xFF));
        for (quint8 pattern : {quint8(0xFF), quint8(0x01), quint8(0x55), quint8(0xAA)}) {
            const Capture other = runner.step(index, tableRow, it.value(), pattern);
            if (other.frame.size() != capture.frame.size())
                continue;
            for (int i = 0; i < care.size(); ++i) {
                const int value = i < carriesValue.size() ? quint8(carriesValue.at(i)) : 0;
                care[i] = char((care.at(i) & ~(capture.frame.at(i) ^ other.frame.at(i))) | value);
            }
        }
        step["frame"] = frameText(capture.frame, care, protocolId);
        const int slotCount = checksumBytes(capture.frame, protocolId);
        bool partial = false;
        for (int i = 0; i < care.size() - slotCount; ++i)
            partial = partial || (quint8(care.at(i)) != 0 && quint8(care.at(i)) != 0xFF);
        if (partial)
            step["care"] = hexText(care.left(care.size() - slotCount));

        std::optional<Writes> writes;
        if (!direction && tableRow)
            writes = PageRunner::placeFor(*tableRow, value, payload(capture.frame, protocolId));
        if (!direction && !writes && capture.after != capture.before) {
            Writes written;
            for (int i = 0; i < capture.after.size(); ++i) {
                if (capture.after.at(i) != capture.before.at(i))
                    written.append(Write{i, 0xFF, quint8(capture.after.at(i))});
            }
            writes = written;
        }
        bool shows = false;
        if (writes) {
            step["writes"] = toJson(*writes);
            shows = runner.shows(index, *writes, value);
            step["shows"] = shows;
            if (shows)
                step["text"] = runner.shownText(index);
            // Two values that send the same frame can't both be answered.
            const QString pattern = step["frame"].toString() + step["care"].toString();
            if (byPattern.contains(pattern)) {
                Writes const &other = byPattern.value(pattern);
                bool same = other.size() == writes->size();
                for (int i = 0; same && i < other.size(); ++i)
                    same = other.at(i).offset == writes->at(i).offset && other.at(i).value == writes->at(i).value;
                if (!same)
                    shows = false;
            }
            byPattern.insert(pattern, *writes);
        }
        answered = answered && shows;
        steps.append(step);
    }
    row["steps"] = steps;
    row["answered"] = answered;

    // The demo value: for a choice the step to its value on a zeroed
    // buffer, else the middle step, that the car can report; never a
    // choice's "null" where it has other options.
    int first = steps.size() / 2;
    for (int i = 0; data.kind == ChoiceKind && i < steps.size(); ++i) {
        if (steps.at(i).toObject().value("value").toInt() == start)
            first = i;
    }
    for (int i = 0; i < steps.size(); ++i) {
        QJsonObject const step = steps.at((first + i) % steps.size()).toObject();
        if (step.value("shows").toBool() && !isNullChoice(data, step.value("value").toInt())) {
            row["sample"] = QJsonObject{{"value", step.value("value")}, {"writes", step.value("writes")}};
            break;
        }
    }
    // A row that the car can't be made to report by a step still shows a
    // value that its place can hold.
    if (!row.contains("sample") && tableRow) {
        const int value = sampleValue(data, start);
        const std::optional<Writes> place = PageRunner::placeFor(*tableRow, value);
        if (place && runner.shows(index, *place, value))
            row["sample"] = QJsonObject{{"value", value}, {"writes", toJson(*place)}};
    }
    return row;
}

} // namespace

QJsonObject exportPage(CarInfoItem *page, int protocolId, QList<int> const &otherIds)
{
    QJsonObject json{{"class", QString::fromLatin1(page->metaObject()->className())},
                     {"title", page->getTitle()}};
    HostSim::setProtocolId(protocolId);
    RowPage *rowPage = qobject_cast<RowPage *>(page);
    if (rowPage) {
        std::memset(HostSim::buffer(rowPage->dataBufferId()).data(), 0, size_t(HostSim::bufferSize()));
    }
    page->createView();
    ListModel1 *model = page->findChild<ListModel1 *>();
    if (!rowPage || !model) {
        json["ownWidgets"] = true;
        json["rows"] = QJsonArray();
        return json;
    }
    // A page that reads one family's buffer whatever the selected id.
    for (int id : otherIds) {
        HostSim::setProtocolId(id);
        if (rowPage->dataBufferId() != id)
            json["buffer"] = rowPage->dataBufferId();
    }
    HostSim::setProtocolId(protocolId);

    PageRunner runner(rowPage, model, protocolId);
    QJsonArray rows;
    const QList<ListData> list = model->getListData();
    QList<Row> const &tableRows = rowPage->rows();
    for (int i = 0; i < list.size(); ++i)
        rows.append(exportRow(runner, i, list.at(i), i < tableRows.size() ? &tableRows.at(i) : nullptr, protocolId));
    json["rows"] = rows;
    runner.fill(0);
    rowPage->ondataChanged();
    HostSim::clearSentFrames();
    return json;
}

Coverage coverageOfPage(QJsonObject const &page)
{
    Coverage coverage;
    for (QJsonValue const &value : page.value("rows").toArray()) {
        const QJsonObject row = value.toObject();
        if (!row.value("adjustable").toBool())
            continue;
        ++coverage.adjustable;
        if (row.value("answered").toBool())
            ++coverage.answered;
    }
    return coverage;
}

QJsonObject exportCatalogue()
{
    QMap<int, QList<int>> idsOfFamily;
    for (int id : Catalogue::protocolIds())
        idsOfFamily[Catalogue::familyOf(id)].append(id);

    QJsonArray families;
    Coverage total;
    for (auto it = idsOfFamily.constBegin(); it != idsOfFamily.constEnd(); ++it) {
        const int family = it.key();
        // The family's own number is always its first id.
        const int protocolId = it.value().first();
        HostSim::reset();
        HostSim::setProtocolId(protocolId);
        std::unique_ptr<CarExViewBase> stack(createPageStack(protocolId, nullptr));
        if (!stack)
            continue;
        // Frames that pages send through the stack reach the bus, as in the
        // extended view.
        QObject::connect(stack.get(), SIGNAL(sendData(QByteArray)), CanObj::instance(),
                         SIGNAL(sendDataToCan(QByteArray)));
        QJsonArray pages;
        Coverage coverage;
        for (int i = 0; i < stack->count(); ++i) {
            CarInfoItem *page = qobject_cast<CarInfoItem *>(stack->widget(i));
            if (!page)
                continue;
            QJsonObject json = exportPage(page, protocolId, it.value().mid(1));
            json["index"] = i;
            const Coverage c = coverageOfPage(json);
            coverage.answered += c.answered;
            coverage.adjustable += c.adjustable;
            pages.append(json);
        }
        total.answered += coverage.answered;
        total.adjustable += coverage.adjustable;
        QJsonArray ids;
        for (int id : it.value())
            ids.append(id);
        families.append(QJsonObject{{"family", family}, {"ids", ids}, {"pages", pages},
                                    {"answered", coverage.answered}, {"adjustable", coverage.adjustable}});
    }
    HostSim::reset();
    return QJsonObject{{"format", 1}, {"families", families}, {"answered", total.answered},
                       {"adjustable", total.adjustable}};
}

namespace {

QString cell(QString text)
{
    return text.replace(QLatin1Char('|'), QLatin1String("\\|")).replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QString sourceText(QJsonObject const &source)
{
    const QString type = source.value("type").toString();
    const int offset = source.value("offset").toInt();
    if (type == "byte") {
        QString text = QString::number(offset);
        if (source.value("mask").toInt() != 0xFF)
            text += QStringLiteral(" & 0x%1").arg(source.value("mask").toInt(), 0, 16);
        if (source.value("shift").toInt())
            text += QStringLiteral(" >> %1").arg(source.value("shift").toInt());
        return text;
    }
    if (type == "word")
        return QStringLiteral("%1 (16-bit)").arg(offset);
    if (type == "text")
        return QStringLiteral("%1 (text)").arg(offset);
    if (type == "reader")
        return QStringLiteral("its own reading");
    return QString();
}

// The kinds of rows by what their value shows, in the order of their
// numbers.
const char *const kindNames[] = {
    "choice", "percent", "temperature", "electric", "pressure", "number", "engine speed",
    "speed", "distance", "unscaled", "text", "time span", "time of day", "suffixed",
};

QString kindText(int kind)
{
    const int count = int(sizeof kindNames / sizeof kindNames[0]);
    return kind >= 0 && kind < count ? QString::fromLatin1(kindNames[kind]) : QString::number(kind);
}

// A family whose every page opens empty: titles, no rows, no widgets of
// its own.
bool withoutRows(QJsonObject const &family)
{
    const QJsonArray pages = family.value("pages").toArray();
    for (QJsonValue const &p : pages) {
        const QJsonObject page = p.toObject();
        if (page.value("ownWidgets").toBool() || !page.value("rows").toArray().isEmpty())
            return false;
    }
    return !pages.isEmpty();
}

} // namespace

QString reference(QJsonObject const &catalogue)
{
    QString text;
    text += QStringLiteral("# The catalogue of vehicles\n\n");
    text += QStringLiteral("Every page family with its protocol ids and pages, and every row: its kind, "
                           "where its value lies in the data buffer, and what a step on it sends "
                           "(`ck` is the checksum, `??` a byte copied from the buffer). A row is "
                           "*answered* when every value it steps to goes out in its frame and the "
                           "simulator's decoder box can report it back.\n\n");
    text += QStringLiteral("Adjustable rows answered: %1 of %2.\n\n")
                .arg(catalogue.value("answered").toInt())
                .arg(catalogue.value("adjustable").toInt());
    text += QStringLiteral("A row's kind says how its value shows: ");
    QStringList kinds;
    for (int kind = 0; kind < int(sizeof kindNames / sizeof kindNames[0]); ++kind)
        kinds << QStringLiteral("%1 %2").arg(kind).arg(QLatin1String(kindNames[kind]));
    text += kinds.join(QStringLiteral(", ")) + QStringLiteral(".\n\n");

    QStringList empty;
    int emptyIds = 0;
    int pages = 0;
    int emptyPages = 0;
    for (QJsonValue const &f : catalogue.value("families").toArray()) {
        for (QJsonValue const &p : f.toObject().value("pages").toArray()) {
            ++pages;
            if (!p.toObject().value("ownWidgets").toBool() && p.toObject().value("rows").toArray().isEmpty())
                ++emptyPages;
        }
        if (!withoutRows(f.toObject()))
            continue;
        empty << QString::number(f.toObject().value("family").toInt());
        emptyIds += f.toObject().value("ids").toArray().size();
    }
    if (emptyPages)
        text += QStringLiteral("%1 of the %2 pages have no rows: the catalogue names these pages and their titles "
                               "and nothing more, so they open empty. %3 families (%4 protocol ids) have no page "
                               "with rows at all: families %5.\n\n")
                    .arg(emptyPages)
                    .arg(pages)
                    .arg(empty.size())
                    .arg(emptyIds)
                    .arg(empty.join(QStringLiteral(", ")));

    for (QJsonValue const &f : catalogue.value("families").toArray()) {
        const QJsonObject family = f.toObject();
        QStringList ids;
        for (QJsonValue const &id : family.value("ids").toArray())
            ids << QString::number(id.toInt());
        text += QStringLiteral("## Family %1\n\nProtocol ids %2. Adjustable rows answered: %3 of %4.\n\n")
                    .arg(family.value("family").toInt())
                    .arg(ids.join(QStringLiteral(", ")))
                    .arg(family.value("answered").toInt())
                    .arg(family.value("adjustable").toInt());
        if (withoutRows(family))
            text += QStringLiteral("Its pages have no rows: each opens empty.\n\n");
        for (QJsonValue const &p : family.value("pages").toArray()) {
            const QJsonObject page = p.toObject();
            text += QStringLiteral("### %1. %2 (`%3`)\n\n")
                        .arg(page.value("index").toInt())
                        .arg(page.value("title").toString(), page.value("class").toString());
            if (page.value("ownWidgets").toBool()) {
                text += QStringLiteral("A page of its own widgets.\n\n");
                continue;
            }
            if (page.value("rows").toArray().isEmpty()) {
                text += QStringLiteral("No rows.\n\n");
                continue;
            }
            text += QStringLiteral("| # | Row | Kind | Buffer | Steps | First frame | Answered |\n"
                                   "| --- | --- | --- | --- | --- | --- | --- |\n");
            const QJsonArray rows = page.value("rows").toArray();
            for (int i = 0; i < rows.size(); ++i) {
                const QJsonObject row = rows.at(i).toObject();
                const QJsonArray steps = row.value("steps").toArray();
                QString answered;
                if (row.value("adjustable").toBool())
                    answered = row.value("direction").toBool() ? QStringLiteral("direction")
                                                               : row.value("answered").toBool() ? QStringLiteral("yes")
                                                                                                : QStringLiteral("no");
                text += QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 | %7 |\n")
                            .arg(i)
                            .arg(cell(row.value("title").toString()))
                            .arg(kindText(row.value("kind").toInt()))
                            .arg(sourceText(row.value("source").toObject()))
                            .arg(steps.isEmpty() ? QString() : QString::number(steps.size()))
                            .arg(steps.isEmpty() ? QString()
                                                 : QStringLiteral("`%1`").arg(steps.first().toObject().value("frame").toString()))
                            .arg(answered);
            }
            text += QLatin1Char('\n');
        }
    }
    return text;
}

} // namespace CatalogueExport
