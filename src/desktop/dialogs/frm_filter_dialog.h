#pragma once

#include "core/channel.h"
#include "tracking/filter_form_rules.h"

#include <QDialog>

#include <array>
#include <vector>

class QAbstractButton;
class QCheckBox;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace ruvenmark {

struct MainWindow;
struct ReportFilter;

// frmFilter: the three channels' filters, a tab each. Not modal: reports go on arriving.
class FrmFilterDialog final : public QDialog {
public:
    FrmFilterDialog(MainWindow& main, QWidget* parent);

    // The fields as the form has them now, with its tab in front.
    void Refresh();
    void accept() override;

private:
    struct BoundText {
        QLineEdit* edit;
        std::string* field;
    };
    struct BoundFlag {
        QCheckBox* box;
        bool* field;
    };
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
    std::array<QLabel*, 3> m_units{};
    std::vector<BoundText> m_texts;
    std::vector<BoundFlag> m_flags;
    std::vector<Checked> m_checked;
};

} // namespace ruvenmark
