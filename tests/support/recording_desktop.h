#pragma once

#include "core/desktop.h"
#include "core/forms.h"
#include "map/find.h"
#include "platform/text.h"

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {

// Dialogs that note what was asked of them; the modal ones do what the test sets and close.
class RecordingDialogs final : public IDialogs {
public:
    std::map<Form, std::function<void(MainWindow&)>> onRun; // Cancelled where there is nothing.
    std::set<Form> visible;
    std::vector<std::string> calls; // "Run frmImport"

    void Run(Form form, MainWindow& main) override
    {
        Note("Run", form);
        if (const auto& work = onRun[form])
            work(main);
    }
    void Show(Form form, MainWindow& /*main*/) override
    {
        Note("Show", form);
        visible.insert(form);
    }
    void Hide(Form form) override { visible.erase(form); }
    bool IsVisible(Form form) const override { return visible.contains(form); }
    void Refresh(Form form) override { Note("Refresh", form); }
    void StandAside(Form form) override { Note("StandAside", form); }
    void ComeBack(Form form) override { Note("ComeBack", form); }

private:
    void Note(std::string_view what, Form form)
    {
        constexpr std::array<std::string_view, kForms.size()> kNames = {"frmRegion", "frmImport", "frmTrackList",
                                                                        "frmAbout",  "frmFilter", "frmFind"};
        calls.push_back(std::string(what) + " " + std::string(kNames[Index(form)]));
    }
};

// A desktop with a clipboard of its own that notes the rest.
class RecordingDesktop final : public IDesktop {
public:
    std::string clipboard;
    std::optional<PrintChoice> printChoice; // What the print dialog gives.
    std::vector<PrintChoice> prints;
    std::vector<std::string> pages; // Opened in the browser.
    bool bBrowser = true;           // There is one.
    int mapPictures = 0;

    std::string ClipboardText(std::size_t longest) override { return clipboard.size() <= longest ? clipboard : ""; }
    void SetClipboardText(std::string_view text) override { clipboard = text; }
    void CopyMapPicture() override { ++mapPictures; }
    std::optional<PrintChoice> AskPrint(std::string_view /*title*/) override { return printChoice; }
    void PrintMap(const PrintChoice& choice) override { prints.push_back(choice); }
    bool OpenBrowser(std::string_view url) override
    {
        pages.emplace_back(url);
        return bBrowser;
    }
    std::string pictureAsked; // The address.
    std::function<void(const FetchedPicture&)> takePicture;
    void FetchPicture(std::string_view url, std::function<void(const FetchedPicture&)> take) override
    {
        pictureAsked = url;
        takePicture = std::move(take);
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
    std::optional<FoundPlace> Named(std::string_view name) const override
    {
        const auto found = Search(name, 1);
        return found.empty() || found[0].name.size() != name.size() ? std::nullopt : std::optional(found[0]);
    }
};

} // namespace ruvenmark
