#ifndef SCENARIO_H
#define SCENARIO_H

// The scenario language of the head-unit simulator, as text: one command per
// line, which sets the vehicle's state, calls the plug-in's root, gives the
// user's input, or checks what the plug-in did. A whole scenario is parsed
// first, so that a malformed line stops it before anything ran; the runner
// (scenariorunner.h) then runs it line by line. README.md holds the
// reference of the commands.

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace Scenario {

// One word of a line, and whether it was written in double quotes.
struct Token
{
    QString text;
    bool quoted = false;
};

// Splits a line into tokens: separated by spaces or tabs; a token in double
// quotes may hold spaces, with \" and \\ as escapes; # outside quotes starts
// a comment. False, with the reason in *error, for an unterminated quote,
// an unknown escape or text glued to a closing quote.
bool tokenize(QString const &line, QList<Token> *tokens, QString *error);

// A number: decimal or 0x hex, with an optional minus. Quoted tokens are
// texts, not numbers.
bool parseNumber(Token const &token, qint64 *value);

enum class Kind {
    // Vehicle state.
    Protocol, Buf, Buf16, Buf32, Text, Bytes, Entries,
    Air, AirText, AirType, Door, Body, Body16, Body32, Radar,
    Host, Setting, Wallpaper,
    // Signals and calls.
    Notify, Call,
    // User input.
    Key, TapTitle, TapRow, TapBar, TapButton, TapObject, TapAt, LongPress, LongPressButton, Wait,
    TapEntry, Drag, DragAt,
    // Expectations.
    ExpectFrame, ExpectFrames, ExpectNoFrame, DropFrames,
    ExpectRow, ExpectRowValue, ExpectRowTitle, ExpectRows, ExpectPage,
    ExpectTitles, ExpectTitle, ExpectShown, ExpectHidden,
    ExpectMessage, ExpectNoMessage, ExpectCommand, ExpectSaved, ExpectSetting,
    ExpectLabel, ExpectDown, ExpectExists, ExpectMissing, ExpectVisibleText, ExpectLog,
    ExpectNoVisibleText, ExpectEntries, ExpectEntry,
    Screenshot,
    // The decoder box: on or off (name), its delay (numbers); a saved frame
    // log replayed into it (texts: the file).
    Box, BoxDelay, Replay,
    // A real decoder box: the port (texts), a frame it sends (frame: the
    // command and the payload, numbers: the time to wait).
    Serial, ExpectRx
};

// How long expect rx waits unless told.
constexpr int DefaultRxWithinMs = 1000;

// The value of id for the data buffer of the current protocol.
constexpr int CurrentProtocol = -1;

// One parsed line. Which members carry what depends on the kind:
//  - id, offset: the data buffer and the offset of the buffer and record
//    commands;
//  - numbers: the values (bytes, words, the number of a row, title or list
//    entry, a key code, milliseconds, a point, a drag's two per cents or two
//    points);
//  - texts: quoted texts, and the names of entries;
//  - name: the operation of call, a host flag, a setting key, an
//    objectName, a view name, a zone, a bar button;
//  - args: the arguments of call, and a setting's value;
//  - frame: the bytes of expect frame, -1 for ??.
struct Command
{
    Kind kind = Kind::Notify;
    int line = 0;
    QString source;
    int id = CurrentProtocol;
    int offset = 0;
    QList<qint64> numbers;
    QStringList texts;
    QString name;
    QVariantList args;
    QList<int> frame;
};

// Parses one line. An empty or comment line gives no command: true, with
// *isCommand false. A malformed line: false, with the reason in *error.
bool parseLine(QString const &text, Command *command, bool *isCommand, QString *error);

struct Script
{
    QString file;
    QList<Command> commands;
};

// Parses a whole scenario. False at the first malformed line, with
// "FILE:LINE: malformed line "...": reason" in *error, or with "FILE: no
// commands" for a scenario without any.
bool parse(QString const &file, QString const &source, Script *script, QString *error);
// Reads a scenario file, or standard input for "-". *name is what
// messages call it ("<stdin>" for standard input). False, with the reason in
// *error, when it can't be read.
bool read(QString const &file, QString *name, QByteArray *bytes, QString *error);
// The text of a file that must be text (a scenario, a frame log): UTF-8
// without NUL or other control bytes but tab. False, with "FILE:LINE: not
// text: reason" in *error, at the first line that isn't.
bool decode(QString const &file, QByteArray const &bytes, QString *text, QString *error);
// A line, or a word of it, as a message quotes it: at most 120 characters,
// control characters escaped.
QString excerpt(QString const &text);

// The texts that the language uses for frames: "2E 90 02 51 00 8E".
QString hex(QByteArray const &bytes);
// A frame pattern of expect frame: "2E 90 ??".
QString pattern(QList<int> const &frame);
// A text as the language writes it: in double quotes, with \" and \\.
QString quoted(QString const &text);

} // namespace Scenario

#endif // SCENARIO_H
