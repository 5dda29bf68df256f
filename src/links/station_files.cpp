#include "links/station_files.h"

#include "core/main_window.h"
#include "intake/station_store.h"
#include "links/import_form_rules.h"
#include "links/load_summary.h"
#include "links/replay.h"
#include "platform/failure.h"
#include "platform/line_stream.h"
#include "platform/records.h"
#include "platform/text.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace ruvenmark {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kPipeWait{20};                  // So long at most the window stands still for a slow pipe.
constexpr std::int32_t kLongestSleepMs = 50;           // A delay ends as soon as somebody ends the load.
constexpr std::uint32_t kBlankLinesAtOnce = 1U << 16U; // Some milliseconds of them.

// Goes on to the next line that counts. False at the end, or where the load was stopped meanwhile.
bool NextLine(MainWindow& main, LineStream& lines)
{
    std::uint32_t blankLines = 0;
    while (main.links.FileLoading) {
        const LineStream::Step step = lines.Next(kPipeWait);
        if (step == LineStream::Step::End)
            return false;
        if (step == LineStream::Step::Line && IsUsedLine(lines.Line()))
            return true;
        if (step == LineStream::Step::Waiting || ++blankLines % kBlankLinesAtOnce == 0)
            main.services.yield.ProcessPending();
    }
    return false;
}

// How much is done, in whole percent: by the lines that count where the stream's end is read ahead of the first one's
// parsing, by bytes where it is too long for that. A pipe's end is not known before it comes: 0 until then.
class LoadProgress {
public:
    LoadProgress(const LineStream& lines, std::optional<std::uint64_t> size) : m_size(size.value_or(0))
    {
        if (const auto rest = lines.Rest()) {
            const auto ahead = Lines(*rest);
            m_last = static_cast<std::uint64_t>(std::count_if(ahead.begin(), ahead.end(), IsUsedLine));
        }
    }

    bool IsEndKnown() const { return m_last || m_size > 0; }

    // Behind the line of this index, once its successor was looked for.
    int Percent(std::uint64_t index, const LineStream& lines) const
    {
        if (lines.IsAtEnd())
            return 100;
        if (m_last)
            return static_cast<int>(index * 100 / std::max<std::uint64_t>(*m_last, 1));
        const std::uint64_t done = m_size == 0 ? 0 : lines.LineStart() * 100 / m_size;
        return static_cast<int>(std::min<std::uint64_t>(done, 99)); // The file may have grown.
    }

private:
    std::uint64_t m_size; // 0 where it is not known.
    std::optional<std::uint64_t> m_last;
};

// Lets events in between its pieces, so that a long delay can be ended.
void Delay(MainWindow& main)
{
    for (std::int32_t left = main.frmImport.iFLDelay; main.links.FileLoading && left > 0; left -= kLongestSleepMs) {
        main.services.sleep.SleepMs(std::min(left, kLongestSleepMs));
        if (left > kLongestSleepMs)
            main.services.yield.ProcessPending();
    }
}

// Parses the lines until they end or the load is stopped. The window may have been worked on by anyone, and the source
// dropped, whenever events were let in.
void ReplayLines(MainWindow& main, IByteStream& bytes)
{
    LineStream lines(bytes);
    ReplayPace pace(main);
    main.links.aprsfl = main.services.sources.CreateFile(*main.links.sinks[Index(Channel::FL)]);
    main.links.FileLoading = true;
    main.sbStatusBar.ShowProgress();
    main.sbStatusBar.SetProgress(0);
    bool bMore = NextLine(main, lines);
    const LoadProgress progress(lines, bytes.Size());
    if (progress.IsEndKnown())
        pace.TellEndIsKnown();
    for (std::uint64_t i = 0; bMore && main.links.FileLoading && main.links.aprsfl; ++i) {
        pace.Await(Trim(lines.Line()));
        if (!main.links.FileLoading || !main.links.aprsfl)
            break;
        while (const auto ahead = lines.Ahead())
            main.links.aprsfl->ExpectLine(*ahead);
        ++main.links.FileLines;
        main.links.aprsfl->ParseLine(Trim(lines.Line()));
        bMore = NextLine(main, lines);
        if (i == 0 && lines.IsAtEnd())
            throw Failure("the progress of a single line cannot be told");
        const int percent = progress.Percent(i, lines);
        main.sbStatusBar.SetProgress(percent);
        pace.Passed(percent);
        main.services.yield.ProcessPending();
        if (!pace.IsJumping())
            Delay(main);
    }
}

void Load(MainWindow& main, const std::function<void()>& replay)
{
    constexpr std::string_view kRoot = Traits(Channel::FL).word;
    // A root that stands from an earlier load stays, with all it holds.
    if (!main.tvStationList.Find(kRoot))
        AddChannelTree(main.tvStationList, Channel::FL);
    main.links.FileLines = main.links.FileRefused = 0;
    main.sbStatusBar.SetNotice({});
    std::string reason; // Why it failed; empty where all is well.
    Attempt(main.abandoned, "LoadStationFile", replay, &reason);
    const bool bStopped = reason.empty() && !main.links.FileLoading;
    main.links.aprsfl.reset();
    main.links.FileLoading = false;
    main.sbStatusBar.SetProgress(0);
    main.sbStatusBar.HideProgress();
    if (TreeNode* root = main.tvStationList.Find(kRoot)) // It may have been unloaded meanwhile.
        main.tvStationList.SetExpanded(*root, true);
    main.links.LoadEnded.Raise();
    TellLoaded(main, bStopped, reason);
    if (!reason.empty())
        main.services.prompts.Message("Stations load failed!");
}

} // namespace

void LoadStationFile(MainWindow& main, std::string_view path)
{
    Load(main, [&] { ReplayLines(main, *main.services.files.OpenStream(path)); });
}

void LoadStationFile(MainWindow& main, IByteStream& bytes)
{
    Load(main, [&] { ReplayLines(main, bytes); });
}

void mnuImportStations_Click(MainWindow& main)
{
    if (main.links.FileLoading) {
        main.links.FileLoading = false;
        return;
    }
    const auto path = main.services.prompts.OpenFile("Open", {"Station Files (*.*)", "*.*"});
    if (!path || path->empty())
        return;
    frmImport_Load(main.frmImport);
    main.services.dialogs.Run(Form::frmImport, main);
    if (main.frmImport.iFLDelay >= 0)
        LoadStationFile(main, *path);
}

void mnuLoadStations_Click(MainWindow& main)
{
    mnuImportStations_Click(main);
}

} // namespace ruvenmark
