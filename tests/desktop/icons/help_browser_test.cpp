#include "desktop/icons/help_browser.h"
#include "desktop/icons/icon_set.h"

#include <QFile>
#include <QPixmap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace ruvenmark {
namespace {

QString Manual()
{
    QFile file(QStringLiteral(RUVENMARK_SOURCE_DIR "/data/help/Readme.htm"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// What stands in the first brackets of each match.
QStringList Captures(const QString& text, const char* pattern)
{
    QStringList found;
    auto matches = QRegularExpression(QLatin1String(pattern)).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

TEST(HelpBrowser, EveryLinkOfTheManualLeadsSomewhere)
{
    const QString manual = Manual();
    const QStringList anchors = Captures(manual, "<a name=\"([^\"]*)\"");
    const QStringList links = Captures(manual, "href=\"([^\"]*)\"");
    EXPECT_GT(links.size(), 10);
    for (const QString& link : links)
        EXPECT_TRUE(link.startsWith('#') && anchors.contains(link.mid(1))) << link.toStdString();
}

TEST(HelpBrowser, EveryPictureOfTheManualIsThere)
{
    const IconSet icons;
    HelpBrowser browser;
    browser.setHtml(Manual());
    const QStringList pictures = Captures(Manual(), "<img src=\"([^\"]*)\"");
    EXPECT_GT(pictures.size(), 40);
    for (const QString& picture : pictures) {
        EXPECT_TRUE(QFile::exists(QLatin1Char(':') + QUrl(picture).path())) << picture.toStdString();
        const auto pixmap = browser.document()->resource(QTextDocument::ImageResource, QUrl(picture)).value<QPixmap>();
        EXPECT_EQ(pixmap.width(), QUrl(picture).query().toInt()) << picture.toStdString();
    }
}

} // namespace
} // namespace ruvenmark
