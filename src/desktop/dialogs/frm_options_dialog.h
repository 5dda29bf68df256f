#pragma once

#include "desktop/dialogs/form_dialog.h"
#include "options/option_boxes.h"

#include <vector>

class QGridLayout;
class QPushButton;

namespace ruvenmark {

struct MainWindow;

// frmOptions: the settings, a tab a page, as their table tells them. Not modal: reports go on arriving.
class FrmOptionsDialog final : public FormDialog {
public:
    FrmOptionsDialog(MainWindow& main, QWidget* parent);

    void accept() override;
    void Refresh() override;

private:
    struct NumberEdit {
        QLineEdit* edit;
        const OptionBox* box;
    };

    QWidget* MakePage(OptionPage page);
    void FillFrame(QGridLayout& rows, OptionFrame frame);
    void AddRow(QGridLayout& rows, const OptionBox& box);
    void AddTick(QGridLayout& rows, const OptionBox& box);
    void AddRadio(QGridLayout& rows, const OptionBox& box);
    QWidget* MakeField(const OptionBox& box);
    QWidget* MakeList(const OptionBox& box);
    QWidget* MakeEdit(const OptionBox& box);
    QPushButton* MakeBrowse(const OptionBox& box);
    QPushButton* MakePinPoint();
    void CheckBox(const OptionBox& box);
    void ShowFallbacks();
    void ShowPinPoint();

    MainWindow& m_main;
    OptionsForm& m_form;
    QTabWidget* m_tabs;
    QPushButton* m_pinPoint = nullptr;
    std::vector<NumberEdit> m_numbers;
    std::vector<QComboBox*> m_lists;
};

} // namespace ruvenmark
