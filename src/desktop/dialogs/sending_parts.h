#pragma once

#include "desktop/dialogs/binder.h"
#include "desktop/dialogs/dialog_buttons.h"

#include <cstdint>
#include <functional>
#include <span>

class QFormLayout;

namespace ruvenmark {

class FormDialog;
class IPrompts;
struct CallBoxes;
struct NumberRule;
struct RoadBoxes;
struct SymbolChoice;

// What the dialogs that send have in common.

// A row with a label that may have a mnemonic.
void AddRow(QFormLayout& rows, const QString& label, QWidget* field);
// So many characters can be seen in it.
void MakeWide(QLineEdit& edit, std::size_t characters);
// A line edit under its own name; the label may have a mnemonic.
QLineEdit* AddEdit(QDialog& dialog, Binder& binder, QFormLayout& rows, const char* name, const QString& label,
                   std::string& field);
// txtFrom, txtTo and txtVia.
void AddCalls(QDialog& dialog, Binder& binder, QFormLayout& rows, CallBoxes& calls);
// cboSymbol.
void AddSymbols(QDialog& dialog, Binder& binder, QFormLayout& rows, std::span<const SymbolChoice> symbols,
                std::int32_t& choice);
// Tells what is wrong with the number once its box is left, and shows what then stands there. All outlive the box.
void CheckWhenLeft(FormDialog& dialog, QLineEdit& edit, const DialogButtons& buttons, std::string& field,
                   const NumberRule& rule, IPrompts& prompts);
// chkRF and chkTCP, and why neither can be ticked; "OK" works while a box counts. Gives what shows that anew.
std::function<void()> AddRoads(QDialog& dialog, Binder& binder, QFormLayout& rows, RoadBoxes& roads,
                               const DialogButtons& buttons);
// "PinPoint" and "Minimize" before the dialog's own buttons.
struct FootActions {
    std::function<void()> pinPoint, minimize;
};
void AddFoot(QDialog& dialog, QFormLayout& rows, const DialogButtons& buttons, const FootActions& actions);

} // namespace ruvenmark
