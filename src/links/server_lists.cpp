#include "links/server_lists.h"

#include "core/main_window.h"
#include "platform/failure.h"
#include "platform/records.h"

#include <array>
#include <cstddef>
#include <string>
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

void LoadServerForm(StoredSettings& stored, ServerForm& form)
{
    form.sServerAddress = stored.Text(Setting::PrimaryServer);
    form.iServerPort = stored.Int16(Setting::PrimaryPort);
    form.sServerFilter = stored.Text(Setting::PrimaryFilter);
    form.bServerBeacon = stored.Flag(Setting::ServerBeacon);
    form.bAddTCPSymbol = stored.Flag(Setting::AddTCPSymbol);
    form.bReconnectServer = stored.Flag(Setting::ReconnectServer);
    form.iReconnectAttempt = stored.Int16(Setting::ReconnectAttempt);
    form.sBackupServer = stored.Text(Setting::BackupServer);
    form.iBackupPort = stored.Int16(Setting::BackupPort);
    form.sBackupFilter = stored.Text(Setting::BackupFilter);
    form.bBackupBeacon = stored.Flag(Setting::BackupBeacon);
    form.bAutoTCP = stored.Flag(Setting::AutoTCP);
}

void SaveServerForm(StoredSettings& stored, const ServerForm& form)
{
    stored.Set(Setting::PrimaryServer, form.sServerAddress);
    stored.SetWhole(Setting::PrimaryPort, form.iServerPort);
    stored.Set(Setting::PrimaryFilter, form.sServerFilter);
    stored.SetFlag(Setting::ServerBeacon, form.bServerBeacon);
    stored.SetFlag(Setting::AddTCPSymbol, form.bAddTCPSymbol);
    stored.SetFlag(Setting::ReconnectServer, form.bReconnectServer);
    stored.SetWhole(Setting::ReconnectAttempt, form.iReconnectAttempt);
    stored.Set(Setting::BackupServer, form.sBackupServer);
    stored.SetWhole(Setting::BackupPort, form.iBackupPort);
    stored.Set(Setting::BackupFilter, form.sBackupFilter);
    stored.SetFlag(Setting::BackupBeacon, form.bBackupBeacon);
    stored.SetFlag(Setting::AutoTCP, form.bAutoTCP);
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
    LoadServerForm(main.stored, main.frmTcp);
}

void SaveServerLists(MainWindow& main)
{
    SaveServerForm(main.stored, main.frmTcp);
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
