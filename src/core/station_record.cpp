#include "core/station_record.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace ruvenmark {

namespace {

// A size is a byte, or this byte and four more.
constexpr unsigned char kLongSize = 255;
constexpr std::size_t kShortHead = 2, kLongHead = 6;
constexpr std::size_t kLargestRecord = std::size_t{1} << 30U;
constexpr std::size_t kGrain = 16; // What the heap gives anyway; it keeps eight bytes of its first for itself.

std::size_t HeadSize(std::size_t textSize)
{
    return textSize < kLongSize ? kShortHead : kLongHead;
}

char* WriteHead(char* at, Field field, std::size_t textSize)
{
    at[0] = static_cast<char>(field);
    at[1] = static_cast<char>(std::min<std::size_t>(textSize, kLongSize));
    if (textSize >= kLongSize) {
        const auto longSize = static_cast<std::uint32_t>(textSize);
        std::memcpy(at + kShortHead, &longSize, sizeof(longSize));
    }
    return at + HeadSize(textSize);
}

} // namespace

Record::Entry Record::EntryAt(const char* at)
{
    const auto field = static_cast<Field>(at[0]);
    const auto shortSize = static_cast<unsigned char>(at[1]);
    if (shortSize < kLongSize)
        return {field, {at + kShortHead, shortSize}};
    std::uint32_t longSize = 0;
    std::memcpy(&longSize, at + kShortHead, sizeof(longSize));
    return {field, {at + kLongHead, longSize}};
}

std::string_view Record::Find(Field field) const
{
    for (const auto [found, text] : *this)
        if (found == field)
            return text;
    return {};
}

void Record::Set(Field field, std::string_view value)
{
    const std::string_view old = Find(field);
    if (old.data() && old.size() == value.size()) {
        if (!value.empty())
            std::memmove(m_block.get() + (old.data() - m_block.get()), value.data(), value.size());
        return;
    }
    const std::string own(value); // It may be a part of the block.
    const std::size_t oldSize = old.data() ? HeadSize(old.size()) + old.size() : 0;
    const std::size_t at =
        old.data() ? static_cast<std::size_t>(old.data() - m_block.get()) - HeadSize(old.size()) : m_size;
    Replace(at, oldSize, HeadSize(own.size()) + own.size());
    char* const text = WriteHead(m_block.get() + at, field, own.size());
    std::copy(own.begin(), own.end(), text);
}

// Makes room for newSize bytes in the place of the size bytes at `at`.
void Record::Replace(std::size_t at, std::size_t size, std::size_t newSize)
{
    const std::size_t total = m_size - size + newSize;
    if (newSize > kLargestRecord || total > kLargestRecord)
        throw Failure("the record is too large");
    const std::size_t behind = at + size;
    if (total <= m_capacity) {
        std::memmove(m_block.get() + at + newSize, m_block.get() + behind, m_size - behind);
    } else {
        const std::size_t capacity = (total + total / 8 + kGrain / 2 + kGrain - 1) / kGrain * kGrain - kGrain / 2;
        std::unique_ptr<char[]> block(new char[capacity]);
        std::copy_n(m_block.get(), at, block.get());
        std::copy_n(m_block.get() + behind, m_size - behind, block.get() + at + newSize);
        m_block = std::move(block);
        m_capacity = static_cast<std::uint32_t>(capacity);
    }
    m_size = static_cast<std::uint32_t>(total);
}

std::optional<GeoPoint> PositionOf(const Record& record)
{
    const auto lat = ReadNumber(record.Get(Field::Lat));
    const auto lon = ReadNumber(record.Get(Field::Lon));
    if (!lat || !lon)
        return std::nullopt;
    return GeoPoint{*lat, *lon};
}

} // namespace ruvenmark
