#include "aprs/area.h"

#include "aprs/text.h"

#include <array>

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kAreaSize = 7;
constexpr std::size_t kMaxColour = 15;
constexpr double kOffsetScale = 1500; // The square root of the offset is sent, in such parts of a degree.
constexpr char kLineRight = '1';
constexpr char kLineLeft = '6';

constexpr std::array<std::string_view, 10> kShapes = {
    "circle",        "line right", "ellipse",        "triangle",        "box",
    "filled circle", "line left",  "filled ellipse", "filled triangle", "filled box"};
constexpr std::array<std::string_view, kMaxColour + 1> kColours = {
    "black",      "blue",      "green",      "cyan",      "red",      "violet",      "yellow",      "grey",
    "dark black", "dark blue", "dark green", "dark cyan", "dark red", "dark violet", "dark yellow", "dark grey"};

// "/5" and "05" are the same; from 10 on there is no room for the slash.
std::optional<int> Colour(std::string_view text)
{
    return ParseDigits(text.starts_with('/') ? text.substr(1) : text);
}

std::optional<std::int32_t> Width(std::string_view text)
{
    const std::size_t end = text.find('}');
    if (!text.starts_with('{') || end == std::string_view::npos || end > 4)
        return std::nullopt;
    return ParseDigits(text.substr(1, end - 1));
}

double Offset(int root)
{
    return root * root / kOffsetScale;
}

} // namespace

std::optional<Area> FindArea(const PositionReport& report)
{
    const Symbol symbol = report.position.symbol;
    if (symbol.table != '\\' || symbol.code != 'l' || report.comment.IsEmpty())
        return std::nullopt;
    const std::string_view text = report.comment[0];
    if (text.size() < kAreaSize || !IsDigit(text[0]))
        return std::nullopt;
    const auto latitude = ParseDigits(text.substr(1, 2));
    const auto colour = Colour(text.substr(3, 2));
    const auto longitude = ParseDigits(text.substr(5, 2));
    if (!latitude || !longitude || !colour || static_cast<std::size_t>(*colour) > kMaxColour)
        return std::nullopt;
    Area area;
    area.shape = kShapes[static_cast<std::size_t>(DigitValue(text[0]))];
    area.colour = kColours[static_cast<std::size_t>(*colour)];
    area.latitude = Offset(*latitude);
    area.longitude = Offset(*longitude);
    if (text[0] == kLineRight || text[0] == kLineLeft)
        area.width = Width(text.substr(kAreaSize));
    return area;
}

} // namespace ruvenmark::aprs
