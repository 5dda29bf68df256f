#pragma once

#include "map/region_form.h"

#include <QDialog>

#include <cstdint>

namespace ruvenmark {

// frmRegion: the operator's country decides which region the map shows.
class FrmRegionDialog final : public QDialog {
public:
    explicit FrmRegionDialog(QWidget* parent);

    std::int32_t SelectedRegion() const { return m_selectedRegion; }

private:
    std::int32_t m_selectedRegion = kFirstSelectedRegion;
};

} // namespace ruvenmark
