#include "outgoing/status_report.h"

#include "core/main_window.h"
#include "outgoing/my_station.h"
#include "outgoing/send_report.h"

namespace ruvenmark {

void frmStatus_Load(MainWindow& main)
{
    StatusForm& form = main.frmStatus;
    Load(form.roads, main.links);
    Load(form.calls, main.Settings);
    form.txtStatus = form.Status;
    form.bCancelled = true;
}

std::string_view frmStatus_Accept(MainWindow& main)
{
    StatusForm& form = main.frmStatus;
    if (form.calls.txtFrom.empty() || form.calls.txtTo.empty())
        return "You must enter call sign and unproto!";
    if (form.txtStatus.empty())
        return "Status field can not be empty!";
    if (form.txtStatus.size() > kLongestStatus)
        return "Status text can not have more than 62 characters!";
    Keep(form.calls);
    form.Status = form.txtStatus;
    form.bCancelled = false;
    return {};
}

void mnuSendStatus_Click(MainWindow& main)
{
    StatusForm& form = main.frmStatus;
    frmStatus_Load(main);
    main.services.dialogs.Run(Form::frmStatus, main);
    if (!form.bCancelled)
        SendByHand(main, form.calls, form.roads, '>' + form.Status,
                   "Status report not sent correctly, check TNC connection!");
    ShowOwnCall(main);
}

} // namespace ruvenmark
