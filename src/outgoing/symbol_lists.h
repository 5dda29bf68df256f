#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace ruvenmark {

struct SymbolChoice {
    std::string_view text;
    char code;
};
// Of positions, in the primary symbol table, and of objects, in the alternate one.
std::span<const SymbolChoice> PositionSymbols();
std::span<const SymbolChoice> ObjectSymbols();

// An index outside the list gives the default's.
char SymbolCode(std::span<const SymbolChoice> list, std::int32_t index);

} // namespace ruvenmark
