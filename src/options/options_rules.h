#pragma once

#include "options/option_boxes.h"

#include <string>

namespace ruvenmark {

struct MainWindow;

// The fields as the settings stand.
void frmOptions_Load(MainWindow& main);
// A box was left: a text that is no such number is emptied; the message for it, if it has one.
std::string frmOptions_LostFocus(OptionsForm& form, const OptionBox& box);
// PinPoint is offered on the page of the position alone.
bool IsPinPointOffered(const OptionsForm& form);

// Stores the fields, with effect at once, and closes the dialog; not while something is missing or wrong.
void frmOptions_Save(MainWindow& main);
void frmOptions_PinPoint(MainWindow& main);
void frmOptions_Browse(MainWindow& main, const OptionBox& box); // For the file of the box.

// Commands. A dialog that is visible already keeps what was typed.
void mnuViewOptions_Click(MainWindow& main);
void mnuMsgboxOptions_Click(MainWindow& main); // With the page of messages in front.
void mnuMyStationEdit_Click(MainWindow& main); // With that of the selected node.

} // namespace ruvenmark
