#pragma once

#include <cstdint>

namespace ruvenmark {

struct MainWindow;

// The dialogs, as the logic opens them. Their fields are structs of the logic; their rules are functions beside those.
class IDialogs {
public:
    virtual ~IDialogs() = default;

    // Modal: back when the dialog is closed.
    virtual std::int32_t RunRegion() = 0;            // frmRegion: the region; 1 when it was closed without a choice.
    virtual void RunImport(MainWindow& main) = 0;    // frmImport
    virtual void RunTrackList(MainWindow& main) = 0; // frmTrackList
    virtual void RunAbout(MainWindow& main) = 0;

    // Modeless: shown, or brought to the front when it is visible already (a minimised one counts as visible).
    virtual void ShowFilter(MainWindow& main) = 0; // frmFilter
    virtual bool IsFilterVisible() const = 0;
    virtual void ShowFind(MainWindow& main) = 0;
    virtual void StandAside() = 0; // Modeless dialogs go behind the main window while the map is clicked.
    virtual void ComeBack() = 0;   // The fields of the struct are shown anew.
};

} // namespace ruvenmark
