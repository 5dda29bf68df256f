// An operator's day, a step a line: packets on three channels, menus on selected nodes, loads, answers, a map saved and
// opened again. After every step the tree, its counts and the markers agree; a stop and a start end it.

#include "map/marker_names.h"
#include "platform/text.h"
#include "require.h"
#include "support/test_program.h"
#include "ui/menus.h"
#include "ui/station_tree_commands.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace ruvenmark;

constexpr std::size_t kMostSteps = 100;

std::string CountText(std::string_view label, std::size_t count)
{
    return std::string(label) + (count > 0 ? " (" + std::to_string(count) + ")" : "");
}

void CheckNode(const KeyedTree& tree, const TreeNode& node, std::vector<TreeNode*>& nodes)
{
    for (TreeNode* const child : node.Children()) {
        Require(tree.Find(node, child->Word()) == child);
        const TreeNode* found = tree.Find(child->Key());
        Require(found && found->Key() == child->Key());
        nodes.push_back(child);
        CheckNode(tree, *child, nodes);
    }
}

class Day {
public:
    void Step(std::string_view line)
    {
        const char what = line.front();
        line.remove_prefix(1);
        if (what == 'r' || what == 't' || what == 'f')
            m_program.Hear(what == 'r' ? Channel::RF : what == 't' ? Channel::TCP : Channel::FL, line);
        else if (what == 's')
            Select(line);
        else if (what == 'e' && Selected())
            tvStationList_Expand(m_program.main, *Selected());
        else if (what == 'm' && line.size() >= 2)
            RunFrom(MenuItems(m_program.main, MenuOf(line[0])), line[1]);
        else if (what == 'p' && !line.empty())
            PopUp(line[0]);
        else if (what == 'l')
            Load(line);
        else if (what == 'a' && !line.empty())
            m_program.prompts.answers.push_back(static_cast<Answer>(Number(line[0]) % 3));
        else if (what == 'o')
            SaveAndReopen();
        Check();
    }

    // What is kept is kept whole: the next start finds nothing to complain of.
    void End()
    {
        Require(StopMainWindow(m_program.main, MayAsk::No) == StopResult::Stopped);
        TestProgram next(false);
        for (const auto& [key, value] : m_program.store.Values())
            next.store.Set(key, value);
        next.files.texts = m_program.files.texts;
        StartMainWindow(next.main);
        Require(next.notices.lines.empty());
    }

private:
    static std::size_t Number(char c) { return static_cast<std::uint8_t>(c); }
    static Menu MenuOf(char c)
    {
        return static_cast<Menu>(1 + Number(c) % static_cast<std::size_t>(Menu::mnuTcpSortPopup));
    }
    TreeNode* Selected() { return m_program.Tree().Selected(); }

    // By its place from the top, or by its key.
    void Select(std::string_view line)
    {
        if (TreeNode* node = m_program.Node(line))
            m_program.Tree().Select(node);
        else if (!line.empty() && !m_nodes.empty())
            m_program.Tree().Select(m_nodes[Number(line.front()) % m_nodes.size()]);
    }
    void RunFrom(const std::vector<MenuItem>& items, char which)
    {
        if (items.empty())
            return;
        const MenuItem& item = items[Number(which) % items.size()];
        if (item.entry != MenuEntry::None && !item.IsLine() && item.state.bVisible && item.state.bEnabled)
            RunMenuEntry(m_program.main, item.entry);
    }
    void PopUp(char which)
    {
        if (const auto menu = tvStationList_MouseUp(m_program.main, kRightButton, Selected()))
            RunFrom(menu->items, which);
    }
    void Load(std::string_view text)
    {
        std::string& file = m_program.files.texts["/day"];
        file = text;
        for (char& c : file)
            c = c == '|' ? '\n' : c;
        m_program.prompts.files = {"/day"};
        RunMenuEntry(m_program.main, MenuEntry::mnuLoadStations);
        m_program.prompts.files.clear();
        Require(!m_program.main.links.FileLoading);
    }
    void SaveAndReopen()
    {
        MapControl& control = m_program.main.mpCtrl;
        control.SaveMapAs("/once.ptm");
        control.OpenMap("/once.ptm"); // A Failure here ends the fuzzer.
        control.SaveMapAs("/twice.ptm");
        Require(m_program.files.texts["/once.ptm"] == m_program.files.texts["/twice.ptm"]);
    }

    void Check()
    {
        const KeyedTree& tree = m_program.Tree();
        m_nodes.clear();
        for (TreeNode* const root : tree.Roots()) {
            m_nodes.push_back(root);
            CheckNode(tree, *root, m_nodes);
        }
        Require(m_nodes.size() == tree.NodeCount());
        for (const Channel channel : kChannels)
            CheckCounts(channel);
        for (const std::string& name : m_program.MarkerNames())
            Require(!CallOfMarkerName(name).empty() && name.find('\0') == std::string::npos);
    }
    void CheckCounts(Channel channel) const
    {
        const TreeNode* root = m_program.Node(Traits(channel).word);
        if (!root)
            return;
        std::size_t sum = 0;
        for (const auto& folder : root->Children()) {
            Require(folder->Text() == CountText(folder->Word(), folder->Children().size()));
            sum += folder->Children().size();
        }
        Require(root->Text() == CountText(Traits(channel).rootText, sum));
    }

    TestProgram m_program;
    std::vector<TreeNode*> m_nodes; // In the order of the tree.
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    Day day;
    std::size_t steps = 0;
    for (const std::string_view line : Lines(input))
        if (!line.empty() && ++steps <= kMostSteps)
            day.Step(line);
    day.End();
    return 0;
}
