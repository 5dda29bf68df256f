#pragma once

#include "outgoing/send_to_links.h"

#include <string_view>

namespace ruvenmark {

struct CallBoxes;
struct MainWindow;
struct RoadBoxes;

// Every report takes this way: as SendToLinks, and the operator sees what was sent over what. Ahead of a run's first
// one a line says over which links reports go. Raises Failure, also where nobody is the sender.
void SendReport(MainWindow& main, const OutgoingReport& report, Roads wanted);

// The TNC did not take a report that was told as sent: the operator sees that, too.
void aprs_ReportNotSent(MainWindow& main, std::string_view text);

// Under the tactical call where it is told to, else under the own one. Raises Failure.
void SendOwnReport(MainWindow& main, std::string_view text, Roads wanted);
// From a dialog; a Failure is told in the box.
void SendByHand(MainWindow& main, const CallBoxes& calls, const RoadBoxes& boxes, std::string_view text,
                std::string_view complaint);

} // namespace ruvenmark
