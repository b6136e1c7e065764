#include "scenario.h"

#include "airdata.h"
#include "canobj.h"
#include "carbodydata.h"
#include "cardoordata.h"
#include "hostsim.h"
#include "hoststate.h"
#include "listdata.h"
#include "radardata.h"
#include "recordfields.h"
#include "simulatorhost.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPixmap>
#include <QStackedWidget>
#include <QTableView>
#include <QTextStream>

#include <cstdio>
#include <cstring>
#include <limits>

namespace Scenario {

// --- Tokens -------------------------------------------------------------------

bool tokenize(QString const &line, QList<Token> *tokens, QString *error)
{
    tokens->clear();
    const int size = line.size();
    int i = 0;
    auto isSpace = [](QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\r'); };
    while (i < size) {
        const QChar c = line.at(i);
        if (isSpace(c)) {
            ++i;
            continue;
        }
        if (c == QLatin1Char('#'))
            break;
        Token token;
        if (c == QLatin1Char('"')) {
            token.quoted = true;
            ++i;
            bool closed = false;
            while (i < size) {
                const QChar q = line.at(i++);
                if (q == QLatin1Char('"')) {
                    closed = true;
                    break;
                }
                if (q == QLatin1Char('\\')) {
                    if (i >= size) {
                        *error = QStringLiteral("unterminated quote");
                        return false;
                    }
                    const QChar escaped = line.at(i++);
                    if (escaped != QLatin1Char('"') && escaped != QLatin1Char('\\')) {
                        *error = QStringLiteral("unknown escape \\%1 (only \\\" and \\\\)").arg(escaped);
                        return false;
                    }
                    token.text.append(escaped);
                    continue;
                }
                token.text.append(q);
            }
            if (!closed) {
                *error = QStringLiteral("unterminated quote");
                return false;
            }
            if (i < size && !isSpace(line.at(i)) && line.at(i) != QLatin1Char('#')) {
                *error = QStringLiteral("text after a closing quote");
                return false;
            }
        } else {
            while (i < size && !isSpace(line.at(i)) && line.at(i) != QLatin1Char('#')) {
                if (line.at(i) == QLatin1Char('"')) {
                    *error = QStringLiteral("a quote inside a word");
                    return false;
                }
                token.text.append(line.at(i++));
            }
        }
        tokens->append(token);
    }
    return true;
}

bool parseNumber(Token const &token, qint64 *value)
{
    if (token.quoted)
        return false;
    QString text = token.text;
    bool negative = false;
    if (text.startsWith(QLatin1Char('-'))) {
        negative = true;
        text.remove(0, 1);
    }
    if (text.isEmpty() || text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('-')))
        return false;
    bool ok = false;
    qulonglong magnitude;
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
        const QString digits = text.mid(2);
        if (digits.isEmpty() || digits.startsWith(QLatin1Char('+')) || digits.startsWith(QLatin1Char('-')))
            return false;
        magnitude = digits.toULongLong(&ok, 16);
    } else {
        for (QChar c : text) {
            if (!c.isDigit())
                return false;
        }
        magnitude = text.toULongLong(&ok, 10);
    }
    if (!ok || magnitude > qulonglong(std::numeric_limits<qint64>::max()))
        return false;
    *value = negative ? -qint64(magnitude) : qint64(magnitude);
    return true;
}

QString hex(QByteArray const &bytes)
{
    QStringList parts;
    for (char byte : bytes)
        parts << QStringLiteral("%1").arg(quint8(byte), 2, 16, QLatin1Char('0')).toUpper();
    return parts.join(QLatin1Char(' '));
}

namespace {

// --- Parsing ------------------------------------------------------------------

constexpr qint64 ByteMin = -128, ByteMax = 255;
constexpr qint64 WordMin = -32768, WordMax = 65535;
constexpr qint64 DwordMin = -2147483648LL, DwordMax = 4294967295LL;
constexpr qint64 IntMin = std::numeric_limits<int>::min(), IntMax = std::numeric_limits<int>::max();
// Text, byte-array and list fields take four bytes of a data buffer.
constexpr int FieldSize = 4;
constexpr qint64 MaxWaitMs = 600000;
// The climate record's fields lie below its byte array at 144.
constexpr int AirRecordBytes = 144;

QString patternText(QList<int> const &frame)
{
    QStringList parts;
    for (int byte : frame)
        parts << (byte < 0 ? QStringLiteral("??")
                           : QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0')).toUpper());
    return parts.join(QLatin1Char(' '));
}

QString quote(QString const &text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

// A value of the kind that settings and the root's variants take: true and
// false, numbers, and texts.
QVariant variantOf(Token const &token)
{
    if (!token.quoted) {
        if (token.text == QLatin1String("true"))
            return true;
        if (token.text == QLatin1String("false"))
            return false;
        qint64 number;
        if (parseNumber(token, &number)) {
            if (number >= IntMin && number <= IntMax)
                return int(number);
            return number;
        }
    }
    return token.text;
}

// Reads the tokens of one line, left to right, and keeps the first reason
// for refusing it.
class Reader
{
public:
    explicit Reader(QList<Token> const &tokens) : m_tokens(tokens) {}

    bool atEnd() const { return m_position >= m_tokens.size(); }
    int left() const { return m_tokens.size() - m_position; }
    Token const &peek() const { return m_tokens.at(m_position); }
    Token take() { return m_tokens.at(m_position++); }

    bool fail(QString const &reason)
    {
        if (m_error.isEmpty())
            m_error = reason;
        return false;
    }
    QString error() const { return m_error; }

    bool number(QString const &what, qint64 min, qint64 max, qint64 *value)
    {
        if (atEnd())
            return fail(what + QStringLiteral(" missing"));
        const Token token = take();
        if (!parseNumber(token, value))
            return fail(QStringLiteral("%1 %2 is not a number").arg(what, token.quoted ? quote(token.text) : token.text));
        if (*value < min || *value > max)
            return fail(QStringLiteral("%1 %2 outside %3..%4").arg(what, token.text).arg(min).arg(max));
        return true;
    }

    bool numberInto(QString const &what, qint64 min, qint64 max, QList<qint64> *values)
    {
        qint64 value;
        if (!number(what, min, max, &value))
            return false;
        values->append(value);
        return true;
    }

    // All remaining tokens as numbers; at least one unless allowNone.
    bool numbers(QString const &what, qint64 min, qint64 max, QList<qint64> *values, bool allowNone = false)
    {
        if (atEnd() && !allowNone)
            return fail(what + QStringLiteral(" missing"));
        while (!atEnd()) {
            if (!numberInto(what, min, max, values))
                return false;
        }
        return true;
    }

    bool text(QString const &what, QString *value)
    {
        if (atEnd())
            return fail(what + QStringLiteral(" missing"));
        *value = take().text;
        return true;
    }

    // One of the given words.
    bool choice(QString const &what, QStringList const &words, QString *value)
    {
        if (atEnd())
            return fail(QStringLiteral("%1 missing (%2)").arg(what, words.join(QLatin1Char('|'))));
        const Token token = take();
        if (token.quoted || !words.contains(token.text))
            return fail(QStringLiteral("%1 %2 is not one of %3").arg(what, token.text, words.join(QLatin1Char('|'))));
        *value = token.text;
        return true;
    }

    bool flag(QString const &what, bool *value)
    {
        QString word;
        if (!choice(what, {QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("true"), QStringLiteral("false")}, &word))
            return false;
        *value = word == QLatin1String("1") || word == QLatin1String("true");
        return true;
    }

    bool end()
    {
        if (!atEnd())
            return fail(QStringLiteral("unexpected %1 at the end").arg(peek().quoted ? quote(peek().text) : peek().text));
        return true;
    }

    // An optional @ID before the offset of the buffer commands.
    bool bufferId(int *id)
    {
        *id = CurrentProtocol;
        if (atEnd() || peek().quoted || !peek().text.startsWith(QLatin1Char('@')))
            return true;
        Token token = take();
        token.text.remove(0, 1);
        qint64 value;
        if (!parseNumber(token, &value) || value < 0 || value > 65535)
            return fail(QStringLiteral("protocol id @%1 is not a number 0..65535").arg(token.text));
        *id = int(value);
        return true;
    }

    // An offset into a block of size bytes.
    bool offset(int size, int *value)
    {
        qint64 offset;
        if (!number(QStringLiteral("offset"), 0, size - 1, &offset))
            return false;
        *value = int(offset);
        return true;
    }

private:
    QList<Token> m_tokens;
    int m_position = 0;
    QString m_error;
};

bool fits(Reader &reader, int offset, int length, int size, QString const &what)
{
    if (offset + length > size)
        return reader.fail(QStringLiteral("%1 bytes at offset %2 run past the end of the %3 (%4 bytes)")
                               .arg(length).arg(offset).arg(what).arg(size));
    return true;
}

QString usage(SimulatorHost::Operation const &op)
{
    QStringList parts{QStringLiteral("call"), QLatin1String(op.name)};
    bool optional = false;
    for (char const *p = op.parameters; *p; ++p) {
        QString part;
        switch (*p) {
        case '?': optional = true; continue;
        case 'i': part = QStringLiteral("NUMBER"); break;
        case 'b': part = QStringLiteral("true|false"); break;
        case 's': part = QStringLiteral("\"TEXT\""); break;
        case 'v': part = QStringLiteral("VALUE"); break;
        case 'r': part = QStringLiteral("[radar | int N]"); break;
        }
        parts << (optional ? QLatin1Char('[') + part + QLatin1Char(']') : part);
    }
    return parts.join(QLatin1Char(' '));
}

bool parseCall(Reader &in, Command *c)
{
    if (!in.text(QStringLiteral("operation"), &c->name))
        return false;
    SimulatorHost::Operation const *op = SimulatorHost::operation(c->name);
    if (!op) {
        QStringList names;
        for (SimulatorHost::Operation const &known : SimulatorHost::operations())
            names << QLatin1String(known.name);
        return in.fail(QStringLiteral("no operation %1; the root has %2").arg(c->name, names.join(QStringLiteral(", "))));
    }
    const QString form = usage(*op);
    if (qstrcmp(op->parameters, "r") == 0) {
        if (in.atEnd())
            return true;
        QString kind;
        if (!in.choice(QStringLiteral("argument"), {QStringLiteral("radar"), QStringLiteral("int")}, &kind))
            return in.fail(form);
        c->texts << kind;
        if (kind == QLatin1String("int")) {
            qint64 value;
            if (!in.number(QStringLiteral("int"), IntMin, IntMax, &value))
                return false;
            c->args << int(value);
        }
        return in.end() || in.fail(form);
    }
    bool optional = false;
    for (char const *p = op->parameters; *p; ++p) {
        if (*p == '?') {
            optional = true;
            continue;
        }
        if (in.atEnd()) {
            if (optional)
                break;
            return in.fail(QStringLiteral("too few arguments: %1").arg(form));
        }
        switch (*p) {
        case 'i': {
            qint64 value;
            if (!in.number(QStringLiteral("argument"), IntMin, IntMax, &value))
                return in.fail(form);
            c->args << int(value);
            break;
        }
        case 'b': {
            QString word;
            if (!in.choice(QStringLiteral("argument"), {QStringLiteral("true"), QStringLiteral("false")}, &word))
                return in.fail(form);
            c->args << (word == QLatin1String("true"));
            break;
        }
        case 's':
            c->args << in.take().text;
            break;
        case 'v':
            c->args << variantOf(in.take());
            break;
        }
    }
    if (!in.atEnd())
        return in.fail(QStringLiteral("too many arguments: %1").arg(form));
    return true;
}

bool parseTap(Reader &in, Command *c)
{
    if (in.atEnd())
        return in.fail(QStringLiteral("tap what? title N, row N ZONE, bar back|home, button \"TEXT\", at X Y or an objectName"));
    const Token first = in.take();
    const bool more = !in.atEnd();
    if (!first.quoted && more) {
        const QString &word = first.text;
        if (word == QLatin1String("title")) {
            c->kind = Kind::TapTitle;
            return in.numberInto(QStringLiteral("title"), 0, IntMax, &c->numbers) && in.end();
        }
        if (word == QLatin1String("row")) {
            c->kind = Kind::TapRow;
            return in.numberInto(QStringLiteral("row"), 0, IntMax, &c->numbers)
                    && in.choice(QStringLiteral("zone"), {QStringLiteral("left"), QStringLiteral("right"), QStringLiteral("middle")}, &c->name)
                    && in.end();
        }
        if (word == QLatin1String("bar")) {
            c->kind = Kind::TapBar;
            return in.choice(QStringLiteral("button"), {QStringLiteral("back"), QStringLiteral("home")}, &c->name) && in.end();
        }
        if (word == QLatin1String("button")) {
            c->kind = Kind::TapButton;
            c->texts << in.take().text;
            return in.end();
        }
        if (word == QLatin1String("at")) {
            c->kind = Kind::TapAt;
            return in.numberInto(QStringLiteral("x"), IntMin, IntMax, &c->numbers)
                    && in.numberInto(QStringLiteral("y"), IntMin, IntMax, &c->numbers) && in.end();
        }
    }
    c->kind = Kind::TapObject;
    c->name = first.text;
    return in.end();
}

bool parseExpect(Reader &in, Command *c)
{
    QString what;
    if (!in.text(QStringLiteral("what to expect"), &what))
        return false;
    auto rowNumber = [&] { return in.numberInto(QStringLiteral("row"), 0, IntMax, &c->numbers); };
    auto quoted = [&](char const *name) {
        QString text;
        if (!in.text(QLatin1String(name), &text))
            return false;
        c->texts << text;
        return true;
    };
    if (what == QLatin1String("frame")) {
        c->kind = Kind::ExpectFrame;
        if (in.atEnd())
            return in.fail(QStringLiteral("bytes missing"));
        while (!in.atEnd()) {
            const Token token = in.take();
            if (token.text == QLatin1String("??") && !token.quoted) {
                c->frame << -1;
                continue;
            }
            QString digits = token.text;
            if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
                digits.remove(0, 2);
            bool ok = false;
            const int byte = digits.toInt(&ok, 16);
            if (token.quoted || !ok || digits.size() > 2 || digits.startsWith(QLatin1Char('+'))
                    || digits.startsWith(QLatin1Char('-')))
                return in.fail(QStringLiteral("%1 is not a hex byte or ??").arg(token.text));
            c->frame << byte;
        }
        return true;
    }
    if (what == QLatin1String("frames")) {
        c->kind = Kind::ExpectFrames;
        return in.numberInto(QStringLiteral("count"), 0, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("noframe")) {
        c->kind = Kind::ExpectNoFrame;
        return in.end();
    }
    if (what == QLatin1String("row")) {
        c->kind = Kind::ExpectRow;
        return rowNumber() && quoted("text") && in.end();
    }
    if (what == QLatin1String("rowvalue")) {
        c->kind = Kind::ExpectRowValue;
        return rowNumber() && in.numberInto(QStringLiteral("value"), IntMin, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("rowtitle")) {
        c->kind = Kind::ExpectRowTitle;
        return rowNumber() && quoted("title") && in.end();
    }
    if (what == QLatin1String("rows")) {
        c->kind = Kind::ExpectRows;
        return in.numberInto(QStringLiteral("count"), 0, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("page")) {
        c->kind = Kind::ExpectPage;
        return quoted("title") && in.end();
    }
    if (what == QLatin1String("titles")) {
        c->kind = Kind::ExpectTitles;
        return in.numberInto(QStringLiteral("count"), 0, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("title")) {
        c->kind = Kind::ExpectTitle;
        return in.numberInto(QStringLiteral("title"), 0, IntMax, &c->numbers) && quoted("text") && in.end();
    }
    if (what == QLatin1String("shown") || what == QLatin1String("hidden")) {
        c->kind = what == QLatin1String("shown") ? Kind::ExpectShown : Kind::ExpectHidden;
        return in.text(QStringLiteral("name"), &c->name) && in.end();
    }
    if (what == QLatin1String("message")) {
        c->kind = Kind::ExpectMessage;
        return quoted("text") && in.end();
    }
    if (what == QLatin1String("nomessage")) {
        c->kind = Kind::ExpectNoMessage;
        return in.end();
    }
    if (what == QLatin1String("command")) {
        c->kind = Kind::ExpectCommand;
        return in.text(QStringLiteral("key"), &c->name) && quoted("value") && in.end();
    }
    if (what == QLatin1String("saved")) {
        c->kind = Kind::ExpectSaved;
        if (!in.text(QStringLiteral("key"), &c->name))
            return false;
        if (in.atEnd())
            return in.fail(QStringLiteral("value missing"));
        c->args << variantOf(in.take());
        return in.end();
    }
    if (what == QLatin1String("label")) {
        c->kind = Kind::ExpectLabel;
        return in.text(QStringLiteral("objectName"), &c->name) && quoted("text") && in.end();
    }
    if (what == QLatin1String("down")) {
        c->kind = Kind::ExpectDown;
        bool down;
        if (!in.text(QStringLiteral("objectName"), &c->name) || !in.flag(QStringLiteral("state"), &down))
            return false;
        c->numbers << (down ? 1 : 0);
        return in.end();
    }
    if (what == QLatin1String("exists") || what == QLatin1String("missing")) {
        c->kind = what == QLatin1String("exists") ? Kind::ExpectExists : Kind::ExpectMissing;
        return in.text(QStringLiteral("objectName"), &c->name) && in.end();
    }
    if (what == QLatin1String("visibletext")) {
        c->kind = Kind::ExpectVisibleText;
        return quoted("text") && in.end();
    }
    if (what == QLatin1String("log")) {
        c->kind = Kind::ExpectLog;
        return quoted("text") && in.end();
    }
    return in.fail(QStringLiteral("unknown expectation %1").arg(what));
}

// The buffer commands: [@ID] OFFSET and their values.
bool parseBuffer(Reader &in, Command *c)
{
    const int size = HostSim::BufferSize;
    if (!in.bufferId(&c->id) || !in.offset(size, &c->offset))
        return false;
    switch (c->kind) {
    case Kind::Buf:
        return in.numbers(QStringLiteral("byte"), ByteMin, ByteMax, &c->numbers)
                && fits(in, c->offset, c->numbers.size(), size, QStringLiteral("data buffer"));
    case Kind::Buf16:
        return in.numbers(QStringLiteral("value"), WordMin, WordMax, &c->numbers)
                && fits(in, c->offset, 2 * c->numbers.size(), size, QStringLiteral("data buffer"));
    case Kind::Buf32:
        return in.numberInto(QStringLiteral("value"), DwordMin, DwordMax, &c->numbers) && in.end()
                && fits(in, c->offset, 4, size, QStringLiteral("data buffer"));
    case Kind::Text: {
        QString text;
        if (!in.text(QStringLiteral("text"), &text))
            return false;
        c->texts << text;
        return in.end() && fits(in, c->offset, FieldSize, size, QStringLiteral("data buffer"));
    }
    case Kind::Bytes:
        return in.numbers(QStringLiteral("byte"), ByteMin, ByteMax, &c->numbers, true)
                && fits(in, c->offset, FieldSize, size, QStringLiteral("data buffer"));
    case Kind::Entries:
        while (!in.atEnd()) {
            QString name;
            if (!in.numberInto(QStringLiteral("entry number"), 0, 65535, &c->numbers))
                return false;
            if (!in.text(QStringLiteral("entry name"), &name))
                return false;
            c->texts << name;
        }
        return fits(in, c->offset, FieldSize, size, QStringLiteral("data buffer"));
    default:
        return false;
    }
}

bool parseRecordBytes(Reader &in, Command *c, int size, QString const &record)
{
    if (!in.offset(size, &c->offset))
        return false;
    switch (c->kind) {
    case Kind::Body16:
        return in.numberInto(QStringLiteral("value"), WordMin, WordMax, &c->numbers) && in.end()
                && fits(in, c->offset, 2, size, record);
    case Kind::Body32:
        return in.numberInto(QStringLiteral("value"), DwordMin, DwordMax, &c->numbers) && in.end()
                && fits(in, c->offset, 4, size, record);
    default:
        return in.numbers(QStringLiteral("byte"), ByteMin, ByteMax, &c->numbers)
                && fits(in, c->offset, c->numbers.size(), size, record);
    }
}

bool parseCommand(QString const &word, Reader &in, Command *c)
{
    static const QHash<QString, Kind> plain = {
        {QStringLiteral("buf"), Kind::Buf}, {QStringLiteral("buf16"), Kind::Buf16},
        {QStringLiteral("buf32"), Kind::Buf32}, {QStringLiteral("text"), Kind::Text},
        {QStringLiteral("bytes"), Kind::Bytes}, {QStringLiteral("entries"), Kind::Entries},
        {QStringLiteral("body"), Kind::Body}, {QStringLiteral("body16"), Kind::Body16},
        {QStringLiteral("body32"), Kind::Body32}, {QStringLiteral("radar"), Kind::Radar},
    };
    const auto known = plain.constFind(word);
    if (known != plain.constEnd()) {
        c->kind = known.value();
        if (c->kind == Kind::Radar)
            return parseRecordBytes(in, c, RecordFields::RadarBytes, QStringLiteral("radar record"));
        if (c->kind == Kind::Body || c->kind == Kind::Body16 || c->kind == Kind::Body32)
            return parseRecordBytes(in, c, RecordFields::CarbodyBytes, QStringLiteral("body record"));
        return parseBuffer(in, c);
    }

    if (word == QLatin1String("protocol")) {
        c->kind = Kind::Protocol;
        return in.numberInto(QStringLiteral("protocol id"), IntMin, IntMax, &c->numbers) && in.end();
    }
    if (word == QLatin1String("air")) {
        c->kind = Kind::Air;
        if (!in.offset(AirRecordBytes, &c->offset)
                || !in.numbers(QStringLiteral("byte"), ByteMin, ByteMax, &c->numbers))
            return false;
        for (int i = 0; i < c->numbers.size(); ++i) {
            if (!RecordFields::isAirByte(c->offset + i))
                return in.fail(QStringLiteral("no byte field at offset %1 of the climate record").arg(c->offset + i));
        }
        return true;
    }
    if (word == QLatin1String("air.text")) {
        c->kind = Kind::AirText;
        QString text;
        if (!in.offset(AirRecordBytes, &c->offset) || !in.text(QStringLiteral("text"), &text))
            return false;
        c->texts << text;
        if (!RecordFields::isAirText(c->offset))
            return in.fail(QStringLiteral("no text field at offset %1 of the climate record (16, 20, 28, 36, 44, 108, 112, 116, 120, 124)").arg(c->offset));
        return in.end();
    }
    if (word == QLatin1String("air.type")) {
        c->kind = Kind::AirType;
        return in.numberInto(QStringLiteral("type"), DwordMin, DwordMax, &c->numbers) && in.end();
    }
    if (word == QLatin1String("door")) {
        c->kind = Kind::Door;
        if (!in.numbers(QStringLiteral("byte"), ByteMin, ByteMax, &c->numbers))
            return false;
        if (c->numbers.size() != int(sizeof(CardoorData)))
            return in.fail(QStringLiteral("door takes 6 bytes: front left, front right, rear left, rear right, trunk, hood"));
        return true;
    }
    if (word == QLatin1String("host")) {
        c->kind = Kind::Host;
        bool on;
        if (!in.choice(QStringLiteral("flag"), {QStringLiteral("rightDriver"), QStringLiteral("showReverseLine"),
                                                QStringLiteral("hadReverseLine"), QStringLiteral("disableRadar")}, &c->name)
                || !in.flag(QStringLiteral("value"), &on))
            return false;
        c->numbers << (on ? 1 : 0);
        return in.end();
    }
    if (word == QLatin1String("setting")) {
        c->kind = Kind::Setting;
        if (!in.text(QStringLiteral("key"), &c->name))
            return false;
        if (in.atEnd())
            return in.fail(QStringLiteral("value missing"));
        c->args << variantOf(in.take());
        return in.end();
    }
    if (word == QLatin1String("wallpaper")) {
        c->kind = Kind::Wallpaper;
        return in.choice(QStringLiteral("wallpaper"), {QStringLiteral("on"), QStringLiteral("off")}, &c->name) && in.end();
    }
    if (word == QLatin1String("notify")) {
        c->kind = Kind::Notify;
        return in.end();
    }
    if (word == QLatin1String("call")) {
        c->kind = Kind::Call;
        return parseCall(in, c);
    }
    if (word == QLatin1String("key")) {
        c->kind = Kind::Key;
        if (in.atEnd())
            return in.fail(QStringLiteral("key missing"));
        const Token token = in.peek();
        const int code = HeadUnitKeys::code(token.text);
        if (code >= 0 && !token.quoted) {
            in.take();
            c->name = token.text;
            c->numbers << code;
        } else {
            QStringList names;
            for (HeadUnitKeys::Key const &key : HeadUnitKeys::all())
                names << QLatin1String(key.name);
            qint64 value;
            if (!parseNumber(token, &value))
                return in.fail(QStringLiteral("key %1 is neither a code nor one of %2").arg(token.text, names.join(QLatin1Char(' '))));
            if (!in.numberInto(QStringLiteral("key code"), 0, IntMax, &c->numbers))
                return false;
        }
        return in.end();
    }
    if (word == QLatin1String("tap"))
        return parseTap(in, c);
    if (word == QLatin1String("longpress")) {
        c->kind = Kind::LongPress;
        return in.text(QStringLiteral("objectName"), &c->name)
                && in.numberInto(QStringLiteral("milliseconds"), 0, MaxWaitMs, &c->numbers) && in.end();
    }
    if (word == QLatin1String("wait")) {
        c->kind = Kind::Wait;
        return in.numberInto(QStringLiteral("milliseconds"), 0, MaxWaitMs, &c->numbers) && in.end();
    }
    if (word == QLatin1String("expect"))
        return parseExpect(in, c);
    if (word == QLatin1String("drop")) {
        c->kind = Kind::DropFrames;
        QString what;
        return in.choice(QStringLiteral("what to drop"), {QStringLiteral("frames")}, &what) && in.end();
    }
    if (word == QLatin1String("screenshot")) {
        c->kind = Kind::Screenshot;
        QString file;
        if (!in.text(QStringLiteral("file"), &file))
            return false;
        if (file.isEmpty())
            return in.fail(QStringLiteral("empty file name"));
        c->texts << file;
        return in.end();
    }
    return in.fail(QStringLiteral("unknown command %1").arg(word));
}

} // namespace

bool parseLine(QString const &text, Command *command, bool *isCommand, QString *error)
{
    QList<Token> tokens;
    *isCommand = false;
    if (!tokenize(text, &tokens, error))
        return false;
    if (tokens.isEmpty())
        return true;
    Command parsed;
    parsed.line = command->line;
    parsed.source = text.trimmed();
    Reader in(tokens);
    const Token first = in.take();
    if (first.quoted || !parseCommand(first.text, in, &parsed)) {
        *error = first.quoted ? QStringLiteral("a command starts with a word") : in.error();
        return false;
    }
    *command = parsed;
    *isCommand = true;
    return true;
}

bool parse(QString const &file, QString const &source, Script *script, QString *error)
{
    script->file = file;
    script->commands.clear();
    const QStringList lines = source.split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i) {
        Command command;
        command.line = i + 1;
        bool isCommand = false;
        QString reason;
        if (!parseLine(lines.at(i), &command, &isCommand, &reason)) {
            *error = QStringLiteral("%1:%2: malformed line \"%3\": %4")
                         .arg(file).arg(i + 1).arg(lines.at(i).trimmed(), reason);
            return false;
        }
        if (isCommand)
            script->commands.append(command);
    }
    return true;
}

bool read(QString const &file, QString *name, QString *source, QString *error)
{
    QFile input;
    bool opened;
    if (file == QLatin1String("-")) {
        *name = QStringLiteral("<stdin>");
        opened = input.open(stdin, QIODevice::ReadOnly | QIODevice::Text);
    } else {
        *name = file;
        input.setFileName(file);
        opened = input.open(QIODevice::ReadOnly | QIODevice::Text);
    }
    if (!opened) {
        *error = QStringLiteral("%1: can't read the scenario: %2").arg(*name, input.errorString());
        return false;
    }
    *source = QString::fromUtf8(input.readAll());
    return true;
}

// --- Running ---------------------------------------------------------------------

Runner::Runner(SimulatorHost &host)
    : m_host(host)
{
}

void Runner::setOutputDirectory(QString const &directory)
{
    m_outputDirectory = directory;
}

void Runner::setTrace(bool trace)
{
    m_trace = trace;
}

QStringList Runner::screenshots() const
{
    return m_screenshots;
}

Result Runner::run(Script const &script)
{
    Result result;
    for (Command const &command : script.commands) {
        if (m_trace)
            std::fprintf(stderr, "%s:%d: %s\n", qPrintable(script.file), command.line, qPrintable(command.source));
        QString failure;
        if (!execute(command, &failure)) {
            result.status = Failed;
            result.message = QStringLiteral("%1:%2: %3").arg(script.file).arg(command.line).arg(failure);
            break;
        }
    }
    result.screenshots = m_screenshots;
    return result;
}

bool Runner::execute(Command const &command, QString *failure)
{
    bool held;
    switch (command.kind) {
    case Kind::Protocol: case Kind::Buf: case Kind::Buf16: case Kind::Buf32: case Kind::Text:
    case Kind::Bytes: case Kind::Entries: case Kind::Air: case Kind::AirText: case Kind::AirType:
    case Kind::Door: case Kind::Body: case Kind::Body16: case Kind::Body32: case Kind::Radar:
    case Kind::Host: case Kind::Setting: case Kind::Wallpaper:
        held = setVehicleState(command, failure);
        break;
    case Kind::Notify:
        HostSim::notifyDataChanged();
        held = true;
        break;
    case Kind::Call: {
        QVariantList args = command.args;
        if (command.texts.value(0) == QLatin1String("radar"))
            args = {QVariant::fromValue(*HostSim::radarData())};
        m_host.call(command.name, args);
        held = true;
        break;
    }
    case Kind::Key: case Kind::TapTitle: case Kind::TapRow: case Kind::TapBar: case Kind::TapButton:
    case Kind::TapObject: case Kind::TapAt: case Kind::LongPress: case Kind::Wait:
        held = giveInput(command, failure);
        break;
    case Kind::Screenshot:
        held = takeScreenshot(command.texts.value(0), failure);
        break;
    default:
        held = check(command, failure);
        break;
    }
    SimulatorHost::settle();
    return held;
}

bool Runner::setVehicleState(Command const &c, QString *)
{
    const int id = c.id == CurrentProtocol ? CanObj::id() : c.id;
    DataBuffer buffer = HostSim::buffer(id);
    switch (c.kind) {
    case Kind::Protocol:
        HostSim::setProtocolId(int(c.numbers.value(0)));
        break;
    case Kind::Buf:
        for (int i = 0; i < c.numbers.size(); ++i)
            buffer.setByte(c.offset + i, quint8(c.numbers.at(i)));
        break;
    case Kind::Buf16:
        for (int i = 0; i < c.numbers.size(); ++i)
            buffer.setWord(c.offset + 2 * i, quint16(c.numbers.at(i)));
        break;
    case Kind::Buf32:
        buffer.setDword(c.offset, quint32(c.numbers.value(0)));
        break;
    case Kind::Text:
        buffer.setText(c.offset, c.texts.value(0));
        break;
    case Kind::Bytes: {
        QByteArray bytes;
        for (qint64 byte : c.numbers)
            bytes.append(char(quint8(byte)));
        buffer.setBytes(c.offset, bytes);
        break;
    }
    case Kind::Entries: {
        QList<DateInfo> entries;
        for (int i = 0; i < c.numbers.size(); ++i)
            entries.append(DateInfo(quint16(c.numbers.at(i)), c.texts.value(i)));
        buffer.setEntries(c.offset, entries);
        break;
    }
    case Kind::Air:
        for (int i = 0; i < c.numbers.size(); ++i)
            RecordFields::setAirByte(*HostSim::airData(), c.offset + i, int(c.numbers.at(i)));
        break;
    case Kind::AirText:
        RecordFields::setAirText(*HostSim::airData(), c.offset, c.texts.value(0));
        break;
    case Kind::AirType:
        HostSim::airData()->airType = qint32(quint32(c.numbers.value(0)));
        break;
    case Kind::Door: {
        quint8 *door = reinterpret_cast<quint8 *>(HostSim::cardoorData());
        for (int i = 0; i < c.numbers.size(); ++i)
            door[i] = quint8(c.numbers.at(i));
        break;
    }
    case Kind::Body: case Kind::Radar: {
        unsigned char *record = c.kind == Kind::Body
                ? reinterpret_cast<unsigned char *>(HostSim::carbodyData())
                : reinterpret_cast<unsigned char *>(HostSim::radarData());
        for (int i = 0; i < c.numbers.size(); ++i)
            record[c.offset + i] = quint8(c.numbers.at(i));
        break;
    }
    case Kind::Body16: {
        const quint16 value = quint16(c.numbers.value(0));
        std::memcpy(reinterpret_cast<unsigned char *>(HostSim::carbodyData()) + c.offset, &value, sizeof value);
        break;
    }
    case Kind::Body32: {
        const quint32 value = quint32(c.numbers.value(0));
        std::memcpy(reinterpret_cast<unsigned char *>(HostSim::carbodyData()) + c.offset, &value, sizeof value);
        break;
    }
    case Kind::Host: {
        const bool on = c.numbers.value(0) != 0;
        if (c.name == QLatin1String("rightDriver"))
            HostSim::setRightDriver(on);
        else if (c.name == QLatin1String("showReverseLine"))
            HostSim::setShowReverseLine(on);
        else if (c.name == QLatin1String("hadReverseLine"))
            HostSim::setHadReverseLine(on);
        else
            HostSim::setDisableRadar(on);
        break;
    }
    case Kind::Setting:
        HostSim::setSetting(c.name, c.args.value(0));
        break;
    case Kind::Wallpaper:
        HostSim::setWallpaper(c.name == QLatin1String("on") ? SimulatorHost::wallpaper() : QPixmap());
        break;
    default:
        break;
    }
    return true;
}

bool Runner::giveInput(Command const &c, QString *failure)
{
    QString missing;
    switch (c.kind) {
    case Kind::Key:
        m_host.key(int(c.numbers.value(0)));
        return true;
    case Kind::TapTitle:
        if (m_host.tapTitle(int(c.numbers.value(0)), &missing))
            return true;
        *failure = QStringLiteral("expected title %1 to tap got %2").arg(c.numbers.value(0)).arg(missing);
        return false;
    case Kind::TapRow: {
        const SimulatorHost::Zone zone = c.name == QLatin1String("left") ? SimulatorHost::LeftZone
                : c.name == QLatin1String("right") ? SimulatorHost::RightZone : SimulatorHost::MiddleZone;
        if (m_host.tapRow(int(c.numbers.value(0)), zone, &missing))
            return true;
        *failure = QStringLiteral("expected row %1 to tap got %2").arg(c.numbers.value(0)).arg(missing);
        return false;
    }
    case Kind::TapBar:
        if (m_host.tapBar(c.name, &missing))
            return true;
        *failure = QStringLiteral("expected the bar's %1 button got %2").arg(c.name, missing);
        return false;
    case Kind::TapButton:
        if (QWidget *button = m_host.findButton(c.texts.value(0))) {
            m_host.tapWidget(button);
            return true;
        }
        *failure = QStringLiteral("expected a visible button %1 got none").arg(quote(c.texts.value(0)));
        return false;
    case Kind::TapObject: case Kind::LongPress: {
        QWidget *widget = m_host.findWidget(c.name);
        if (!SimulatorHost::isShown(widget)) {
            *failure = QStringLiteral("expected a visible %1 got %2").arg(c.name, widget ? QStringLiteral("hidden") : QStringLiteral("missing"));
            return false;
        }
        if (c.kind == Kind::TapObject)
            m_host.tapWidget(widget);
        else
            m_host.longPress(widget, int(c.numbers.value(0)));
        return true;
    }
    case Kind::TapAt:
        m_host.tapAt(QPoint(int(c.numbers.value(0)), int(c.numbers.value(1))));
        return true;
    case Kind::Wait:
        SimulatorHost::wait(int(c.numbers.value(0)));
        return true;
    default:
        return true;
    }
}

bool Runner::check(Command const &c, QString *failure)
{
    switch (c.kind) {
    case Kind::ExpectFrame: {
        const QList<QByteArray> frames = m_host.pendingFrames();
        const QString wanted = QStringLiteral("frame ") + patternText(c.frame);
        if (frames.isEmpty()) {
            *failure = QStringLiteral("expected %1 got no frame").arg(wanted);
            return false;
        }
        const QByteArray frame = frames.first();
        bool same = frame.size() == c.frame.size();
        for (int i = 0; same && i < frame.size(); ++i)
            same = c.frame.at(i) < 0 || c.frame.at(i) == quint8(frame.at(i));
        if (!same) {
            *failure = QStringLiteral("expected %1 got %2").arg(wanted, hex(frame));
            return false;
        }
        m_host.consumeFrame();
        return true;
    }
    case Kind::ExpectFrames: case Kind::ExpectNoFrame: {
        const QList<QByteArray> frames = m_host.pendingFrames();
        const int wanted = c.kind == Kind::ExpectNoFrame ? 0 : int(c.numbers.value(0));
        if (frames.size() == wanted)
            return true;
        QStringList listed;
        for (int i = 0; i < frames.size() && i < 8; ++i)
            listed << hex(frames.at(i));
        if (frames.size() > 8)
            listed << QStringLiteral("...");
        const QString got = QString::number(frames.size())
                + (listed.isEmpty() ? QString() : QStringLiteral(": ") + listed.join(QStringLiteral(", ")));
        *failure = c.kind == Kind::ExpectNoFrame
                ? QStringLiteral("expected noframe got %1").arg(got)
                : QStringLiteral("expected frames %1 got %2").arg(wanted).arg(got);
        return false;
    }
    case Kind::DropFrames:
        m_host.dropFrames();
        return true;
    case Kind::ExpectRow: case Kind::ExpectRowValue: case Kind::ExpectRowTitle: case Kind::ExpectRows:
    case Kind::ExpectPage: case Kind::ExpectTitles: case Kind::ExpectTitle:
        return checkPage(c, failure);
    default:
        return checkScreen(c, failure);
    }
}

bool Runner::checkPage(Command const &c, QString *failure)
{
    const qint64 number = c.numbers.value(0);
    const QString text = c.texts.value(0);
    QString wanted;
    switch (c.kind) {
    case Kind::ExpectRow: wanted = QStringLiteral("row %1 %2").arg(number).arg(quote(text)); break;
    case Kind::ExpectRowValue: wanted = QStringLiteral("rowvalue %1 %2").arg(number).arg(c.numbers.value(1)); break;
    case Kind::ExpectRowTitle: wanted = QStringLiteral("rowtitle %1 %2").arg(number).arg(quote(text)); break;
    case Kind::ExpectRows: wanted = QStringLiteral("rows %1").arg(number); break;
    case Kind::ExpectPage: wanted = QStringLiteral("page %1").arg(quote(text)); break;
    case Kind::ExpectTitles: wanted = QStringLiteral("titles %1").arg(number); break;
    default: wanted = QStringLiteral("title %1 %2").arg(number).arg(quote(text)); break;
    }
    auto fail = [&](QString const &got) {
        *failure = QStringLiteral("expected %1 got %2").arg(wanted, got);
        return false;
    };

    if (c.kind == Kind::ExpectTitles || c.kind == Kind::ExpectTitle || c.kind == Kind::ExpectPage) {
        QAbstractItemView *list = m_host.titleList();
        if (!list || !list->model())
            return fail(QStringLiteral("no extended view"));
        QAbstractItemModel *titles = list->model();
        const int count = titles->rowCount();
        if (c.kind == Kind::ExpectTitles)
            return count == number || fail(QString::number(count));
        int index = int(number);
        if (c.kind == Kind::ExpectPage) {
            if (!m_host.currentPage())
                return fail(QStringLiteral("no page in front"));
            index = m_host.pageStack()->currentIndex();
        } else if (number >= count) {
            return fail(QStringLiteral("%1 titles").arg(count));
        }
        const QString title = titles->index(index, 0).data(Qt::DisplayRole).toString();
        return title == text || fail(quote(title));
    }

    QTableView *table = m_host.pageTable();
    QAbstractItemModel *rows = table ? table->model() : nullptr;
    if (!rows)
        return fail(QStringLiteral("no page in front"));
    const int count = rows->rowCount();
    if (c.kind == Kind::ExpectRows)
        return count == number || fail(QString::number(count));
    if (number >= count)
        return fail(QStringLiteral("no row %1 (%2 rows)").arg(number).arg(count));
    const QModelIndex row = rows->index(int(number), 0);
    if (c.kind == Kind::ExpectRowValue) {
        const QVariant value = row.data(ValueRole);
        return (value.isValid() && value.toLongLong() == c.numbers.value(1))
                || fail(value.isValid() ? value.toString() : QStringLiteral("no value"));
    }
    const QString shown = row.data(c.kind == Kind::ExpectRow ? DisplayValueRole : TitleRole).toString();
    return shown == text || fail(quote(shown));
}

bool Runner::checkScreen(Command const &c, QString *failure)
{
    const QString text = c.texts.value(0);
    auto fail = [&](QString const &wanted, QString const &got) {
        *failure = QStringLiteral("expected %1 got %2").arg(wanted, got);
        return false;
    };
    switch (c.kind) {
    case Kind::ExpectShown: case Kind::ExpectHidden: {
        QWidget *widget = m_host.part(c.name);
        const bool shown = SimulatorHost::isShown(widget);
        if (shown == (c.kind == Kind::ExpectShown))
            return true;
        return fail(QStringLiteral("%1 %2").arg(shown ? QStringLiteral("hidden") : QStringLiteral("shown"), c.name),
                    shown ? QStringLiteral("shown") : widget ? QStringLiteral("hidden") : QStringLiteral("missing"));
    }
    case Kind::ExpectMessage: {
        const QString last = HostSim::lastMessage();
        return last == text || fail(QStringLiteral("message %1").arg(quote(text)),
                                    last.isEmpty() ? QStringLiteral("no message") : quote(last));
    }
    case Kind::ExpectNoMessage:
        return !HostSim::messageShowing()
                || fail(QStringLiteral("nomessage"), QStringLiteral("%1 showing").arg(quote(HostSim::lastMessage())));
    case Kind::ExpectCommand: {
        const auto commands = m_host.pendingCommands();
        const QString wanted = QStringLiteral("command %1 %2").arg(c.name, quote(text));
        if (commands.isEmpty())
            return fail(wanted, QStringLiteral("no command"));
        const QPair<QString, QString> first = commands.first();
        if (first.first != c.name || first.second != text)
            return fail(wanted, QStringLiteral("%1 %2").arg(first.first, quote(first.second)));
        m_host.consumeCommand();
        return true;
    }
    case Kind::ExpectSaved: {
        const QVariant wanted = c.args.value(0);
        const QVariant saved = HostSim::savedUserData(c.name);
        const QString wantedText = QStringLiteral("saved %1 %2").arg(c.name, wanted.toString());
        if (!saved.isValid())
            return fail(wantedText, QStringLiteral("nothing"));
        bool savedIsNumber = false;
        const qint64 savedNumber = saved.toLongLong(&savedIsNumber);
        const bool same = (wanted.type() == QVariant::Int || wanted.type() == QVariant::LongLong)
                ? savedIsNumber && savedNumber == wanted.toLongLong()
                : saved.toString() == wanted.toString();
        return same || fail(wantedText, saved.toString());
    }
    case Kind::ExpectLabel: {
        QWidget *widget = m_host.findWidget(c.name);
        QString shown;
        const QString wanted = QStringLiteral("label %1 %2").arg(c.name, quote(text));
        if (!widget || !SimulatorHost::textOf(widget, &shown))
            return fail(wanted, widget ? QStringLiteral("%1 without text").arg(QLatin1String(widget->metaObject()->className()))
                                       : QStringLiteral("no %1").arg(c.name));
        return shown == text || fail(wanted, quote(shown));
    }
    case Kind::ExpectDown: {
        QWidget *widget = m_host.findWidget(c.name);
        bool down = false;
        const QString wanted = QStringLiteral("down %1 %2").arg(c.name).arg(c.numbers.value(0));
        if (!widget || !SimulatorHost::downStateOf(widget, &down))
            return fail(wanted, widget ? QStringLiteral("%1, not a button").arg(QLatin1String(widget->metaObject()->className()))
                                       : QStringLiteral("no %1").arg(c.name));
        return down == (c.numbers.value(0) != 0) || fail(wanted, down ? QStringLiteral("1") : QStringLiteral("0"));
    }
    case Kind::ExpectExists: case Kind::ExpectMissing: {
        const bool exists = m_host.findObject(c.name);
        if (exists == (c.kind == Kind::ExpectExists))
            return true;
        return fail(QStringLiteral("%1 %2").arg(exists ? QStringLiteral("missing") : QStringLiteral("exists"), c.name),
                    exists ? QStringLiteral("exists") : QStringLiteral("missing"));
    }
    case Kind::ExpectVisibleText: {
        const QStringList texts = m_host.visibleTexts();
        if (texts.contains(text))
            return true;
        QStringList shown;
        for (QString const &t : texts) {
            if (!t.isEmpty() && shown.size() < 12)
                shown << quote(t);
        }
        return fail(QStringLiteral("visibletext %1").arg(quote(text)),
                    shown.isEmpty() ? QStringLiteral("no text") : shown.join(QStringLiteral(", ")));
    }
    case Kind::ExpectLog: {
        const QStringList lines = SimulatorHost::messages();
        for (QString const &line : lines) {
            if (line.contains(text))
                return true;
        }
        return fail(QStringLiteral("log %1").arg(quote(text)), QStringLiteral("no such line among %1").arg(lines.size()));
    }
    default:
        return true;
    }
}

bool Runner::takeScreenshot(QString const &file, QString *failure)
{
    const QString path = QFileInfo(file).isAbsolute() || m_outputDirectory.isEmpty()
            ? file : QDir(m_outputDirectory).filePath(file);
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (!m_host.screen()->grab().save(path, "PNG")) {
        *failure = QStringLiteral("expected to write %1 got an error").arg(path);
        return false;
    }
    m_screenshots << QFileInfo(path).absoluteFilePath();
    return true;
}

} // namespace Scenario
