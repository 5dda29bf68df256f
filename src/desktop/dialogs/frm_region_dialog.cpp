#include "desktop/dialogs/frm_region_dialog.h"

#include "desktop/named_control.h"
#include "desktop/shown_text.h"
#include "map/region_form.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace ruvenmark {

FrmRegionDialog::FrmRegionDialog(RegionForm& form, QWidget* parent) : FormDialog(parent)
{
    constexpr int kColumns = 3;
    setWindowTitle(QStringLiteral("Region"));
    auto* layout = new QGridLayout(this);
    auto* question = new QLabel(QStringLiteral("In which country do you operate? The map starts there."), this);
    layout->addWidget(question, 0, 0, 1, kColumns);
    int place = 0;
    for (const RegionButton& country : kRegionButtons) {
        auto* button = new QPushButton(ForDisplay(country.caption), this);
        NameControl(*button, std::string(country.key).c_str(), button->text());
        connect(button, &QPushButton::clicked, this, [this, &form, key = country.key] {
            frmRegion_Click(form, key);
            accept();
        });
        layout->addWidget(button, 1 + place / kColumns, place % kColumns);
        ++place;
    }
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace ruvenmark
