#pragma once

#include "ports/wire.h"

#include <QSerialPort>

#include <cstdint>
#include <string_view>

namespace ruvenmark {

// A serial port: eight bits, no parity, one stop bit.
class SerialWire final : public Wire {
public:
    // Raises Failure.
    SerialWire(std::string_view port, std::int32_t baud, SerialFlow flow, IByteSink& sink);

private:
    QIODevice& Device() override { return m_port; }
    void Flush() override;
    void Close() override;
    qint64 Unsent();
    void OnError(QSerialPort::SerialPortError error);

    QSerialPort m_port;
};

} // namespace ruvenmark
