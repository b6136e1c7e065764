// The page table on screen: where the row painter puts the title, the
// arrows, the backdrop and the value, and how the view turns taps in the
// same places into the page's signals.

#include "listdata.h"
#include "listdelegate0.h"
#include "listdelegate1.h"
#include "listdelegate2.h"
#include "listmodel0.h"
#include "listmodel1.h"
#include "tableview.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const int Width = 1000;
const int RowHeight = 81;
const int Middle = Width / 2;

// The test artwork: each picture a colour of its own.
const QColor LeftArrow(255, 0, 0);
const QColor LeftArrowDisabled(255, 0, 255);
const QColor RightArrow(0, 255, 0);
const QColor RightArrowDisabled(255, 255, 0);
const QColor Backdrop(0, 0, 255);
const QSize ArrowSize(60, 60);
const QSize BackdropSize(200, 50);

QVariantList opts(std::initializer_list<QVariant> entries)
{
    return QVariantList(entries);
}

bool writeImage(QString const &path, QColor const &colour, QSize const &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    return image.save(path, "PNG");
}

// The bounding box of the pixels that a test holds true.
template <typename Test>
QRect boundsOf(QImage const &image, Test test)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (test(QColor(image.pixel(x, y))))
                bounds |= QRect(x, y, 1, 1);
        }
    }
    return bounds;
}

QRect boundsOfColour(QImage const &image, QColor const &colour)
{
    return boundsOf(image, [&](QColor const &c) { return c == colour; });
}

// Light grey to white: the white text, also where it is blended with the
// dark background or the blue backdrop.
bool isText(QColor const &c)
{
    return c.red() > 100 && c.green() > 100 && c.blue() > 100;
}

// A finger moving with its button held.
void moveHeld(QWidget *widget, QPoint pos)
{
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

// A page's table as a page builds it, on screen.
struct Page
{
    explicit Page(QList<ListData> const &rows, int height = 4 * RowHeight)
        : model(new ListModel1(&view))
    {
        model->setListData(rows);
        view.setModel(model);
        view.setItemDelegate(new ListDelegate2(&view));
        view.verticalHeader()->setDefaultSectionSize(RowHeight);
        view.resize(Width, height);
        view.show();
    }

    // One row painted by the page's painter, on black, where the view
    // places it.
    QImage paintRow(int row)
    {
        const QModelIndex index = model->index(row, 0);
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.rect = view.visualRect(index);
        QImage image(view.viewport()->size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        view.itemDelegate()->paint(&painter, option, index);
        painter.end();
        return image.copy(option.rect);
    }

    QPoint at(int row, int x) const { return QPoint(x, row * RowHeight + RowHeight / 2); }

    TableView view;
    ListModel1 *model;
};

} // namespace

class TestToolkitViews : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir artwork;
    QTemporaryDir noBackdrop;

    static QList<ListData> rows()
    {
        return QList<ListData>()
               << ListData(PercentKind, "Volume", 10, opts({0, 100}), true, 0, 1.0)
               << ListData(TextKind, "Software", QVariant("V1.2"), QVariantList(), false, 0, 1.0)
               << ListData(TextKind, "A title long enough to need two lines or more in half a row",
                           QVariant(QString()), QVariantList(), true, 0, 1.0)
               << ListData(TextKind, "Mode", QVariant("Compensation active now"), QVariantList(), true,
                           0, 1.0);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(artwork.isValid() && noBackdrop.isValid());
        for (QTemporaryDir *dir : {&artwork, &noBackdrop}) {
            QVERIFY(QDir(dir->path()).mkpath("exStyle4"));
            const QString base = dir->path() + "/exStyle4/";
            QVERIFY(writeImage(base + "last.png", LeftArrow, ArrowSize));
            QVERIFY(writeImage(base + "last_d.png", LeftArrowDisabled, ArrowSize));
            QVERIFY(writeImage(base + "next.png", RightArrow, ArrowSize));
            QVERIFY(writeImage(base + "next_d.png", RightArrowDisabled, ArrowSize));
        }
        QVERIFY(writeImage(artwork.path() + "/exStyle4/data_by.png", Backdrop, BackdropSize));
        qputenv("CARCONTROL_RESOURCE_ROOT", artwork.path().toLocal8Bit());
    }

    void viewIsSetUpForRows()
    {
        Page page(rows());
        QCOMPARE(page.view.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QCOMPARE(page.view.verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
        // The rows span the view's whole width: what the painter places by
        // the row's rectangle lies where the view's zones are.
        QCOMPARE(page.view.viewport()->width(), Width);
        QCOMPARE(page.view.visualRect(page.model->index(0, 0)), QRect(0, 0, Width, RowHeight));
    }

    void rowsArePaintedInTheirPlaces()
    {
        Page page(rows());
        const int inset = (RowHeight - ArrowSize.height()) / 2;
        const QRect leftSquare(Middle, 0, RowHeight + 1, RowHeight);
        const QRect rightSquare(Width - RowHeight, 0, RowHeight + 1, RowHeight);
        const QRect backdrop((Width - 1 + Middle - BackdropSize.width()) / 2,
                             (RowHeight - BackdropSize.height()) / 2, BackdropSize.width(),
                             BackdropSize.height());

        // An adjustable row: arrows in the squares at both ends of the right
        // half, the value on its backdrop between them, the separator below.
        QImage row = page.paintRow(0);
        QCOMPARE(boundsOfColour(row, LeftArrow), QRect(QPoint(Middle + inset, inset), ArrowSize));
        QCOMPARE(boundsOfColour(row, RightArrow),
                 QRect(QPoint(Width - 1 - RowHeight + inset, inset), ArrowSize));
        QVERIFY(leftSquare.contains(boundsOfColour(row, LeftArrow)));
        QVERIFY(rightSquare.contains(boundsOfColour(row, RightArrow)));
        QCOMPARE(boundsOfColour(row, Backdrop), backdrop);
        QVERIFY(boundsOfColour(row, LeftArrowDisabled).isNull());
        QVERIFY(boundsOfColour(row, RightArrowDisabled).isNull());
        const QRect valueText = boundsOf(row.copy(Middle, 0, Width - Middle, RowHeight), isText)
                                        .translated(Middle, 0);
        QVERIFY(!valueText.isNull());
        QVERIFY(backdrop.contains(valueText));
        QVERIFY(qAbs(valueText.center().x() - backdrop.center().x()) <= 2);
        const QRect titleText = boundsOf(row.copy(0, 0, Middle, RowHeight), isText);
        QVERIFY(titleText.left() < 5); // no icon: the title starts at the row's left
        const QColor separator(row.pixel(10, RowHeight - 1));
        QVERIFY(separator != QColor(Qt::black) && separator.red() == separator.blue());
        QCOMPARE(QColor(row.pixel(Width - 1, RowHeight - 1)), separator);
        QCOMPARE(QColor(row.pixel(10, RowHeight - 2)), QColor(Qt::black));

        // A row that only shows: backdrop and value, no arrows.
        row = page.paintRow(1);
        QVERIFY(boundsOfColour(row, LeftArrow).isNull());
        QVERIFY(boundsOfColour(row, RightArrow).isNull());
        QCOMPARE(boundsOfColour(row, Backdrop), backdrop);
        QVERIFY(backdrop.contains(boundsOf(row.copy(Middle, 0, Width - Middle, RowHeight), isText)
                                          .translated(Middle, 0)));

        // A long title wraps within the left half; an empty value draws no
        // text on the backdrop.
        row = page.paintRow(2);
        const QRect title = boundsOf(row, isText);
        QVERIFY(title.right() < Middle);
        QVERIFY2(title.height() > 40, "the title is on more than one line");
        QVERIFY(title.top() >= 0 && title.bottom() < RowHeight - 1);
        QVERIFY(!boundsOfColour(row, LeftArrow).isNull());
        QCOMPARE(boundsOfColour(row, Backdrop), backdrop);

        // A value wider than its backdrop wraps inside it.
        row = page.paintRow(3);
        const QRect value = boundsOf(row.copy(Middle, 0, Width - Middle, RowHeight), isText)
                                    .translated(Middle, 0);
        QVERIFY(backdrop.contains(value));
        QVERIFY2(value.height() > 25, "the value is on more than one line");
    }

    // A title that needs more lines than the row has room for stays within
    // its row and its half: a smaller font, and past that an ellipsis, never
    // lines over the separator or into the next row.
    void overlongTitlesStayInTheirRow()
    {
        Page page(QList<ListData>()
                  << ListData(TextKind, "Charging settings-set the aamount Of charge(normal)-battery percentage",
                              QVariant("80%"), QVariantList(), true, 0, 1.0)
                  << ListData(TextKind, QString("A title so long that no font of a size that a person can read "
                                                "would let it stand whole in half a row, ").repeated(3),
                              QVariant("1"), QVariantList(), true, 0, 1.0));
        for (int r : {0, 1}) {
            const QImage row = page.paintRow(r);
            const QRect text = boundsOf(row.copy(0, 0, Middle, RowHeight), isText);
            QVERIFY(!text.isNull());
            QVERIFY2(text.top() > 0 && text.bottom() < RowHeight - 1, qPrintable(QString::number(r)));
            QVERIFY2(text.height() > 40, "the title is on more than one line");
        }
    }

    void valueWithoutBackdropStaysCentred()
    {
        qputenv("CARCONTROL_RESOURCE_ROOT", noBackdrop.path().toLocal8Bit());
        Page page(rows());
        qputenv("CARCONTROL_RESOURCE_ROOT", artwork.path().toLocal8Bit());

        const QImage row = page.paintRow(0);
        QVERIFY(boundsOfColour(row, Backdrop).isNull());
        QVERIFY(!boundsOfColour(row, LeftArrow).isNull());
        const QRect value = boundsOf(row.copy(Middle, 0, Width - Middle, RowHeight), isText)
                                    .translated(Middle, 0);
        QVERIFY(!value.isNull());
        QVERIFY(qAbs(value.center().x() - (Width - 1 + Middle) / 2) <= 2);
        QVERIFY(qAbs(value.center().y() - RowHeight / 2) <= 3);
    }

    void arrowsAreWhereTheyAreTapped()
    {
        Page page(rows());
        QVERIFY(QTest::qWaitForWindowExposed(&page.view));
        QSignalSpy clicked(&page.view, &TableView::itemBtClicked);
        const QImage row = page.paintRow(0);

        // Every corner of each painted arrow is a tap on that arrow.
        for (bool left : {true, false}) {
            const QRect arrow = boundsOfColour(row, left ? LeftArrow : RightArrow);
            for (QPoint corner : {arrow.topLeft(), arrow.topRight(), arrow.bottomLeft(), arrow.bottomRight()}) {
                clicked.clear();
                QTest::mouseClick(page.view.viewport(), Qt::LeftButton, {}, corner);
                QCOMPARE(clicked.count(), 1);
                QCOMPARE(clicked.at(0).at(0).toModelIndex(), page.model->index(0, 0));
                QCOMPARE(clicked.at(0).at(1).toBool(), left);
            }
        }
    }

    void zones_data()
    {
        QTest::addColumn<int>("pressRow");
        QTest::addColumn<int>("pressX");
        QTest::addColumn<int>("releaseRow");
        QTest::addColumn<int>("releaseX");
        QTest::addColumn<QString>("signal");

        const int h = Middle;
        const int H = RowHeight;
        const int W = Width;
        QTest::newRow("left at middle") << 0 << h << 0 << h << "left";
        QTest::newRow("left at middle + H") << 0 << h + H << 0 << h + H << "left";
        QTest::newRow("strip at middle + H + 1") << 0 << h + H + 1 << 0 << h + H + 1 << "middle";
        QTest::newRow("strip at W - H - 1") << 0 << W - H - 1 << 0 << W - H - 1 << "middle";
        QTest::newRow("right at W - H") << 0 << W - H << 0 << W - H << "right";
        QTest::newRow("right at the edge") << 0 << W - 1 << 0 << W - 1 << "right";
        QTest::newRow("title half") << 0 << h - 1 << 0 << h - 1 << "";
        QTest::newRow("title start") << 0 << 5 << 0 << 5 << "";
        QTest::newRow("left to right") << 0 << h + 10 << 0 << W - 10 << "";
        QTest::newRow("right to left") << 0 << W - 10 << 0 << h + 10 << "";
        QTest::newRow("strip to left") << 0 << 700 << 0 << h + 10 << "";
        QTest::newRow("left to strip") << 0 << h + 10 << 0 << 700 << "";
        QTest::newRow("strip to title") << 0 << 700 << 0 << 100 << "";
        QTest::newRow("title to strip") << 0 << 100 << 0 << 700 << "";
        // A read-only row: its strip still taps, its arrows don't.
        QTest::newRow("read-only strip") << 1 << 700 << 1 << 700 << "middle";
        QTest::newRow("read-only left") << 1 << h + 10 << 1 << h + 10 << "";
        QTest::newRow("read-only right") << 1 << W - 10 << 1 << W - 10 << "";
        // The strips count, not the rows: the pressed row gets the tap, the
        // row under the release decides whether arrows answer.
        QTest::newRow("left, other row") << 0 << h + 10 << 2 << h + 10 << "left";
        QTest::newRow("left, onto read-only row") << 2 << h + 10 << 1 << h + 10 << "";
        QTest::newRow("strip, other row") << 0 << 700 << 1 << 700 << "middle";
        QTest::newRow("below the rows") << 0 << h + 10 << 5 << h + 10 << "";
    }

    void zones()
    {
        QFETCH(int, pressRow);
        QFETCH(int, pressX);
        QFETCH(int, releaseRow);
        QFETCH(int, releaseX);
        QFETCH(QString, signal);

        Page page(rows(), 8 * RowHeight);
        QVERIFY(QTest::qWaitForWindowExposed(&page.view));
        QSignalSpy clicked(&page.view, &TableView::itemBtClicked);
        QSignalSpy middle(&page.view, &TableView::itemBtMiddle);
        QSignalSpy baseClicked(&page.view, &QAbstractItemView::clicked);

        QTest::mousePress(page.view.viewport(), Qt::LeftButton, {}, page.at(pressRow, pressX));
        QTest::mouseRelease(page.view.viewport(), Qt::LeftButton, {}, page.at(releaseRow, releaseX));

        const QModelIndex pressed = page.model->index(pressRow, 0);
        if (signal == "middle") {
            QCOMPARE(middle.count(), 1);
            QCOMPARE(middle.at(0).at(0).toModelIndex(), pressed);
            QCOMPARE(clicked.count(), 0);
        } else if (signal.isEmpty()) {
            QCOMPARE(clicked.count(), 0);
            QCOMPARE(middle.count(), 0);
        } else {
            QCOMPARE(clicked.count(), 1);
            QCOMPARE(clicked.at(0).at(0).toModelIndex(), pressed);
            QCOMPARE(clicked.at(0).at(1).toBool(), signal == "left");
            QCOMPARE(middle.count(), 0);
        }
        // The base still sees every tap that stays in its row.
        QCOMPARE(baseClicked.count(), pressRow == releaseRow ? 1 : 0);
    }

    void signalsComeBeforeTheBaseSeesTheRelease()
    {
        Page page(rows());
        QVERIFY(QTest::qWaitForWindowExposed(&page.view));
        QStringList order;
        connect(&page.view, &TableView::itemBtClicked, [&] { order << "arrow"; });
        connect(&page.view, &TableView::itemBtMiddle, [&] { order << "strip"; });
        connect(&page.view, &QAbstractItemView::clicked, [&] { order << "base"; });

        QTest::mouseClick(page.view.viewport(), Qt::LeftButton, {}, page.at(0, Width - 20));
        QTest::mouseClick(page.view.viewport(), Qt::LeftButton, {}, page.at(1, 700));
        QCOMPARE(order, QStringList() << "arrow" << "base" << "strip" << "base");
    }

    void scrollsAndKeysAreNoTaps()
    {
        QList<ListData> many;
        for (int i = 0; i < 12; ++i)
            many << ListData(i, PercentKind, QString("Row %1").arg(i), 5, opts({0, 10}), true, 0, 1.0);
        Page page(many, 3 * RowHeight);
        QVERIFY(QTest::qWaitForWindowExposed(&page.view));
        QSignalSpy clicked(&page.view, &TableView::itemBtClicked);
        QSignalSpy middle(&page.view, &TableView::itemBtMiddle);

        // A drag that starts and ends on an arrow scrolls the list.
        const QPoint start = page.at(2, Middle + 20);
        QTest::mousePress(page.view.viewport(), Qt::LeftButton, {}, start);
        for (int dy = 10; dy <= 60; dy += 10)
            moveHeld(page.view.viewport(), start - QPoint(0, dy));
        moveHeld(page.view.viewport(), start);
        QTest::mouseRelease(page.view.viewport(), Qt::LeftButton, {}, start);
        QVERIFY(page.view.canMoved());
        QTest::mousePress(page.view.viewport(), Qt::LeftButton, {}, page.at(1, 700));
        for (int dy = 10; dy <= 60; dy += 10)
            moveHeld(page.view.viewport(), page.at(1, 700) - QPoint(0, dy));
        QTest::mouseRelease(page.view.viewport(), Qt::LeftButton, {}, page.at(1, 700) - QPoint(0, 60));
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(middle.count(), 0);

        // The enter keys and the arrow keys step no row.
        page.view.setFocus();
        for (int key : {0x1100041, 0x1400009, int(Qt::Key_Left), int(Qt::Key_Right), int(Qt::Key_Return)}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
            QApplication::sendEvent(&page.view, &press);
            QApplication::sendEvent(&page.view, &release);
        }
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(middle.count(), 0);

        // A tap after the drag is a tap again.
        QTest::mouseClick(page.view.viewport(), Qt::LeftButton, {}, page.at(0, Width - 5));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(1).toBool(), false);
    }

    void noRowsNoTaps()
    {
        Page page{QList<ListData>()};
        QVERIFY(QTest::qWaitForWindowExposed(&page.view));
        QSignalSpy clicked(&page.view, &TableView::itemBtClicked);
        QSignalSpy middle(&page.view, &TableView::itemBtMiddle);
        for (int x : {Middle + 5, 700, Width - 5})
            QTest::mouseClick(page.view.viewport(), Qt::LeftButton, {}, QPoint(x, 40));
        QCOMPARE(clicked.count(), 0);
        QCOMPARE(middle.count(), 0);

        // Rows replaced while a finger is down: the gone row takes no tap.
        page.model->setListData(rows());
        QTest::mousePress(page.view.viewport(), Qt::LeftButton, {}, page.at(0, Width - 5));
        page.model->setListData(rows());
        QTest::mouseRelease(page.view.viewport(), Qt::LeftButton, {}, page.at(0, Width - 5));
        QCOMPARE(clicked.count(), 0);
    }

    void titleListPainters()
    {
        ListModel0 model;
        model.setListData(QList<QString>() << "Amplifier" << "Lights");
        ListView view;
        view.setModel(&model);
        view.verticalHeader()->setDefaultSectionSize(RowHeight);
        view.resize(600, 2 * RowHeight);
        const QModelIndex index = model.index(0, 0);
        QStyleOptionViewItem option;
        option.initFrom(&view);
        option.rect = QRect(0, 0, 600, RowHeight);

        QImage image(600, RowHeight, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        ListDelegate0 titles;
        titles.paint(&painter, option, index);
        painter.end();
        // The title in the row, the separator at its bottom.
        const QRect text = boundsOf(image.copy(0, 0, 600, RowHeight - 1), isText);
        QVERIFY(!text.isNull());
        QVERIFY(QRect(0, 0, 600, RowHeight - 1).contains(text));
        const QColor separator(image.pixel(300, RowHeight - 1));
        QVERIFY(separator != QColor(Qt::black));
        QCOMPARE(QColor(image.pixel(0, RowHeight - 1)), separator);

        // The blank painter leaves the row as it was.
        QImage blank(600, RowHeight, QImage::Format_RGB32);
        blank.fill(Qt::black);
        const QImage before = blank;
        painter.begin(&blank);
        ListDelegate1 nothing;
        nothing.paint(&painter, option, index);
        painter.end();
        QCOMPARE(blank, before);
    }
};

QTEST_MAIN(TestToolkitViews)
#include "tst_toolkit_views.moc"
