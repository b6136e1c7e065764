#include "seriallink.h"

#include "scenario.h"

SerialLink::SerialLink(QObject *parent)
    : BoxLink(parent)
{
    m_retry.setInterval(RetryMs);
    connect(&m_retry, &QTimer::timeout, this, [this] {
        QString error;
        if (openPort(&error))
            setState(Linked);
    });
    m_quiet.setSingleShot(true);
    m_quiet.setInterval(QuietMs);
    connect(&m_quiet, &QTimer::timeout, this, [this] { handOn(m_splitter.flush()); });
    connect(&m_port, &QSerialPort::readyRead, this, &SerialLink::readArrived);
    connect(&m_port, &QSerialPort::errorOccurred, this, &SerialLink::failed);
}

SerialLink::~SerialLink()
{
    // No signals from a link half destroyed.
    m_port.disconnect(this);
}

bool SerialLink::open(QString const &device, qint32 baudRate, QString *error)
{
    close();
    m_device = device;
    m_port.setPortName(device);
    m_baudRate = baudRate;
    if (!openPort(error)) {
        *error = QStringLiteral("%1: %2").arg(device, *error);
        return false;
    }
    setState(Linked);
    return true;
}

bool SerialLink::openPort(QString *error)
{
    if (!m_port.open(QIODevice::ReadWrite)) {
        *error = m_port.errorString();
        m_port.clearError();
        return false;
    }
    const bool set = m_port.setBaudRate(m_baudRate) && m_port.setDataBits(QSerialPort::Data8)
        && m_port.setParity(QSerialPort::NoParity) && m_port.setStopBits(QSerialPort::OneStop)
        && m_port.setFlowControl(QSerialPort::NoFlowControl);
    if (!set) {
        *error = m_port.errorString();
        m_port.close();
        m_port.clearError();
        return false;
    }
    return true;
}

void SerialLink::close()
{
    m_retry.stop();
    m_quiet.stop();
    if (m_port.isOpen())
        m_port.close();
    handOn(m_splitter.flush());
    setState(Unlinked);
}

BoxLink::State SerialLink::state() const
{
    return m_state;
}

QString SerialLink::device() const
{
    return m_device;
}

qint32 SerialLink::baudRate() const
{
    return m_baudRate;
}

void SerialLink::send(QByteArray const &frame)
{
    m_writeFailure.clear();
    if (m_state != Linked) {
        m_writeFailure = m_state == Lost ? QStringLiteral("the port is gone") : QStringLiteral("no port open");
    } else if (m_port.write(frame) != frame.size()) {
        m_writeFailure = m_port.errorString();
    } else {
        // Out now, so that a failure belongs to this frame; what the port
        // can't take at once it writes as the line drains.
        m_port.flush();
    }
    if (!m_writeFailure.isEmpty())
        qWarning("[SerialLink] %s: frame %s not written: %s", qPrintable(m_device),
                 qPrintable(Scenario::hex(frame)), qPrintable(m_writeFailure));
}

void SerialLink::setState(State state, QString const &reason)
{
    if (state == m_state)
        return;
    m_state = state;
    if (state == Lost)
        qWarning("[SerialLink] %s lost: %s", qPrintable(m_device), qPrintable(reason));
    else
        qDebug("[SerialLink] %s %s", qPrintable(m_device), qPrintable(stateName(state).toLower()));
    emit stateChanged(state, reason);
}

void SerialLink::readArrived()
{
    handOn(m_splitter.feed(m_port.readAll()));
    if (m_splitter.pending() > 0)
        m_quiet.start();
    else
        m_quiet.stop();
}

void SerialLink::failed(QSerialPort::SerialPortError error)
{
    // Opening, and every retry of a port that is still away, gives its
    // reason to openPort().
    if (error == QSerialPort::NoError || m_state != Linked)
        return;
    switch (error) {
    // A port whose device went away reads nothing and fails on every
    // attempt: the adapter was pulled, or the other end hung up.
    case QSerialPort::ResourceError:
    case QSerialPort::ReadError:
    case QSerialPort::WriteError:
        m_writeFailure = m_port.errorString();
        // Closed once the port's own handling of the error is over.
        QMetaObject::invokeMethod(this, [this, reason = m_writeFailure] { lose(reason); }, Qt::QueuedConnection);
        break;
    default:
        qWarning("[SerialLink] %s: %s", qPrintable(m_device), qPrintable(m_port.errorString()));
        break;
    }
    m_port.clearError();
}

void SerialLink::lose(QString const &reason)
{
    if (m_state != Linked)
        return;
    m_port.close();
    m_quiet.stop();
    handOn(m_splitter.flush());
    setState(Lost, reason.isEmpty() ? QStringLiteral("the port closed") : reason);
    m_retry.start();
}

void SerialLink::handOn(QList<FrameSplitter::Piece> const &pieces)
{
    for (FrameSplitter::Piece const &piece : pieces)
        emit received(piece);
}
