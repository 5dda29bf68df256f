#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

class QComboBox;
class QWidget;

namespace ruvenmark {

// cboPort: takes any name and offers those given.
QComboBox* MakePortBox(QWidget& parent, const std::vector<std::string>& ports);
// cboBaud: one of the rates.
QComboBox* MakeBaudBox(QWidget& parent, std::span<const std::int32_t> bauds);

} // namespace ruvenmark
