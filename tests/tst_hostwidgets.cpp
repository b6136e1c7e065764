// The desktop host's widgets behave as the plug-in expects of the head
// unit's: taps, long presses, latched pictures, touch scrolling, the bar.

#include "basebar.h"
#include "customimagebutton.h"
#include "customimagewidget.h"
#include "hostsim.h"
#include "listview.h"
#include "zorvrollingtext.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QString writeImage(QTemporaryDir const &dir, QString const &name, QColor const &colour, QSize size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    const QString path = dir.filePath(name);
    image.save(path, "PNG");
    return path;
}

// A finger moving with its button held.
void moveHeld(QWidget *widget, QPoint pos)
{
    QMouseEvent move(QEvent::MouseMove, pos, widget->mapToGlobal(pos), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

QRgb centre(QWidget *widget)
{
    return widget->grab().toImage().pixel(widget->width() / 2, widget->height() / 2);
}

} // namespace

class TestHostWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init() { HostSim::reset(); }

    void buttonTapsAndHolds()
    {
        QWidget window;
        window.resize(200, 200);
        auto *button = new CustomImageButton(&window);
        button->setGeometry(10, 10, 80, 80);
        window.show();
        QSignalSpy clicked(button, &CustomButtonBase::clicked);
        QSignalSpy released(button, &CustomButtonBase::released);
        QSignalSpy longPressed(button, &CustomButtonBase::longPressed);

        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(40, 40));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(released.count(), 1);
        QVERIFY(!button->isPressed());

        // A finger that slides off gives up the press: no click.
        QTest::mousePress(button, Qt::LeftButton, {}, QPoint(40, 40));
        QVERIFY(button->isPressed());
        moveHeld(button, QPoint(120, 40));
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(120, 40));
        QCOMPARE(clicked.count(), 1);

        // After a long press the release is no click.
        button->setEnableLongPressed(true, 20);
        QTest::mousePress(button, Qt::LeftButton, {}, QPoint(40, 40));
        QTRY_COMPARE(longPressed.count(), 1);
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(40, 40));
        QCOMPARE(clicked.count(), 1);

        // Enter works like a tap; a button that only shows takes no touch.
        QTest::keyClick(button, Qt::Key_Return);
        QCOMPARE(clicked.count(), 2);
        button->setIgnoreMouseEvent();
        QVERIFY(button->testAttribute(Qt::WA_TransparentForMouseEvents));
    }

    void buttonPicturesFollowTheLatchedState()
    {
        QTemporaryDir dir;
        const QString normal = writeImage(dir, "n.png", Qt::red, QSize(60, 40));
        const QString down = writeImage(dir, "d.png", Qt::green, QSize(60, 40));

        CustomImageButton button;
        button.setBackgroundImage(normal, down, QString(), QString(), true, 0);
        QCOMPARE(HostSim::imageFileReads(), 2); // empty paths read nothing
        QCOMPARE(button.size(), QSize(60, 40));
        QCOMPARE(QColor(centre(&button)), QColor(Qt::red));
        button.setDown(true);
        QVERIFY(button.isDown());
        QCOMPARE(QColor(centre(&button)), QColor(Qt::green));
        button.setDown(false);
        QCOMPARE(QColor(centre(&button)), QColor(Qt::red));

        // Pictures the caller keeps are used as they are, without a read.
        QImage blue(30, 30, QImage::Format_ARGB32);
        blue.fill(Qt::blue);
        CustomImageWidget widget;
        widget.setConstBackgroundImage(&blue, true);
        QCOMPARE(widget.size(), QSize(30, 30));
        QCOMPARE(QColor(centre(&widget)), QColor(Qt::blue));
        QCOMPARE(HostSim::imageFileReads(), 2);

        button.setText("A/C", Qt::AlignCenter, Qt::white, 0.4f, true);
        QCOMPARE(button.text(), QString("A/C"));
    }

    void listTapsAndScrolls()
    {
        QStandardItemModel model(30, 1);
        for (int row = 0; row < 30; ++row)
            model.setItem(row, new QStandardItem(QString("Row %1").arg(row)));
        ListView view;
        view.setModel(&model);
        view.verticalHeader()->setDefaultSectionSize(50);
        view.resize(400, 300);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        QSignalSpy clicked(&view, &QAbstractItemView::clicked);

        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, QPoint(100, 75));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.at(0).at(0).toModelIndex().row(), 1);
        QVERIFY(!view.canMoved());

        // A drag scrolls and is no tap.
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, QPoint(100, 250));
        for (int y = 240; y >= 100; y -= 20)
            moveHeld(view.viewport(), QPoint(100, y));
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, QPoint(100, 100));
        QVERIFY(view.canMoved());
        QCOMPARE(clicked.count(), 1);
        QTRY_COMPARE(view.verticalScrollBar()->value() % 50, 0); // comes to rest on a row
        QVERIFY(view.verticalScrollBar()->value() > 0);

        // The next press starts a new touch.
        QTest::mousePress(view.viewport(), Qt::LeftButton, {}, QPoint(100, 20));
        QVERIFY(!view.canMoved());
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, {}, QPoint(100, 20));
    }

    void barReportsItsButtons()
    {
        QWidget screen;
        screen.resize(1024, 540);
        BaseBar *first = BaseBarManager::createBaseBar(&screen, "First", false, true, QString());
        QCOMPARE(first->geometry(), QRect(0, 0, 1024, HostSim::baseBarHeight()));
        QCOMPARE(first->title(), QString("First"));
        BaseBar *second = BaseBarManager::createBaseBar(&screen, QString(), false, true, QString());
        QCOMPARE(HostSim::lastBaseBar(), second);

        QSignalSpy firstIds(first, &BaseBar::btnClickedSig);
        QSignalSpy secondIds(second, &BaseBar::btnClickedSig);
        HostSim::pressBarButton(first, "home");
        HostSim::pressBarButton(first, "back_no_quit");
        QCOMPARE(firstIds.count(), 2);
        QCOMPARE(firstIds.at(0).at(0).toString(), QString("home"));
        QCOMPARE(firstIds.at(1).at(0).toString(), QString("back_no_quit"));

        // Without a bar, back goes to the bar created last that still lives.
        BaseBarManager::emitBarBackSignal(nullptr);
        QCOMPARE(secondIds.count(), 1);
        delete second;
        QCOMPARE(HostSim::lastBaseBar(), first);
        BaseBarManager::emitBarBackSignal(nullptr);
        QCOMPARE(firstIds.count(), 3);
        QCOMPARE(firstIds.at(2).at(0).toString(), QString("back"));
    }

    void rollingTextRunsOnlyWhenTooLong()
    {
        ZorvRollingText label;
        label.resize(200, 40);
        label.setFontSize(20);
        label.setText("Short");
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        const QImage still = label.grab().toImage();
        QTest::qWait(100);
        QCOMPARE(label.grab().toImage(), still);

        label.setText("A text that is far too long for the width of this label");
        const QImage first = label.grab().toImage();
        QTRY_VERIFY(label.grab().toImage() != first);
        QCOMPARE(label.text(), QString("A text that is far too long for the width of this label"));
    }
};

QTEST_MAIN(TestHostWidgets)
#include "tst_hostwidgets.moc"
