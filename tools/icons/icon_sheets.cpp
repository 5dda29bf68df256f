// Draws every picture on contact sheets, as the program draws them: icon_sheets FOLDER writes tree.png, map.png,
// actions.png and program.png there.

#include "desktop/icons/icon_set.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

using ruvenmark::IconSet;

const QColor kLight(0xff, 0xff, 0xff);
const QColor kDark(0x23, 0x26, 0x29);

QImage Canvas(int width, int height, const QColor& background, qreal ratio = 1)
{
    QImage image(QSize(width, height) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(background);
    return image;
}

// Icons in rows with their names, at 16 pixels as in the tree.
QImage NamedSheet(const std::vector<std::pair<QString, QIcon>>& icons, const QColor& background, const QColor& text,
                  qreal ratio)
{
    constexpr int kColumns = 6;
    constexpr int kWide = 120;
    constexpr int kHigh = 20;
    const int rows = (static_cast<int>(icons.size()) + kColumns - 1) / kColumns;
    QImage image = Canvas(kColumns * kWide, rows * kHigh, background, ratio);
    QPainter painter(&image);
    painter.setPen(text);
    for (std::size_t i = 0; i < icons.size(); ++i) {
        const int x = static_cast<int>(i) % kColumns * kWide + 4;
        const int y = static_cast<int>(i) / kColumns * kHigh + 2;
        icons[i].second.paint(&painter, QRect(x, y, 16, 16));
        painter.drawText(QRect(x + 22, y, kWide - 26, 16), Qt::AlignVCenter, icons[i].first);
    }
    return image;
}

QImage Stacked(const std::vector<QImage>& images)
{
    int width = 0;
    int height = 0;
    for (const QImage& image : images) {
        width = std::max(width, image.width());
        height += image.height();
    }
    QImage all = Canvas(width, height, Qt::gray);
    QPainter painter(&all);
    int y = 0;
    for (QImage image : images) {
        image.setDevicePixelRatio(1);
        painter.drawImage(0, y, image);
        y += image.height();
    }
    return all;
}

QImage TreeSheet(const IconSet& icons)
{
    std::vector<std::pair<QString, QIcon>> named;
    for (const std::string& key : icons.TreeKeys())
        named.emplace_back(QString::fromStdString(key), icons.Tree(key));
    return Stacked({NamedSheet(named, kLight, Qt::black, 1), NamedSheet(named, kDark, Qt::white, 1),
                    NamedSheet(named, kLight, Qt::black, 2), NamedSheet(named, kDark, Qt::white, 2)});
}

QImage ActionSheet(const IconSet& icons)
{
    const auto sheet = [&icons](const QColor& background, const QColor& text, qreal ratio) {
        QPalette palette(text, background, text, background, background.darker(), text, background);
        palette.setColor(QPalette::ButtonText, text);
        std::vector<std::pair<QString, QIcon>> named;
        for (const QString& name : icons.ActionNames())
            named.emplace_back(name, icons.Action(name, palette));
        return NamedSheet(named, background, text, ratio);
    };
    return Stacked({sheet(QColor(0xef, 0xf0, 0xf1), kDark, 1), sheet(QColor(0x31, 0x36, 0x3b), kLight, 1),
                    sheet(QColor(0xef, 0xf0, 0xf1), kDark, 2), sheet(QColor(0x31, 0x36, 0x3b), kLight, 2)});
}

// Map pictures with their numbers on the colours of land, water and a dark map.
QImage MapSheet(IconSet& icons, int size, qreal ratio)
{
    constexpr int kColumns = 15;
    constexpr int kCell = 44;
    const std::vector<int> numbers = icons.MapNumbers();
    const ruvenmark::MapAtlas& atlas = icons.Atlas(size, ratio);
    const int rows = (static_cast<int>(numbers.size()) + kColumns - 1) / kColumns;
    std::vector<QImage> sheets;
    for (const QColor& background : {QColor(0xf2, 0xee, 0xe2), QColor(0xa8, 0xcc, 0xe0), QColor(0x3a, 0x40, 0x46)}) {
        QImage image = Canvas(kColumns * kCell, rows * kCell, background, ratio);
        QPainter painter(&image);
        painter.setFont(QFont(painter.font().family(), 7));
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const int x = static_cast<int>(i) % kColumns * kCell;
            const int y = static_cast<int>(i) / kColumns * kCell;
            painter.drawPixmap(QRect(x + (kCell - size) / 2, y + 4, size, size), atlas.Sheet(),
                               atlas.Source(numbers[i]));
            painter.drawText(QRect(x, y + 26, kCell, 14), Qt::AlignCenter, QString::number(numbers[i]));
        }
        sheets.push_back(image);
    }
    return Stacked(sheets);
}

QImage ProgramSheet(const IconSet& icons)
{
    QImage image = Canvas(640, 560, kLight);
    QPainter painter(&image);
    painter.fillRect(0, 280, 640, 280, kDark);
    for (const int top : {10, 290}) {
        int x = 10;
        for (const int size : {16, 22, 24, 32, 48, 64, 128, 256}) {
            icons.Program().paint(&painter, QRect(x, top, size, size));
            x += size + 6;
        }
    }
    return image;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: icon_sheets FOLDER\n", stderr);
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]) + QLatin1Char('/');
    IconSet icons;
    const bool written =
        TreeSheet(icons).save(folder + QStringLiteral("tree.png")) &&
        ActionSheet(icons).save(folder + QStringLiteral("actions.png")) &&
        Stacked({MapSheet(icons, 18, 1), MapSheet(icons, 18, 2)}).save(folder + QStringLiteral("map.png")) &&
        ProgramSheet(icons).save(folder + QStringLiteral("program.png"));
    return written ? 0 : 1;
}
