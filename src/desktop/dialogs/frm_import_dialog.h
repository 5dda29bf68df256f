#pragma once

#include <QDialog>

class QLineEdit;

namespace ruvenmark {

class IPrompts;
struct ImportForm;

// frmImport: how a station file is loaded.
class FrmImportDialog final : public QDialog {
public:
    FrmImportDialog(ImportForm& form, IPrompts& prompts, QWidget* parent);

    void accept() override;
    void reject() override;

private:
    bool MayLeaveDelay();

    ImportForm& m_form;
    IPrompts& m_prompts;
    QLineEdit* m_delay;
};

} // namespace ruvenmark
