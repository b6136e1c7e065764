// The page stacks: the requests that bringing a page to the front sends to
// the decoder box, byte for byte, and the timers that keep asking while a
// page stays in front.

#include "pagetests.h"

#include "canobj.h"
#include "carexviewbase.h"
#include "carinfoitem.h"
#include "catalogue.h"
#include "hostsim.h"
#include "tableview.h"

#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTimer>
#include <QtTest>

#include <memory>

using PageTest::hex;
using PageTest::hexOf;
using PageTest::series;

namespace {

const QStringList vehicleParts = series("2E 90 02 7D %1 ck", 0, 0x10);

} // namespace

class TestPageStacks : public QObject
{
    Q_OBJECT

private:
    QWidget *window = nullptr;
    CarExViewBase *stack = nullptr;
    QTimer *timer = nullptr;

    void open(int id)
    {
        HostSim::setProtocolId(id);
        stack = createPageStack(id, window);
        QVERIFY(stack);
        stack->setGeometry(window->rect());
        timer = stack->findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
    }

    void show(int index)
    {
        HostSim::clearSentFrames();
        stack->showIndex(index);
    }

    void countdown()
    {
        HostSim::clearSentFrames();
        QVERIFY(QMetaObject::invokeMethod(stack, "onCountdown"));
    }

    static QList<QByteArray> sent() { return HostSim::sentFrames(); }

    // Whether the timer ran while each frame went out.
    QList<bool> timerStateAtEachFrame(int index)
    {
        QList<bool> states;
        QMetaObject::Connection c = connect(CanObj::instance(), &CanObj::sendDataToCan, this,
                                            [this, &states]() { states.append(timer->isActive()); });
        show(index);
        disconnect(c);
        return states;
    }

private slots:
    void init()
    {
        HostSim::reset();
        window = new QWidget;
        window->resize(1024, 470);
    }

    void cleanup()
    {
        delete window;
        window = nullptr;
        stack = nullptr;
        timer = nullptr;
    }

    void requests_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("30: tyres") << 30 << 0 << QStringList{"2E 90 02 25 00 ck"};
        QTest::newRow("30: three groups in order") << 30 << 2
            << QStringList{"2E 90 02 50 00 ck", "2E 90 02 52 00 ck", "2E 90 02 22 00 ck"};
        QTest::newRow("50 as 30: multimedia") << 50 << 8 << QStringList{"2E 90 02 61 00 ck", "2E 90 02 66 00 ck"};
        QTest::newRow("51 as 30: hybrid") << 51 << 1 << QStringList{"2E 90 02 1F 00 ck"};
        QTest::newRow("30: beyond the last page") << 30 << 9 << QStringList();

        QTest::newRow("32: nothing on page 0") << 32 << 0 << QStringList();
        QTest::newRow("32: voice") << 32 << 1 << QStringList{"2E 90 02 7D EF ck"};
        QTest::newRow("32: function in the short form") << 32 << 2 << QStringList{"2E 90 01 7E ck"};
        QTest::newRow("54 as 32: vehicle parts") << 54 << 3 << vehicleParts;
        QTest::newRow("32: nothing on the vehicle page") << 32 << 5 << QStringList();
        QTest::newRow("33: function") << 33 << 2 << QStringList{"2E 90 02 7E 00 ck"};
        QTest::newRow("57 as 33: control") << 57 << 8 << QStringList{"2E 90 02 58 00 ck"};

        QTest::newRow("37: OnStar") << 37 << 8 << QStringList{"2E 90 01 41 ck", "2E 90 01 42 ck"};
        QTest::newRow("39 as 37: nothing") << 39 << 0 << QStringList();
        QTest::newRow("29: nothing from the table") << 29 << 0 << QStringList();

        QTest::newRow("65: voice") << 65 << 0 << QStringList{"2E 90 02 7D EF ck"};
        QTest::newRow("65: radio") << 65 << 6 << QStringList{"2E 90 01 60 ck", "2E 90 01 61 ck", "2E 90 01 62 ck"};
        QTest::newRow("65: last page") << 65 << 13 << QStringList{"2E 90 01 26 ck"};

        QTest::newRow("67: voice of group 7E") << 67 << 0 << QStringList{"FD 06 90 7E EF ck ck"};
        QTest::newRow("67: function") << 67 << 1 << QStringList{"FD 06 90 7E 00 ck ck"};
        QTest::newRow("67: swapped vehicle parts") << 67 << 2 << series("FD 90 06 7D %1 ck ck", 0, 0x10);
        QTest::newRow("67: code 00") << 67 << 3 << QStringList{"FD 06 90 00 00 ck ck"};
        QTest::newRow("67: new energy 1") << 67 << 9 << QStringList{"FD 06 90 52 00 ck ck"};
        QTest::newRow("67: body") << 67 << 12
            << QStringList{"FD 06 90 01 00 ck ck", "FD 06 90 07 00 ck ck", "FD 06 90 51 00 ck ck"};
        QTest::newRow("67: beyond the last page") << 67 << 13 << QStringList{"FD 06 90 00 00 ck ck"};

        QTest::newRow("68: settings") << 68 << 0 << QStringList{"2E 90 02 24 00 ck", "2E 90 02 10 00 ck"};
        QTest::newRow("68: the long series") << 68 << 1
            << series("2E 90 02 40 %1 ck", 0, 42) + QStringList{"2E 90 02 40 FE ck", "2E 90 02 40 FF ck"};

        QTest::newRow("72: three-byte groups") << 72 << 14
            << QStringList{"2E 90 03 27 00 00 ck", "2E 90 03 43 00 00 ck", "2E 90 03 61 00 00 ck",
                           "2E 90 03 62 00 00 ck"};
        QTest::newRow("101 as 74: body") << 101 << 3
            << QStringList{"2E 90 01 36 ck", "2E 90 01 37 ck", "2E 90 01 31 ck"};
        QTest::newRow("85 as 81: body") << 85 << 0 << QStringList{"2E 90 01 52 ck", "2E 90 01 40 ck"};

        QTest::newRow("86: code 00") << 86 << 0 << QStringList{"FD 04 8F 00 ck"};
        QTest::newRow("86: 33 twice") << 86 << 1
            << QStringList{"FD 04 8F 33 ck", "FD 04 8F 34 ck", "FD 04 8F 35 ck", "FD 04 8F 33 ck"};
        QTest::newRow("87: code 00") << 87 << 0 << QStringList{"FD 04 8F 00 ck"};
        QTest::newRow("87: 33 twice") << 87 << 1
            << QStringList{"FD 04 8F 33 ck", "FD 04 8F 34 ck", "FD 04 8F 35 ck", "FD 04 8F 33 ck"};
        QTest::newRow("87: body") << 87 << 2 << QStringList{"FD 04 8F 27 ck", "FD 04 8F 01 ck", "FD 04 8F 40 ck"};
        QTest::newRow("87: charging") << 87 << 10 << QStringList{"FD 04 8F 52 ck", "FD 04 8F 53 ck"};

        QTest::newRow("88: body") << 88 << 0 << QStringList{"2E F1 01 01 ck", "2E F1 01 0B ck"};
        QTest::newRow("92 as 88: hybrid") << 92 << 7 << QStringList{"2E F1 01 33 ck"};
        QTest::newRow("98: setting items") << 98 << 1 << QStringList{"2E 90 02 40 FF ck"};

        QTest::newRow("104 as 103: body") << 104 << 0 << QStringList{"2E 90 01 36 ck"};
        QTest::newRow("103: code 00 on the amplifier") << 103 << 2 << QStringList{"2E 90 01 00 ck"};

        QTest::newRow("122: setting items") << 122 << 2
            << QStringList{"2E 90 01 38 ck", "2E 90 01 41 ck", "2E 90 01 42 ck", "2E 90 01 43 ck"};
        QTest::newRow("122: body with part 06") << 122 << 4 << QStringList{"2E 90 02 7D 06 ck"};
        QTest::newRow("122: voice late in the list") << 122 << 5 << QStringList{"2E 90 02 7D EF ck"};
        QTest::newRow("122: vehicle parts") << 122 << 7 << vehicleParts;
        QTest::newRow("124: disc") << 124 << 2
            << QStringList{"2E 90 02 26 00 ck", "2E 90 02 27 00 ck", "2E 90 02 25 00 ck"};
    }

    void requests()
    {
        QFETCH(int, id);
        QFETCH(int, index);
        QFETCH(QStringList, expected);

        open(id);
        show(index);
        QCOMPARE(hex(sent()), hexOf(expected, id));
    }

    void samePageTwice()
    {
        open(30);
        show(2);
        CarInfoItem *page = qobject_cast<CarInfoItem *>(stack->currentWidget());
        TableView *view = page->findChild<TableView *>();
        QVERIFY(view);
        QCOMPARE(sent().size(), 3);

        // The requests go again; the page refreshes and isn't rebuilt.
        show(2);
        QCOMPARE(sent().size(), 3);
        QCOMPARE(page->findChildren<TableView *>().size(), 1);
        QCOMPARE(page->findChild<TableView *>(), view);
        QCOMPARE(stack->currentIndex(), 2);
    }

    void setDataBeforeAnyPage()
    {
        for (int id : {28, 30, 31, 67, 122}) {
            open(id);
            CarInfoItem *first = qobject_cast<CarInfoItem *>(stack->widget(0));
            HostSim::clearSentFrames();
            stack->setData(CanObj::instance()->getDataById(id));
            QVERIFY(!first->findChild<TableView *>());
            QVERIFY(sent().isEmpty());

            stack->showIndex(0);
            stack->setData(QVariant());
            QVERIFY(first->findChild<TableView *>());
            delete stack;
        }
    }

    void timerOfPollingFamilies_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("interval");
        QTest::newRow("29") << 29 << 1000;
        QTest::newRow("34") << 34 << 10000;
    }

    void timerOfPollingFamilies()
    {
        QFETCH(int, id);
        QFETCH(int, interval);
        open(id);
        QVERIFY(timer);
        QVERIFY(!timer->isActive());

        show(0);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), interval);
        countdown();
        QCOMPARE(hex(sent()), hexOf({"2E 90 01 25 ck"}, id));

        show(2);
        QVERIFY(timer->isActive());
        countdown();
        QCOMPARE(hex(sent()), hexOf({"2E 90 01 14 ck", "2E 90 01 16 ck", "2E 90 02 41 02 ck",
                                              "2E 90 02 41 03 ck"}, id));

        // Page 1 stops it; a tick there asks nothing and doesn't stop it.
        show(1);
        QVERIFY(!timer->isActive());
        timer->start();
        countdown();
        QVERIFY(sent().isEmpty());
        QVERIFY(timer->isActive());

        show(0);
        QVERIFY(timer->isActive());
        QVERIFY(sent().isEmpty());
    }

    void timerOfFamily31()
    {
        open(53);
        stack->show();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));

        show(1);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 1000);
        QVERIFY(sent().isEmpty());
        countdown();
        QCOMPARE(hex(sent()), hexOf({"2E 90 02 33 02 ck", "2E 90 02 33 01 ck"}, 31));

        show(0);
        QVERIFY(!timer->isActive());
        countdown();
        QCOMPARE(sent().size(), 2);

        // Going back to the list hides the stack, and that stops the timer.
        show(1);
        QVERIFY(timer->isActive());
        stack->hide();
        QVERIFY(!timer->isActive());
    }

    void timerAndRequestsOrder_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<bool>("runsDuringRequests");
        QTest::addColumn<QStringList>("tick");
        QTest::newRow("32 stops first") << 32 << false
                                        << QStringList{"2E 90 01 68 ck", "2E 90 01 6A ck", "2E 90 01 27 ck"};
        QTest::newRow("33 asks first") << 33 << true << QStringList{"2E 90 01 68 ck", "2E 90 01 6A ck"};
    }

    void timerAndRequestsOrder()
    {
        QFETCH(int, id);
        QFETCH(bool, runsDuringRequests);
        QFETCH(QStringList, tick);
        open(id);

        show(5);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 1000);
        countdown();
        QCOMPARE(hex(sent()), hexOf(tick, id));

        const QList<bool> states = timerStateAtEachFrame(3);
        QCOMPARE(states.size(), 17);
        QCOMPARE(states.count(runsDuringRequests), 17);
        QVERIFY(!timer->isActive());

        // A tick on a page without polling stops the timer.
        timer->start();
        countdown();
        QVERIFY(sent().isEmpty());
        QVERIFY(!timer->isActive());
    }

    void timerOfFamily60()
    {
        open(61);
        show(0);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 1500);
        countdown();
        QCOMPARE(hex(sent()), hexOf({"2E 90 02 29 00 ck"}, 60));

        // Page 1 stops the timer before its request goes out.
        QCOMPARE(timerStateAtEachFrame(1), QList<bool>() << false);
        QCOMPARE(hex(sent()), hexOf({"2E 90 02 31 00 ck"}, 60));
        QVERIFY(!timer->isActive());

        show(2);
        QVERIFY(timer->isActive());
        countdown();
        QCOMPARE(hex(sent()), hexOf({"2E 90 02 36 00 ck"}, 60));

        show(3);
        QVERIFY(!timer->isActive());
        timer->start();
        countdown();
        QVERIFY(sent().isEmpty());
        QVERIFY(!timer->isActive());
    }

    void timerOfFamily56()
    {
        open(56);
        show(3);
        QCOMPARE(sent().size(), 17);
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 1000);
        countdown();
        QVERIFY(sent().isEmpty());
        QVERIFY(timer->isActive());

        show(1);
        QVERIFY(!timer->isActive());
        timer->start();
        countdown();
        QVERIFY(!timer->isActive());
    }

    void timerThatNothingStarts_data()
    {
        QTest::addColumn<int>("id");
        for (int id : {64, 65, 67, 70, 71, 72, 74, 78, 79, 96, 97, 102, 105})
            QTest::newRow(qPrintable(QString::number(id))) << id;
    }

    void timerThatNothingStarts()
    {
        QFETCH(int, id);
        open(id);
        QVERIFY(timer);
        for (int index = 0; index < stack->count(); ++index) {
            show(index);
            QVERIFY(!timer->isActive());
        }

        show(0);
        timer->start(1000);
        countdown();
        QVERIFY(sent().isEmpty());
        QVERIFY(!timer->isActive());

        // On page 5 the tick lets it run, and asks nothing.
        if (stack->count() > 5) {
            show(5);
            timer->start(1000);
            countdown();
            QVERIFY(sent().isEmpty());
            QVERIFY(timer->isActive());
        }
    }

    void noTimerElsewhere()
    {
        for (int id : {28, 30, 37, 68, 69, 86, 87, 88, 122, 124}) {
            open(id);
            QVERIFY2(!timer, qPrintable(QString::number(id)));
            delete stack;
        }
    }

    void family28AsksThroughItsPages_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("parking") << 0
            << QStringList{"2E 90 02 25 00 ck", "2E 90 02 27 00 ck", "2E 90 02 14 00 ck", "2E 90 02 2A 00 ck",
                           "2E 90 02 60 00 ck", "2E 90 02 62 00 ck"};
        QTest::newRow("amplifier") << 1 << QStringList{"2E 90 02 51 00 ck"};
        QTest::newRow("tyres") << 5 << QStringList{"2E 90 02 66 00 ck", "2E 90 02 68 00 ck"};
        QTest::newRow("condition check") << 6 << series("2E 90 02 63 %1 ck", 0x10, 0x11)
                                                     + series("2E 90 02 63 %1 ck", 0x20, 0x22);
    }

    void family28AsksThroughItsPages()
    {
        QFETCH(int, index);
        QFETCH(QStringList, expected);
        open(28);
        QSignalSpy spy(stack, &CarExViewBase::sendData);

        // The page asks a moment later, through the stack's signal.
        show(index);
        QCOMPARE(spy.count(), 0);
        QTRY_COMPARE(spy.count(), expected.size());
        QList<QByteArray> received;
        for (QList<QVariant> const &arguments : spy)
            received.append(arguments.at(0).toByteArray());
        QCOMPARE(hex(received), hexOf(expected, 28));
        QVERIFY(sent().isEmpty());
    }

    void tyrePagesOpenThePanel_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<int>("index");
        QTest::addColumn<int>("resetRow");
        QTest::newRow("28_6") << 28 << 5 << 8;
        QTest::newRow("31_3") << 31 << 2 << 6;
        QTest::newRow("53 as 31") << 53 << 2 << 6;
        QTest::newRow("42_1") << 42 << 0 << 2;
        QTest::newRow("64_5") << 64 << 4 << 40;
    }

    void tyrePagesOpenThePanel()
    {
        QFETCH(int, id);
        QFETCH(int, index);
        QFETCH(int, resetRow);
        open(id);
        stack->showIndex(index);
        TableView *view = stack->currentWidget()->findChild<TableView *>();
        QVERIFY(view);
        QSignalSpy spy(stack, &CarExViewBase::TirePressure);

        // The view reports presses on the middle of rows by their index.
        QStandardItemModel rows(resetRow + 2, 1);
        for (int row : {0, resetRow - 1, resetRow + 1})
            emit view->itemBtMiddle(rows.index(row, 0));
        QCOMPARE(spy.count(), 0);
        emit view->itemBtMiddle(rows.index(resetRow, 0));
        QCOMPARE(spy.count(), 1);
    }
};

QTEST_MAIN(TestPageStacks)
#include "tst_pagestacks.moc"
