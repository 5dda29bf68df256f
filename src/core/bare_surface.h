#pragma once

#include "core/desktop.h"
#include "core/forms.h"

// What stands behind the window's interfaces where nobody watches.
namespace ruvenmark {

// Every dialog is closed at once: cancelled.
class BareDialogs final : public IDialogs {
public:
    void Run(Form /*form*/, MainWindow& /*main*/) override {}
    void Show(Form /*form*/, MainWindow& /*main*/) override {}
    void Hide(Form /*form*/) override {}
    bool IsVisible(Form /*form*/) const override { return false; }
    void Refresh(Form /*form*/) override {}
    void StandAside(Form /*form*/) override {}
    void ComeBack(Form /*form*/) override {}
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
