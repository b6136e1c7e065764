#include "linkpanel.h"

#include "simulatorhost.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSerialPortInfo>
#include <QToolButton>

LinkPanel::LinkPanel(SimulatorHost &host, QWidget *parent)
    : QGroupBox(tr("Real decoder box"), parent)
    , m_host(host)
    , m_port(new QComboBox(this))
    , m_rate(new QComboBox(this))
    , m_link(new QPushButton(this))
    , m_state(new QLabel(this))
{
    m_port->setObjectName(QStringLiteral("serialPort"));
    m_rate->setObjectName(QStringLiteral("baudRate"));
    m_link->setObjectName(QStringLiteral("linkButton"));
    m_state->setObjectName(QStringLiteral("linkState"));
    // A device the system doesn't list (a link under /dev/serial/by-id, a
    // pseudo-terminal) can be typed in.
    m_port->setEditable(true);
    m_port->setInsertPolicy(QComboBox::NoInsert);
    m_port->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_port->setMinimumContentsLength(14);
    m_rate->setEditable(true);
    m_rate->setValidator(new QIntValidator(1, 4000000, m_rate));
    for (qint32 rate : QSerialPortInfo::standardBaudRates())
        m_rate->addItem(QString::number(rate), rate);
    m_rate->setCurrentText(QString::number(BoxLink::DefaultBaudRate));
    m_state->setWordWrap(true);
    m_state->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto *refresh = new QToolButton(this);
    refresh->setObjectName(QStringLiteral("listPorts"));
    refresh->setText(tr("Refresh"));
    refresh->setToolTip(tr("List the serial ports again"));
    auto *portRow = new QHBoxLayout;
    portRow->addWidget(m_port, 1);
    portRow->addWidget(refresh);
    auto *form = new QFormLayout(this);
    form->addRow(tr("Port"), portRow);
    form->addRow(tr("Baud rate"), m_rate);
    form->addRow(m_link);
    form->addRow(tr("State"), m_state);
    setToolTip(tr("Frames go out on the port as well as into the log; what the box sends back shows in the "
                  "frame log as RX. The simulated decoder box is off while a real one is linked."));

    connect(refresh, &QToolButton::clicked, this, &LinkPanel::listPorts);
    connect(m_link, &QPushButton::clicked, this, &LinkPanel::toggleLink);
    connect(&m_host, &SimulatorHost::linkStateChanged, this, &LinkPanel::showState);
    listPorts();
    BoxLink const *link = m_host.link();
    showState(link ? link->state() : BoxLink::Unlinked, QString());
    setEnabled(link != nullptr);
}

void LinkPanel::listPorts()
{
    const QString chosen = m_port->currentText();
    m_port->clear();
    const auto ports = QSerialPortInfo::availablePorts();
    for (QSerialPortInfo const &port : ports) {
        const QString detail = port.description().isEmpty() ? port.manufacturer() : port.description();
        m_port->addItem(detail.isEmpty() ? port.systemLocation()
                                         : QStringLiteral("%1 (%2)").arg(port.systemLocation(), detail),
                        port.systemLocation());
    }
    if (!chosen.isEmpty())
        m_port->setCurrentText(chosen);
}

void LinkPanel::toggleLink()
{
    BoxLink const *link = m_host.link();
    if (link && link->state() != BoxLink::Unlinked) {
        m_host.closeLink();
        return;
    }
    // A listed port by its device; a typed one as it is.
    const int listed = m_port->findText(m_port->currentText());
    const QString device = listed >= 0 ? m_port->itemData(listed).toString() : m_port->currentText().trimmed();
    QString error;
    if (device.isEmpty() || !m_host.openLink(device, m_rate->currentText().toInt(), &error)) {
        m_state->setText(device.isEmpty() ? tr("No port chosen") : error);
        m_state->setStyleSheet(QStringLiteral("color: darkred"));
    }
}

void LinkPanel::showState(BoxLink::State state, QString const &reason)
{
    BoxLink const *link = m_host.link();
    const QString device = link ? link->device() : QString();
    switch (state) {
    case BoxLink::Linked:
        m_state->setText(tr("Linked to %1 at %2 baud").arg(device).arg(link->baudRate()));
        break;
    case BoxLink::Lost:
        m_state->setText(tr("%1 lost (%2); linking again when it returns").arg(device, reason));
        break;
    case BoxLink::Unlinked:
        m_state->setText(tr("Not linked"));
        break;
    }
    m_state->setStyleSheet(state == BoxLink::Lost ? QStringLiteral("color: darkred") : QString());
    m_link->setText(state == BoxLink::Unlinked ? tr("Link") : tr("Unlink"));
    m_port->setEnabled(state == BoxLink::Unlinked);
    m_rate->setEnabled(state == BoxLink::Unlinked);
}
