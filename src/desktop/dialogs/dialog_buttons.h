#pragma once

class QDialog;
class QLayout;
class QPushButton;
class QString;

namespace ruvenmark {

// The buttons at the foot of a dialog, at its right edge: the one that Enter presses, and the one that Escape presses.
struct DialogButtons {
    QPushButton* accept;
    QPushButton* cancel;
    QLayout* row;
};
DialogButtons MakeDialogButtons(QDialog& dialog, const QString& acceptText);

} // namespace ruvenmark
