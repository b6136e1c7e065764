// The row editors and dialogs of the page toolkit: the picture slider, the
// position bar, the flat button, the row-shaped editor and the disc's list
// dialog. Each is driven by real touches and keys and checked by what it
// paints, what it emits and the frames it sends.

#include "pagetests.h"

#include "canobj.h"
#include "cdbutton.h"
#include "customimagebutton.h"
#include "listdialog.h"
#include "listview.h"
#include "optionsitem.h"
#include "slider.h"
#include "sliderviewimte.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QStandardItemModel>
#include <QTemporaryDir>

using PageTest::discEntries;
using PageTest::frame;
using PageTest::hex;
using PageTest::sent;
using namespace PageTest::Keys;

namespace {

// A parent that records the events its children let through.
class Parent : public QWidget
{
public:
    QList<int> keys;
    int presses = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override { keys << event->key(); }
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

// Whether a key press reached the widget's parent.
bool keyPassesOn(QWidget *widget, int key)
{
    auto *parent = static_cast<Parent *>(widget->parentWidget());
    parent->keys.clear();
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(widget, &press);
    return parent->keys == QList<int>{key};
}

// A finger moving over a widget with the button held.
void drag(QWidget *widget, QPoint const &to)
{
    QMouseEvent move(QEvent::MouseMove, to, widget->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

QImage rendered(QWidget *widget, QColor const &background = Qt::black)
{
    QImage image(widget->size(), QImage::Format_ARGB32);
    image.fill(background);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

bool near(QColor const &a, QColor const &b, int tolerance = 6)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance
        && qAbs(a.blue() - b.blue()) <= tolerance;
}

// Pixels of a rectangle that are nearly of this colour.
int pixelsOf(QImage const &image, QColor const &colour, QRect const &area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            count += near(image.pixelColor(x, y), colour, 20);
    }
    return count;
}

QString writeImage(QTemporaryDir const &dir, QString const &name, QSize const &size, QColor const &colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    const QString path = dir.filePath(name);
    image.save(path);
    return path;
}

} // namespace

class TestEditors : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        HostSim::reset();
        HostSim::setProtocolId(124);
    }

    // --- Slider ---------------------------------------------------------

    // A finger sets the value where it lies, the handle's half width kept
    // free at both ends; beyond the groove the value stays at its bound.
    void sliderValueFromFinger_data()
    {
        QTest::addColumn<int>("handleWidth");
        QTest::addColumn<int>("lowest");
        QTest::addColumn<int>("highest");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("value");
        // Range 0..1 without pictures: x over the width, rounded.
        QTest::newRow("no pictures, left edge") << 0 << 0 << 1 << 0 << 0;
        QTest::newRow("no pictures, below half") << 0 << 0 << 1 << 99 << 0;
        QTest::newRow("no pictures, half") << 0 << 0 << 1 << 100 << 1;
        QTest::newRow("no pictures, right edge") << 0 << 0 << 1 << 199 << 1;
        QTest::newRow("no pictures, beyond the right") << 0 << 0 << 1 << 260 << 1;
        QTest::newRow("no pictures, beyond the left") << 0 << 0 << 1 << -30 << 0;
        // A handle 20 wide on a groove of 200: the track runs from 10 to 190.
        QTest::newRow("handle, start of track") << 20 << 10 << 110 << 10 << 10;
        QTest::newRow("handle, in the margin") << 20 << 10 << 110 << 3 << 10;
        QTest::newRow("handle, middle") << 20 << 10 << 110 << 100 << 60;
        QTest::newRow("handle, end of track") << 20 << 10 << 110 << 190 << 110;
        QTest::newRow("handle, beyond the end") << 20 << 10 << 110 << 199 << 110;
    }
    void sliderValueFromFinger()
    {
        QFETCH(int, handleWidth);
        QFETCH(int, lowest);
        QFETCH(int, highest);
        QFETCH(int, x);
        QFETCH(int, value);
        QTemporaryDir dir;
        Parent parent;
        Slider slider(&parent);
        if (handleWidth) {
            slider.setImage(writeImage(dir, "groove.png", QSize(200, 30), Qt::blue),
                            writeImage(dir, "handle.png", QSize(handleWidth, 30), Qt::red),
                            writeImage(dir, "focused.png", QSize(handleWidth, 30), Qt::green));
            QCOMPARE(slider.size(), QSize(200, 30));
        } else {
            slider.resize(200, 30);
        }
        slider.setRange(lowest, highest);
        slider.setValue(highest == 1 ? 5 : 50, false);
        QSignalSpy changed(&slider, &Slider::valueChanged);
        QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(x, 15));
        QCOMPARE(slider.getValue(), value);
        QCOMPARE(changed.count(), 1);
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, QPoint(x, 15));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(parent.presses, 0);
        // A move follows the finger too.
        QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(x, 15));
        drag(&slider, QPoint(handleWidth / 2, 15));
        QCOMPARE(slider.getValue(), lowest);
        QCOMPARE(changed.count(), value == lowest ? 1 : 2);
    }

    // setValue and setRange: no signal without a change or when asked not
    // to emit; a new range doesn't clip the value.
    void sliderValueAndRange()
    {
        Slider slider;
        QSignalSpy changed(&slider, &Slider::valueChanged);
        slider.setRange(0, 10);
        slider.setValue(7, true);
        slider.setValue(7, true);
        slider.setValue(8, false);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toInt(), 7);
        slider.setRange(0, 5);
        QCOMPARE(slider.getValue(), 8);
        QCOMPARE(slider.focusPolicy(), Qt::StrongFocus);
    }

    // Enter starts and stops adjusting; while not adjusting the arrows and
    // the knob pass on to the parent, while adjusting they step by one and
    // are kept even at a bound. Losing focus stops adjusting.
    void sliderKeys()
    {
        Parent parent;
        Slider slider(&parent);
        slider.setRange(2, 5);
        slider.setValue(4, false);
        QSignalSpy changed(&slider, &Slider::valueChanged);
        for (int key : {Up, RemoteUp, Down, RemoteDown, Left, RemoteLeft, Right, RemoteRight, Next, Previous})
            QVERIFY2(keyPassesOn(&slider, key), qPrintable(QString::number(key, 16)));
        QCOMPARE(changed.count(), 0);

        QVERIFY(!keyPassesOn(&slider, Enter));
        QVERIFY(slider.isAdjusting());
        QVERIFY(!keyPassesOn(&slider, Right));
        QCOMPARE(slider.getValue(), 5);
        for (int key : {Up, RemoteRight, Next}) {
            QVERIFY(!keyPassesOn(&slider, key));
            QCOMPARE(slider.getValue(), 5);
        }
        for (int key : {Left, RemoteDown, Previous})
            QVERIFY(!keyPassesOn(&slider, key));
        QCOMPARE(slider.getValue(), 2);
        QVERIFY(!keyPassesOn(&slider, Down));
        QCOMPARE(slider.getValue(), 2);
        QCOMPARE(changed.count(), 4);
        // Other keys are not the slider's.
        QVERIFY(keyPassesOn(&slider, Back));
        QVERIFY(keyPassesOn(&slider, Qt::Key_A));

        QVERIFY(!keyPassesOn(&slider, RemoteEnter));
        QVERIFY(!slider.isAdjusting());
        QVERIFY(keyPassesOn(&slider, Up));

        // Focus out ends adjusting.
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QLineEdit other(&parent);
        other.show();
        slider.setFocus();
        keyPassesOn(&slider, Enter);
        QVERIFY(slider.isAdjusting());
        other.setFocus();
        QVERIFY(!slider.isAdjusting());
    }

    // The values are bytes: lowering 0 with a lowest value of 0 wraps to
    // 255, and raising 255 wraps to 0, since the step is masked first and
    // only then held against the bound in the direction of travel.
    void sliderStepWrapsAtZero()
    {
        Parent parent;
        Slider slider(&parent);
        slider.setRange(0, 255);
        keyPassesOn(&slider, Enter);
        keyPassesOn(&slider, Left);
        QCOMPARE(slider.getValue(), 255);
        keyPassesOn(&slider, Right);
        QCOMPARE(slider.getValue(), 0);
    }

    // The groove centred, the handle at its value's place, the focused
    // handle while the slider has focus.
    void sliderPaints()
    {
        QTemporaryDir dir;
        QWidget window;
        Slider slider(&window);
        slider.setImage(writeImage(dir, "groove.png", QSize(200, 20), Qt::blue),
                        writeImage(dir, "handle.png", QSize(20, 30), Qt::red),
                        writeImage(dir, "focused.png", QSize(20, 30), Qt::green));
        // The groove fixed the size; a taller slider shows the centring.
        QCOMPARE(slider.size(), QSize(200, 20));
        slider.setFixedSize(200, 40);
        slider.setRange(0, 90);
        slider.setValue(45, false);
        QImage image = rendered(&slider);
        // Handle at x = 45 * (200 - 20) / 90 = 90, y = 5.
        QCOMPARE(image.pixelColor(90, 5), QColor(Qt::red));
        QCOMPARE(image.pixelColor(109, 34), QColor(Qt::red));
        QCOMPARE(image.pixelColor(89, 20), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(110, 20), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(10, 9), QColor(Qt::black));
        QCOMPARE(image.pixelColor(10, 10), QColor(Qt::blue));
        slider.setValue(90, false);
        image = rendered(&slider);
        QCOMPARE(image.pixelColor(180, 5), QColor(Qt::red));
        QCOMPARE(image.pixelColor(179, 5), QColor(Qt::black));

        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        slider.setFocus();
        QTRY_VERIFY(slider.hasFocus());
        image = rendered(&slider);
        QCOMPARE(image.pixelColor(190, 5), QColor(Qt::green));
    }

    // --- Position bar -----------------------------------------------------

    // The first resize fixes the size and lays out the groove.
    void positionBarGroove()
    {
        SliderViewImte bar;
        QCOMPARE(bar.minimumSize(), QSize(10, 10));
        bar.resize(200, 40);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QCOMPARE(bar.grooveRect(), QRect(QPoint(10, 10), QPoint(189, 29)));
        QCOMPARE(bar.minimumSize(), QSize(200, 40));
        QCOMPARE(bar.maximumSize(), QSize(200, 40));
        // A range clips the value without repaint or signal; setValue clips.
        bar.setValue(70);
        bar.setRange(0, 50);
        QCOMPARE(bar.getValue(), 50);
        bar.setValue(-4);
        QCOMPARE(bar.getValue(), 0);
        int low = -1, high = -1;
        bar.getRange(low, high);
        QCOMPARE(low, 0);
        QCOMPARE(high, 50);
    }

    // The finger's scale: a margin of 5 % of the groove at both ends of the
    // widget; at the margin exactly the lowest value, at the end the highest.
    void positionBarValueByPosition_data()
    {
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("value");
        // Width 200: groove 180 wide, margin 9, end 191.
        QTest::newRow("before the margin") << 0 << 0;
        QTest::newRow("at the margin") << 9 << 0;
        QTest::newRow("one past the margin") << 10 << 1;
        QTest::newRow("middle") << 100 << 50;
        QTest::newRow("at the end") << 191 << 100;
        QTest::newRow("past the end") << 199 << 100;
    }
    void positionBarValueByPosition()
    {
        QFETCH(int, x);
        QFETCH(int, value);
        SliderViewImte bar;
        bar.resize(200, 40);
        bar.show();
        QVERIFY(QTest::qWaitForWindowExposed(&bar));
        QCOMPARE(bar.getValueByPos(x), value);
    }

    // Press and moves report valueChanged(), the release reports released()
    // where the finger left. Without sliding, every touch is taken and
    // nothing changes.
    void positionBarTouches()
    {
        Parent parent;
        parent.resize(300, 100);
        SliderViewImte bar(&parent);
        bar.setGeometry(0, 0, 200, 40);
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QSignalSpy changed(&bar, &SliderViewImte::valueChanged);
        QSignalSpy released(&bar, &SliderViewImte::released);

        QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(100, 20));
        QCOMPARE(bar.getValue(), 50);
        drag(&bar, QPoint(101, 20));
        drag(&bar, QPoint(102, 20));
        drag(&bar, QPoint(150, 20));
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(250, 20));
        QCOMPARE(bar.getValue(), 100);
        QList<int> values;
        for (auto const &arguments : changed)
            values << arguments.at(0).toInt();
        // 101 rounds to 50 like 100: no signal for it.
        QCOMPARE(values, (QList<int>{50, 51, 77}));
        QCOMPARE(released.count(), 1);
        QCOMPARE(released.at(0).at(0).toInt(), 100);

        bar.setSlideState(false);
        bar.setValue(30);
        QTest::mousePress(&bar, Qt::LeftButton, {}, QPoint(10, 20));
        drag(&bar, QPoint(60, 20));
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(60, 20));
        QCOMPARE(bar.getValue(), 30);
        QCOMPARE(changed.count(), 3);
        QCOMPARE(released.count(), 1);
        QCOMPARE(parent.presses, 0);
    }

    // The groove dark, the fill white up to the value, the knob round and
    // white; all pale when disabled.
    void positionBarPaints()
    {
        QWidget window;
        window.resize(300, 100);
        SliderViewImte bar(&window);
        bar.setGeometry(0, 0, 200, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        bar.setValue(50);
        // G = 20, bar from y 16, 7 high; fill 89 wide from x 11; knob from x 90.
        QImage image = rendered(&bar);
        QVERIFY(near(image.pixelColor(40, 19), QColor(250, 250, 250)));
        QVERIFY(near(image.pixelColor(160, 19), QColor(39, 39, 39)));
        QVERIFY(near(image.pixelColor(100, 20), QColor(255, 255, 255)));
        QVERIFY(near(image.pixelColor(100, 11), QColor(255, 255, 255), 60));
        QCOMPARE(image.pixelColor(100, 5), QColor(Qt::black));
        QCOMPARE(image.pixelColor(40, 12), QColor(Qt::black));
        // The knob is round: its corner stays dark.
        QCOMPARE(image.pixelColor(91, 11), QColor(Qt::black));

        bar.setValue(0);
        image = rendered(&bar);
        QVERIFY(near(image.pixelColor(40, 19), QColor(39, 39, 39)));

        bar.setValue(50);
        bar.setEnabled(false);
        image = rendered(&bar);
        QVERIFY(near(image.pixelColor(100, 20), QColor(100, 100, 100)));
        // The fill, alpha 50 over the groove of alpha 50.
        QVERIFY(near(image.pixelColor(40, 19), QColor(56, 56, 56), 3));
        QVERIFY(near(image.pixelColor(160, 19), QColor(8, 8, 8), 3));
    }

    // --- Flat button -------------------------------------------------------

    // The colour follows the usable and pressed states; a click needs a
    // usable button and a release inside it; every press sounds.
    void buttonStates()
    {
        Parent parent;
        parent.resize(300, 200);
        CDButton button(&parent);
        button.setGeometry(10, 10, 120, 60);
        button.setBackgroundColor(QColor(131, 139, 131), QColor(184, 135, 11), QColor(92, 92, 92));
        parent.show();
        QVERIFY(QTest::qWaitForWindowExposed(&parent));
        QCOMPARE(button.minimumSize(), QSize(10, 20));
        QSignalSpy clicked(&button, &CDButton::clicked);
        const QPoint centre = button.rect().center();

        QVERIFY(near(rendered(&button).pixelColor(5, 5), QColor(131, 139, 131), 0));
        QTest::mousePress(&button, Qt::LeftButton, {}, centre);
        QVERIFY(button.isPressed());
        QVERIFY(near(rendered(&button).pixelColor(5, 5), QColor(184, 135, 11), 0));
        QTest::mouseRelease(&button, Qt::LeftButton, {}, centre);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(HostSim::touchSounds(), 1);
        QVERIFY(near(rendered(&button).pixelColor(5, 5), QColor(131, 139, 131), 0));

        // Released outside: no click.
        QTest::mousePress(&button, Qt::LeftButton, {}, centre);
        QTest::mouseRelease(&button, Qt::LeftButton, {}, QPoint(200, 30));
        QCOMPARE(clicked.count(), 1);
        QVERIFY(!button.isPressed());

        // setProhibit(false) blocks the button: it sounds, shows its
        // blocked colour pressed or not, and never clicks.
        button.setProhibit(false);
        QVERIFY(!button.isUsable());
        QTest::mousePress(&button, Qt::LeftButton, {}, centre);
        QVERIFY(near(rendered(&button).pixelColor(5, 5), QColor(92, 92, 92), 0));
        QTest::mouseRelease(&button, Qt::LeftButton, {}, centre);
        QVERIFY(near(rendered(&button).pixelColor(5, 5), QColor(92, 92, 92), 0));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(HostSim::touchSounds(), 3);
        button.setProhibit(true);
        QTest::mouseClick(&button, Qt::LeftButton, {}, centre);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(parent.presses, 0);
    }

    // The text in black, centred, as high as its share of the button; with
    // the colours at their default only the text shows.
    void buttonPaintsText()
    {
        QWidget window;
        window.resize(300, 200);
        CDButton button(&window);
        button.setGeometry(0, 0, 200, 100);
        const QColor white(Qt::white);
        QCOMPARE(pixelsOf(rendered(&button, white), white, button.rect()), 200 * 100);
        QSignalSpy textChanged(&button, &CDButton::textChanged);
        button.setText("Play", 0.3);
        QCOMPARE(button.property("text").toString(), QString("Play"));
        QCOMPARE(textChanged.count(), 1);
        QImage image = rendered(&button, white);
        const int inked = 200 * 100 - pixelsOf(image, white, button.rect());
        QVERIFY2(inked > 100, qPrintable(QString::number(inked)));
        // Centred: no ink in the outer bands.
        QCOMPARE(pixelsOf(image, white, QRect(0, 0, 200, 25)), 200 * 25);
        QCOMPARE(pixelsOf(image, white, QRect(0, 75, 200, 25)), 200 * 25);
        QCOMPARE(pixelsOf(image, white, QRect(0, 0, 40, 100)), 40 * 100);
        // Dark: the text is black.
        QVERIFY(pixelsOf(image, Qt::black, button.rect()) > 20);
        // A bigger share makes taller letters.
        button.setText("Play", 0.6);
        QVERIFY(200 * 100 - pixelsOf(rendered(&button, white), white, button.rect()) > inked * 2);
        QCOMPARE(button.textScale(), 0.6);
        QCOMPARE(textChanged.count(), 1);   // the same text at another size

    }

    // --- Row-shaped editor --------------------------------------------------

    // The arrows step by the table's convention; without adjusting they
    // are gone; title and value texts land on their parts.
    void optionsItem()
    {
        QStandardItemModel rows(3, 1);
        QWidget window;
        window.resize(1000, 100);
        OptionsItem item(rows.index(2, 0), "Volume", &window);
        item.setGeometry(0, 0, 1000, 80);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        auto *left = item.findChild<CustomImageButton *>("leftArrow");
        auto *right = item.findChild<CustomImageButton *>("rightArrow");
        auto *title = item.findChild<CustomImageButton *>("title");
        auto *value = item.findChild<CustomImageButton *>("value");
        QVERIFY(left && right && title && value);
        QCOMPARE(item.getTitle(), QString("Volume"));
        QCOMPARE(title->text(), QString("Volume"));
        // The arrows' pictures came from the artwork and show over the
        // background.
        QCOMPARE(left->size(), QSize(60, 60));
        const QImage image = rendered(&item);
        for (QWidget *part : {static_cast<QWidget *>(left), static_cast<QWidget *>(right)})
            QVERIFY(image.pixelColor(part->geometry().center()) != QColor(Qt::black));
        QVERIFY(left->geometry().right() < value->geometry().left());
        QVERIFY(value->geometry().right() < right->geometry().left());

        QSignalSpy changed(&item, &OptionsItem::valueChanged);
        auto tapOn = [&](QWidget *part) {
            const QPoint point = part->geometry().center();
            QTest::mousePress(&item, Qt::LeftButton, {}, point);
            QTest::mouseRelease(&item, Qt::LeftButton, {}, point);
        };
        tapOn(left);
        tapOn(right);
        tapOn(value);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(0).at(0).toModelIndex(), rows.index(2, 0));
        QCOMPARE(changed.at(0).at(1).toBool(), true);
        QCOMPARE(changed.at(1).at(1).toBool(), false);
        // Pressed on one arrow, released on the other: no step.
        QTest::mousePress(&item, Qt::LeftButton, {}, left->geometry().center());
        QVERIFY(left->isDown());
        QTest::mouseRelease(&item, Qt::LeftButton, {}, right->geometry().center());
        QVERIFY(!left->isDown());
        QCOMPARE(changed.count(), 2);

        item.setValue(QVariant(12));
        QCOMPARE(value->text(), QString("12"));
        item.setTitle(QVariant(QString("Bass")));
        QCOMPARE(title->text(), QString("Bass"));
        QCOMPARE(item.getTitle(), QString("Bass"));

        item.setAdjust(false);
        QVERIFY(!left->isVisible() && !right->isVisible());
        const QPoint where = left->geometry().center();
        QTest::mousePress(&item, Qt::LeftButton, {}, where);
        QTest::mouseRelease(&item, Qt::LeftButton, {}, where);
        QCOMPARE(changed.count(), 2);

        // A slot call from anything but an arrow does nothing.
        QMetaObject::invokeMethod(&item, "onBtClicked");
        QCOMPARE(changed.count(), 2);
    }

    // --- List dialog ---------------------------------------------------------

    // "number  name" per entry; the button works while the disc holds more
    // than the list shows.
    void listDialogEntries_data()
    {
        QTest::addColumn<int>("total");
        QTest::addColumn<int>("entries");
        QTest::addColumn<bool>("usable");
        QTest::newRow("more on the disc") << 40 << 15 << true;
        QTest::newRow("all fetched") << 15 << 15 << false;
        QTest::newRow("more fetched than the disc says") << 3 << 5 << false;
        QTest::newRow("empty disc") << 0 << 0 << false;
        QTest::newRow("nothing fetched yet") << 7 << 0 << true;
    }
    void listDialogEntries()
    {
        QFETCH(int, total);
        QFETCH(int, entries);
        QFETCH(bool, usable);
        HostSim::buffer(124).setWord(56, quint16(total));
        ListDialog dialog(nullptr);
        QCOMPARE(dialog.focusPolicy(), Qt::StrongFocus);
        dialog.setListInfo(discEntries(entries, 3));
        auto *button = dialog.findChild<CDButton *>();
        QCOMPARE(button->isUsable(), usable);
        QCOMPARE(button->text(), QString("Download"));
        auto *list = dialog.findChild<ListView *>();
        QCOMPARE(list->model()->rowCount(), entries);
        QCOMPARE(dialog.entryTexts().size(), entries);
        if (entries)
            QCOMPARE(list->model()->index(0, 0).data().toString(), QString("3  Track 3"));
    }

    // A tap on an entry plays it and leaves the dialog open; the button
    // fetches from the last entry shown up to 15 more, never past the total.
    void listDialogFrames()
    {
        DataBuffer data = HostSim::buffer(124);
        data.setWord(56, 0x0123);
        data.setEntries(68, discEntries(15, 0x0101));
        QWidget page;
        page.resize(800, 480);
        ListDialog *dialog = new ListDialog(&page);
        dialog->setGeometry(page.rect());
        dialog->setListInfo(data.entries(68));
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        auto *list = dialog->findChild<ListView *>();
        QCOMPARE(list->verticalHeader()->defaultSectionSize(), 81);
        QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);

        const QModelIndex second = list->model()->index(1, 0);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(second).center());
        QCOMPARE(sent(), hex({frame("2E C7 05 11 01 02 00 00 ck")}));
        QVERIFY(dialog->isVisible());
        HostSim::clearSentFrames();

        auto *button = dialog->findChild<CDButton *>();
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        // S = 0x010F, the 15th entry; E = min(15 + 15, 0x0123) = 30.
        QCOMPARE(sent(), hex({frame("2E C7 05 11 01 0F 00 1E ck")}));
        HostSim::clearSentFrames();

        // The answer grew the list; the next press starts at its end.
        data.setWord(56, 20);
        data.setEntries(68, discEntries(18, 1));
        dialog->setListInfo(data.entries(68));
        QVERIFY(button->isUsable());
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        QCOMPARE(sent(), hex({frame("2E C7 05 11 00 12 00 14 ck")}));
        HostSim::clearSentFrames();

        // A slot call from elsewhere sends nothing.
        QMetaObject::invokeMethod(dialog, "onClicke");
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // Numbers at 0xFFFF, a last entry at or past the total, and a list in the
    // buffer shorter than the dialog shows: nothing is sent, nothing is read
    // beyond the list.
    void listDialogBadInput()
    {
        DataBuffer data = HostSim::buffer(124);
        data.setWord(56, 0xFFFF);
        data.setEntries(68, {DateInfo(0xFFFE, "a"), DateInfo(0xFFFF, "b")});
        QWidget page;
        page.resize(800, 480);
        ListDialog *dialog = new ListDialog(&page);
        dialog->setGeometry(page.rect());
        dialog->setListInfo(data.entries(68));
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        auto *list = dialog->findChild<ListView *>();
        auto *button = dialog->findChild<CDButton *>();
        QVERIFY(button->isUsable());
        QCOMPARE(list->model()->index(1, 0).data().toString(), QString("65535  b"));

        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 0)).center());
        QCOMPARE(sent(), hex({frame("2E C7 05 11 FF FF 00 00 ck")}));
        HostSim::clearSentFrames();
        // The last entry is the total: nothing more to fetch.
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        QVERIFY(HostSim::sentFrames().isEmpty());

        // The buffer's list shrank under the dialog.
        data.setEntries(68, {DateInfo(5, "a")});
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 0)).center());
        QVERIFY(HostSim::sentFrames().isEmpty());
        data.setWord(56, 9);
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        QCOMPARE(sent(), hex({frame("2E C7 05 11 00 00 00 09 ck")}));
        HostSim::clearSentFrames();

        // With all entries there the button is blocked; made usable by
        // hand it still sends nothing.
        data.setWord(56, 2);
        data.setEntries(68, {DateInfo(1, "a"), DateInfo(2, "b")});
        dialog->setListInfo(data.entries(68));
        QVERIFY(!button->isUsable());
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        button->setProhibit(true);
        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        QVERIFY(HostSim::sentFrames().isEmpty());
    }

    // Back closes the dialog and deletes it; other keys, key releases and
    // presses stay in the dialog. It paints itself black.
    void listDialogKeysAndLook()
    {
        Parent page;
        page.resize(800, 480);
        QPointer<ListDialog> dialog = new ListDialog(&page);
        dialog->setGeometry(page.rect());
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        const QImage image = rendered(dialog, Qt::white);
        QCOMPARE(image.pixelColor(2, 2), QColor(Qt::black));
        QCOMPARE(image.pixelColor(799, 300), QColor(Qt::black));

        for (int key : {Enter, Up, Down, Left, Right, Next, Previous, RemoteEnter})
            QVERIFY(!keyPassesOn(dialog, key));
        QTest::mousePress(dialog, Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(page.presses, 0);
        QKeyEvent release(QEvent::KeyRelease, Back, Qt::NoModifier);
        release.ignore();
        QApplication::sendEvent(dialog, &release);
        QVERIFY(release.isAccepted());
        QVERIFY(dialog->isVisible());

        QVERIFY(!keyPassesOn(dialog, Back));
        QVERIFY(!dialog->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!dialog);
    }
};

QTEST_MAIN(TestEditors)
#include "tst_editors.moc"
