#pragma once

#include "core/desktop.h"
#include "core/dialogs.h"
#include "platform/map_model.h"

// What stands behind the window's interfaces where nobody watches.
namespace ruvenmark {

// Every dialog is closed at once, with nothing chosen.
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

// A clipboard of its own, and nothing else.
class BareDesktop final : public IDesktop {
public:
    std::string ClipboardText(std::size_t longest) override { return m_text.size() <= longest ? m_text : ""; }
    void SetClipboardText(std::string_view text) override { m_text = text; }
    void CopyMapPicture() override {}
    std::optional<PrintChoice> AskPrint(std::string_view /*title*/) override { return std::nullopt; }
    void PrintMap(const PrintChoice& /*choice*/) override {}
    bool OpenBrowser(std::string_view /*url*/) override { return false; }

private:
    std::string m_text;
};

} // namespace ruvenmark
