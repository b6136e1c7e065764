#include "decoderbox.h"

#include "canobj.h"
#include "framesplitter.h"
#include "hostsim.h"
#include "scenario.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>
#include <QTimer>

#include <cmath>

namespace {

// A request for a data group: 2E 90 ..., FD N 90 ..., FD N 8F ..., and the
// one request with length and command swapped, FD 90 N ....
bool isRequest(QByteArray const &frame)
{
    const quint8 header = quint8(frame.at(0));
    if (header == 0x2E)
        return quint8(frame.at(1)) == 0x90;
    return header == 0xFD
        && (quint8(frame.at(2)) == 0x90 || quint8(frame.at(2)) == 0x8F || quint8(frame.at(1)) == 0x90);
}

// "2E A8 02 01 0A ck" into bytes and the bits that must match ("??" none).
bool parseFrame(QString const &text, QByteArray *bytes, QByteArray *care)
{
    for (QString const &token : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (token == QLatin1String("ck"))
            continue;
        if (token == QLatin1String("??")) {
            bytes->append('\0');
            care->append('\0');
            continue;
        }
        bool ok = false;
        const int byte = token.toInt(&ok, 16);
        if (!ok || byte < 0 || byte > 0xFF)
            return false;
        bytes->append(char(byte));
        care->append(char(0xFF));
    }
    return bytes->size() >= 2;
}

// What the car reports in a text row, by what the row's title asks for: the
// box sends ready texts with their units. The first title word that matches
// decides; a plain number for the rest.
QString sampleText(QString const &title)
{
    static const struct
    {
        char const *word;
        char const *text;
    } samples[] = {
        {"frequency", "98.5 MHz"},     {"power consumption", "16.4 kWh/100km"},
        {"consumption", "6.8 L/100km"}, {"speed", "46 km/h"},
        {"time", "01:25"},              {"range", "412 km"},
        {"mileage", "1268 km"},         {"distance", "38 km"},
        {"temperature", "21.5 \u2103"}, {"pressure", "2.4 bar"},
        {"voltage", "12.6 V"},          {"oil", "82 %"},
        {"version", "V1.02"},           {"name", "Demo car"},
    };
    for (auto const &sample : samples) {
        if (title.contains(QLatin1String(sample.word), Qt::CaseInsensitive))
            return QString::fromUtf8(sample.text);
    }
    return QStringLiteral("1234");
}

} // namespace

DecoderBox::DecoderBox(QObject *parent)
    : QObject(parent)
{
    // For queued connections and signal spies.
    qRegisterMetaType<QList<DecoderBox::WrittenByte>>();
}

bool DecoderBox::load(QString const &file, QString *error)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("%1: %2").arg(file, input.errorString());
        load(QJsonObject(), nullptr);
        return false;
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(input.readAll(), &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        *error = QStringLiteral("%1: not a catalogue (%2 at offset %3)")
                     .arg(file, parseError.errorString())
                     .arg(parseError.offset);
        load(QJsonObject(), nullptr);
        return false;
    }
    if (!document.isObject()) {
        *error = QStringLiteral("%1: not a catalogue (no JSON object)").arg(file);
        load(QJsonObject(), nullptr);
        return false;
    }
    QString reason;
    if (!load(document.object(), &reason)) {
        *error = QStringLiteral("%1: %2").arg(file, reason);
        return false;
    }
    return true;
}

bool DecoderBox::load(QJsonObject const &catalogue, QString *error)
{
    m_families.clear();
    m_familyOfId.clear();
    m_adjustable = m_answered = 0;
    QString reason;
    const QJsonArray families = catalogue.value(QLatin1String("families")).toArray();
    if (families.isEmpty())
        reason = QStringLiteral("no page families in the catalogue");
    for (int i = 0; reason.isEmpty() && i < families.size(); ++i) {
        if (!readFamily(families.at(i).toObject(), &reason))
            reason = QStringLiteral("family %1: %2").arg(families.at(i).toObject().value(QLatin1String("family")).toInt())
                         .arg(reason);
    }
    if (reason.isEmpty())
        return true;
    // Nothing of a refused catalogue stays: no offset of it is ever read.
    m_families.clear();
    m_familyOfId.clear();
    m_adjustable = m_answered = 0;
    if (error)
        *error = reason;
    setEnabled(false);
    return false;
}

namespace {

// An integer of the catalogue within min..max, compared as a double, so
// that no value wraps on its way in.
bool integerIn(QJsonValue const &value, qint64 min, qint64 max, int *out)
{
    const double number = value.toDouble(std::nan(""));
    if (!value.isDouble() || !std::isfinite(number) || number != std::floor(number) || number < double(min)
            || number > double(max))
        return false;
    *out = int(number);
    return true;
}

QString jsonText(QJsonValue const &value)
{
    if (value.isDouble())
        return QString::number(value.toDouble(), 'g', 17);
    if (value.isUndefined())
        return QStringLiteral("(none)");
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact)).mid(1).chopped(1);
}

} // namespace

bool DecoderBox::readWrites(QJsonArray const &array, QList<Write> *writes, QString *error)
{
    for (QJsonValue const &w : array) {
        const QJsonArray write = w.toArray();
        int offset, mask, value;
        if (write.size() != 3 || !integerIn(write.at(0), 0, HostSim::bufferSize() - 1, &offset)
                || !integerIn(write.at(1), 0, 0xFF, &mask) || !integerIn(write.at(2), 0, 0xFF, &value)) {
            *error = QStringLiteral("write %1 is not [OFFSET, MASK, VALUE] with an offset 0..%2 and bytes 0..255")
                         .arg(jsonText(w)).arg(HostSim::bufferSize() - 1);
            return false;
        }
        writes->append(Write{offset, quint8(mask), quint8(value)});
    }
    return true;
}

bool DecoderBox::readFamily(QJsonObject const &familyJson, QString *error)
{
    const int familyNumber = familyJson.value(QLatin1String("family")).toInt();
    Family family;
    for (QJsonValue const &id : familyJson.value(QLatin1String("ids")).toArray()) {
        family.ids.append(id.toInt());
        m_familyOfId.insert(id.toInt(), m_families.size());
    }
    const QJsonArray pages = familyJson.value(QLatin1String("pages")).toArray();
    for (int p = 0; p < pages.size(); ++p) {
        const QJsonObject page = pages.at(p).toObject();
        // Pages count from 1, as the gallery names them.
        const QString pageName = QStringLiteral("%1_%2").arg(familyNumber)
                                     .arg(page.value(QLatin1String("index")).toInt() + 1);
        int bufferId = 0;
        if (page.contains(QLatin1String("buffer"))
                && !integerIn(page.value(QLatin1String("buffer")), 0, 65535, &bufferId)) {
            *error = QStringLiteral("page %1: buffer %2 is not a protocol id 0..65535")
                         .arg(pageName, jsonText(page.value(QLatin1String("buffer"))));
            return false;
        }
        const QJsonArray rows = page.value(QLatin1String("rows")).toArray();
        family.titles.append(page.value(QLatin1String("title")).toString());
        family.rows += rows.size();
        family.emptyPages.append(rows.isEmpty() && !page.value(QLatin1String("ownWidgets")).toBool());
        for (int r = 0; r < rows.size(); ++r) {
            const QJsonObject row = rows.at(r).toObject();
            const QString title = row.value(QLatin1String("title")).toString();
            QString reason;
            const auto refuse = [&](QString const &why) {
                *error = QStringLiteral("page %1, row %2 %3: %4").arg(pageName).arg(r + 1).arg(Scenario::quoted(title), why);
                return false;
            };
            const QJsonObject sample = row.value(QLatin1String("sample")).toObject();
            const QJsonObject source = row.value(QLatin1String("source")).toObject();
            const bool text = source.value(QLatin1String("type")).toString() == QLatin1String("text");
            // A text field is a 4-byte handle.
            int textOffset = -1;
            if (text && !integerIn(source.value(QLatin1String("offset")), 0, HostSim::bufferSize() - 4, &textOffset))
                return refuse(QStringLiteral("text offset %1 outside the buffer (0..%2)")
                                  .arg(jsonText(source.value(QLatin1String("offset")))).arg(HostSim::bufferSize() - 4));
            if (!sample.isEmpty()) {
                QList<Write> writes;
                if (!readWrites(sample.value(QLatin1String("writes")).toArray(), &writes, &reason))
                    return refuse(QStringLiteral("sample: ") + reason);
                family.samples.append(Sample{bufferId, writes, -1, QString()});
            } else if (text) {
                family.samples.append(Sample{bufferId, {}, textOffset, sampleText(title)});
            }
            if (text && !bufferId && !family.textOffsets.contains(textOffset))
                family.textOffsets.append(textOffset);
            if (!row.value(QLatin1String("adjustable")).toBool())
                continue;
            ++m_adjustable;
            if (row.value(QLatin1String("answered")).toBool())
                ++m_answered;
            const QJsonArray steps = row.value(QLatin1String("steps")).toArray();
            for (int s = 0; s < steps.size(); ++s) {
                const QJsonObject step = steps.at(s).toObject();
                Answer answer;
                answer.bufferId = bufferId;
                answer.page = pageName;
                answer.title = title;
                answer.value = step.value(QLatin1String("value")).toInt();
                answer.shows = step.value(QLatin1String("shows")).toBool();
                answer.shown = step.value(QLatin1String("text")).toString();
                if (!parseFrame(step.value(QLatin1String("frame")).toString(), &answer.bytes, &answer.care))
                    continue;
                const QByteArray care = QByteArray::fromHex(step.value(QLatin1String("care")).toString().toLatin1());
                if (care.size() == answer.care.size())
                    answer.care = care;
                if (!readWrites(step.value(QLatin1String("writes")).toArray(), &answer.writes, &reason))
                    return refuse(QStringLiteral("step %1: %2").arg(s + 1).arg(reason));
                family.byPrefix[answer.bytes.left(3)].append(family.answers.size());
                family.answers.append(answer);
            }
        }
    }
    m_families.append(family);
    return true;
}

bool DecoderBox::isLoaded() const
{
    return !m_families.isEmpty();
}

void DecoderBox::setEnabled(bool enabled)
{
    enabled = enabled && isLoaded();
    if (enabled == m_enabled)
        return;
    m_enabled = enabled;
    emit enabledChanged(enabled);
}

bool DecoderBox::isEnabled() const
{
    return m_enabled;
}

void DecoderBox::setDelay(int ms)
{
    m_delay = qMax(0, ms);
}

int DecoderBox::delay() const
{
    return m_delay;
}

int DecoderBox::adjustableRows() const
{
    return m_adjustable;
}

int DecoderBox::answeredRows() const
{
    return m_answered;
}

bool DecoderBox::writeSamples(int protocolId) const
{
    if (!m_familyOfId.contains(protocolId))
        return false;
    for (Sample const &sample : m_families.at(m_familyOfId.value(protocolId)).samples) {
        DataBuffer buffer = HostSim::buffer(sample.bufferId ? sample.bufferId : protocolId);
        for (Write const &w : sample.writes)
            buffer.setByte(w.offset, quint8((buffer.byte(w.offset) & ~w.mask) | (w.value & w.mask)));
        // The catalogue's offsets were checked when it was read.
        if (sample.textOffset >= 0)
            buffer.setText(sample.textOffset, sample.text);
    }
    return true;
}

QStringList DecoderBox::pageTitles(int protocolId) const
{
    return m_familyOfId.contains(protocolId) ? m_families.at(m_familyOfId.value(protocolId)).titles : QStringList();
}

bool DecoderBox::hasOnlyEmptyPages(int protocolId) const
{
    if (!m_familyOfId.contains(protocolId))
        return false;
    Family const &family = m_families.at(m_familyOfId.value(protocolId));
    return !family.emptyPages.isEmpty() && !family.emptyPages.contains(false);
}

bool DecoderBox::isEmptyPage(int protocolId, int page) const
{
    return m_familyOfId.contains(protocolId) && m_families.at(m_familyOfId.value(protocolId)).emptyPages.value(page);
}

int DecoderBox::rowCount(int protocolId) const
{
    return m_familyOfId.contains(protocolId) ? m_families.at(m_familyOfId.value(protocolId)).rows : 0;
}

QString DecoderBox::familyName(int protocolId) const
{
    // Two titles tell most families apart; a third would crowd the picker.
    constexpr int Named = 2;
    const QStringList titles = pageTitles(protocolId);
    QString name = QStringList(titles.mid(0, Named)).join(QStringLiteral(", "));
    if (titles.size() > Named)
        name += QStringLiteral(", ...");
    return name;
}

QList<DecoderBox::Answer> DecoderBox::matches(Family const &family, QByteArray const &bytes) const
{
    QList<Answer> found;
    for (int index : family.byPrefix.value(bytes.left(3))) {
        Answer const &answer = family.answers.at(index);
        if (answer.bytes.size() != bytes.size())
            continue;
        bool same = true;
        for (int i = 0; same && i < bytes.size(); ++i)
            same = ((answer.bytes.at(i) ^ bytes.at(i)) & answer.care.at(i)) == 0;
        if (same)
            found.append(answer);
    }
    return found;
}

QString DecoderBox::check(QByteArray const &frame, int protocolId, QList<Answer> *found) const
{
    if (frame.size() < 4)
        return frame.isEmpty() ? QStringLiteral("empty frame") : QStringLiteral("too short");
    const quint8 header = quint8(frame.at(0));
    if (header != 0x2E && header != 0xFD)
        return QStringLiteral("unknown header");
    // The box checks the checksum by the same rule as the host fills it.
    QByteArray sealed = frame;
    CanObj::autoCalculateChecksum(sealed);
    if (sealed != frame)
        return QStringLiteral("bad checksum");
    if (isRequest(frame))
        return QString();
    if (!isLoaded())
        return QStringLiteral("no catalogue");
    if (!m_familyOfId.contains(protocolId))
        return QStringLiteral("protocol %1 has no pages").arg(protocolId);
    const QByteArray bytes = frame.left(frame.size() - FrameSplitter::checksumBytes(frame, protocolId));
    *found = matches(m_families.at(m_familyOfId.value(protocolId)), bytes);
    return found->isEmpty() ? QStringLiteral("unknown frame") : QString();
}

QString DecoderBox::describe(QByteArray const &frame, int protocolId) const
{
    QList<Answer> found;
    const QString reason = check(frame, protocolId, &found);
    if (reason == QLatin1String("unknown frame"))
        return reason;
    if (!reason.isEmpty())
        return QStringLiteral("unknown frame (%1)").arg(reason);
    if (found.isEmpty())
        return QStringLiteral("request");
    Answer const &first = found.first();
    bool shows = false;
    for (Answer const &answer : qAsConst(found))
        shows = shows || answer.shows;
    // What the row shows once the car reports the value, with the raw value
    // beside it where the two differ; a catalogue without the row's text
    // gives the raw value.
    const QString raw = QString::number(first.value);
    const QString value = first.shown.isEmpty() || first.shown == raw
            ? raw : QStringLiteral("%1 (raw %2)").arg(first.shown, raw);
    return QStringLiteral("%1 %2 -> %3%4").arg(first.page, Scenario::quoted(first.title), value,
                                              shows ? QString() : QStringLiteral(", no answer"));
}

QList<int> DecoderBox::textOffsets(int protocolId) const
{
    return m_familyOfId.contains(protocolId) ? m_families.at(m_familyOfId.value(protocolId)).textOffsets
                                             : QList<int>();
}

bool DecoderBox::isAnswering() const
{
    return m_answering;
}

void DecoderBox::receive(QByteArray const &frame)
{
    if (!m_enabled)
        return;
    QList<Answer> found;
    const QString reason = check(frame, CanObj::id(), &found);
    if (!reason.isEmpty()) {
        const QString text = frame.isEmpty() ? QStringLiteral("(empty)") : Scenario::hex(frame);
        emit unanswered(QStringLiteral("no answer: %1 (%2)").arg(text, reason));
        return;
    }
    QList<Answer> answers;
    for (Answer const &answer : qAsConst(found)) {
        if (answer.shows)
            answers.append(answer);
    }
    if (answers.isEmpty() && !found.isEmpty()) {
        emit unanswered(QStringLiteral("no answer: %1 (unknown frame)").arg(Scenario::hex(frame)));
        return;
    }
    answer(frame, answers);
}

void DecoderBox::answer(QByteArray const &frame, QList<Answer> const &answers)
{
    const int protocolId = CanObj::id();
    QTimer::singleShot(m_delay, this, [this, frame, answers, protocolId] {
        // The car changed protocol meanwhile: the answer is stale.
        if (!m_enabled || CanObj::id() != protocolId)
            return;
        QList<WrittenByte> written;
        for (Answer const &answer : answers) {
            const int bufferId = answer.bufferId ? answer.bufferId : protocolId;
            DataBuffer buffer = HostSim::buffer(bufferId);
            for (Write const &w : answer.writes) {
                const quint8 value = quint8((buffer.byte(w.offset) & ~w.mask) | (w.value & w.mask));
                buffer.setByte(w.offset, value);
                written.append(WrittenByte{bufferId, w.offset, value});
            }
        }
        m_answering = true;
        HostSim::notifyDataChanged();
        m_answering = false;
        emit answered(frame, written);
    });
}
