#include "ui/call_sign_page.h"

namespace ruvenmark {

namespace {

constexpr std::string_view kDirectoryHost = "www.qrz.com";

bool IsUnreserved(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
           c == '_' || c == '~';
}

std::string PercentEncoded(std::string_view text)
{
    constexpr std::string_view kHex = "0123456789ABCDEF";
    std::string encoded;
    for (const char c : text) {
        if (IsUnreserved(c)) {
            encoded += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        encoded += '%';
        encoded += kHex[byte >> 4U];
        encoded += kHex[byte & 15U];
    }
    return encoded;
}

} // namespace

std::string CallSignPage(std::string_view call)
{
    std::string page = "https://";
    page += kDirectoryHost;
    page += "/detail/";
    page += PercentEncoded(call.substr(0, call.find('-')));
    return page;
}

} // namespace ruvenmark
