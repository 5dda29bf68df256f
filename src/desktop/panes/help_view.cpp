#include "desktop/panes/help_view.h"

#include "core/main_window.h"
#include "desktop/data_path.h"
#include "desktop/icons/help_browser.h"
#include "desktop/named_control.h"
#include "desktop/panes/copy_keys.h"
#include "ui/web_page.h"

#include <QFile>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolTip>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace ruvenmark {

HelpView::HelpView(MainWindow& main, QWidget* parent)
    : QWidget(parent), m_main(main), m_browser(new HelpBrowser(this)), m_find(new QLineEdit(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_browser);
    layout->addWidget(m_find);
    m_browser->setObjectName(QStringLiteral("webCtrl"));
    m_browser->setAccessibleName(QStringLiteral("Help page"));
    m_browser->setOpenLinks(false);
    KeepCopyKeys(*m_browser);
    connect(m_browser, &QTextBrowser::anchorClicked, this, &HelpView::Follow);
    MakeFindLine();
    setFocusProxy(m_browser);
}

void HelpView::MakeFindLine()
{
    NameControl(*m_find, "txtFindInPage", QStringLiteral("Find in this page"));
    m_find->setPlaceholderText(QStringLiteral("Find in this page: F3 for the next place, Escape to end"));
    m_find->hide();
    // While one types, the place found stays as long as the text fits.
    connect(m_find, &QLineEdit::textEdited, this, [this] {
        QTextCursor at = m_browser->textCursor();
        at.setPosition(at.selectionStart());
        m_browser->setTextCursor(at);
        FindNext();
    });
    m_find->installEventFilter(this);
    m_browser->installEventFilter(this);
}

// Ctrl+F and Escape are the page's own here, not the map's.
bool HelpView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (key.matches(QKeySequence::Find) || (key.key() == Qt::Key_Escape && m_find->isVisible())) {
            event->accept();
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress && Press(static_cast<const QKeyEvent&>(*event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool HelpView::Press(const QKeyEvent& key)
{
    const bool bEnter = m_find->hasFocus() && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
    if (key.matches(QKeySequence::Find))
        OpenFindLine();
    else if (key.key() == Qt::Key_Escape && m_find->isVisible())
        CloseFindLine();
    else if (key.key() == Qt::Key_F3 || bEnter)
        FindNext(key.modifiers().testFlag(Qt::ShiftModifier) ? QTextDocument::FindBackward
                                                             : QTextDocument::FindFlags());
    else
        return false;
    return true;
}

// From what is being read on, which scrolls without the cursor.
void HelpView::OpenFindLine()
{
    QScrollBar& bar = *m_browser->verticalScrollBar();
    const int place = bar.value();
    if (!m_browser->viewport()->rect().intersects(m_browser->cursorRect()))
        m_browser->setTextCursor(m_browser->cursorForPosition(QPoint()));
    bar.setValue(place); // In a table the cursor goes to its begin.
    m_find->show();
    m_find->setFocus();
    m_find->selectAll();
}

void HelpView::CloseFindLine()
{
    m_find->hide();
    m_browser->setFocus();
}

// Behind the last place the first one follows. The page stays where it is when there is none.
void HelpView::FindNext(QTextDocument::FindFlags flags)
{
    const QString text = m_find->text();
    if (text.isEmpty())
        return;
    const QTextDocument& page = *m_browser->document();
    QTextCursor found = page.find(text, m_browser->textCursor(), flags);
    if (found.isNull())
        found = page.find(text, flags.testFlag(QTextDocument::FindBackward) ? page.characterCount() - 1 : 0, flags);
    if (found.isNull())
        QToolTip::showText(m_find->mapToGlobal(QPoint()), QStringLiteral("Not in this page"), m_find);
    else
        m_browser->setTextCursor(found);
}

void HelpView::Show()
{
    const std::string& address = m_main.window.webAddress;
    if (address.empty())
        return;
    const bool bNotice = IsBrowserPage(address);
    std::string page = bNotice ? BrowserNotice(m_main.window) : address;
    if (page == m_shown)
        return;
    m_shown = std::move(page);
    if (bNotice) {
        m_browser->setHtml(QString::fromStdString(m_shown));
        return;
    }
    // The page stands in the program's folder only where the operator put one of his own there.
    QString path = QFile::decodeName(QByteArray::fromStdString(address));
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
        OpenInBrowser(m_main, link.toString(QUrl::FullyEncoded).toStdString());
    else if (link.hasFragment() && link.path().isEmpty())
        m_browser->scrollToAnchor(link.fragment());
}

} // namespace ruvenmark
