// What the page stacks cost before a page is shown: every family allocates
// its pages at once, but no page builds its table or model until it comes
// to the front.

#include "carexviewbase.h"
#include "catalogue.h"
#include "hostsim.h"
#include "listmodel1.h"
#include "tableview.h"

#include <QtTest>

class BenchPageStacks : public QObject
{
    Q_OBJECT

private slots:
    // Every family's stack, made and destroyed.
    void createAllStacks()
    {
        const QList<int> ids = Catalogue::protocolIds();
        QBENCHMARK {
            for (int id : ids) {
                QWidget parent;
                createPageStack(id, &parent);
            }
        }
    }

    // The objects that the stacks hold before any page is shown: pages only,
    // no views, no models.
    void unshownStacksHoldNoTables()
    {
        QWidget parent;
        int pages = 0;
        for (int id : Catalogue::protocolIds()) {
            CarExViewBase *stack = createPageStack(id, &parent);
            QVERIFY(stack);
            pages += stack->count();
        }
        QCOMPARE(parent.findChildren<TableView *>().size(), 0);
        QCOMPARE(parent.findChildren<ListModel1 *>().size(), 0);
        qInfo("%d stacks, %d pages, %d objects in all before any page is shown",
              Catalogue::protocolIds().size(), pages, parent.findChildren<QObject *>().size());
    }

    // The first display of the largest page builds its table.
    void firstDisplay()
    {
        QBENCHMARK {
            QWidget parent;
            CarExViewBase *stack = createPageStack(28, &parent);
            stack->showIndex(2);
        }
    }
};

QTEST_MAIN(BenchPageStacks)
#include "bench_pagestacks.moc"
