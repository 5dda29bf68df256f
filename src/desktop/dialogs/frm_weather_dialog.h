#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct MainWindow;

// frmWeather: a weather report by hand.
class FrmWeatherDialog final : public FormDialog {
public:
    FrmWeatherDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    MainWindow& m_main;
};

} // namespace ruvenmark
