#pragma once

#include "platform/keyed_tree.h"
#include "platform/row_list.h"
#include "platform/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace ruvenmark {

// The columns of both lists: sender, recipient and path stand as each box tells.
namespace message_column {
inline constexpr std::size_t kItem = 0, kDate = 3, kText = 4, kNumber = 5;
inline constexpr std::size_t kInboxTo = 1, kInboxPath = 2; // The item is the sender.
inline constexpr std::size_t kSentFrom = 1, kSentVia = 2;  // The item is the recipient.
} // namespace message_column

// What the lists are searched by.
inline constexpr std::size_t kByMessage = 0; // Upper-cased sender, recipient, text and number, one behind the other.
inline constexpr std::size_t kByNumber = 1;  // Of the sent ones: upper-cased sender, a NUL and the number.

// How much of a box's file the program has.
enum class BoxFile : std::uint8_t { Whole, Damaged, Unreadable };

struct BoxState {
    bool bChanged = false;     // Since it was saved last.
    bool bLiveChanged = false; // And not by a load alone, whose file can be loaded again.
    bool bFailureTold = false; // That it could not be saved.
    BoxFile file = BoxFile::Whole;
    bool bBesideLeft = false; // What was kept beside could not be taken in.
};

// The two boxes of messages, their tree and their count.
struct MessageState {
    RowList lvMessageList{{[](const ListRow::Texts& row) { return ToUpper(row[0] + row[1] + row[4] + row[5]); }}};
    RowList lvSentList{{[](const ListRow::Texts& row) { return ToUpper(row[1] + row[0] + row[4] + row[5]); },
                        [](const ListRow::Texts& row) { return ToUpper(row[1]) + '\0' + row[5]; }}};
    KeyedTree tvMessageBoxes;
    std::int16_t UnreadCount = 0;
    BoxState inbox, sent;
};

} // namespace ruvenmark
