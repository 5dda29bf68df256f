#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct MainWindow;

// frmStatus: a status report by hand.
class FrmStatusDialog final : public FormDialog {
public:
    FrmStatusDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    MainWindow& m_main;
};

} // namespace ruvenmark
