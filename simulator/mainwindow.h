#ifndef MAINWINDOW_H
#define MAINWINDOW_H

// The simulator's window: the head unit's screen at its real size, and
// beside it the control panel that plays the car, the decoder box and the
// head unit's keys, with the logs of what the plug-in sent.

#include "scenario.h"

#include <QMainWindow>

class ClimateEditor;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTreeWidget;
class SimulatorHost;

class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit MainWindow(SimulatorHost &host, QWidget *parent = nullptr);

    // Selects the protocol; on protocol 28 the demo car's data come first.
    void startDemoCar(int protocolId);
    // Runs a scenario in the window; the result goes to the status bar and
    // to standard error. Returns the scenario's exit status.
    int runScenario(Scenario::Script const &script);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QWidget *makeCarPage();
    QWidget *makeKeys();
    QWidget *makeLogs();
    void selectProtocol(int protocolId);
    // The picker, the family and the title follow the host's protocol.
    void showProtocol(int protocolId);
    void runCommandLine();
    void appendFrame(qint64 ms, QByteArray const &frame);
    void pollLogs();
    void showStatus(QString const &text, bool failed);

    SimulatorHost &m_host;
    Scenario::Runner m_runner;
    QComboBox *m_protocols = nullptr;
    QLabel *m_family = nullptr;
    ClimateEditor *m_climate = nullptr;
    QLineEdit *m_command = nullptr;
    QTreeWidget *m_frames = nullptr;
    QTreeWidget *m_commands = nullptr;
    QPlainTextEdit *m_debug = nullptr;
    int m_shownProtocol = -1;
    int m_commandsShown = 0;
    int m_messagesShown = 0;
};

#endif // MAINWINDOW_H
