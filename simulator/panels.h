#ifndef PANELS_H
#define PANELS_H

// The control panel's pages that play the car: the climate record, the
// doors and the body warnings, reverse with radar and guide line. Each
// writes the host's records and calls the root's operation that tells the
// plug-in, as the head unit's framework does when the CAN-bus module
// reports a change.

#include <QList>
#include <QPair>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QSlider;
class QSpinBox;
class SimulatorHost;

// The climate record: power, AC, auto, the temperatures and their units,
// the fans, the air directions, seat heating and the show request.
class ClimateEditor : public QWidget
{
    Q_OBJECT
public:
    explicit ClimateEditor(SimulatorHost &host, QWidget *parent = nullptr);

public slots:
    // Shows the host's record in the editor.
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

private:
    SimulatorHost &m_host;
};

// Reverse on and off, the camera signal, the guide line and the radar.
class ReversePanel : public QWidget
{
    Q_OBJECT
public:
    explicit ReversePanel(SimulatorHost &host, QWidget *parent = nullptr);

private:
    void sendRadar(bool asVariant);
    void sendGuideLine();

    SimulatorHost &m_host;
    QSpinBox *m_scale;
    QList<QSpinBox *> m_distances;
    QSlider *m_lineValue;
    QSpinBox *m_lineRange;
    QCheckBox *m_lineVisible;
};

#endif // PANELS_H
