#pragma once

#include <functional>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// One line for the operator, in the status bar and on standard error, for what no box is told of.
void Tell(MainWindow& main, std::string_view line);

// As Attempt; a Failure is also told: "The map could not be saved: " and its reason.
bool AttemptAloud(MainWindow& main, std::string_view complaint, const std::function<void()>& work);

} // namespace ruvenmark
