#pragma once

#include "desktop/dialogs/form_dialog.h"

#include <functional>

namespace ruvenmark {

struct MainWindow;

// frmObject: a report of something at a place. Not modal.
class FrmObjectDialog final : public FormDialog {
public:
    FrmObjectDialog(MainWindow& main, QWidget* parent);

    void accept() override;
    void Refresh() override;

private:
    MainWindow& m_main;
    std::function<void()> m_showRoads;
};

} // namespace ruvenmark
