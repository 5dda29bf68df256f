#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// "6,686".
std::string GroupedText(std::uint64_t count);

// What a load has brought: "6,686 packets, 63 refused, 592 stations".
std::string LoadSummary(const MainWindow& main);

// Tells it in the status bar; or why the load failed, where a reason is given.
void TellLoaded(MainWindow& main, bool bStopped, std::string_view reason);

} // namespace ruvenmark
