#include "links/load_summary.h"

#include "core/main_window.h"

namespace ruvenmark {

std::string GroupedText(std::uint64_t count)
{
    constexpr std::size_t kGroup = 3;
    std::string text = std::to_string(count);
    for (std::size_t end = text.size(); end > kGroup; end -= kGroup)
        text.insert(end - kGroup, 1, ',');
    return text;
}

std::string LoadSummary(const MainWindow& main)
{
    const LinkState& links = main.links;
    const std::uint64_t packets = links.FileLines - links.FileRefused;
    if (packets == 0)
        return "No packets: " + GroupedText(links.FileRefused) + (links.FileRefused == 1 ? " line" : " lines") +
               " refused";
    const std::size_t stations = main.Of(Channel::FL).Stations.Count();
    std::string text = GroupedText(packets) + (packets == 1 ? " packet, " : " packets, ");
    if (links.FileRefused > 0)
        text += GroupedText(links.FileRefused) + " refused, ";
    return text + GroupedText(stations) + (stations == 1 ? " station" : " stations");
}

void TellLoaded(MainWindow& main, bool bStopped, std::string_view reason)
{
    std::string line = bStopped ? "Stopped: " : "";
    if (reason.empty())
        line += LoadSummary(main);
    else
        line = "The stations could not be loaded: " + std::string(reason);
    main.sbStatusBar.SetNotice(line);
}

} // namespace ruvenmark
