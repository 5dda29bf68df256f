#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

struct MainWindow;
struct TncForm;

// commDialog's lists.
inline constexpr std::array<std::string_view, 2> kTncConnects = {"Serial port", "AGW packet engine"};
inline constexpr std::array<std::string_view, 8> kTncBauds = {"1200",  "2400",  "4800",  "9600",
                                                              "19200", "38400", "57600", "115200"};
inline constexpr std::array<std::string_view, 3> kGpsSentences = {"$GPGGA", "$GPRMC", "$GPGLL"};
inline constexpr int kUpdateRates = 24;
std::string UpdateRateText(int position);              // "Every 2 Seconds"
std::int16_t UpdateRateSeconds(std::int32_t position); // 0 for none, and outside the list.

// What the dialog shows when it opens; cancelled until it is accepted.
void commDialog_Load(TncForm& form);
void commDialog_cboConnect_Click(TncForm& form);
// At once, whatever then becomes of the dialog.
void commDialog_chkAuto_Click(TncForm& form);
bool IsSerialShown(const TncForm& form); // Else the controls of the AGW Packet Engine show.
bool AreGpsListsEnabled(const TncForm& form);
// Takes what was entered, or tells the operator what is wrong with it. Whether the window closes.
bool commDialog_Accept(MainWindow& main);
void commDialog_Cancel(TncForm& form);

void LoadCommSettings(MainWindow& main);
void SaveCommSettings(MainWindow& main);

} // namespace ruvenmark
