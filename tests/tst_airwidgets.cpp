// The parts of the climate panel on their own: the title bar's keys, the fan
// bar, the seat picture, the mirrored button, the short tip and the seat
// tiles. Pictures are read once and state that repeats sets none again.

#include "airconditionertipview.h"
#include "airseatwidget.h"
#include "airwindwidget.h"
#include "appframework.h"
#include "customimagebutton.h"
#include "hostsim.h"
#include "imagepaths.h"
#include "mirrorbutton.h"
#include "overlayimages.h"
#include "seatheatingtipview.h"
#include "statusbarmodewidget27.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace {

int imageReads() { return HostSim::imageFileReads() + overlayImageReads(); }

QString artwork(QString const &name) { return imagePath(OverlayImages, name); }
QImage file(QString const &name) { return QImage(artwork(name)); }

// What a widget shows, and what a widget like it showing the image would.
QImage shown(QWidget *widget) { return widget->grab().toImage().convertToFormat(QImage::Format_RGB32); }
QImage drawn(QImage const &image, QWidget *like)
{
    QWidget parent;
    CustomImageWidget reference(&parent);
    reference.setPalette(like->palette());
    reference.setConstBackgroundImage(&image, false);
    reference.resize(like->size());
    return reference.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Sends a key press or release and answers whether it was used.
bool key(QWidget *widget, QEvent::Type type, int code)
{
    QKeyEvent event(type, code, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

qint64 pixmapKey(QLabel *label) { return label->pixmap(Qt::ReturnByValue).cacheKey(); }

} // namespace

class TestAirWidgets : public QObject
{
    Q_OBJECT

private slots:
    void init() { HostSim::reset(); }

    void titleBar();
    void fanBar();
    void seatPicture();
    void mirrorButton();
    void tip();
    void seatTile();
    void seatTilePress();
};

// The host's margins, packed a byte each, and its font size; then the keys:
// the first arrow marks the back button, enter or back press it only when
// marked, and a release is swallowed exactly when its press was used.
void TestAirWidgets::titleBar()
{
    qApp->setProperty("TopBarMargins", 0x0206040Au);
    qApp->setProperty("TopBarFontSize", 28);
    StatusBarModeWidget27 bar;
    bar.show();
    qApp->setProperty("TopBarMargins", QVariant());
    qApp->setProperty("TopBarFontSize", QVariant());
    QCOMPARE(bar.size(), zorvappframework::UIManager::getSystemBarRect(0, 0).size());
    QCOMPARE(bar.layout()->contentsMargins(), QMargins(10, 4, 6, 2));
    auto *back = bar.findChild<CustomImageButton *>("backButton");
    QCOMPARE(back->size(), QSize(bar.height() - 4, bar.height() - 4));
    QCOMPARE(bar.findChild<QLabel *>()->styleSheet(), QString("QLabel{font:28px;color:white;}"));
    QCOMPARE(bar.findChild<QLabel *>()->text(), QString("Air conditioner"));

    QSignalSpy backClicked(&bar, &StatusBarModeWidget27::backClicked);
    QVERIFY(key(&bar, QEvent::KeyPress, 0x0110002A));
    QVERIFY(key(&bar, QEvent::KeyRelease, 0x0110002A));
    QVERIFY(backClicked.isEmpty());

    QVERIFY(key(&bar, QEvent::KeyPress, 0x0110004D));
    QVERIFY(back->isDown());
    for (int code : {0x0110003E, 0x0140000D, 0x0110003D, 0x0110004E, 0x0140000C}) {
        QVERIFY(!key(&bar, QEvent::KeyPress, code));
        QVERIFY(!key(&bar, QEvent::KeyRelease, code));
    }
    QVERIFY(!key(&bar, QEvent::KeyPress, 0x0110003F));
    for (int code : {0x01100041, 0x01400009}) {
        QVERIFY(key(&bar, QEvent::KeyPress, code));
        QVERIFY(key(&bar, QEvent::KeyRelease, code));
    }
    QCOMPARE(backClicked.size(), 2);
    QTest::mouseClick(back, Qt::LeftButton);
    QCOMPARE(backClicked.size(), 3);
}

// Levels 0 to 7, each read on first use; others leave the bar as it is.
void TestAirWidgets::fanBar()
{
    const int before = imageReads();
    AirWindWidget fan;
    fan.show();
    QCOMPARE(imageReads() - before, 3); // wind_0 and the two keys
    QWidget *level = fan.findChild<QWidget *>("levelImage");
    QCOMPARE(fan.layout()->spacing(), level->width() / 8);
    QSignalSpy windAdd(&fan, &AirWindWidget::windAdd);
    QSignalSpy windSub(&fan, &AirWindWidget::windSub);
    QTest::mouseClick(fan.findChild<QWidget *>("addButton"), Qt::LeftButton);
    QTest::mouseClick(fan.findChild<QWidget *>("subButton"), Qt::LeftButton);
    QVERIFY(windAdd.size() == 1 && windSub.size() == 1);

    fan.setWindSpeed(7);
    fan.setWindSpeed(3);
    const int reads = imageReads();
    for (int level : {7, 0, 3, 8, -1})
        fan.setWindSpeed(level);
    QCOMPARE(imageReads(), reads);
    QCOMPARE(shown(level), drawn(file("wind_3"), level));
}

// States 0 to 3; the mirror takes effect with the next state and is made
// once from the picture read before.
void TestAirWidgets::seatPicture()
{
    AirSeatWidget seat;
    seat.setImages(artwork("seat"), artwork("seat_1"), artwork("seat_2"), artwork("seat_3"));
    const int before = imageReads();
    seat.setState(2);
    QCOMPARE(seat.size(), file("seat_2").size());
    QCOMPARE(shown(&seat), drawn(file("seat_2"), &seat));
    seat.setState(4);
    seat.setMirror(true);
    QCOMPARE(shown(&seat), drawn(file("seat_2"), &seat));
    seat.setState(2);
    QCOMPARE(shown(&seat), drawn(file("seat_2").mirrored(true, false), &seat));
    seat.setState(1);
    seat.setMirror(false);
    seat.setState(1);
    QCOMPARE(shown(&seat), drawn(file("seat_1"), &seat));
    for (int state : {1, 2, 2, 1})
        seat.setState(state);
    QCOMPARE(imageReads() - before, 2);
}

void TestAirWidgets::mirrorButton()
{
    QWidget window;
    auto *button = new MirrorButton(&window);
    const int before = imageReads();
    button->setButtonBackgroundImage(artwork("up_wind"), artwork("up_wind_d"));
    QCOMPARE(imageReads() - before, 2);
    QCOMPARE(button->size(), file("up_wind").size());

    const QImage plain = shown(button);
    button->setDown(true);
    const QImage plainDown = shown(button);
    button->setDown(false);
    QVERIFY(plain != plain.mirrored(true, false));

    button->setMirror(true);
    button->setMirror(true);
    QCOMPARE(shown(button), plain.mirrored(true, false));
    button->setDown(true);
    QCOMPARE(shown(button), plainDown.mirrored(true, false));
    button->setDown(false);
    button->setMirror(false);
    QCOMPARE(shown(button), plain);
    button->setMirror(true);
    QCOMPARE(shown(button), plain.mirrored(true, false));
    QCOMPARE(imageReads() - before, 2);
}

// Two pictures on a plate for 2 seconds from the last showTipData.
void TestAirWidgets::tip()
{
    AirConditionerTipView tip;
    QCOMPARE(tip.size(), file("tip_bg").size());
    auto *timer = tip.findChild<QTimer *>("timer");
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 2000);

    tip.showTipData(artwork("ac_d"), artwork("auto_d"));
    QVERIFY(tip.isVisible() && timer->isActive());
    QCOMPARE(tip.findChild<QLabel *>("firstLabel")->pixmap(Qt::ReturnByValue).size(), file("ac_d").size());
    QCOMPARE(tip.findChild<QLabel *>("secondLabel")->pixmap(Qt::ReturnByValue).size(), file("auto_d").size());
    QTest::qWait(300);
    const int left = timer->remainingTime();
    tip.showTipData(artwork("ac"), artwork("auto"));
    QVERIFY(timer->remainingTime() > left);

    tip.hide();
    QVERIFY(!timer->isActive());
    tip.show();
    QVERIFY(timer->isActive());
    QVERIFY(QMetaObject::invokeMethod(timer, "timeout"));
    QVERIFY(tip.isHidden());
}

// A tile follows heat and cool and the level, drawing only what changed: the
// item's "hot-cool" and "v" and each dot's "v" say what is shown.
void TestAirWidgets::seatTile()
{
    SeatHeatingTipView left;
    SeatHeatingTipView right;
    right.setMirror();
    QWidget *item = left.findChild<QWidget *>("item");
    QCOMPARE(item->property("hot-cool"), QVariant(-1));
    QCOMPARE(item->height(), 2 * file("seat_heat").height());
    QVERIFY(item->testAttribute(Qt::WA_TransparentForMouseEvents));
    const QList<QLabel *> dots = item->findChildren<QLabel *>("valueLabels");
    auto dotStates = [&] {
        QList<int> states;
        for (QLabel *dot : dots)
            states << dot->property("v").toInt();
        return states;
    };
    auto dotKeys = [&] {
        QList<qint64> keys;
        for (QLabel *dot : dots)
            keys << pixmapKey(dot);
        return keys;
    };
    QCOMPARE(dots.size(), 3);
    QCOMPARE(dotStates(), (QList<int>{0, 0, 0}));

    const struct { int value; int hotCool; QList<int> dots; int reads; bool dotsDrawn; } steps[] = {
        {0, 0, {0, 0, 0}, 1, false},  // the first record reads the heat picture again
        {2, 0, {1, 1, 0}, 0, true},
        {2, 0, {1, 1, 0}, 0, false},
        {-2, 1, {1, 1, 0}, 1, false},
        {5, 0, {1, 1, 1}, 1, true},
    };
    SeatHeatingData record;
    for (const auto &step : steps) {
        record.leftSeat = step.value;
        const int reads = imageReads();
        const QList<qint64> keys = dotKeys();
        left.setData(record);
        QCOMPARE(item->property("hot-cool"), QVariant(step.hotCool));
        QCOMPARE(item->property("v").toInt(), qAbs(step.value));
        QCOMPARE(dotStates(), step.dots);
        QCOMPARE(imageReads() - reads, step.reads);
        QCOMPARE(dotKeys() != keys, step.dotsDrawn);
    }
    QCOMPARE(left.getData().leftSeat, qint8(5));

    // The mirrored tile reads the right seat and shows the seat mirrored.
    record.rightSeat = -1;
    right.setData(record);
    QWidget *rightItem = right.findChild<QWidget *>("item");
    QCOMPARE(rightItem->property("hot-cool"), QVariant(1));
    QCOMPARE(rightItem->property("v"), QVariant(1));
    QCOMPARE(rightItem->findChild<QLabel *>("iconLabel")->pixmap(Qt::ReturnByValue).toImage(),
             file("seat_cool").mirrored(true, false).convertToFormat(QImage::Format_ARGB32_Premultiplied));
}

// A press released on the tile is a click; one dragged off it is not.
void TestAirWidgets::seatTilePress()
{
    QWidget window;
    window.resize(300, 300);
    auto *tile = new SeatHeatingTipView(&window);
    tile->setGeometry(10, 10, 100, 150);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QSignalSpy clicked(tile, &SeatHeatingTipView::clicked);
    // Through the window: the drawing lets the press through to the tile.
    const QPoint onItem = tile->findChild<QWidget *>("item")->geometry().center() + tile->pos();
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, onItem);
    QTest::mouseClick(tile, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    QCOMPARE(clicked.size(), 2);
    QTest::mousePress(tile, Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
    QTest::mouseRelease(tile, Qt::LeftButton, Qt::NoModifier, QPoint(150, 50));
    QCOMPARE(clicked.size(), 2);
}

QTEST_MAIN(TestAirWidgets)
#include "tst_airwidgets.moc"
