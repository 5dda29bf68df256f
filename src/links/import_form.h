#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// frmImport: how a station file is loaded.
inline constexpr std::int16_t kLoadCancelled = -1;
struct ImportForm {
    std::int16_t iFLDelay = 0; // Milliseconds after each line, or kLoadCancelled.
    bool bFLAdd = true;        // A marker for each report.
    bool bFLShow = true;       // New markers show their names.
    std::int32_t speed = 0;    // Index in kReplaySpeeds; of this run only, and the player changes it during a load.
    // What the dialog shows while it is open.
    std::string txtDelay;
    bool chkAdd = true;
    bool chkShow = true;
    std::int32_t cboSpeed = 0;
};

} // namespace ruvenmark
