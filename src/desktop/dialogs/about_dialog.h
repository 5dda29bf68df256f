#pragma once

#include <QDialog>

namespace ruvenmark {

class IconSet;

// What the program is, its version, and whose work it stands on.
class AboutDialog final : public QDialog {
public:
    AboutDialog(const IconSet& icons, QWidget* parent);
};

} // namespace ruvenmark
