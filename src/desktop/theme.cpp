#include "desktop/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

#include <array>
#include <utility>

namespace ruvenmark {

namespace {

constexpr QRgb kWindow = 0x2A2C30, kText = 0xE4E5E7, kFaint = 0x828489;

constexpr std::array<std::pair<QPalette::ColorRole, QRgb>, 20> kColors{{
    {QPalette::Window, kWindow},        {QPalette::WindowText, kText},     {QPalette::Base, 0x1E2023},
    {QPalette::AlternateBase, kWindow}, {QPalette::Text, kText},           {QPalette::PlaceholderText, kFaint},
    {QPalette::Button, 0x35383D},       {QPalette::ButtonText, kText},     {QPalette::Light, 0x46494F},
    {QPalette::Midlight, 0x3E4146},     {QPalette::Mid, 0x24262A},         {QPalette::Dark, 0x181A1C},
    {QPalette::Shadow, 0x000000},       {QPalette::BrightText, 0xFFFFFF},  {QPalette::ToolTipBase, 0x3C3F44},
    {QPalette::ToolTipText, kText},     {QPalette::Highlight, 0x3D7EBA},   {QPalette::HighlightedText, 0xFFFFFF},
    {QPalette::Link, 0x6EB2F0},         {QPalette::LinkVisited, 0xB296EB},
}};

} // namespace

void UseDarkColors()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette;
    for (const auto& [role, color] : kColors)
        palette.setColor(role, QColor(color));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(kFaint));
    QApplication::setPalette(palette);
}

} // namespace ruvenmark
