#pragma once

#include "ui/station_row.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

namespace ruvenmark {

struct StationOrder {
    StationColumn column = StationColumn::Call;
    bool bAscending = true;
};

// What is not known stands at the end, whichever the order. The keys are those of the rows in the order's column.
struct StationPlace {
    const StationRow* row;
    std::uint64_t key;
    std::uint32_t id;
};
bool IsBefore(const StationOrder& order, const StationPlace& one, const StationPlace& other);

// Sorts very many rows in pieces, so that the window can paint between them. The rows stay as they are meanwhile.
class StationSort {
public:
    // Lent.
    StationSort(StationOrder order, const std::deque<StationRow>& rows, std::vector<std::uint32_t> ids);

    // Does a piece. True once all is sorted.
    bool Step();

    const StationOrder& Order() const { return m_order; }
    template <typename Take>
    void Each(Take take) const // In order: take(id, key).
    {
        for (const Entry& entry : m_entries)
            take(entry.place.id, entry.place.key);
    }

private:
    // Nearly every comparison ends here, without a look at the row.
    struct Entry {
        StationPlace place;
        std::array<std::uint64_t, 2> more; // Of the text, behind the key.
        std::uint64_t call;
        bool bLong; // The text goes on, or its key may be that of another one.
    };

    bool IsEntryBefore(const Entry& one, const Entry& other) const;
    void AddRun();
    void MergeSome();

    StationOrder m_order;
    const std::deque<StationRow>& m_rows;
    std::vector<std::uint32_t> m_ids;
    std::vector<Entry> m_entries; // In runs that are sorted each.
    std::vector<Entry> m_merged;  // In runs of twice the length, as far as they have come.
    std::size_t m_run;            // The length of a run.
    std::size_t m_left = 0, m_leftEnd = 0, m_right = 0, m_rightEnd = 0; // The two runs under way: what is left of them.
};

} // namespace ruvenmark
