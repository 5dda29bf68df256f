#include "devices/server_session.h"

#include "devices/event_text.h"
#include "platform/failure.h"
#include "platform/text.h"

#include <algorithm>
#include <array>

namespace ruvenmark {

namespace {

using namespace std::chrono_literals;

constexpr auto kSilence = 90s;
constexpr auto kShortestLink = 5s;
constexpr std::size_t kMaxSent = 510; // With CR and LF 512.

// Words of the comments that the operator must see.
constexpr std::array<std::string_view, 5> kNoticeWords{"logresp", "filter", "invalid", "error", "unverified"};

bool IsNotice(std::string_view comment)
{
    return std::any_of(kNoticeWords.begin(), kNoticeWords.end(),
                       [&](std::string_view word) { return ContainsIgnoringCase(comment, word); });
}

} // namespace

void ServerSession::Take(std::string_view bytes, Moment now)
{
    m_lastHeard = now;
    m_lines.Take(bytes);
}

std::optional<ServerLine> ServerSession::Next()
{
    while (auto line = m_lines.Next()) {
        if (line->empty())
            continue;
        if (line->front() != '#')
            return ServerLine{ServerLine::Kind::Packet, std::move(*line)};
        if (IsNotice(*line))
            return ServerLine{ServerLine::Kind::Notice, std::move(*line)};
    }
    return std::nullopt;
}

bool ServerSession::IsLossDue(Moment now) const
{
    return (m_bLost || now - m_lastHeard > kSilence) && now - m_connected >= kShortestLink;
}

std::string ServerBytes(std::string_view line)
{
    const EventText text(line, IsClean(line));
    const std::string_view sent = text;
    if (sent.empty() || sent.size() > kMaxSent)
        throw Failure("no line that a server takes");
    return std::string(sent) + "\r\n";
}

} // namespace ruvenmark
