#include "devices/line_counts.h"

#include <numeric>

namespace ruvenmark {

void LineCounts::Add(aprs::Refusal refusal)
{
    if (refusal == aprs::Refusal::None)
        ++decoded;
    else
        ++undecoded[static_cast<std::size_t>(refusal)];
}

std::uint64_t LineCounts::Undecoded() const
{
    return std::accumulate(undecoded.begin(), undecoded.end(), std::uint64_t{0});
}

} // namespace ruvenmark
