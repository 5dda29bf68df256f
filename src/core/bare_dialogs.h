#pragma once

#include "core/dialogs.h"
#include "platform/map_model.h"

namespace ruvenmark {

// Where nobody watches: every dialog is closed at once, with nothing chosen.
class BareDialogs final : public IDialogs {
public:
    std::int32_t RunRegion() override { return kRegionNorthAmerica; }
    void RunImport(MainWindow& /*main*/) override {}
    void RunTrackList(MainWindow& /*main*/) override {}
    void RunAbout(MainWindow& /*main*/) override {}
    void ShowFilter(MainWindow& /*main*/) override {}
    bool IsFilterVisible() const override { return false; }
    void ShowFind(MainWindow& /*main*/) override {}
    void StandAside() override {}
    void ComeBack() override {}
};

} // namespace ruvenmark
