#pragma once

#include "desktop/dialogs/form_dialog.h"

#include <functional>

namespace ruvenmark {

struct MainWindow;

// frmPosition: a position report by hand. Not modal.
class FrmPositionDialog final : public FormDialog {
public:
    FrmPositionDialog(MainWindow& main, QWidget* parent);

    void accept() override;
    void Refresh() override;

private:
    MainWindow& m_main;
    std::function<void()> m_showRoads;
};

} // namespace ruvenmark
