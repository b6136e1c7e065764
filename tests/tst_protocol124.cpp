// Protocol 124's pages: the basic information and the vehicle settings as
// rows with their frames, and the disc remote: which buttons work in which
// source, the commands of every button, the toggles that send the state
// after the change, the position bar, the refresh that touches only what
// changed, and the list dialog with the back key.

#include "exviewtests.h"

#include "carbodydata.h"
#include "cdbutton.h"
#include "listdialog.h"
#include "sliderviewimte.h"
#include "zorvrollingtext.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

using namespace PageTest;

namespace {

const int Protocol = 124;
using PageTest::Keys::Back;

enum PageIndex { Basic, Settings, Disc };

DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

// The disc page on a window, built, with its widgets by what they show.
class DiscPage : public Page
{
public:
    DiscPage() : Page(Protocol, Disc) { show(); }

    QList<CDButton *> buttons() const { return page()->findChildren<CDButton *>(QRegularExpression("^discButton")); }
    CDButton *button(QString const &text) const
    {
        for (CDButton *b : buttons()) {
            if (b->text() == text)
                return b;
        }
        return nullptr;
    }
    // The texts of the buttons that work, in the order of their numbers.
    QStringList usable() const
    {
        QStringList texts;
        for (int i = 1; i <= 21; ++i) {
            auto *b = page()->findChild<CDButton *>(QString("discButton%1").arg(i));
            if (b->isUsable())
                texts << b->text();
        }
        return texts;
    }
    void tapButton(QString const &text)
    {
        CDButton *b = button(text);
        QVERIFY2(b, qPrintable(text));
        QTest::mouseClick(b, Qt::LeftButton, {}, b->rect().center());
    }
    void refresh() { page()->ondataChanged(); }
    SliderViewImte *bar() const { return page()->findChild<SliderViewImte *>(); }
    QLabel *label(const char *name) const { return page()->findChild<QLabel *>(name); }
    ZorvRollingText *line(const char *name) const { return page()->findChild<ZorvRollingText *>(name); }
    ListDialog *dialog() const { return page()->findChild<ListDialog *>(); }
};

} // namespace

class TestProtocol124 : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(Protocol);
    }

    // Each page asks for its groups as it comes to the front.
    void requests_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("basic") << int(Basic) << QStringList{"2E 90 02 24 00 ck", "2E 90 02 16 00 ck"};
        QTest::newRow("settings") << int(Settings) << QStringList{"2E 90 02 40 00 ck"};
        QTest::newRow("disc") << int(Disc)
                              << QStringList{"2E 90 02 26 00 ck", "2E 90 02 27 00 ck", "2E 90 02 25 00 ck"};
    }
    void requests()
    {
        QFETCH(int, index);
        QFETCH(QStringList, expected);
        QWidget window;
        CarExViewBase *stack = createPageStack(Protocol, &window);
        QCOMPARE(stack->getDatalist(),
                 (QList<QString>{"Basic information", "Vehicle settings information", "CD/DVD status"}));
        stack->showIndex(index);
        QCOMPARE(sent(), hexOf(expected));
    }

    // Texts from the buffer, three states from the body record (a state the
    // car doesn't report shows the first option), two from the buffer; no
    // row can be set.
    void basicInformation()
    {
        DataBuffer data = buffer();
        data.setText(0, "V2.31");
        data.setText(4, "54 km/h");
        data.setText(8, "2100 rpm");
        data.setByte(12, 1);
        data.setByte(38, 1);
        CarbodyData *body = HostSim::carbodyData();
        body->byte2 = 1;
        body->handbrake = -1;
        body->byte35 = 1;
        Page p(Protocol, Basic);
        const QStringList titles = {"Avarage speed", "Engine speed", "Version information", "Reversing state",
                                    "P-gear or handbrake status", "Light info", "Park assist system status",
                                    "Current audio selection status of decoding box"};
        const QList<int> ids = {0, 1, 2, 8, 9, 10, 3, 4};
        const QStringList shown = {"54 km/h", "2100 rpm", "V2.31", "Reversing", "P gear", "ON", "ON", "AUX"};
        QCOMPARE(p.rows(), 8);
        for (int row = 0; row < 8; ++row) {
            QCOMPARE(p.title(row), titles.at(row));
            QCOMPARE(p.index(row).data(IdRole).toInt(), ids.at(row));
            QCOMPARE(p.shown(row), shown.at(row));
            QVERIFY(!p.index(row).data(AdjustableRole).toBool());
        }

        body->byte2 = -3;
        body->handbrake = 1;
        QCOMPARE(p.changedRows([] { buffer().setByte(38, 0); }), (QList<int>{3, 4, 7}));
        QCOMPARE(p.shown(3), QString("Non reversing"));
        QCOMPARE(p.shown(4), QString("Non P gear"));
        QCOMPARE(p.shown(7), QString("CD/DVD"));

        // Read only: a step that reached the page anyway does nothing.
        p.step(6, true);
        p.step(7, false);
        QVERIFY(HostSim::sentFrames().isEmpty());
        QCOMPARE(p.shown(6), QString("ON"));
    }

    // A step sends 2E C6 03 code X 00 with X the stepped value, or one more
    // where the car counts its options from 1; the steps stop at the ends of
    // the options. The row itself moves only with the buffer.
    void settingsFrames_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("value");
        QTest::addColumn<bool>("down");
        QTest::addColumn<QString>("expected");
        QTest::newRow("locking up") << 0 << 2 << false << "2E C6 03 01 03 00 ck";
        QTest::newRow("locking down at 0") << 0 << 0 << true << "2E C6 03 01 00 00 ck";
        QTest::newRow("locking up at the last") << 0 << 4 << false << "2E C6 03 01 04 00 ck";
        QTest::newRow("keyless volume") << 1 << 3 << true << "2E C6 03 02 02 00 ck";
        QTest::newRow("relock down at 0 sends 1") << 2 << 0 << true << "2E C6 03 03 01 00 ck";
        QTest::newRow("relock up") << 2 << 1 << false << "2E C6 03 03 03 00 ck";
        QTest::newRow("relock up at the last") << 2 << 2 << false << "2E C6 03 03 03 00 ck";
        QTest::newRow("unlock mode") << 3 << 0 << false << "2E C6 03 04 02 00 ck";
        QTest::newRow("exit lock") << 4 << 0 << false << "2E C6 03 05 01 00 ck";
        QTest::newRow("inductive wiper") << 5 << 0 << false << "2E C6 03 31 01 00 ck";
        QTest::newRow("triple flashing") << 6 << 1 << true << "2E C6 03 11 00 00 ck";
        QTest::newRow("turn signal volume") << 7 << 1 << true << "2E C6 03 12 01 00 ck";
        QTest::newRow("lights door opened") << 8 << 1 << false << "2E C6 03 21 03 00 ck";
        QTest::newRow("lights door closed at the last") << 9 << 3 << false << "2E C6 03 22 04 00 ck";
        QTest::newRow("lamp reminder") << 10 << 1 << false << "2E C6 03 23 02 00 ck";
        QTest::newRow("front lighting") << 11 << 1 << true << "2E C6 03 24 00 00 ck";
        QTest::newRow("headlight timer") << 12 << 3 << false << "2E C6 03 25 04 00 ck";
        QTest::newRow("headlights on at the last") << 13 << 4 << false << "2E C6 03 26 05 00 ck";
        QTest::newRow("headlights on down") << 13 << 1 << true << "2E C6 03 26 01 00 ck";
    }
    void settingsFrames()
    {
        QFETCH(int, id);
        QFETCH(int, value);
        QFETCH(bool, down);
        QFETCH(QString, expected);
        buffer().setByte(16 + id, quint8(value));
        Page p(Protocol, Settings);
        p.show();
        QCOMPARE(p.index(id).data(IdRole).toInt(), id);
        p.tap(id, down ? LeftArrow : RightArrow);
        QCOMPARE(sent(), hex({frame(expected)}));
        QCOMPARE(p.value(id), value);
    }

    // Titles and options as the car names them; the rows follow the buffer.
    void settingsRows()
    {
        Page p(Protocol, Settings);
        QCOMPARE(p.rows(), 14);
        for (int row = 0; row < 14; ++row)
            QVERIFY(p.index(row).data(AdjustableRole).toBool());
        QCOMPARE(p.title(8), QString("When the door is opened-the interior lights automatically turn off"));
        QCOMPARE(p.shown(3), QString("Once: All the doors"));
        QCOMPARE(p.changedRows([] {
                     buffer().setByte(19, 1);
                     buffer().setByte(29, 3);
                 }),
                 (QList<int>{3, 13}));
        QCOMPARE(p.shown(3), QString("Once: the driver's side door, twice: all the doors"));
        QCOMPARE(p.shown(13), QString("Medium darkness"));
        QCOMPARE(p.changedRows([] {}), QList<int>());
    }

    // The source decides which buttons work, whether the bar follows a
    // finger, and which lines show. Values outside 1 and 2 are no source.
    void discButtonsByMode_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QStringList>("usable");
        QTest::addColumn<bool>("discShown");
        QTest::addColumn<bool>("linesShown");
        const QStringList always = {"AUX", "CD", "DVD", "Discing"};
        QTest::newRow("none") << 0 << always << false << false;
        QTest::newRow("first source")
            << 1
            << QStringList{"Play", "Pause", "Next", "Prev", "RPT OFF", "RDM OFF", "SCAM", "AUX", "CD", "DVD",
                           "Discing", "List"}
            << true << true;
        QTest::newRow("second source")
            << 2
            << QStringList{"Play", "Pause", "Next", "Prev", "Fast forward", "Rewind quickly", "AUX", "CD", "DVD",
                           "Up", "Down", "Left", "Right", "OK", "Discing", "Subtitle off", "16:9 widescreen"}
            << true << false;
        QTest::newRow("unknown 3") << 3 << always << false << false;
        QTest::newRow("unknown 255") << 255 << always << false << false;
    }
    void discButtonsByMode()
    {
        QFETCH(int, mode);
        QFETCH(QStringList, usable);
        QFETCH(bool, discShown);
        QFETCH(bool, linesShown);
        DiscPage p;
        QCOMPARE(p.buttons().size(), 21);
        // Built in mode 0, then switched: the flags follow every change.
        buffer().setByte(36, quint8(mode));
        p.refresh();
        QCOMPARE(p.usable(), usable);
        QCOMPARE(p.bar()->isVisible(), discShown);
        QCOMPARE(p.bar()->slideState(), mode == 2);
        QCOMPARE(p.label("counter")->isVisible(), discShown);
        QCOMPARE(p.label("leftText")->isVisible(), discShown);
        QCOMPARE(p.label("rightText")->isVisible(), discShown);
        QVERIFY(p.line("firstLine")->isVisible());
        QCOMPARE(p.line("secondLine")->isVisible(), linesShown);
        QCOMPARE(p.line("thirdLine")->isVisible(), linesShown);

        // A blocked button sends nothing; the always usable ones do.
        p.tapButton("Play");
        p.tapButton("AUX");
        QCOMPARE(takeSent(), hexOf(mode == 1 || mode == 2 ? QStringList{"2E C7 02 02 00 ck", "2E C7 02 A1 00 ck"}
                                                           : QStringList{"2E C7 02 A1 00 ck"}));
    }

    // Every plain button sends its command, 2E C7 02 code 00.
    void discCommands_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("code");
        const QList<QPair<QString, int>> second = {
            {"Play", 0x02}, {"Pause", 0x01}, {"Next", 0x03}, {"Prev", 0x04}, {"Fast forward", 0x05},
            {"Rewind quickly", 0x06}, {"AUX", 0xA1}, {"CD", 0xF0}, {"DVD", 0x20}, {"Up", 0x21}, {"Down", 0x22},
            {"Left", 0x23}, {"Right", 0x24}, {"OK", 0x25}, {"Discing", 0x0B}};
        for (auto const &button : second)
            QTest::newRow(qPrintable(button.first)) << 2 << button.first << button.second;
        QTest::newRow("SCAM") << 1 << "SCAM" << 0x0C;
    }
    void discCommands()
    {
        QFETCH(int, mode);
        QFETCH(QString, text);
        QFETCH(int, code);
        buffer().setByte(36, quint8(mode));
        DiscPage p;
        p.tapButton(text);
        QCOMPARE(takeSent(), hex({frame(QString("2E C7 02 %1 00 ck").arg(code, 2, 16, QChar('0')))}));
    }

    // The toggles show the buffer's state and send the command for the
    // state after the change, read from the buffer at the tap, even before
    // the text caught up.
    void discToggles_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("repeat on") << 1 << 40 << 1 << "RPT ON" << "2E C7 02 08 00 ck";
        QTest::newRow("repeat off") << 1 << 40 << 0 << "RPT OFF" << "2E C7 02 07 00 ck";
        QTest::newRow("repeat any other") << 1 << 40 << 9 << "RPT ON" << "2E C7 02 08 00 ck";
        QTest::newRow("random on") << 1 << 39 << 1 << "RDM ON" << "2E C7 02 0A 00 ck";
        QTest::newRow("random off") << 1 << 39 << 0 << "RDM OFF" << "2E C7 02 09 00 ck";
        QTest::newRow("subtitle on") << 2 << 42 << 1 << "Subtitle on" << "2E C7 02 27 00 ck";
        QTest::newRow("subtitle off") << 2 << 42 << 0 << "Subtitle off" << "2E C7 02 28 00 ck";
        QTest::newRow("widescreen") << 2 << 41 << 0 << "16:9 widescreen" << "2E C7 02 2B 00 ck";
        QTest::newRow("frames") << 2 << 41 << 1 << "4:3 Frames" << "2E C7 02 2C 00 ck";
        QTest::newRow("panorama") << 2 << 41 << 2 << "4:3 Panorama" << "2E C7 02 2A 00 ck";
        QTest::newRow("unknown aspect") << 2 << 41 << 3 << "" << "";
    }
    void discToggles()
    {
        QFETCH(int, mode);
        QFETCH(int, offset);
        QFETCH(int, state);
        QFETCH(QString, text);
        QFETCH(QString, expected);
        buffer().setByte(36, quint8(mode));
        DiscPage p;
        // The button by its place: 7, 8, 20 or 19.
        const int number = offset == 40 ? 7 : offset == 39 ? 8 : offset == 41 ? 20 : 19;
        auto *button = p.page()->findChild<CDButton *>(QString("discButton%1").arg(number));
        buffer().setByte(offset, quint8(state));
        p.refresh();
        QCOMPARE(button->text(), text);
        QCOMPARE(button->textScale(), 0.3);
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        QCOMPARE(takeSent(), expected.isEmpty() ? QString() : hex({frame(expected)}));

        // The car hasn't answered yet: the buffer says otherwise, the text
        // still shows the old state, the tap follows the buffer.
        if (offset == 41)
            return;
        buffer().setByte(offset, state ? 0 : 1);
        const QString before = button->text();
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        QCOMPARE(button->text(), before);
        QVERIFY(takeSent() != hex({frame(expected)}));
    }

    // The bar follows the finger in the second source only; the release
    // sends the position: 2E C7 02 2F value and the checksum, six bytes.
    void discPositionBar()
    {
        buffer().setByte(36, 2);
        buffer().setByte(58, 30);
        DiscPage p;
        SliderViewImte *bar = p.bar();
        QCOMPARE(bar->getValue(), 30);
        const int width = bar->width();
        const int margin = int(bar->grooveRect().width() * 0.05);
        QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(width / 2, bar->height() / 2));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(width - 1, bar->height() / 2));
        QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(margin, bar->height() / 2));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(margin, bar->height() / 2));
        QCOMPARE(takeSent(), hex({frame("2E C7 02 2F 64 ck"), frame("2E C7 02 2F 00 ck")}));
        // The refresh puts the car's position back only when it changes.
        p.refresh();
        QCOMPARE(bar->getValue(), 0);
        buffer().setByte(58, 31);
        p.refresh();
        QCOMPARE(bar->getValue(), 31);

        buffer().setByte(36, 1);
        p.refresh();
        QTest::mousePress(bar, Qt::LeftButton, {}, QPoint(margin, bar->height() / 2));
        QTest::mouseRelease(bar, Qt::LeftButton, {}, QPoint(margin, bar->height() / 2));
        QCOMPARE(takeSent(), QString());
        QCOMPARE(bar->getValue(), 31);
    }

    // Lines, side texts and the counter come from the buffer; the refresh
    // touches a widget only when its source changed.
    void discTextsAndCache()
    {
        DataBuffer data = buffer();
        data.setByte(36, 1);
        data.setText(32, "Disc 1");
        data.setText(60, "Artist");
        data.setText(64, "Album");
        data.setText(52, "01:02");
        data.setText(48, "04:30");
        data.setWord(44, 3);
        data.setWord(56, 0xFFFF);
        DiscPage p;
        QCOMPARE(p.line("firstLine")->text(), QString("Disc 1"));
        QCOMPARE(p.line("secondLine")->text(), QString("Artist"));
        QCOMPARE(p.line("thirdLine")->text(), QString("Album"));
        QCOMPARE(p.label("leftText")->text(), QString("01:02"));
        QCOMPARE(p.label("rightText")->text(), QString("04:30"));
        QCOMPARE(p.label("counter")->text(), QString("3/65535"));
        QCOMPARE(p.label("counter")->alignment(), Qt::AlignCenter);

        // Marked by hand: an unchanged buffer leaves the marks.
        p.line("firstLine")->setText("mark");
        p.label("leftText")->setText("mark");
        p.label("counter")->setText("mark");
        p.page()->findChild<CDButton *>("discButton7")->setText("mark", 0.3);
        p.page()->findChild<CDButton *>("discButton1")->setProhibit(false);
        p.refresh();
        QCOMPARE(p.line("firstLine")->text(), QString("mark"));
        QCOMPARE(p.label("leftText")->text(), QString("mark"));
        QCOMPARE(p.label("counter")->text(), QString("mark"));
        QCOMPARE(p.button("mark")->objectName(), QString("discButton7"));
        QVERIFY(!p.page()->findChild<CDButton *>("discButton1")->isUsable());

        // What changed comes through, and only that.
        data.setText(32, "Disc 2");
        data.setWord(44, 4);
        p.refresh();
        QCOMPARE(p.line("firstLine")->text(), QString("Disc 2"));
        QCOMPARE(p.label("counter")->text(), QString("4/65535"));
        QCOMPARE(p.label("leftText")->text(), QString("mark"));
        // Building again is a refresh.
        p.page()->createView();
        QCOMPARE(p.buttons().size(), 21);
    }

    // "List" opens the dialog over the page with the entries fetched so far;
    // while it is open, a grown list in the buffer refreshes it, and with
    // the total reached its button is blocked.
    // On the head unit's screen every button of the remote lies whole, and
    // its text, wrapped at the button's font, within the button.
    void discRemoteFitsTheScreen()
    {
        buffer().setByte(36, 2);
        PageTest::ExtendedView ex;
        ex.open(Disc);
        QWidget *screen = HostSim::screen();
        QCOMPARE(screen->size(), QSize(1024, 600));
        const auto buttons = ex.page()->findChildren<CDButton *>(QRegularExpression("^discButton"));
        QCOMPARE(buttons.size(), 21);
        for (CDButton *button : buttons) {
            QVERIFY2(button->isVisible(), qPrintable(button->text()));
            const QRect onScreen(button->mapTo(screen, QPoint(0, 0)), button->size());
            QVERIFY2(screen->rect().contains(onScreen), qPrintable(button->text()));
            QFont font = button->font();
            font.setPixelSize(int(button->height() * button->textScale()));
            const QRect needed = QFontMetrics(font).boundingRect(button->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                                                                 button->text());
            QVERIFY2(button->rect().contains(needed), qPrintable(button->text()));
        }
        // The screen goes, so that the next tests' windows keep the focus.
        HostSim::screen()->hide();
    }

    void discListDialog()
    {
        DataBuffer data = buffer();
        data.setByte(36, 1);
        data.setWord(56, 20);
        data.setEntries(68, discEntries(15));
        DiscPage p;
        QVERIFY(!p.dialog());
        p.tapButton("List");
        ListDialog *dialog = p.dialog();
        QVERIFY(dialog && dialog->isVisible());
        QCOMPARE(dialog->geometry(), QRect(QPoint(0, 0), p.stack->size()));
        QCOMPARE(dialog->entryTexts().size(), 15);
        QCOMPARE(dialog->entryTexts().at(14), QString("15  Track 15"));
        QTRY_VERIFY(dialog->hasFocus());
        auto *download = dialog->findChild<CDButton *>();
        QVERIFY(download->isUsable());
        QTest::mouseClick(download, Qt::LeftButton, {}, download->rect().center());
        QCOMPARE(takeSent(), hex({frame("2E C7 05 11 00 0F 00 14 ck")}));

        data.setEntries(68, discEntries(20));
        HostSim::notifyDataChanged();
        p.refresh();
        QCOMPARE(dialog->entryTexts().size(), 20);
        QVERIFY(!download->isUsable());

        // A second "List" raises the same dialog.
        dialog->hide();
        p.tapButton("List");
        QCOMPARE(p.dialog(), dialog);
        QVERIFY(dialog->isVisible());

        // An empty list, a total of 0: nothing to show, nothing to fetch.
        data.setEntries(68, {});
        data.setWord(56, 0);
        p.refresh();
        QCOMPARE(dialog->entryTexts().size(), 0);
        QVERIFY(!download->isUsable());
    }

    // With the dialog open, back closes it and nothing else; the next back
    // leaves the page. Both through the dialog's own key and through the
    // base bar.
    void discBackClosesDialogFirst()
    {
        buffer().setByte(36, 1);
        buffer().setEntries(68, discEntries(3));
        ExtendedView v;
        QVERIFY(v.exposed());
        auto *stack = v.open(Disc);
        QVERIFY(stack->isVisible());
        QWidget *page = stack->currentWidget();

        auto openDialog = [&] {
            CDButton *open = nullptr;
            for (CDButton *b : page->findChildren<CDButton *>()) {
                if (b->text() == "List")
                    open = b;
            }
            QTest::mouseClick(open, Qt::LeftButton, {}, open->rect().center());
            return QPointer<ListDialog>(page->findChild<ListDialog *>());
        };

        // The key reaches the dialog, which has the focus.
        QPointer<ListDialog> dialog = openDialog();
        QTRY_VERIFY(dialog && dialog->hasFocus());
        pressKey(QApplication::focusWidget(), Back);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!dialog);
        QVERIFY(stack->isVisible());
        QTRY_VERIFY(page->hasFocus());
        pressKey(QApplication::focusWidget(), Back);
        QVERIFY(!stack->isVisible());
        QVERIFY(v.list->isVisible());

        // The bar's back: the page closes its dialog first.
        v.open(Disc);
        dialog = openDialog();
        QVERIFY(dialog && dialog->isVisible());
        v.back();
        QVERIFY(!dialog || !dialog->isVisible());
        QVERIFY(stack->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!dialog);
        v.back();
        QVERIFY(!stack->isVisible());

        // The view goes while a closed dialog waits for its deletion: the
        // page goes with it and nothing keeps the focus on a dead widget.
        v.open(Disc);
        dialog = openDialog();
        v.back();
        QVERIFY(dialog);
        delete v.view;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!dialog);
        QWidget *focus = QApplication::focusWidget();
        QVERIFY(!focus || focus->isVisible());
    }
};

QTEST_MAIN(TestProtocol124)
#include "tst_protocol124.moc"
