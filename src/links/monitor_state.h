#pragma once

#include "platform/text_log.h"

namespace ruvenmark {

// frmTnc and frmTcpData: every line of this run as it was received.
struct MonitorState {
    TextLog txtTNCData;
    TextLog txtTCPData;
};

} // namespace ruvenmark
