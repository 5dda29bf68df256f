#include "links/server_password.h"

#include "core/main_window.h"
#include "platform/failure.h"
#include "platform/files.h"
#include "platform/records.h"
#include "platform/text.h"

#include <utility>

namespace ruvenmark {

namespace {

constexpr std::string_view kPasswordFile = "igatepw.txt";
constexpr std::string_view kNoPassword = "-1";

void WarnOfRights(MainWindow& main, const std::string& path)
{
    if (!main.services.files.IsReadableByOthers(path) || std::exchange(main.links.bPasswordFileTold, true))
        return;
    main.services.notices.Say("the password file " + path + " can be read by others: chmod 600 makes it private");
}

} // namespace

std::string GetServerPassword(MainWindow& main, std::string_view call)
{
    const std::string base = ToUpper(call.substr(0, call.find('-')));
    const std::string path = JoinPath(main.services.programFolder, kPasswordFile);
    WarnOfRights(main, path);
    std::string password(kNoPassword);
    for (const TextRecord& record : ReadRecords(main.services.files, path, ":")) {
        if (record.size() < 2) // Somebody broke off here; what stands before still holds.
            break;
        if (ToUpper(record[0]) == base)
            password = record[1];
    }
    return password;
}

} // namespace ruvenmark
