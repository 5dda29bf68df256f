#pragma once

#include "desktop/dialogs/form_dialog.h"

namespace ruvenmark {

class IconSet;

// What the program is, its version, and whose work it stands on.
class AboutDialog final : public FormDialog {
public:
    AboutDialog(const IconSet& icons, QWidget* parent);
};

} // namespace ruvenmark
