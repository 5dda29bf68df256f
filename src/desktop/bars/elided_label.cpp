#include "desktop/bars/elided_label.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr int kMargin = 6;
constexpr int kLeastCharacters = 6, kMostCharacters = 32; // Of the width that is asked for.

} // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QFrame(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
}

void ElidedLabel::SetText(const QString& text)
{
    if (text == m_text)
        return;
    m_text = text;
    RefreshTip();
    updateGeometry();
    update();
}

QSize ElidedLabel::sizeHint() const
{
    const int character = fontMetrics().averageCharWidth();
    const int width = std::clamp(TextWidth(), kLeastCharacters * character, kMostCharacters * character);
    return {width + 2 * (kMargin + frameWidth()), fontMetrics().height() + kMargin};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRect inside = contentsRect().adjusted(kMargin, 0, -kMargin, 0);
    const QString shown = fontMetrics().elidedText(m_text, Qt::ElideRight, inside.width());
    style()->drawItemText(&painter, inside, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          foregroundRole());
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    RefreshTip();
}

int ElidedLabel::TextWidth() const
{
    return fontMetrics().horizontalAdvance(m_text) + 2; // Advances are rounded.
}

// The whole text where it is cut; escaped, for tips guess whether a text is rich.
void ElidedLabel::RefreshTip()
{
    const bool bCut = TextWidth() > contentsRect().width() - 2 * kMargin;
    setToolTip(bCut ? QStringLiteral("<span>") + m_text.toHtmlEscaped() + QStringLiteral("</span>") : QString());
}

} // namespace ruvenmark
