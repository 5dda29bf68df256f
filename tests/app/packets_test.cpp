#include "app/event_json.h"
#include "app/packet_json.h"
#include "aprs/decode.h"
#include "devices/packet_events.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {
namespace {

constexpr const char* kGolden = RUVENMARK_SOURCE_DIR "/tests/app/packets.txt";
constexpr std::string_view kEventStart = R"({"event")";

std::string Written(const nlohmann::ordered_json& json)
{
    return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
}

// \xNN becomes its byte.
std::string Unescaped(std::string_view text)
{
    std::string bytes;
    for (std::size_t at = 0; at < text.size(); ++at) {
        bytes += text[at];
        if (text.substr(at, 2) == "\\x") {
            bytes.back() = static_cast<char>(std::stoi(std::string(text.substr(at + 2, 2)), nullptr, 16));
            at += 3;
        }
    }
    return bytes;
}

std::string Decoded(const std::string& line, bool bEvents)
{
    const aprs::Packet packet = aprs::Decode(line);
    std::string text = Written(PacketJson(packet));
    const bool bNeverStopped = false;
    EventJsonSink sink([&](const nlohmann::ordered_json& event) { text += Written(event); });
    if (bEvents)
        RaisePacketEvents(packet, RawData::No, sink, bNeverStopped);
    return text;
}

// See the top of the golden file.
TEST(Packets, AreDecodedAsTheGoldenFileTells)
{
    std::ifstream file(kGolden);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    std::ostringstream anew;
    std::size_t cases = 0;
    for (std::size_t at = 0; at < lines.size();) {
        const std::string& packet = lines[at++];
        anew << packet << '\n';
        if (packet.empty() || packet.starts_with('#'))
            continue;
        std::string expected;
        bool bEvents = false;
        for (; at < lines.size() && lines[at].starts_with('{'); ++at) {
            expected += lines[at] + '\n';
            bEvents = bEvents || lines[at].starts_with(kEventStart);
        }
        const std::string actual = Decoded(Unescaped(packet), bEvents);
        EXPECT_EQ(actual, expected) << packet;
        if (packet.ends_with(":>x")) {
            EXPECT_EQ(aprs::Decode(packet + std::string(200, 'y')).refusal, aprs::Decode(packet).refusal) << packet;
        }
        anew << actual;
        ++cases;
    }
    EXPECT_GT(cases, 200U) << kGolden;
    if (std::getenv("RUVENMARK_WRITE_GOLDEN") != nullptr)
        std::ofstream(kGolden) << anew.str();
}

} // namespace
} // namespace ruvenmark
