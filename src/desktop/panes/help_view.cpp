#include "desktop/panes/help_view.h"

#include "core/desktop.h"
#include "desktop/data_path.h"
#include "desktop/icons/help_browser.h"
#include "desktop/panes/copy_keys.h"
#include "ui/web_page.h"

#include <QFile>
#include <QFileInfo>
#include <QTextDocument>
#include <QUrl>
#include <QVBoxLayout>

namespace ruvenmark {

HelpView::HelpView(IDesktop& desktop, QWidget* parent)
    : QWidget(parent), m_desktop(desktop), m_browser(new HelpBrowser(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_browser);
    m_browser->setObjectName(QStringLiteral("webCtrl"));
    m_browser->setAccessibleName(QStringLiteral("Help page"));
    m_browser->setOpenLinks(false);
    KeepCopyKeys(*m_browser);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpView::Follow);
    setFocusProxy(m_browser);
}

void HelpView::Show(std::string_view address)
{
    if (address.empty() || address == m_address)
        return;
    m_address = address;
    if (IsBrowserPage(address)) {
        m_browser->setHtml(QString::fromStdString(BrowserNotice(address)));
        return;
    }
    // The page stands in the program's folder only where the operator put one of his own there.
    QString path = QFile::decodeName(QByteArray(address.data(), static_cast<qsizetype>(address.size())));
    if (!QFileInfo::exists(path))
        path = DataPath(QStringLiteral("help/") + QFileInfo(path).fileName());
    if (path.isEmpty())
        m_browser->setPlainText(QStringLiteral("The help page is missing: this installation is not complete."));
    else
        m_browser->setSource(QUrl::fromLocalFile(path));
}

void HelpView::Follow(const QUrl& link)
{
    if (link.scheme() == QLatin1String("https"))
        m_desktop.OpenBrowser(link.toString(QUrl::FullyEncoded).toStdString());
    else if (link.hasFragment() && link.path().isEmpty())
        m_browser->scrollToAnchor(link.fragment());
}

} // namespace ruvenmark
