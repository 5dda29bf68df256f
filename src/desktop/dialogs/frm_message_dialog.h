#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct MainWindow;

// frmMessage: a message, bulletin or announcement is written.
class FrmMessageDialog final : public FormDialog {
public:
    FrmMessageDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    MainWindow& m_main;
};

} // namespace ruvenmark
