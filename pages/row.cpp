#include "row.h"

#include "frames.h"
#include "listdata.h"

Row::Row(int kind, const char *title)
    : m_kind(kind)
    , m_title(title)
    , m_id(-1)
    , m_unit(0)
    , m_unitOffset(-1)
    , m_unitReader(0)
    , m_factor(1.0)
    , m_adjustable(false)
    , m_source(NoSource)
    , m_offset(0)
    , m_mask(0xFF)
    , m_shift(0)
    , m_reader(0)
    , m_display(0)
    , m_unlisted(UnlistedShowsNothing)
    , m_clamp(StandardClamp)
    , m_low(0)
    , m_high(0)
    , m_stepSize(1)
    , m_stepRule(0)
    , m_stepFromBuffer(false)
    , m_directionCodes(false)
    , m_downCode(0)
    , m_upCode(0)
    , m_stepAtOnce(false)
    , m_command(-1)
    , m_frame(0)
    , m_sendMap(0)
    , m_group(0)
{
}

Row Row::of(int kind, const char *title, std::initializer_list<QVariant> options)
{
    Row row(kind, title);
    for (std::initializer_list<QVariant>::const_iterator it = options.begin(); it != options.end(); ++it)
        row.m_options.append(*it);
    return row;
}

Row Row::of(int kind, const char *title, QList<QVariant> const &options)
{
    Row row(kind, title);
    row.m_options = options;
    return row;
}

Row Row::choice(const char *title, std::initializer_list<const char *> options)
{
    Row row(ChoiceKind, title);
    for (std::initializer_list<const char *>::const_iterator it = options.begin(); it != options.end(); ++it)
        row.m_options.append(QString::fromUtf8(*it));
    return row;
}

Row Row::text(const char *title)
{
    return Row(TextKind, title);
}

Row &Row::id(int id)
{
    m_id = id;
    return *this;
}

Row &Row::unit(int unit)
{
    m_unit = unit;
    return *this;
}

Row &Row::unitAt(int offset)
{
    m_unitOffset = offset;
    return *this;
}

Row &Row::unitBy(Reader reader)
{
    m_unitReader = reader;
    return *this;
}

int Row::unitCode(DataBuffer const &buffer) const
{
    if (m_unitReader)
        return m_unitReader(buffer).toInt();
    return m_unitOffset >= 0 ? int(buffer.byte(m_unitOffset)) : m_unit;
}

Row &Row::factor(double factor)
{
    m_factor = factor;
    return *this;
}

Row &Row::adjustable(bool adjustable)
{
    m_adjustable = adjustable;
    return *this;
}

Row &Row::at(int offset, int mask, int shift)
{
    m_source = ByteSource;
    m_offset = offset;
    m_mask = mask;
    m_shift = shift;
    return *this;
}

Row &Row::wordAt(int offset)
{
    m_source = WordSource;
    m_offset = offset;
    return *this;
}

Row &Row::textAt(int offset)
{
    m_source = TextSource;
    m_offset = offset;
    return *this;
}

Row &Row::read(Reader reader)
{
    m_source = ReaderSource;
    m_reader = reader;
    return *this;
}

Row &Row::display(ValueMap map)
{
    m_display = map;
    return *this;
}

Row &Row::showCodes(QList<int> const &codes, Unlisted unlisted)
{
    m_shownCodes = codes;
    m_unlisted = unlisted;
    return *this;
}

Row &Row::clamp(Clamp rule)
{
    m_clamp = rule;
    return *this;
}

Row &Row::bounds(int low, int high)
{
    m_clamp = OwnBounds;
    m_low = low;
    m_high = high;
    return *this;
}

Row &Row::stepBy(int size)
{
    m_stepSize = size;
    return *this;
}

Row &Row::stepWith(StepRule rule)
{
    m_stepRule = rule;
    return *this;
}

Row &Row::stepsFromBuffer()
{
    m_stepFromBuffer = true;
    return *this;
}

Row &Row::direction(int downCode, int upCode)
{
    m_directionCodes = true;
    m_downCode = downCode;
    m_upCode = upCode;
    return *this;
}

Row &Row::showsStepAtOnce()
{
    m_stepAtOnce = true;
    return *this;
}

Row &Row::command(int command, int sub)
{
    return this->command(command, {sub, Value});
}

Row &Row::command(int command, int group, int item)
{
    return this->command(command, {group, item, Value});
}

Row &Row::command(int command, std::initializer_list<int> payload)
{
    m_command = command;
    m_payload = QList<int>(payload);
    return *this;
}

Row &Row::frame(FrameRule rule)
{
    m_frame = rule;
    return *this;
}

Row &Row::sendAs(ValueMap map)
{
    m_sendMap = map;
    return *this;
}

Row &Row::group(GroupRule rule)
{
    m_group = rule;
    return *this;
}

Row &Row::sendCodes(QList<int> const &codes)
{
    m_sentCodes = codes;
    return *this;
}

QVariant Row::value(DataBuffer const &buffer) const
{
    if (hasIntValue())
        return intValue(buffer);
    switch (m_source) {
    case NoSource:
        if (m_kind == TextKind)
            return QString();
        return shownNumber(0);
    case ByteSource:
    case WordSource:
        // A text row shows the number as it stands.
        return rawNumber(buffer);
    case TextSource:
        return shown(QVariant(buffer.text(m_offset)));
    case ReaderSource:
        return shown(m_reader(buffer));
    }
    return QVariant();
}

QVariant Row::shown(QVariant const &raw) const
{
    if (m_kind == TextKind)
        return raw;
    if (m_shownCodes.isEmpty() && !m_display)
        return raw;
    return shownNumber(raw.toInt());
}

int Row::shownNumber(int raw) const
{
    if (!m_shownCodes.isEmpty()) {
        const int option = m_shownCodes.indexOf(raw);
        if (option >= 0)
            return option;
        return m_unlisted == UnlistedStandsForItself ? raw : -1;
    }
    return m_display ? m_display(raw) : raw;
}

int Row::step(int current, bool down, QList<QVariant> const &options, DataBuffer const &buffer) const
{
    if (m_directionCodes)
        return down ? m_downCode : m_upCode;
    if (m_stepRule)
        return m_stepRule(buffer, current, down);
    int value = down ? current - m_stepSize : current + m_stepSize;
    const int n = options.size();
    if (m_kind == ChoiceKind && m_clamp == StandardClamp) {
        if (value < 0)
            value = 0;
        if (value >= n)
            value = n - 1;
        return value;
    }
    int low = 0;
    int high = 0;
    switch (m_clamp) {
    case StandardClamp:
        if (n == 2 || n == 3) {
            low = options.at(0).toInt();
            high = options.at(n - 1).toInt();
        }
        break;
    case WindowClamp:
        if (n >= 4) {
            low = options.at(2).toInt();
            high = options.at(3).toInt();
        }
        break;
    case ThirdHighestClamp:
        if (n >= 2) {
            low = options.at(0).toInt();
            high = options.at(n > 2 ? 2 : 1).toInt();
        }
        break;
    case OwnBounds:
        low = m_low;
        high = m_high;
        break;
    }
    if (value < low)
        value = low;
    if (value > high)
        value = high;
    return value;
}

QByteArray Row::frameFor(int key, int value) const
{
    int sent = m_sendMap ? m_sendMap(value) : value;
    if (!m_sentCodes.isEmpty())
        sent = sent >= 0 && sent < m_sentCodes.size() ? m_sentCodes.at(sent) : 0;
    if (m_frame)
        return m_frame(key, sent);
    if (m_command >= 0) {
        QByteArray payload;
        for (int i = 0; i < m_payload.size(); ++i)
            payload.append(char((m_payload.at(i) == Value ? sent : m_payload.at(i)) & 0xFF));
        return Frames::make2E(m_command, payload);
    }
    return QByteArray();
}

void Row::store(DataBuffer &buffer, int value) const
{
    switch (m_source) {
    case ByteSource: {
        const int place = (m_mask & 0xFF) << m_shift;
        const int byte = (buffer.byte(m_offset) & ~place) | ((value << m_shift) & place);
        buffer.setByte(m_offset, quint8(byte));
        break;
    }
    case WordSource:
        buffer.setWord(m_offset, quint16(value));
        break;
    case NoSource:
    case TextSource:
    case ReaderSource:
        break;
    }
}

QByteArray Row::groupFrameFor(DataBuffer const &buffer, int key) const
{
    return m_group ? m_group(buffer, key) : QByteArray();
}
