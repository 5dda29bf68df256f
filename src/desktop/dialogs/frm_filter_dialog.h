#pragma once

#include "core/channel.h"
#include "desktop/dialogs/form_dialog.h"
#include "tracking/filter_form_rules.h"

#include <vector>

class QAbstractButton;

namespace ruvenmark {

struct MainWindow;
struct ReportFilter;

// frmFilter: the three channels' filters, a tab each. Not modal: reports go on arriving.
class FrmFilterDialog final : public FormDialog {
public:
    FrmFilterDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    struct Checked {
        Channel channel;
        FilterField field;
    };

    QWidget* MakeTab(const FilterTabTexts& texts, QAbstractButton& cancel);
    QWidget* MakeRangeFrame(const FilterTabTexts& texts, ReportFilter& filter, QAbstractButton& cancel);
    QLineEdit* MakeEdit(const FilterTabTexts& texts, const char* name, const QString& label, const QString& hint,
                        std::string& field);
    QCheckBox* MakeBox(const FilterTabTexts& texts, const char* name, const QString& text, bool& field);
    QLineEdit* MakeNumber(const FilterTabTexts& texts, const char* name, const QString& label, const QString& hint,
                          std::string& field, FilterField which, QAbstractButton& cancel);
    bool CheckField(Checked checked);

    MainWindow& m_main;
    QTabWidget* m_tabs;
    QWidget* m_lastField = nullptr; // In the order of the Tab key.
    std::vector<Checked> m_checked;
};

} // namespace ruvenmark
