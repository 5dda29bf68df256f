#pragma once

#include <cstdint>
#include <string>

namespace ruvenmark {

// frmTiles: the server of the online tiles.
struct TileForm {
    bool bAccepted = false;
    // What the dialog shows while it is open.
    std::int32_t cboServer = -1; // Index in kTileServers, -1: none of them.
    std::string txtUrl, txtCredit;
    bool chkOnline = false;
    std::string lblPolicy; // What the server's people ask of those who use it.
    std::string lblResult; // What the test, or the check of the address, came to.
};

} // namespace ruvenmark
