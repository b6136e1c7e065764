#ifndef SIMULATORHOST_H
#define SIMULATORHOST_H

// The simulator's side of the head unit: it loads the car control plug-in as
// the head unit's framework does, calls its root through
// CarControlInterface, finds the plug-in's views on the desktop host's
// screen, delivers taps and keys to them as real Qt events, and keeps the
// place of whoever reads the frames and climate commands in order. The
// scenario interpreter and the window both work through this class.

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QPair>
#include <QPluginLoader>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

class CarControlInterface;
class QAbstractItemView;
class QStackedWidget;
class QTableView;
class QWidget;

// The head unit's hardware keys, as the key codes of their key events.
namespace HeadUnitKeys {

struct Key
{
    char const *name;
    int code;
    char const *label;   // the text of the window's button; null: no button
};

// The panel's keys (enter, back, arrows, next, previous), then the remote
// control's ("remote-enter" and the like).
QList<Key> const &all();
// The code of a key by its name, or -1.
int code(QString const &name);

} // namespace HeadUnitKeys

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

    // One of the root's seventeen operations: its name and its parameters,
    // one letter each: i int, b bool, s string, v variant; a trailing "?"
    // makes the rest optional. onRadarDataChanged takes "r": nothing, or
    // one variant.
    struct Operation
    {
        char const *name;
        char const *parameters;
    };
    static QList<Operation> const &operations();
    static Operation const *operation(QString const &name);
    // Calls the operation with arguments of the types it names. The root's
    // operations return nothing and report nothing.
    void call(QString const &name, QVariantList const &args = QVariantList());

    // --- Events --------------------------------------------------------------

    // Delivers everything pending, deferred deletions included.
    static void settle();
    // Runs the event loop for ms milliseconds, then settles.
    static void wait(int ms);

    // --- The screen ----------------------------------------------------------

    QWidget *screen() const;
    // The overlay coordinator, or null.
    QWidget *dialogView() const;
    // Of the extended views that exist and aren't hidden, the one opened
    // last; null if none.
    QWidget *extendedView() const;
    // The list of page titles of that view.
    QAbstractItemView *titleList() const;
    QStackedWidget *pageStack() const;
    // The page in front: the current page of the stack while the list of
    // titles isn't showing. Null otherwise.
    QWidget *currentPage() const;
    // The table of rows of the page in front, or null.
    QTableView *pageTable() const;
    // The parts of the screen by the names of the scenario language: list,
    // page, tire, extended, dialog, air, door, reverse; any other name is an
    // objectName (see findWidget()).
    QWidget *part(QString const &name) const;
    // A widget of the screen by objectName: of several, the visible one that
    // lies highest; else any. Null if none.
    QWidget *findWidget(QString const &objectName) const;
    QObject *findObject(QString const &objectName) const;
    // The widget exists and is visible on the screen.
    static bool isShown(QWidget const *widget);
    // The text that a label, a button or a rolling text shows; false for
    // other widgets.
    static bool textOf(QWidget const *widget, QString *text);
    // Whether a button is down (pressed, checked or latched); false for
    // other widgets.
    static bool downStateOf(QWidget const *widget, bool *down);
    // The texts that the visible labels and buttons of the screen show.
    QStringList visibleTexts() const;
    // A picture that stands for the user's wallpaper, of the screen's size.
    static QPixmap wallpaper();

    // --- Input, as a finger and the hardware keys give it ---------------------

    // Press and release to the widget under the point of the screen.
    void tapAt(QPoint const &screenPoint);
    // Press and release to the widget itself, at its centre.
    void tapWidget(QWidget *widget);
    // Press, hold for ms milliseconds, release, at the widget's centre.
    void longPress(QWidget *widget, int ms);
    // Press and release of a key to the focused widget of the screen.
    void key(int code);

    // The taps that aim at an item; false with what was missing.
    bool tapTitle(int index, QString *failure);
    enum Zone { LeftZone, MiddleZone, RightZone };
    bool tapRow(int row, Zone zone, QString *failure);
    bool tapBar(QString const &button, QString *failure);
    // A visible button whose text is text.
    QWidget *findButton(QString const &text) const;

    // --- What the plug-in sent, in order ----------------------------------------

    QList<QByteArray> pendingFrames() const;
    void consumeFrame();
    void dropFrames();
    QList<QPair<QString, QString> > pendingCommands() const;
    void consumeCommand();

    // --- Debug lines ------------------------------------------------------------

    // Keeps every message written from now on; echo: also print the debug
    // lines (warnings and worse are always printed).
    static void captureMessages(bool echo);
    static QStringList messages();

signals:
    // A frame went to the decoder box; ms since the host started.
    void frameSent(qint64 ms, QByteArray frame);
    // The root or its views changed which views exist.
    void viewsChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *focusTarget() const;
    QWidget *viewChild(QWidget *view, char const *name) const;

    QList<QObject *> m_levels;
    QPluginLoader m_loader;
    CarControlInterface *m_root = nullptr;
    QElapsedTimer m_clock;
    // Top-level views in the order they were shown; the last is in front.
    QList<QPointer<QWidget> > m_shownViews;
    QPointer<QWidget> m_lastFocus;
    int m_framesConsumed = 0;
    int m_commandsConsumed = 0;
};

#endif // SIMULATORHOST_H
