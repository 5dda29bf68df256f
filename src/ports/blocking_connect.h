#pragma once

#include "platform/file_descriptor.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace ruvenmark {

// "::1" of "[::1]", as such an address is written before a port.
std::string_view WithoutBrackets(std::string_view host);

// A connected TCP socket; look-up and connect run on a thread of their own, as the system's look-up knows no limit. The
// caller waits, and `paint`, where there is one, is called many times a second meanwhile. Raises Failure, at the limit
// too.
Descriptor ConnectWithin(const std::string& host, std::uint16_t port, std::chrono::milliseconds limit,
                         const std::function<void()>& paint);

} // namespace ruvenmark
