#pragma once

#include <array>
#include <cstdint>

namespace ruvenmark {

struct MainWindow;
struct WxForm;

inline constexpr std::array<std::int32_t, 5> kWxBauds = {1200, 2400, 4800, 9600, 19200};

// frmWx: what the dialog shows when it opens; cancelled until it is accepted.
void frmWx_Load(WxForm& form);
// False where the operator was told why the dialog stays open.
bool frmWx_Accept(MainWindow& main);

} // namespace ruvenmark
