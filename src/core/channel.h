#pragma once

#include "core/settings.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace ruvenmark {

// The three roads on which reports come in. What differs between them is a row of data here; what is equal is one piece
// of code.
enum class Channel : std::uint8_t { RF, TCP, FL };

inline constexpr std::array<Channel, 3> kChannels = {Channel::RF, Channel::TCP, Channel::FL};

// Its place in every table by channel.
constexpr std::size_t Index(Channel channel)
{
    return static_cast<std::size_t>(channel);
}

struct ChannelTraits {
    Channel channel;
    std::string_view word; // First part of every tree key, first letters of every note.
    std::string_view rootText;
    std::string_view markerEnding;       // Of the names of its markers, behind the call.
    Setting firstFilterSetting;          // Six texts, then three flags.
    std::optional<Setting> namesSetting; // Balloon state of new markers; FL has it in frmImport instead.
    Setting unknownSetting;              // Whether packets that could not be decoded are kept.
    Setting trackedSetting;
    bool bFoldersSorted; // At all times.
    bool bRootAtStart;   // The tree of FL comes with the first file.
};

inline constexpr std::array<ChannelTraits, 3> kChannelTraits = {{
    {Channel::RF, "RF", "RF reports", "(r)", Setting::rfFilterDest, Setting::ShowRFNames, Setting::ShowRFUnknown,
     Setting::TrackedRFStations, true, true},
    {Channel::TCP, "TCP", "TCP reports", "(t)", Setting::tcpFilterDest, Setting::ShowTCPNames, Setting::ShowTCPUnknown,
     Setting::TrackedTCPStations, false, true},
    {Channel::FL, "FL", "FL reports", "(f)", Setting::flFilterDest, std::nullopt, Setting::ShowFLUnknown,
     Setting::TrackedFLStations, false, false},
}};

constexpr const ChannelTraits& Traits(Channel channel)
{
    return kChannelTraits[Index(channel)];
}

// The channel of exactly this word.
constexpr std::optional<Channel> ChannelOfWord(std::string_view word)
{
    for (const auto& traits : kChannelTraits)
        if (traits.word == word)
            return traits.channel;
    return std::nullopt;
}

} // namespace ruvenmark
