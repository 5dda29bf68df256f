#include "desktop/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace ruvenmark {

void UseDarkColors()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor window(42, 44, 48);
    const QColor base(30, 32, 35);
    const QColor text(228, 229, 231);
    const QColor faint(130, 132, 137);
    const QColor accent(61, 126, 186);
    QPalette palette;
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Button, QColor(53, 56, 61));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Light, QColor(70, 73, 79));
    palette.setColor(QPalette::Midlight, QColor(62, 65, 70));
    palette.setColor(QPalette::Mid, QColor(36, 38, 42));
    palette.setColor(QPalette::Dark, QColor(24, 26, 28));
    palette.setColor(QPalette::Shadow, Qt::black);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(60, 63, 68));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 178, 240));
    palette.setColor(QPalette::LinkVisited, QColor(178, 150, 235));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    QApplication::setPalette(palette);
}

} // namespace ruvenmark
