#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct OpenMessageForm;

// frmOpenMessage: a received message is read, and answered on wish.
class FrmOpenMessageDialog final : public FormDialog {
public:
    FrmOpenMessageDialog(OpenMessageForm& form, QWidget* parent);

    void accept() override;

private:
    OpenMessageForm& m_form;
};

} // namespace ruvenmark
