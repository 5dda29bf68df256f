#include "desktop/icons/svg_icon_engine.h"

#include <QPainter>

#include <algorithm>

namespace ruvenmark {
namespace {

QPixmap Faded(const QPixmap& pixmap)
{
    constexpr qreal kDisabledOpacity = 0.45;
    QPixmap faded(pixmap.size());
    faded.fill(Qt::transparent);
    QPainter painter(&faded);
    painter.setOpacity(kDisabledOpacity);
    painter.drawPixmap(0, 0, pixmap);
    return faded;
}

void Tint(QPixmap& pixmap, const QColor& color)
{
    QPainter painter(&pixmap);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(pixmap.rect(), color);
}

} // namespace

SvgIconEngine::SvgIconEngine(QString path, const IconColors& colors) : m_path(std::move(path)), m_colors(colors) {}

void SvgIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    const int side = std::min(rect.width(), rect.height());
    QPixmap drawn = Drawn(qRound(side * ratio), mode);
    drawn.setDevicePixelRatio(ratio);
    painter->drawPixmap(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, drawn);
}

QPixmap SvgIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State /*state*/)
{
    return Drawn(std::min(size.width(), size.height()), mode);
}

// The size counts device pixels here: QIcon has multiplied it by the scale already.
QPixmap SvgIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal /*scale*/)
{
    return pixmap(size, mode, state);
}

QIconEngine* SvgIconEngine::clone() const
{
    return new SvgIconEngine(*this);
}

QString SvgIconEngine::key() const
{
    return QStringLiteral("ruvenmark-svg");
}

bool SvgIconEngine::isNull()
{
    return m_path.isEmpty();
}

QPixmap SvgIconEngine::Drawn(int pixels, QIcon::Mode mode)
{
    if (pixels <= 0)
        return {};
    if (const auto kept = m_drawn.find({pixels, mode}); kept != m_drawn.end())
        return kept->second;
    if (!m_picture)
        m_picture.emplace(m_path, m_colors.normal);
    QPixmap pixmap = m_picture->Draw(pixels);
    if (mode == QIcon::Selected && m_colors.selected.isValid())
        Tint(pixmap, m_colors.selected);
    if (mode == QIcon::Disabled) {
        if (m_colors.disabled.isValid())
            Tint(pixmap, m_colors.disabled);
        else
            pixmap = Faded(pixmap);
    }
    return m_drawn.emplace(std::pair(pixels, mode), pixmap).first->second;
}

} // namespace ruvenmark
