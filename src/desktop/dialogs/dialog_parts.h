#pragma once

#include <QString>

class QCheckBox;
class QDialog;
class QLayout;
class QPushButton;
class QWidget;

// What the dialogs and the bars have in common.
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

// A named box that shows a flag of the logic; see Bind.
QCheckBox* MakeBoundBox(QWidget* parent, const char* name, const QString& text, bool& field);

// Pixels that a field needs for any latitude and longitude.
int CoordinatesWidth(const QWidget& field);

} // namespace ruvenmark
