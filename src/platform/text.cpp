#include "platform/text.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace ruvenmark {

namespace {

// The length of the UTF-8 sequence at the head of a non-empty text, or 0 where there is none (overlong forms,
// surrogates and values above U+10FFFF included).
std::size_t SequenceLength(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const auto follows = [&](std::size_t count) {
        if (text.size() <= count)
            return false;
        for (std::size_t i = 1; i <= count; ++i)
            if ((byte(i) & 0xC0U) != 0x80U)
                return false;
        return true;
    };
    const std::uint8_t lead = byte(0);
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead <= 0xDF)
        return follows(1) ? 2 : 0;
    if (lead >= 0xE0 && lead <= 0xEF) {
        if (!follows(2) || (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F))
            return 0;
        return 3;
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        if (!follows(3) || (lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F))
            return 0;
        return 4;
    }
    return 0;
}

// A count of bytes at the head that are ASCII; some more may follow.
std::size_t AsciiAhead(std::string_view text)
{
    constexpr std::uint64_t kHighBits = 0x8080808080808080U;
    std::size_t count = 0;
    for (std::uint64_t eight = 0; count + sizeof(eight) <= text.size(); count += sizeof(eight)) {
        std::memcpy(&eight, text.data() + count, sizeof(eight));
        if ((eight & kHighBits) != 0)
            return count;
    }
    while (count < text.size() && static_cast<std::uint8_t>(text[count]) < 0x80)
        ++count;
    return count;
}

char32_t CodePoint(std::string_view sequence)
{
    const auto lead = static_cast<std::uint8_t>(sequence.front());
    if (sequence.size() == 1)
        return lead;
    char32_t point = lead & (0x7FU >> sequence.size());
    for (const char c : sequence.substr(1))
        point = (point << 6U) | (static_cast<std::uint8_t>(c) & 0x3FU);
    return point;
}

constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr char32_t kFirstControl = 0x7F; // Above ASCII's blank; those below it are never seen in JSON's texts.

// Controls, line and paragraph separators, direction marks and the mark of no width that begins files.
bool IsSteering(char32_t point)
{
    return point < ' ' || (point >= kFirstControl && point < 0xA0) || point == 0x61C || point == 0x200E ||
           point == 0x200F || (point >= 0x2028 && point <= 0x202E) || (point >= 0x2066 && point <= 0x2069) ||
           point == 0xFEFF;
}

} // namespace

std::string ToUpper(std::string_view text)
{
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return ToUpper(c); });
    return upper;
}

std::string_view Trim(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> pieces;
    for (;;) {
        const auto end = text.find(separator);
        pieces.push_back(text.substr(0, end));
        if (end == std::string_view::npos)
            return pieces;
        text.remove_prefix(end + 1);
    }
}

std::vector<std::string_view> Words(std::string_view text)
{
    auto words = Split(text, ' ');
    std::erase_if(words, [](std::string_view word) { return word.empty(); });
    return words;
}

std::vector<std::string_view> Lines(std::string_view text)
{
    auto lines = Split(text, '\n');
    for (auto& line : lines)
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
    return lines;
}

int CompareIgnoringCase(std::string_view a, std::string_view b)
{
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const auto x = static_cast<unsigned char>(ToUpper(a[i]));
        const auto y = static_cast<unsigned char>(ToUpper(b[i]));
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (a.size() == b.size())
        return 0;
    return a.size() < b.size() ? -1 : 1;
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part)
{
    const auto same = [](char a, char b) { return ToUpper(a) == ToUpper(b); };
    return std::search(text.begin(), text.end(), part.begin(), part.end(), same) != text.end() || part.empty();
}

bool IsUtf8(std::string_view bytes)
{
    bytes.remove_prefix(AsciiAhead(bytes));
    while (!bytes.empty()) {
        const std::size_t length = SequenceLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string ShownText(std::string_view bytes)
{
    if (IsUtf8(bytes))
        return std::string(bytes);
    std::string shown;
    shown.reserve(bytes.size() + bytes.size() / 4);
    for (const char c : bytes) {
        const auto byte = static_cast<std::uint8_t>(c);
        if (byte < 0x80) {
            shown += c;
        } else {
            shown += static_cast<char>(0xC0U | (byte >> 6U));
            shown += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
    return shown;
}

std::string TerminalText(std::string_view bytes)
{
    const std::string shown = ShownText(bytes);
    std::string line;
    line.reserve(shown.size());
    for (std::string_view rest = shown; !rest.empty();) {
        const std::size_t length = SequenceLength(rest);
        if (IsSteering(CodePoint(rest.substr(0, length))))
            line += '.';
        else
            line += rest.substr(0, length);
        rest.remove_prefix(length);
    }
    return line;
}

std::string TerminalJson(std::string json)
{
    const auto isPlain = [](char c) { return static_cast<std::uint8_t>(c) < kFirstControl; };
    if (std::all_of(json.begin(), json.end(), isPlain))
        return json;
    std::string text;
    text.reserve(json.size());
    for (std::string_view rest = json; !rest.empty();) {
        const std::size_t length = std::max<std::size_t>(SequenceLength(rest), 1);
        const char32_t point = CodePoint(rest.substr(0, length));
        if (point >= kFirstControl && IsSteering(point)) {
            text += "\\u";
            for (unsigned shift = 16; shift > 0; shift -= 4)
                text += kHexDigits[(point >> (shift - 4)) & 0xFU];
        } else {
            text += rest.substr(0, length);
        }
        rest.remove_prefix(length);
    }
    return text;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count)
{
    if (text.size() <= count)
        return text;
    if (AsciiAhead(text) >= count || !IsUtf8(text))
        return text.substr(0, count);
    std::size_t end = 0;
    while (count-- > 0 && end < text.size())
        end += SequenceLength(text.substr(end));
    return text.substr(0, end);
}

} // namespace ruvenmark
