// What the tests of protocol 28's pages share: frames written as in the
// protocol's tables, and one page of the family's stack on a window, built
// as the stack builds it, with taps on its rows' zones.

#ifndef TST_PROTOCOL28_H
#define TST_PROTOCOL28_H

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
#include <memory>

namespace P28 {

const int Protocol = 28;

inline DataBuffer buffer()
{
    return HostSim::buffer(Protocol);
}

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

// 2E C6 02 sub value ck, the common setting frame.
inline QByteArray setting(int sub, int value)
{
    return frame(QString("2E C6 02 %1 %2 ck").arg(sub, 2, 16, QChar('0')).arg(value & 0xFF, 2, 16, QChar('0')));
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

// One page of the stack, in front and built, on a window of the system
// view's size. Frames that the page sends through the stack are kept in
// signalled; those sent straight to the decoder box are HostSim's.
class Page
{
public:
    // The page at index of the stack of protocol (28 unless told).
    explicit Page(int index, int protocol = Protocol)
    {
        window.resize(1024, 470);
        stack = createPageStack(protocol, &window);
        stack->setGeometry(window.rect());
        QObject::connect(stack, &CarExViewBase::sendData, [this](QByteArray f) { signalled.append(f); });
        stack->setCurrentIndex(index);
        page()->createView();
        view = page()->findChild<TableView *>();
        model = qobject_cast<ListModel1 *>(view->model());
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

    void tap(int row, Zone zone) { P28::tap(view, row, zone); }
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

} // namespace P28

#endif // TST_PROTOCOL28_H
