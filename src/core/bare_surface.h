#pragma once

#include "contracts/byte_link.h"
#include "core/desktop.h"
#include "core/forms.h"
#include "core/place_search.h"
#include "platform/failure.h"

// What stands behind the window's interfaces where nobody watches.
namespace ruvenmark {

// Every dialog is closed at once: cancelled.
class BareDialogs : public IDialogs {
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
    void FetchPicture(std::string_view /*url*/, std::function<void(const FetchedPicture&)> /*take*/) override {}

private:
    std::string m_text;
};

// No map of the world.
class BarePlaces final : public IPlaceSearch {
public:
    std::vector<FoundPlace> Search(std::string_view /*text*/, std::size_t /*limit*/) const override { return {}; }
    std::optional<FoundPlace> Named(std::string_view /*name*/) const override { return std::nullopt; }
};

// A machine without a wire.
class BareByteLinks final : public IByteLinks {
public:
    std::unique_ptr<IByteLink> OpenSerial(std::string_view /*port*/, std::int32_t /*baud*/, SerialFlow /*flow*/,
                                          IByteSink& /*sink*/) override
    {
        Refuse();
    }
    std::unique_ptr<IByteLink> StartSocket(std::string_view /*host*/, std::int32_t /*port*/,
                                           IByteSink& /*sink*/) override
    {
        Refuse();
    }
    std::unique_ptr<IByteLink> ConnectSocket(std::string_view /*host*/, std::int32_t /*port*/,
                                             std::chrono::seconds /*limit*/, IByteSink& /*sink*/) override
    {
        Refuse();
    }
    std::vector<std::string> SerialPorts() override { return {}; }
    Moment Now() const override { return std::chrono::steady_clock::now(); }

private:
    [[noreturn]] static void Refuse() { throw Failure("this program has no links"); }
};

} // namespace ruvenmark
