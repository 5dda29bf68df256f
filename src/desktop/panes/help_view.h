#pragma once

#include <QWidget>

#include <string>
#include <string_view>

class QUrl;

namespace ruvenmark {

class HelpBrowser;
class IDesktop;

// The pages of the right pane: the manual, and what is said of pages that the system's browser shows.
class HelpView final : public QWidget {
public:
    HelpView(IDesktop& desktop, QWidget* parent = nullptr);

    // A path or a URL; the same one again changes nothing, so that the reader stays where he was.
    void Show(std::string_view address);

private:
    void Follow(const QUrl& link);

    IDesktop& m_desktop;
    HelpBrowser* m_browser;
    std::string m_address;
};

} // namespace ruvenmark
