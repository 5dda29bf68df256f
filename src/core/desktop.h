#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

struct PrintChoice {
    std::int32_t copies = 1;
    bool bLandscape = false;
};

// What a server gave for a picture of the map.
struct FetchedPicture {
    std::int32_t status = 0; // As the web counts; 0 where no server answered.
    std::string problem;     // In words, where nothing came.
    std::size_t bytes = 0;
    std::int32_t width = 0, height = 0; // Pixels; 0 where it is no picture that can be shown.
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

    // Asks a server for one picture and tells once, from the event loop, what came. A later call takes its place.
    virtual void FetchPicture(std::string_view url, std::function<void(const FetchedPicture&)> take) = 0;
};

} // namespace ruvenmark
