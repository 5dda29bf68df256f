#include "links/tnc_form_rules.h"

#include "core/main_window.h"
#include "core/stored_fields.h"
#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::int32_t kNotCancelled = 9600; // Stands for no rate: a socket has none.

// A number above 0 that fits.
template <class Read>
auto ReadPositive(const std::string& text, Read read) -> std::optional<decltype(read(text))>
{
    try {
        if (const auto value = read(text); value > 0)
            return value;
    } catch (const Failure&) { // No number is as good as nothing entered.
    }
    return std::nullopt;
}

void ShowAuto(TncForm& form)
{
    form.chkAuto = form.bAutoConnect && form.bAutoSerialPort == IsSerialShown(form);
}

std::int16_t BaudPosition(const std::string& text)
{
    const auto* found = std::find(kTncBauds.begin(), kTncBauds.end(), text);
    return static_cast<std::int16_t>(found == kTncBauds.end() ? -1 : found - kTncBauds.begin());
}

// A rate that was typed stands at no place of the list.
std::string BaudText(const TncForm& form)
{
    if (form.iBaudListIndex >= 0 && static_cast<std::size_t>(form.iBaudListIndex) < kTncBauds.size())
        return std::string(kTncBauds[static_cast<std::size_t>(form.iBaudListIndex)]);
    return form.lLastBaudRate > 0 ? ShortText(std::int64_t{form.lLastBaudRate}) : std::string();
}

bool AcceptSocket(TncForm& form, IPrompts& prompts)
{
    const auto port = ReadPositive(form.txtSocketPort, [](const std::string& text) { return ToInt16(text); });
    if (form.txtSocketAddress.empty() || !port) {
        prompts.Message("You must enter a computer address and socket port number!");
        return false;
    }
    form.lSerialBaud = kNotCancelled;
    form.bConnectSocket = true;
    form.sSocketAddress = form.txtSocketAddress;
    form.iSocketPort = *port;
    commDialog_chkAuto_Click(form);
    form.bAddRFSymbol = form.chkAdd;
    return true;
}

bool AcceptSerial(TncForm& form, IPrompts& prompts)
{
    const auto baud = ReadPositive(form.cboSerialBaud, [](const std::string& text) { return ToInt32(text); });
    if (form.cboSerialPort.empty() || !baud) {
        prompts.Message("You must select a serial port and baud rate!");
        return false;
    }
    form.bConnectSocket = false;
    form.sSerialPort = form.cboSerialPort;
    form.lSerialBaud = form.lLastBaudRate = *baud;
    form.bTncGps = form.chkTncGps;
    commDialog_chkAuto_Click(form);
    if (form.bTncGps) {
        form.iSentenceIndex = static_cast<std::int16_t>(form.cboSentence);
        form.iUpdateRateIndex = static_cast<std::int16_t>(form.cboUpdateRate);
        const auto sentence = static_cast<std::size_t>(form.cboSentence);
        form.sGpsSentence = sentence < kGpsSentences.size() ? kGpsSentences[sentence] : std::string_view();
    }
    form.bAddRFSymbol = form.chkAdd;
    form.iBaudListIndex = BaudPosition(form.cboSerialBaud);
    return true;
}

template <class Form, class Field>
void EachStoredField(Form& form, const Field& field)
{
    field(Setting::ConnectSocket, form.bConnectSocket);
    field(Setting::SerialPort, form.sSerialPort);
    field(Setting::BaudIndex, form.iBaudListIndex);
    field(Setting::SentenceIndex, form.iSentenceIndex);
    field(Setting::UpdateRateIndex, form.iUpdateRateIndex);
    field(Setting::LastBaudRate, form.lLastBaudRate);
    field(Setting::AddRFSymbol, form.bAddRFSymbol);
    field(Setting::TncGps, form.bTncGps);
    field(Setting::SerialAutoConnect, form.bAutoConnect);
    field(Setting::AutoConnectType, form.bAutoSerialPort);
    field(Setting::SocketAddress, form.sSocketAddress);
    field(Setting::SocketPort, form.iSocketPort);
}

} // namespace

std::string UpdateRateText(int position)
{
    if (position == 0)
        return "No Update";
    if (position == 1)
        return "Every Second";
    return "Every " + ShortText(std::int64_t{UpdateRateSeconds(position)}) + " Seconds";
}

std::int16_t UpdateRateSeconds(std::int32_t position)
{
    if (position < 0 || position >= kUpdateRates)
        return 0;
    if (position <= 10)
        return static_cast<std::int16_t>(position);
    return static_cast<std::int16_t>(position <= 19 ? (position - 10) * 10 + 10 : (position - 20) * 50 + 150);
}

void commDialog_Load(TncForm& form)
{
    form.lSerialBaud = 0;
    form.cboConnect = form.bConnectSocket ? 1 : 0;
    form.txtSocketAddress = form.sSocketAddress.empty() ? "127.0.0.1" : form.sSocketAddress;
    form.txtSocketPort = form.iSocketPort == 0 ? "8000" : ShortText(std::int64_t{form.iSocketPort});
    if (!form.sSerialPort.empty())
        form.cboSerialPort = form.sSerialPort;
    form.cboSerialBaud = BaudText(form);
    form.cboSentence = form.iSentenceIndex;
    form.cboUpdateRate = form.iUpdateRateIndex;
    form.chkTncGps = form.bTncGps;
    form.chkAdd = form.bAddRFSymbol;
    ShowAuto(form);
}

void commDialog_cboConnect_Click(TncForm& form)
{
    ShowAuto(form);
}

void commDialog_chkAuto_Click(TncForm& form)
{
    form.bAutoConnect = form.chkAuto;
    if (form.chkAuto)
        form.bAutoSerialPort = IsSerialShown(form);
}

bool IsSerialShown(const TncForm& form)
{
    return form.cboConnect == 0;
}

bool AreGpsListsEnabled(const TncForm& form)
{
    return IsSerialShown(form) && form.chkTncGps;
}

bool commDialog_Accept(MainWindow& main)
{
    TncForm& form = main.commDialog;
    if (!IsSerialShown(form))
        return AcceptSocket(form, main.services.prompts);
    if (main.links.bGpsConnected && form.cboSerialPort == main.frmGps.sGPSPort) {
        main.services.prompts.Message("You are already connected to GPS on " + form.cboSerialPort + "!");
        return false;
    }
    return AcceptSerial(form, main.services.prompts);
}

void commDialog_Cancel(TncForm& form)
{
    form.lSerialBaud = 0;
}

void LoadCommSettings(MainWindow& main)
{
    EachStoredField(main.commDialog, LoadField{main.stored});
}

void SaveCommSettings(MainWindow& main)
{
    EachStoredField(std::as_const(main.commDialog), SaveField{main.stored});
}

} // namespace ruvenmark
