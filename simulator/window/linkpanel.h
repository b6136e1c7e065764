#ifndef LINKPANEL_H
#define LINKPANEL_H

// The Car panel's choice of a real decoder box on a serial port: the ports
// that the system lists (or a device typed in), the rate, linking and
// unlinking, and the link's state. While a real box is linked, the
// simulated one is off.

#include "boxlink.h"

#include <QGroupBox>

class QComboBox;
class QLabel;
class QPushButton;
class SimulatorHost;

class LinkPanel : public QGroupBox
{
    Q_OBJECT
public:
    explicit LinkPanel(SimulatorHost &host, QWidget *parent = nullptr);

public slots:
    // Lists the ports anew, keeping the one chosen.
    void listPorts();

private:
    void toggleLink();
    void showState(BoxLink::State state, QString const &reason);

    SimulatorHost &m_host;
    QComboBox *m_port;
    QComboBox *m_rate;
    QPushButton *m_link;
    QLabel *m_state;
};

#endif // LINKPANEL_H
