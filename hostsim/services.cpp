#include "basecontrol.h"
#include "datasavecontrol.h"
#include "datetimectrl.h"
#include "keysound.h"
#include "tipdialog.h"

#include "hoststate.h"

#include <QDir>
#include <QKeyEvent>
#include <QPluginLoader>
#include <QSettings>
#include <QStandardPaths>
#include <cstring>

namespace HostSim {

ServiceState &services()
{
    static ServiceState state;
    return state;
}

QList<QPair<QString, QString> > climateCommands() { return services().climateCommands; }
void clearClimateCommands() { services().climateCommands.clear(); }
QList<int> passedKeys() { return services().passedKeys; }
void clearPassedKeys() { services().passedKeys.clear(); }
int screensaverRequests() { return services().screensaverRequests; }

void setWallpaper(QPixmap const &wallpaper) { services().wallpaper = wallpaper; }

namespace {

QString lastMessageText;

QString &storageDirectorySetting()
{
    static QString path = [] {
        const QString fromEnvironment = qEnvironmentVariable("CARCONTROL_STORAGE_DIR");
        return fromEnvironment.isEmpty() ? QDir::temp().filePath(QStringLiteral("carcontrol-host"))
                                         : fromEnvironment;
    }();
    return path;
}

// The store of DataSaveControl: user data under "user/", settings under
// "settings/<group>/".
QSettings store()
{
    return QSettings(QDir(storageDirectorySetting()).filePath(QStringLiteral("headunit.ini")),
                     QSettings::IniFormat);
}

QString userKey(QString const &key) { return QStringLiteral("user/") + key; }

QString settingKey(QString const &key, QString const &group)
{
    return QStringLiteral("settings/%1/%2")
        .arg(group.isEmpty() ? QStringLiteral("general") : group, key);
}

} // namespace

QString lastMessage() { return lastMessageText; }

void setStorageDirectory(QString const &path) { storageDirectorySetting() = path; }
QString storageDirectory() { return storageDirectorySetting(); }

QVariant savedUserData(QString const &key) { return store().value(userKey(key)); }

void setSetting(QString const &key, QVariant const &value, QString const &group)
{
    DataSaveControl::saveSettingData(key, value, group);
}

namespace {
QTime fixedClock;
} // namespace

void setFixedClock(QTime const &time)
{
    fixedClock = time;
}

void setDateTime(QDateTime const &now)
{
    services().clockOffsetMs = now.isValid()
            ? QDateTime::currentDateTime().msecsTo(now) : 0;
}

int touchSounds() { return services().touchSounds; }

void reset()
{
    VehicleState &car = vehicle();
    car.protocolId = 0;
    for (unsigned char *buffer : qAsConst(car.buffers))
        std::memset(buffer, 0, BufferSize);
    car.air = AirData();
    car.door = CardoorData();
    car.body = CarbodyData();
    car.radar = RadarData();
    std::fill(std::begin(car.recordAvailable), std::end(car.recordAvailable), true);
    car.rightDriver = false;
    car.showReverseLine = true;
    car.hadReverseLine = true;
    car.disableRadar = false;
    car.frames.clear();

    ServiceState &host = services();
    host.climateCommands.clear();
    host.passedKeys.clear();
    host.screensaverRequests = 0;
    host.activities.clear();
    host.wallpaper = QPixmap();
    host.clockOffsetMs = 0;
    host.touchSounds = 0;
    resetImageFileReads();
    lastMessageText.clear();
    hideHostMessage();
}

} // namespace HostSim

using HostSim::services;

// --- BaseControl ----------------------------------------------------------

BaseControl::BaseControl() = default;

BaseControl *BaseControl::getInstance()
{
    static BaseControl control;
    return &control;
}

void BaseControl::keyPressEvent(QKeyEvent *event)
{
    HostSim::keepRecord(services().passedKeys, event->key());
}

void BaseControl::keyReleaseEvent(QKeyEvent *)
{
}

QPixmap const *BaseControl::getBackgroundPixmap() const
{
    return services().wallpaper.isNull() ? nullptr : &services().wallpaper;
}

void BaseControl::setCanbusStateToCanbus(QString const &key, QString const &value)
{
    HostSim::keepRecord(services().climateCommands, qMakePair(key, value));
}

void BaseControl::showScreensaverview(bool)
{
    ++services().screensaverRequests;
}

// --- TipDialog ------------------------------------------------------------

void TipDialog::showMessage(QString const &text, int, bool)
{
    HostSim::lastMessageText = text;
    HostSim::showHostMessage(text);
}

void TipDialog::hideMessage()
{
    HostSim::hideHostMessage();
}

// --- DataSaveControl ------------------------------------------------------

void DataSaveControl::saveUserData(QString const &key, QVariant const &value)
{
    HostSim::store().setValue(HostSim::userKey(key), value);
}

void DataSaveControl::saveSettingData(QString const &key, QVariant const &value,
                                      QString const &group)
{
    HostSim::store().setValue(HostSim::settingKey(key, group), value);
}

QVariant DataSaveControl::readSettingData(QString const &key, QVariant const &defaultValue,
                                          QString const &group)
{
    return HostSim::store().value(HostSim::settingKey(key, group), defaultValue);
}

// --- DateTimeCtrl ---------------------------------------------------------

DateTimeCtrl::DateTimeCtrl() = default;

DateTimeCtrl *DateTimeCtrl::getInstance()
{
    static DateTimeCtrl clock;
    return &clock;
}

void DateTimeCtrl::getCurrentDateTime(int &year, int &month, int &day,
                                      int &hour, int &minute, int &second) const
{
    QDateTime now = QDateTime::currentDateTime().addMSecs(services().clockOffsetMs);
    if (HostSim::fixedClock.isValid())
        now.setTime(HostSim::fixedClock);
    year = now.date().year();
    month = now.date().month();
    day = now.date().day();
    hour = now.time().hour();
    minute = now.time().minute();
    second = now.time().second();
}

// --- KeySound -------------------------------------------------------------

void KeySound::playTouchSound()
{
    ++services().touchSounds;
}
