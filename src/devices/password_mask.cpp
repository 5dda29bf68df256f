#include "devices/password_mask.h"

#include "aprs/text.h"
#include "platform/text.h"

#include <cstddef>

namespace ruvenmark {

namespace {

constexpr std::string_view kWord = "pass ";
constexpr std::string_view kNoPassword = "-1";
constexpr std::string_view kDots = "...";

bool StandsAlone(std::string_view text, std::size_t at, std::size_t size)
{
    const bool bBefore = at > 0 && aprs::IsAlnum(text[at - 1]);
    const bool bBehind = at + size < text.size() && aprs::IsAlnum(text[at + size]);
    return !bBefore && !bBehind;
}

// A packet begins with a call, and no call is followed by a blank.
bool IsOfTheServer(std::string_view line)
{
    return line.starts_with('#') || CompareIgnoringCase(line.substr(0, kLoginWord.size()), kLoginWord) == 0;
}

std::string_view WordAt(std::string_view line, std::size_t at)
{
    return line.substr(at, line.find_first_of(" \t,;", at) - at);
}

// Whatever stands behind the word: the server may have changed what it was sent.
void HideBehindWord(std::string& line)
{
    for (auto at = line.find(kWord); at != std::string::npos; at = line.find(kWord, at + 1)) {
        const auto from = line.find_first_not_of(' ', at + kWord.size());
        if (from != std::string::npos && (at == 0 || !aprs::IsAlnum(line[at - 1])))
            line.replace(from, WordAt(line, from).size(), kDots);
    }
}

} // namespace

void PasswordMask::NoteSent(std::string_view line)
{
    const std::string_view before = " pass ";
    const auto at = line.find(before);
    if (!line.starts_with(kLoginWord) || at == std::string_view::npos)
        return;
    const std::string_view rest = line.substr(at + before.size());
    m_password = rest.substr(0, rest.find(' '));
    if (m_password == kNoPassword)
        m_password.clear();
}

void PasswordMask::Hide(std::string& line) const
{
    const bool bServer = IsOfTheServer(line);
    for (auto at = m_password.empty() ? std::string::npos : line.find(m_password); at != std::string::npos;
         at = line.find(m_password, at + kDots.size()))
        if (StandsAlone(line, at, m_password.size()) &&
            (bServer || std::string_view(line).substr(0, at).ends_with(kWord)))
            line.replace(at, m_password.size(), kDots);
    if (bServer)
        HideBehindWord(line);
}

} // namespace ruvenmark
