#include "links/server_lists.h"

#include "core/main_window.h"
#include "links/text_files.h"

#include <array>
#include <string>

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
    form.sPrimaryServer = stored.Text(Setting::PrimaryServer);
    form.iPrimaryPort = stored.Int16(Setting::PrimaryPort);
    form.sPrimaryFilter = stored.Text(Setting::PrimaryFilter);
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
    stored.Set(Setting::PrimaryServer, form.sPrimaryServer);
    stored.SetWhole(Setting::PrimaryPort, form.iPrimaryPort);
    stored.Set(Setting::PrimaryFilter, form.sPrimaryFilter);
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

} // namespace

void LoadServerLists(MainWindow& main)
{
    for (const auto& [name, list] : kListFiles) {
        auto& entries = main.serverLists.*list;
        for (const auto& record :
             ReadRecords(main.services.files, JoinPath(main.services.programFolder, name), kListDelimiter))
            entries.Set(record.front(), record.front());
    }
    LoadServerForm(main.stored, main.frmTcp);
}

void SaveServerLists(MainWindow& main)
{
    SaveServerForm(main.stored, main.frmTcp);
    std::string unsaved;
    for (const auto& [name, list] : kListFiles) {
        TextTable table;
        for (const auto& [key, value] : main.serverLists.*list)
            table.push_back({key});
        if (table.empty())
            continue;
        try {
            WriteRecords(main.services.files, table, JoinPath(main.services.programFolder, name), kListDelimiter);
        } catch (const Failure& failure) { // The next list can be saved all the same.
            unsaved += unsaved.empty() ? "" : "; ";
            unsaved += failure.what();
        }
    }
    if (!unsaved.empty())
        throw Failure(unsaved);
}

} // namespace ruvenmark
