#include "desktop/adapters/qt_desktop.h"

#include "desktop/map/widget/map_widget.h"
#include "desktop/shown_text.h"
#include "platform/failure.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QUrl>

#include <utility>

namespace ruvenmark {

QtDesktop::QtDesktop()
{
    m_clipboardChanged =
        QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, [this] { m_clipboard.reset(); });
}

QtDesktop::~QtDesktop()
{
    QObject::disconnect(m_clipboardChanged);
}

void QtDesktop::SetWindow(QWidget* window, MapWidget* map)
{
    m_window = window;
    m_map = map;
}

std::string QtDesktop::ClipboardText(std::size_t longest)
{
    if (!m_clipboard) {
        const QString text = QGuiApplication::clipboard()->text();
        m_clipboard = static_cast<std::size_t>(text.size()) <= longest ? text.toStdString() : std::string();
    }
    return m_clipboard->size() <= longest ? *m_clipboard : std::string();
}

void QtDesktop::SetClipboardText(std::string_view text)
{
    const std::string shown = ShownText(text);
    QGuiApplication::clipboard()->setText(QString::fromStdString(shown));
}

void QtDesktop::CopyMapPicture()
{
    if (m_map)
        QGuiApplication::clipboard()->setImage(m_map->Picture(m_map->size(), m_map->devicePixelRatioF()));
}

std::optional<PrintChoice> QtDesktop::AskPrint(std::string_view title)
{
    if (!m_printer)
        m_printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(m_printer.get(), m_window);
    dialog.setWindowTitle(ForDisplay(title));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return PrintChoice{m_printer->copyCount(), m_printer->pageLayout().orientation() == QPageLayout::Landscape};
}

void QtDesktop::PrintMap(const PrintChoice& choice)
{
    if (!m_map || !m_printer)
        throw Failure("there is nothing to print on");
    m_printer->setCopyCount(choice.copies);
    m_printer->setPageOrientation(choice.bLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    m_printer->setDocName(QStringLiteral("Ruvenmark map"));
    QPainter painter;
    if (!painter.begin(m_printer.get()))
        throw Failure("the printer cannot be used");
    const QSize page = m_printer->pageLayout().paintRectPixels(m_printer->resolution()).size();
    m_map->PaintMap(painter, QRectF(QPointF(), QSizeF(page)));
}

bool QtDesktop::OpenBrowser(std::string_view url)
{
    const QUrl address =
        QUrl::fromEncoded(QByteArray(url.data(), static_cast<qsizetype>(url.size())), QUrl::StrictMode);
    return address.isValid() && address.scheme() == QLatin1String("https") && QDesktopServices::openUrl(address);
}

void QtDesktop::FetchPicture(std::string_view url, std::function<void(const FetchedPicture&)> take)
{
    m_fetcher.Fetch(url, std::move(take));
}

} // namespace ruvenmark
