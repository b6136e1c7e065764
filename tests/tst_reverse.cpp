// The reverse seam, through the plug-in's interface: the reverse plug-in's
// view is made by reverse, gets radar and guide line data only while the car
// reverses, and is destroyed when reverse ends. The sample reverse plug-in
// shows what it was given through its properties and its picture.

#include "hostsim.h"
#include "pluginroot.h"
#include "radardata.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QtTest>

using namespace PluginRoot;

namespace {

// The coordinator's debug lines, with the function that wrote them.
QStringList coordinatorLines;
QtMessageHandler previousHandler = nullptr;

void captureMessages(QtMsgType type, QMessageLogContext const &context, QString const &message)
{
    if (type == QtDebugMsg && message.contains("[DialogView]"))
        coordinatorLines << message << QString::fromLatin1(context.function);
    else
        previousHandler(type, context, message);
}

QVariant distances(std::initializer_list<int> list)
{
    QVariantList result;
    for (int value : list)
        result << value;
    return result;
}

// Whether a pixel close to the colour changed between the two pictures.
bool changedTo(QImage const &before, QImage const &after, QColor const &colour)
{
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x) {
            const QColor c = after.pixelColor(x, y);
            if (before.pixel(x, y) != after.pixel(x, y) && qAbs(c.red() - colour.red()) < 24
                    && qAbs(c.green() - colour.green()) < 24 && qAbs(c.blue() - colour.blue()) < 24)
                return true;
        }
    }
    return false;
}

} // namespace

class TestReverse : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY2(loader().load(), qPrintable(loader().errorString()));
        HostSim::screen()->show();
        previousHandler = qInstallMessageHandler(captureMessages);
    }
    void init()
    {
        HostSim::reset();
        HostSim::setReversePluginFile(QString());
        restart();
        car = root();
        HostSim::setProtocolId(28);
        coordinatorLines.clear();
    }
    void cleanup() { restart(); }

    void viewLife();
    void radarDelivery_data();
    void radarDelivery();
    void guideLines_data();
    void guideLines();
    void stateGivenToTheView();
    void noReversePlugin();
    void pluginOfAnotherInterface();
    void sampleDraws();

private:
    QWidget *reverseView() const { return overlay("reverseView"); }

    CarControlInterface *car = nullptr;
};

void TestReverse::viewLife()
{
    car->setReverse(true);
    QPointer<QWidget> first = reverseView();
    QCOMPARE(first->metaObject()->className(), "SampleReverseView");
    QVERIFY(first->isVisible());
    QVERIFY(first->property("initialized").toBool());
    QVERIFY(first->property("radarEnabled").toBool());
    QCOMPARE(first->geometry(), dialogView()->rect());
    // A second start of reverse changes nothing.
    car->setReverse(true);
    QCOMPARE(reverseView(), first.data());

    // The end of reverse closes the view at once and destroys it later.
    car->setReverse(false);
    QVERIFY(!first->isVisible() && !dialogView()->isVisible());
    flushDeletes();
    QVERIFY(!first && !reverseView());
    car->onRadarDataChanged();
    car->onTrajectoryDataChanged(1, 10, true);
    QVERIFY(!reverseView());

    // The next reverse gets a fresh view, through the plug-in again.
    HostSim::radarData()->distances[0] = 4;
    car->setReverse(true);
    QVERIFY(reverseView()->isVisible());
    QCOMPARE(reverseView()->property("radarValues"), distances({0, 0, 0, 0, 0, 0, 0, 0}));
    car->onRadarDataChanged();
    QCOMPARE(reverseView()->property("radarValues"), distances({4, 0, 0, 0, 0, 0, 0, 0}));
}

void TestReverse::radarDelivery_data()
{
    QTest::addColumn<bool>("asVariant");
    QTest::newRow("record") << false;
    QTest::newRow("variant") << true;
}

// The scale and the displayed group reach the view; the second group never
// does. A default record delivers scale 10 and no obstacle.
void TestReverse::radarDelivery()
{
    QFETCH(bool, asVariant);
    car->setReverse(true);
    QWidget *view = reverseView();
    auto deliver = [&](RadarData const &radar) {
        *HostSim::radarData() = radar;
        if (asVariant)
            car->onRadarDataChanged(QVariant::fromValue(radar));
        else
            car->onRadarDataChanged();
    };

    RadarData radar;
    radar.scale = 16;
    for (int i = 0; i < RadarData::DistanceCount; ++i) {
        radar.distances[i] = quint8(i + 1);
        radar.secondDistances[i] = quint8(200 + i);
    }
    deliver(radar);
    QCOMPARE(view->property("radarScale").toInt(), 16);
    QCOMPARE(view->property("radarValues"), distances({1, 2, 3, 4, 5, 6, 7, 8}));
    deliver(RadarData());
    QCOMPARE(view->property("radarScale").toInt(), 10);
    QCOMPARE(view->property("radarValues"), distances({0, 0, 0, 0, 0, 0, 0, 0}));

    // No record, or a variant of another kind: nothing is delivered, and
    // the coordinator stays up for the reverse.
    deliver(radar);
    HostSim::setRecordAvailable(HostSim::RadarRecord, false);
    car->onRadarDataChanged();
    car->onRadarDataChanged(QVariant(42));
    car->onRadarDataChanged(QVariant());
    view->hide();
    car->onRadarDataChanged(QVariant(QStringLiteral("radar")));
    QCOMPARE(view->property("radarValues"), distances({1, 2, 3, 4, 5, 6, 7, 8}));
    QCOMPARE(reverseView(), view);
    QVERIFY(dialogView()->isVisible());
}

void TestReverse::guideLines_data()
{
    QTest::addColumn<bool>("hadLine");
    QTest::addColumn<bool>("showLine");
    QTest::addColumn<bool>("viewFirst");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("delivered");

    QTest::newRow("reversing") << true << true << true << true << true;
    // Once a view exists, the visible flag has no say.
    QTest::newRow("not visible, view there") << true << true << true << false << true;
    QTest::newRow("car without lines") << false << true << true << true << false;
    QTest::newRow("lines switched off") << true << false << true << true << false;
    // A view lost earlier is made again for a visible line, not for an
    // invisible one.
    QTest::newRow("visible, no view") << true << true << false << true << true;
    QTest::newRow("not visible, no view") << true << true << false << false << false;
}

void TestReverse::guideLines()
{
    QFETCH(bool, hadLine);
    QFETCH(bool, showLine);
    QFETCH(bool, viewFirst);
    QFETCH(bool, visible);
    QFETCH(bool, delivered);

    HostSim::setHadReverseLine(hadLine);
    HostSim::setShowReverseLine(showLine);
    if (!viewFirst) {
        HostSim::setReversePluginFile("/nonexistent/libreverse.so");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("reverse plug-in"));
    }
    car->setReverse(true);
    QCOMPARE(reverseView() != nullptr, viewFirst);
    if (viewFirst)
        reverseView()->hide();
    HostSim::setReversePluginFile(QString());

    car->onTrajectoryDataChanged(-12, 30, visible);
    QVERIFY(dialogView()->isVisible());
    QWidget *view = reverseView();
    QCOMPARE(view != nullptr, viewFirst || delivered);
    if (view) {
        QCOMPARE(view->property("trajectoryRange").toInt(), delivered ? 30 : 0);
        QCOMPARE(view->property("trajectoryValue").toInt(), delivered ? -12 : 0);
        QCOMPARE(shown(view), delivered);
    }
}

// The camera state and the drive side reach the view while it exists; the
// camera state is not kept for a later view, and the drive side comes with
// each delivery of data.
void TestReverse::stateGivenToTheView()
{
    HostSim::setDisableRadar(true);
    HostSim::setRightDriver(true);
    car->setReverse(true);
    QPointer<QWidget> view = reverseView();
    QVERIFY(!view->property("radarEnabled").toBool());
    QVERIFY(!view->property("rightDriver").toBool());
    car->setReverseSignalState(true);
    car->onTrajectoryDataChanged(0, 10, true);
    QVERIFY(view->property("signalPresent").toBool());
    QVERIFY(view->property("rightDriver").toBool());

    car->setReverse(false);
    flushDeletes();
    QVERIFY(!view);
    car->setReverseSignalState(true);
    car->setReverse(true);
    QVERIFY(!reverseView()->property("signalPresent").toBool());
}

// Without a reverse plug-in the coordinator says so in its log, stays empty
// and visible while reversing, and tries again with each radar notice.
void TestReverse::noReversePlugin()
{
    QTemporaryDir empty;
    const QByteArray pluginDir = qgetenv("CARCONTROL_PLUGIN_DIR");
    qputenv("CARCONTROL_PLUGIN_DIR", empty.path().toLocal8Bit());
    HostSim::setReversePluginFile(QString());
    car->setReverse(true);
    car->onRadarDataChanged();
    const QString line =
        " [QT] [DialogView] func: createReverseView line: 150 createReverseView get reverseinterface fail";
    const QString function = "void DialogView::createReverseView()";
    QCOMPARE(coordinatorLines, (QStringList{line, function, line, function}));
    QVERIFY(!reverseView());
    QVERIFY(dialogView()->isVisible());

    // The plug-in is back: a radar notice makes the view, which it doesn't
    // show, and delivers.
    qputenv("CARCONTROL_PLUGIN_DIR", pluginDir);
    HostSim::setReversePluginFile(QString());
    HostSim::radarData()->distances[5] = 2;
    car->onRadarDataChanged();
    QVERIFY(reverseView()->isHidden());
    QCOMPARE(reverseView()->property("radarValues"), distances({0, 0, 0, 0, 0, 2, 0, 0}));
    QVERIFY(dialogView()->isVisible());
    QCOMPARE(coordinatorLines.size(), 4);
}

// The car control plug-in offers no reverse interface: no view, no log line,
// and the object, its root, is left alone.
void TestReverse::pluginOfAnotherInterface()
{
    HostSim::setReversePluginFile(file());
    car->setReverse(true);
    car->onRadarDataChanged();
    QVERIFY(!reverseView());
    QVERIFY(coordinatorLines.isEmpty());
    QVERIFY(dialogView()->isVisible());
    QCOMPARE(root(), car);
}

// A dark camera placeholder, radar zones coloured by distance on the right,
// and guide lines that follow the steering.
void TestReverse::sampleDraws()
{
    car->setReverse(true);
    QWidget *view = reverseView();
    const QImage empty = view->grab().toImage();
    QVERIFY(empty.pixelColor(2, 2).lightness() < 70);

    const QColor red(230, 40, 40), green(60, 200, 90), yellow(240, 210, 40);
    HostSim::radarData()->distances[0] = 1;
    car->onRadarDataChanged();
    QImage now = view->grab().toImage();
    QVERIFY(changedTo(empty, now, red) && !changedTo(empty, now, green));
    const int panel = view->width() * 3 / 4;
    QCOMPARE(now.copy(0, 0, panel, now.height()), empty.copy(0, 0, panel, empty.height()));
    HostSim::radarData()->distances[0] = 9;
    car->onRadarDataChanged();
    now = view->grab().toImage();
    QVERIFY(changedTo(empty, now, green) && !changedTo(empty, now, red));

    HostSim::radarData()->distances[0] = 0;
    car->onRadarDataChanged();
    QCOMPARE(view->grab().toImage(), empty);
    car->onTrajectoryDataChanged(-30, 30, true);
    const QImage left = view->grab().toImage();
    QVERIFY(changedTo(empty, left, yellow));
    car->onTrajectoryDataChanged(30, 30, true);
    QVERIFY(view->grab().toImage() != left);
}

QTEST_MAIN(TestReverse)
#include "tst_reverse.moc"
