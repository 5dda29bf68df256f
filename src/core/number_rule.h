#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ruvenmark {

// What a box of a dialog takes: a whole or any number between two bounds, or nothing.
struct NumberRule {
    enum class Kind : bool { Whole, Decimal };
    Kind kind;
    double lowest, highest;   // Both are allowed.
    std::string_view message; // Told where the text is no such number; empty where it is only put back.
    std::string_view reset;   // What the box then shows.
};

// Whether the text may stay. A text that is no number counts as out of bounds; an empty one is nothing to complain of.
bool Fits(std::string_view text, const NumberRule& rule);

// The box is left: puts a text that does not fit back and gives the message for the operator, else nothing.
std::optional<std::string> CheckNumber(std::string& text, const NumberRule& rule);

} // namespace ruvenmark
