// What the tests of every page family share: frames written as in the
// protocols' tables, with the checksum computed here, and one page of a
// family's stack on a window, built as the stack builds it, with taps on its
// rows' zones.

#ifndef PAGETESTS_H
#define PAGETESTS_H

#include "carexviewbase.h"
#include "carinfoitem.h"
#include "catalogue.h"
#include "hostsim.h"
#include "listdata.h"
#include "listmodel1.h"
#include "tableview.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QtTest>

#include <functional>

namespace PageTests {

// "2E C6 02 45 04 ck": the checksum slot filled by the decoder box's rule,
// 0xFF XOR the low byte of the sum of bytes 1 to size - 2.
inline QByteArray frame(QString const &text)
{
    QByteArray bytes;
    for (QString const &token : text.split(' ', Qt::SkipEmptyParts))
        bytes.append(token == "ck" ? '\0' : char(token.toInt(nullptr, 16)));
    unsigned sum = 0;
    for (int i = 1; i < bytes.size() - 1; ++i)
        sum += quint8(bytes.at(i));
    bytes[bytes.size() - 1] = char(0xFF ^ (sum & 0xFF));
    return bytes;
}

inline QString hex(QList<QByteArray> const &frames)
{
    QStringList texts;
    for (QByteArray const &bytes : frames)
        texts.append(QString(bytes.toHex(' ').toUpper()));
    return texts.join(" | ");
}

enum Zone { LeftArrow, RightArrow, Middle };

// A finger on a zone of a row of a page's table, the row scrolled into
// view first.
inline void tap(TableView *view, int row, Zone zone)
{
    const QModelIndex index = view->model()->index(row, 0);
    view->scrollTo(index, QAbstractItemView::PositionAtCenter);
    const int width = view->viewport()->width();
    const int height = view->verticalHeader()->defaultSectionSize();
    const int x = zone == LeftArrow ? width / 2 + 10 : zone == RightArrow ? width - 10 : width / 2 + height + 20;
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, QPoint(x, view->visualRect(index).center().y()));
}

// One page of a family's stack, in front and built, on a window of the
// system view's size. Frames that the page sends through the stack are kept
// in signalled; those sent straight to the decoder box are HostSim's. A
// page without a table has no view and no model.
class Page
{
public:
    Page(int protocol, int index)
    {
        window.resize(1024, 470);
        stack = createPageStack(protocol, &window);
        stack->setGeometry(window.rect());
        QObject::connect(stack, &CarExViewBase::sendData, [this](QByteArray f) { signalled.append(f); });
        stack->setCurrentIndex(index);
        page()->createView();
        view = page()->findChild<TableView *>();
        model = view ? qobject_cast<ListModel1 *>(view->model()) : nullptr;
        HostSim::clearSentFrames();
    }

    CarInfoItem *page() const { return qobject_cast<CarInfoItem *>(stack->currentWidget()); }

    void show()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    int rows() const { return model->rowCount(QModelIndex()); }
    QModelIndex index(int row) const { return model->index(row, 0); }
    QString title(int row) const { return index(row).data(TitleRole).toString(); }
    QString shown(int row) const { return index(row).data(DisplayValueRole).toString(); }
    int value(int row) const { return index(row).data(ValueRole).toInt(); }

    void tap(int row, Zone zone) { PageTests::tap(view, row, zone); }
    // A step that no arrow can give: a read-only row reached by other means.
    void step(int row, bool down)
    {
        QMetaObject::invokeMethod(page(), "onValueChanged", Q_ARG(QModelIndex, index(row)), Q_ARG(bool, down));
    }

    // The rows that a refresh after change touches, in order.
    QList<int> changedRows(std::function<void()> const &change)
    {
        QSignalSpy spy(model, &QAbstractItemModel::dataChanged);
        change();
        page()->ondataChanged();
        QList<int> rows;
        for (QList<QVariant> const &arguments : spy)
            rows.append(arguments.at(0).toModelIndex().row());
        return rows;
    }

    QWidget window;
    CarExViewBase *stack = nullptr;
    TableView *view = nullptr;
    ListModel1 *model = nullptr;
    QList<QByteArray> signalled;
};

} // namespace PageTests

#endif // PAGETESTS_H
