#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

class QDialog;
class QFormLayout;

namespace ruvenmark {

class Binder;

// What a serial port is chosen with.
struct SerialFields {
    std::vector<std::string> ports;
    std::span<const std::int32_t> bauds;
    std::string& cboPort;
    std::int32_t& cboBaud;
};
// cboPort, which takes any name and offers the ports, and cboBaud.
QFormLayout* MakeSerialRows(QDialog& dialog, Binder& binder, const SerialFields& fields);

} // namespace ruvenmark
