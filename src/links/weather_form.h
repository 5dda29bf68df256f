#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// frmWx: the weather station's port. The first fields outlive the window; nothing of them is stored.
struct WxForm {
    std::string sWxPort;
    std::int32_t lWxBaud = 0; // 0 when the dialog was cancelled.
};

} // namespace ruvenmark
