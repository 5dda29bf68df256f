#include "ports/serial_wire.h"

#include "platform/failure.h"

#include <QDeadlineTimer>
#include <QThread>

#include <string>
#include <sys/ioctl.h>
#include <termios.h>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::chrono::milliseconds kGather{20}; // A TNC is asked and answers many times while it is set up.
// The longest report takes less, at the 1200 baud of slow TNCs.
constexpr std::chrono::seconds kFlushLimit{3};
constexpr std::chrono::milliseconds kHeldUp{500}; // Nothing goes out any more.
constexpr unsigned long kFlushStep = 10;          // Milliseconds.

} // namespace

SerialWire::SerialWire(std::string_view port, std::int32_t baud, SerialFlow flow, IByteSink& sink) : Wire(sink, kGather)
{
    const std::string name(port);
    m_port.setPortName(QString::fromStdString(name));
    m_port.setFlowControl(flow == SerialFlow::XonXoff ? QSerialPort::SoftwareControl : QSerialPort::NoFlowControl);
    m_port.setReadBufferSize(kReadAhead);
    if (baud <= 0 || !m_port.setBaudRate(baud))
        throw Failure("cannot open " + name + ": no serial port runs at " + std::to_string(baud) + " baud");
    if (!m_port.open(QIODevice::ReadWrite))
        throw Failure("cannot open " + name + ": " + m_port.errorString().toStdString());
    connect(&m_port, &QSerialPort::readyRead, this, &SerialWire::Arrive);
    connect(&m_port, &QSerialPort::errorOccurred, this, &SerialWire::OnError);
    Open();
}

qint64 SerialWire::Unsent()
{
    m_port.flush();
    int inSystem = 0;
    if (ioctl(m_port.handle(), TIOCOUTQ, &inSystem) != 0)
        return 0; // The port is gone.
    return m_port.bytesToWrite() + inSystem;
}

// Closing would wait half a minute for a device that holds the line up with XOFF, so the rest is thrown away.
void SerialWire::Flush()
{
    if (!m_port.isOpen())
        return;
    const QDeadlineTimer limit(kFlushLimit);
    QDeadlineTimer heldUp(kHeldUp);
    qint64 unsent = Unsent();
    while (unsent > 0 && !heldUp.hasExpired() && !limit.hasExpired()) {
        QThread::msleep(kFlushStep);
        const qint64 before = std::exchange(unsent, Unsent());
        if (unsent < before)
            heldUp.setRemainingTime(kHeldUp);
    }
    if (unsent > 0)
        tcflush(m_port.handle(), TCOFLUSH);
}

void SerialWire::Close()
{
    if (m_port.isOpen())
        m_port.close();
}

void SerialWire::OnError(QSerialPort::SerialPortError error)
{
    switch (error) {
    case QSerialPort::NoError:
    case QSerialPort::UnsupportedOperationError: // Pseudo terminals have no modem lines.
    case QSerialPort::TimeoutError:
        return;
    default:
        Lose();
    }
}

} // namespace ruvenmark
