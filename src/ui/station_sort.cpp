#include "ui/station_sort.h"

#include "platform/text.h"

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

// Some milliseconds each.
constexpr std::size_t kFirstRun = 4096, kRunsAtOnce = 2, kMergedAtOnce = 16384;

} // namespace

bool IsBefore(const StationOrder& order, const StationPlace& one, const StationPlace& other)
{
    if (one.key != other.key) {
        if (one.key == kUnknownSortKey || other.key == kUnknownSortKey)
            return other.key == kUnknownSortKey;
        return (one.key < other.key) == order.bAscending;
    }
    const int texts = CompareIgnoringCase(SortText(*one.row, order.column), SortText(*other.row, order.column));
    if (texts != 0)
        return (texts < 0) == order.bAscending;
    const int calls = CompareIgnoringCase(one.row->call, other.row->call);
    return calls != 0 ? calls < 0 : one.id < other.id;
}

StationSort::StationSort(StationOrder order, const std::deque<StationRow>& rows, std::vector<std::uint32_t> ids)
    : m_order(order), m_rows(rows), m_ids(std::move(ids)), m_run(kFirstRun)
{
    m_entries.reserve(m_ids.size());
}

bool StationSort::Step()
{
    if (m_entries.size() < m_ids.size())
        for (std::size_t i = 0; i < kRunsAtOnce; ++i)
            AddRun();
    else if (m_run < m_entries.size())
        MergeSome();
    return m_entries.size() == m_ids.size() && m_run >= m_entries.size();
}

bool StationSort::IsEntryBefore(const Entry& one, const Entry& other) const
{
    if (one.place.key == other.place.key) {
        if (one.more != other.more)
            return (one.more < other.more) == m_order.bAscending;
        if (!one.bLong && !other.bLong && one.call != other.call)
            return one.call < other.call;
    }
    return IsBefore(m_order, one.place, other.place);
}

void StationSort::AddRun()
{
    const std::size_t first = m_entries.size(), last = std::min(first + kFirstRun, m_ids.size());
    for (std::size_t i = first; i < last; ++i) {
        const StationRow& row = m_rows[m_ids[i]];
        const std::string_view text = SortText(row, m_order.column);
        const std::uint64_t key = SortKeyOf(row, m_order.column);
        m_entries.push_back({.place = {&row, key, m_ids[i]},
                             .more = {KeyPart(text, 1), KeyPart(text, 2)},
                             .call = KeyPart(row.call, 0),
                             .bLong = text.size() > 3 * sizeof(std::uint64_t) || key == kUnknownSortKey - 1});
    }
    std::sort(m_entries.begin() + static_cast<std::ptrdiff_t>(first), m_entries.end(),
              [this](const Entry& a, const Entry& b) { return IsEntryBefore(a, b); });
}

void StationSort::MergeSome()
{
    const std::size_t count = m_entries.size();
    m_merged.reserve(count);
    for (std::size_t i = 0; i < kMergedAtOnce && m_merged.size() < count; ++i) {
        if (m_left == m_leftEnd && m_right == m_rightEnd) { // The next two runs.
            m_left = m_merged.size();
            m_leftEnd = m_right = std::min(m_left + m_run, count);
            m_rightEnd = std::min(m_right + m_run, count);
        }
        const bool bRight =
            m_left == m_leftEnd || (m_right != m_rightEnd && IsEntryBefore(m_entries[m_right], m_entries[m_left]));
        m_merged.push_back(m_entries[bRight ? m_right++ : m_left++]);
    }
    if (m_merged.size() < count)
        return;
    m_entries.swap(m_merged);
    m_merged.clear();
    m_left = m_leftEnd = m_right = m_rightEnd = 0;
    m_run *= 2;
}

} // namespace ruvenmark
