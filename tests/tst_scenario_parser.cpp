// The scenario language of the head-unit simulator, as text: how lines
// split into tokens, how numbers read, what each command parses into, which
// lines are refused and how a refusal names its line. Also the climate
// record's fields by their 32-bit offsets, which the air commands use.

#include "airdata.h"
#include "recordfields.h"
#include "scenario.h"

#include <QtTest>

using namespace Scenario;

Q_DECLARE_METATYPE(Scenario::Kind)

namespace {

Command parsed(QString const &line)
{
    Command command;
    bool isCommand = false;
    QString error;
    if (!parseLine(line, &command, &isCommand, &error))
        qWarning("refused: %s: %s", qPrintable(line), qPrintable(error));
    else if (!isCommand)
        qWarning("no command: %s", qPrintable(line));
    return command;
}

QString refusal(QString const &line)
{
    Command command;
    bool isCommand = false;
    QString error;
    if (parseLine(line, &command, &isCommand, &error))
        return QString();
    return error.isEmpty() ? QStringLiteral("(no reason)") : error;
}

QList<qint64> numbers(std::initializer_list<qint64> list)
{
    return QList<qint64>(list);
}

} // namespace

class TestScenarioParser : public QObject
{
    Q_OBJECT

private slots:
    void tokens_data();
    void tokens();
    void badTokens();
    void numbersReadLikeTheLanguage();
    void vehicleStateCommands();
    void callsCheckTheRootsSignatures();
    void inputCommands();
    void expectations();
    void malformedLines_data();
    void malformedLines();
    void wholeScenario();
    void onlyTextIsRead_data();
    void onlyTextIsRead();
    void climateRecordByOffset();
    void listDialogAndDragCommands();
};

void TestScenarioParser::tokens_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QList<bool>>("quoted");

    QTest::newRow("words") << "buf  106\t9" << QStringList{"buf", "106", "9"} << QList<bool>{false, false, false};
    QTest::newRow("quoted with spaces") << "text 44 \"two words\"" << QStringList{"text", "44", "two words"}
                                       << QList<bool>{false, false, true};
    QTest::newRow("escapes") << R"(expect label x "say \"hi\" \\ ok")" << QStringList{"expect", "label", "x", R"(say "hi" \ ok)"}
                             << QList<bool>{false, false, false, true};
    QTest::newRow("empty quoted") << "text 44 \"\"" << QStringList{"text", "44", ""} << QList<bool>{false, false, true};
    QTest::newRow("comment") << "notify # tell the pages" << QStringList{"notify"} << QList<bool>{false};
    QTest::newRow("comment glued") << "wait 5#ms" << QStringList{"wait", "5"} << QList<bool>{false, false};
    QTest::newRow("hash in quotes") << "text 0 \"#1\" # real comment" << QStringList{"text", "0", "#1"}
                                    << QList<bool>{false, false, true};
    QTest::newRow("comment line") << "   # nothing here" << QStringList{} << QList<bool>{};
    QTest::newRow("carriage return") << "notify\r" << QStringList{"notify"} << QList<bool>{false};
    QTest::newRow("unicode") << "air.text 44 \"18.5\u2103\"" << QStringList{"air.text", "44", "18.5\u2103"}
                             << QList<bool>{false, false, true};
}

void TestScenarioParser::tokens()
{
    QFETCH(QString, line);
    QFETCH(QStringList, texts);
    QFETCH(QList<bool>, quoted);

    QList<Token> tokens;
    QString error;
    QVERIFY2(tokenize(line, &tokens, &error), qPrintable(error));
    QStringList gotTexts;
    QList<bool> gotQuoted;
    for (Token const &token : tokens) {
        gotTexts << token.text;
        gotQuoted << token.quoted;
    }
    QCOMPARE(gotTexts, texts);
    QCOMPARE(gotQuoted, quoted);
}

void TestScenarioParser::badTokens()
{
    const QList<QPair<QString, QString>> cases = {
        {"text 44 \"open", "unterminated quote"},
        {"text 44 \"ends in a backslash\\", "unterminated quote"},
        {"text 44 \"tab \\t\"", "unknown escape"},
        {"text 44 \"a\"b", "text after a closing quote"},
        {"tap ab\"c\"", "a quote inside a word"},
    };
    for (auto const &c : cases) {
        QList<Token> tokens;
        QString error;
        QVERIFY2(!tokenize(c.first, &tokens, &error), qPrintable(c.first));
        QVERIFY2(error.contains(c.second), qPrintable(c.first + " -> " + error));
    }
}

void TestScenarioParser::numbersReadLikeTheLanguage()
{
    const QList<QPair<QString, qint64>> good = {
        {"0", 0}, {"106", 106}, {"0x2E", 0x2E}, {"0XfF", 255}, {"-1", -1}, {"-0x80", -128},
        {"4294967295", 4294967295LL}, {"007", 7},
    };
    for (auto const &g : good) {
        qint64 value = 12345;
        QVERIFY2(parseNumber(Token{g.first, false}, &value), qPrintable(g.first));
        QCOMPARE(value, g.second);
    }
    const QStringList bad = {"", "-", "0x", "12a", "+5", "--1", "0x-1", "1.5", "ten", "99999999999999999999"};
    for (QString const &text : bad) {
        qint64 value;
        QVERIFY2(!parseNumber(Token{text, false}, &value), qPrintable(text));
    }
    qint64 value;
    QVERIFY2(!parseNumber(Token{"5", true}, &value), "a quoted number is a text");
}

void TestScenarioParser::vehicleStateCommands()
{
    Command c = parsed("buf 106 9");
    QCOMPARE(c.kind, Kind::Buf);
    QCOMPARE(c.id, CurrentProtocol);
    QCOMPARE(c.offset, 106);
    QCOMPARE(c.numbers, numbers({9}));

    c = parsed("buf @30 0x10 1 -1 255");
    QCOMPARE(c.id, 30);
    QCOMPARE(c.offset, 16);
    QCOMPARE(c.numbers, numbers({1, -1, 255}));

    c = parsed("buf16 320 4230 -2");
    QCOMPARE(c.kind, Kind::Buf16);
    QCOMPARE(c.numbers, numbers({4230, -2}));

    c = parsed("buf32 @28 8 0xFFFFFFFF");
    QCOMPARE(c.kind, Kind::Buf32);
    QCOMPARE(c.id, 28);
    QCOMPARE(c.numbers, numbers({0xFFFFFFFFLL}));

    c = parsed("text 236 \"642 km\"");
    QCOMPARE(c.kind, Kind::Text);
    QCOMPARE(c.texts, QStringList{"642 km"});

    c = parsed("bytes 340");
    QCOMPARE(c.kind, Kind::Bytes);
    QVERIFY(c.numbers.isEmpty());

    c = parsed("entries @124 40 1 \"Track one\" 2 \"Track two\"");
    QCOMPARE(c.kind, Kind::Entries);
    QCOMPARE(c.id, 124);
    QCOMPARE(c.numbers, numbers({1, 2}));
    QCOMPARE(c.texts, (QStringList{"Track one", "Track two"}));

    c = parsed("air 49 1 1 -1");
    QCOMPARE(c.kind, Kind::Air);
    QCOMPARE(c.offset, 49);
    QCOMPARE(c.numbers, numbers({1, 1, -1}));

    c = parsed("air.text 108 \"2.4 bar\"");
    QCOMPARE(c.kind, Kind::AirText);
    QCOMPARE(c.offset, 108);

    c = parsed("air.type -3");
    QCOMPARE(c.kind, Kind::AirType);
    QCOMPARE(c.numbers, numbers({-3}));

    c = parsed("door 1 0 0 0 1 0");
    QCOMPARE(c.kind, Kind::Door);
    QCOMPARE(c.numbers.size(), 6);

    c = parsed("body 40 1 1 1");
    QCOMPARE(c.kind, Kind::Body);
    QCOMPARE(c.offset, 40);
    QCOMPARE(parsed("body16 41 -1").kind, Kind::Body16);
    QCOMPARE(parsed("body32 39 70000").kind, Kind::Body32);

    c = parsed("radar 0 1 10 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16");
    QCOMPARE(c.kind, Kind::Radar);
    QCOMPARE(c.numbers.size(), 18);

    c = parsed("host disableRadar true");
    QCOMPARE(c.kind, Kind::Host);
    QCOMPARE(c.name, QString("disableRadar"));
    QCOMPARE(c.numbers, numbers({1}));

    c = parsed("setting DoorLeftAndRightInterchangeSwitch true");
    QCOMPARE(c.kind, Kind::Setting);
    QCOMPARE(c.args, QVariantList{true});
    QCOMPARE(parsed("setting Name \"12\"").args, QVariantList{QString("12")});
    QCOMPARE(parsed("setting Name 12").args, QVariantList{12});

    QCOMPARE(parsed("wallpaper on").name, QString("on"));
    QCOMPARE(parsed("protocol 28").numbers, numbers({28}));
    QCOMPARE(parsed("notify").kind, Kind::Notify);
}

void TestScenarioParser::callsCheckTheRootsSignatures()
{
    Command c = parsed("call setReverse true");
    QCOMPARE(c.kind, Kind::Call);
    QCOMPARE(c.name, QString("setReverse"));
    QCOMPARE(c.args, QVariantList{true});

    c = parsed("call setOtherProperty \"ShowAirconditioner\" true");
    QCOMPARE(c.args, (QVariantList{QString("ShowAirconditioner"), true}));
    QCOMPARE(c.args.at(1).type(), QVariant::Bool);
    QCOMPARE(parsed("call setOtherProperty Key \"text\"").args.at(1), QVariant(QString("text")));
    QCOMPARE(parsed("call setOtherProperty Key 0x10").args.at(1), QVariant(16));

    c = parsed("call onTrajectoryDataChanged 5 -10 true");
    QCOMPARE(c.args, (QVariantList{5, -10, true}));

    QVERIFY(parsed("call onRadarDataChanged").args.isEmpty());
    QVERIFY(parsed("call onRadarDataChanged").texts.isEmpty());
    c = parsed("call onRadarDataChanged radar");
    QCOMPARE(c.texts, QStringList{"radar"});
    c = parsed("call onRadarDataChanged int 7");
    QCOMPARE(c.texts, QStringList{"int"});
    QCOMPARE(c.args, QVariantList{7});

    QVERIFY(parsed("call setData").args.isEmpty());
    QCOMPARE(parsed("call setData 3").args, QVariantList{3});
    QVERIFY(parsed("call showExViewDialogView").args.isEmpty());

    QVERIFY(refusal("call setReverse").contains("too few"));
    QVERIFY(refusal("call setReverse 1").contains("true|false"));
    QVERIFY(refusal("call setReverse true false").contains("too many"));
    QVERIFY(refusal("call setProtocolId \"28\"").contains("not a number"));
    QVERIFY(refusal("call showExView now").contains("too many"));
    QVERIFY(refusal("call onRadarDataChanged int").contains("missing"));
    QVERIFY(refusal("call onRadarDataChanged record").contains("radar|int"));
    QVERIFY(refusal("call onTrajectoryDataChanged 5 10").contains("call onTrajectoryDataChanged NUMBER NUMBER true|false"));
    QVERIFY(refusal("call setprotocolid 28").contains("no operation setprotocolid"));
    QVERIFY(refusal("call").contains("operation missing"));
}

void TestScenarioParser::inputCommands()
{
    Command c = parsed("key enter");
    QCOMPARE(c.kind, Kind::Key);
    QCOMPARE(c.numbers, numbers({0x1100041}));
    QCOMPARE(parsed("key remote-back").numbers, numbers({0x140000F}));
    QCOMPARE(parsed("key previous").numbers, numbers({0x110004E}));
    QCOMPARE(parsed("key 0x1000004").numbers, numbers({0x1000004}));

    c = parsed("tap title 3");
    QCOMPARE(c.kind, Kind::TapTitle);
    QCOMPARE(c.numbers, numbers({3}));
    c = parsed("tap row 8 middle");
    QCOMPARE(c.kind, Kind::TapRow);
    QCOMPARE(c.name, QString("middle"));
    QCOMPARE(parsed("tap bar home").kind, Kind::TapBar);
    c = parsed("tap button \"Reset\"");
    QCOMPARE(c.kind, Kind::TapButton);
    QCOMPARE(c.texts, QStringList{"Reset"});
    c = parsed("tap at 512 -3");
    QCOMPARE(c.kind, Kind::TapAt);
    QCOMPARE(c.numbers, numbers({512, -3}));
    // A word of the language alone is an objectName.
    c = parsed("tap title");
    QCOMPARE(c.kind, Kind::TapObject);
    QCOMPARE(c.name, QString("title"));
    QCOMPARE(parsed("tap resetButton").name, QString("resetButton"));

    c = parsed("longpress autoButton 1200");
    QCOMPARE(c.kind, Kind::LongPress);
    QCOMPARE(c.name, QString("autoButton"));
    QCOMPARE(c.numbers, numbers({1200}));
    // A button by its text, as tap button finds it; "button" alone with a
    // time is an objectName.
    c = parsed("longpress button \"FM/AM\" 2500");
    QCOMPARE(c.kind, Kind::LongPressButton);
    QCOMPARE(c.texts, QStringList{"FM/AM"});
    QCOMPARE(c.numbers, numbers({2500}));
    c = parsed("longpress button 300");
    QCOMPARE(c.kind, Kind::LongPress);
    QCOMPARE(c.name, QString("button"));
    QCOMPARE(parsed("wait 150").numbers, numbers({150}));

    // The decoder box: on, off, and its delay.
    c = parsed("box on");
    QCOMPARE(c.kind, Kind::Box);
    QCOMPARE(c.name, QString("on"));
    QCOMPARE(parsed("box off").name, QString("off"));
    c = parsed("box delay 0x20");
    QCOMPARE(c.kind, Kind::BoxDelay);
    QCOMPARE(c.numbers, numbers({32}));
}

void TestScenarioParser::expectations()
{
    Command c = parsed("expect frame 2E 90 02 51 00 ??");
    QCOMPARE(c.kind, Kind::ExpectFrame);
    QCOMPARE(c.frame, (QList<int>{0x2E, 0x90, 0x02, 0x51, 0x00, -1}));
    QCOMPARE(parsed("expect frame 0x2e a8 F").frame, (QList<int>{0x2E, 0xA8, 0x0F}));

    QCOMPARE(parsed("expect frames 6").numbers, numbers({6}));
    QCOMPARE(parsed("expect noframe").kind, Kind::ExpectNoFrame);
    QCOMPARE(parsed("drop frames").kind, Kind::DropFrames);

    c = parsed("expect row 1 \"0\"");
    QCOMPARE(c.kind, Kind::ExpectRow);
    QCOMPARE(c.numbers, numbers({1}));
    QCOMPARE(c.texts, QStringList{"0"});
    c = parsed("expect rowvalue 3 -1");
    QCOMPARE(c.numbers, numbers({3, -1}));
    QCOMPARE(parsed("expect rowtitle 0 \"volume\"").kind, Kind::ExpectRowTitle);
    QCOMPARE(parsed("expect rows 7").kind, Kind::ExpectRows);
    QCOMPARE(parsed("expect page \"Amplifier status\"").texts, QStringList{"Amplifier status"});
    QCOMPARE(parsed("expect titles 8").kind, Kind::ExpectTitles);
    c = parsed("expect title 7 \"Electric management status\"");
    QCOMPARE(c.kind, Kind::ExpectTitle);
    QCOMPARE(c.numbers, numbers({7}));
    QCOMPARE(parsed("expect shown tire").name, QString("tire"));
    QCOMPARE(parsed("expect hidden airView").kind, Kind::ExpectHidden);
    QCOMPARE(parsed("expect message \"No model\"").kind, Kind::ExpectMessage);
    QCOMPARE(parsed("expect nomessage").kind, Kind::ExpectNoMessage);
    c = parsed("expect command AirAUTO \"on\"");
    QCOMPARE(c.name, QString("AirAUTO"));
    QCOMPARE(c.texts, QStringList{"on"});
    c = parsed("expect saved CanbusCAR 3");
    QCOMPARE(c.name, QString("CanbusCAR"));
    QCOMPARE(c.args, QVariantList{3});
    c = parsed("expect setting SteeringWheelButtonType 2");
    QCOMPARE(c.kind, Kind::ExpectSetting);
    QCOMPARE(c.name, QString("SteeringWheelButtonType"));
    QCOMPARE(c.args, QVariantList{2});
    QCOMPARE(parsed("expect setting Theme \"dark\"").args, QVariantList{"dark"});
    QCOMPARE(parsed("expect label label \"Reset\"").name, QString("label"));
    QCOMPARE(parsed("expect down acButton 1").numbers, numbers({1}));
    QCOMPARE(parsed("expect exists listModel").kind, Kind::ExpectExists);
    QCOMPARE(parsed("expect missing tirePressure").kind, Kind::ExpectMissing);
    QCOMPARE(parsed("expect visibletext \"tire pressure\"").kind, Kind::ExpectVisibleText);
    QCOMPARE(parsed("expect log \"createReverseView\"").kind, Kind::ExpectLog);
    QCOMPARE(parsed("screenshot shots/a.png").texts, QStringList{"shots/a.png"});
    QCOMPARE(parsed("replay \"logs/a b.log\"").kind, Kind::Replay);
    QCOMPARE(parsed("replay \"logs/a b.log\"").texts, QStringList{"logs/a b.log"});

    // A real box: the port as written, expanded when it runs; a frame it
    // sends, by command, payload and the time to wait for it.
    c = parsed("serial ${CARCONTROL_BOX}:19200");
    QCOMPARE(c.kind, Kind::Serial);
    QCOMPARE(c.texts, QStringList{"${CARCONTROL_BOX}:19200"});
    c = parsed("expect rx A8");
    QCOMPARE(c.kind, Kind::ExpectRx);
    QCOMPARE(c.frame, QList<int>{0xA8});
    QCOMPARE(c.numbers, numbers({Scenario::DefaultRxWithinMs}));
    c = parsed("expect rx 0x41 01 ?? within 250");
    QCOMPARE(c.frame, (QList<int>{0x41, 0x01, -1}));
    QCOMPARE(c.numbers, numbers({250}));
}

void TestScenarioParser::malformedLines_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");

    QTest::newRow("unknown command") << "bufx 1 2" << "unknown command bufx";
    QTest::newRow("quoted command") << "\"buf\" 1 2" << "starts with a word";
    QTest::newRow("byte too big") << "buf 106 256" << "byte 256 outside -128..255";
    QTest::newRow("byte too small") << "buf 106 -129" << "outside -128..255";
    QTest::newRow("no bytes") << "buf 106" << "byte missing";
    QTest::newRow("offset outside") << "buf 8192 1" << "offset 8192 outside 0..8191";
    QTest::newRow("run past the end") << "buf 8190 1 2 3" << "run past the end of the data buffer";
    QTest::newRow("word run past") << "buf16 8191 1" << "run past the end";
    QTest::newRow("text field past") << "text 8190 \"x\"" << "run past the end";
    QTest::newRow("bad id") << "buf @x 1 2" << "protocol id @x";
    QTest::newRow("word too big") << "buf16 0 65536" << "outside -32768..65535";
    QTest::newRow("buf32 two values") << "buf32 0 1 2" << "unexpected 2";
    QTest::newRow("text missing") << "text 44" << "text missing";
    QTest::newRow("entry without name") << "entries 40 1" << "entry name missing";
    QTest::newRow("air no field") << "air 16 1" << "no byte field at offset 16";
    QTest::newRow("air runs into a text") << "air 14 1 1 1" << "no byte field at offset 16";
    QTest::newRow("air.text not a text") << "air.text 17 \"x\"" << "no text field at offset 17";
    QTest::newRow("door five bytes") << "door 1 0 0 0 0" << "door takes 6 bytes";
    QTest::newRow("body past") << "body 42 1 1" << "run past the end of the body record";
    QTest::newRow("body32 past") << "body32 40 1" << "run past the end of the body record";
    QTest::newRow("radar past") << "radar 17 1 1" << "run past the end of the radar record";
    QTest::newRow("host flag") << "host leftDriver 1" << "flag leftDriver is not one of";
    QTest::newRow("host value") << "host rightDriver 2" << "value 2 is not one of";
    QTest::newRow("wallpaper") << "wallpaper maybe" << "wallpaper maybe is not one of on|off";
    QTest::newRow("notify extra") << "notify now" << "unexpected now";
    QTest::newRow("key name") << "key hyper" << "key hyper is neither a code nor one of";
    QTest::newRow("tap nothing") << "tap" << "tap what?";
    QTest::newRow("tap row zone") << "tap row 1 up" << "zone up is not one of left|right|middle";
    QTest::newRow("tap title text") << "tap title one" << "title one is not a number";
    QTest::newRow("tap bar") << "tap bar menu" << "button menu is not one of back|home";
    QTest::newRow("tap misspelt") << "tap tilte 1" << "tilte is not one of title|row|bar|button|entry|at";
    QTest::newRow("tap two names") << "tap a b" << "a is not one of title";
    QTest::newRow("wait negative") << "wait -1" << "milliseconds -1 outside";
    QTest::newRow("longpress button time") << "longpress button \"OK\" soon" << "milliseconds soon is not a number";
    QTest::newRow("setting without value") << "expect setting SteeringWheelButtonType" << "value missing";
    QTest::newRow("frame byte") << "expect frame 2E 100" << "100 is not a hex byte";
    QTest::newRow("frame empty") << "expect frame" << "bytes missing";
    QTest::newRow("unknown expectation") << "expect colour red" << "unknown expectation colour";
    QTest::newRow("row without text") << "expect row 1" << "text missing";
    QTest::newRow("down state") << "expect down x 2" << "state 2 is not one of";
    QTest::newRow("drop what") << "drop rows" << "is not one of frames";
    QTest::newRow("screenshot empty") << "screenshot \"\"" << "empty file name";
    QTest::newRow("replay without file") << "replay" << "file missing";
    QTest::newRow("replay two files") << "replay a.log b.log" << "unexpected b.log at the end";
    QTest::newRow("box state") << "box maybe" << "is not one of on";
    QTest::newRow("box delay negative") << "box delay -5" << "outside 0..";
    QTest::newRow("box delay missing") << "box delay" << "milliseconds missing";
    QTest::newRow("box on and more") << "box on 5" << "5";
    QTest::newRow("serial without device") << "serial" << "device missing";
    QTest::newRow("serial empty") << "serial \"\"" << "empty device name";
    QTest::newRow("rx without command") << "expect rx" << "command missing";
    QTest::newRow("rx any command") << "expect rx ?? 01" << "the command must be a hex byte";
    QTest::newRow("rx time only") << "expect rx within 100" << "the command must be a hex byte";
    QTest::newRow("rx time missing") << "expect rx 41 within" << "milliseconds missing";
    QTest::newRow("rx time twice") << "expect rx 41 within 5 within 6" << "unexpected within";
    QTest::newRow("frame with time") << "expect frame 2E within 5" << "unexpected within";
    QTest::newRow("quote") << "text 44 \"open" << "unterminated quote";
}

void TestScenarioParser::malformedLines()
{
    QFETCH(QString, line);
    QFETCH(QString, reason);
    const QString got = refusal(line);
    QVERIFY2(!got.isEmpty(), qPrintable("accepted: " + line));
    QVERIFY2(got.contains(reason), qPrintable(line + " -> " + got));
}

void TestScenarioParser::wholeScenario()
{
    const QString source = QStringLiteral(
        "# The amplifier page\n"
        "protocol 28\n"
        "\n"
        "buf 106 9   # treble at its zero point\n"
        "call showExView\n"
        "expect frame 2E 90 02 51 00 ??\n");
    Script script;
    QString error;
    QVERIFY2(parse("amp.scn", source, &script, &error), qPrintable(error));
    QCOMPARE(script.file, QString("amp.scn"));
    QCOMPARE(script.commands.size(), 4);
    QList<int> lines;
    for (Command const &command : script.commands)
        lines << command.line;
    QCOMPARE(lines, (QList<int>{2, 4, 5, 6}));
    QCOMPARE(script.commands.at(1).source, QString("buf 106 9   # treble at its zero point"));

    // The first malformed line stops the parse and is named with its reason.
    const QString bad = QStringLiteral("protocol 28\ncall showExView\nbuf 106 300\nbogus\n");
    QVERIFY(!parse("bad.scn", bad, &script, &error));
    QCOMPARE(error, QString("bad.scn:3: malformed line \"buf 106 300\": byte 300 outside -128..255"));

    QCOMPARE(hex(QByteArray::fromHex("2e90025100ff")), QString("2E 90 02 51 00 FF"));
    QCOMPARE(hex(QByteArray()), QString());
    // Messages write frames and texts back as the language reads them.
    const QList<int> frame = parsed(QStringLiteral("expect frame 2e \x3F\x3F 0x0F")).frame;
    QCOMPARE(pattern(frame), QStringLiteral("2E \x3F\x3F 0F"));
    const QString text = QStringLiteral("say \"hi\" \\ ok");
    const QString written = QStringLiteral("\"say \\\"hi\\\" \\\\ ok\"");
    QCOMPARE(quoted(text), written);
    QList<Token> tokens;
    QString reason;
    QVERIFY(tokenize(quoted(text), &tokens, &reason));
    QCOMPARE(tokens.value(0).text, text);
}

// A scenario or a frame log is text: a NUL, a control byte or invalid
// UTF-8 stops the reading at its line instead of ending the scenario there
// unseen; a scenario of no commands checks nothing and is refused; a
// message quotes no more than 120 characters of a line, control bytes
// escaped.
void TestScenarioParser::onlyTextIsRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    QTest::newRow("NUL ends no scenario") << QByteArray("protocol 28\nbuf 0 1") + '\0' + "\nexpect row 0 \"x\"\n"
                                          << "s.scn:2: not text: a NUL byte";
    QTest::newRow("all zeros") << QByteArray(4096, '\0') << "s.scn:1: not text: a NUL byte";
    QTest::newRow("invalid UTF-8") << QByteArray("protocol 28\n# caf\xe9\n") << "s.scn:2: not text: invalid UTF-8";
    QTest::newRow("truncated UTF-8") << QByteArray("protocol 28 \xe2\x84") << "s.scn:1: not text: invalid UTF-8";
    QTest::newRow("escape byte") << QByteArray("protocol 28\n\n\x1b[2J\n") << "s.scn:3: not text: the control byte 0x1b";
    QTest::newRow("empty") << QByteArray() << "s.scn: no commands";
    QTest::newRow("comments only") << QByteArray("# nothing\n\n   \n") << "s.scn: no commands";
    QTest::newRow("long line quoted short")
            << QByteArray("protocol 28\n") + QByteArray(100000, 'x')
            << "s.scn:2: malformed line \"" + QString(120, 'x') + "...\": unknown command " + QString(104, 'x') + "...";
    QTest::newRow("tab escaped in quote") << QByteArray("protocol\t28\tnow")
                                          << "s.scn:1: malformed line \"protocol\\x0928\\x09now\": unexpected now at the end";
}

void TestScenarioParser::onlyTextIsRead()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, error);
    QString text, got;
    Script script;
    const bool read = decode("s.scn", bytes, &text, &got) && parse("s.scn", text, &script, &got);
    QVERIFY2(!read, "accepted");
    QCOMPARE(got, error);
    // Text with tabs and non-ASCII letters passes.
    QVERIFY2(decode("s.scn", "protocol\t28 # caf\xc3\xa9\n", &text, &got), qPrintable(got));
    QCOMPARE(text, QString::fromUtf8("protocol\t28 # caf\xc3\xa9\n"));
}

// The air commands name the fields by their offsets in the head unit's
// 32-bit layout; on any platform they must reach the same named fields.
void TestScenarioParser::climateRecordByOffset()
{
    AirData air;
    QVERIFY(RecordFields::setAirByte(air, 4, 0));
    QCOMPARE(air.hasAirConditioner, quint8(0));
    QVERIFY(RecordFields::setAirByte(air, 4, 7));
    QCOMPARE(air.hasAirConditioner, quint8(7));
    QCOMPARE(RecordFields::airByte(air, 4), 7);
    QVERIFY(RecordFields::setAirByte(air, 5, 1));
    QCOMPARE(air.showRequest, quint8(1));
    QVERIFY(RecordFields::setAirByte(air, 13, -1));
    QCOMPARE(air.leftTemperatureUnit, qint8(-1));
    QCOMPARE(RecordFields::airByte(air, 13), -1);
    QVERIFY(RecordFields::setAirByte(air, 41, 200));
    QCOMPARE(RecordFields::airByte(air, 41), -56);
    QVERIFY(RecordFields::setAirByte(air, AirData::ClimateSwitch, 1));
    QCOMPARE(air.function(AirData::ClimateSwitch), qint8(1));
    QVERIFY(RecordFields::setAirByte(air, 88, 5));
    QCOMPARE(air.function(88), qint8(5));
    QVERIFY(RecordFields::setAirByte(air, 89, 1));
    QVERIFY(RecordFields::setAirByte(air, 90, -2));
    QVERIFY(RecordFields::setAirByte(air, 91, 3));
    QCOMPARE(air.seatHeating.hasSeatHeating, quint8(1));
    QCOMPARE(air.seatHeating.leftSeat, qint8(-2));
    QCOMPARE(air.seatHeating.rightSeat, qint8(3));
    QCOMPARE(RecordFields::airByte(air, 90), -2);
    QVERIFY(RecordFields::setAirByte(air, 104, 9));
    QCOMPARE(air.tirePressure.state, quint8(9));
    QVERIFY(RecordFields::setAirByte(air, 128, 4));
    QCOMPARE(air.tirePressure.summary, quint8(4));
    QVERIFY(RecordFields::setAirByte(air, 132, 1));
    QCOMPARE(air.tirePressure.status[TirePressureInformation::RearRight], quint8(1));
    QVERIFY(RecordFields::setAirByte(air, 134, 2));
    QCOMPARE(air.tirePressure.alarm[TirePressureInformation::FrontLeft], quint8(2));
    QVERIFY(RecordFields::setAirByte(air, 142, 30));
    QCOMPARE(air.tirePressure.temperature[TirePressureInformation::RearRight], quint8(30));
    QCOMPARE(RecordFields::airByte(air, 142), 30);

    // Text fields are no bytes, and bytes are no text fields.
    for (int offset : {0, 1, 16, 17, 20, 28, 44, 47, 108, 111, 124, 127, 144})
        QVERIFY2(!RecordFields::isAirByte(offset), qPrintable(QString::number(offset)));
    const QList<QPair<int, QString TirePressureInformation::*>> tyres = {
        {108, &TirePressureInformation::frontLeftPressure}, {112, &TirePressureInformation::frontRightPressure},
        {116, &TirePressureInformation::rearLeftPressure}, {120, &TirePressureInformation::rearRightPressure},
        {124, &TirePressureInformation::sparePressure}};
    for (auto const &tyre : tyres) {
        QVERIFY(RecordFields::setAirText(air, tyre.first, QString::number(tyre.first)));
        QCOMPARE(air.tirePressure.*(tyre.second), QString::number(tyre.first));
    }
    QVERIFY(RecordFields::setAirText(air, 16, "21.5"));
    QVERIFY(RecordFields::setAirText(air, 20, "22"));
    QVERIFY(RecordFields::setAirText(air, 44, "18"));
    QCOMPARE(air.leftTemperature, QString("21.5"));
    QCOMPARE(air.rightTemperature, QString("22"));
    QCOMPARE(air.outsideTemperature, QString("18"));
    QCOMPARE(RecordFields::airText(air, 44), QString("18"));
    QVERIFY(!RecordFields::setAirText(air, 48, "x"));
    QVERIFY(!RecordFields::isAirText(5));
}

// The list dialog's entries, a text that must not show, and a finger
// dragged over a widget or between points of the screen.
void TestScenarioParser::listDialogAndDragCommands()
{
    Command c = parsed("tap entry 4");
    QCOMPARE(c.kind, Kind::TapEntry);
    QCOMPARE(c.numbers, numbers({4}));
    QCOMPARE(parsed("expect entries 15").numbers, numbers({15}));
    c = parsed("expect entry 0 \"1  Intro\"");
    QCOMPARE(c.kind, Kind::ExpectEntry);
    QCOMPARE(c.numbers, numbers({0}));
    QCOMPARE(c.texts, QStringList{"1  Intro"});
    c = parsed("expect novisibletext \"RPT ON\"");
    QCOMPARE(c.kind, Kind::ExpectNoVisibleText);
    QCOMPARE(c.texts, QStringList{"RPT ON"});
    c = parsed("drag positionBar 10 100");
    QCOMPARE(c.kind, Kind::Drag);
    QCOMPARE(c.name, QString("positionBar"));
    QCOMPARE(c.numbers, numbers({10, 100}));
    c = parsed("drag at 100 200 300 -4");
    QCOMPARE(c.kind, Kind::DragAt);
    QCOMPARE(c.numbers, numbers({100, 200, 300, -4}));
    // "entry" alone is an objectName, like the other words of tap.
    QCOMPARE(parsed("tap entry").kind, Kind::TapObject);

    QVERIFY(refusal("drag positionBar 10 101").contains("to per cent 101 outside 0..100"));
    QVERIFY(refusal("drag positionBar 10").contains("to per cent missing"));
    QVERIFY(refusal("drag").contains("drag what?"));
    QVERIFY(refusal("drag at 1 2 3").contains("y2 missing"));
    QVERIFY(refusal("expect entry 1").contains("text missing"));
    QVERIFY(refusal("expect entries").contains("count missing"));
    QVERIFY(refusal("tap entry x").contains("entry x is not a number"));
}

QTEST_GUILESS_MAIN(TestScenarioParser)

#include "tst_scenario_parser.moc"
