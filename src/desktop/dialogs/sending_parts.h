#pragma once

#include "desktop/dialogs/binder.h"
#include "desktop/dialogs/dialog_buttons.h"

#include <functional>

class QFormLayout;

namespace ruvenmark {

struct CallBoxes;
struct RoadBoxes;

// What the dialogs that send have in common.

// A line edit under its own name; the label may have a mnemonic.
QLineEdit* AddEdit(QDialog& dialog, Binder& binder, QFormLayout& rows, const char* name, const QString& label,
                   std::string& field);
// txtFrom, txtTo and txtVia.
void AddCalls(QDialog& dialog, Binder& binder, QFormLayout& rows, CallBoxes& calls);
// chkRF and chkTCP; "OK" works while a box counts. Gives what shows that anew.
std::function<void()> AddRoads(QDialog& dialog, Binder& binder, QFormLayout& rows, RoadBoxes& roads,
                               const DialogButtons& buttons);

} // namespace ruvenmark
