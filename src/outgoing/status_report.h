#pragma once

#include <cstddef>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

inline constexpr std::size_t kLongestStatus = 62;

// frmStatus: cancelled until it is accepted.
void frmStatus_Load(MainWindow& main);
// The message for what is missing or wrong; empty where it was accepted.
std::string_view frmStatus_Accept(MainWindow& main);

void mnuSendStatus_Click(MainWindow& main);

} // namespace ruvenmark
