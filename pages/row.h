#ifndef ROW_H
#define ROW_H

#include "databuffer.h"
#include "listdata.h"

#include <QByteArray>
#include <QList>
#include <QVariant>

#include <initializer_list>

// One row of a page, as data: what it shows, where its value lies in the
// data buffer, and what a step on it sends. A page's table is a list of
// rows built with the named constructors and the setters below, e.g.
//
//     Row::of(NumberKind, "Treble", {0, 14, 7}).at(0x06).adjustable().command(0xA8, 2)
//
// Texts (titles and text options) are source texts; the page translates
// them in its own context when it builds its list.
class Row
{
public:
    // The value of a row that isn't one masked byte of the buffer.
    typedef QVariant (*Reader)(DataBuffer const &buffer);
    // A translation of values: raw to shown, or stepped to sent.
    typedef int (*ValueMap)(int value);
    // The frame that a step on the row sends: key is the row's id where the
    // page has ids, its index otherwise; value is the stepped value after
    // the row's send map.
    typedef QByteArray (*FrameRule)(int key, int value);
    // A row's own step: the value that a step down (or up) from current
    // lands on, in place of the step and the clamp.
    typedef int (*StepRule)(DataBuffer const &buffer, int current, bool down);
    // The frame of a row that sends its whole group: packed from the buffer
    // after the stepped value was written into the row's own place there.
    // key as for FrameRule; an empty array sends nothing.
    typedef QByteArray (*GroupRule)(DataBuffer const &buffer, int key);

    // In a payload, the place of the value that a step sends.
    enum { Value = -1 };

    // What a row shows for a car code that none of its options has.
    enum Unlisted {
        UnlistedShowsNothing,   // no option
        UnlistedStandsForItself // the code itself, taken as an option index
    };

    // Where a row's value lies.
    enum Source {
        NoSource,     // none: the row shows 0 or an empty text
        ByteSource,   // (byte >> shift) & mask
        WordSource,   // a 16-bit value
        TextSource,   // a text field
        ReaderSource  // the row's own reader
    };

    // How a step is kept in range.
    enum Clamp {
        // kind 0: the options; other kinds: first to second option with two,
        // first to third with three, else 0 to 0
        StandardClamp,
        // third and fourth option (time of day with four options)
        WindowClamp,
        // first to third option for every count above two
        ThirdHighestClamp,
        // the row's own bounds
        OwnBounds
    };

    // A row of the given kind with numbers or texts as options.
    static Row of(int kind, const char *title, std::initializer_list<QVariant> options = {});
    static Row of(int kind, const char *title, QList<QVariant> const &options);
    // A choice among texts (kind 0).
    static Row choice(const char *title, std::initializer_list<const char *> options);
    // A text (kind 10).
    static Row text(const char *title);

    Row &id(int id);
    Row &unit(int unit);
    // The unit follows a byte of the buffer: the car reports its unit there.
    Row &unitAt(int offset);
    // The unit follows what reader answers (a record the car reports in).
    Row &unitBy(Reader reader);
    Row &factor(double factor);
    Row &adjustable(bool adjustable = true);

    // Value sources. at(): (byte >> shift) & mask.
    Row &at(int offset, int mask = 0xFF, int shift = 0);
    Row &wordAt(int offset);
    Row &textAt(int offset);
    Row &read(Reader reader);
    // The raw value is shown translated by map.
    Row &display(ValueMap map);
    // The car reports codes: the option at index i is codes[i]. A code that
    // no option has shows as unlisted says.
    Row &showCodes(QList<int> const &codes, Unlisted unlisted = UnlistedShowsNothing);

    // Steps.
    Row &clamp(Clamp rule);
    Row &bounds(int low, int high);
    // Steps of size instead of 1, kept in range by the row's clamp.
    Row &stepBy(int size);
    Row &stepWith(StepRule rule);
    // A step starts from the value in the buffer, not from the shown one
    // (for pages that write a step into the buffer before the car answers).
    Row &stepsFromBuffer();
    // A step sends the code of its direction (the left arrow downCode, the
    // right arrow upCode) in place of a value; the row itself never moves
    // until the car answers.
    Row &direction(int downCode, int upCode);
    // The row writes its stepped value into itself at once, before the frame
    // goes out, whatever the page does with its other rows.
    Row &showsStepAtOnce();
    // 2E command 02 sub value: the common setting frame.
    Row &command(int command, int sub);
    // 2E command 03 group item value: the setting frame of the cars that
    // address a setting by group and item.
    Row &command(int command, int group, int item);
    Row &frame(FrameRule rule);
    // The stepped value goes out translated by map.
    Row &sendAs(ValueMap map);
    // A step is written into the row's place in the buffer (its bits of a
    // byte, or its 16-bit value), and the frame packed from there by rule.
    Row &group(GroupRule rule);
    // 2E command L payload: the bytes given, Value where the value goes.
    Row &command(int command, std::initializer_list<int> payload);
    // The stepped option index goes out as codes[index]; an index that the
    // list doesn't have sends 0.
    Row &sendCodes(QList<int> const &codes);

    // --- Read by the page engine ---
    int kind() const { return m_kind; }
    const char *title() const { return m_title; }
    QList<QVariant> const &options() const { return m_options; }
    bool hasId() const { return m_id >= 0; }
    int rowId() const { return m_id; }
    int unitCode() const { return m_unit; }
    bool followsUnit() const { return m_unitOffset >= 0 || m_unitReader; }
    // The unit now: what the row follows, where it follows one.
    int unitCode(DataBuffer const &buffer) const;
    double displayFactor() const { return m_factor; }
    bool isAdjustable() const { return m_adjustable; }
    bool startsStepFromBuffer() const { return m_stepFromBuffer; }
    bool sendsDirection() const { return m_directionCodes; }
    bool showsStepImmediately() const { return m_stepAtOnce; }
    Source source() const { return m_source; }
    int sourceOffset() const { return m_offset; }
    int sourceMask() const { return m_mask; }
    int sourceShift() const { return m_shift; }

    // The row's value as the buffer holds it now, after the display map.
    QVariant value(DataBuffer const &buffer) const;
    // True for a number read from a byte or a 16-bit value: intValue() then
    // gives what value() holds, without a QVariant.
    bool hasIntValue() const
    {
        return m_kind != TextKind && (m_source == ByteSource || m_source == WordSource);
    }
    int intValue(DataBuffer const &buffer) const
    {
        const int raw = rawNumber(buffer);
        return m_shownCodes.isEmpty() && !m_display ? raw : shownNumber(raw);
    }
    // The value that a step from current lands on.
    int step(int current, bool down, QList<QVariant> const &options, DataBuffer const &buffer) const;
    // The frame for a stepped value, or an empty array if the row sends none.
    QByteArray frameFor(int key, int value) const;
    bool sendsGroup() const { return m_group != 0; }
    // Writes value into the row's place in the buffer, cut to the place's
    // width; a row without a byte or 16-bit source has no place.
    void store(DataBuffer &buffer, int value) const;
    // The group frame from the buffer as it stands, or an empty array.
    QByteArray groupFrameFor(DataBuffer const &buffer, int key) const;

private:
    // The number in the row's byte (its bits) or 16-bit value.
    int rawNumber(DataBuffer const &buffer) const
    {
        return m_source == ByteSource ? (buffer.byte(m_offset) >> m_shift) & m_mask : int(buffer.word(m_offset));
    }
    // A raw value after the row's code list or display map.
    QVariant shown(QVariant const &raw) const;
    int shownNumber(int raw) const;

    Row(int kind, const char *title);

    int m_kind;
    const char *m_title;
    QList<QVariant> m_options;
    int m_id;
    int m_unit;
    int m_unitOffset;
    Reader m_unitReader;
    double m_factor;
    bool m_adjustable;

    Source m_source;
    int m_offset;
    int m_mask;
    int m_shift;
    Reader m_reader;
    ValueMap m_display;
    QList<int> m_shownCodes;
    Unlisted m_unlisted;

    Clamp m_clamp;
    int m_low;
    int m_high;
    int m_stepSize;
    StepRule m_stepRule;
    bool m_stepFromBuffer;
    bool m_directionCodes;
    int m_downCode;
    int m_upCode;
    bool m_stepAtOnce;
    int m_command;

    QList<int> m_payload;
    QList<int> m_sentCodes;
    FrameRule m_frame;
    ValueMap m_sendMap;
    GroupRule m_group;
};

#endif // ROW_H
