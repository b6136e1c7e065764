#include "expectations.h"

#include "datasavecontrol.h"
#include "debuglog.h"
#include "eventpump.h"
#include "framesplitter.h"
#include "hostsim.h"
#include "listdata.h"
#include "scenario.h"
#include "simulatorhost.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QStackedWidget>
#include <QTableView>

namespace Scenario {

namespace {

// How many pending frames a failure lists, and how many visible texts.
constexpr int FramesListed = 8;
constexpr int TextsListed = 12;

bool fail(QString *failure, QString const &wanted, QString const &got)
{
    *failure = QStringLiteral("expected %1 got %2").arg(wanted, got);
    return false;
}

// A value of the head unit's store against the one a scenario expects.
bool sameStored(QVariant const &stored, QVariant const &wanted, QString const &wantedText, QString *failure)
{
    if (!stored.isValid())
        return fail(failure, wantedText, QStringLiteral("nothing"));
    // The store may give a number back as text.
    bool storedIsNumber = false;
    const qint64 storedNumber = stored.toLongLong(&storedIsNumber);
    const bool same = (wanted.type() == QVariant::Int || wanted.type() == QVariant::LongLong)
            ? storedIsNumber && storedNumber == wanted.toLongLong()
            : stored.toString() == wanted.toString();
    return same || fail(failure, wantedText, stored.toString());
}

QString className(QWidget const *widget)
{
    return QLatin1String(widget->metaObject()->className());
}

} // namespace

Expectations::Expectations(SimulatorHost &host)
    : m_host(host)
{
}

bool Expectations::isExpectation(Command const &command)
{
    switch (command.kind) {
    case Kind::ExpectFrame: case Kind::ExpectFrames: case Kind::ExpectNoFrame: case Kind::DropFrames:
    case Kind::ExpectRow: case Kind::ExpectRowValue: case Kind::ExpectRowTitle: case Kind::ExpectRows:
    case Kind::ExpectPage: case Kind::ExpectTitles: case Kind::ExpectTitle:
    case Kind::ExpectShown: case Kind::ExpectHidden: case Kind::ExpectMessage: case Kind::ExpectNoMessage:
    case Kind::ExpectCommand: case Kind::ExpectSaved: case Kind::ExpectSetting: case Kind::ExpectLabel:
    case Kind::ExpectDown:
    case Kind::ExpectExists: case Kind::ExpectMissing: case Kind::ExpectVisibleText: case Kind::ExpectLog:
    case Kind::ExpectNoVisibleText: case Kind::ExpectEntries: case Kind::ExpectEntry:
    case Kind::ExpectRx:
        return true;
    default:
        return false;
    }
}

bool Expectations::check(Command const &c, QString *failure)
{
    switch (c.kind) {
    case Kind::ExpectFrame: case Kind::ExpectFrames: case Kind::ExpectNoFrame: case Kind::DropFrames:
        return checkFrames(c, failure);
    case Kind::ExpectPage: case Kind::ExpectTitles: case Kind::ExpectTitle:
        return checkTitles(c, failure);
    case Kind::ExpectRow: case Kind::ExpectRowValue: case Kind::ExpectRowTitle: case Kind::ExpectRows:
        return checkRows(c, failure);
    case Kind::ExpectCommand: case Kind::ExpectSaved: case Kind::ExpectSetting: case Kind::ExpectMessage:
    case Kind::ExpectNoMessage:
    case Kind::ExpectLog:
        return checkHost(c, failure);
    case Kind::ExpectEntries: case Kind::ExpectEntry:
        return checkEntries(c, failure);
    case Kind::ExpectRx:
        return checkReports(c, failure);
    default:
        return checkScreen(c, failure);
    }
}

bool Expectations::checkReports(Command const &c, QString *failure)
{
    const int command = c.frame.value(0);
    const QList<int> payload = c.frame.mid(1);
    auto matches = [&](FrameSplitter::Piece const &piece) {
        if (piece.kind != FrameSplitter::Frame || FrameSplitter::command(piece.bytes) != command)
            return false;
        if (payload.isEmpty())
            return true;
        const QByteArray bytes = FrameSplitter::payload(piece.bytes);
        bool same = bytes.size() == payload.size();
        for (int i = 0; same && i < bytes.size(); ++i)
            same = payload.at(i) < 0 || payload.at(i) == quint8(bytes.at(i));
        return same;
    };
    const qint64 within = c.numbers.value(0);
    QElapsedTimer clock;
    clock.start();
    QList<FrameSplitter::Piece> reports;
    for (;;) {
        reports = m_host.pendingReports();
        for (int i = 0; i < reports.size(); ++i) {
            if (matches(reports.at(i))) {
                m_host.consumeReports(i + 1);
                return true;
            }
        }
        if (clock.elapsed() >= within)
            break;
        EventPump::wait(int(qBound<qint64>(1, within - clock.elapsed(), 10)));
    }
    QStringList listed;
    for (int i = 0; i < reports.size() && i < FramesListed; ++i) {
        FrameSplitter::Piece const &piece = reports.at(i);
        listed << (piece.kind == FrameSplitter::Noise ? QStringLiteral("noise ") : QString()) + hex(piece.bytes)
                    + (piece.kind == FrameSplitter::BadChecksum ? QStringLiteral(" (bad checksum)") : QString());
    }
    if (reports.size() > FramesListed)
        listed << QStringLiteral("...");
    return fail(failure, QStringLiteral("rx %1 within %2 ms").arg(pattern(c.frame)).arg(within),
                listed.isEmpty() ? QStringLiteral("nothing from the box") : listed.join(QStringLiteral(", ")));
}

bool Expectations::checkFrames(Command const &c, QString *failure)
{
    const QList<QByteArray> frames = m_host.pendingFrames();
    switch (c.kind) {
    case Kind::ExpectFrame: {
        const QString wanted = QStringLiteral("frame ") + pattern(c.frame);
        if (frames.isEmpty())
            return fail(failure, wanted, QStringLiteral("no frame"));
        const QByteArray frame = frames.first();
        bool same = frame.size() == c.frame.size();
        for (int i = 0; same && i < frame.size(); ++i)
            same = c.frame.at(i) < 0 || c.frame.at(i) == quint8(frame.at(i));
        if (!same)
            return fail(failure, wanted, hex(frame));
        m_host.consumeFrame();
        return true;
    }
    case Kind::ExpectFrames: case Kind::ExpectNoFrame: {
        const int wanted = c.kind == Kind::ExpectNoFrame ? 0 : int(c.numbers.value(0));
        if (frames.size() == wanted)
            return true;
        QStringList listed;
        for (int i = 0; i < frames.size() && i < FramesListed; ++i)
            listed << hex(frames.at(i));
        if (frames.size() > FramesListed)
            listed << QStringLiteral("...");
        const QString got = QString::number(frames.size())
                + (listed.isEmpty() ? QString() : QStringLiteral(": ") + listed.join(QStringLiteral(", ")));
        return fail(failure, c.kind == Kind::ExpectNoFrame ? QStringLiteral("noframe")
                                                           : QStringLiteral("frames %1").arg(wanted), got);
    }
    default:
        m_host.dropFrames();
        return true;
    }
}

bool Expectations::checkTitles(Command const &c, QString *failure)
{
    const qint64 number = c.numbers.value(0);
    const QString text = c.texts.value(0);
    const QString wanted = c.kind == Kind::ExpectTitles ? QStringLiteral("titles %1").arg(number)
            : c.kind == Kind::ExpectPage ? QStringLiteral("page %1").arg(quoted(text))
            : QStringLiteral("title %1 %2").arg(number).arg(quoted(text));

    QAbstractItemView *list = m_host.probe().titleList();
    QAbstractItemModel *titles = list ? list->model() : nullptr;
    if (!titles)
        return fail(failure, wanted, QStringLiteral("no extended view"));
    const int count = titles->rowCount();
    if (c.kind == Kind::ExpectTitles)
        return count == number || fail(failure, wanted, QString::number(count));
    int index = int(number);
    if (c.kind == Kind::ExpectPage) {
        if (!m_host.probe().currentPage())
            return fail(failure, wanted, QStringLiteral("no page in front"));
        index = m_host.probe().pageStack()->currentIndex();
    } else if (number >= count) {
        return fail(failure, wanted, QStringLiteral("%1 titles").arg(count));
    }
    const QString title = titles->index(index, 0).data(Qt::DisplayRole).toString();
    return title == text || fail(failure, wanted, quoted(title));
}

bool Expectations::checkRows(Command const &c, QString *failure)
{
    const qint64 number = c.numbers.value(0);
    const QString text = c.texts.value(0);
    QString wanted;
    switch (c.kind) {
    case Kind::ExpectRow: wanted = QStringLiteral("row %1 %2").arg(number).arg(quoted(text)); break;
    case Kind::ExpectRowValue: wanted = QStringLiteral("rowvalue %1 %2").arg(number).arg(c.numbers.value(1)); break;
    case Kind::ExpectRowTitle: wanted = QStringLiteral("rowtitle %1 %2").arg(number).arg(quoted(text)); break;
    default: wanted = QStringLiteral("rows %1").arg(number); break;
    }

    QTableView *table = m_host.probe().pageTable();
    QAbstractItemModel *rows = table ? table->model() : nullptr;
    if (!rows)
        return fail(failure, wanted, QStringLiteral("no page in front"));
    const int count = rows->rowCount();
    if (c.kind == Kind::ExpectRows)
        return count == number || fail(failure, wanted, QString::number(count));
    if (number >= count)
        return fail(failure, wanted, QStringLiteral("no row %1 (%2 rows)").arg(number).arg(count));
    const QModelIndex row = rows->index(int(number), 0);
    if (c.kind == Kind::ExpectRowValue) {
        const QVariant value = row.data(ValueRole);
        return (value.isValid() && value.toLongLong() == c.numbers.value(1))
                || fail(failure, wanted, value.isValid() ? value.toString() : QStringLiteral("no value"));
    }
    const QString shown = row.data(c.kind == Kind::ExpectRow ? DisplayValueRole : TitleRole).toString();
    return shown == text || fail(failure, wanted, quoted(shown));
}

bool Expectations::checkEntries(Command const &c, QString *failure)
{
    const qint64 number = c.numbers.value(0);
    const QString text = c.texts.value(0);
    const QString wanted = c.kind == Kind::ExpectEntries ? QStringLiteral("entries %1").arg(number)
                                                         : QStringLiteral("entry %1 %2").arg(number).arg(quoted(text));
    QAbstractItemView *list = m_host.probe().dialogEntries();
    QAbstractItemModel *entries = list ? list->model() : nullptr;
    if (!entries)
        return fail(failure, wanted, QStringLiteral("no list dialog open"));
    const int count = entries->rowCount();
    if (c.kind == Kind::ExpectEntries)
        return count == number || fail(failure, wanted, QString::number(count));
    if (number >= count)
        return fail(failure, wanted, QStringLiteral("%1 entries").arg(count));
    const QString shown = entries->index(int(number), 0).data(Qt::DisplayRole).toString();
    return shown == text || fail(failure, wanted, quoted(shown));
}

bool Expectations::checkHost(Command const &c, QString *failure)
{
    const QString text = c.texts.value(0);
    switch (c.kind) {
    case Kind::ExpectMessage: {
        const QString last = HostSim::lastMessage();
        return last == text || fail(failure, QStringLiteral("message %1").arg(quoted(text)),
                                    last.isEmpty() ? QStringLiteral("no message") : quoted(last));
    }
    case Kind::ExpectNoMessage:
        return !HostSim::messageShowing()
                || fail(failure, QStringLiteral("nomessage"), QStringLiteral("%1 showing").arg(quoted(HostSim::lastMessage())));
    case Kind::ExpectCommand: {
        const auto commands = m_host.pendingCommands();
        const QString wanted = QStringLiteral("command %1 %2").arg(c.name, quoted(text));
        if (commands.isEmpty())
            return fail(failure, wanted, QStringLiteral("no command"));
        const QPair<QString, QString> first = commands.first();
        if (first.first != c.name || first.second != text)
            return fail(failure, wanted, QStringLiteral("%1 %2").arg(first.first, quoted(first.second)));
        m_host.consumeCommand();
        return true;
    }
    case Kind::ExpectSaved:
        return sameStored(HostSim::savedUserData(c.name), c.args.value(0),
                          QStringLiteral("saved %1 %2").arg(c.name, c.args.value(0).toString()), failure);
    case Kind::ExpectSetting:
        // The settings that the plug-in stores, in the store's unnamed group.
        return sameStored(DataSaveControl::readSettingData(c.name, QVariant(), QString()), c.args.value(0),
                          QStringLiteral("setting %1 %2").arg(c.name, c.args.value(0).toString()), failure);
    default: {
        const QStringList lines = DebugLog::lines();
        for (QString const &line : lines) {
            if (line.contains(text))
                return true;
        }
        return fail(failure, QStringLiteral("log %1").arg(quoted(text)),
                    QStringLiteral("no such line among %1").arg(lines.size()));
    }
    }
}

bool Expectations::checkScreen(Command const &c, QString *failure)
{
    ScreenProbe const &probe = m_host.probe();
    const QString text = c.texts.value(0);
    switch (c.kind) {
    case Kind::ExpectShown: case Kind::ExpectHidden: {
        QWidget *widget = probe.part(c.name);
        const bool shown = probe.isOnScreen(widget);
        if (shown == (c.kind == Kind::ExpectShown))
            return true;
        return fail(failure, QStringLiteral("%1 %2").arg(shown ? QStringLiteral("hidden") : QStringLiteral("shown"), c.name),
                    shown ? QStringLiteral("shown")
                          : !widget ? QStringLiteral("missing")
                          : ScreenProbe::isShown(widget) ? QStringLiteral("covered by another view")
                                                         : QStringLiteral("hidden"));
    }
    case Kind::ExpectLabel: {
        QWidget *widget = probe.findWidget(c.name);
        QString shown;
        const QString wanted = QStringLiteral("label %1 %2").arg(c.name, quoted(text));
        if (!widget)
            return fail(failure, wanted, QStringLiteral("no %1").arg(c.name));
        if (!ScreenProbe::textOf(widget, &shown))
            return fail(failure, wanted, QStringLiteral("%1 without text").arg(className(widget)));
        return shown == text || fail(failure, wanted, quoted(shown));
    }
    case Kind::ExpectDown: {
        QWidget *widget = probe.findWidget(c.name);
        bool down = false;
        const QString wanted = QStringLiteral("down %1 %2").arg(c.name).arg(c.numbers.value(0));
        if (!widget)
            return fail(failure, wanted, QStringLiteral("no %1").arg(c.name));
        if (!ScreenProbe::downStateOf(widget, &down))
            return fail(failure, wanted, QStringLiteral("%1, not a button").arg(className(widget)));
        return down == (c.numbers.value(0) != 0) || fail(failure, wanted, down ? QStringLiteral("1") : QStringLiteral("0"));
    }
    case Kind::ExpectExists: case Kind::ExpectMissing: {
        const bool exists = probe.findObject(c.name);
        if (exists == (c.kind == Kind::ExpectExists))
            return true;
        return fail(failure, QStringLiteral("%1 %2").arg(exists ? QStringLiteral("missing") : QStringLiteral("exists"), c.name),
                    exists ? QStringLiteral("exists") : QStringLiteral("missing"));
    }
    case Kind::ExpectVisibleText: {
        const QStringList texts = probe.visibleTexts();
        if (texts.contains(text))
            return true;
        QStringList shown;
        for (QString const &t : texts) {
            if (!t.isEmpty() && shown.size() < TextsListed)
                shown << quoted(t);
        }
        return fail(failure, QStringLiteral("visibletext %1").arg(quoted(text)),
                    shown.isEmpty() ? QStringLiteral("no text") : shown.join(QStringLiteral(", ")));
    }
    case Kind::ExpectNoVisibleText: {
        const int times = probe.visibleTexts().count(text);
        return times == 0 || fail(failure, QStringLiteral("novisibletext %1").arg(quoted(text)),
                                  QStringLiteral("shown %1 time(s)").arg(times));
    }
    default:
        return true;
    }
}

} // namespace Scenario
