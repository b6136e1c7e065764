// What the tests of the page families share: frames written as in the
// protocols' tables, and one page of a family's stack on a window, built as
// the stack builds it, with taps on its rows' zones.

#ifndef PAGETESTS_H
#define PAGETESTS_H

#include "carexviewbase.h"
#include "carinfoitem.h"
#include "catalogue.h"
#include "dateinfo.h"
#include "hostsim.h"
#include "listdata.h"
#include "listmodel1.h"
#include "tableview.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <memory>

namespace PageTest {

// A frame written as in the protocols' tables, "FD 06 83 01 02 ck ck", with
// the checksum slots filled by the decoder box's rule: 2E frames end in 0xFF
// XOR the low byte of the sum of bytes 1 to size - 2; FD frames of protocol
// 67 in the 16-bit sum of bytes 1 to size - 3, high byte first; other FD
// frames in the low byte of the sum of bytes 1 to size - 2.
inline QByteArray frame(int protocol, QString const &text)
{
    QByteArray bytes;
    for (QString const &token : text.split(' ', Qt::SkipEmptyParts))
        bytes.append(token == "ck" ? '\0' : char(token.toInt(nullptr, 16)));
    const int size = bytes.size();
    auto sum = [&bytes](int first, int last) {
        unsigned total = 0;
        for (int i = first; i <= last; ++i)
            total += quint8(bytes.at(i));
        return total;
    };
    if (quint8(bytes.at(0)) == 0x2E) {
        bytes[size - 1] = char(0xFF ^ (sum(1, size - 2) & 0xFF));
    } else if (protocol == 67) {
        const unsigned total = sum(1, size - 3) & 0xFFFF;
        bytes[size - 2] = char(total >> 8);
        bytes[size - 1] = char(total & 0xFF);
    } else {
        bytes[size - 1] = char(sum(1, size - 2) & 0xFF);
    }
    return bytes;
}

// A frame of a protocol with one checksum byte.
inline QByteArray frame(QString const &text)
{
    return frame(0, text);
}

inline QList<QByteArray> frames(QStringList const &texts, int protocol = 0)
{
    QList<QByteArray> list;
    for (QString const &text : texts)
        list << frame(protocol, text);
    return list;
}

inline QString hex(QList<QByteArray> const &frames)
{
    QStringList texts;
    for (QByteArray const &bytes : frames)
        texts.append(QString(bytes.toHex(' ').toUpper()));
    return texts.join(" | ");
}

// The pattern once for each value from first to last, "%1" standing for
// the value in two hex digits.
inline QStringList series(QString const &pattern, int first, int last)
{
    QStringList texts;
    for (int value = first; value <= last; ++value)
        texts.append(pattern.arg(QString::number(value, 16).toUpper().rightJustified(2, QChar('0'))));
    return texts;
}

// Frames written as in the tables, as hex() shows them.
inline QString hexOf(QStringList const &texts, int protocol = 0)
{
    return hex(frames(texts, protocol));
}

// What went straight to the decoder box so far.
inline QString sent()
{
    return hex(HostSim::sentFrames());
}

// The same, cleared afterwards.
inline QString takeSent()
{
    const QString text = sent();
    HostSim::clearSentFrames();
    return text;
}

// A byte as two lower-case hex digits, for frames written in code.
inline QString byteText(int value)
{
    return QString("%1").arg(value & 0xFF, 2, 16, QChar('0'));
}

// Bytes written one after the other into a buffer from offset on.
inline void setBytes(DataBuffer data, int offset, QList<int> const &bytes)
{
    for (int i = 0; i < bytes.size(); ++i)
        data.setByte(offset + i, quint8(bytes.at(i)));
}

// A head unit key, pressed and released on a widget; what it ignores goes on
// to its parents.
inline void pressKey(QWidget *widget, int code)
{
    QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, code, Qt::NoModifier);
    QApplication::sendEvent(widget, &release);
}

// A disc's track list: count tracks numbered from first on.
inline QList<DateInfo> discEntries(int count, int first = 1)
{
    QList<DateInfo> entries;
    for (int i = 0; i < count; ++i)
        entries << DateInfo(quint16(first + i), QString("Track %1").arg(first + i));
    return entries;
}

// The head unit's key codes: its own keys and the steering wheel remote's.
namespace Keys {
const int Enter = 0x1100041, RemoteEnter = 0x1400009;
const int Up = 0x110003F, RemoteUp = 0x140000A, Down = 0x1100040, RemoteDown = 0x140000B;
const int Left = 0x110003D, RemoteLeft = 0x140000C, Right = 0x110003E, RemoteRight = 0x140000D;
const int Next = 0x110004D, Previous = 0x110004E, Back = 0x110002A;
} // namespace Keys

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
        // A page of its own widgets has no table.
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
    bool adjustable(int row) const { return index(row).data(AdjustableRole).toBool(); }

    QStringList titles() const
    {
        QStringList texts;
        for (int row = 0; row < rows(); ++row)
            texts << title(row);
        return texts;
    }
    QStringList shownTexts() const
    {
        QStringList texts;
        for (int row = 0; row < rows(); ++row)
            texts << shown(row);
        return texts;
    }
    QList<int> adjustableRows() const
    {
        QList<int> list;
        for (int row = 0; row < rows(); ++row) {
            if (adjustable(row))
                list << row;
        }
        return list;
    }

    void tap(int row, Zone zone) { PageTest::tap(view, row, zone); }
    // The frames that one tap on an arrow sends, as hex() shows them.
    QString arrow(int row, bool down)
    {
        HostSim::clearSentFrames();
        tap(row, down ? LeftArrow : RightArrow);
        return takeSent();
    }
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

// A page of one family's stack, by its index in the stack.
template <int Protocol>
class FamilyPage : public Page
{
public:
    explicit FamilyPage(int index) : Page(Protocol, index) {}
};

} // namespace PageTest

#endif // PAGETESTS_H
