#include "messaging/message_form_rules.h"

#include "core/main_window.h"
#include "messaging/message_files.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <cstddef>

namespace ruvenmark {

namespace {

constexpr std::size_t kLongestRecipient = 9, kLongestMessage = 67;
constexpr std::int32_t kNumbers = 100000;
constexpr std::int16_t kBulletins = 10, kAnnouncements = 26;

const std::string& Or(const std::string& kept, const std::string& otherwise)
{
    return kept.empty() ? otherwise : kept;
}

// Bytes, as the limit on the air is one of bytes.
std::string Complaint(const MessageForm& form)
{
    if (form.txtFrom.empty() || form.txtTo.empty())
        return "You must enter call sign and recipient!";
    if (form.txtMessage.empty())
        return "Message field can not be empty!";
    if (form.txtTo.size() > kLongestRecipient)
        return "Recipient call sign can not be longer than 9 characters!";
    if (form.txtMessage.size() > kLongestMessage)
        return "Message can not be longer than 67 characters!";
    for (const std::string* field : {&form.txtFrom, &form.txtTo, &form.txtVia, &form.txtMessage})
        if (BreaksBoxFile(*field))
            return "Message can not contain \"#####\" or a line break!";
    return {};
}

void RaiseNumber(MessageForm& form)
{
    if (form.cboMessageType == 0)
        form.lMessageNumber = (form.lMessageNumber + 1) % kNumbers;
    else if (form.cboMessageType == 1)
        form.iBulletinNumber = static_cast<std::int16_t>((form.iBulletinNumber + 1) % kBulletins);
    else
        form.iAnnouncementNumber = static_cast<std::int16_t>((form.iAnnouncementNumber + 1) % kAnnouncements);
}

} // namespace

void frmMessage_Load(MainWindow& main)
{
    MessageForm& form = main.frmMessage;
    Load(form.roads, main.links);
    form.cboMessageType = 0;
    form.txtFrom = Or(form.sFrom, SettingText(main.Settings, Setting::Call));
    form.txtTo = form.bPrefillTo ? form.sTo : std::string();
    form.txtVia = Or(form.sVia, SettingText(main.Settings, Setting::Path));
    form.txtMessage = form.bPrefillText ? form.sText : std::string();
    form.bPrefillTo = form.bPrefillText = false;
    form.bCancelled = true;
}

void frmMessage_cboMessageType_Click(MessageForm& form)
{
    if (form.cboMessageType == 1)
        form.txtTo = "BLN" + ShortText(std::int64_t{form.iBulletinNumber});
    else if (form.cboMessageType == 2)
        form.txtTo = std::string("BLN") + static_cast<char>('A' + form.iAnnouncementNumber);
    else
        form.txtTo.clear();
}

std::string frmMessage_Send(MessageForm& form)
{
    for (std::string* call : {&form.txtFrom, &form.txtTo, &form.txtVia})
        *call = Trim(*call); // It is found by its letters, at its place.
    std::string complaint = Complaint(form);
    if (!complaint.empty())
        return complaint;
    form.sFrom = ToUpper(form.txtFrom);
    form.sTo = ToUpper(form.txtTo);
    form.sVia = ToUpper(form.txtVia);
    form.sText = form.txtMessage;
    RaiseNumber(form);
    form.bCancelled = false;
    return {};
}

} // namespace ruvenmark
