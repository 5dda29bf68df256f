#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

// The page of the public call-sign directory: the call up to its first "-", percent-encoded.
std::string CallSignPage(std::string_view call);

} // namespace ruvenmark
