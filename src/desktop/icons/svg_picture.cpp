#include "desktop/icons/svg_picture.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace ruvenmark {

SvgPicture::SvgPicture(const QString& path, const QColor& color)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_svg = file.readAll();
    if (color.isValid())
        m_svg.replace("currentColor", color.name().toLatin1());
}

QPixmap SvgPicture::Draw(int pixels) const
{
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(m_svg).render(&painter, QRectF(0, 0, pixels, pixels));
    return pixmap;
}

} // namespace ruvenmark
