#ifndef HOSTSIM_H
#define HOSTSIM_H

// The desktop host's own controls: what the head unit's closed libraries
// keep inside, made settable and readable here so that the simulator, the
// tools and the tests can play the car, the decoder box and the user, and see
// what the plug-in did. Only desktop code includes this header; the plug-in
// sees the head unit's interfaces in host/ alone.

#include "databuffer.h"

#include <QByteArray>
#include <QDateTime>
#include <QTime>
#include <QList>
#include <QPair>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVariant>

class AirData;
class BaseBar;
class CarbodyData;
class CardoorData;
class QObject;
class QWidget;
class RadarData;

namespace HostSim {

// --- The screen -----------------------------------------------------------

// The head unit's screen: a top-level widget with the system bar at the top
// and the widgets of the four UI levels over the whole of it, level 3
// uppermost. A level widget shows itself while one of its children is shown.
// Created on first use; shown by whoever wants to see it.
QWidget *screen();
// 1024x600 unless set; set it before the screen is first used.
void setScreenSize(QSize const &size);
QSize screenSize();
// The height of the system bar and of the base bar of a full screen.
int systemBarHeight();
int baseBarHeight();

// --- Vehicle data ---------------------------------------------------------

void setProtocolId(int id);

// The data buffer of a protocol, as the plug-in sees it.
DataBuffer buffer(int id);
// The size of every data buffer, in bytes.
int bufferSize();

// The live records that CanObj hands out.
AirData *airData();
CardoorData *cardoorData();
CarbodyData *carbodyData();
RadarData *radarData();

// A record can be switched off, so that CanObj's getter answers null.
enum Record { AirRecord, CardoorRecord, CarbodyRecord, RadarRecord };
void setRecordAvailable(Record record, bool available);

void setRightDriver(bool right);
void setShowReverseLine(bool show);
void setHadReverseLine(bool had);
void setDisableRadar(bool disable);

// The "canbus" module's signal object: emits dataChanged() and the climate
// command signals.
QObject *canbusSignals();
// The module reports that data buffers or records changed.
void notifyDataChanged();

// --- What the plug-in sent ------------------------------------------------

// What the host records of the plug-in's calls (frames, climate commands,
// passed keys, opened activities) is kept in full, up to the newest
// MaxKeptRecords of each kind in a long run.
const int MaxKeptRecords = 10000;

// The frames sent to the decoder box, oldest first.
QList<QByteArray> sentFrames();
void clearSentFrames();

// Climate commands handed to BaseControl::setCanbusStateToCanbus, as
// (key, value), oldest first.
QList<QPair<QString, QString> > climateCommands();
void clearClimateCommands();

// Keys passed on to BaseControl, as key codes of presses, oldest first.
QList<int> passedKeys();
void clearPassedKeys();
int screensaverRequests();

// Activities that the plug-in opened through ActivityManager, oldest first.
QStringList openedActivities();

// --- Services -------------------------------------------------------------

// The wallpaper that BaseControl hands out; a null pixmap means none (the
// getter then answers null).
void setWallpaper(QPixmap const &wallpaper);

// The message that TipDialog showed last, and whether one is on the screen.
QString lastMessage();
bool messageShowing();

// DataSaveControl keeps its values in an ini file in this directory. The
// environment variable CARCONTROL_STORAGE_DIR gives the default; without it,
// a folder in the system's temporary directory.
void setStorageDirectory(QString const &path);
QString storageDirectory();
QVariant savedUserData(QString const &key);
void setSetting(QString const &key, QVariant const &value, QString const &group = QString());

// The head unit's clock follows the system clock, shifted so that it reads
// the given time now. An invalid time returns it to the system clock.
void setDateTime(QDateTime const &now);
// A clock that stands still at the given time of day, for pictures that two
// runs must give alike; an invalid time sets it going again. It belongs to
// the run, not to the car: reset() leaves it as it is.
void setFixedClock(QTime const &time);

// How often the touch sound played.
int touchSounds();

// How many picture files the host's picture widgets (CustomImageButton,
// CustomImageWidget) read since the last reset, and those of them that gave
// no picture (missing or unreadable), by path.
int imageFileReads();
QStringList unreadImageFiles();
void resetImageFileReads();

// The reverse plug-in that ThemeManager loads. Without a file set, the first
// plug-in with the interface "reversetheme/0.1" in the directory named by the
// environment variable CARCONTROL_PLUGIN_DIR.
void setReversePluginFile(QString const &file);

// --- The base bar ---------------------------------------------------------

// Presses a button of a bar, as a finger would: "back", "home", or
// "back_no_quit", which no button of the bar offers.
void pressBarButton(BaseBar *bar, QString const &id);
// The bar created last that still exists, or null.
BaseBar *lastBaseBar();

// --- Tests ----------------------------------------------------------------

// Back to the state of a fresh start: protocol 0, zeroed buffers, fresh
// records, all logs empty, no message, no wallpaper, the system clock.
void reset();

} // namespace HostSim

#endif // HOSTSIM_H
