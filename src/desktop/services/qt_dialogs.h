#pragma once

#include "core/dialogs.h"

#include <QPointer>
#include <QWidget>

namespace ruvenmark {

class FindDialog;
class FrmFilterDialog;
class IPlaceSearch;
class IconSet;

// The dialogs as windows. The modeless ones are made when they are first shown and belong to the main window.
class QtDialogs final : public IDialogs {
public:
    // Both are lent for the whole run.
    QtDialogs(const IconSet& icons, const IPlaceSearch& places) : m_icons(icons), m_places(places) {}

    void SetWindow(QWidget* window) { m_window = window; }

    std::int32_t RunRegion() override;
    void RunImport(MainWindow& main) override;
    void RunTrackList(MainWindow& main) override;
    void RunAbout(MainWindow& main) override;
    void ShowFilter(MainWindow& main) override;
    bool IsFilterVisible() const override;
    void ShowFind(MainWindow& main) override;
    void StandAside() override;
    void ComeBack() override;

private:
    const IconSet& m_icons;
    const IPlaceSearch& m_places;
    QPointer<QWidget> m_window;
    QPointer<FrmFilterDialog> m_filter;
    QPointer<FindDialog> m_find;
    bool m_bFilterAside = false; // Hidden while the map is clicked; it counts as visible.
};

} // namespace ruvenmark
