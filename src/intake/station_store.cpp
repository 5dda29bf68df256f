#include "intake/station_store.h"

#include "core/main_window.h"
#include "core/progress.h"
#include "map/marker_names.h"
#include "map/markers.h"
#include "map/range_circles.h"
#include "map/station_notes.h"
#include "platform/failure.h"
#include "platform/freed_memory.h"
#include "tracking/track_lines.h"

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace ruvenmark {

namespace {

struct FolderTraits {
    std::string_view word; // Its text too.
    std::string_view image;
};
constexpr std::array<FolderTraits, 4> kFolders = {
    {{kPositions, "Position"}, {kStatus, "Status"}, {kWeather, "Letterw"}, {kUnknown, "Unknown"}}};

void AddFolders(KeyedTree& tree, Channel channel, TreeNode& root)
{
    for (const auto& folder : kFolders) {
        TreeNode& node = tree.Add(root, folder.word, folder.word, folder.image);
        tree.SetBold(node, true);
        tree.SetSorted(node, Traits(channel).bFoldersSorted);
    }
}

std::string CountText(std::string_view label, std::size_t count)
{
    std::string text(label);
    if (count > 0) {
        text += " (";
        text += std::to_string(count);
        text += ")";
    }
    return text;
}

void WriteRootCount(KeyedTree& tree, Channel channel, TreeNode& root)
{
    std::size_t sum = 0;
    for (const TreeNode* folder : root.Children())
        sum += folder->Children().size();
    if (sum <= static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        tree.SetText(root, CountText(Traits(channel).rootText, sum));
}

} // namespace

void AddChannelTree(KeyedTree& tree, Channel channel)
{
    const auto& traits = Traits(channel);
    TreeNode& root = tree.AddRoot(traits.word, traits.rootText, "Closed", "Open");
    tree.SetBold(root, true);
    AddFolders(tree, channel, root);
}

void AddMyStationTree(KeyedTree& tree)
{
    TreeNode& root = tree.AddRoot("My", "My station", "Closed", "Open");
    tree.SetBold(root, true);
    tree.SetBold(tree.Add(root, "Position", "Position", "Position"), true);
    tree.SetBold(tree.Add(root, kWeather, "Weather", "Letterw"), true);
}

TreeNode& RequireFolder(KeyedTree& tree, Channel channel, std::string_view folderWord)
{
    TreeNode* root = tree.FindRoot(Traits(channel).word);
    TreeNode* folder = root ? tree.Find(*root, folderWord) : nullptr;
    if (!folder)
        throw Failure("the folder does not stand");
    return *folder;
}

TreeNode& UpdateStationNode(KeyedTree& tree, TreeNode& parent, std::string_view word, std::string_view text,
                            std::string_view image, TreeNode* hint)
{
    TreeNode* node = tree.Find(parent, word, hint);
    if (!node) {
        node = &tree.Add(parent, word, text, image);
    } else {
        tree.SetText(*node, text);
        if (!image.empty())
            tree.SetImage(*node, image);
    }
    const TreeNode* root = parent.Parent();
    if (root && !root->Parent()) {
        tree.SetBold(*node, true);
        const auto channel = ChannelOfWord(root->Word());
        if (channel && Traits(*channel).bFoldersSorted)
            tree.SetSorted(parent, true);
    }
    return *node;
}

void WriteCounts(KeyedTree& tree, Channel channel, TreeNode& folder)
{
    tree.SetText(folder, CountText(folder.Word(), folder.Children().size()));
    if (folder.Parent())
        WriteRootCount(tree, channel, *folder.Parent());
}

void RefreshFolderCounts(KeyedTree& tree, Channel channel)
{
    TreeNode* root = tree.FindRoot(Traits(channel).word);
    if (!root)
        return;
    for (const auto& folder : root->Children())
        tree.SetText(*folder, CountText(folder->Word(), folder->Children().size()));
    WriteRootCount(tree, channel, *root);
}

Record& EnsureRecord(ChannelState& state, std::string_view call)
{
    Record& record = state.Stations.Ensure(call);
    if (!record.Has(Field::Call))
        record.Set(Field::Call, call);
    return record;
}

void RemoveStation(MainWindow& main, Channel channel, std::string_view call, std::string_view folderWord)
{
    ChannelState& state = main.Of(channel);
    if (folderWord == kPositions) {
        RemoveStationTrack(main, channel, call);
        state.StationRanges.Remove(call);
        Attempt(main.abandoned, "RemoveStation", [&] { DeleteCircle(state, call); });
        const std::string_view word = Traits(channel).word;
        Attempt(main.abandoned, "RemoveStation", [&] { DeleteMarker(main, word, MarkerName(word, call)); });
    }
    ForgetStation(main, channel, call);
    Attempt(main.abandoned, "RemoveStation", [&] {
        TreeNode& folder = RequireFolder(main.tvStationList, channel, folderWord);
        if (TreeNode* node = main.tvStationList.Find(folder, call))
            main.tvStationList.Remove(*node);
    });
    RefreshFolderCounts(main.tvStationList, channel);
}

namespace {

// By the stations in the folder first, then whatever else on the map carries the channel's note.
void DeleteChannelMarkers(MainWindow& main, Channel channel)
{
    const std::string_view word = Traits(channel).word;
    const TreeNode* root = main.tvStationList.Find(word);
    const TreeNode* folder = root ? main.tvStationList.Find(*root, kPositions) : nullptr;
    if (folder) {
        ProgressWalk walk(main.sbStatusBar, folder->Children().size());
        for (const auto& station : folder->Children()) {
            DeleteMarker(main, word, MarkerName(word, station->Text()));
            walk.Step();
        }
    }
    if (main.mpCtrl.RequireMap().RecordCount() == 0)
        return;
    WalkMarkers(main, [&](Pushpin& pin) {
        if (pin.NoteBeginsWith(word))
            pin.Delete();
    });
}

} // namespace

void ClearChannelReports(MainWindow& main, Channel channel)
{
    ChannelState& state = main.Of(channel);
    RemoveChannelTracks(main, channel);
    Attempt(main.abandoned, "ClearChannelReports", [&] { DeleteChannelMarkers(main, channel); });
    state.StationRanges.Clear();
    DeleteAllCircles(main, state, "ClearChannelReports");
    ForgetStations(main, channel);

    KeyedTree& tree = main.tvStationList;
    TreeNode* root = tree.FindRoot(Traits(channel).word);
    if (!root)
        return;
    std::vector<std::string> open; // Folders are open again as they were.
    for (const auto& folder : root->Children())
        if (folder->IsExpanded())
            open.emplace_back(folder->Word());
    const bool bOpen = root->IsExpanded();
    while (!root->Children().empty())
        tree.Remove(*root->Children().back());
    AddFolders(tree, channel, *root);
    tree.SetExpanded(*root, bOpen);
    for (const std::string& word : open)
        if (TreeNode* folder = tree.Find(*root, word))
            tree.SetExpanded(*folder, true);
    tree.SetText(*root, Traits(channel).rootText);
    ReturnFreedMemory();
}

} // namespace ruvenmark
