#pragma once

#include <QString>

class QDialog;
class QLayout;
class QPushButton;
class QWidget;

// What the dialogs have in common.
namespace ruvenmark {

// The buttons at the foot of a dialog, at its right edge: the one that Enter presses, and the one that Escape presses.
struct DialogButtons {
    QPushButton* accept;
    QPushButton* cancel;
    QLayout* row;
};
DialogButtons MakeDialogButtons(QDialog& dialog, const QString& acceptText);

// Name for tests and for accessibility; the label's text without its mnemonic is what is read out.
void NameControl(QWidget& control, const char* objectName, const QString& label);

} // namespace ruvenmark
