#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

struct RegionForm;

// frmRegion: the operator's country decides which region the map shows.
class FrmRegionDialog final : public FormDialog {
public:
    FrmRegionDialog(RegionForm& form, QWidget* parent);
};

} // namespace ruvenmark
