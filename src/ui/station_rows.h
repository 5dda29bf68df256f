#pragma once

#include "core/channel.h"
#include "platform/event.h"
#include "platform/geometry.h"
#include "ui/station_row.h"
#include "ui/station_sort.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace ruvenmark {

class TreeNode;
struct MainWindow;

// Which stations are listed.
struct StationListFilter {
    // Patterns with blanks between, as the filters have them, case ignored; one without a wildcard is looked for
    // anywhere in the call. Empty lists all.
    std::string calls;
    std::int32_t heardWithin = 0; // Minutes; 0 for any time.
    bool bDirectOnly = false;     // Heard without a digipeater in between, and not by way of the Internet.
    friend bool operator==(const StationListFilter&, const StationListFilter&) = default;
};

// The stations of all channels as sorted rows, as long as somebody looks at them: while this stands, a report costs the
// mark that its station has something new, and Update takes in what is marked, some thousands at once.
class StationRows {
public:
    // Names a station as long as it is listed.
    using Id = std::uint32_t;
    static constexpr std::size_t kMostAtOnce = 1024;

    explicit StationRows(MainWindow& main); // Lent. All stations are marked.
    ~StationRows();
    StationRows(const StationRows&) = delete;
    StationRows& operator=(const StationRows&) = delete;

    std::size_t Count() const { return m_shown.size(); } // Those that the filter lets through.
    std::size_t Total() const { return m_order.size(); }
    Id At(std::size_t row) const { return m_shown[row]; }
    std::optional<std::size_t> RowOf(Id id) const;

    const std::string& Call(Id id) const { return m_rows[id].call; }
    Channel ChannelOf(Id id) const { return m_rows[id].channel; }
    const std::string& SymbolWord(Id id) const { return m_rows[id].symbol; }
    std::string Text(Id id, StationColumn column) const { return TextOf(m_rows[id], column); }

    // Few are sorted at once. Of many the order stays as it is until Update has come to the end of the work.
    void SortBy(StationColumn column, bool bAscending);
    bool IsSorting() const { return m_sort.has_value(); }
    void SetFilter(const StationListFilter& filter);
    const StationListFilter& Filter() const { return m_filter; }

    // True while more is left for the next call.
    bool Update();

    Event<> Due;        // Something is marked; once until the next Update.
    Event<> WillChange; // Rows take other places, come, go or read otherwise. Nothing is read until Changed.
    Event<> Changed;

private:
    struct CallHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view call) const { return std::hash<std::string_view>()(call); }
    };

    // What is walked over for all stations at once, apart from their texts.
    struct Mark {
        std::uint64_t sortKey = 0;
        std::int64_t heard = 0;
        bool bMarked = false;
        bool bListed = false;  // In m_order.
        bool bMatches = false; // All of the filter but its time.
    };

    void Observe(const TreeNode& node, bool bGone);
    void MarkCall(Channel channel, std::string_view call);
    void MarkId(Id id);
    void MarkAll();
    void TellDue();
    void TakeOwnPlace();
    void Drop(Id id);
    bool ListsBefore(Id a, Id b) const;
    void TakeOrder();
    bool Matches(const StationRow& row) const;
    void Merge(std::vector<Id> fresh);
    void ShowFiltered();
    void Rearrange(const std::function<void()>& work);

    MainWindow& m_main;
    StationListFilter m_filter;
    std::vector<std::string> m_patterns; // Of the filter, as they are compared.
    StationOrder m_listOrder;
    std::optional<StationSort> m_sort; // Under way; what is marked waits for its end.
    std::optional<GeoPoint> m_ownPlace;

    std::deque<StationRow> m_rows; // By id.
    std::vector<Mark> m_marks;     // By id.
    std::vector<Id> m_free;
    std::vector<std::pair<Channel, std::string>> m_unseen; // Calls that no id was given yet.
    std::array<std::unordered_map<std::string, Id, CallHash, std::equal_to<>>, 3> m_ids; // By channel and call.
    std::vector<Id> m_marked;
    std::vector<Id> m_order, m_shown;    // Sorted: all, and those that the filter lets through.
    std::vector<std::uint32_t> m_places; // By id: the row in m_shown.
    const TreeNode* m_lastMarked = nullptr;
    bool m_bDue = false;
    std::vector<Subscription> m_subscriptions;
};

} // namespace ruvenmark
