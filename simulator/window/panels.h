#ifndef PANELS_H
#define PANELS_H

// The pages of the window's control panel, which play the car and the head
// unit: the vehicle and its screens, the climate record, the doors and the
// body warnings, reverse with radar and guide line. Each writes the host's
// data and calls the root's operation that tells the plug-in, as the head
// unit's framework does when the CAN-bus module reports a change. Each
// page's load() shows the host's data as it is now, for after a scenario
// changed it.

#include <QList>
#include <QPair>
#include <QSet>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QSlider;
class QSpinBox;
class SimulatorHost;

// The protocol picker (every id of the catalogue with its page family), the
// drive side, the wallpaper, and the buttons that bring up the screens.
class CarPanel : public QWidget
{
    Q_OBJECT
public:
    explicit CarPanel(SimulatorHost &host, QWidget *parent = nullptr);

    // Selects the protocol and tells the root; with sample data on, a
    // protocol picked for the first time first gets the data that
    // --protocol gives.
    void selectProtocol(int protocolId);
    // Sample data on or off for the protocols picked from now on; the
    // current one counts as picked.
    void setSampleData(bool on);

public slots:
    void load();

private:
    void showProtocol(int protocolId);

    SimulatorHost &m_host;
    QComboBox *m_protocols;
    QLabel *m_family;
    QCheckBox *m_rightDriver;
    QCheckBox *m_wallpaper;
    QCheckBox *m_box;
    QCheckBox *m_sampleData;
    QSet<int> m_sampled;
    QComboBox *m_languages;
    int m_shownProtocol = -1;
};

// The climate record: power, AC, auto, the temperatures and their units,
// the fans, the air directions, seat heating and the show request.
class ClimateEditor : public QWidget
{
    Q_OBJECT
public:
    explicit ClimateEditor(SimulatorHost &host, QWidget *parent = nullptr);

public slots:
    void load();

private:
    // Writes the editor into the host's record.
    void store();
    void send();
    QComboBox *function(int byte);
    QComboBox *unit();

    SimulatorHost &m_host;
    QCheckBox *m_hasClimate;
    QCheckBox *m_showRequest;
    QSpinBox *m_type;
    QList<QPair<int, QComboBox *> > m_functions;
    QLineEdit *m_leftTemperature;
    QLineEdit *m_rightTemperature;
    QComboBox *m_leftUnit;
    QComboBox *m_rightUnit;
    QLineEdit *m_outside;
    QSpinBox *m_leftFan;
    QSpinBox *m_rightFan;
    QCheckBox *m_hasSeatHeating;
    QSpinBox *m_leftSeat;
    QSpinBox *m_rightSeat;
};

// Doors, hood and trunk; seat belt, automatic parking and condensate
// warnings. Every switch tells the plug-in at once.
class BodyPanel : public QWidget
{
    Q_OBJECT
public:
    explicit BodyPanel(SimulatorHost &host, QWidget *parent = nullptr);

public slots:
    void load();

private:
    SimulatorHost &m_host;
    QList<QCheckBox *> m_doors;
    QList<QPair<int, QCheckBox *> > m_warnings;
};

// Reverse on and off, the camera signal, the guide line and the radar. The
// two switches of the gear say what the panel last sent; the root keeps the
// reverse state to itself.
class ReversePanel : public QWidget
{
    Q_OBJECT
public:
    explicit ReversePanel(SimulatorHost &host, QWidget *parent = nullptr);

public slots:
    void load();

private:
    void sendRadar(bool asVariant);
    void sendGuideLine();

    SimulatorHost &m_host;
    QCheckBox *m_disableRadar;
    QSpinBox *m_scale;
    QList<QSpinBox *> m_distances;
    QSlider *m_lineValue;
    QSpinBox *m_lineRange;
    QCheckBox *m_lineVisible;
    QCheckBox *m_carHasLine;
    QCheckBox *m_userWantsLine;
};

#endif // PANELS_H
