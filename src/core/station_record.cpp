#include "core/station_record.h"

#include "platform/failure.h"
#include "platform/numbers.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <string>

namespace ruvenmark {

namespace {

constexpr std::size_t kLargestRecord = std::size_t{1} << 30U;
constexpr std::size_t kGrain = 16; // What the heap gives anyway; it keeps eight bytes of its first for itself.

} // namespace

Record::Entry Record::LongEntryAt(const char* at)
{
    std::uint32_t size = 0;
    std::memcpy(&size, at + kShortHead, sizeof(size));
    return {static_cast<Field>(at[0]), {at + kLongHead, size}};
}

// Returns where the text stands.
char* Record::WriteHead(char* at, Field field, std::size_t textSize)
{
    at[0] = static_cast<char>(field);
    at[1] = static_cast<char>(std::min<std::size_t>(textSize, kLongSize));
    if (textSize >= kLongSize) {
        const auto longSize = static_cast<std::uint32_t>(textSize);
        std::memcpy(at + kShortHead, &longSize, sizeof(longSize));
    }
    return at + HeadSize(textSize);
}

std::string_view Record::Find(Field field) const
{
    for (const auto [found, text] : *this)
        if (found == field)
            return text;
    return {};
}

std::size_t Record::PlaceOf(Field field, std::size_t start) const
{
    const char* const block = m_block.get();
    const auto search = [&](std::size_t at, std::size_t end) {
        while (at < end && block[at] != static_cast<char>(field)) {
            const std::string_view text = EntryAt(block + at).second;
            at = static_cast<std::size_t>(text.data() - block) + text.size();
        }
        return at;
    };
    const std::size_t behind = search(start, m_size);
    if (behind < m_size)
        return behind;
    const std::size_t ahead = search(0, start);
    return ahead < start ? ahead : m_size;
}

void Record::Set(std::span<const Entry> values)
{
    std::size_t place = 0;
    for (const auto& [field, text] : values)
        place = SetFrom(place, field, text);
}

std::size_t Record::SetFrom(std::size_t start, Field field, std::string_view value)
{
    const std::size_t at = PlaceOf(field, start);
    const std::size_t size = HeadSize(value.size()) + value.size();
    const std::size_t oldTextSize = at < m_size ? EntryAt(m_block.get() + at).second.size() : 0;
    if (at < m_size && oldTextSize == value.size()) {
        if (!value.empty())
            std::memmove(m_block.get() + at + HeadSize(oldTextSize), value.data(), value.size());
        return at + size;
    }
    std::string copy;
    if (const std::less<> before; !before(value.data(), m_block.get()) && before(value.data(), m_block.get() + m_size))
        value = copy = value; // A part of the block, which moves.
    Replace(at, at < m_size ? HeadSize(oldTextSize) + oldTextSize : 0, size);
    char* const text = WriteHead(m_block.get() + at, field, value.size());
    std::copy(value.begin(), value.end(), text);
    return at + size;
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
