#ifndef SIMULATORHOST_H
#define SIMULATORHOST_H

// The simulator's side of the head unit: it loads the car control plug-in as
// the head unit's framework does (by file, checking the interface
// "cantheme/0.1") and calls its root through CarControlInterface alone. It
// holds the screen probe and the user's input, and keeps the place of
// whoever reads the frames and climate commands that the plug-in sent, in
// order. The scenario runner and the window both work through this class.

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPair>
#include <QPixmap>
#include <QPluginLoader>
#include <QString>
#include <QVariantList>

#include "boxlink.h"
#include "decoderbox.h"
#include "scenario.h"
#include "screenprobe.h"
#include "userinput.h"

class CarControlInterface;

class SimulatorHost : public QObject
{
    Q_OBJECT
public:
    explicit SimulatorHost(QObject *parent = nullptr);
    ~SimulatorHost() override;

    // --- The plug-in -------------------------------------------------------

    // The plug-in file that the build makes, and the sample reverse plug-in
    // beside it.
    static QString defaultPluginFile();
    static QString defaultReversePluginFile(QString const &pluginFile);

    // Loads the plug-in by file, checks that it is a "cantheme/0.1" plug-in
    // and takes its root. False with the reason in *error.
    bool load(QString const &pluginFile, QString *error);
    // Ends the root, as an unload would; its views go with it.
    void unload();
    CarControlInterface *root() const;
    QString pluginFile() const;
    // Calls one of the root's operations (RootCalls) with its arguments.
    void call(QString const &operation, QVariantList const &args = QVariantList());

    // --- The screen and the user ----------------------------------------------

    QWidget *screen() const;
    ScreenProbe const &probe() const;
    UserInput &input();
    // A picture that stands for the user's wallpaper, of the screen's size.
    static QPixmap wallpaper();

    // --- What the plug-in sent, in order ----------------------------------------

    QList<QByteArray> pendingFrames() const;
    void consumeFrame();
    void dropFrames();
    QList<QPair<QString, QString> > pendingCommands() const;
    void consumeCommand();
    // ms since the host started.
    qint64 elapsed() const;

    // --- The decoder box ---------------------------------------------------------

    // The exported catalogue that the build writes, unless the environment
    // variable CARCONTROL_CATALOGUE_FILE names another.
    static QString defaultCatalogueFile();
    // The box hears every frame the plug-in sends. Off until switched on.
    DecoderBox &box();
    // Loads the box's catalogue. False, with the reason in *error (also kept
    // as catalogueError()): the box then stays off.
    bool loadCatalogue(QString const &file, QString *error);
    QString catalogueError() const;

    // --- A real decoder box ------------------------------------------------------

    // The link to a real box (the host takes it as its child); none until
    // set, and builds without a serial port have none.
    void setLink(BoxLink *link);
    BoxLink *link() const;
    // Links a real box on the device: the frames the plug-in sends go out to
    // it as well as to the log, and the simulated box is off while it is
    // linked. False, with the device and the reason in *error, when the
    // port can't be opened or there is no link.
    bool openLink(QString const &device, qint32 baudRate, QString *error);
    // Unlinks it; the simulated box is on again if it was before.
    void closeLink();
    // What the real box sent and nobody has taken yet, oldest first; the
    // newest MaxReports are kept.
    static constexpr int MaxReports = 10000;
    QList<FrameSplitter::Piece> pendingReports() const;
    void consumeReports(int count);
    // Hands a report on as if the box had sent it: a saved log replayed.
    void report(FrameSplitter::Piece const &piece);

signals:
    // A frame went to the decoder box; ms since the host started.
    void frameSent(qint64 ms, QByteArray frame);
    // One of the root's operations is about to be called, and returned.
    void aboutToCall(QString const &operation, QVariantList const &args);
    void called(QString const &operation);
    // A scenario runner starts and ends a command (its pending events
    // delivered).
    void commandStarted(Scenario::Command const &command);
    void commandFinished(Scenario::Command const &command);
    // The real box sent something (ms since the host started); the link
    // changed its state (reason: why it was lost).
    void reported(qint64 ms, FrameSplitter::Piece const &piece);
    void linkStateChanged(BoxLink::State state, QString const &reason);

private:
    QPluginLoader m_loader;
    CarControlInterface *m_root = nullptr;
    ScreenProbe m_probe;
    UserInput m_input;
    QElapsedTimer m_clock;
    int m_framesConsumed = 0;
    int m_commandsConsumed = 0;
    DecoderBox m_box;
    QString m_catalogueError = QStringLiteral("no catalogue loaded");
    BoxLink *m_link = nullptr;
    QList<FrameSplitter::Piece> m_reports;
    // The simulated box was on when the real one was linked.
    bool m_boxWasOn = false;
};

#endif // SIMULATORHOST_H
