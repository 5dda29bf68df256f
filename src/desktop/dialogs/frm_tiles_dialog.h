#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct MainWindow;

// frmTiles: the server of the online tiles.
class FrmTilesDialog final : public FormDialog {
public:
    FrmTilesDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    MainWindow& m_main;
};

} // namespace ruvenmark
