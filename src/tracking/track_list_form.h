#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace ruvenmark {

// frmTrackList: what the dialog shows while it is open.
struct TrackListForm {
    bool bCancelled = true;
    std::array<std::string, 3> txtTrackList; // By channel: calls, blanks between.
    bool chkTrackStation = true;
    bool chkTrackLine = true;
    std::int32_t cboTLSize = 1;  // Index in the list.
    std::int32_t cboTLStyle = 1; // Index in the list.
    bool chkPlayWave = true;
    std::string txtTrackWaveFile;
};

} // namespace ruvenmark
