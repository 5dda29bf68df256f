#include "desktop/dialogs/frm_weather_dialog.h"

#include "core/main_window.h"
#include "desktop/dialogs/field_check.h"
#include "desktop/dialogs/sending_parts.h"
#include "outgoing/weather_report_form_rules.h"

#include <QFormLayout>
#include <QPushButton>

namespace ruvenmark {

FrmWeatherDialog::FrmWeatherDialog(MainWindow& main, QWidget* parent) : FormDialog(parent), m_main(main)
{
    constexpr std::array<const char*, 9> kLabels = {"Wind &direction (degrees)",
                                                    "Wind &speed (mph)",
                                                    "&Gust (mph)",
                                                    "Te&mperature (°F)",
                                                    "Rain last &hour (0.01 in)",
                                                    "Rain last 2&4 hours (0.01 in)",
                                                    "Rain since mid&night (0.01 in)",
                                                    "H&umidity (%)",
                                                    "&Pressure (0.1 mBar)"};
    setWindowTitle(QStringLiteral("Send Weather"));
    auto* rows = new QFormLayout(this);
    const DialogButtons buttons = MakeDialogButtons(*this, QStringLiteral("S&end"));
    AddCalls(*this, Bound(), *rows, main.frmWeather.calls);
    for (std::size_t i = 0; i < kLabels.size(); ++i) {
        std::string& field = main.frmWeather.boxes[i];
        QLineEdit* edit = AddEdit(*this, Bound(), *rows, std::string(kWeatherBoxes[i].name).c_str(),
                                  QString::fromUtf8(kLabels[i]), field);
        new FieldCheck(*edit, *buttons.cancel, [this, &field, i] {
            if (const auto message = CheckNumber(field, kWeatherBoxes[i].rule)) {
                Refresh();
                m_main.services.prompts.Message(*message);
            }
            return true;
        });
    }
    AddRoads(*this, Bound(), *rows, main.frmWeather.roads, buttons);
    rows->addRow(buttons.row);
}

void FrmWeatherDialog::accept()
{
    if (const std::string_view wrong = frmWeather_Accept(m_main); !wrong.empty())
        return m_main.services.prompts.Message(wrong);
    QDialog::accept();
}

} // namespace ruvenmark
