#include "messaging/message_files.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "messaging/message_boxes.h"
#include "platform/failure.h"
#include "platform/records.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::string_view kDelimiter = "#####", kLineEnd = "\r\n";
constexpr std::string_view kBold = "bold", kNotBold = "notbold";
constexpr const char* kBeside = ".new"; // Ends the name of what keeps new messages while the box cannot be read.
constexpr std::size_t kColumns = std::tuple_size_v<ListRow::Texts>;

struct Box {
    std::string_view name, complaint;
    RowList MessageState::*list;
    BoxState MessageState::*state;
    bool bBoldKept; // In a seventh field.
};
constexpr std::array<Box, 2> kBoxes = {
    {{"Inbox.txt", "The Inbox could not be saved", &MessageState::lvMessageList, &MessageState::inbox, false},
     {"Sent.txt", "The sent items could not be saved", &MessageState::lvSentList, &MessageState::sent, true}}};

// False where the rest of the file cannot be used.
bool AddRow(RowList& list, TextRecord& record, std::size_t fields)
{
    if (record.size() < fields)
        return false;
    ListRow::Texts texts;
    std::move(record.begin(), record.begin() + kColumns, texts.begin());
    list.Add(std::move(texts), fields > kColumns && record[kColumns] == kBold);
    return true;
}

BoxFile LoadRows(RowList& list, const std::string& text, std::size_t fields)
{
    BoxFile found = text.find('\0') == std::string::npos ? BoxFile::Whole : BoxFile::Damaged;
    for (TextRecord& record : SplitRecords(text, kDelimiter)) {
        if (record.size() != fields)
            found = BoxFile::Damaged;
        if (!AddRow(list, record, fields))
            break;
    }
    return found;
}

// A copy under the first free name; raises Failure.
void KeepCopy(IFiles& files, const std::string& path)
{
    const std::string text = files.ReadText(path, FileKind::List);
    std::string copy = path + ".bak";
    for (int i = 2; files.Exists(copy); ++i)
        copy = path + ".bak" + std::to_string(i);
    files.WriteText(text, copy, FileKind::List);
}

void LoadBox(MainWindow& main, const Box& box)
{
    IFiles& files = main.services.files;
    const std::string path = JoinPath(main.services.programFolder, box.name);
    BoxState& state = main.messages.*box.state;
    RowList& list = main.messages.*box.list;
    list.Clear();
    state = {};
    const std::size_t fields = kColumns + (box.bBoldKept ? 1 : 0);
    try {
        if (files.Exists(path))
            state.file = LoadRows(list, files.ReadText(path, FileKind::List), fields);
    } catch (const Failure&) {
        state.file = BoxFile::Unreadable;
    }
    const std::string beside = path + kBeside;
    if (files.Exists(beside))
        state.bBesideLeft = !Attempt(main.abandoned, box.complaint, [&] {
            const std::string text = files.ReadText(beside, FileKind::List);
            RowList trial;
            if (LoadRows(trial, text, fields) == BoxFile::Damaged)
                KeepCopy(files, beside); // Ahead of the rows: what fails must not leave them here and there.
            LoadRows(list, text, fields);
            state.bChanged = true;
        });
    if (state.file == BoxFile::Damaged)
        Tell(main, path + " could not be read whole; it is kept as " + path + ".bak before it is written anew");
    else if (state.file == BoxFile::Unreadable)
        Tell(main, path + " could not be read");
    if (state.bBesideLeft)
        Tell(main, beside + " could not be read");
}

// At once, as a record a row would take most of the time of a save.
std::string BoxText(const RowList& list, bool bBoldKept)
{
    constexpr std::size_t kUsualRow = 128;
    std::string text;
    text.reserve(list.Count() * kUsualRow);
    for (std::size_t i = 0; i < list.Count(); ++i) {
        const ListRow& row = list.At(i);
        if (i > 0)
            text += kLineEnd;
        for (std::size_t column = 0; column < kColumns; ++column) {
            if (column > 0)
                text += kDelimiter;
            text += row.Text(column);
        }
        if (bBoldKept)
            text.append(kDelimiter).append(row.IsBold() ? kBold : kNotBold);
    }
    return text;
}

// Raises Failure.
void SaveBox(MainWindow& main, const Box& box)
{
    IFiles& files = main.services.files;
    const std::string path = JoinPath(main.services.programFolder, box.name);
    const RowList& list = main.messages.*box.list;
    BoxState& state = main.messages.*box.state;
    const std::string beside = path + kBeside;
    state.bBesideLeft = state.bBesideLeft && files.Exists(beside); // Once it is gone, the next one is our own.
    const bool bBesideLeft = state.bBesideLeft;
    if (state.file == BoxFile::Unreadable && files.Exists(path)) {
        if (list.IsEmpty()) {
            if (!bBesideLeft)
                files.Remove(beside);
        } else {
            if (!bBesideLeft)
                files.WriteText(BoxText(list, box.bBoldKept), beside, FileKind::List);
            state.bChanged = state.bLiveChanged = false; // Told once, not every few seconds.
            throw Failure(bBesideLeft ? path + " and " + beside + " could not be read"
                                      : path + " could not be read; what came since is in " + beside);
        }
    } else {
        if (state.file == BoxFile::Damaged && state.bChanged && files.Exists(path)) {
            KeepCopy(files, path);
            state.file = BoxFile::Whole; // One copy is enough, should what follows fail.
        }
        if (state.file != BoxFile::Damaged || state.bChanged) {
            if (list.IsEmpty())
                files.Remove(path);
            else
                files.WriteText(BoxText(list, box.bBoldKept), path, FileKind::List);
            state.file = BoxFile::Whole;
            if (!bBesideLeft)
                files.Remove(beside);
        }
    }
    state.bChanged = state.bLiveChanged = state.bFailureTold = false;
}

} // namespace

void LoadMessageBoxes(MainWindow& main)
{
    BuildBoxTree(main.messages.tvMessageBoxes);
    for (const Box& box : kBoxes)
        LoadBox(main, box);
    ShowSentCount(main.messages);
}

void SaveMessageBoxes(MainWindow& main)
{
    if (!main.services.store.IsKept())
        return;
    std::string unsaved;
    for (const Box& box : kBoxes) {
        try {
            SaveBox(main, box);
        } catch (const Failure& failure) { // The other box can be saved all the same.
            unsaved += unsaved.empty() ? "" : "; ";
            unsaved += failure.what();
        }
    }
    if (!unsaved.empty())
        throw Failure(unsaved);
}

void MarkChanged(BoxState& box, ChangedBy by)
{
    box.bChanged = true;
    box.bLiveChanged = box.bLiveChanged || by == ChangedBy::LinkOrOperator;
}

void SaveChangedBoxes(MainWindow& main)
{
    if (!main.loaded.Has(Part::MessageBoxes) || !main.services.store.IsKept())
        return;
    for (const Box& box : kBoxes) {
        BoxState& state = main.messages.*box.state;
        if (!state.bChanged || (main.links.FileLoading && !state.bLiveChanged))
            continue;
        if (state.bFailureTold)
            Attempt(main.abandoned, box.complaint, [&] { SaveBox(main, box); });
        else
            state.bFailureTold = !AttemptAloud(main, box.complaint, [&] { SaveBox(main, box); });
    }
}

bool BreaksBoxFile(std::string_view text)
{
    return text.find(kDelimiter) != std::string_view::npos || text.find_first_of("\r\n") != std::string_view::npos ||
           text.find('\0') != std::string_view::npos;
}

std::string CarriedText(std::string_view text)
{
    std::string carried;
    std::size_t run = 0; // Of what a delimiter is made of.
    for (const char c : text) {
        run = c == kDelimiter.front() ? run + 1 : 0;
        if (run == kDelimiter.size()) {
            carried += ' ';
            run = 1;
        }
        carried += c == '\r' || c == '\n' || c == '\0' ? ' ' : c;
    }
    if (run > 0) // The delimiter behind the field would be found a character early.
        carried += ' ';
    return carried;
}

} // namespace ruvenmark
