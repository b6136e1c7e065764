#include "framelog.h"

#include "canobj.h"
#include "scenario.h"
#include "simulatorhost.h"

#include <QFile>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringList>

namespace {

const QString ProtocolComment = QStringLiteral("# protocol ");

QString seconds(qint64 ms)
{
    return QStringLiteral("%1.%2").arg(ms / 1000, 9).arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

// Exactly two hex digits: no sign, no prefix.
bool hexByte(QString const &token, char *byte)
{
    const auto digit = [](QChar c) { return c.isDigit() || (c.toLower() >= QLatin1Char('a') && c.toLower() <= QLatin1Char('f')); };
    if (token.size() != 2 || !digit(token.at(0)) || !digit(token.at(1)))
        return false;
    *byte = char(token.toInt(nullptr, 16));
    return true;
}

// Seconds as the log writes them: digits, and at most three after a point;
// never negative, never beyond what the milliseconds of a run can reach.
bool secondsOf(QString const &token, qint64 *ms)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,9})(?:\\.(\\d{1,3}))?$"));
    const QRegularExpressionMatch match = form.match(token);
    if (!match.hasMatch())
        return false;
    const QString fraction = match.captured(2).leftJustified(3, QLatin1Char('0'));
    *ms = match.captured(1).toLongLong() * 1000 + fraction.toInt();
    return true;
}

// "28:106" into the protocol and the offset.
bool place(QString const &token, int *bufferId, int *offset)
{
    static const QRegularExpression form(QStringLiteral("^(\\d{1,5}):(\\d{1,5})$"));
    const QRegularExpressionMatch match = form.match(token);
    if (!match.hasMatch())
        return false;
    *bufferId = match.captured(1).toInt();
    *offset = match.captured(2).toInt();
    return true;
}

} // namespace

FrameLog::FrameLog(QObject *parent)
    : QObject(parent)
{
}

void FrameLog::attach(SimulatorHost &host)
{
    DecoderBox *box = &host.box();
    connect(&host, &SimulatorHost::frameSent, this, [this, box](qint64 ms, QByteArray const &frame) {
        // A frame without bytes puts nothing on the bus.
        if (frame.isEmpty())
            return;
        Entry entry;
        entry.ms = ms;
        entry.protocolId = CanObj::id();
        entry.frame = frame;
        entry.meaning = box->describe(frame, entry.protocolId);
        append(entry);
    });
    SimulatorHost *source = &host;
    connect(box, &DecoderBox::answered, this,
            [this, source](QByteArray const &frame, QList<DecoderBox::WrittenByte> const &written) {
        Entry entry;
        entry.ms = source->elapsed();
        entry.direction = Rx;
        entry.frame = frame;
        entry.protocolId = CanObj::id();
        entry.written = written;
        entry.meaning = QStringLiteral("dataChanged()");
        append(entry);
    });
    connect(&host, &SimulatorHost::reported, this, [this](qint64 ms, FrameSplitter::Piece const &piece) {
        append(boxEntry(ms, piece));
    });
}

FrameLog::Entry FrameLog::boxEntry(qint64 ms, FrameSplitter::Piece const &piece)
{
    Entry entry;
    entry.ms = ms;
    entry.direction = Rx;
    entry.protocolId = CanObj::id();
    entry.fromBox = true;
    entry.piece = piece.kind;
    entry.frame = piece.bytes;
    const QString command = QStringLiteral("box: command ")
            + QStringLiteral("%1").arg(FrameSplitter::command(piece.bytes), 2, 16, QLatin1Char('0')).toUpper();
    entry.meaning = piece.kind == FrameSplitter::Noise ? QStringLiteral("box: noise")
            : piece.kind == FrameSplitter::BadChecksum ? command + QStringLiteral(", bad checksum") : command;
    return entry;
}

QString FrameLog::directionText(Entry const &entry)
{
    if (entry.direction == Tx)
        return QStringLiteral("TX");
    if (entry.fromBox && entry.piece == FrameSplitter::BadChecksum)
        return QStringLiteral("RX-BAD");
    if (entry.fromBox && entry.piece == FrameSplitter::Noise)
        return QStringLiteral("RX-NOISE");
    return QStringLiteral("RX");
}

QList<FrameLog::Entry> const &FrameLog::entries() const
{
    return m_entries;
}

void FrameLog::append(Entry const &entry)
{
    m_entries.append(entry);
    if (m_entries.size() > MaxEntries)
        m_entries.removeFirst();
    emit appended(entry);
}

void FrameLog::clear()
{
    m_entries.clear();
    emit cleared();
}

QString FrameLog::bytesText(Entry const &entry)
{
    if (entry.direction == Tx || entry.fromBox)
        return Scenario::hex(entry.frame);
    QStringList parts;
    // Bytes that follow each other in one buffer make one run.
    for (int i = 0; i < entry.written.size(); ++i) {
        DecoderBox::WrittenByte const &byte = entry.written.at(i);
        const bool continues = i > 0 && entry.written.at(i - 1).bufferId == byte.bufferId
                && entry.written.at(i - 1).offset + 1 == byte.offset;
        if (!continues)
            parts << QStringLiteral("%1:%2").arg(byte.bufferId).arg(byte.offset);
        parts << QStringLiteral("%1").arg(byte.value, 2, 16, QLatin1Char('0')).toUpper();
    }
    return parts.join(QLatin1Char(' '));
}

QString FrameLog::timeText(qint64 ms)
{
    return QStringLiteral("%1.%2").arg(ms / 1000).arg(ms % 1000, 3, 10, QLatin1Char('0'));
}

QString FrameLog::line(Entry const &entry)
{
    QString text = seconds(entry.ms) + QLatin1Char(' ') + directionText(entry);
    const QString bytes = bytesText(entry);
    if (!bytes.isEmpty())
        text += QLatin1Char(' ') + bytes;
    if (!entry.meaning.isEmpty())
        text += QStringLiteral("  # ") + entry.meaning;
    return text;
}

bool FrameLog::parseLine(QString const &text, int protocolId, Entry *entry, QString *error)
{
    const int hash = text.indexOf(QLatin1Char('#'));
    const QStringList tokens = (hash < 0 ? text : text.left(hash)).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    Entry parsed;
    parsed.protocolId = protocolId;
    if (hash >= 0)
        parsed.meaning = text.mid(hash + 1).trimmed();
    if (tokens.size() < 2) {
        *error = QStringLiteral("a time and TX or RX missing");
        return false;
    }
    if (!secondsOf(tokens.at(0), &parsed.ms)) {
        *error = QStringLiteral("time %1 is not a number of seconds").arg(Scenario::excerpt(tokens.at(0)));
        return false;
    }
    const QString direction = tokens.at(1);
    auto frameInto = [&tokens, error](QByteArray *frame) {
        for (int i = 2; i < tokens.size(); ++i) {
            char byte;
            if (!hexByte(tokens.at(i), &byte)) {
                *error = QStringLiteral("%1 is not a byte in hex").arg(Scenario::excerpt(tokens.at(i)));
                return false;
            }
            frame->append(byte);
        }
        return true;
    };
    // A real box's report: RX and a frame's bytes (from its header 2E or
    // FD, where an answer has PROTOCOL:OFFSET), or RX-BAD, RX-NOISE.
    const bool boxFrame = direction == QLatin1String("RX") && tokens.size() > 2
            && (tokens.at(2).compare(QLatin1String("2E"), Qt::CaseInsensitive) == 0
                || tokens.at(2).compare(QLatin1String("FD"), Qt::CaseInsensitive) == 0);
    if (boxFrame || direction == QLatin1String("RX-BAD") || direction == QLatin1String("RX-NOISE")) {
        parsed.direction = Rx;
        parsed.fromBox = true;
        parsed.piece = boxFrame ? FrameSplitter::Frame
                : direction == QLatin1String("RX-BAD") ? FrameSplitter::BadChecksum : FrameSplitter::Noise;
        if (!frameInto(&parsed.frame))
            return false;
        if (parsed.frame.isEmpty()) {
            *error = QStringLiteral("%1 without bytes").arg(direction);
            return false;
        }
    } else if (direction == QLatin1String("TX")) {
        if (tokens.size() < 3) {
            *error = QStringLiteral("a TX line without the frame's bytes");
            return false;
        }
        if (!frameInto(&parsed.frame))
            return false;
    } else if (direction == QLatin1String("RX")) {
        parsed.direction = Rx;
        int bufferId = -1, offset = 0;
        for (int i = 2; i < tokens.size(); ++i) {
            char byte;
            if (place(tokens.at(i), &bufferId, &offset))
                continue;
            if (bufferId < 0 || !hexByte(tokens.at(i), &byte)) {
                *error = QStringLiteral("%1 is neither PROTOCOL:OFFSET nor a byte in hex after one")
                             .arg(Scenario::excerpt(tokens.at(i)));
                return false;
            }
            parsed.written.append(DecoderBox::WrittenByte{bufferId, offset++, quint8(byte)});
        }
    } else {
        *error = QStringLiteral("direction %1 is none of TX, RX, RX-BAD, RX-NOISE").arg(Scenario::excerpt(tokens.at(1)));
        return false;
    }
    *entry = parsed;
    return true;
}

QString FrameLog::text(QList<Entry> const &entries)
{
    QString text = QStringLiteral("# headunit-sim frame log: seconds, TX (plug-in to decoder box) or RX "
                                  "(the box's answer: PROTOCOL:OFFSET and the bytes written; a real box's frame; RX-BAD its frame with a bad checksum, "
                                  "RX-NOISE bytes that start no frame), bytes in hex\n");
    int protocolId = -1;
    for (Entry const &entry : entries) {
        if (entry.protocolId != protocolId) {
            protocolId = entry.protocolId;
            text += ProtocolComment + QString::number(protocolId) + QLatin1Char('\n');
        }
        text += line(entry) + QLatin1Char('\n');
    }
    return text;
}

bool FrameLog::parse(QString const &file, QString const &text, QList<Entry> *entries, QString *error)
{
    entries->clear();
    const QStringList lines = text.split(QLatin1Char('\n'));
    int protocolId = 0;
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty())
            continue;
        if (line.startsWith(QLatin1Char('#'))) {
            bool ok = false;
            const int id = line.midRef(ProtocolComment.size()).toInt(&ok);
            if (line.startsWith(ProtocolComment) && ok)
                protocolId = id;
            continue;
        }
        Entry entry;
        QString reason;
        if (!parseLine(line, protocolId, &entry, &reason)) {
            *error = QStringLiteral("%1:%2: %3").arg(file).arg(i + 1).arg(reason);
            return false;
        }
        entries->append(entry);
    }
    return true;
}

bool FrameLog::save(QString const &file, QString *error) const
{
    QSaveFile output(file);
    if (!output.open(QIODevice::WriteOnly | QIODevice::Text)
            || output.write(text(m_entries).toUtf8()) < 0 || !output.commit()) {
        *error = QStringLiteral("%1: can't write the frame log: %2").arg(file, output.errorString());
        return false;
    }
    return true;
}

bool FrameLog::load(QString const &file, QList<Entry> *entries, QString *error)
{
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly | QIODevice::Text)) {
        *error = QStringLiteral("%1: can't read the frame log: %2").arg(file, input.errorString());
        return false;
    }
    QString text;
    return Scenario::decode(file, input.readAll(), &text, error) && parse(file, text, entries, error);
}

bool FrameLog::replay(SimulatorHost &host, QString const &file, QString *error)
{
    QList<Entry> entries;
    if (!load(file, &entries, error))
        return false;
    BoxLink const *link = host.link();
    const bool linked = link && link->state() != BoxLink::Unlinked;
    bool anything = false;
    for (Entry const &entry : qAsConst(entries)) {
        if (entry.direction == Tx && !linked && !host.box().isEnabled()) {
            *error = QStringLiteral("the decoder box is off (box on first)");
            return false;
        }
        anything = anything || entry.direction == Tx || entry.fromBox;
    }
    if (!anything) {
        *error = QStringLiteral("%1 holds no TX frames and no reports of a box").arg(file);
        return false;
    }
    for (Entry const &entry : qAsConst(entries)) {
        if (entry.direction == Tx && linked)
            host.link()->send(entry.frame);
        else if (entry.direction == Tx)
            host.box().receive(entry.frame);
        else if (entry.fromBox)
            host.report(FrameSplitter::Piece{entry.piece, entry.frame});
    }
    return true;
}
