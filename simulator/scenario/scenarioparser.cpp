#include "scenario.h"

#include "cardoordata.h"
#include "hoststate.h"
#include "keys.h"
#include "recordfields.h"
#include "rootcalls.h"

#include <QFile>
#include <QHash>
#include <QTextCodec>

#include <cstdio>
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

QString quoted(QString const &text)
{
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    escaped.replace(QLatin1Char('"'), QLatin1String("\\\""));
    return QLatin1Char('"') + escaped + QLatin1Char('"');
}

QString pattern(QList<int> const &frame)
{
    QStringList parts;
    for (int byte : frame)
        parts << (byte < 0 ? QStringLiteral("??")
                           : QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0')).toUpper());
    return parts.join(QLatin1Char(' '));
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
            return fail(QStringLiteral("%1 %2 is not a number").arg(what, token.quoted ? quoted(token.text) : token.text));
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

    // A setting's value: true, false, a number or a text.
    bool valueInto(QString const &what, QVariantList *values)
    {
        if (atEnd())
            return fail(what + QStringLiteral(" missing"));
        values->append(variantOf(take()));
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
            return fail(QStringLiteral("unexpected %1 at the end").arg(peek().quoted ? quoted(peek().text) : peek().text));
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

bool parseCall(Reader &in, Command *c)
{
    if (!in.text(QStringLiteral("operation"), &c->name))
        return false;
    RootCalls::Operation const *op = RootCalls::find(c->name);
    if (!op) {
        QStringList names;
        for (RootCalls::Operation const &known : RootCalls::all())
            names << QLatin1String(known.name);
        return in.fail(QStringLiteral("no operation %1; the root has %2").arg(c->name, names.join(QStringLiteral(", "))));
    }
    const QString form = RootCalls::usage(*op);
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
        return in.fail(QStringLiteral("tap what? title N, row N ZONE, bar back|home, button \"TEXT\", entry N, at X Y or an objectName"));
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
        if (word == QLatin1String("entry")) {
            c->kind = Kind::TapEntry;
            return in.numberInto(QStringLiteral("entry"), 0, IntMax, &c->numbers) && in.end();
        }
        if (word == QLatin1String("at")) {
            c->kind = Kind::TapAt;
            return in.numberInto(QStringLiteral("x"), IntMin, IntMax, &c->numbers)
                    && in.numberInto(QStringLiteral("y"), IntMin, IntMax, &c->numbers) && in.end();
        }
    }
    // A word with more after it is none of the forms above: a misspelt
    // one, more likely than an objectName with stray words after it.
    if (!first.quoted && more)
        return in.fail(QStringLiteral("tap %1 ...: %1 is not one of title|row|bar|button|entry|at "
                                      "(an objectName stands alone)").arg(excerpt(first.text)));
    c->kind = Kind::TapObject;
    c->name = first.text;
    return in.end();
}

// drag OBJECTNAME FROM TO: per cents of the widget's width, at half its
// height; drag at X1 Y1 X2 Y2: points of the screen.
bool parseDrag(Reader &in, Command *c)
{
    if (in.atEnd())
        return in.fail(QStringLiteral("drag what? OBJECTNAME FROM_PERCENT TO_PERCENT or at X1 Y1 X2 Y2"));
    const Token first = in.take();
    if (!first.quoted && first.text == QLatin1String("at")) {
        c->kind = Kind::DragAt;
        for (char const *what : {"x1", "y1", "x2", "y2"}) {
            if (!in.numberInto(QLatin1String(what), IntMin, IntMax, &c->numbers))
                return false;
        }
        return in.end();
    }
    c->kind = Kind::Drag;
    c->name = first.text;
    return in.numberInto(QStringLiteral("from per cent"), 0, 100, &c->numbers)
            && in.numberInto(QStringLiteral("to per cent"), 0, 100, &c->numbers) && in.end();
}

bool parseExpect(Reader &in, Command *c)
{
    QString what;
    if (!in.text(QStringLiteral("what to expect"), &what))
        return false;
    auto rowNumber = [&] { return in.numberInto(QStringLiteral("row"), 0, IntMax, &c->numbers); };
    auto textInto = [&](char const *name) {
        QString text;
        if (!in.text(QLatin1String(name), &text))
            return false;
        c->texts << text;
        return true;
    };
    // Hex bytes or ?? into c->frame, up to the end or the word "within".
    auto bytesInto = [&] {
        while (!in.atEnd() && !(in.peek().text == QLatin1String("within") && !in.peek().quoted)) {
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
    };
    if (what == QLatin1String("frame")) {
        c->kind = Kind::ExpectFrame;
        if (in.atEnd())
            return in.fail(QStringLiteral("bytes missing"));
        return bytesInto() && in.end();
    }
    // expect rx COMMAND [PAYLOAD] [within MS]: the command and payload in
    // c->frame, the time in numbers.
    if (what == QLatin1String("rx")) {
        c->kind = Kind::ExpectRx;
        if (in.atEnd())
            return in.fail(QStringLiteral("command missing"));
        if (!bytesInto())
            return false;
        if (c->frame.isEmpty() || c->frame.first() < 0)
            return in.fail(QStringLiteral("the command must be a hex byte"));
        c->numbers << DefaultRxWithinMs;
        if (!in.atEnd()) {
            in.take();
            c->numbers.clear();
            if (!in.numberInto(QStringLiteral("milliseconds"), 0, MaxWaitMs, &c->numbers))
                return false;
        }
        return in.end();
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
        return rowNumber() && textInto("text") && in.end();
    }
    if (what == QLatin1String("rowvalue")) {
        c->kind = Kind::ExpectRowValue;
        return rowNumber() && in.numberInto(QStringLiteral("value"), IntMin, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("rowtitle")) {
        c->kind = Kind::ExpectRowTitle;
        return rowNumber() && textInto("title") && in.end();
    }
    if (what == QLatin1String("rows")) {
        c->kind = Kind::ExpectRows;
        return in.numberInto(QStringLiteral("count"), 0, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("page")) {
        c->kind = Kind::ExpectPage;
        return textInto("title") && in.end();
    }
    if (what == QLatin1String("titles")) {
        c->kind = Kind::ExpectTitles;
        return in.numberInto(QStringLiteral("count"), 0, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("title")) {
        c->kind = Kind::ExpectTitle;
        return in.numberInto(QStringLiteral("title"), 0, IntMax, &c->numbers) && textInto("text") && in.end();
    }
    if (what == QLatin1String("shown") || what == QLatin1String("hidden")) {
        c->kind = what == QLatin1String("shown") ? Kind::ExpectShown : Kind::ExpectHidden;
        return in.text(QStringLiteral("name"), &c->name) && in.end();
    }
    if (what == QLatin1String("message")) {
        c->kind = Kind::ExpectMessage;
        return textInto("text") && in.end();
    }
    if (what == QLatin1String("nomessage")) {
        c->kind = Kind::ExpectNoMessage;
        return in.end();
    }
    if (what == QLatin1String("command")) {
        c->kind = Kind::ExpectCommand;
        return in.text(QStringLiteral("key"), &c->name) && textInto("value") && in.end();
    }
    if (what == QLatin1String("saved")) {
        c->kind = Kind::ExpectSaved;
        return in.text(QStringLiteral("key"), &c->name) && in.valueInto(QStringLiteral("value"), &c->args)
            && in.end();
    }
    if (what == QLatin1String("setting")) {
        c->kind = Kind::ExpectSetting;
        return in.text(QStringLiteral("key"), &c->name) && in.valueInto(QStringLiteral("value"), &c->args)
            && in.end();
    }
    if (what == QLatin1String("label")) {
        c->kind = Kind::ExpectLabel;
        return in.text(QStringLiteral("objectName"), &c->name) && textInto("text") && in.end();
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
        return textInto("text") && in.end();
    }
    if (what == QLatin1String("novisibletext")) {
        c->kind = Kind::ExpectNoVisibleText;
        return textInto("text") && in.end();
    }
    if (what == QLatin1String("entries")) {
        c->kind = Kind::ExpectEntries;
        return in.numberInto(QStringLiteral("count"), 0, IntMax, &c->numbers) && in.end();
    }
    if (what == QLatin1String("entry")) {
        c->kind = Kind::ExpectEntry;
        return in.numberInto(QStringLiteral("entry"), 0, IntMax, &c->numbers) && textInto("text") && in.end();
    }
    if (what == QLatin1String("log")) {
        c->kind = Kind::ExpectLog;
        return textInto("text") && in.end();
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
        return in.text(QStringLiteral("key"), &c->name) && in.valueInto(QStringLiteral("value"), &c->args)
            && in.end();
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
            qint64 value;
            if (!parseNumber(token, &value))
                return in.fail(QStringLiteral("key %1 is neither a code nor one of %2")
                                   .arg(token.text, HeadUnitKeys::names().join(QLatin1Char(' '))));
            if (!in.numberInto(QStringLiteral("key code"), 0, IntMax, &c->numbers))
                return false;
        }
        return in.end();
    }
    if (word == QLatin1String("tap"))
        return parseTap(in, c);
    if (word == QLatin1String("longpress")) {
        c->kind = Kind::LongPress;
        // longpress button "TEXT" MS holds a button found by its text, as
        // tap button does; two tokens are an objectName and a time.
        if (in.left() == 3 && !in.peek().quoted && in.peek().text == QLatin1String("button")) {
            in.take();
            c->kind = Kind::LongPressButton;
            QString text;
            if (!in.text(QStringLiteral("text"), &text))
                return false;
            c->texts << text;
        } else if (!in.text(QStringLiteral("objectName"), &c->name)) {
            return false;
        }
        return in.numberInto(QStringLiteral("milliseconds"), 0, MaxWaitMs, &c->numbers) && in.end();
    }
    if (word == QLatin1String("drag"))
        return parseDrag(in, c);
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
    if (word == QLatin1String("box")) {
        c->kind = Kind::Box;
        if (!in.atEnd() && !in.peek().quoted && in.peek().text == QLatin1String("delay")) {
            in.take();
            c->kind = Kind::BoxDelay;
            return in.numberInto(QStringLiteral("milliseconds"), 0, MaxWaitMs, &c->numbers) && in.end();
        }
        return in.choice(QStringLiteral("box"), {QStringLiteral("on"), QStringLiteral("off")}, &c->name) && in.end();
    }
    // serial DEVICE[:BAUD]; ${NAME} in it stands for an environment
    // variable, expanded when the line runs.
    if (word == QLatin1String("serial")) {
        c->kind = Kind::Serial;
        QString target;
        if (!in.text(QStringLiteral("device"), &target))
            return false;
        if (target.isEmpty())
            return in.fail(QStringLiteral("empty device name"));
        c->texts << target;
        return in.end();
    }
    // The commands that take one file: a picture to write, a frame log to
    // replay.
    if (word == QLatin1String("screenshot") || word == QLatin1String("replay")) {
        c->kind = word == QLatin1String("replay") ? Kind::Replay : Kind::Screenshot;
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
                         .arg(file).arg(i + 1).arg(excerpt(lines.at(i).trimmed()), excerpt(reason));
            return false;
        }
        if (isCommand)
            script->commands.append(command);
    }
    // A scenario that runs nothing would pass without checking anything.
    if (script->commands.isEmpty()) {
        *error = QStringLiteral("%1: no commands").arg(file);
        return false;
    }
    return true;
}

bool read(QString const &file, QString *name, QByteArray *bytes, QString *error)
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
    *bytes = input.readAll();
    return true;
}

bool decode(QString const &file, QByteArray const &bytes, QString *text, QString *error)
{
    QTextCodec *utf8 = QTextCodec::codecForName("UTF-8");
    QStringList lines;
    const QList<QByteArray> raw = bytes.split('\n');
    for (int i = 0; i < raw.size(); ++i) {
        QTextCodec::ConverterState state;
        const QString line = utf8->toUnicode(raw.at(i).constData(), raw.at(i).size(), &state);
        QString reason;
        if (state.invalidChars > 0 || state.remainingChars > 0)
            reason = QStringLiteral("invalid UTF-8");
        for (int c = 0; reason.isEmpty() && c < line.size(); ++c) {
            const ushort code = line.at(c).unicode();
            if (code == 0)
                reason = QStringLiteral("a NUL byte");
            else if ((code < 0x20 && code != '\t' && code != '\r') || code == 0x7F)
                reason = QStringLiteral("the control byte 0x%1").arg(code, 2, 16, QLatin1Char('0'));
        }
        if (!reason.isEmpty()) {
            *error = QStringLiteral("%1:%2: not text: %3").arg(file).arg(i + 1).arg(reason);
            return false;
        }
        lines << line;
    }
    *text = lines.join(QLatin1Char('\n'));
    return true;
}

QString excerpt(QString const &text)
{
    constexpr int MaxQuoted = 120;
    QString quoted;
    for (QChar c : text.left(MaxQuoted)) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7F)
            quoted += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        else
            quoted += c;
    }
    if (text.size() > MaxQuoted)
        quoted += QStringLiteral("...");
    return quoted;
}

} // namespace Scenario
