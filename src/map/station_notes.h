#pragma once

#include "core/channel.h"
#include "platform/map_model.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

struct ChannelState;
struct MainWindow;

// A report brings the note of its station's marker up to date by saying whose it is: the note is made of the station's
// record by whoever reads it. Every report that changes what a note shows does so; whoever takes a record away settles
// the note first.
class StationNotes : public INoteMaker {
public:
    explicit StationNotes(const std::array<ChannelState, 3>& channels) : m_channels(channels) {}

    std::optional<std::string> Note(std::uint8_t source, std::string_view name) const override;
    std::string_view Beginning(std::uint8_t source) const override;

private:
    const std::array<ChannelState, 3>& m_channels;
};

constexpr std::uint8_t NoteSourceOf(Channel channel)
{
    return static_cast<std::uint8_t>(kOwnNote + 1 + Index(channel));
}

// Take records away; the notes that were made of them stay as they are.
void ForgetStation(MainWindow& main, Channel channel, std::string_view call);
void ForgetStations(MainWindow& main, Channel channel);

} // namespace ruvenmark
