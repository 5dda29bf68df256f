#pragma once

#include "core/number_rule.h"

#include <array>

namespace ruvenmark {

struct MainWindow;
struct PositionForm;

using PositionBox = NumberBox<PositionForm>;
extern const std::array<PositionBox, 7> kPositionBoxes;

void frmPosition_Load(MainWindow& main);
void frmPosition_Send(MainWindow& main); // Closes the dialog, unless something is missing or wrong.
void frmPosition_PinPoint(MainWindow& main);
void frmPosition_Minimize(MainWindow& main); // The dialog alone, until the command brings it back.

void mnuSendPosition_Click(MainWindow& main); // A dialog that is visible already keeps what was typed.

} // namespace ruvenmark
