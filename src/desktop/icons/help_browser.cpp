#include "desktop/icons/help_browser.h"

#include "desktop/icons/svg_picture.h"

#include <QUrl>

namespace ruvenmark {

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setOpenExternalLinks(false);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name)
{
    constexpr int kLargest = 512;
    const int size = name.query().toInt();
    const bool bPicture = type == QTextDocument::ImageResource && name.scheme() == QLatin1String("qrc");
    if (!bPicture || size <= 0 || size > kLargest)
        return QTextBrowser::loadResource(type, name);
    QPixmap pixmap = SvgPicture(QLatin1Char(':') + name.path()).Draw(qRound(size * devicePixelRatioF()));
    pixmap.setDevicePixelRatio(devicePixelRatioF());
    return pixmap;
}

} // namespace ruvenmark
