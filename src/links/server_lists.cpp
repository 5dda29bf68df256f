#include "links/server_lists.h"

#include "core/main_window.h"
#include "links/text_files.h"
#include "platform/numbers.h"

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

void LoadServerForm(const ISettingsStore& store, ServerForm& form)
{
    form.sPrimaryServer = store.Get("PrimaryServer", "");
    form.iPrimaryPort = ToInt16(store.Get("PrimaryPort", "-1"));
    form.sPrimaryFilter = store.Get("PrimaryFilter", "");
    form.bServerBeacon = ToBool(store.Get("ServerBeacon", "True"));
    form.bAddTCPSymbol = ToBool(store.Get("AddTCPSymbol", "True"));
    form.bReconnectServer = ToBool(store.Get("ReconnectServer", "False"));
    form.iReconnectAttempt = ToInt16(store.Get("ReconnectAttempt", "0"));
    form.sBackupServer = store.Get("BackupServer", "");
    form.iBackupPort = ToInt16(store.Get("BackupPort", "-1"));
    form.sBackupFilter = store.Get("BackupFilter", "");
    form.bBackupBeacon = ToBool(store.Get("BackupBeacon", "False"));
    form.bAutoTCP = ToBool(store.Get("AutoTCP", "False"));
}

void SaveServerForm(ISettingsStore& store, const ServerForm& form)
{
    store.Set("PrimaryServer", form.sPrimaryServer);
    store.Set("PrimaryPort", ShortText(std::int64_t{form.iPrimaryPort}));
    store.Set("PrimaryFilter", form.sPrimaryFilter);
    store.Set("ServerBeacon", BoolText(form.bServerBeacon));
    store.Set("AddTCPSymbol", BoolText(form.bAddTCPSymbol));
    store.Set("ReconnectServer", BoolText(form.bReconnectServer));
    store.Set("ReconnectAttempt", ShortText(std::int64_t{form.iReconnectAttempt}));
    store.Set("BackupServer", form.sBackupServer);
    store.Set("BackupPort", ShortText(std::int64_t{form.iBackupPort}));
    store.Set("BackupFilter", form.sBackupFilter);
    store.Set("BackupBeacon", BoolText(form.bBackupBeacon));
    store.Set("AutoTCP", BoolText(form.bAutoTCP));
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
    LoadServerForm(main.services.store, main.frmTcp);
    main.serverLists.bLoaded = true;
}

void SaveServerLists(MainWindow& main)
{
    if (!main.serverLists.bLoaded)
        return;
    for (const auto& [name, list] : kListFiles) {
        TextTable table;
        for (const auto& [key, value] : main.serverLists.*list)
            table.push_back({key});
        if (!table.empty())
            Attempt(main.abandoned, "Stop, " + std::string(name), [&, file = name] {
                WriteRecords(main.services.files, table, JoinPath(main.services.programFolder, file), kListDelimiter);
            });
    }
    SaveServerForm(main.services.store, main.frmTcp);
}

} // namespace ruvenmark
