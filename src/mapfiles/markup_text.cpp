#include "mapfiles/markup_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <utility>

namespace ruvenmark {

namespace {

std::string Utf8(std::uint32_t code)
{
    const auto byte = [](std::uint32_t bits) { return static_cast<char>(bits); };
    if (code < 0x80)
        return {byte(code)};
    if (code < 0x800)
        return {byte(0xc0 | code >> 6U), byte(0x80 | (code & 0x3fU))};
    if (code < 0x10000)
        return {byte(0xe0 | code >> 12U), byte(0x80 | (code >> 6U & 0x3fU)), byte(0x80 | (code & 0x3fU))};
    return {byte(0xf0 | code >> 18U), byte(0x80 | (code >> 12U & 0x3fU)), byte(0x80 | (code >> 6U & 0x3fU)),
            byte(0x80 | (code & 0x3fU))};
}

// Of what stands between & and ;.
std::optional<std::string> Character(std::string_view name)
{
    constexpr std::array<std::pair<std::string_view, std::string_view>, 7> kNames{
        {{"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}, {"nbsp", " "}, {"copy", "\u00a9"}}};
    const auto* known = std::find_if(kNames.begin(), kNames.end(), [&](const auto& row) { return row.first == name; });
    if (known != kNames.end())
        return std::string(known->second);
    if (!name.starts_with('#'))
        return std::nullopt;
    const bool bHex = name.starts_with("#x") || name.starts_with("#X");
    const std::string_view digits = name.substr(bHex ? 2 : 1);
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), code, bHex ? 16 : 10);
    const bool bSurrogate = code >= 0xd800 && code < 0xe000;
    if (error != std::errc() || end != digits.end() || code < 0x20 || bSurrogate || code > 0x10ffff)
        return std::nullopt;
    return Utf8(code);
}

} // namespace

std::string TextOfMarkup(std::string_view markup)
{
    constexpr std::size_t kLongestName = 10;
    std::string text;
    for (std::size_t at = 0; at < markup.size(); ++at) {
        if (markup[at] == '<') {
            at = markup.find('>', at);
            if (at == std::string_view::npos)
                break;
            continue;
        }
        const std::size_t end = markup[at] == '&' ? markup.substr(at, kLongestName).find(';') : std::string_view::npos;
        const auto character = end == std::string_view::npos ? std::nullopt : Character(markup.substr(at + 1, end - 1));
        text += character.value_or(std::string(1, markup[at]));
        at += character ? end : 0;
    }
    return text;
}

} // namespace ruvenmark
