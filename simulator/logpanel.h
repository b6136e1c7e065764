#ifndef LOGPANEL_H
#define LOGPANEL_H

// The window's logs of what the plug-in did: every frame it sent to the
// decoder box (time, bytes in hex, frame family and command), the climate
// commands it gave the head unit, and the debug lines.

#include <QTabWidget>

class QPlainTextEdit;
class QTreeWidget;
class SimulatorHost;

class LogPanel : public QTabWidget
{
    Q_OBJECT
public:
    explicit LogPanel(SimulatorHost &host, QWidget *parent = nullptr);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void appendFrame(qint64 ms, QByteArray const &frame);
    // A line of the decoder box: a frame it couldn't answer.
    void appendBoxLine(qint64 ms, QString const &line);
    // The climate commands and debug lines have no signal: they are looked
    // at a few times a second.
    void poll();
    void clear();

    QTreeWidget *m_frames;
    QTreeWidget *m_commands;
    QPlainTextEdit *m_debug;
    int m_commandsShown = 0;
    qint64 m_linesShown = 0;
};

#endif // LOGPANEL_H
