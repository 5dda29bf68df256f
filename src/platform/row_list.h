#pragma once

#include "platform/event.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ruvenmark {

enum class RowIcon : std::uint8_t { None, Message, Bulletin };

// A row of a RowList: the item's text and those of five sub-items. Only the list changes it; it stays where it is until
// it is removed.
class ListRow {
public:
    using Texts = std::array<std::string, 6>;

    const std::string& Text(std::size_t column) const { return m_texts[column]; }
    RowIcon Icon() const { return m_icon; }
    bool IsBold() const { return m_bBold; }
    bool IsSelected() const { return m_bSelected; }
    std::size_t Row() const { return m_row; } // Its place in the list.

private:
    friend class RowList;

    Texts m_texts;
    std::size_t m_row = 0;
    RowIcon m_icon = RowIcon::None;
    bool m_bBold = false;
    bool m_bSelected = false;
};

// A list of rows under column headers. What is searched by is an index: rows are found by a key made of their texts.
class RowList {
public:
    using Key = std::function<std::string(const ListRow::Texts&)>;

    explicit RowList(std::vector<Key> keys = {});
    RowList(const RowList&) = delete;
    RowList& operator=(const RowList&) = delete;

    std::size_t Count() const { return m_rows.size(); }
    bool IsEmpty() const { return m_rows.empty(); }
    const ListRow& At(std::size_t row) const { return *m_rows[row]; }
    std::size_t CountBold() const;
    // From the top, the first row with this key of the index; null where there is none.
    ListRow* FindFirst(std::size_t index, std::string_view key) const;
    // The first row whose texts have the same key.
    ListRow* FindFirst(std::size_t index, const ListRow::Texts& like) const;

    ListRow& Add(ListRow::Texts texts, bool bBold, RowIcon icon = RowIcon::None); // At the end.
    void SetBold(ListRow& row, bool bBold);
    void ClearBold(); // Of all rows.
    void RemoveSelected();
    void Clear();

    void Select(std::size_t row, bool bSelected);
    const ListRow* FirstSelected() const; // From the top.

    // Turns the order around, whichever column was sorted before, and puts the rows in it. Rows that are added later
    // stand at the end.
    void ClickHeader(std::size_t column);
    std::size_t SortKey() const { return m_sortKey; }
    bool IsAscending() const { return m_bAscending; }

    // Structure is told before and after; nothing is read in between.
    Event<std::size_t> Inserted;                // Row, told behind it alone.
    Event<std::size_t, std::size_t> WillRemove; // First and last row.
    Event<std::size_t, std::size_t> Removed;
    Event<std::size_t, std::size_t> Changed; // Bold of these rows.
    Event<> WillReset;                       // Rows go or take other places.
    Event<> Reset;

private:
    struct Index {
        Key key;
        std::unordered_multimap<std::size_t, ListRow*> rows; // By the hash of the key.
    };

    void Enter(ListRow& row);
    void Leave(const ListRow& row);
    void Renumber(std::size_t first);
    void RemoveRange(std::size_t first, std::size_t last);
    void RemoveAtOnce();

    std::vector<std::unique_ptr<ListRow>> m_rows;
    std::vector<Index> m_indexes;
    std::size_t m_sortKey = 0;
    bool m_bAscending = true;
};

} // namespace ruvenmark
