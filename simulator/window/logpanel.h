#ifndef LOGPANEL_H
#define LOGPANEL_H

// The window's logs of what the plug-in did: the frame log (every frame it
// sent to the decoder box and every answer of the box: time, direction,
// bytes, frame family and command, meaning), the climate commands it gave
// the head unit, and the debug lines. The frame log can be filtered by
// family, command and text, saved, loaded and replayed into the box; the
// Record button writes what the person does as a scenario.

#include "framelog.h"

#include <QTabWidget>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class Recorder;
class SimulatorHost;

class LogPanel : public QTabWidget
{
    Q_OBJECT
public:
    explicit LogPanel(SimulatorHost &host, QWidget *parent = nullptr);

    FrameLog &frameLog();
    // The frame log into a file; a saved log in place of the frames shown;
    // a saved log's TX frames into the decoder box, which must be on. False
    // with the reason in *error.
    bool saveLog(QString const &file, QString *error);
    bool loadLog(QString const &file, QString *error);
    bool replayLog(QString const &file, QString *error);

    bool startRecording(QString const &file, QString *error);
    void stopRecording();
    bool isRecording() const;

signals:
    // What the panel did, for the window's status bar.
    void message(QString const &text, bool failed);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void fitColumns();
    QWidget *makeFrameTab();
    void appendEntry(FrameLog::Entry const &entry);
    bool accepts(QTreeWidgetItem const *item) const;
    void applyFilter();
    void toggleRecording(bool on);
    // The climate commands and debug lines have no signal: they are looked
    // at a few times a second.
    void poll();
    void clear();

    SimulatorHost &m_host;
    FrameLog m_log;
    Recorder *m_recorder;
    QTreeWidget *m_frames;
    QComboBox *m_family;
    QLineEdit *m_command;
    QLineEdit *m_text;
    QPushButton *m_record;
    QTreeWidget *m_commands;
    QPlainTextEdit *m_debug;
    int m_commandsShown = 0;
    qint64 m_linesShown = 0;
};

#endif // LOGPANEL_H
