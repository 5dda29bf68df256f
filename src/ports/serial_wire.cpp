#include "ports/serial_wire.h"

#include "platform/failure.h"

#include <QThread>

#include <string>
#include <sys/ioctl.h>
#include <termios.h>

namespace ruvenmark {

namespace {

constexpr std::chrono::milliseconds kGather{20}; // A TNC is asked and answers many times while it is set up.
constexpr int kFlushSteps = 50;
constexpr unsigned long kFlushStep = 10; // Milliseconds.

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

// Closing would wait half a minute for a device that holds the line up with XOFF, so the rest is thrown away.
void SerialWire::Flush()
{
    if (!m_port.isOpen())
        return;
    m_port.flush();
    int unsent = 0;
    for (int step = 0; step < kFlushSteps && ioctl(m_port.handle(), TIOCOUTQ, &unsent) == 0 && unsent > 0; ++step)
        QThread::msleep(kFlushStep);
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
