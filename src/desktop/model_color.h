#pragma once

#include <QColor>

#include <cstdint>

namespace ruvenmark {

// The models' colours are 24-bit numbers with red in the low byte.
inline QColor ModelColor(std::uint32_t number)
{
    return {static_cast<int>(number & 0xFFU), static_cast<int>(number >> 8U & 0xFFU),
            static_cast<int>(number >> 16U & 0xFFU)};
}

} // namespace ruvenmark
