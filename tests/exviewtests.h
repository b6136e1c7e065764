// The extended view in the tests of the page families: the list of the
// family's pages on the system screen, a page opened with a tap on its title
// and left with the bar's back, and the tyre panel that a tyre page opens.

#ifndef EXVIEWTESTS_H
#define EXVIEWTESTS_H

#include "pagetests.h"

#include "appframework.h"
#include "basebar.h"
#include "exview.h"
#include "listview.h"
#include "tirepressure.h"

#include <QPointer>

namespace PageTest {

// A page that follows the car: the page at index opens with rows rows; after
// change the row shows shown.
struct LivePage
{
    int index;
    int rows;
    int row;
    std::function<void()> change;
    QString shown;
};

// The extended view on the shown system screen, with its list and its bar.
class ExtendedView
{
public:
    ExtendedView() : view(create())
    {
        view->show();
        list = view->findChild<ListView *>("listView");
        bar = view->findChild<BaseBar *>();
    }
    ~ExtendedView() { delete view; }

    bool exposed() const { return QTest::qWaitForWindowExposed(view); }

    // A tap on the title of the page at index, scrolled into view first.
    CarExViewBase *open(int index)
    {
        const QModelIndex title = list->model()->index(index, 0);
        list->scrollTo(title);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(title).center());
        return stack();
    }
    void back() { HostSim::pressBarButton(bar, "back"); }

    CarExViewBase *stack() const { return view->findChild<CarExViewBase *>(); }
    CarInfoItem *page() const { return qobject_cast<CarInfoItem *>(stack()->currentWidget()); }
    TableView *table() const { return stack()->currentWidget()->findChild<TableView *>(); }
    int rows() const { return table()->model()->rowCount(); }
    QString shown(int row) const { return table()->model()->index(row, 0).data(DisplayValueRole).toString(); }

    // The row's text once the car's data changed and the view was told.
    QString shownAfter(std::function<void()> const &change, int row) const
    {
        change();
        HostSim::notifyDataChanged();
        return shown(row);
    }

    // Each page opens from the list with its rows, follows the car while in
    // front, and the bar's back returns to the list.
    void expectLivePages(QList<LivePage> const &pages)
    {
        for (LivePage const &p : pages) {
            CarExViewBase *stack = open(p.index);
            QVERIFY(stack->isVisible());
            QCOMPARE(stack->currentIndex(), p.index);
            QVERIFY(table());
            QCOMPARE(rows(), p.rows);
            QCOMPARE(shownAfter(p.change, p.row), p.shown);
            back();
            QVERIFY(list->isVisible());
        }
    }

    // A tap on the middle of the page's row that opens the tyre panel, the
    // frames sent before it cleared; the panel.
    TirePressure *openTyrePanel(int row)
    {
        HostSim::clearSentFrames();
        tap(table(), row, Middle);
        return view->findChild<TirePressure *>("tirePressure");
    }
    static void tapReset(TirePressure *panel)
    {
        auto *reset = panel->findChild<QWidget *>("resetButton");
        QTest::mouseClick(reset, Qt::LeftButton, {}, reset->rect().center());
    }

    QPointer<ExView> view;
    ListView *list = nullptr;
    BaseBar *bar = nullptr;

private:
    static ExView *create()
    {
        HostSim::screen()->show();
        return new ExView(zorvappframework::UIManager::getUIHerarchy(zorvappframework::UIHerarchyLevel1));
    }
};

} // namespace PageTest

#endif // EXVIEWTESTS_H
