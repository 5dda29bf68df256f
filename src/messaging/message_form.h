#pragma once

#include "outgoing/road_boxes.h"

#include <cstdint>
#include <string>

namespace ruvenmark {

// What frmMessage keeps for the run, and its fields.
struct MessageForm {
    std::int32_t lMessageNumber = 0;               // Given last.
    std::int16_t iBulletinNumber = 0;              // Of the next one.
    std::int16_t iAnnouncementNumber = 0;          // Of the next one.
    std::string sFrom, sTo, sVia, sText;           // As of the last Send.
    bool bPrefillTo = false, bPrefillText = false; // The next opening keeps the field.
    bool bCancelled = true;
    RoadBoxes roads; // The ticks are what is wanted, whether the boxes show or not.

    std::int32_t cboMessageType = 0; // Message, bulletin, announcement.
    std::string txtFrom, txtTo, txtVia, txtMessage;
};

} // namespace ruvenmark
