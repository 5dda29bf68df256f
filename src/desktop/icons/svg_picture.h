#pragma once

#include <QByteArray>
#include <QColor>
#include <QPixmap>
#include <QString>

namespace ruvenmark {

// One square SVG of the resources, drawn at any size.
class SvgPicture {
public:
    // A valid colour takes the place of every currentColor in the file.
    explicit SvgPicture(const QString& path, const QColor& color = {});

    // A transparent square of this many device pixels a side with the picture on it.
    QPixmap Draw(int pixels) const;

private:
    QByteArray m_svg;
};

} // namespace ruvenmark
