#pragma once

#include <cstdlib>

// What has to hold; the fuzzer keeps the input where it does not.
inline void Require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}
