#pragma once

#include "desktop/dialogs/form_dialog.h"

#include <QFont>

class QFormLayout;
class QPushButton;

namespace ruvenmark {

struct MainWindow;

// frmGpsPanel: the fix and the way to the destination, to be read at a glance. Not modal; closed, it is only hidden.
class FrmGpsPanel final : public FormDialog {
public:
    FrmGpsPanel(MainWindow& main, QWidget* parent);

private:
    QLabel* MakeValue(const char* name, const std::string& text);
    QPushButton* MakeButton(const char* name, const QString& text, void (*run)(MainWindow&));
    QFormLayout* MakeReadings();
    QWidget* MakeDestination();

    MainWindow& m_main;
    QFont m_large;
};

} // namespace ruvenmark
