#include "links/link_status_rules.h"

#include "core/main_window.h"
#include "links/server_status_rules.h"
#include "platform/numbers.h"

#include <cstdint>

namespace ruvenmark {

namespace {

std::string Counted(std::uint64_t count, std::string_view unit)
{
    std::string text = ShortText(static_cast<std::int64_t>(count)) + ' ';
    text.append(unit);
    return count == 1 ? text : text + 's';
}

// The larger unit, and what is left over in the smaller one.
std::string TwoUnits(std::uint64_t count, std::uint64_t ratio, std::string_view larger, std::string_view smaller)
{
    const std::string text = Counted(count / ratio, larger);
    return count % ratio == 0 ? text : text + ' ' + Counted(count % ratio, smaller);
}

void ShowRadioStatus(MainWindow& main)
{
    const LinkStatus& status = main.radioStatus;
    if (status.since)
        main.sbStatusBar.SetPanelTip(Panel::Tnc, StatusText(status, main.services.wires.Now(), "packet"));
}

} // namespace

void NoteLine(LinkStatus& status, Moment now)
{
    ++status.lines;
    status.lastHeard = now;
}

std::string AgeText(std::chrono::steady_clock::duration age)
{
    constexpr std::uint64_t kMinute = 60, kHour = 60, kDay = 24; // Each in the unit before.
    const auto seconds = static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::seconds>(age).count());
    const std::uint64_t minutes = seconds / kMinute;
    if (seconds == 0)
        return "a moment";
    if (minutes == 0)
        return Counted(seconds, "second");
    if (minutes < kHour)
        return Counted(minutes, "minute");
    if (minutes < kHour * kDay)
        return TwoUnits(minutes, kHour, "hour", "minute");
    return TwoUnits(minutes / kHour, kDay, "day", "hour");
}

std::string StatusText(const LinkStatus& status, Moment now, std::string_view unit)
{
    std::string text = "Connected for " + AgeText(now - *status.since) + "; " + Counted(status.lines, unit) + " heard";
    if (status.lastHeard)
        text += ", the last one " + AgeText(now - *status.lastHeard) + " ago";
    return text;
}

void BeginRadioStatus(MainWindow& main)
{
    main.radioStatus = {};
    main.radioStatus.since = main.services.wires.Now();
    ShowRadioStatus(main);
}

void NoteRadioLine(MainWindow& main)
{
    NoteLine(main.radioStatus, main.services.wires.Now());
}

void EndRadioStatus(MainWindow& main)
{
    main.radioStatus = {};
    main.sbStatusBar.SetPanelTip(Panel::Tnc, {});
}

void ShowLinkStatus(MainWindow& main)
{
    ShowRadioStatus(main);
    ShowServerStatus(main);
}

} // namespace ruvenmark
