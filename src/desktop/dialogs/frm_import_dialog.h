#pragma once

#include "desktop/dialogs/form_dialog.h"

class QLineEdit;

namespace ruvenmark {

class IPrompts;
struct ImportForm;

// frmImport: how a station file is loaded.
class FrmImportDialog final : public FormDialog {
public:
    FrmImportDialog(ImportForm& form, IPrompts& prompts, QWidget* parent);

    void accept() override;

private:
    bool MayLeaveDelay();

    ImportForm& m_form;
    IPrompts& m_prompts;
    QLineEdit* m_delay;
};

} // namespace ruvenmark
