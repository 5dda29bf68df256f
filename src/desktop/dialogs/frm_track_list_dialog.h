#pragma once

#include <QDialog>

class QVBoxLayout;

namespace ruvenmark {

struct MainWindow;

// frmTrackList: the stations to be tracked, a list each channel, and how tracking shows and sounds.
class FrmTrackListDialog final : public QDialog {
public:
    FrmTrackListDialog(MainWindow& main, QWidget* parent);

    void accept() override;

private:
    void AddLists(QVBoxLayout& layout);
    void AddLineFields(QVBoxLayout& layout);
    void AddSoundFields(QVBoxLayout& layout);

    MainWindow& m_main;
};

} // namespace ruvenmark
