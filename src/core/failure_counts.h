#pragma once

#include "platform/dictionary.h"
#include "platform/failure.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ruvenmark {

// What handlers abandoned without a word, by place and reason, so that silence leaves a trace.
using FailureCounts = Dictionary<std::size_t>;

// Runs the work; a Failure in it ends the work there and is counted, and its text put where it is to be told. True when
// it went through.
template <typename Work>
bool Attempt(FailureCounts& counts, std::string_view place, Work&& work, std::string* told = nullptr)
{
    try {
        work();
        return true;
    } catch (const Failure& failure) {
        std::string reason(place);
        reason += ": ";
        reason += failure.what();
        ++counts.Ensure(reason);
        if (told)
            *told = failure.what();
        return false;
    }
}

} // namespace ruvenmark
