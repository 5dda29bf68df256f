#include "desktop/bars/elided_label.h"

#include <QColor>
#include <QPainter>
#include <QStringList>
#include <QStyle>

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr int kMargin = 6;
constexpr int kLeastCharacters = 6, kMostCharacters = 32; // Of the width that is asked for.

// Amber that can be read on a bar of these colours.
QColor WarningColor(const QPalette& palette)
{
    constexpr int kMiddle = 128;
    return palette.color(QPalette::Window).lightness() < kMiddle ? QColor(0xE0, 0xA8, 0x3C) : QColor(0x8A, 0x57, 0x00);
}

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

void ElidedLabel::SetTip(const QString& tip)
{
    if (tip == m_tip)
        return;
    m_tip = tip;
    setAccessibleDescription(tip);
    RefreshTip();
}

void ElidedLabel::SetWarning(bool bWarning)
{
    if (bWarning == m_bWarning)
        return;
    m_bWarning = bWarning;
    RefreshTip();
    updateGeometry();
    update();
}

QString ElidedLabel::Shown() const
{
    return m_bWarning ? QStringLiteral("\u26A0 ") + m_text : m_text;
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
    const QString shown = fontMetrics().elidedText(Shown(), Qt::ElideRight, inside.width());
    QPalette colors = palette();
    if (m_bWarning)
        colors.setColor(foregroundRole(), WarningColor(colors));
    style()->drawItemText(&painter, inside, Qt::AlignLeft | Qt::AlignVCenter, colors, isEnabled(), shown,
                          foregroundRole());
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    RefreshTip();
}

int ElidedLabel::TextWidth() const
{
    return fontMetrics().horizontalAdvance(Shown()) + 2; // Advances are rounded.
}

// The whole text where it is cut, and the tip; escaped, for tips guess whether a text is rich.
void ElidedLabel::RefreshTip()
{
    const bool bCut = TextWidth() > contentsRect().width() - 2 * kMargin;
    QStringList lines;
    if (bCut)
        lines << m_text.toHtmlEscaped();
    if (!m_tip.isEmpty())
        lines << m_tip.toHtmlEscaped();
    const QString text = lines.join(QStringLiteral("<br>"));
    setToolTip(text.isEmpty() ? text : QStringLiteral("<span>") + text + QStringLiteral("</span>"));
}

} // namespace ruvenmark
