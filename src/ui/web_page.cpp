#include "ui/web_page.h"

#include "core/main_window.h"
#include "core/notices.h"
#include "platform/files.h"

namespace ruvenmark {

namespace {

constexpr std::string_view kHelpPage = "Readme.htm";
constexpr std::string_view kBrowserScheme = "https://";

std::string_view FileName(std::string_view address)
{
    const std::size_t slash = address.find_last_of("/\\");
    return slash == std::string_view::npos ? address : address.substr(slash + 1);
}

std::string HtmlEscaped(std::string_view text)
{
    std::string escaped;
    for (const char c : text)
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (c == '"')
            escaped += "&quot;";
        else
            escaped += c;
    return escaped;
}

} // namespace

void mnuRuvenmarkHelp_Click(MainWindow& main)
{
    if (FileName(main.window.webAddress) == kHelpPage)
        ShowWebView(main, std::string(main.window.webAddress));
    else
        ShowWebView(main, JoinPath(main.services.programFolder, kHelpPage));
}

void ShowWebView(MainWindow& main, std::string_view address)
{
    WindowState& window = main.window;
    window.webAddress = address;
    window.rightView = RightView::Web;
    window.bMapTicked = false;
    window.bMessagesTicked = false;
    window.Changed.Raise();
}

bool IsBrowserPage(std::string_view address)
{
    return address.starts_with(kBrowserScheme);
}

bool OpenInBrowser(MainWindow& main, std::string_view url)
{
    const bool bStarted = main.services.desktop.OpenBrowser(url);
    if (!bStarted)
        Tell(main, "No web browser could be started");
    return bStarted;
}

std::string BrowserNotice(const WindowState& window)
{
    const std::string shown = HtmlEscaped(window.webAddress);
    const std::string said = window.bBrowserStarted
                                 ? "The page of the call-sign directory opens in your web browser:"
                                 : "No web browser could be started. This is the page of the call-sign directory:";
    return "<html><body><h2>Operator Info</h2>\n<p>" + said + "</p>\n<p><a href=\"" + shown + "\">" + shown +
           "</a></p></body></html>\n";
}

} // namespace ruvenmark
