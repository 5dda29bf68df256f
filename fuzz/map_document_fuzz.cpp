#include "platform/failure.h"
#include "platform/map_control.h"
#include "support/doubles.h"

#include <cstdint>
#include <cstdlib>

// Any bytes are refused, or opened as a map that saves and opens again as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ruvenmark;
    MemoryFiles files;
    files.texts["in"].assign(data, data + size);
    MapControl control(files);
    try {
        control.OpenMap("in");
    } catch (const Failure&) {
        if (control.ActiveMap())
            std::abort();
        return 0;
    }
    control.SaveMapAs("once");
    control.OpenMap("once"); // A Failure here ends the fuzzer.
    control.SaveMapAs("twice");
    if (files.texts["once"] != files.texts["twice"])
        std::abort();
    return 0;
}
