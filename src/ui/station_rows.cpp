#include "ui/station_rows.h"

#include "core/main_window.h"
#include "platform/local_time.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "tracking/pattern.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::uint32_t kNowhere = std::numeric_limits<std::uint32_t>::max();

// Without a wildcard.
bool IsBare(std::string_view pattern)
{
    return pattern.find_first_of("*?#[") == std::string_view::npos;
}

std::vector<std::string> PatternsOf(std::string_view calls)
{
    std::vector<std::string> patterns;
    for (const std::string_view word : Words(calls))
        patterns.push_back(ToUpper(word));
    return patterns;
}

// Over radio, repeated by nobody, and by no gateway brought over the Internet.
bool IsDirect(const StationRow& row)
{
    const std::string& path = row.path;
    return row.channel != Channel::TCP && path.find('*') == std::string::npos && !path.starts_with("qA") &&
           path.find(",qA") == std::string::npos;
}

} // namespace

StationRows::StationRows(MainWindow& main) : m_main(main)
{
    KeyedTree& tree = main.tvStationList;
    m_subscriptions = {
        tree.Inserted.Observe([this](const TreeNode& node) { Observe(node, false); }),
        tree.Changed.Observe([this](const TreeNode& node) { Observe(node, false); }),
        tree.WillRemove.Observe([this](const TreeNode& node) { Observe(node, true); }),
    };
    TakeOwnPlace();
    MarkAll();
}

StationRows::~StationRows() = default;

std::optional<std::size_t> StationRows::RowOf(Id id) const
{
    if (id >= m_places.size() || m_places[id] == kNowhere)
        return std::nullopt;
    return m_places[id];
}

// A station's node, or one of its facts; what goes with a folder or a root is looked for among all.
void StationRows::Observe(const TreeNode& node, bool bGone)
{
    const TreeNode* parent = node.Parent();
    const TreeNode* above = parent ? parent->Parent() : nullptr;
    if (!above) {
        if (bGone)
            MarkAll();
        return;
    }
    const TreeNode* station = above->Parent() ? parent : &node;
    const TreeNode* folder = station->Parent();
    if ((station == m_lastMarked && !bGone) || folder->Word() == kUnknown)
        return;
    const auto channel = ChannelOfWord(folder->Parent()->Word());
    if (!channel)
        return TellDue(); // The own station may have moved.
    MarkCall(*channel, station->Word());
    m_lastMarked = bGone ? nullptr : station;
}

void StationRows::MarkCall(Channel channel, std::string_view call)
{
    auto& ids = m_ids[Index(channel)];
    const auto found = ids.find(call);
    if (found != ids.end()) {
        MarkId(found->second);
        return;
    }
    Id id = 0;
    if (m_free.empty()) {
        id = static_cast<Id>(m_rows.size());
        m_rows.emplace_back();
        m_marks.emplace_back();
    } else {
        id = m_free.back();
        m_free.pop_back();
    }
    m_rows[id].channel = channel;
    m_rows[id].call = call;
    ids.emplace(std::string(call), id);
    MarkId(id);
}

void StationRows::MarkId(Id id)
{
    if (std::exchange(m_marks[id].bMarked, true))
        return;
    m_marked.push_back(id);
    TellDue();
}

void StationRows::MarkAll()
{
    m_lastMarked = nullptr;
    m_unseen.clear();
    for (const ChannelState& state : m_main.channels)
        for (const auto& [call, record] : state.Stations)
            if (!m_ids[Index(state.channel)].contains(call))
                m_unseen.emplace_back(state.channel, call);
    for (const Id id : m_order)
        MarkId(id);
    if (!m_unseen.empty())
        TellDue();
}

void StationRows::TellDue()
{
    if (!std::exchange(m_bDue, true))
        Due.Raise();
}

// Where the own station moves, every distance is another one.
void StationRows::TakeOwnPlace()
{
    const auto lat = ReadNumber(SettingText(m_main.Settings, Setting::Lat));
    const auto lon = ReadNumber(SettingText(m_main.Settings, Setting::Lon));
    const std::optional<GeoPoint> place = lat && lon ? std::optional(GeoPoint{*lat, *lon}) : std::nullopt;
    if (place == m_ownPlace || m_marked.size() >= kMostAtOnce) // The last move's marks come first.
        return;
    m_ownPlace = place;
    for (const Id id : m_order)
        MarkId(id);
}

void StationRows::Drop(Id id)
{
    StationRow& row = m_rows[id];
    m_ids[Index(row.channel)].erase(row.call);
    row = StationRow();
    m_marks[id] = Mark();
    m_free.push_back(id);
}

bool StationRows::ListsBefore(Id a, Id b) const
{
    return IsBefore(m_listOrder, {&m_rows[a], m_marks[a].sortKey, a}, {&m_rows[b], m_marks[b].sortKey, b});
}

bool StationRows::Matches(const StationRow& row) const
{
    if (m_filter.bDirectOnly && !IsDirect(row))
        return false;
    if (m_patterns.empty())
        return true;
    const std::string call = ToUpper(row.call);
    return std::any_of(m_patterns.begin(), m_patterns.end(), [&](const std::string& pattern) {
        return IsBare(pattern) ? call.find(pattern) != std::string::npos : MatchesPattern(call, pattern);
    });
}

void StationRows::SortBy(StationColumn column, bool bAscending)
{
    constexpr std::size_t kMostSortedAtOnce = 4096;
    m_sort.emplace(StationOrder{column, bAscending}, m_rows, m_order);
    if (m_order.size() > kMostSortedAtOnce) {
        TellDue();
        return;
    }
    while (!m_sort->Step()) {
    }
    TakeOrder();
}

void StationRows::TakeOrder()
{
    Rearrange([this] {
        m_listOrder = m_sort->Order();
        m_order.clear();
        m_sort->Each([this](Id id, std::uint64_t key) {
            m_order.push_back(id);
            m_marks[id].sortKey = key;
        });
    });
    m_sort.reset();
}

void StationRows::SetFilter(const StationListFilter& filter)
{
    if (filter == m_filter)
        return;
    m_filter = filter;
    m_patterns = PatternsOf(filter.calls);
    Rearrange([this] {
        for (const Id id : m_order)
            m_marks[id].bMatches = Matches(m_rows[id]);
    });
}

bool StationRows::Update()
{
    if (m_sort) {
        if (m_sort->Step())
            TakeOrder();
        m_bDue = m_sort || !m_marked.empty() || !m_unseen.empty();
        return m_bDue;
    }
    m_lastMarked = nullptr;
    m_bDue = true; // No one need be told of what is marked in here.
    TakeOwnPlace();
    for (std::size_t i = 0; i < kMostAtOnce && !m_unseen.empty(); ++i) {
        MarkCall(m_unseen.back().first, m_unseen.back().second);
        m_unseen.pop_back();
    }
    const std::size_t count = std::min(m_marked.size(), kMostAtOnce);
    const std::vector<Id> taken(m_marked.end() - static_cast<std::ptrdiff_t>(count), m_marked.end());
    m_marked.resize(m_marked.size() - count);
    Rearrange([&] { Merge(taken); });
    m_bDue = !m_marked.empty() || !m_unseen.empty();
    return m_bDue;
}

// The marked ones leave their places and come back to those they have now.
void StationRows::Merge(std::vector<Id> fresh)
{
    for (const Id id : fresh)
        m_marks[id].bListed = false;
    std::erase_if(m_order, [this](Id id) { return !m_marks[id].bListed; });
    const auto kept = std::partition(fresh.begin(), fresh.end(), [this](Id id) {
        StationRow& row = m_rows[id];
        Mark& mark = m_marks[id];
        mark.bMarked = false;
        if (!FillRow(row, m_main, m_ownPlace))
            return false;
        mark.sortKey = SortKeyOf(row, m_listOrder.column);
        mark.heard = row.heard;
        mark.bMatches = Matches(row);
        return true;
    });
    std::for_each(kept, fresh.end(), [this](Id id) { Drop(id); });
    fresh.erase(kept, fresh.end());
    const auto isBefore = [this](Id a, Id b) { return ListsBefore(a, b); };
    std::sort(fresh.begin(), fresh.end(), isBefore);
    std::vector<Id> merged;
    merged.reserve(m_order.size() + fresh.size());
    auto from = m_order.cbegin();
    for (const Id id : fresh) {
        const auto to = std::upper_bound(from, m_order.cend(), id, isBefore);
        merged.insert(merged.end(), from, to);
        merged.push_back(id);
        m_marks[id].bListed = true;
        from = to;
    }
    merged.insert(merged.end(), from, m_order.cend());
    m_order = std::move(merged);
}

void StationRows::ShowFiltered()
{
    constexpr std::int64_t kMinute = 60;
    std::int64_t since = std::numeric_limits<std::int64_t>::min();
    if (m_filter.heardWithin > 0)
        since = SecondsOfLocalText(m_main.services.clock.LocalNowText()) - m_filter.heardWithin * kMinute;
    m_places.assign(m_rows.size(), kNowhere);
    m_shown.clear();
    for (const Id id : m_order) {
        const Mark& mark = m_marks[id];
        if (!mark.bMatches || mark.heard < since)
            continue;
        m_places[id] = static_cast<std::uint32_t>(m_shown.size());
        m_shown.push_back(id);
    }
}

void StationRows::Rearrange(const std::function<void()>& work)
{
    WillChange.Raise();
    work();
    ShowFiltered();
    Changed.Raise();
}

} // namespace ruvenmark
