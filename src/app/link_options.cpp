#include "app/link_options.h"

#include "core/settings.h"
#include "platform/numbers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>

namespace ruvenmark {

namespace {

struct LinkRow {
    std::string_view name;
    LinkName link;
    bool bIsSerial;
    std::optional<Setting> address, number; // Where they are stored.
};
constexpr std::array<LinkRow, 5> kLinks = {
    {{"tnc", LinkName::Tnc, true, Setting::SerialPort, Setting::LastBaudRate},
     {"agw", LinkName::Agw, false, Setting::SocketAddress, Setting::SocketPort},
     {"server", LinkName::Server, false, Setting::PrimaryServer, Setting::PrimaryPort},
     {"gps", LinkName::Gps, true, Setting::GPSPort, Setting::GPSBaud},
     {"wx", LinkName::Wx, true, std::nullopt, std::nullopt}}};

} // namespace

// "gps", "gps=/dev/ttyS0:4800"; a host may itself hold colons.
std::optional<LinkOption> ReadLink(std::string_view word)
{
    constexpr std::int32_t kMostPort = 32767, kMostBaud = 4'000'000;
    const auto sign = word.find('=');
    const auto row = std::find_if(kLinks.begin(), kLinks.end(),
                                  [&](const LinkRow& known) { return known.name == word.substr(0, sign); });
    if (row == kLinks.end())
        return std::nullopt;
    if (sign == std::string_view::npos)
        return row->link == LinkName::Wx ? std::nullopt : std::optional(LinkOption{row->link, {}, 0});
    const std::string_view address = word.substr(sign + 1);
    const auto colon = address.rfind(':');
    if (colon == std::string_view::npos || colon == 0)
        return std::nullopt;
    const auto number = ReadWhole(address.substr(colon + 1), 1, row->bIsSerial ? kMostBaud : kMostPort);
    if (!number)
        return std::nullopt;
    return LinkOption{row->link, std::string(address.substr(0, colon)), *number};
}

// Without an address the stored one stands, but the TNC or the engine is chosen all the same.
void AddLinkSettings(std::vector<std::pair<std::string, std::string>>& settings, const LinkOption& link)
{
    const auto add = [&](Setting setting, std::string_view text) { settings.emplace_back(Info(setting).key, text); };
    if (link.link == LinkName::Tnc || link.link == LinkName::Agw)
        add(Setting::ConnectSocket, BoolText(link.link == LinkName::Agw));
    const auto row =
        std::find_if(kLinks.begin(), kLinks.end(), [&](const LinkRow& known) { return known.link == link.link; });
    if (link.address.empty() || !row->address || !row->number)
        return;
    add(*row->address, link.address);
    add(*row->number, ShortText(std::int64_t{link.number}));
}

// "message:W1AW:at 12:30": only the last field may hold colons.
std::optional<SendOption> ReadReport(std::string_view word)
{
    using Kind = SendOption::Kind;
    if (word == "position" || word == "weather")
        return SendOption{word == "position" ? Kind::Position : Kind::Weather, {}, {}, {}, {}};
    const auto cut = [&word](char sign) {
        const auto at = word.find(sign);
        std::optional<std::string> field =
            at == std::string_view::npos ? std::nullopt : std::optional(std::string(word.substr(0, at)));
        word.remove_prefix(field ? at + 1 : 0);
        return field;
    };
    const auto name = cut(':');
    if (name == "status")
        return SendOption{Kind::Status, {}, {}, {}, std::string(word)};
    const auto to = name ? cut(':') : std::nullopt;
    if (name == "message" && to)
        return SendOption{Kind::Message, *to, {}, {}, std::string(word)};
    const auto lat = to ? cut(',') : std::nullopt;
    const auto lon = lat ? cut(':') : std::nullopt;
    if (name == "object" && lon)
        return SendOption{Kind::Object, *to, *lat, *lon, std::string(word)};
    return std::nullopt;
}

} // namespace ruvenmark
