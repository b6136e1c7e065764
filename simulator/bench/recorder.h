#ifndef RECORDER_H
#define RECORDER_H

// Writes, as a person acts, a scenario that replays what they did. It
// watches the head unit's screen for taps, drags, long presses and keys and
// names them as the scenario language does (a title, a zone of a row, a
// button of the bar, a button by its text, an entry, a widget by name, else
// a point); it watches the root's calls and the "canbus" module's
// dataChanged() and writes first what changed in the car's data since the
// last action. The commands that a scenario runner executes are written as
// they stand, except input, which comes from its events, and expectations,
// which the recorder writes itself: after each action the frames it sent
// and what the screen then shows; waits where frames or the box's answers
// came between two actions. Input it can't express becomes a comment.

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QStringList>

class SimulatorHost;
class QWidget;

namespace Scenario {
struct Command;
}

class Recorder : public QObject
{
    Q_OBJECT
public:
    explicit Recorder(SimulatorHost &host, QObject *parent = nullptr);
    ~Recorder() override;

    // Starts writing the scenario into file: first what it takes to bring a
    // fresh host to the car's state of now. False, with the reason in
    // *error, when the file can't be written.
    bool start(QString const &file, QString *error);
    // Writes what is still pending and closes the file.
    void stop();
    bool isRecording() const;
    QString file() const;
    // The lines written so far.
    QStringList lines() const;

signals:
    void lineWritten(QString const &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void onDataChanged();

private:
    // What a fresh host holds and what the car's data held after the last
    // action: the diff between them and now is what a person changed.
    struct State
    {
        int protocol = 0;
        QHash<int, QByteArray> buffers;
        QByteArray air;
        QStringList airTexts;
        qint32 airType = 0;
        QByteArray door, body, radar;
        QList<bool> flags;
        bool wallpaper = false;
    };
    static State fresh();
    State now() const;

    void write(QString const &line);
    void write(QStringList const &lines);
    void writeChanges(bool preamble = false);
    void writeScreen();
    void commandStarted(Scenario::Command const &command);
    void commandFinished(Scenario::Command const &command);
    void rootCalled(QString const &operation, QVariantList const &args);
    // Before an action: the wait and the frames since the last one.
    void flush();
    // After an action: the frames it sent and what the screen shows.
    void finish();
    // expect frame for each frame sent since the last, expect command for
    // each climate command.
    void writeFrames();
    void finishLater();
    bool onScreen(QWidget *widget) const;
    void pressed(QWidget *widget, QPoint const &local);
    void released(QWidget *widget, QPoint const &local);
    // A press whose release never came (the press took its widget away)
    // was a tap.
    void endPress();
    // What a tap at the point of the screen lands on, as a scenario names it.
    QString tapAt(QWidget *widget, QPoint const &local);

    SimulatorHost &m_host;
    QFile m_file;
    QStringList m_lines;
    bool m_recording = false;
    State m_state;
    QElapsedTimer m_clock;
    // Frames sent since the last action was written out, and the climate
    // commands written out so far.
    QList<QByteArray> m_frames;
    int m_commandsSeen = 0;
    qint64 m_actionEnd = 0;
    qint64 m_lastEvent = -1;
    // A scenario command is running; its input comes through the events.
    int m_commandDepth = 0;
    bool m_finishPending = false;
    bool m_callPending = false;
    bool m_inputAction = false;
    int m_touchedRow = -1;
    // The press that a release completes, and what it landed on, named
    // before the press changed the screen.
    bool m_pressActive = false;
    QPointer<QWidget> m_pressWidget;
    QString m_pressTap;
    int m_pressRow = -1;
    QPoint m_pressScreen;
    qint64 m_pressMs = 0;
    bool m_keyDown = false;
};

#endif // RECORDER_H
