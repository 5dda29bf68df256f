#pragma once

#include "app/options.h"

#include <optional>
#include <string_view>

// The words of the command line that speak of links.
namespace ruvenmark {

// "gps", "gps=/dev/ttyS0:4800"; nothing for what is no link.
std::optional<LinkOption> ReadLink(std::string_view word);
// "position", "message:W1AW:text"; nothing for what is no report.
std::optional<SendOption> ReadReport(std::string_view word);

} // namespace ruvenmark
