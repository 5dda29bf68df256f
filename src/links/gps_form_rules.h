#pragma once

#include <array>
#include <cstdint>

namespace ruvenmark {

struct GpsForm;
struct MainWindow;

inline constexpr std::array<std::int32_t, 8> kGpsBauds = {1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200};

// frmGps: what the dialog shows when it opens; cancelled until it is accepted.
void frmGps_Load(GpsForm& form);
// False where the operator was told why the dialog stays open.
bool frmGps_Accept(MainWindow& main);

void LoadGpsSettings(MainWindow& main);
void SaveGpsSettings(MainWindow& main);

} // namespace ruvenmark
