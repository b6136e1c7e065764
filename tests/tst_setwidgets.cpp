// The key-driven settings page: its lines (an on/off switch, a slider, a
// grid of choices), focus that walks from line to line and inside a grid by
// the head unit's keys, touches, and what the lines paint.

#include "appframework.h"
#include "hostsim.h"
#include "onoffbutton.h"
#include "setitem.h"
#include "setitemsview.h"
#include "setonoffview.h"
#include "setpagewidget.h"
#include "setsliderview.h"
#include "slider.h"
#include "toolbutton.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QtTest>

namespace {

// The panel's keys and the remote's.
struct Keys {
    int enter, up, down, left, right;
};

} // namespace

Q_DECLARE_METATYPE(Keys)

namespace {

const Keys Panel = {0x1100041, 0x110003F, 0x1100040, 0x110003D, 0x110003E};
const Keys Remote = {0x1400009, 0x140000A, 0x140000B, 0x140000C, 0x140000D};
const int Next = 0x110004D, Previous = 0x110004E, Back = 0x110002A;

// A window that records the keys that nothing inside it used.
class Window : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent *event) override { keys << event->key(); }
};

// A page of one line of each kind, top to bottom: a switch, a slider and a
// grid of five choices in two columns.
class Page : public SetPageWidget
{
public:
    SetOnOffView *onOff = nullptr;
    SetSliderView *slider = nullptr;
    SetItemsView *grid = nullptr;

    explicit Page(QWidget *parent, bool withLines = true)
        : SetPageWidget(parent)
    {
        auto *layout = new QVBoxLayout(this);
        if (!withLines)
            return;
        onOff = new SetOnOffView("Switch", this);
        slider = new SetSliderView("Level", this);
        slider->setRange(0, 10);
        grid = new SetItemsView("Choice", {"a", "b", "c", "d", "e"}, {10, 11, 12, 13, 14}, 2, this);
        m_lines << onOff << slider << grid;
        for (SetItemBase *line : m_lines)
            layout->addWidget(line);
    }
    QList<SetItemBase *> lines() const { return m_lines; }
};

// A key press as the head unit delivers it: to the widget with the focus,
// passing on to the parents while ignored.
void press(int key)
{
    QWidget *target = QApplication::focusWidget();
    QVERIFY(target);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
}

QString writeImage(QTemporaryDir const &dir, QString const &name, QSize const &size, QColor const &colour)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(colour);
    const QString path = dir.filePath(name);
    image.save(path);
    return path;
}

QImage rendered(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_ARGB32);
    image.fill(Qt::black);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

} // namespace

class TestSetWidgets : public QObject
{
    Q_OBJECT

    Window *window = nullptr;
    Page *page = nullptr;

    void open(bool withLines = true)
    {
        window = new Window;
        auto *layout = new QVBoxLayout(window);
        // Something outside the page to take the focus away.
        auto *outside = new QLabel("outside", window);
        outside->setObjectName("outside");
        outside->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(outside);
        page = new Page(window, withLines);
        layout->addWidget(page);
        window->resize(800, 400);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window));
        outside->setFocus();
        QVERIFY(outside->hasFocus());
    }

    SetItem *item(int index) const { return page->grid->items().at(index); }

private slots:
    void init() { HostSim::reset(); }
    void cleanup()
    {
        delete window;
        window = nullptr;
    }

    // Entering the page lands on the last line (in a grid, its first
    // choice); up walks to the line before and stops quietly on the first
    // line; down walks back and leaves the page from the last line. Both
    // key families alike.
    void focusWalksFromLineToLine_data()
    {
        QTest::addColumn<Keys>("keys");
        QTest::newRow("panel") << Panel;
        QTest::newRow("remote") << Remote;
    }
    void focusWalksFromLineToLine()
    {
        QFETCH(Keys, keys);
        open();
        page->setFocus();
        QVERIFY(item(0)->hasFocus());
        QCOMPARE(page->getFocusWidget(), page->grid);

        press(keys.up);
        QVERIFY(page->findChild<Slider *>("slider")->hasFocus());
        QCOMPARE(page->getFocusWidget(), page->slider);
        press(keys.up);
        QVERIFY(page->findChild<OnOffButton *>("onOffButton")->hasFocus());
        QCOMPARE(page->getFocusWidget(), page->onOff);
        press(keys.up);
        QCOMPARE(page->getFocusWidget(), page->onOff);
        QVERIFY(window->keys.isEmpty());

        // Left and right are the page's, even where no line uses them.
        press(keys.left);
        press(keys.right);
        QCOMPARE(page->getFocusWidget(), page->onOff);
        QVERIFY(window->keys.isEmpty());

        press(keys.down);
        QCOMPARE(page->getFocusWidget(), page->slider);
        press(keys.down);
        QVERIFY(item(0)->hasFocus());
        // Down walks the grid's rows (a, c, e), then leaves the page.
        press(keys.down);
        QVERIFY(item(2)->hasFocus());
        press(keys.down);
        QVERIFY(item(4)->hasFocus());
        QVERIFY(window->keys.isEmpty());
        press(keys.down);
        QVERIFY(item(4)->hasFocus());
        QCOMPARE(window->keys, QList<int>{keys.down});

        // Enter and the knob aren't the page's.
        window->keys.clear();
        page->onOff->setFocus();
        press(Next);
        press(Previous);
        press(Back);
        QCOMPARE(window->keys, (QList<int>{Next, Previous, Back}));
        QCOMPARE(page->getFocusWidget(), page->onOff);
    }

    // Up from the grid's first row and down from a choice with nothing
    // below leave the grid for the next line: from d (row 1, column 1 of
    // five choices in two columns) down is the page's, which has no line
    // after the grid and passes it on.
    void gridHandsKeysToThePage()
    {
        open();
        page->grid->setFocus();
        press(Panel.right);
        QVERIFY(item(1)->hasFocus());
        press(Panel.down);
        QVERIFY(item(3)->hasFocus());
        press(Panel.down);
        QVERIFY(item(3)->hasFocus());
        QCOMPARE(window->keys, QList<int>{Panel.down});
        press(Panel.up);
        press(Panel.up);
        QVERIFY(page->findChild<Slider *>()->hasFocus());
    }

    // moveFocus on five choices in two columns (and four, a full last row).
    void gridMoveFocus_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("dx");
        QTest::addColumn<int>("dy");
        QTest::addColumn<int>("step");
        QTest::addColumn<bool>("used");
        QTest::addColumn<int>("to");
        QTest::newRow("none in focus takes the first") << 5 << -1 << 0 << 1 << 0 << true << 0;
        QTest::newRow("right") << 5 << 0 << 1 << 0 << 0 << true << 1;
        QTest::newRow("right at the right end") << 5 << 3 << 1 << 0 << 0 << true << 3;
        QTest::newRow("right in a short last row") << 5 << 4 << 1 << 0 << 0 << true << 4;
        QTest::newRow("left") << 5 << 3 << -1 << 0 << 0 << true << 2;
        QTest::newRow("left at the left end") << 5 << 2 << -1 << 0 << 0 << true << 2;
        QTest::newRow("down") << 5 << 2 << 0 << 1 << 0 << true << 4;
        QTest::newRow("down, nothing below") << 5 << 3 << 0 << 1 << 0 << false << 3;
        QTest::newRow("down from the last row") << 5 << 4 << 0 << 1 << 0 << false << 4;
        QTest::newRow("down from a full last row") << 4 << 2 << 0 << 1 << 0 << false << 2;
        QTest::newRow("down in four") << 4 << 1 << 0 << 1 << 0 << true << 3;
        QTest::newRow("up") << 5 << 3 << 0 << -1 << 0 << true << 1;
        QTest::newRow("up from the first row") << 5 << 1 << 0 << -1 << 0 << false << 1;
        QTest::newRow("next") << 5 << 1 << 0 << 0 << 1 << true << 2;
        QTest::newRow("next at the last") << 5 << 4 << 0 << 0 << 1 << false << 4;
        QTest::newRow("previous") << 5 << 2 << 0 << 0 << -1 << true << 1;
        QTest::newRow("previous at the first") << 5 << 0 << 0 << 0 << -1 << false << 0;
    }
    void gridMoveFocus()
    {
        QFETCH(int, count);
        QFETCH(int, from);
        QFETCH(int, dx);
        QFETCH(int, dy);
        QFETCH(int, step);
        QFETCH(bool, used);
        QFETCH(int, to);
        Window window;
        QStringList texts;
        QList<unsigned char> values;
        for (int i = 0; i < count; ++i) {
            texts << QString::number(i);
            values << static_cast<unsigned char>(i);
        }
        auto *grid = new SetItemsView("Grid", texts, values, 2, &window);
        auto *outside = new QLabel(&window);
        outside->setFocusPolicy(Qt::StrongFocus);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        if (from >= 0)
            grid->items().at(from)->setFocus();
        else
            outside->setFocus();
        QCOMPARE(grid->getFocusItemIndex(), from);
        QCOMPARE(grid->isInFocus(), from >= 0);
        QCOMPARE(grid->moveFocus(dx, dy, step), used);
        QCOMPARE(grid->getFocusItemIndex(), to);
    }

    // The grid's keys: left and right are always its own, the others only
    // while they move the focus; enter clicks the choice in focus.
    void gridKeys()
    {
        open();
        QSignalSpy changed(page->grid, &SetItemsView::valueChanged);
        item(4)->setFocus();
        for (int key : {Panel.left, Remote.right, Panel.right}) {
            press(key);
            QVERIFY(item(4)->hasFocus());
        }
        press(Next);
        QCOMPARE(window->keys, QList<int>{Next});
        press(Previous);
        QVERIFY(item(3)->hasFocus());
        press(Remote.enter);
        QCOMPARE(page->grid->value(), 13);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).value<unsigned char>(), 13);
        // The selection moves only by a click; the focus by the keys.
        press(Panel.up);
        QVERIFY(item(1)->hasFocus());
        QCOMPARE(page->grid->selectedItem(), item(3));
        window->keys.clear();
        press(Qt::Key_A);
        QCOMPARE(window->keys, QList<int>{Qt::Key_A});
    }

    // A tap selects a choice and reports its value; setValue selects
    // silently and keeps the selection for a value that no choice has;
    // clearing from any choice clears the view's selection.
    void gridSelection()
    {
        open();
        SetItemsView *grid = page->grid;
        QSignalSpy changed(grid, &SetItemsView::valueChanged);
        QCOMPARE(grid->selectedItem(), nullptr);
        QCOMPARE(grid->value(), 0);

        QTest::mouseClick(item(2), Qt::LeftButton, {}, item(2)->rect().center());
        QCOMPARE(grid->selectedItem(), item(2));
        QCOMPARE(grid->value(), 12);
        QCOMPARE(changed.count(), 1);
        QVERIFY(item(2)->hasFocus());

        grid->setValue(14);
        QCOMPARE(grid->selectedItem(), item(4));
        grid->setValue(99);
        QCOMPARE(grid->selectedItem(), item(4));
        QCOMPARE(changed.count(), 1);

        item(0)->setSelected(false);
        QCOMPARE(grid->selectedItem(), nullptr);
        QCOMPARE(grid->value(), 0);
        item(1)->setSelected(true);
        QCOMPARE(grid->value(), 11);

        // A choice outside a grid has no selection to change.
        SetItem lone("lone", 7);
        lone.setSelected(true);
        QCOMPARE(lone.value(), 7);
        QCOMPARE(grid->selectedItem(), item(1));

        // Two choices of the same value: the first is selected.
        SetItemsView twins("Twins", {"x", "y"}, {5, 5}, 2);
        twins.setValue(5);
        QCOMPARE(twins.selectedItem(), twins.items().at(0));
        // Missing values stand for 0; fewer than one column is one.
        SetItemsView padded("Short", {"x", "y"}, {5}, 0);
        QCOMPARE(padded.items().at(1)->value(), 0);
        padded.setValue(0);
        QCOMPARE(padded.selectedItem(), padded.items().at(1));
    }

    // Focus frame and selection fill are independent: white frame with
    // focus, dark without; blue fill when selected.
    void itemPaintsFocusAndSelection()
    {
        open();
        const QColor blue(3, 36, 170), dark(50, 50, 50), white(255, 255, 255);
        item(1)->setSelected(true);
        item(3)->setFocus();
        QTRY_VERIFY(item(3)->hasFocus());
        struct Case { int index; QColor frame; bool filled; };
        for (Case c : {Case{0, dark, false}, Case{1, dark, true}, Case{3, white, false}}) {
            const QImage image = rendered(item(c.index));
            const int h = image.height();
            QCOMPARE(image.pixelColor(1, h / 2), c.frame);
            QCOMPARE(image.pixelColor(image.width() - 2, h / 2), c.frame);
            QCOMPARE(image.pixelColor(image.width() - 4, h - 4) == blue, c.filled);
        }
        item(1)->setFocus();
        const QImage both = rendered(item(1));
        QCOMPARE(both.pixelColor(1, both.height() / 2), white);
        QCOMPARE(both.pixelColor(both.width() - 4, both.height() - 4), blue);
    }

    // The grid's layout: choices by index in rows of the column count, the
    // view at least as high as its rows (with the stretch row) of choices.
    void gridLayout()
    {
        open();
        const int line = zorvappframework::UIManager::getSystemViewRect().height() / 17;
        QCOMPARE(item(0)->minimumHeight(), line);
        QCOMPARE(page->onOff->minimumHeight(), line);
        QCOMPARE(page->slider->minimumHeight(), line);
        QCOMPARE(page->grid->minimumHeight(), 4 * (line + 6));
        QCOMPARE(item(1)->y(), item(0)->y());
        QVERIFY(item(1)->x() > item(0)->x());
        QCOMPARE(item(2)->x(), item(0)->x());
        QVERIFY(item(2)->y() > item(0)->y());
        QCOMPARE(item(4)->x(), item(0)->x());
        QCOMPARE(item(1)->width(), item(0)->width());
    }

    // The switch: on when fresh, off after its pictures, a picture for each
    // state with and without focus, the icon as large as the first picture.
    // Enter clicks it without changing its state; other keys pass on.
    void onOffButtonPicturesAndKeys()
    {
        QTemporaryDir dir;
        Window window;
        auto *button = new OnOffButton(&window);
        auto *other = new QLabel(&window);
        other->setFocusPolicy(Qt::StrongFocus);
        other->move(0, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(button->onOff());
        button->setImage(writeImage(dir, "on.png", QSize(40, 20), Qt::red),
                         writeImage(dir, "onf.png", QSize(40, 20), Qt::green),
                         writeImage(dir, "off.png", QSize(40, 20), Qt::blue),
                         writeImage(dir, "offf.png", QSize(40, 20), Qt::yellow));
        QVERIFY(!button->onOff());
        QCOMPARE(button->iconSize(), QSize(40, 20));
        button->resize(button->sizeHint());
        auto centre = [&] { return rendered(button).pixelColor(button->rect().center()); };
        other->setFocus();
        QCOMPARE(centre(), QColor(Qt::blue));
        button->setFocus();
        QCOMPARE(centre(), QColor(Qt::yellow));
        button->setOnOff(true);
        QCOMPARE(centre(), QColor(Qt::green));
        other->setFocus();
        QCOMPARE(centre(), QColor(Qt::red));

        button->setFocus();
        QSignalSpy clicked(button, &QToolButton::clicked);
        for (int key : {Panel.enter, Remote.enter})
            press(key);
        QCOMPARE(clicked.count(), 2);
        QCOMPARE(clicked.at(0).at(0).toBool(), true);
        QVERIFY(button->onOff());
        for (int key : {Panel.up, Remote.down, Panel.left, Next, Back, int(Qt::Key_Space)})
            press(key);
        QCOMPARE(window.keys, (QList<int>{Panel.up, Remote.down, Panel.left, Next, Back, Qt::Key_Space}));
        QCOMPARE(clicked.count(), 2);

        // The tool button answers the keys alike.
        auto *tool = new ToolButton(&window);
        tool->show();
        tool->setFocus();
        QSignalSpy toolClicked(tool, &QToolButton::clicked);
        window.keys.clear();
        press(Remote.enter);
        press(Remote.up);
        QCOMPARE(toolClicked.count(), 1);
        QCOMPARE(window.keys, QList<int>{Remote.up});
    }

    // The switch line: a tap or enter toggles and always reports; setOnOff
    // reports a change only when asked, and nothing without a change.
    void onOffViewToggles()
    {
        open();
        SetOnOffView *view = page->onOff;
        auto *button = view->findChild<OnOffButton *>();
        QSignalSpy changed(view, &SetOnOffView::onoffChanged);
        QVERIFY(view->getOnOff());
        view->setOnOff(true, true);
        QCOMPARE(changed.count(), 0);
        view->setOnOff(false, false);
        QCOMPARE(changed.count(), 0);
        QVERIFY(!view->getOnOff());
        view->setOnOff(true, true);
        QCOMPARE(changed.count(), 1);

        QTest::mouseClick(button, Qt::LeftButton, {}, button->rect().center());
        QVERIFY(!view->getOnOff());
        view->setFocus();
        QVERIFY(button->hasFocus());
        QVERIFY(view->isInFocus());
        press(Panel.enter);
        QVERIFY(view->getOnOff());
        QCOMPARE(changed.count(), 3);
        QCOMPARE(changed.at(1).at(0).toBool(), false);
        QCOMPARE(changed.at(2).at(0).toBool(), true);

        // New pictures leave it off, silently.
        view->setImage(QString(), QString(), QString(), QString());
        QVERIFY(!view->getOnOff());
        QCOMPARE(changed.count(), 3);
    }

    // The slider line: the digits follow the value set, the keys while
    // adjusting and a finger; an unchanged value still writes the digits.
    void sliderViewValue()
    {
        QTemporaryDir dir;
        open();
        SetSliderView *view = page->slider;
        view->setImage(writeImage(dir, "groove.png", QSize(110, 20), Qt::blue),
                       writeImage(dir, "handle.png", QSize(10, 20), Qt::red),
                       writeImage(dir, "focused.png", QSize(10, 20), Qt::green));
        auto *slider = view->findChild<Slider *>("slider");
        auto *digits = view->findChild<QLabel *>("valueLabel");
        QCOMPARE(slider->size(), QSize(110, 20));
        QSignalSpy changed(view, &SetSliderView::valueChanged);

        view->setValue(4, false);
        QCOMPARE(digits->text(), QString("4"));
        QCOMPARE(view->getValue(), 4);
        digits->setText("stale");
        view->setValue(4, true);
        QCOMPARE(digits->text(), QString("4"));
        QCOMPARE(changed.count(), 0);
        view->setValue(6, true);
        QCOMPARE(changed.count(), 1);

        view->setFocus();
        QVERIFY(slider->hasFocus());
        QVERIFY(view->isInFocus());
        press(Panel.enter);
        press(Panel.right);
        press(Remote.right);
        QCOMPARE(digits->text(), QString("8"));
        QCOMPARE(changed.last().at(0).toInt(), 8);
        // Adjusting keeps up and down in the slider; enter ends it and they
        // move between lines again.
        press(Panel.up);
        QCOMPARE(view->getValue(), 9);
        QCOMPARE(page->getFocusWidget(), page->slider);
        press(Remote.enter);
        press(Panel.up);
        QCOMPARE(page->getFocusWidget(), page->onOff);

        // A finger at the middle of the track: 5 of 0..10.
        QTest::mouseClick(slider, Qt::LeftButton, {}, QPoint(55, 10));
        QCOMPARE(view->getValue(), 5);
        QCOMPARE(digits->text(), QString("5"));
        QCOMPARE(changed.last().at(0).toInt(), 5);
        QVERIFY(slider->hasFocus());
    }

    // Keys with no line in focus bring the focus to the last line; a page
    // without lines keeps nothing: up stops there, down passes on.
    void pageWithoutFocusOrLines()
    {
        open();
        QCOMPARE(page->getFocusWidget(), nullptr);
        for (int key : {Panel.up, Remote.down}) {
            window->findChild<QLabel *>("outside")->setFocus();
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(page, &event);
            QVERIFY(event.isAccepted());
            QCOMPARE(page->getFocusWidget(), page->grid);
        }
        delete window;
        window = nullptr;

        open(false);
        page->setFocus();
        QVERIFY(page->hasFocus());
        QCOMPARE(page->getFocusWidget(), nullptr);
        for (int key : {Panel.up, Panel.down, Panel.left, Panel.enter})
            press(key);
        QCOMPARE(window->keys, (QList<int>{Panel.down, Panel.enter}));

        // A grid without choices lets every walking key through.
        SetItemsView empty("Empty", {}, {}, 3, window);
        empty.show();
        empty.setFocus();
        QVERIFY(empty.isInFocus());
        QCOMPARE(empty.moveFocus(0, 1, 0), false);
        QCOMPARE(empty.getFocusItemIndex(), -1);
        window->keys.clear();
        press(Panel.down);
        press(Next);
        QCOMPARE(window->keys, (QList<int>{Panel.down, Next}));
    }
};

QTEST_MAIN(TestSetWidgets)
#include "tst_setwidgets.moc"
