#include "platform/row_list.h"

#include "platform/text.h"

#include <algorithm>
#include <utility>

namespace ruvenmark {

namespace {

// More than this go in one reset: each piece would move all rows behind it, and each row looks for itself among those
// of its key.
constexpr std::size_t kMostPieces = 32, kMostRows = 1000;

std::size_t HashOf(std::string_view key)
{
    return std::hash<std::string_view>()(key);
}

} // namespace

RowList::RowList(std::vector<Key> keys)
{
    for (Key& key : keys)
        m_indexes.push_back({std::move(key), {}});
}

std::size_t RowList::CountBold() const
{
    return static_cast<std::size_t>(
        std::count_if(m_rows.begin(), m_rows.end(), [](const auto& row) { return row->m_bBold; }));
}

ListRow* RowList::FindFirst(std::size_t index, std::string_view key) const
{
    const Index& searched = m_indexes[index];
    ListRow* first = nullptr;
    const auto [begin, end] = searched.rows.equal_range(HashOf(key));
    for (auto it = begin; it != end; ++it)
        if ((!first || it->second->m_row < first->m_row) && searched.key(it->second->m_texts) == key)
            first = it->second;
    return first;
}

ListRow* RowList::FindFirst(std::size_t index, const ListRow::Texts& like) const
{
    return FindFirst(index, m_indexes[index].key(like));
}

ListRow& RowList::Add(ListRow::Texts texts, bool bBold, RowIcon icon)
{
    auto row = std::make_unique<ListRow>();
    row->m_texts = std::move(texts);
    row->m_row = m_rows.size();
    row->m_bBold = bBold;
    row->m_icon = icon;
    ListRow& added = *row;
    m_rows.push_back(std::move(row));
    Enter(added);
    Inserted.Raise(added.m_row);
    return added;
}

void RowList::SetBold(ListRow& row, bool bBold)
{
    if (row.m_bBold == bBold)
        return;
    row.m_bBold = bBold;
    Changed.Raise(row.m_row, row.m_row);
}

void RowList::ClearBold()
{
    std::size_t first = m_rows.size(), last = 0;
    for (const auto& row : m_rows)
        if (std::exchange(row->m_bBold, false)) {
            first = std::min(first, row->m_row);
            last = row->m_row;
        }
    if (first < m_rows.size())
        Changed.Raise(first, last);
}

void RowList::RemoveSelected()
{
    std::vector<std::pair<std::size_t, std::size_t>> pieces;
    std::size_t rows = 0;
    for (const auto& row : m_rows) {
        if (!row->m_bSelected)
            continue;
        ++rows;
        if (!pieces.empty() && pieces.back().second + 1 == row->m_row)
            pieces.back().second = row->m_row;
        else
            pieces.emplace_back(row->m_row, row->m_row);
    }
    if (pieces.size() > kMostPieces || rows > kMostRows) {
        RemoveAtOnce();
    } else {
        std::reverse(pieces.begin(), pieces.end()); // The places of what stands ahead of a piece stay.
        for (const auto& [first, last] : pieces)
            RemoveRange(first, last);
    }
}

void RowList::Clear()
{
    if (m_rows.empty())
        return;
    WillReset.Raise();
    for (Index& index : m_indexes)
        index.rows.clear();
    m_rows.clear();
    Reset.Raise();
}

void RowList::Select(std::size_t row, bool bSelected)
{
    if (row < m_rows.size())
        m_rows[row]->m_bSelected = bSelected;
}

const ListRow* RowList::FirstSelected() const
{
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [](const auto& row) { return row->m_bSelected; });
    return found == m_rows.end() ? nullptr : found->get();
}

void RowList::ClickHeader(std::size_t column)
{
    m_sortKey = column;
    m_bAscending = !m_bAscending;
    WillReset.Raise();
    std::stable_sort(m_rows.begin(), m_rows.end(), [&](const auto& a, const auto& b) {
        const int order = CompareIgnoringCase(a->m_texts[column], b->m_texts[column]);
        return m_bAscending ? order < 0 : order > 0;
    });
    Renumber(0);
    Reset.Raise();
}

void RowList::Enter(ListRow& row)
{
    for (Index& index : m_indexes)
        index.rows.emplace(HashOf(index.key(row.m_texts)), &row);
}

void RowList::Leave(const ListRow& row)
{
    for (Index& index : m_indexes) {
        const auto [begin, end] = index.rows.equal_range(HashOf(index.key(row.m_texts)));
        const auto found = std::find_if(begin, end, [&](const auto& entry) { return entry.second == &row; });
        if (found != end)
            index.rows.erase(found);
    }
}

void RowList::Renumber(std::size_t first)
{
    for (std::size_t i = first; i < m_rows.size(); ++i)
        m_rows[i]->m_row = i;
}

void RowList::RemoveRange(std::size_t first, std::size_t last)
{
    WillRemove.Raise(first, last);
    for (std::size_t i = first; i <= last; ++i)
        Leave(*m_rows[i]);
    m_rows.erase(m_rows.begin() + static_cast<std::ptrdiff_t>(first),
                 m_rows.begin() + static_cast<std::ptrdiff_t>(last) + 1);
    Renumber(first);
    Removed.Raise(first, last);
}

void RowList::RemoveAtOnce()
{
    WillReset.Raise();
    for (Index& index : m_indexes)
        index.rows.clear();
    std::erase_if(m_rows, [](const auto& row) { return row->m_bSelected; });
    Renumber(0);
    for (const auto& row : m_rows)
        Enter(*row);
    Reset.Raise();
}

} // namespace ruvenmark
