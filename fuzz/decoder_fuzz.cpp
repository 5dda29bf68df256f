// Any bytes as a line of a log.

#include "check_line.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    ruvenmark::fuzz::CheckLine({reinterpret_cast<const char*>(data), size});
    return 0;
}
