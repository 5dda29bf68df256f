#include "desktop/theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include <array>
#include <utility>

namespace ruvenmark {

namespace {

constexpr QRgb kWindow = 0x2A2C30, kText = 0xE4E5E7, kFaint = 0x828489, kOutline = 0x6A6D73, kFaintOutline = 0x46494F;

constexpr std::array<std::pair<QPalette::ColorRole, QRgb>, 20> kColors{{
    {QPalette::Window, kWindow},        {QPalette::WindowText, kText},     {QPalette::Base, 0x1E2023},
    {QPalette::AlternateBase, kWindow}, {QPalette::Text, kText},           {QPalette::PlaceholderText, kFaint},
    {QPalette::Button, 0x35383D},       {QPalette::ButtonText, kText},     {QPalette::Light, 0x46494F},
    {QPalette::Midlight, 0x3E4146},     {QPalette::Mid, 0x24262A},         {QPalette::Dark, 0x181A1C},
    {QPalette::Shadow, 0x000000},       {QPalette::BrightText, 0xFFFFFF},  {QPalette::ToolTipBase, 0x3C3F44},
    {QPalette::ToolTipText, kText},     {QPalette::Highlight, 0x3D7EBA},   {QPalette::HighlightedText, 0xFFFFFF},
    {QPalette::Link, 0x6EB2F0},         {QPalette::LinkVisited, 0xB296EB},
}};

// The style outlines darker than the ground, which is not seen on a dark one: fields and boxes are outlined lighter.
class DarkStyle final : public QProxyStyle {
public:
    DarkStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_Frame || element == PE_FrameMenu) { // Lists, and what lies on the map.
            painter->save();
            painter->setPen(QColor(kFaintOutline));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            painter->restore();
            return;
        }
        const bool bBox = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
        const State lit = State_HasFocus | (bBox ? State_KeyboardFocusChange : State_None);
        if ((!bBox && element != PE_FrameLineEdit) || (option->state & lit) == lit)
            return;
        constexpr qreal kRound = 2;
        const QRectF outline = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QColor((option->state & State_Enabled) != 0 ? kOutline : kFaintOutline));
        if (element == PE_IndicatorRadioButton)
            painter->drawEllipse(outline);
        else
            painter->drawRoundedRect(outline, kRound, kRound);
        painter->restore();
    }
};

} // namespace

void UseDarkColors()
{
    QApplication::setStyle(new DarkStyle);
    QPalette palette;
    for (const auto& [role, color] : kColors)
        palette.setColor(role, QColor(color));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(kFaint));
    QApplication::setPalette(palette);
}

} // namespace ruvenmark
