#include "links/weather_form_rules.h"

#include "core/main_window.h"

#include <cstddef>

namespace ruvenmark {

namespace {

constexpr std::int32_t kFirstBaud = 1; // 2400, the rate of most stations, whatever was used last.
static_assert(kWxBauds[kFirstBaud] == 2400);

} // namespace

void frmWx_Load(WxForm& form)
{
    form.cboPort = form.sWxPort;
    form.cboBaud = kFirstBaud;
    form.lWxBaud = 0;
}

bool frmWx_Accept(MainWindow& main)
{
    WxForm& form = main.frmWx;
    const auto place = static_cast<std::size_t>(form.cboBaud);
    if (form.cboPort.empty() || form.cboBaud < 0 || place >= kWxBauds.size()) {
        main.services.prompts.Message("You must select port and baud rate!");
        return false;
    }
    form.sWxPort = form.cboPort;
    form.lWxBaud = kWxBauds[place];
    return true;
}

} // namespace ruvenmark
