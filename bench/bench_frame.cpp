// What a driver waits for, from the touch to the painted screen, each
// figure against a baseline measured in the same run:
//  - a tap on the title of the settings page of protocol 28 until the page
//    is painted and the event loop has nothing left, with the number of
//    paints of the page's table; against a plain QTableView over a
//    QStandardItemModel with the same titles and texts, shown and painted
//    the same way;
//  - opening the extended view until its list of titles is painted, with
//    the number of paints of the list;
//  - a data change on a visible row until its repaint.
//
// CARCONTROL_FRAME_VISITS sets the number of visits (300).

#include "appframework.h"
#include "canobj.h"
#include "carexviewbase.h"
#include "catalogue.h"
#include "databuffer.h"
#include "exview.h"
#include "hostsim.h"
#include "listdata.h"
#include "listview.h"
#include "tableview.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QPointer>
#include <QStandardItemModel>
#include <QtTest>

#include <algorithm>

namespace {

const int SettingsPage = 2;
const int SettingsFirstByte = 112;

int envCount(const char *name, int fallback)
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue(name, &ok);
    return ok && value > 0 ? value : fallback;
}

QWidget *levelOne()
{
    return zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel1);
}

// Runs what the event loop holds: posted events, zero timers, the paints
// they ask for, until a round finds nothing more to paint.
void drain()
{
    for (int i = 0; i < 4; ++i)
        QCoreApplication::processEvents();
}

// Deletes a view and lets the screen under it repaint now, not within the
// next measurement.
void closeView(QWidget *view)
{
    delete view;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    drain();
}

double median(QVector<qint64> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    return double(values.at(values.size() / 2));
}

// Counts the paints of the viewports of one kind of view.
class PaintCounter : public QObject
{
public:
    enum Kind { PageTable, TitleList, AnyTable };
    explicit PaintCounter(Kind kind) : m_kind(kind) { qApp->installEventFilter(this); }
    ~PaintCounter() { qApp->removeEventFilter(this); }

    int paints = 0;

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            auto *view = qobject_cast<QAbstractItemView *>(object->parent());
            if (view && view->viewport() == object && counts(view))
                ++paints;
        }
        return false;
    }

private:
    bool counts(QAbstractItemView *view) const
    {
        switch (m_kind) {
        case PageTable:
            return qobject_cast<TableView *>(view);
        case TitleList:
            return view->objectName() == QLatin1String("listView");
        case AnyTable:
            return true;
        }
        return false;
    }

    Kind m_kind;
};

} // namespace

class BenchFrame : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    }

    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(28);
        HostSim::screen()->show();
        drain();
    }

    void tapToPaintedPage()
    {
        const int visits = envCount("CARCONTROL_FRAME_VISITS", 300);
        QVector<qint64> page, plain;
        int pagePaints = 0;
        QElapsedTimer timer;
        for (int i = 0; i < visits; ++i) {
            QPointer<ExView> view = new ExView(levelOne());
            view->show();
            drain();
            auto *list = view->findChild<ListView *>("listView");
            QVERIFY(list);
            const QPoint title = list->visualRect(list->model()->index(SettingsPage, 0)).center();
            {
                PaintCounter counter(PaintCounter::PageTable);
                timer.start();
                QTest::mousePress(list->viewport(), Qt::LeftButton, {}, title);
                QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, title);
                drain();
                page.append(timer.nsecsElapsed());
                pagePaints = counter.paints;
            }
            closeView(view);

            plain.append(plainTable());
        }
        const double pageMs = median(page) / 1e6;
        const double plainMs = median(plain) / 1e6;
        qInfo("tap to painted 28_3: %.3f ms, plain table %.3f ms, ratio %.2f, paints %d", pageMs, plainMs,
              pageMs / plainMs, pagePaints);
        QCOMPARE(pagePaints, 1);
    }

    void openToPaintedExtendedView()
    {
        const int visits = envCount("CARCONTROL_FRAME_VISITS", 300);
        QVector<qint64> open;
        int listPaints = 0;
        QElapsedTimer timer;
        for (int i = 0; i < visits; ++i) {
            PaintCounter counter(PaintCounter::TitleList);
            timer.start();
            QPointer<ExView> view = new ExView(levelOne());
            view->show();
            drain();
            open.append(timer.nsecsElapsed());
            listPaints = counter.paints;
            closeView(view);
        }
        qInfo("open to painted extended view: %.3f ms, paints %d", median(open) / 1e6, listPaints);
        QCOMPARE(listPaints, 1);
    }

    void changedRowToRepaint()
    {
        const int changes = envCount("CARCONTROL_FRAME_VISITS", 300);
        QPointer<ExView> view = new ExView(levelOne());
        view->show();
        drain();
        auto *list = view->findChild<ListView *>("listView");
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                          list->visualRect(list->model()->index(SettingsPage, 0)).center());
        drain();
        DataBuffer buffer(CanObj::instance()->getDataPointerById(28));
        QVector<qint64> repaint;
        int paints = 0;
        QElapsedTimer timer;
        for (int i = 0; i < changes; ++i) {
            PaintCounter counter(PaintCounter::PageTable);
            timer.start();
            buffer.setByte(SettingsFirstByte, quint8(!buffer.byte(SettingsFirstByte)));
            HostSim::notifyDataChanged();
            drain();
            repaint.append(timer.nsecsElapsed());
            paints += counter.paints;
        }
        qInfo("changed row to repaint: %.1f us", median(repaint) / 1e3);
        // Every change showed.
        QCOMPARE(paints, changes);
        delete view;
    }

private:
    // The baseline: the same titles and texts in Qt's plain table, shown in
    // the page's place and painted once.
    qint64 plainTable()
    {
        if (titles.isEmpty()) {
            QWidget parent;
            CarExViewBase *stack = createPageStack(28, &parent);
            stack->showIndex(SettingsPage);
            QAbstractItemModel *pageModel = stack->currentWidget()->findChild<TableView *>()->model();
            for (int r = 0; r < pageModel->rowCount(); ++r) {
                titles << pageModel->index(r, 0).data(TitleRole).toString();
                texts << pageModel->index(r, 0).data(DisplayValueRole).toString();
            }
        }

        QElapsedTimer timer;
        timer.start();
        QWidget *page = new QWidget(levelOne());
        page->setGeometry(zorvappframework::UIManager::getSystemViewRect());
        auto *model = new QStandardItemModel(titles.size(), 2, page);
        for (int r = 0; r < titles.size(); ++r) {
            model->setItem(r, 0, new QStandardItem(titles.at(r)));
            model->setItem(r, 1, new QStandardItem(texts.at(r)));
        }
        auto *table = new QTableView(page);
        table->setModel(model);
        table->setGeometry(page->rect());
        page->show();
        drain();
        const qint64 ns = timer.nsecsElapsed();
        delete page;
        return ns;
    }

    QStringList titles, texts;
};

QTEST_MAIN(BenchFrame)
#include "bench_frame.moc"
