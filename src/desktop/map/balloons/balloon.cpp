#include "desktop/map/balloons/balloon.h"

#include "desktop/shown_text.h"
#include "map/age.h"
#include "map/coordinates.h"
#include "platform/map_model.h"
#include "platform/text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace ruvenmark {

namespace {

constexpr double kMostWidth = 300, kLeastWidth = 60; // Pixels of text.
constexpr double kPadding = 9;
constexpr double kTail = 9;
constexpr double kClear = 16; // From the point to the tip of the tail: the marker and its ring stay in sight.
constexpr double kCorner = 6;
constexpr double kCross = 16;
constexpr qsizetype kMostRows = 14;
constexpr std::size_t kMostBytes = 4000; // Of a note; what is beyond would not fit anyway.

QFont TitleFont(const MapLook& look)
{
    QFont font = look.balloonFont;
    font.setWeight(QFont::Bold);
    return font;
}

// The rows that a line takes, at most `most` of them.
QStringList Rows(const QString& line, const QFont& font, double width, qsizetype most)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(line, font);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList rows;
    for (QTextLine row = layout.createLine(); row.isValid() && rows.size() < most; row = layout.createLine()) {
        row.setLineWidth(width);
        rows.append(line.mid(row.textStart(), row.textLength()).trimmed());
    }
    layout.endLayout();
    return rows;
}

} // namespace

BalloonText BalloonOf(const PinData& pin)
{
    BalloonText text{ForDisplay(FirstCharacters(pin.name, kMostBytes)), {}};
    for (const std::string_view line : Lines(FirstCharacters(pin.note, kMostBytes)))
        text.lines.append(ForDisplay(line));
    while (!text.lines.isEmpty() && text.lines.last().trimmed().isEmpty())
        text.lines.removeLast();
    return text;
}

BalloonText FullBalloonOf(const PinData& pin, std::int64_t now)
{
    BalloonText text = BalloonOf(pin);
    text.lines.append(ForDisplay(LocatorOf(pin.point) + ", " + CoordinateText(pin.point, CoordinateForm::Minutes)));
    if (const std::string age = AgeText(now, pin.heard); !age.empty())
        text.lines.append(QStringLiteral("Last heard ") + ForDisplay(age));
    return text;
}

Balloon::Balloon(const BalloonText& text, QPointF point, const QRectF& area, const MapLook& look, bool bPinned)
    : m_look(look), m_point(point), m_bPinned(bPinned)
{
    const QFontMetricsF titleMetrics(TitleFont(look)), metrics(look.balloonFont);
    const double most = std::clamp(area.width() - 2 * kPadding, kLeastWidth, kMostWidth);
    m_title = titleMetrics.elidedText(text.title, Qt::ElideRight, most - (bPinned ? kCross : 0));
    for (const QString& line : text.lines) {
        if (m_rows.size() > kMostRows)
            break;
        m_rows += Rows(line, look.balloonFont, most, kMostRows + 1 - m_rows.size());
    }
    if (m_rows.size() > kMostRows) {
        m_rows.resize(kMostRows);
        m_rows.last() = metrics.elidedText(m_rows.last(), Qt::ElideRight, most - 20) + QStringLiteral("…");
    }
    double width = std::max(kLeastWidth, titleMetrics.horizontalAdvance(m_title) + (bPinned ? kCross : 0));
    for (const QString& row : m_rows)
        width = std::max(width, metrics.horizontalAdvance(row));
    const double rows = static_cast<double>(m_rows.size());
    const double height = titleMetrics.height() + (m_rows.isEmpty() ? 0 : 3 + rows * metrics.lineSpacing());
    Place({std::ceil(width) + 2 * kPadding, std::ceil(height) + 2 * kPadding - 4}, area);
}

void Balloon::Place(QSizeF size, const QRectF& area)
{
    const double away = kClear + kTail;
    const bool bAbove = m_point.y() - away - size.height() >= area.top();
    const double y = bAbove ? m_point.y() - away - size.height() : m_point.y() + away;
    const double most = std::max(area.left(), area.right() - size.width());
    const double x = std::clamp(m_point.x() - size.width() / 2, area.left(), most);
    m_rect = QRectF(QPointF(std::round(x), std::round(y)), size);
}

QRectF Balloon::CloseRect() const
{
    return {m_rect.right() - kCross - 4, m_rect.top() + 4, kCross, kCross};
}

void Balloon::PaintPlate(QPainter& painter) const
{
    const double x = std::clamp(m_point.x(), m_rect.left() + kCorner + kTail, m_rect.right() - kCorner - kTail);
    const bool bAbove = m_rect.center().y() < m_point.y();
    const double edge = bAbove ? m_rect.bottom() : m_rect.top();
    const double tip = m_point.y() + (bAbove ? -kClear : kClear);
    QPainterPath plate, tail;
    plate.addRoundedRect(m_rect, kCorner, kCorner);
    const double inside = bAbove ? -1 : 1;
    tail.addPolygon(QPolygonF({QPointF(x - kTail * 0.8, edge + inside), QPointF(m_point.x(), tip),
                               QPointF(x + kTail * 0.8, edge + inside), QPointF(x - kTail * 0.8, edge + inside)}));
    const QPainterPath shape = plate.united(tail);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 22));
    for (const double grow : {1.0, 2.0, 3.0})
        painter.drawRoundedRect(m_rect.adjusted(-grow, -grow + 2, grow, grow + 2), kCorner + grow, kCorner + grow);
    painter.setPen(QPen(m_bPinned ? m_look.accent : m_look.edge, m_bPinned ? 1.5 : 1));
    painter.setBrush(m_look.plate);
    painter.drawPath(shape);
}

void Balloon::Paint(QPainter& painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PaintPlate(painter);
    painter.setPen(m_look.plateText);
    if (m_bPinned) {
        const QRectF cross = CloseRect().adjusted(4.5, 4.5, -4.5, -4.5);
        painter.drawLine(cross.topLeft(), cross.bottomRight());
        painter.drawLine(cross.bottomLeft(), cross.topRight());
    }
    painter.setClipRect(m_rect);
    painter.setFont(TitleFont(m_look));
    const QFontMetricsF titleMetrics(painter.font()), metrics(m_look.balloonFont);
    double y = m_rect.top() + kPadding - 2 + titleMetrics.ascent();
    const double x = m_rect.left() + kPadding;
    painter.drawText(QPointF(x, y), m_title);
    painter.setFont(m_look.balloonFont);
    y += titleMetrics.descent() + 3 + metrics.ascent();
    for (const QString& row : m_rows) {
        painter.drawText(QPointF(x, y), row);
        y += metrics.lineSpacing();
    }
    painter.restore();
}

} // namespace ruvenmark
