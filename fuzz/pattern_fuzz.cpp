#include "tracking/filters.h"
#include "tracking/pattern.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

using namespace ruvenmark;

// The length of the element at the head of a pattern that is not empty: a class that is closed is one element.
std::size_t ElementLength(std::string_view pattern)
{
    const auto end = pattern.front() == '[' ? pattern.find(']') : std::string_view::npos;
    return end == std::string_view::npos ? 1 : end + 1;
}

// The slow and plain way: the table of all beginnings of the text against all beginnings of the pattern.
bool MatchesByTable(std::string_view text, std::string_view pattern)
{
    std::vector<bool> reached(text.size() + 1);
    reached[0] = true;
    while (!pattern.empty()) {
        const std::string_view element = pattern.substr(0, ElementLength(pattern));
        std::vector<bool> next(text.size() + 1);
        for (std::size_t i = 0; i <= text.size(); ++i)
            if (element == "*")
                next[i] = reached[i] || (i > 0 && next[i - 1]);
            else
                next[i] = i > 0 && reached[i - 1] && MatchesPattern(text.substr(i - 1, 1), element);
        reached = std::move(next);
        pattern.remove_prefix(element.size());
    }
    return reached[text.size()];
}

} // namespace

// The text stands ahead of the first line feed, the pattern behind it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const std::string_view text = input.substr(0, input.find('\n'));
    const std::string_view pattern = text.size() < size ? input.substr(text.size() + 1) : std::string_view();
    if (MatchesPattern(text, pattern) != MatchesByTable(text, pattern))
        std::abort();
    MatchesList(text, pattern);
    return 0;
}
