#pragma once

#include "app/options.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace ruvenmark {

struct LineCounts;
struct MainWindow;

// What a run without a window has to show.
struct RunState {
    MainWindow& main;
    const LineCounts& lines;
    const std::vector<std::string>& messages; // Boxes that were shown, in order.
};

// For people: the parts one behind the other, each as indented lines.
void PrintText(std::ostream& out, const RunState& state, const std::vector<PrintPart>& parts);
// For programs: all parts as one JSON object.
void PrintJson(std::ostream& out, const RunState& state);

} // namespace ruvenmark
