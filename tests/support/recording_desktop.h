#pragma once

#include "core/desktop.h"
#include "core/dialogs.h"
#include "map/find.h"
#include "platform/map_model.h"
#include "platform/text.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

// Dialogs that note what was asked of them; the modal ones do what the test sets and close.
class RecordingDialogs final : public IDialogs {
public:
    std::int32_t region = kRegionNorthAmerica;
    std::function<void(MainWindow&)> onImport, onTrackList;
    bool bFilterVisible = false;
    std::vector<std::string> calls;

    std::int32_t RunRegion() override
    {
        calls.emplace_back("RunRegion");
        return region;
    }
    void RunImport(MainWindow& main) override { Run("RunImport", onImport, main); }
    void RunTrackList(MainWindow& main) override { Run("RunTrackList", onTrackList, main); }
    void RunAbout(MainWindow& /*main*/) override { calls.emplace_back("RunAbout"); }
    void ShowFilter(MainWindow& /*main*/) override
    {
        calls.emplace_back("ShowFilter");
        bFilterVisible = true;
    }
    bool IsFilterVisible() const override { return bFilterVisible; }
    void ShowFind(MainWindow& /*main*/) override { calls.emplace_back("ShowFind"); }
    void StandAside() override { calls.emplace_back("StandAside"); }
    void ComeBack() override { calls.emplace_back("ComeBack"); }

private:
    void Run(std::string_view name, const std::function<void(MainWindow&)>& work, MainWindow& main)
    {
        calls.emplace_back(name);
        if (work)
            work(main);
    }
};

// A desktop with a clipboard of its own that notes the rest.
class RecordingDesktop final : public IDesktop {
public:
    std::string clipboard;
    std::optional<PrintChoice> printChoice; // What the print dialog gives.
    std::vector<PrintChoice> prints;
    std::vector<std::string> pages; // Opened in the browser.
    int mapPictures = 0;

    std::string ClipboardText(std::size_t longest) override { return clipboard.size() <= longest ? clipboard : ""; }
    void SetClipboardText(std::string_view text) override { clipboard = text; }
    void CopyMapPicture() override { ++mapPictures; }
    std::optional<PrintChoice> AskPrint(std::string_view /*title*/) override { return printChoice; }
    void PrintMap(const PrintChoice& choice) override { prints.push_back(choice); }
    bool OpenBrowser(std::string_view url) override
    {
        pages.emplace_back(url);
        return true;
    }
};

// A gazetteer of the places that the test sets.
class FakePlaces final : public IPlaceSearch {
public:
    std::vector<std::string> names = {"Springfield", "Springdale"};

    std::vector<FoundPlace> Search(std::string_view text, std::size_t limit) const override
    {
        std::vector<FoundPlace> found;
        for (const std::string& name : names)
            if (found.size() < limit && CompareIgnoringCase(std::string_view(name).substr(0, text.size()), text) == 0)
                found.push_back({FoundPlace::Kind::Place, name, "Illinois", {39.8, -89.6}, {}, {}});
        return found;
    }
};

} // namespace ruvenmark
