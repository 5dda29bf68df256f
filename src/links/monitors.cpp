#include "links/monitors.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "platform/failure.h"
#include "platform/numbers.h"

#include <string>

namespace ruvenmark {

namespace {

void Toggle(MainWindow& main, Form form)
{
    if (main.services.dialogs.IsVisible(form))
        main.services.dialogs.Hide(form);
    else
        main.services.dialogs.Show(form, main);
}

bool LogsTcpData(const MainWindow& main)
{
    return ToBool(SettingText(main.Settings, Setting::LogTcpData));
}

// An empty log leaves the file of an earlier run.
bool SaveLog(MainWindow& main, const TextLog& log, Setting setting, std::string_view complaint, bool bMayAsk)
{
    const std::string& path = SettingText(main.Settings, setting);
    if (path.empty() || log.IsEmpty())
        return true;
    const bool bSaved =
        Attempt(main.abandoned, complaint, [&] { main.services.files.WriteText(log.Text(), path, FileKind::List); });
    if (!bSaved && bMayAsk)
        main.services.prompts.Message(std::string(complaint) + path);
    else if (!bSaved)
        Tell(main, std::string(complaint) + path);
    return bSaved;
}

} // namespace

void AddTNCData(MainWindow& main, std::string_view sTNCData)
{
    main.monitors.txtTNCData.AddLine(sTNCData);
}

void AddTCPData(MainWindow& main, std::string_view sTCPData)
{
    Attempt(main.abandoned, "AddTCPData", [&] {
        if (LogsTcpData(main))
            main.monitors.txtTCPData.AddLine(sTCPData);
    });
}

void aprs_ReportRawData(MainWindow& main, std::string_view bstrRawData)
{
    AddTNCData(main, bstrRawData);
    main.sbStatusBar.SetPacketLine(bstrRawData);
}

void aprstcp_ReportRawData(MainWindow& main, std::string_view bstrRawData)
{
    AddTCPData(main, bstrRawData);
}

void mnuViewTncData_Click(MainWindow& main)
{
    Toggle(main, Form::frmTnc);
}

void mnuViewTcpData_Click(MainWindow& main)
{
    Toggle(main, Form::frmTcpData);
}

bool SaveMonitorLogs(MainWindow& main, bool bMayAsk)
{
    bool bAll = SaveLog(main, main.monitors.txtTNCData, Setting::TNCLog, "Failed to save tnc log to ", bMayAsk);
    bAll &= SaveLog(main, main.monitors.txtTCPData, Setting::TCPLog, "Failed to save tcp log to ", bMayAsk);
    return bAll;
}

} // namespace ruvenmark
