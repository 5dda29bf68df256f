#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct MainWindow;

// frmWx: the port that a weather station hangs on.
class FrmWxDialog final : public FormDialog {
public:
    FrmWxDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    MainWindow& m_main;
};

} // namespace ruvenmark
