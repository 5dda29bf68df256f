#include "desktop/map/labels/label_text.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ruvenmark {

namespace {

constexpr double kHalo = 1.6; // Pixels around the letters.
constexpr qsizetype kMostKept = 3000;

double LineWidth(const QFontMetricsF& metrics, const QFont& font, const QString& line)
{
    return metrics.horizontalAdvance(line) - font.letterSpacing(); // None after the last letter.
}

// Where each line begins on its base line, from the left top corner of the text.
std::vector<QPointF> LineStarts(const LabelFace& face, const QStringList& lines, QSizeF size)
{
    const QFontMetricsF metrics(face.font);
    std::vector<QPointF> starts;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const double x = (size.width() - LineWidth(metrics, face.font, lines[i])) / 2;
        starts.emplace_back(std::round(x), std::round(metrics.ascent() + static_cast<double>(i) * metrics.height()));
    }
    return starts;
}

void DrawLines(QPainter& painter, const QStringList& lines, const std::vector<QPointF>& starts, QPointF shift = {})
{
    for (qsizetype i = 0; i < lines.size(); ++i)
        painter.drawText(starts[static_cast<std::size_t>(i)] + shift, lines[i]);
}

void DrawHaloAsCurve(QPainter& painter, const LabelFace& face, const QStringList& lines,
                     const std::vector<QPointF>& starts)
{
    QPainterPath outline;
    for (qsizetype i = 0; i < lines.size(); ++i)
        outline.addText(starts[static_cast<std::size_t>(i)], face.font, lines[i]);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.strokePath(outline, QPen(face.halo, 2 * kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

// The letters shifted all around: a tenth of the time of stroking their outlines.
void DrawHalo(QPainter& painter, const LabelFace& face, const QStringList& lines, const std::vector<QPointF>& starts)
{
    constexpr double kSlant = 0.7;
    painter.setPen(QColor(face.halo.rgb()));
    for (const QPointF way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1), QPointF(kSlant, kSlant),
                              QPointF(-kSlant, kSlant), QPointF(kSlant, -kSlant), QPointF(-kSlant, -kSlant)})
        DrawLines(painter, lines, starts, way * kHalo);
}

} // namespace

void LabelText::SetLook(double ratio, int look)
{
    if (ratio == m_ratio && look == m_look)
        return;
    m_ratio = ratio;
    m_look = look;
    m_entries.clear();
    m_dots.clear();
}

LabelText::Entry& LabelText::EntryOf(const LabelFace& face, const QString& text)
{
    const QString key = QChar(face.number) + text;
    if (const auto known = m_entries.find(key); known != m_entries.end())
        return *known;
    if (m_entries.size() >= kMostKept)
        m_entries.clear();
    const QFontMetricsF metrics(face.font);
    double width = 0;
    const QStringList lines = text.split(u'\n');
    for (const QString& line : lines)
        width = std::max(width, LineWidth(metrics, face.font, line));
    const QSizeF size(std::ceil(width), std::ceil(metrics.height() * static_cast<double>(lines.size())));
    return *m_entries.insert(key, {size, {}});
}

QSizeF LabelText::Size(const LabelFace& face, const QString& text)
{
    return EntryOf(face, text).size;
}

QImage LabelText::Render(const LabelFace& face, const QString& text, QSizeF size) const
{
    const double margin = std::ceil(kHalo);
    const QSizeF pixels = (size + QSizeF(2 * margin, 2 * margin)) * m_ratio;
    QImage image(pixels.toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(m_ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(margin, margin);
    painter.setFont(face.font);
    const QStringList lines = text.split(u'\n');
    const std::vector<QPointF> starts = LineStarts(face, lines, size);
    if (face.halo.alpha() > 0) {
        DrawHalo(painter, face, lines, starts);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        painter.fillRect(QRectF(QPointF(-margin, -margin), size + QSizeF(2 * margin, 2 * margin)), face.halo);
        painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    }
    painter.setPen(face.color);
    DrawLines(painter, lines, starts);
    return image;
}

void LabelText::Paint(QPainter& painter, const LabelFace& face, const QString& text, QPointF centre, bool bVector)
{
    Entry& entry = EntryOf(face, text);
    const QPointF corner = centre - QPointF(entry.size.width(), entry.size.height()) / 2;
    if (bVector) {
        painter.save();
        painter.translate(corner);
        const QStringList lines = text.split(u'\n');
        const std::vector<QPointF> starts = LineStarts(face, lines, entry.size);
        DrawHaloAsCurve(painter, face, lines, starts);
        painter.setFont(face.font);
        painter.setPen(face.color);
        DrawLines(painter, lines, starts);
        painter.restore();
        return;
    }
    if (entry.picture.isNull())
        entry.picture = Render(face, text, entry.size);
    const double margin = std::ceil(kHalo);
    PaintPicture(painter, entry.picture, corner - QPointF(margin, margin));
}

// On whole device pixels, or it would blur.
void LabelText::PaintPicture(QPainter& painter, const QImage& picture, QPointF corner) const
{
    const auto snap = [this](double v) { return std::round(v * m_ratio) / m_ratio; };
    painter.drawImage(QPointF(snap(corner.x()), snap(corner.y())), picture);
}

void LabelText::PaintDot(QPainter& painter, const LabelFace& face, bool bFull, QPointF centre, bool bVector)
{
    constexpr double kSide = 8;
    const auto draw = [&](QPainter& onto, QPointF middle) {
        onto.setRenderHint(QPainter::Antialiasing);
        onto.setPen(QPen(face.color, bFull ? 1.6 : 1.1));
        onto.setBrush(bFull ? face.color : face.halo);
        onto.drawEllipse(middle, kDotRadius, kDotRadius);
    };
    if (bVector) {
        painter.save();
        draw(painter, centre);
        painter.restore();
        return;
    }
    QImage& picture = m_dots[2 * face.number + (bFull ? 1 : 0)];
    if (picture.isNull()) {
        picture = QImage((QSizeF(kSide, kSide) * m_ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(m_ratio);
        picture.fill(Qt::transparent);
        QPainter onPicture(&picture);
        draw(onPicture, QPointF(kSide, kSide) / 2);
    }
    PaintPicture(painter, picture, centre - QPointF(kSide, kSide) / 2);
}

} // namespace ruvenmark
