#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// frmWx: the weather station's port. The first fields outlive the window; nothing of them is stored.
struct WxForm {
    std::string sWxPort;
    std::int32_t lWxBaud = 0; // 0 when the dialog was cancelled.
    // What the dialog shows while it is open.
    std::string cboPort;
    std::int32_t cboBaud = -1; // Of kWxBauds.
};

} // namespace ruvenmark
