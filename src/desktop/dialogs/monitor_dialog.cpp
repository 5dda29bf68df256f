#include "desktop/dialogs/monitor_dialog.h"

#include "desktop/named_control.h"
#include "platform/text.h"
#include "platform/text_log.h"

#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QStringList>
#include <QVBoxLayout>

namespace ruvenmark {

namespace {

constexpr int kShownLines = 5000;
constexpr std::size_t kMostBytes = std::size_t{512} * 1024; // That many lines, and no more than can be drawn at once.
constexpr int kPauseMs = 100;                               // Between two updates, however fast lines come.
constexpr int kWidth = 640, kHeight = 400, kMargin = 20;

} // namespace

MonitorDialog::MonitorDialog(TextLog& log, MonitorTexts texts, QWidget* parent)
    : FormDialog(parent), m_log(log), m_view(new QPlainTextEdit(this))
{
    const QString caption = QString::fromLatin1(texts.caption);
    setWindowTitle(caption);
    NameControl(*m_view, texts.control, caption);
    m_view->setReadOnly(true);
    m_view->setUndoRedoEnabled(false);
    m_view->setMaximumBlockCount(kShownLines);
    m_view->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_view->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, 0, 0);
    layout->addWidget(m_view);
    resize(kWidth, kHeight);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { Refresh(); });
    m_changed = log.Changed.Observe([this] {
        if (isVisible() && !m_timer.isActive())
            m_timer.start(kPauseMs);
    });
    Refresh();
}

void MonitorDialog::Refresh()
{
    const std::size_t size = m_log.Size();
    const bool bSkips = size - m_seen > kMostBytes;
    const std::string text = m_log.From(bSkips ? size - kMostBytes : m_seen);
    m_seen = size;
    auto lines = Lines(text);
    if (bSkips && !lines.empty())
        lines.erase(lines.begin()); // Its beginning is cut off.
    if (!lines.empty() && lines.back().empty())
        lines.pop_back();
    if (lines.empty())
        return;
    QStringList shown;
    for (const std::string_view line : lines)
        shown.append(ForDisplay(line));
    m_view->appendPlainText(shown.join(QLatin1Char('\n')));
}

} // namespace ruvenmark
