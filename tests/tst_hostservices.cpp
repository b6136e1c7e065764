// The desktop host's services: checksums, data buffers, the records of
// CanObj, the framework's modules and UI levels, and the keyed store.

#include "appframework.h"
#include "basecontrol.h"
#include "canobj.h"
#include "datasavecontrol.h"
#include "datetimectrl.h"
#include "hostsim.h"
#include "thememanager.h"
#include "tipdialog.h"

#include <QKeyEvent>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

class TestHostServices : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void checksum_data();
    void checksum();
    void checksumAgainAfterAChange();
    void bufferNumbers();
    void bufferFields();
    void buffersPerProtocol();
    void recordsAndNullSwitches();
    void framesAreLogged();
    void canbusModule();
    void uiLevelsShowWhileTheyHoldAView();
    void screenGeometry();
    void baseControlAndMessages();
    void keyedStorePersists();
    void clockCanBeSet();
    void noReversePlugin();
};

void TestHostServices::init()
{
    HostSim::reset();
}

static QByteArray hex(const char *text)
{
    return QByteArray::fromHex(text);
}

void TestHostServices::checksum_data()
{
    QTest::addColumn<int>("protocol");
    QTest::addColumn<QByteArray>("frame");
    QTest::addColumn<QByteArray>("expected");

    // 0x2E: 0xFF XOR the low byte of the sum of bytes 1 to size-2.
    QTest::newRow("2E treble") << 28 << hex("2EA802010A00") << hex("2EA802010A4A");
    QTest::newRow("2E overflow") << 28 << hex("2EFFFF0300") << hex("2EFFFF03FE");
    QTest::newRow("2E bare") << 28 << hex("2EC602") << hex("2EC639");
    // 0xFD, protocol 67: the 16-bit sum of bytes 1 to size-3, high first.
    QTest::newRow("FD 67") << 67 << hex("FD0501020000") << hex("FD0501020008");
    QTest::newRow("FD 67 carry") << 67 << hex("FDFFFFFF0000") << hex("FDFFFFFF02FD");
    // 0xFD on other protocols: the low byte of the sum of bytes 1 to size-2.
    QTest::newRow("FD 87") << 87 << hex("FD0501020000") << hex("FD0501020008");
    QTest::newRow("FD 87 overflow") << 87 << hex("FD80800100") << hex("FD80800101");
    // Left as they are.
    QTest::newRow("empty") << 28 << QByteArray() << QByteArray();
    QTest::newRow("two bytes") << 28 << hex("2E01") << hex("2E01");
    QTest::newRow("other header") << 28 << hex("AA010203") << hex("AA010203");
}

void TestHostServices::checksum()
{
    QFETCH(int, protocol);
    QFETCH(QByteArray, frame);
    QFETCH(QByteArray, expected);
    HostSim::setProtocolId(protocol);
    CanObj::autoCalculateChecksum(frame);
    QCOMPARE(frame.toHex(' '), expected.toHex(' '));
}

void TestHostServices::checksumAgainAfterAChange()
{
    HostSim::setProtocolId(28);
    QByteArray frame = hex("2EA802010A00");
    CanObj::autoCalculateChecksum(frame);
    frame[4] = 0x0B;
    CanObj::autoCalculateChecksum(frame);
    QCOMPARE(frame, hex("2EA802010B49"));

    HostSim::setProtocolId(67);
    frame = hex("FD0501020000");
    CanObj::autoCalculateChecksum(frame);
    frame[3] = 0x03;
    CanObj::autoCalculateChecksum(frame);
    QCOMPARE(frame, hex("FD0501030009"));
}

void TestHostServices::bufferNumbers()
{
    DataBuffer buffer = HostSim::buffer(28);
    buffer.setByte(0, 0xFE);
    QCOMPARE(buffer.byte(0), quint8(0xFE));
    QCOMPARE(buffer.signedByte(0), qint8(-2));

    // Host order, at odd offsets too.
    buffer.setWord(101, 0xBEEF);
    QCOMPARE(buffer.word(101), quint16(0xBEEF));
    QCOMPARE(buffer.signedWord(101), qint16(-16657));
    quint16 raw;
    memcpy(&raw, buffer.data() + 101, 2);
    QCOMPARE(raw, quint16(0xBEEF));

    buffer.setDword(203, 0x80000001u);
    QCOMPARE(buffer.dword(203), 0x80000001u);
    QCOMPARE(buffer.signedDword(203), qint32(-2147483647));
    QCOMPARE(buffer.byte(202), quint8(0));
    QCOMPARE(buffer.byte(207), quint8(0));
}

void TestHostServices::bufferFields()
{
    DataBuffer buffer = HostSim::buffer(124);
    // A field never written reads as empty.
    QVERIFY(buffer.text(40).isEmpty());
    QVERIFY(buffer.bytes(44).isEmpty());
    QVERIFY(buffer.entries(68).isEmpty());

    buffer.setText(40, QStringLiteral("Track 1"));
    buffer.setBytes(44, QByteArray("\x00\x01\x02", 3));
    buffer.setEntries(68, {DateInfo(1, QStringLiteral("One")), DateInfo(300, QStringLiteral("Two"))});
    QCOMPARE(buffer.text(40), QStringLiteral("Track 1"));
    QCOMPARE(buffer.bytes(44), QByteArray("\x00\x01\x02", 3));
    const QList<DateInfo> entries = buffer.entries(68);
    QCOMPARE(entries.size(), 2);
    QCOMPARE(entries.at(1).number, quint16(300));
    QCOMPARE(entries.at(1).name, QStringLiteral("Two"));

    // Another view of the same memory sees the same values.
    const QByteArray before(reinterpret_cast<char *>(buffer.data() + 40), 4);
    buffer.setText(40, QStringLiteral("Track 2"));
    QCOMPARE(DataBuffer(CanObj::instance()->getDataPointerById(124)).text(40), QStringLiteral("Track 2"));

    // On the head unit's 32-bit build the four bytes are the objects
    // themselves, as the CAN-bus module constructs them: only a field of
    // zeros reads as empty, and other bytes are taken for an object.
    if (sizeof(void *) == 4) {
        QVERIFY(buffer.text(52).isEmpty());
        buffer.setText(52, QStringLiteral("in place"));
        QCOMPARE(reinterpret_cast<QString const *>(buffer.data() + 52)->size(), 8);
        return;
    }

    // On a 64-bit desktop they are a handle: rewriting keeps the field's place.
    QCOMPARE(QByteArray(reinterpret_cast<char *>(buffer.data() + 40), 4), before);

    // A field of one kind doesn't read as another, and any four bytes are
    // safe to read.
    QVERIFY(buffer.bytes(40).isEmpty());
    QVERIFY(buffer.entries(44).isEmpty());
    buffer.setDword(48, 0xFFFFFFFFu);
    QVERIFY(buffer.text(48).isEmpty());
    QVERIFY(buffer.bytes(48).isEmpty());

    // A field overwritten by plain bytes gets a fresh value when written again.
    buffer.setDword(40, 0x7FFFFFF0u);
    buffer.setText(40, QStringLiteral("again"));
    QCOMPARE(buffer.text(40), QStringLiteral("again"));
}

void TestHostServices::buffersPerProtocol()
{
    CanObj *can = CanObj::instance();
    unsigned char *first = can->getDataPointerById(28);
    QVERIFY(first);
    QCOMPARE(can->getDataPointerById(28), first);
    QVERIFY(can->getDataPointerById(30) != first);
    // Every int is an id with a buffer.
    QVERIFY(can->getDataPointerById(-5));
    QVERIFY(can->getDataPointerById(INT_MAX));
    HostSim::buffer(28).setByte(4095, 7);
    QCOMPARE(HostSim::buffer(30).byte(4095), quint8(0));

    // reset() zeroes the buffers and keeps their addresses.
    HostSim::reset();
    QCOMPARE(can->getDataPointerById(28), first);
    QCOMPARE(first[4095], quint8(0));
}

void TestHostServices::recordsAndNullSwitches()
{
    CanObj *can = CanObj::instance();
    QCOMPARE(can->getAirData(), HostSim::airData());
    QCOMPARE(can->getCardoorData(), HostSim::cardoorData());
    QCOMPARE(can->getCarbodyData(), HostSim::carbodyData());
    QCOMPARE(can->getRadarData(), HostSim::radarData());

    HostSim::airData()->setFunction(AirData::Ac, 1);
    QCOMPARE(can->getAirData()->function(AirData::Ac), qint8(1));

    HostSim::setRecordAvailable(HostSim::CardoorRecord, false);
    QVERIFY(!can->getCardoorData());
    QVERIFY(can->getAirData());
    HostSim::setRecordAvailable(HostSim::CardoorRecord, true);
    QCOMPARE(can->getCardoorData(), HostSim::cardoorData());

    QVERIFY(!can->isRightDriver());
    HostSim::setRightDriver(true);
    HostSim::setDisableRadar(true);
    HostSim::setHadReverseLine(false);
    HostSim::setShowReverseLine(false);
    QVERIFY(can->isRightDriver());
    QVERIFY(can->disableRadar());
    QVERIFY(!can->hadReverseLine());
    QVERIFY(!can->isShowReverseLine());

    HostSim::setProtocolId(-3);
    QCOMPARE(CanObj::id(), -3);
}

void TestHostServices::framesAreLogged()
{
    CanObj *can = CanObj::instance();
    QSignalSpy spy(can, &CanObj::sendDataToCan);
    QByteArray frame = hex("2E900251002C");
    emit can->sendDataToCan(frame);
    frame[3] = 0x52;   // the caller may reuse its array at once
    emit can->sendDataToCan(frame);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(HostSim::sentFrames(), QList<QByteArray>({hex("2E900251002C"), hex("2E900252002C")}));
    HostSim::clearSentFrames();
    QVERIFY(HostSim::sentFrames().isEmpty());
}

void TestHostServices::canbusModule()
{
    using namespace zorvappframework;
    QSharedPointer<ModuleManager> manager = ModuleManager::self();
    QVERIFY(manager);
    QVERIFY(!manager->module(QStringLiteral("radio")));
    QSharedPointer<Module> canbus = manager->module(QStringLiteral("canbus"));
    QVERIFY(canbus);
    QObject *moduleSignals = canbus->signalObject();
    QVERIFY(moduleSignals);
    QCOMPARE(moduleSignals, HostSim::canbusSignals());

    // The signal names that the climate panel and the extended view use.
    const char *names[] = {"dataChanged()", "setAuto()", "setinnerLoop()", "SetleftPlus()",
                           "SetleftLess()", "SetrightPlus()", "SetrightLess()", "SetDUAL()",
                           "SetAc()", "SetfrontDefrostLeftL()", "SetrearDefrostLeftL()",
                           "Setsmall()", "SetGale()", "SetSwitch()", "LeftHeatingButton(int)",
                           "RightHeatingButton(int)", "BlowOn(bool)", "MediumBlow(bool)",
                           "BlowDown(bool)"};
    for (const char *name : names)
        QVERIFY2(moduleSignals->metaObject()->indexOfSignal(name) >= 0, name);

    QSignalSpy changed(moduleSignals, SIGNAL(dataChanged()));
    HostSim::notifyDataChanged();
    QCOMPARE(changed.count(), 1);

    QSharedPointer<ActivityManager> activities = ActivityManager::self();
    activities->openActivity(QStringLiteral("home"), 0);
    QCOMPARE(HostSim::openedActivities(), QStringList{QStringLiteral("home")});
}

void TestHostServices::uiLevelsShowWhileTheyHoldAView()
{
    using namespace zorvappframework;
    QWidget *screen = HostSim::screen();
    screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(screen));

    QWidget *level0 = UIManager::getUIHerarchy(UIHerarchyLevel0);
    QWidget *level1 = UIManager::getUIHerarchy(UIHerarchyLevel1);
    QVERIFY(level0 != level1);
    QCOMPARE(level0->parentWidget(), screen);
    QCOMPARE(level0->geometry(), screen->rect());
    QVERIFY(!level0->isVisible());

    auto *view = new QWidget(level0);
    view->setGeometry(UIManager::getMainAreaRect());
    QVERIFY(!level0->isVisible());
    view->show();
    QVERIFY(level0->isVisible());
    QVERIFY(view->isVisible());
    // The upper level lies over the lower one only where it holds a view.
    const QPoint inMainArea = UIManager::getMainAreaRect().center();
    QCOMPARE(screen->childAt(inMainArea), view);
    auto *upper = new QWidget(level1);
    upper->setGeometry(UIManager::getMainAreaRect());
    upper->show();
    QCOMPARE(screen->childAt(inMainArea), upper);

    view->hide();
    QVERIFY(!level0->isVisible());
    view->show();
    QVERIFY(level0->isVisible());
    delete view;
    QVERIFY(!level0->isVisible());
    delete upper;
    QVERIFY(!level1->isVisible());
}

void TestHostServices::screenGeometry()
{
    using namespace zorvappframework;
    QCOMPARE(HostSim::screen()->size(), QSize(1024, 600));
    const QRect bar = UIManager::getSystemBarRect(0, 0);
    const QRect main = UIManager::getMainAreaRect();
    const QRect content = UIManager::getSystemViewRect();
    QCOMPARE(bar.top(), 0);
    QCOMPARE(main.top(), bar.bottom() + 1);
    QCOMPARE(main.bottom(), 599);
    QCOMPARE(main.width(), 1024);
    // The content area lies under a base bar in a view on the main area.
    QCOMPARE(content.top(), HostSim::baseBarHeight());
    QCOMPARE(content.bottom(), main.height() - 1);
}

void TestHostServices::baseControlAndMessages()
{
    BaseControl *control = BaseControl::getInstance();
    QCOMPARE(control, BaseControl::getInstance());
    QVERIFY(!control->getBackgroundPixmap());
    QPixmap wallpaper(8, 8);
    wallpaper.fill(Qt::red);
    HostSim::setWallpaper(wallpaper);
    QVERIFY(control->getBackgroundPixmap());
    QCOMPARE(control->getBackgroundPixmap()->size(), QSize(8, 8));

    control->setCanbusStateToCanbus(QStringLiteral("AirAC"), QStringLiteral("on"));
    control->setCanbusStateToCanbus(QStringLiteral("AirWindSpeedAddSubFront"), QStringLiteral("-1"));
    QCOMPARE(HostSim::climateCommands().size(), 2);
    QCOMPARE(HostSim::climateCommands().at(1),
             qMakePair(QStringLiteral("AirWindSpeedAddSubFront"), QStringLiteral("-1")));

    QKeyEvent key(QEvent::KeyPress, 0x110003D, Qt::NoModifier);
    control->keyPressEvent(&key);
    QCOMPARE(HostSim::passedKeys(), QList<int>{0x110003D});
    control->showScreensaverview(false);
    QCOMPARE(HostSim::screensaverRequests(), 1);

    HostSim::screen()->show();
    QVERIFY(!HostSim::messageShowing());
    TipDialog::showMessage(QStringLiteral("请打先开空调"), 0, false);
    QCOMPARE(HostSim::lastMessage(), QStringLiteral("请打先开空调"));
    QVERIFY(HostSim::messageShowing());
    TipDialog::hideMessage();
    QVERIFY(!HostSim::messageShowing());
    QCOMPARE(HostSim::lastMessage(), QStringLiteral("请打先开空调"));
    // A message goes away by itself.
    TipDialog::showMessage(QStringLiteral("later"), 0, false);
    QTRY_VERIFY_WITH_TIMEOUT(!HostSim::messageShowing(), 10000);
}

void TestHostServices::keyedStorePersists()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    HostSim::setStorageDirectory(dir.path());
    const QString key = QStringLiteral("DoorLeftAndRightInterchangeSwitch");
    QCOMPARE(DataSaveControl::readSettingData(key, false, QString()), QVariant(false));
    HostSim::setSetting(key, true);
    QCOMPARE(DataSaveControl::readSettingData(key, false, QString()).toBool(), true);
    // Settings keep to their group; user data are apart from settings.
    QCOMPARE(DataSaveControl::readSettingData(key, 5, QStringLiteral("other")), QVariant(5));
    DataSaveControl::saveUserData(QStringLiteral("CanbusCAR"), 3);
    QCOMPARE(HostSim::savedUserData(QStringLiteral("CanbusCAR")).toInt(), 3);
    QCOMPARE(DataSaveControl::readSettingData(QStringLiteral("CanbusCAR"), -1, QString()), QVariant(-1));
    DataSaveControl::saveSettingData(QStringLiteral("SteeringWheelButtonType"), 2, QString());
    // On disk: a new store over the same folder reads it back.
    HostSim::setStorageDirectory(dir.path());
    QCOMPARE(DataSaveControl::readSettingData(QStringLiteral("SteeringWheelButtonType"), 0, QString()).toInt(), 2);
}

void TestHostServices::clockCanBeSet()
{
    HostSim::setDateTime(QDateTime(QDate(2030, 2, 3), QTime(21, 45, 10)));
    int year, month, day, hour, minute, second;
    DateTimeCtrl::getInstance()->getCurrentDateTime(year, month, day, hour, minute, second);
    QCOMPARE(year, 2030);
    QCOMPARE(month, 2);
    QCOMPARE(day, 3);
    QCOMPARE(hour, 21);
    QCOMPARE(minute, 45);
    QVERIFY(second >= 10 && second <= 12);
    HostSim::setDateTime(QDateTime());
    DateTimeCtrl::getInstance()->getCurrentDateTime(year, month, day, hour, minute, second);
    QCOMPARE(year, QDate::currentDate().year());
}

void TestHostServices::noReversePlugin()
{
    HostSim::setReversePluginFile(QStringLiteral("/nonexistent/libreverse.so"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("reverse plug-in"));
    QVERIFY(!ThemeManager::getInstance()->getReverseManager()->getThemeInstance());
    HostSim::setReversePluginFile(QString());
}

QTEST_MAIN(TestHostServices)
#include "tst_hostservices.moc"
