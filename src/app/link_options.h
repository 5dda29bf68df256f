#pragma once

#include "app/options.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// The words of the command line that speak of links.
namespace ruvenmark {

// "gps", "gps=/dev/ttyS0:4800"; nothing for what is no link.
std::optional<LinkOption> ReadLink(std::string_view word);
// The stored values by which the link is connected, as keys and texts.
void AddLinkSettings(std::vector<std::pair<std::string, std::string>>& settings, const LinkOption& link);
// "position", "message:W1AW:text"; nothing for what is no report.
std::optional<SendOption> ReadReport(std::string_view word);

} // namespace ruvenmark
