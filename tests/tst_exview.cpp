// The extended view: the list of page titles, the page in front, the tyre
// panel, and the ways back out, driven by taps, keys and the base bar.

#include "appframework.h"
#include "basebar.h"
#include "canobj.h"
#include "carexviewbase.h"
#include "carinfoitem.h"
#include "exview.h"
#include "frames.h"
#include "hostsim.h"
#include "listview.h"
#include "tirepressure.h"

#include <QPointer>
#include <QSignalSpy>
#include <QLabel>
#include <QtTest>

namespace {

QByteArray checked(QByteArray frame)
{
    CanObj::autoCalculateChecksum(frame);
    return frame;
}

QWidget *child(QWidget *parent, char const *name)
{
    return parent->findChild<QWidget *>(QString::fromLatin1(name));
}

bool shown(QWidget *parent, char const *name)
{
    QWidget *widget = child(parent, name);
    return widget && widget->isVisible();
}

} // namespace

class TestExView : public QObject
{
    Q_OBJECT

private:
    QPointer<ExView> view;

    void open(int id)
    {
        HostSim::reset();
        HostSim::setProtocolId(id);
        HostSim::screen()->show();
        view = new ExView(zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel1));
        view->show();
        QVERIFY(QTest::qWaitForWindowExposed(view));
    }

    void tapTitle(int row)
    {
        auto *list = view->findChild<ListView *>("listView");
        const QRect rect = list->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rect.center());
    }

    void pressKey(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        QApplication::sendEvent(view, &press);
        QApplication::sendEvent(view, &release);
    }

    BaseBar *bar() const { return view->findChild<BaseBar *>(); }

private slots:
    void cleanup()
    {
        delete view;
    }

    void noFamilyGivesAnEmptyList_data()
    {
        QTest::addColumn<int>("id");
        QTest::newRow("none selected") << 0;
        QTest::newRow("gap") << 41;
        QTest::newRow("beyond") << 125;
        QTest::newRow("dashboard only") << 27;
    }
    void noFamilyGivesAnEmptyList()
    {
        QFETCH(int, id);
        open(id);
        auto *list = view->findChild<ListView *>("listView");
        QCOMPARE(list->model()->rowCount(), 0);
        QVERIFY(!view->findChild<CarExViewBase *>());
        view->setData(QVariant());
        view->refresh();
        HostSim::notifyDataChanged();
        QVERIFY(HostSim::sentFrames().isEmpty());

        // Back leaves the screen, by the bar and by the head unit's keys.
        HostSim::pressBarButton(bar(), "back");
        QVERIFY(QTest::qWaitFor([&] { return view.isNull(); }));
    }

    void titlesPagesAndBack()
    {
        open(28);
        auto *list = view->findChild<ListView *>("listView");
        QCOMPARE(list->model()->rowCount(), 8);
        QCOMPARE(list->model()->index(4, 0).data(Qt::DisplayRole).toString(), QString("Electronic Sisplay"));
        const QRect systemView(0, 70, 1024, 470);
        QCOMPARE(list->geometry(), systemView.adjusted(35, 0, -35, 0));

        tapTitle(1);
        auto *stack = view->findChild<CarExViewBase *>();
        QVERIFY(stack->isVisible());
        QVERIFY(!list->isVisible());
        QCOMPARE(stack->currentIndex(), 1);
        QCOMPARE(qobject_cast<CarInfoItem *>(stack->currentWidget())->getTitle(), QString("Amplifier status"));

        // An invalid index does nothing.
        QMetaObject::invokeMethod(view, "onItemClicked", Q_ARG(QModelIndex, QModelIndex()));
        QVERIFY(stack->isVisible());

        // The back keys go to the bar, never to the head unit.
        pressKey(0x0110002A);
        QVERIFY(!stack->isVisible());
        QVERIFY(list->isVisible());
        pressKey(0x0140000F);
        QVERIFY(QTest::qWaitFor([&] { return view.isNull(); }));
        QVERIFY(HostSim::passedKeys().isEmpty());
    }

    void otherKeysGoToTheHeadUnit()
    {
        open(28);
        pressKey(Qt::Key_F5);
        QCOMPARE(HostSim::passedKeys(), QList<int>{Qt::Key_F5});
        QVERIFY(view);
    }

    void homeOpensTheHomeActivity()
    {
        open(28);
        tapTitle(0);
        HostSim::pressBarButton(bar(), "home");
        QVERIFY(QTest::qWaitFor([&] { return view.isNull(); }));
        QCOMPARE(HostSim::openedActivities(), QStringList{"home"});
    }

    void tyrePanel_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<QByteArray>("reset");
        QTest::newRow("28") << 28 << Frames::make2E(0xC6, {0x22, 0x01});
        QTest::newRow("31") << 31 << Frames::make2E(0xC6, {0x11, 0x00});
        QTest::newRow("53") << 53 << Frames::make2E(0xC6, {0x11, 0x00});
        QTest::newRow("42") << 42 << Frames::make2E(0x83, {0x02, 0x01});
        QTest::newRow("64") << 64 << Frames::make2E(0x83, {0x0C, 0x01});
        QTest::newRow("72") << 72 << Frames::make2E(0xC6, {0x04, 0x01, 0x01});
        QTest::newRow("30 has none") << 30 << QByteArray();
    }
    void tyrePanel()
    {
        QFETCH(int, id);
        QFETCH(QByteArray, reset);
        open(id);
        tapTitle(0);
        auto *stack = view->findChild<CarExViewBase *>();
        HostSim::clearSentFrames();

        QMetaObject::invokeMethod(stack, "TirePressure");
        auto *panel = view->findChild<TirePressure *>("tirePressure");
        QVERIFY(panel && panel->isVisible());
        QVERIFY(!stack->isVisible());
        QCOMPARE(bar()->title(), QString("tire pressure"));
        // The hint, longer than the screen is wide, wraps and stays whole
        // within the panel.
        auto *hint = panel->findChild<QLabel *>("label");
        QVERIFY(hint);
        QVERIFY(hint->fontMetrics().horizontalAdvance(hint->text()) > panel->width());
        QVERIFY(panel->rect().contains(hint->geometry()));
        const int wrap = hint->wordWrap() ? int(Qt::TextWordWrap) : 0;
        const QRect needed = hint->fontMetrics().boundingRect(QRect(0, 0, hint->width(), panel->height()),
                                                              wrap | int(hint->alignment()), hint->text());
        QVERIFY(needed.width() <= hint->width() && needed.height() <= hint->height());

        // Back from the panel sends nothing and shows the page again.
        HostSim::pressBarButton(bar(), "back");
        QVERIFY(!panel->isVisible());
        QVERIFY(stack->isVisible());
        QVERIFY(HostSim::sentFrames().isEmpty());

        // A second opening reuses the panel; reset sends once and closes it.
        QMetaObject::invokeMethod(stack, "TirePressure");
        QCOMPARE(view->findChildren<TirePressure *>().size(), 1);
        QVERIFY(panel->isVisible());
        auto *resetButton = child(panel, "resetButton");
        QTest::mouseClick(resetButton, Qt::LeftButton, {}, resetButton->rect().center());
        QList<QByteArray> expected;
        if (!reset.isEmpty())
            expected << checked(reset);
        QCOMPARE(HostSim::sentFrames(), expected);
        QVERIFY(!panel->isVisible());
        QVERIFY(stack->isVisible());
        // The title stays until the screen goes.
        QCOMPARE(bar()->title(), QString("tire pressure"));
    }

    void dataReachesOnlyThePageInFront()
    {
        open(28);
        auto *stack = view->findChild<CarExViewBase *>();
        // Before the first visit page 0 has no rows and ignores the data.
        HostSim::notifyDataChanged();
        tapTitle(0);
        QVERIFY(shown(view, "stack"));
        QVERIFY(stack->currentWidget()->findChild<QAbstractItemView *>());
    }
};

QTEST_MAIN(TestExView)
#include "tst_exview.moc"
