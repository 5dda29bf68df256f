#include "links/server_lists.h"

#include "core/main_window.h"
#include "core/stored_fields.h"
#include "platform/failure.h"
#include "platform/records.h"

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

constexpr std::string_view kListDelimiter = ":";

struct ListFile {
    std::string_view name;
    Dictionary<std::string> ServerLists::*list;
};
constexpr std::array<ListFile, 3> kListFiles = {{{"servers.txt", &ServerLists::ServerList},
                                                 {"ports.txt", &ServerLists::PortList},
                                                 {"filters.txt", &ServerLists::ServerFilterList}}};

template <class Form, class Field>
void EachStoredField(Form& form, const Field& field)
{
    field(Setting::PrimaryServer, form.sServerAddress);
    field(Setting::PrimaryPort, form.iServerPort);
    field(Setting::PrimaryFilter, form.sServerFilter);
    field(Setting::ServerBeacon, form.bServerBeacon);
    field(Setting::AddTCPSymbol, form.bAddTCPSymbol);
    field(Setting::ReconnectServer, form.bReconnectServer);
    field(Setting::ReconnectAttempt, form.iReconnectAttempt);
    field(Setting::BackupServer, form.sBackupServer);
    field(Setting::BackupPort, form.iBackupPort);
    field(Setting::BackupFilter, form.sBackupFilter);
    field(Setting::BackupBeacon, form.bBackupBeacon);
    field(Setting::AutoTCP, form.bAutoTCP);
}

std::vector<std::string> Keys(const Dictionary<std::string>& list)
{
    std::vector<std::string> keys;
    for (const auto& [key, value] : list)
        keys.push_back(key);
    return keys;
}

void LoadList(IFiles& files, const std::string& path, Dictionary<std::string>& list, ServerLists::FileState& state)
{
    try {
        for (const auto& record : SplitRecords(files.ReadText(path, FileKind::List), kListDelimiter))
            list.Set(record.front(), record.front());
    } catch (const Failure&) {
        state.bUnreadable = files.Exists(path);
    }
    state.entries = Keys(list);
}

// Raises Failure.
void SaveList(IFiles& files, const std::string& path, const Dictionary<std::string>& list,
              const ServerLists::FileState& state)
{
    const auto keys = Keys(list);
    if (keys.empty() || keys == state.entries)
        return;
    if (state.bUnreadable)
        throw Failure("cannot write " + path + ": it could not be read");
    TextTable table;
    for (const std::string& key : keys)
        table.push_back({key});
    WriteRecords(files, table, path, kListDelimiter);
}

} // namespace

void LoadServerLists(MainWindow& main)
{
    ServerLists& lists = main.serverLists;
    for (std::size_t i = 0; i < kListFiles.size(); ++i)
        LoadList(main.services.files, JoinPath(main.services.programFolder, kListFiles[i].name),
                 lists.*kListFiles[i].list, lists.files[i]);
    EachStoredField(main.frmTcp, LoadField{main.stored});
}

void SaveServerLists(MainWindow& main)
{
    EachStoredField(std::as_const(main.frmTcp), SaveField{main.stored});
    const ServerLists& lists = main.serverLists;
    std::string unsaved;
    for (std::size_t i = 0; i < kListFiles.size() && main.services.store.IsKept(); ++i) {
        const auto& [name, list] = kListFiles[i];
        try {
            SaveList(main.services.files, JoinPath(main.services.programFolder, name), lists.*list, lists.files[i]);
        } catch (const Failure& failure) { // The next list can be saved all the same.
            unsaved += unsaved.empty() ? "" : "; ";
            unsaved += failure.what();
        }
    }
    if (!unsaved.empty())
        throw Failure(unsaved);
}

} // namespace ruvenmark
