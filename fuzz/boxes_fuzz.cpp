// Any bytes as the two files of messages: a run that changes nothing leaves them as they are; one that files a message
// keeps every row that was read, in its order, and what could not be read whole stays beside it.

#include "messaging/send_message.h"
#include "require.h"
#include "support/test_program.h"

#include <cstdint>
#include <string>
#include <vector>

namespace {

using namespace ruvenmark;

constexpr const char *kInbox = "/program/Inbox.txt", *kSent = "/program/Sent.txt";

using Rows = std::vector<ListRow::Texts>;

Rows RowsOf(const RowList& list)
{
    Rows rows;
    for (std::size_t i = 0; i < list.Count(); ++i) {
        ListRow::Texts& row = rows.emplace_back();
        for (std::size_t column = 0; column < row.size(); ++column) {
            row[column] = list.At(i).Text(column);
            Require(row[column].find_first_of(std::string_view("\n\0", 2)) == std::string::npos);
        }
    }
    return rows;
}

struct Boxes {
    Rows inbox, sent;
    bool bComplaint = false;
};

Boxes Run(MemoryFiles& files, bool bChange)
{
    TestProgram program(false);
    program.files.texts = files.texts;
    StartMainWindow(program.main);
    Boxes boxes{{}, {}, !program.notices.lines.empty()};
    SetSetting(program.main.Settings, Setting::Call, "N0CALL");
    if (bChange) {
        program.Sink(Channel::RF).ReportAprsMsg({"W1AW", "APRS", "", "N0CALL", "new ##### one\r", "7"});
        SendAprsMessage(program.main, "N0CALL", "W1AW", "", "new one", "");
    }
    boxes.inbox = RowsOf(program.main.messages.lvMessageList);
    boxes.sent = RowsOf(program.main.messages.lvSentList);
    Require(StopMainWindow(program.main) == StopResult::Stopped);
    files.texts = program.files.texts;
    files.texts.erase("/program/settings");
    return boxes;
}

} // namespace

// A file half of the bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string input(data, data + size);
    MemoryFiles files;
    files.texts[kInbox] = input.substr(0, size / 2);
    files.texts[kSent] = input.substr(size / 2);
    const auto before = files.texts;
    const Boxes first = Run(files, false);
    if (first.bComplaint) // A damaged one is left alone; a whole one may only change its line ends, or go when empty.
        Require(files.texts[kInbox] == before.at(kInbox) || files.texts[kSent] == before.at(kSent));
    const auto unchanged = files.texts;
    const Boxes changed = Run(files, true);
    Require(changed.inbox.size() >= first.inbox.size() && changed.sent.size() >= first.sent.size());
    for (const char* path : {kInbox, kSent}) {
        const auto copy = files.texts.find(std::string(path) + ".bak");
        Require(copy == files.texts.end() || copy->second == unchanged.at(path));
    }
    const Boxes last = Run(files, false);
    Require(!last.bComplaint && last.inbox == changed.inbox && last.sent == changed.sent);
    return 0;
}
