// The dashboard of protocol 27: what it shows of the body record, which
// dials and plates stand disabled, where a finger lands and what a tap on a
// disabled one says. No protocol id brings it up, so a subclass of its own
// shows it here.

#include "appframework.h"
#include "carbodydata.h"
#include "carexview27.h"
#include "customimagebutton.h"
#include "hostsim.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QtTest>

namespace {

const QString Celsius = QString::fromUtf8("\xE2\x84\x83");
const QString Fahrenheit = QString::fromUtf8("\xE2\x84\x89");
const QString Unsupported = "This model doesn't support this feature";

class Dashboard : public CarExView27
{
public:
    using CarExView27::CarExView27;
    void showIndex(int) override {}
};

// A window that records the presses and keys that the dashboard lets by.
class Window : public QWidget
{
public:
    int presses = 0;
    QList<int> keys;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
    void keyPressEvent(QKeyEvent *event) override { keys << event->key(); }
};

// The body record as a test sets it; fields not named keep a plain state.
struct Body {
    qint8 temperatureUnit = 0;
    qint16 temperature = 0;
    quint16 voltage = 0;
    qint16 speed = 0;
    qint8 speedUnit = 0;
    qint8 speedUnit2 = 0;
    quint32 engineSpeed = 0;
    quint32 distance = 0;
    qint8 distanceUnit = 0;
    quint8 fuel = 0;

    void store() const
    {
        CarbodyData *body = HostSim::carbodyData();
        body->temperatureUnit = temperatureUnit;
        body->outsideTemperature = temperature;
        body->batteryVoltage = voltage;
        body->speed = speed;
        body->speedUnit = speedUnit;
        body->speedUnit2 = speedUnit2;
        body->engineSpeed = engineSpeed;
        body->distance = distance;
        body->distanceUnit = distanceUnit;
        body->remainingFuel = fuel;
    }
};

// The pixels of exactly this colour.
int pixelsOf(QImage const &image, QColor const &colour)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == colour;
    }
    return count;
}

} // namespace

Q_DECLARE_METATYPE(Body)

class TestDashboard : public QObject
{
    Q_OBJECT

    Window *window = nullptr;
    Dashboard *dashboard = nullptr;

    template <typename T = CustomImageButton>
    T *part(const char *name) const
    {
        T *found = dashboard->findChild<T *>(name);
        if (!found)
            qFatal("no %s", name);
        return found;
    }
    QString text(const char *name) const
    {
        if (auto *label = dashboard->findChild<QLabel *>(name))
            return label->text();
        return part(name)->text();
    }
    // The centre of a part, in the dashboard's coordinates.
    QPoint centreOf(const char *name) const
    {
        QWidget *widget = dashboard->findChild<QWidget *>(name);
        return widget->mapTo(dashboard, widget->rect().center());
    }

    // A finger on the screen: the press and release go to the widget under
    // the point, as the window system delivers them, and pass on to the
    // parents while ignored.
    void touch(QEvent::Type type, QPoint const &at)
    {
        const QPoint inWindow = dashboard->mapTo(window, at);
        QWidget *target = window->childAt(inWindow);
        if (!target)
            target = window;
        const QPoint local = target->mapFrom(window, inWindow);
        QMouseEvent event(type, local, target->mapToGlobal(local), Qt::LeftButton,
                          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }
    void tap(QPoint const &from, QPoint const &to)
    {
        touch(QEvent::MouseButtonPress, from);
        touch(QEvent::MouseButtonRelease, to);
    }
    void tap(QPoint const &at) { tap(at, at); }

private slots:
    void init()
    {
        HostSim::reset();
        window = new Window;
        auto *layout = new QVBoxLayout(window);
        layout->setContentsMargins(0, 0, 0, 0);
        dashboard = new Dashboard(window);
        layout->addWidget(dashboard);
        window->setFixedSize(zorvappframework::UIManager::getMainAreaRect().size());
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
    void cleanup()
    {
        delete window;
        window = nullptr;
    }

    // Before any record: zeros, the units of kilometres, all enabled.
    void initialTexts()
    {
        QCOMPARE(text("temperatureButton"), "0" + Celsius);
        QCOMPARE(text("voltageButton"), QString("0V"));
        QCOMPARE(text("speedButton"), QString("0.0"));
        QCOMPARE(text("rpmButton"), QString("0.0"));
        QCOMPARE(text("speedUnitLabel"), QString("KM/H"));
        QCOMPARE(text("rpmUnitLabel"), QString("RPM"));
        QCOMPARE(text("mileageLabel"), QString("0"));
        QCOMPARE(text("mileageUnitLabel"), QString("KM"));
        QCOMPARE(text("remainLabel"), QString("0"));
        QCOMPARE(text("remainUnitLabel"), QString("L"));
        for (auto name : {"temperatureButton", "voltageButton", "speedButton", "rpmButton", "mileageButton",
                          "remainButton"})
            QVERIFY(part(name)->isEnabled());
        QCOMPARE(dashboard->getDatalist(), QList<QString>());
    }

    // The texts of a record, the fields at their extremes and the units
    // inside and outside their rules.
    void texts_data()
    {
        QTest::addColumn<Body>("body");
        QTest::addColumn<QString>("temperature");
        QTest::addColumn<bool>("temperatureEnabled");
        QTest::addColumn<QString>("voltage");
        QTest::addColumn<QString>("speed");
        QTest::addColumn<QString>("speedUnit");
        QTest::addColumn<QString>("rpm");
        QTest::addColumn<QString>("distance");
        QTest::addColumn<QString>("distanceUnit");
        QTest::addColumn<QString>("fuel");

        Body b;
        b.temperature = 235, b.voltage = 126, b.speed = 6250, b.engineSpeed = 215000, b.distance = 12345,
        b.fuel = 38;
        QTest::newRow("plain") << b << "23.5" + Celsius << true << "12.6V" << "62.5" << "KM/H" << "2150.00"
                               << "12345" << "KM" << "38";
        b = Body();
        b.temperature = -105, b.speed = -5, b.engineSpeed = 1;
        QTest::newRow("below zero") << b << "-10.5" + Celsius << true << "0.0V" << "-0.1" << "KM/H" << "0.01"
                                    << "0" << "KM" << "0";
        b = Body();
        b.temperatureUnit = 1, b.temperature = 725, b.speedUnit = 1, b.speedUnit2 = 1, b.distanceUnit = 1;
        QTest::newRow("Fahrenheit, miles") << b << "72" + Fahrenheit << true << "0.0V" << "0.0" << "MPH"
                                           << "0.00" << "0" << "Mile" << "0";
        b = Body();
        b.temperatureUnit = 127, b.temperature = -55, b.speedUnit = 2, b.speedUnit2 = 1, b.distanceUnit = 2;
        QTest::newRow("any other unit is Fahrenheit") << b << "-5" + Fahrenheit << true << "0.0V" << "0.0"
                                                      << "MPH" << "0.00" << "0" << "KM" << "0";
        b = Body();
        b.temperatureUnit = -1, b.temperature = 300, b.speedUnit = 2, b.speedUnit2 = 3, b.distanceUnit = -1;
        QTest::newRow("no temperature, unknown speed unit") << b << "0" + Celsius << false << "0.0V" << "0.0"
                                                            << "" << "0.00" << "0" << "KM" << "0";
        b = Body();
        b.speedUnit = 5, b.speedUnit2 = 0;
        QTest::newRow("second source says km/h") << b << "0.0" + Celsius << true << "0.0V" << "0.0" << "KM/H"
                                                 << "0.00" << "0" << "KM" << "0";
        b = Body();
        b.speedUnit = 1, b.speedUnit2 = 0;
        QTest::newRow("km/h wins over mph") << b << "0.0" + Celsius << true << "0.0V" << "0.0" << "KM/H"
                                            << "0.00" << "0" << "KM" << "0";
        b = Body();
        b.speedUnit = -1, b.speedUnit2 = -128;
        QTest::newRow("negative speed units") << b << "0.0" + Celsius << true << "0.0V" << "0.0" << ""
                                              << "0.00" << "0" << "KM" << "0";
        b = Body();
        b.temperatureUnit = -128, b.temperature = -32768, b.voltage = 65535, b.speed = 32767,
        b.engineSpeed = 0xFFFFFFFF, b.distance = 0xFFFFFFFF, b.fuel = 255, b.distanceUnit = 127;
        QTest::newRow("highest") << b << "0" + Celsius << false << "6553.5V" << "327.7" << "KM/H"
                                 << "42949672.95" << "4294967295" << "KM" << "255";
        b = Body();
        b.temperature = -32768, b.speed = -32768;
        QTest::newRow("lowest") << b << "-3276.8" + Celsius << true << "0.0V" << "-327.7" << "KM/H" << "0.00"
                                << "0" << "KM" << "0";
        b = Body();
        b.temperatureUnit = 1, b.temperature = 32767;
        QTest::newRow("highest Fahrenheit") << b << "3276" + Fahrenheit << true << "0.0V" << "0.0" << "KM/H"
                                            << "0.00" << "0" << "KM" << "0";
    }
    void texts()
    {
        QFETCH(Body, body);
        body.store();
        dashboard->refresh();
        QTEST(text("temperatureButton"), "temperature");
        QTEST(part("temperatureButton")->isEnabled(), "temperatureEnabled");
        QTEST(text("voltageButton"), "voltage");
        QTEST(text("speedButton"), "speed");
        QTEST(text("speedUnitLabel"), "speedUnit");
        QTEST(text("rpmButton"), "rpm");
        QTEST(text("mileageLabel"), "distance");
        QTEST(text("mileageUnitLabel"), "distanceUnit");
        QTEST(text("remainLabel"), "fuel");
        QCOMPARE(text("remainUnitLabel"), QString("L"));
        QCOMPARE(text("rpmUnitLabel"), QString("RPM"));
        for (auto name : {"voltageButton", "speedButton", "rpmButton", "mileageButton", "remainButton"})
            QVERIFY(part(name)->isEnabled());
        // A repeated record changes nothing.
        dashboard->refresh();
        QTEST(text("temperatureButton"), "temperature");
        QTEST(text("speedUnitLabel"), "speedUnit");
    }

    // Without a temperature the plate goes grey once, with "0℃" in grey;
    // a repeated record doesn't write it again, and a temperature brings
    // back the white text on the enabled plate.
    void missingTemperature()
    {
        auto *plate = part("temperatureButton");
        const QColor grey(150, 150, 150), white(255, 255, 255);
        Body body;
        body.temperature = 215;
        body.store();
        dashboard->refresh();
        QVERIFY(pixelsOf(plate->grab().toImage(), white) > 20);

        body.temperatureUnit = -1;
        body.store();
        dashboard->refresh();
        QVERIFY(!plate->isEnabled());
        QCOMPARE(plate->text(), "0" + Celsius);
        const QImage greyText = plate->grab().toImage();
        QVERIFY(pixelsOf(greyText, grey) > 20);
        QCOMPARE(pixelsOf(greyText, white), 0);

        plate->setText("marker", Qt::AlignCenter, Qt::red, 0.7f, false);
        dashboard->refresh();
        QCOMPARE(plate->text(), QString("marker"));

        body.temperatureUnit = 0;
        body.store();
        dashboard->refresh();
        QVERIFY(plate->isEnabled());
        QCOMPARE(plate->text(), "21.5" + Celsius);
        const QImage whiteText = plate->grab().toImage();
        QVERIFY(pixelsOf(whiteText, white) > 20);
        QCOMPARE(pixelsOf(whiteText, grey), 0);
    }

    // The plates' numbers, at their widest, stand on the plate's picture:
    // the white of the text lies within it, clear of its frame.
    void platesHoldTheirNumbers()
    {
        Body body;
        body.temperature = -405;
        body.voltage = 148;
        body.store();
        dashboard->refresh();
        QCOMPARE(text("temperatureButton"), "-40.5" + Celsius);
        const QImage picture(qEnvironmentVariable("CARCONTROL_RESOURCE_ROOT") + "/exStyle4/toptitle.png");
        QVERIFY(!picture.isNull());
        for (const char *name : {"temperatureButton", "voltageButton"}) {
            QWidget *plate = part(name);
            const QImage shot = plate->grab().toImage();
            const QRect onPicture(QPoint((plate->width() - picture.width()) / 2, (plate->height() - picture.height()) / 2),
                                  picture.size());
            QRect text;
            for (int y = 0; y < shot.height(); ++y) {
                for (int x = 0; x < shot.width(); ++x) {
                    if (shot.pixelColor(x, y) == Qt::white)
                        text |= QRect(x, y, 1, 1);
                }
            }
            QVERIFY2(!text.isNull(), name);
            QVERIFY2(onPicture.contains(text), name);
            // Clear of the plate's frame at the top, by a gap of 3 pixels:
            // the frame ends at the first line of the picture's middle
            // column past the frame's colour.
            int inside = 0;
            while (inside < picture.height() && qAlpha(picture.pixel(picture.width() / 2, inside)) == 0)
                ++inside;
            const QRgb frame = picture.pixel(picture.width() / 2, inside);
            while (inside < picture.height() && picture.pixel(picture.width() / 2, inside) == frame)
                ++inside;
            QVERIFY2(text.top() >= onPicture.top() + inside + 3, qPrintable(QString("%1: %2").arg(name).arg(inside)));
        }
    }

    // The other dials and symbols were enabled from the start; one that
    // something disabled comes back, the engine speed with its unit.
    void disabledPartsComeBack()
    {
        auto *rpmUnit = part<QLabel>("rpmUnitLabel");
        for (auto name : {"rpmButton", "mileageButton", "remainButton"})
            part(name)->setEnabled(false);
        rpmUnit->setText("stale");
        dashboard->refresh();
        for (auto name : {"rpmButton", "mileageButton", "remainButton"})
            QVERIFY(part(name)->isEnabled());
        QCOMPARE(rpmUnit->text(), QString("RPM"));
    }

    // Where a finger lands: the six buttons, the distance and fuel texts
    // counting as their symbols, nothing over free space.
    void pressAreas()
    {
        struct Case { const char *at; const char *answer; };
        const Case cases[] = {
            {"temperatureButton", "temperatureButton"}, {"voltageButton", "voltageButton"},
            {"speedButton", "speedButton"}, {"speedUnitLabel", "speedButton"},
            {"rpmButton", "rpmButton"}, {"mileageButton", "mileageButton"},
            {"mileageLabel", "mileageButton"}, {"mileageUnitLabel", "mileageButton"},
            {"remainButton", "remainButton"}, {"remainLabel", "remainButton"},
            {"remainUnitLabel", "remainButton"}, {"carImage", nullptr},
        };
        for (Case const &c : cases) {
            QWidget *answer = dashboard->getPressWidgetArea(centreOf(c.at));
            QCOMPARE(answer ? answer->objectName() : QString(), QString(c.answer ? c.answer : ""));
        }
        QCOMPARE(dashboard->getPressWidgetArea(QPoint(2, 2)), nullptr);
        QCOMPARE(dashboard->getPressWidgetArea(QPoint(-5, 100)), nullptr);
        // The plates sit over the dials' corners; a point in both is the plate's.
        const QRect plate = part("temperatureButton")->geometry();
        const QRect dial = part("speedButton")->geometry();
        if (plate.intersects(dial)) {
            const QPoint both = plate.intersected(dial).center();
            QCOMPARE(dashboard->getPressWidgetArea(dashboard->findChild<QWidget *>("cluster")->mapTo(dashboard, both)),
                     part("temperatureButton"));
        }
    }

    // The layout: pictures at their own sizes, the dials at the sides, the
    // plates above, the road between the dials, distance and fuel below.
    void layout()
    {
        auto geometry = [&](const char *name) {
            QWidget *widget = dashboard->findChild<QWidget *>(name);
            return QRect(widget->mapTo(dashboard, QPoint()), widget->size());
        };
        QCOMPARE(geometry("temperatureButton").size(), QSize(180, 56));
        QCOMPARE(geometry("speedButton").size(), QSize(280, 280));
        QCOMPARE(geometry("carImage").size(), QSize(420, 200));
        QVERIFY(dashboard->rect().contains(geometry("speedButton")));
        QVERIFY(dashboard->rect().contains(geometry("rpmButton")));
        QVERIFY(geometry("speedButton").right() < geometry("carImage").center().x());
        QVERIFY(geometry("rpmButton").left() > geometry("carImage").center().x());
        QCOMPARE(geometry("temperatureButton").top(), geometry("voltageButton").top());
        QVERIFY(geometry("temperatureButton").bottom() < geometry("carImage").top());
        QVERIFY(qAbs(geometry("carImage").center().x() - dashboard->width() / 2) <= 2);
        QVERIFY(geometry("mileageButton").top() >= geometry("carImage").bottom());
        QVERIFY(geometry("mileageButton").right() < geometry("mileageLabel").left());
        QVERIFY(geometry("remainButton").left() > geometry("mileageUnitLabel").right());
        // The unit lies in the lower half of its dial.
        QVERIFY(geometry("speedButton").contains(geometry("speedUnitLabel")));
        QVERIFY(geometry("speedUnitLabel").top() > geometry("speedButton").center().y());
    }

    // A tap on a disabled plate explains itself, on an enabled one clears
    // the message. A release elsewhere than the press, and a tap on free
    // space, do nothing. Every press stays with the dashboard.
    void taps()
    {
        Body body;
        body.temperatureUnit = -1;
        body.store();
        dashboard->refresh();

        tap(centreOf("temperatureButton"));
        QVERIFY(HostSim::messageShowing());
        QCOMPARE(HostSim::lastMessage(), Unsupported);

        tap(centreOf("voltageButton"), centreOf("speedButton"));
        QVERIFY(HostSim::messageShowing());
        tap(QPoint(2, 2));
        QVERIFY(HostSim::messageShowing());
        tap(centreOf("carImage"));
        QVERIFY(HostSim::messageShowing());

        tap(centreOf("remainUnitLabel"), centreOf("remainButton"));
        QVERIFY(!HostSim::messageShowing());

        tap(centreOf("speedUnitLabel"), centreOf("temperatureButton"));
        QVERIFY(!HostSim::messageShowing());
        tap(centreOf("temperatureButton"), QPoint(2, 2));
        QVERIFY(!HostSim::messageShowing());
        QCOMPARE(window->presses, 0);
    }

    // Keys and focus stop at the dashboard.
    void keysAndFocusStayHere()
    {
        for (int key : {0x1100041, 0x110003F, 0x140000B, 0x110002A, int(Qt::Key_A)}) {
            QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(dashboard, &event);
        }
        QVERIFY(window->keys.isEmpty());
        dashboard->setData(QVariant(5));
        dashboard->setFocus();
        QCOMPARE(text("speedButton"), QString("0.0"));
    }

    // Without a body record the dashboard keeps what it shows.
    void noRecord()
    {
        HostSim::setRecordAvailable(HostSim::CarbodyRecord, false);
        dashboard->refresh();
        QCOMPARE(text("voltageButton"), QString("0V"));
    }
};

QTEST_MAIN(TestDashboard)
#include "tst_dashboard.moc"
