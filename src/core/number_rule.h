#pragma once

#include <array>
#include <cstddef>
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

// A box of a form that takes a number, and what it takes.
template <class Form>
struct NumberBox {
    std::string_view name;
    std::string Form::*text;
    NumberRule rule;
};

// The message for the first box that does not hold what it may; that one is put back.
template <class Form, std::size_t kCount>
std::optional<std::string> CheckNumbers(Form& form, const std::array<NumberBox<Form>, kCount>& boxes)
{
    for (const NumberBox<Form>& box : boxes)
        if (auto message = CheckNumber(form.*box.text, box.rule))
            return message;
    return std::nullopt;
}

} // namespace ruvenmark
