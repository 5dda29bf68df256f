#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

struct PrintChoice {
    std::int32_t copies = 1;
    bool bLandscape = false;
};

// The desktop around the program, as commands ask for it.
class IDesktop {
public:
    virtual ~IDesktop() = default;

    // Empty where there is no text, or one of more bytes than this. Cheap to ask again.
    virtual std::string ClipboardText(std::size_t longest) = 0;
    virtual void SetClipboardText(std::string_view text) = 0;
    virtual void CopyMapPicture() = 0; // The map as it is shown, to the clipboard.

    // The print dialog; nothing when it was cancelled.
    virtual std::optional<PrintChoice> AskPrint(std::string_view title) = 0;
    virtual void PrintMap(const PrintChoice& choice) = 0; // Raises Failure.

    // In the system's own browser. False when none could be started.
    virtual bool OpenBrowser(std::string_view url) = 0;
};

} // namespace ruvenmark
