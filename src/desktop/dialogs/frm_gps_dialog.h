#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct MainWindow;

// frmGps: the port that a GPS receiver hangs on.
class FrmGpsDialog final : public FormDialog {
public:
    FrmGpsDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    MainWindow& m_main;
};

} // namespace ruvenmark
