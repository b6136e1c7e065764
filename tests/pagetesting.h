// What the tests of the vehicle pages share: frames written as in the
// protocols' tables with their checksums computed here, and one page of a
// family's stack on a window, built as the stack builds it, with taps on
// its rows' zones.

#ifndef PAGETESTING_H
#define PAGETESTING_H

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

namespace PageTesting {

// "FD 05 80 0B 02 ck": hex bytes, "ck" for a checksum slot left at zero.
inline QByteArray bytes(QString const &text)
{
    QByteArray array;
    for (QString const &token : text.split(' ', Qt::SkipEmptyParts))
        array.append(token == "ck" ? '\0' : char(token.toInt(nullptr, 16)));
    return array;
}

inline unsigned sum(QByteArray const &frame, int first, int last)
{
    unsigned total = 0;
    for (int i = first; i <= last; ++i)
        total += quint8(frame.at(i));
    return total;
}

// A 0x2E frame: the last byte is 0xFF XOR the low byte of the sum of bytes
// 1 to size - 2.
inline QByteArray frame2E(QString const &text)
{
    QByteArray frame = bytes(text);
    frame[frame.size() - 1] = char(0xFF ^ (sum(frame, 1, frame.size() - 2) & 0xFF));
    return frame;
}

// A 0xFD frame with one checksum byte: the last byte is the low byte of the
// sum of bytes 1 to size - 2.
inline QByteArray frameFD(QString const &text)
{
    QByteArray frame = bytes(text);
    frame[frame.size() - 1] = char(sum(frame, 1, frame.size() - 2) & 0xFF);
    return frame;
}

inline QString hex(QList<QByteArray> const &frames)
{
    QStringList texts;
    for (QByteArray const &frame : frames)
        texts.append(QString(frame.toHex(' ').toUpper()));
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
// in signalled; those sent straight to the decoder box are HostSim's.
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
    bool adjustable(int row) const { return index(row).data(AdjustableRole).toBool(); }

    void tap(int row, Zone zone) { PageTesting::tap(view, row, zone); }
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

} // namespace PageTesting

#endif // PAGETESTING_H
