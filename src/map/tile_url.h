#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace ruvenmark {

// Whether a text is a tile server's address: http or https, a host, and after it {z}, {x} and {y}. Nothing else is ever
// asked for tiles.
constexpr bool IsTileUrl(std::string_view url)
{
    constexpr std::array<std::string_view, 3> kParts{"{z}", "{x}", "{y}"};
    const std::size_t host = url.starts_with("https://") ? 8 : 7;
    if (host == 7 && !url.starts_with("http://"))
        return false;
    const std::size_t path = url.find('/', host);
    if (path == std::string_view::npos || path == host)
        return false;
    const std::string_view rest = url.substr(path);
    return std::all_of(kParts.begin(), kParts.end(),
                       [&](std::string_view part) { return rest.find(part) != rest.npos; }) &&
           std::all_of(url.begin(), url.end(), [](char c) { return c > ' ' && c < '\x7f'; });
}

} // namespace ruvenmark
