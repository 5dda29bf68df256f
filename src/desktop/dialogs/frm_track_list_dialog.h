#pragma once

#include "desktop/dialogs/form_dialog.h"

#include <cstdint>
#include <span>
#include <string_view>

class QVBoxLayout;

namespace ruvenmark {

struct MainWindow;

// frmTrackList: the stations to be tracked, a list each channel, and how tracking shows and sounds.
class FrmTrackListDialog final : public FormDialog {
public:
    FrmTrackListDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    void AddLists(QVBoxLayout& layout);
    void AddLineFields(QVBoxLayout& layout);
    void AddSoundFields(QVBoxLayout& layout);

    QComboBox* MakeList(const char* name, const QString& label, std::span<const std::string_view> entries,
                        std::int32_t& field);

    MainWindow& m_main;
};

} // namespace ruvenmark
