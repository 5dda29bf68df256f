#include "devices/agw_frames.h"

#include "aprs/text.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr std::size_t kHeaderSize = 36;
constexpr std::size_t kPortAt = 0, kKindAt = 4, kFromAt = 8, kToAt = 18, kLengthAt = 28;
constexpr std::size_t kCallSize = 10;    // With the NUL behind it; there may be anything behind that.
constexpr std::uint32_t kMaxData = 8192; // Real ones are a packet, or a list of ports.

std::uint32_t ReadLength(std::string_view header)
{
    std::uint32_t length = 0;
    for (std::size_t i = 4; i-- > 0;)
        length = length << 8U | static_cast<unsigned char>(header[kLengthAt + i]);
    return length;
}

std::string ReadCall(std::string_view header, std::size_t at)
{
    const std::string_view field = header.substr(at, kCallSize);
    return std::string(field.substr(0, field.find('\0')));
}

} // namespace

std::string AgwBytes(const AgwFrame& frame)
{
    std::string bytes(kHeaderSize, '\0');
    bytes[kPortAt] = static_cast<char>(frame.port);
    bytes[kKindAt] = frame.kind;
    bytes.replace(kFromAt, std::min(frame.from.size(), kCallSize - 1), frame.from, 0, kCallSize - 1);
    bytes.replace(kToAt, std::min(frame.to.size(), kCallSize - 1), frame.to, 0, kCallSize - 1);
    for (std::size_t i = 0; i < 4; ++i)
        bytes[kLengthAt + i] = static_cast<char>(frame.data.size() >> (8 * i) & 0xFFU);
    return bytes + frame.data;
}

std::optional<AgwFrame> AgwReader::Next()
{
    if (m_bBroken || m_bytes.size() < kHeaderSize)
        return std::nullopt;
    const std::uint32_t length = ReadLength(m_bytes);
    if (length > kMaxData) {
        m_bBroken = true;
        m_bytes.clear();
        return std::nullopt;
    }
    if (m_bytes.size() < kHeaderSize + length)
        return std::nullopt;
    AgwFrame frame;
    frame.kind = m_bytes[kKindAt];
    frame.port = static_cast<std::uint8_t>(m_bytes[kPortAt]);
    frame.from = ReadCall(m_bytes, kFromAt);
    frame.to = ReadCall(m_bytes, kToAt);
    frame.data = m_bytes.substr(kHeaderSize, length);
    m_bytes.erase(0, kHeaderSize + length);
    return frame;
}

std::optional<int> AgwPortCount(std::string_view data)
{
    const std::size_t end = data.find(';');
    return end == std::string_view::npos ? std::nullopt : aprs::ParseDigits(aprs::Trim(data.substr(0, end)));
}

} // namespace ruvenmark
