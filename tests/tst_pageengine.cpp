// The common page: rows built from a table over the data buffer, refreshed
// row by row, and steps on rows that become frames to the decoder box.

#include "canobj.h"
#include "carexviewbase.h"
#include "catalogue.h"
#include "frames.h"
#include "hostsim.h"
#include "listmodel1.h"
#include "rowpage.h"
#include "tableview.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QHeaderView>
#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

#include <cstdio>

namespace {

const int Protocol = 30;

int doubled(int raw) { return raw * 2; }
int plusTen(int value) { return value + 10; }
QVariant speedWord(DataBuffer const &buffer) { return int(buffer.word(30)) / 10; }

QByteArray odd(int key, int value)
{
    // A frame whose length byte doesn't match its size, as some cars want.
    return Frames::exact({0x2E, 0xEF, 0x04, 0x7D, key, value, 0x0B});
}

QByteArray checked(QByteArray frame)
{
    CanObj::autoCalculateChecksum(frame);
    return frame;
}

// A page of every sort of row, with a middle action and a refresh count.
class EnginePage : public ClickRowPage
{
    Q_OBJECT
public:
    EnginePage(QWidget *parent) : ClickRowPage(QStringLiteral("Engine"), parent) {}

    using RowPage::model;
    using RowPage::SendRoad;
    using RowPage::SendThroughSignal;
    using RowPage::setSendRoad;
    using RowPage::setShowsStepAtOnce;
    using RowPage::view;

    int middleRow = -1;
    int refreshes = 0;

    void refreshDataFromCanbus() override { ++refreshes; }

protected:
    QList<Row> rowTable() const override
    {
        return QList<Row>()
            << Row::choice("Language", {"Chinese", "English", "German"}).at(10).adjustable().command(0xC6, 0x01)
            << Row::of(TemperatureKind, "Outside", {0, 40, 194}).at(11).adjustable().command(0xC6, 0x02)
            << Row::of(NumberKind, "Four options", {1, 2, 3, 4}).at(12).adjustable().command(0xC6, 0x03)
            << Row::text("VIN").textAt(20)
            << Row::of(TimeOfDayKind, "Start", {390, 30, 0, 11}).at(13).adjustable()
                   .clamp(Row::WindowClamp).command(0xC6, 0x04)
            << Row::of(NumberKind, "Mapped", {0, 3}).at(14, 0x0F, 4).display(doubled).adjustable()
                   .sendAs(plusTen).command(0xC6, 0x05)
            << Row::of(SpeedKind, "Speed", {0, 0, 250}).read(speedWord)
            << Row::of(NumberKind, "Odd", {0, 9}).at(15).adjustable().frame(odd)
            << Row::choice("Grouped", {"OFF", "ON", "30s"}).at(16).adjustable().sendAs(plusTen)
                   .command(0xC6, 0x03, 0x04);
    }
    void middlePressed(int row) override { middleRow = row; }
};

// Rows that send their whole group: a frame packed from the buffer after
// the step was written into the row's own place.
QByteArray pairGroup(DataBuffer const &buffer, int key)
{
    return Frames::makeFD(0x8C, {key, buffer.byte(40), buffer.byte(41), buffer.word(42) >> 8, buffer.word(42) & 0xFF});
}

// A group that only goes out while its switch (byte 44) is on.
QByteArray switchedGroup(DataBuffer const &buffer, int)
{
    return buffer.byte(44) ? Frames::makeFD(0xA7, {buffer.byte(45)}) : QByteArray();
}

class GroupPage : public RowPage
{
    Q_OBJECT
public:
    GroupPage(QWidget *parent) : RowPage(QStringLiteral("Group"), parent) {}

    using RowPage::model;

protected:
    QList<Row> rowTable() const override
    {
        return QList<Row>()
            << Row::of(NumberKind, "Low nibble", {0, 15}).id(7).at(40, 0x0F).adjustable().group(pairGroup)
            << Row::of(NumberKind, "High nibble", {0, 15}).id(8).at(40, 0x0F, 4).adjustable().group(pairGroup)
            << Row::of(NumberKind, "Whole byte", {0, 256}).id(9).at(41).adjustable().group(pairGroup)
            << Row::of(NumberKind, "Word", {0, 3000}).id(10).wordAt(42).adjustable().group(pairGroup)
            << Row::of(NumberKind, "Switch", {0, 1}).id(11).at(44).adjustable().group(switchedGroup)
            << Row::text("Text").id(12).textAt(48).adjustable().group(switchedGroup);
    }
};

// Rows whose car codes aren't their options, a direction row, a row that
// moves at once on a page that waits, payloads with the value inside, and a
// unit from elsewhere.
int unitSetting = 0;
QVariant unitFromElsewhere(DataBuffer const &) { return unitSetting; }

class CodedPage : public RowPage
{
    Q_OBJECT
public:
    CodedPage(QWidget *parent) : RowPage(QStringLiteral("Codes"), parent) {}

    using RowPage::model;

protected:
    QList<Row> rowTable() const override
    {
        const QList<int> codes = QList<int>() << 2 << 4 << 5;
        return QList<Row>()
            << Row::choice("Both ways", {"A", "B", "C", "D"}).at(40).showCodes(codes, Row::UnlistedStandsForItself)
                   .sendCodes(codes).adjustable().showsStepAtOnce().command(0xC6, {0xA4, Row::Value, 0x00})
            << Row::choice("Shown only", {"A", "B", "C"}).at(41).showCodes(codes).adjustable()
                   .command(0xC6, {0xB0, 0x07, Row::Value})
            << Row::of(NumberKind, "Direction", {0, 10}).at(42).adjustable().showsStepAtOnce().direction(2, 1)
                   .command(0xC2, {Row::Value})
            << Row::of(DistanceKind, "Distance", {0, 100}).at(43).unitBy(unitFromElsewhere);
    }
};

// Fills the first 1,024 bytes of protocol id's buffer, byte i with byteAt(i).
template <typename ByteAt>
void fillBuffer(int id, ByteAt byteAt)
{
    DataBuffer buffer(CanObj::instance()->getDataPointerById(id));
    for (int i = 0; i < 1024; ++i)
        buffer.setByte(i, quint8(byteAt(i)));
}

// Page index of the stack brought to the front with its view built, or null
// when it isn't a table page.
RowPage *builtPage(CarExViewBase *stack, int index)
{
    stack->showIndex(index);
    RowPage *page = qobject_cast<RowPage *>(stack->currentWidget());
    if (page)
        page->createView();
    return page;
}

// What every page of a protocol's stack shows after a switch to it, as the
// unit switches: each page's class and title, each row's title, value and
// options, and a digest of the page's pixels. Every protocol's buffer holds
// bytes of its own first, small ones as car codes and choices are, that
// change from byte to byte: a page that reads the wrong buffer or offsets
// shows it.
QStringList describePages(int id)
{
    HostSim::reset();
    for (int other : Catalogue::protocolIds())
        fillBuffer(other, [other](int i) { return (i * 3 + i / 7 + other) % 6; });
    HostSim::setProtocolId(id);
    QWidget window;
    window.resize(1024, 470);
    QScopedPointer<CarExViewBase> stack(createPageStack(id, &window));
    if (!stack)
        return {QStringLiteral("no pages for %1").arg(id)};
    stack->setGeometry(window.rect());
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return {QStringLiteral("no window")};
    QStringList lines;
    for (int p = 0; p < stack->count(); ++p) {
        RowPage *page = builtPage(stack.data(), p);
        QCoreApplication::processEvents();
        const QImage pixels = stack->grab().toImage().convertToFormat(QImage::Format_RGB32);
        const QByteArray bits(reinterpret_cast<const char *>(pixels.constBits()), int(pixels.sizeInBytes()));
        lines << QStringLiteral("%1 page %2: %3 \"%4\", pixels %5")
                     .arg(id).arg(p).arg(QLatin1String(stack->currentWidget()->metaObject()->className()))
                     .arg(page ? page->getTitle() : QString())
                     .arg(QString::fromLatin1(QCryptographicHash::hash(bits, QCryptographicHash::Sha1).toHex()));
        QAbstractItemModel *model = page ? page->findChild<TableView *>()->model() : nullptr;
        for (int r = 0; model && r < model->rowCount(); ++r) {
            const QModelIndex row = model->index(r, 0);
            QStringList options;
            for (QVariant const &option : row.data(OptionsRole).toList())
                options << option.toString();
            lines << QStringLiteral("  row %1: \"%2\" shows \"%3\" of {%4}")
                         .arg(r).arg(row.data(TitleRole).toString(), row.data(DisplayValueRole).toString(),
                                     options.join(QStringLiteral(", ")));
        }
    }
    return lines;
}

// The same from a process of this test of its own, in which no other page
// was ever built.
QStringList describedAlone(int id)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--describe-pages"), QString::number(id)});
    if (!child.waitForFinished(60000) || child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0)
        return {QStringLiteral("the process describing %1 failed: %2").arg(id).arg(QString::fromLocal8Bit(child.readAllStandardError()))};
    return QString::fromUtf8(child.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class TestPageEngine : public QObject
{
    Q_OBJECT

private:
    QWidget *window = nullptr;
    EnginePage *page = nullptr;

    QModelIndex row(int i) const { return page->model->index(i, 0); }
    QString shown(int i) const { return row(i).data(DisplayValueRole).toString(); }

    // A tap in a strip of a row, in the view's own coordinates.
    void tap(int rowIndex, int x)
    {
        TableView *view = page->view;
        const int h = view->verticalHeader()->defaultSectionSize();
        const QPoint pos(x, view->rowViewportPosition(rowIndex) + h / 2);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, pos);
    }
    int leftArrowX() const { return page->view->viewport()->width() / 2 + 10; }
    int rightArrowX() const { return page->view->viewport()->width() - 10; }
    int middleX() const { return page->view->viewport()->width() / 2 + 81 + 20; }

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
        DataBuffer buffer = HostSim::buffer(Protocol);
        buffer.setByte(10, 1);
        buffer.setByte(11, 40);
        buffer.setByte(12, 3);
        buffer.setText(20, QStringLiteral("LSVAB4187E2000001"));
        buffer.setByte(13, 3);
        buffer.setByte(14, 0x25); // high nibble 2, shown doubled
        buffer.setWord(30, 1234);
        window = new QWidget;
        window->resize(1024, 470);
        page = new EnginePage(window);
        page->setGeometry(window->rect());
    }

    void cleanup()
    {
        delete window;
        window = nullptr;
    }

    void buildsOnFirstDisplayOnly()
    {
        // Before the first display the page has no model and ignores data.
        page->ondataChanged();
        QVERIFY(!page->model);

        page->createView();
        QVERIFY(page->model);
        QCOMPARE(page->model->rowCount(QModelIndex()), 9);
        QCOMPARE(row(0).data(TitleRole).toString(), QString("Language"));
        QCOMPARE(shown(0), QString("English"));
        QCOMPARE(shown(1), QString::fromUtf8("0.0℃"));
        QCOMPARE(shown(3), QString("LSVAB4187E2000001"));
        QCOMPARE(shown(4), QString("08:00"));
        QCOMPARE(row(5).data(ValueRole).toInt(), 4);
        QCOMPARE(row(6).data(ValueRole).toInt(), 123);
        QCOMPARE(page->view->verticalHeader()->defaultSectionSize(), 81);

        // A second display refreshes and doesn't rebuild.
        TableView *view = page->view;
        HostSim::buffer(Protocol).setByte(10, 2);
        page->createView();
        QCOMPARE(page->view, view);
        QCOMPARE(page->model->rowCount(QModelIndex()), 9);
        QCOMPARE(shown(0), QString("German"));
    }

    void refreshTouchesOnlyChangedRows()
    {
        page->createView();
        QSignalSpy changes(page->model, &QAbstractItemModel::dataChanged);
        page->ondataChanged();
        QCOMPARE(changes.count(), 0);

        DataBuffer buffer = HostSim::buffer(Protocol);
        buffer.setByte(11, 0);
        buffer.setText(20, QStringLiteral("VIN2"));
        page->ondataChanged();
        QCOMPARE(changes.count(), 2);
        QCOMPARE(changes.at(0).at(0).toModelIndex().row(), 1);
        QCOMPARE(changes.at(1).at(0).toModelIndex().row(), 3);
        QCOMPARE(shown(1), QString::fromUtf8("-40.0℃"));
        QCOMPARE(shown(3), QString("VIN2"));

        // A language byte beyond the options shows nothing and breaks nothing.
        buffer.setByte(10, 15);
        page->ondataChanged();
        QCOMPARE(shown(0), QString());
    }

    void stepsBecomeFrames()
    {
        page->createView();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        HostSim::clearSentFrames();

        tap(0, rightArrowX());        // English -> German
        tap(0, rightArrowX());        // the row still shows English: German again
        tap(1, leftArrowX());         // 40 -> 39
        tap(2, rightArrowX());        // four options: both bounds 0
        tap(4, rightArrowX());        // time window 0..11: 3 -> 4
        tap(5, leftArrowX());         // shown 4, stepped 3, sent as 13
        tap(7, rightArrowX());        // own frame rule
        tap(6, rightArrowX());        // read-only: nothing
        const QList<QByteArray> expected = {
            checked(Frames::make2E(0xC6, {0x01, 2})),
            checked(Frames::make2E(0xC6, {0x01, 2})),
            checked(Frames::make2E(0xC6, {0x02, 39})),
            checked(Frames::make2E(0xC6, {0x03, 0})),
            checked(Frames::make2E(0xC6, {0x04, 4})),
            checked(Frames::make2E(0xC6, {0x05, 13})),
            checked(Frames::exact({0x2E, 0xEF, 0x04, 0x7D, 7, 1, 0x0B})),
        };
        QCOMPARE(HostSim::sentFrames(), expected);
        // The rows wait for the car's answer.
        QCOMPARE(shown(0), QString("English"));
    }

    // A setting addressed by group and item: 2E C6 03 group item value,
    // the value after the row's send map.
    void groupAndItemCommand()
    {
        page->createView();
        HostSim::clearSentFrames();
        page->onValueChanged(row(8), false);
        page->onValueChanged(row(8), true);
        const QList<QByteArray> expected = {
            checked(Frames::make2E(0xC6, {0x03, 0x04, 11})),
            checked(Frames::make2E(0xC6, {0x03, 0x04, 10})),
        };
        QCOMPARE(HostSim::sentFrames(), expected);
    }

    void clampNeverSuppressesTheFrame()
    {
        DataBuffer buffer = HostSim::buffer(Protocol);
        buffer.setByte(10, 2);  // last option
        buffer.setByte(11, 0);  // lowest temperature
        buffer.setByte(13, 11); // last step of the time window
        page->createView();
        HostSim::clearSentFrames();
        page->onValueChanged(row(0), false);
        page->onValueChanged(row(1), true);
        page->onValueChanged(row(4), false);
        const QList<QByteArray> expected = {
            checked(Frames::make2E(0xC6, {0x01, 2})),
            checked(Frames::make2E(0xC6, {0x02, 0})),
            checked(Frames::make2E(0xC6, {0x04, 11})),
        };
        QCOMPARE(HostSim::sentFrames(), expected);
    }

    void sendRoadAndImmediateStep()
    {
        page->setSendRoad(EnginePage::SendThroughSignal);
        page->setShowsStepAtOnce(true);
        page->createView();
        HostSim::clearSentFrames();
        QSignalSpy sent(page, &CarInfoItem::sendData);
        page->onValueChanged(row(1), false);
        QCOMPARE(sent.count(), 1);
        QCOMPARE(sent.at(0).at(0).toByteArray(), checked(Frames::make2E(0xC6, {0x02, 41})));
        QVERIFY(HostSim::sentFrames().isEmpty());
        QCOMPARE(row(1).data(ValueRole).toInt(), 41);
    }

    void groupRowsWriteTheirPlaceFirst()
    {
        DataBuffer buffer = HostSim::buffer(Protocol);
        buffer.setByte(40, 0x5A);
        buffer.setByte(41, 255);
        buffer.setWord(42, 2999);
        buffer.setByte(45, 0x33);
        buffer.setText(48, QStringLiteral("kept"));
        GroupPage group(window);
        group.createView();
        HostSim::clearSentFrames();

        // Each step lands in its own bits and the frame carries the buffer
        // with it; the next step packs the earlier one too.
        group.onValueChanged(group.model->index(0, 0), false); // low nibble 10 -> 11
        QCOMPARE(int(buffer.byte(40)), 0x5B);
        group.onValueChanged(group.model->index(1, 0), true);  // high nibble 5 -> 4
        QCOMPARE(int(buffer.byte(40)), 0x4B);
        group.onValueChanged(group.model->index(2, 0), false); // 255 -> 256, cut to the byte
        QCOMPARE(int(buffer.byte(41)), 0);
        group.onValueChanged(group.model->index(3, 0), false); // 2999 -> 3000 in 16 bits
        QCOMPARE(int(buffer.word(42)), 3000);
        QCOMPARE(HostSim::sentFrames(), (QList<QByteArray>{
            checked(Frames::makeFD(0x8C, {7, 0x5B, 0xFF, 0x0B, 0xB7})),
            checked(Frames::makeFD(0x8C, {8, 0x4B, 0xFF, 0x0B, 0xB7})),
            checked(Frames::makeFD(0x8C, {9, 0x4B, 0x00, 0x0B, 0xB7})),
            checked(Frames::makeFD(0x8C, {10, 0x4B, 0x00, 0x0B, 0xB8})),
        }));
        // The rows move when the car answers, not before.
        QCOMPARE(group.model->index(0, 0).data(ValueRole).toInt(), 10);
        group.ondataChanged();
        QCOMPARE(group.model->index(0, 0).data(ValueRole).toInt(), 11);
        QCOMPARE(group.model->index(2, 0).data(ValueRole).toInt(), 0);

        // An empty group frame sends nothing, but the step is kept; a row
        // without a byte or word has no place to write.
        HostSim::clearSentFrames();
        group.onValueChanged(group.model->index(4, 0), true);
        QVERIFY(HostSim::sentFrames().isEmpty());
        group.onValueChanged(group.model->index(4, 0), false);
        QCOMPARE(int(buffer.byte(44)), 1);
        group.onValueChanged(group.model->index(5, 0), false);
        QCOMPARE(buffer.text(48), QStringLiteral("kept"));
        QCOMPARE(HostSim::sentFrames(), (QList<QByteArray>{checked(Frames::makeFD(0xA7, {0x33})),
                                                           checked(Frames::makeFD(0xA7, {0x33}))}));
    }

    // Codes both ways: an unlisted code shows nothing or stands for itself
    // as the row says; an option without a code sends 0. A direction row
    // sends its codes and never moves; a row of its own moves at once.
    void codesDirectionsAndPayloads()
    {
        DataBuffer buffer = HostSim::buffer(Protocol);
        buffer.setByte(40, 5);
        buffer.setByte(41, 3);
        buffer.setByte(42, 6);
        buffer.setByte(43, 12);
        unitSetting = 1;
        CodedPage coded(window);
        coded.createView();
        auto index = [&](int i) { return coded.model->index(i, 0); };
        QCOMPARE(index(0).data(ValueRole).toInt(), 2);
        QCOMPARE(index(1).data(ValueRole).toInt(), -1);
        QCOMPARE(index(0).data(DisplayValueRole).toString(), QString("C"));
        QCOMPARE(index(1).data(DisplayValueRole).toString(), QString());
        QCOMPARE(index(3).data(DisplayValueRole).toString(), QString("12.0mi"));

        buffer.setByte(40, 3);
        buffer.setByte(41, 4);
        unitSetting = 0;
        coded.ondataChanged();
        QCOMPARE(index(0).data(ValueRole).toInt(), 3);
        QCOMPARE(index(0).data(DisplayValueRole).toString(), QString("D"));
        QCOMPARE(index(1).data(DisplayValueRole).toString(), QString("B"));
        QCOMPARE(index(3).data(DisplayValueRole).toString(), QString("12.0km"));

        HostSim::clearSentFrames();
        coded.onValueChanged(index(0), false); // D stays D, which has no code
        coded.onValueChanged(index(0), true);  // C, code 5, shown at once
        coded.onValueChanged(index(1), false); // C, sent as its index, waits
        coded.onValueChanged(index(2), true);
        coded.onValueChanged(index(2), false);
        const QList<QByteArray> expected = {
            checked(Frames::make2E(0xC6, {0xA4, 0, 0})),
            checked(Frames::make2E(0xC6, {0xA4, 5, 0})),
            checked(Frames::make2E(0xC6, {0xB0, 0x07, 2})),
            checked(Frames::make2E(0xC2, {2})),
            checked(Frames::make2E(0xC2, {1})),
        };
        QCOMPARE(HostSim::sentFrames(), expected);
        QCOMPARE(index(0).data(ValueRole).toInt(), 2);
        QCOMPARE(index(1).data(ValueRole).toInt(), 1);
        QCOMPARE(index(2).data(ValueRole).toInt(), 6);
    }

    void middleStripAndRefresh()
    {
        page->createView();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        tap(6, middleX());
        QCOMPARE(page->middleRow, 6);

        // Each call asks once, 100 ms later; a deleted page is asked nothing.
        page->refreshLater();
        page->refreshLater();
        QTRY_COMPARE(page->refreshes, 2);
        page->refreshLater();
        delete page;
        page = nullptr;
        QTest::qWait(150);
    }

    // A refresh shows what a first display of the same bytes shows, on every
    // row page of every protocol: the refresh reads the numbers of byte and
    // word rows by a road of its own, which must agree with the rows' own
    // reading and with the pages' value hooks.
    void refreshAgreesWithFirstDisplay()
    {
#if Q_PROCESSOR_WORDSIZE == 4
        // On the head unit's target the text and list fields of a buffer are
        // objects that the module constructs in place: random bytes there are
        // not data the car could send. The comparison is the same code on
        // both targets; the desktop runs it.
        QSKIP("random bytes over the buffer's object fields");
#endif
        // Pages whose hook keeps what a row shows until the car confirms it.
        const QStringList keepShown = {QStringLiteral("CarInfoItem64_1"), QStringLiteral("CarInfoItem30_9")};
        auto fill = [](int id, uint seed) {
            fillBuffer(id, [seed](int i) { return (uint(i) * 2654435761u + seed * 40503u) >> 13; });
        };
        QWidget parent;
        int rowsCompared = 0;
        for (int id : Catalogue::protocolIds()) {
            HostSim::setProtocolId(id);
            fill(id, 1);
            QScopedPointer<CarExViewBase> refreshed(createPageStack(id, &parent));
            if (!refreshed)
                continue;
            for (int p = 0; p < refreshed->count(); ++p) {
                fill(id, 1);
                RowPage *page = builtPage(refreshed.data(), p);
                if (!page || keepShown.contains(QLatin1String(page->metaObject()->className())))
                    continue;
                fill(id, 2);
                page->ondataChanged();
                QScopedPointer<CarExViewBase> fresh(createPageStack(id, &parent));
                RowPage *again = builtPage(fresh.data(), p);
                QVERIFY(again);
                QAbstractItemModel *shown = page->findChild<TableView *>()->model();
                QAbstractItemModel *expected = again->findChild<TableView *>()->model();
                QCOMPARE(shown->rowCount(), expected->rowCount());
                for (int r = 0; r < shown->rowCount(); ++r) {
                    const QString where = QStringLiteral("%1 row %2").arg(page->metaObject()->className()).arg(r);
                    QVERIFY2(shown->index(r, 0).data(DisplayValueRole) == expected->index(r, 0).data(DisplayValueRole),
                             qPrintable(where));
                    ++rowsCompared;
                }
            }
        }
        QVERIFY(rowsCompared > 1000);
    }

    // A page builds its table once per class and protocol and shares it,
    // unless it says that its table follows the buffer: every other table
    // must come out the same whatever the buffer holds.
    void sharedTablesDontFollowTheBuffer()
    {
#if Q_PROCESSOR_WORDSIZE == 4
        QSKIP("filled bytes over the buffer's object fields");
#endif
        auto fill = [](int id, int value) { fillBuffer(id, [value](int) { return value; }); };
        auto texts = [](QList<Row> const &table) {
            QStringList out;
            for (Row const &row : table) {
                out << QString::fromUtf8(row.title());
                for (QVariant const &option : row.options())
                    out << QLatin1String("  ") + option.toString();
            }
            return out;
        };
        QWidget parent;
        int shared = 0;
        for (int id : Catalogue::protocolIds()) {
            HostSim::setProtocolId(id);
            fill(id, 0);
            QScopedPointer<CarExViewBase> stack(createPageStack(id, &parent));
            if (!stack)
                continue;
            for (int p = 0; p < stack->count(); ++p) {
                RowPage *page = builtPage(stack.data(), p);
                if (!page || page->tableFollowsBuffer())
                    continue;
                const QStringList inUse = texts(page->rows());
                // Model and configuration codes are small numbers.
                for (int value : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 0x55, 0xAA, 0xFF}) {
                    fill(id, value);
                    QVERIFY2(texts(page->currentRowTable()) == inUse,
                             qPrintable(QStringLiteral("%1 on bytes of %2").arg(page->metaObject()->className()).arg(value)));
                }
                fill(id, 0);
                ++shared;
            }
        }
        QVERIFY(shared > 150);
    }

    // Pages whose classes serve several protocols (the trio's members, a
    // family's ids), built for one protocol and then for another in one
    // process, as after the unit's protocol switch, show what they show
    // built alone: nothing kept per class, such as the shared row tables,
    // carries one protocol's rows, texts or pictures into the other's.
    void sharedClassesAfterASwitch_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::newRow("trio members 71 and 122") << 71 << 122;
        QTest::newRow("trio members 33 and 64") << 33 << 64;
        QTest::newRow("family 30 on 30 and 50") << 30 << 50;
        QTest::newRow("family 32 on 32 and 54") << 32 << 54;
    }
    void sharedClassesAfterASwitch()
    {
#if Q_PROCESSOR_WORDSIZE == 4
        QSKIP("filled bytes over the buffer's object fields");
#endif
        QFETCH(int, first);
        QFETCH(int, second);
        const QStringList firstAlone = describedAlone(first);
        const QStringList secondAlone = describedAlone(second);
        QVERIFY2(firstAlone.size() > 20, qPrintable(firstAlone.join('\n')));
        QCOMPARE(describePages(first), firstAlone);
        QCOMPARE(describePages(second), secondAlone);
        QCOMPARE(describePages(first), firstAlone);
    }
};

// Run with --describe-pages ID, the test prints what describePages() gives
// for that protocol, in a process where nothing else was built.
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    if (argc == 3 && qstrcmp(argv[1], "--describe-pages") == 0) {
        for (QString const &line : describePages(QByteArray(argv[2]).toInt()))
            std::printf("%s\n", line.toUtf8().constData());
        return 0;
    }
    TestPageEngine test;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&test, argc, argv);
}
#include "tst_pageengine.moc"
