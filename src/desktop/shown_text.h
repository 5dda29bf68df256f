#pragma once

#include "platform/text.h"

#include <QString>

#include <string_view>

// How text from the air, from files and from sockets becomes text on the screen.
namespace ruvenmark {

// Characters that steer the order or the joining of text and show nothing themselves: with them a name could look like
// another one, or turn round what stands beside it.
constexpr bool IsSteering(char32_t c)
{
    return c == 0x00AD || c == 0x061C || c == 0x180E || (c >= 0x200B && c <= 0x200F) || (c >= 0x202A && c <= 0x202E) ||
           (c >= 0x2060 && c <= 0x206F) || c == 0xFEFF || (c >= 0xFFF9 && c <= 0xFFFB);
}

constexpr bool IsBreak(char32_t c)
{
    return (c >= '\t' && c <= '\r') || c == 0x85 || c == 0x2028 || c == 0x2029;
}

// Bytes of any origin as one line of plain text: line breaks and tabs become blanks, other controls and what steers the
// direction become U+FFFD. Widgets that guess whether a text is rich must still be told that it is plain.
inline QString ForDisplay(std::string_view bytes)
{
    const std::string shown = ShownText(bytes);
    QString text = QString::fromUtf8(shown.data(), static_cast<qsizetype>(shown.size()));
    for (QChar& c : text) {
        const char32_t code = c.unicode();
        if (IsBreak(code))
            c = QChar::Space;
        else if (code < 0x20 || (code >= 0x7F && code < 0xA0) || IsSteering(code))
            c = QChar::ReplacementCharacter;
    }
    return text;
}

// A tip that shows just this text: tips guess whether theirs is rich.
inline QString PlainTip(const QString& text)
{
    return QStringLiteral("<span>") + text.toHtmlEscaped() + QStringLiteral("</span>");
}

} // namespace ruvenmark
