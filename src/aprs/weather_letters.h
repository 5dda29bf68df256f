#pragma once

#include "aprs/packet.h"
#include "aprs/text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

// What each letter of a weather report means.
namespace ruvenmark::aprs {

inline constexpr std::uint8_t kMany = 7; // Digits of figures without a width of their own; less than a block holds.

// What the figure behind a letter means: its value is the figure divided, with something added.
struct Field {
    std::optional<double> Weather::*value = nullptr; // None for letters that are known, but of no use.
    double divisor = 1;
    double addend = 0;
    std::uint8_t minDigits = 1;
    std::uint8_t maxDigits = 0; // 0 for letters that mean nothing here.
};

constexpr std::array<Field, 256> MakeFields()
{
    std::array<Field, 256> fields{};
    fields['g'] = {&Weather::gust, 1, 0, 1, kMany};
    fields['t'] = {&Weather::temperature, 1, 0, 1, kMany};
    fields['r'] = {&Weather::rainHour, 100, 0, 1, 3};
    fields['p'] = {&Weather::rainDay, 100, 0, 1, 3};
    fields['P'] = {&Weather::rainMidnight, 100, 0, 1, 3};
    fields['h'] = {&Weather::humidity, 1, 0, 1, 3};
    fields['b'] = {&Weather::pressure, 10, 0, 4, 5};
    fields['l'] = {&Weather::luminosity, 1, 1000, 1, 3};
    fields['L'] = {&Weather::luminosity, 1, 0, 1, 4};
    fields['s'] = {&Weather::snowDay, 1, 0, 1, 3};
    fields['#'] = {nullptr, 1, 0, 1, kMany}; // A raw rain counter.
    fields['v'] = {nullptr, 1, 0, 1, kMany}; // Seen on the air, in no book.
    return fields;
}
inline constexpr std::array<Field, 256> kFields = MakeFields();

// By letter: a bit for each number of digits whose value is the field's, with nothing to be added.
inline constexpr auto kPlainDigits = MakeByteTable([](char letter) {
    const Field& field = kFields[static_cast<unsigned char>(letter)];
    unsigned bits = 0;
    for (unsigned digits = field.minDigits; digits <= field.maxDigits; ++digits)
        bits |= 1U << digits;
    return static_cast<std::uint8_t>(field.value != nullptr && field.addend == 0 ? bits : 0);
});

inline const Field& FieldOf(char letter)
{
    return kFields[static_cast<unsigned char>(letter)];
}

inline bool IsField(char letter)
{
    return FieldOf(letter).maxDigits != 0;
}

// Whether a figure of so many digits is a letter's value, with nothing to be added.
inline bool IsPlain(char letter, std::size_t digits)
{
    return (kPlainDigits[static_cast<unsigned char>(letter)] >> digits & 1U) != 0;
}

// Which letters have been met: a bit each.
class Letters {
public:
    void Add(char letter) { m_bits |= Bit(letter); }
    // Of letters of fields only.
    bool Hold(char letter) const { return (m_bits & Bit(letter)) != 0; }
    bool HoldAny() const { return m_bits != 0; }

private:
    // Small and capital letters and '#' have different ends.
    static std::uint64_t Bit(char letter) { return std::uint64_t{1} << (static_cast<unsigned char>(letter) & 63U); }

    std::uint64_t m_bits = 0;
};

} // namespace ruvenmark::aprs
