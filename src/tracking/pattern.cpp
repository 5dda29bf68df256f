#include "tracking/pattern.h"

#include "platform/text.h"

#include <cstddef>

namespace ruvenmark {

namespace {

bool InClass(char c, std::string_view members)
{
    const bool bNot = members.starts_with('!');
    if (bNot)
        members.remove_prefix(1);
    bool bFound = false;
    for (std::size_t i = 0; i < members.size(); ++i) {
        const auto at = [&](std::size_t n) { return static_cast<unsigned char>(members[n]); };
        if (i + 2 < members.size() && members[i + 1] == '-') {
            bFound = bFound || (at(i) <= static_cast<unsigned char>(c) && static_cast<unsigned char>(c) <= at(i + 2));
            i += 2;
        } else {
            bFound = bFound || members[i] == c;
        }
    }
    return bFound != bNot;
}

// The length of the pattern's first element if it matches the character, else 0. The pattern is not empty.
std::size_t MatchOne(char c, std::string_view pattern)
{
    switch (pattern.front()) {
    case '?':
        return 1;
    case '#':
        return IsDigit(c) ? 1 : 0;
    case '[': {
        const auto end = pattern.find(']');
        if (end == std::string_view::npos || !InClass(c, pattern.substr(1, end - 1)))
            return 0;
        return end + 1;
    }
    default:
        return pattern.front() == c ? 1 : 0;
    }
}

} // namespace

bool MatchesPattern(std::string_view text, std::string_view pattern)
{
    constexpr auto kNone = std::string_view::npos;
    std::size_t t = 0, p = 0;
    std::size_t starPattern = kNone, starText = 0; // Behind the last "*", and where its run ends so far.
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            starPattern = ++p;
            starText = t;
        } else if (const std::size_t length = p < pattern.size() ? MatchOne(text[t], pattern.substr(p)) : 0) {
            p += length;
            ++t;
        } else if (starPattern != kNone) {
            p = starPattern;
            t = ++starText;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*')
        ++p;
    return p == pattern.size();
}

} // namespace ruvenmark
