#pragma once

#include "core/desktop.h"
#include "desktop/adapters/picture_fetcher.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QPrinter;

namespace ruvenmark {

class MapWidget;

// Clipboard, printer and browser of the desktop.
class QtDesktop final : public IDesktop {
public:
    QtDesktop();
    ~QtDesktop() override;
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;

    void SetWindow(QWidget* window, MapWidget* map);

    std::string ClipboardText(std::size_t longest) override;
    void SetClipboardText(std::string_view text) override;
    void CopyMapPicture() override;
    std::optional<PrintChoice> AskPrint(std::string_view title) override;
    void PrintMap(const PrintChoice& choice) override;
    bool OpenBrowser(std::string_view url) override;
    void FetchPicture(std::string_view url, std::function<void(const FetchedPicture&)> take) override;

private:
    QPointer<QWidget> m_window;
    QPointer<MapWidget> m_map;
    std::unique_ptr<QPrinter> m_printer; // As it was chosen the last time.
    // Fetched from another program, which may be slow or hang: once for each change.
    std::optional<std::string> m_clipboard;
    PictureFetcher m_fetcher;
    QMetaObject::Connection m_clipboardChanged;
};

} // namespace ruvenmark
