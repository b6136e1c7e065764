#ifndef MAINWINDOW_H
#define MAINWINDOW_H

// The simulator's window: the head unit's screen at its real size with the
// unit's hardware keys under it, and beside it the control panel that plays
// the car, the decoder box and the user, a line that runs any scenario
// command, and the logs of what the plug-in sent.

#include "scenariorunner.h"

#include <QMainWindow>

class BodyPanel;
class CarPanel;
class ClimateEditor;
class QLineEdit;
class ReversePanel;
class SimulatorHost;

class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    // zoom: the head unit's screen in per cent of its real size; below 100
    // the screen is drawn scaled, and taps and keys reach it all the same.
    explicit MainWindow(SimulatorHost &host, int zoom = 100, QWidget *parent = nullptr);
    // The screen stays the host's: the window gives it back.
    ~MainWindow() override;

    // The largest zoom, in steps of 5 from 100 down to 50, at which the
    // window fits a desktop of the given size.
    static int fittingZoom(QSize const &desktop);
    int zoom() const;
    // Takes the height of a desktop whose free area is available, less a
    // title bar's worth, so that the panels and logs get the room the
    // screen leaves; never wider than the desktop.
    void fitDesktop(QSize const &available);

    // Selects the protocol; with data, the demo car's data or the
    // catalogue's sample data come first, and the Car panel gives sample
    // data to the protocols picked later.
    void startDemoCar(int protocolId, bool withData = true);
    // Runs a scenario in the window; the result goes to the status bar and
    // to standard error. Returns the scenario's exit status.
    int runScenario(Scenario::Script const &script);
    // Saves the whole window as PNG. False, with the path and the reason in
    // *error, when the file can't be written.
    bool saveWindow(QString const &file, QString *error);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QWidget *makeScreen();
    QWidget *makeKeys();
    QWidget *makeCommandLine();
    void runCommandLine();
    void showStatus(QString const &text, bool failed);
    // The panels show the host's data as it is after a scenario or command.
    void reloadPanels();

    SimulatorHost &m_host;
    Scenario::Runner m_runner;
    int m_zoom;
    QWidget *m_screenFrame = nullptr;
    CarPanel *m_car = nullptr;
    ClimateEditor *m_climate = nullptr;
    BodyPanel *m_body = nullptr;
    ReversePanel *m_reverse = nullptr;
    QLineEdit *m_command = nullptr;
};

#endif // MAINWINDOW_H
