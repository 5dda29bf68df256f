#pragma once

#include "core/number_rule.h"

#include <array>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// In the order of the form's boxes. The first four must be filled in.
struct WeatherBox {
    std::string_view name;
    NumberRule rule;
};
extern const std::array<WeatherBox, 9> kWeatherBoxes;

// Cancelled until it is accepted; the boxes are empty, as old weather is none.
void frmWeather_Load(MainWindow& main);
// The message for what is missing or wrong; empty where it was accepted.
std::string_view frmWeather_Accept(MainWindow& main);

} // namespace ruvenmark
