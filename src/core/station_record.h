#pragma once

#include "platform/expect_memory.h"
#include "platform/geometry.h"
#include "platform/slot_pool.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

namespace ruvenmark {

class TreeNode;

enum class Field : std::uint8_t {
    Call,
    Lat,
    Lon,
    PositionPath,
    Symbol,
    Comment,
    PositionReceived,
    Alt,
    Speed,
    Course,
    Power,
    Height,
    Gain,
    Directivity,
    PositionTime,
    WeatherTime,
    StatusTime,
    Status,
    Capabilities,
    Info,
    StatusPath,
    StatusReceived,
    WindDir,
    WindSpeed,
    Temperature,
    Rain,
    Humidity,
    Pressure,
    WeatherPath,
    WeatherReceived,
    Sender
};

inline constexpr std::array<std::string_view, 31> kFieldNames = {"Call",
                                                                 "Lat",
                                                                 "Lon",
                                                                 "PositionPath",
                                                                 "Symbol",
                                                                 "Comment",
                                                                 "PositionReceived",
                                                                 "Alt",
                                                                 "Speed",
                                                                 "Course",
                                                                 "Power",
                                                                 "Height",
                                                                 "Gain",
                                                                 "Directivity",
                                                                 "PositionTime",
                                                                 "WeatherTime",
                                                                 "StatusTime",
                                                                 "Status",
                                                                 "Capabilities",
                                                                 "Info",
                                                                 "StatusPath",
                                                                 "StatusReceived",
                                                                 "WindDir",
                                                                 "WindSpeed",
                                                                 "Temperature",
                                                                 "Rain",
                                                                 "Humidity",
                                                                 "Pressure",
                                                                 "WeatherPath",
                                                                 "WeatherReceived",
                                                                 "Sender"};

constexpr std::string_view FieldName(Field field)
{
    return kFieldNames[static_cast<std::size_t>(field)];
}

// What has been reported of a station on one channel so far: only the fields that were given, in order of first report.
// They stand in one block, each as the field, the size of its text and the text.
class Record {
public:
    struct Entry {
        Field first;
        std::string_view second;
    };
    class Iterator {
    public:
        explicit Iterator(const char* at) : m_at(at) {}
        Entry operator*() const { return EntryAt(m_at); }
        Iterator& operator++()
        {
            const std::string_view text = EntryAt(m_at).second;
            m_at = text.data() + text.size();
            return *this;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        const char* m_at;
    };

    bool Has(Field field) const { return Find(field).data() != nullptr; }

    // Empty for a field that was never set.
    std::string_view Get(Field field) const { return Find(field); }

    // Raises Failure for a record beyond all reason.
    void Set(Field field, std::string_view value) { SetFrom(0, field, value); }
    // One after the other, none of them a part of this record. It is quickest in the order in which they were first
    // given.
    void Set(std::span<const Entry> values);

    // Where the marker that these reports move was last found; it may be gone or bear another name by now.
    SlotRef Marker;
    // Its node under "Positions", in the same way.
    TreeNode* PositionNode = nullptr;

    // The fields will be needed.
    void Expect() const { ExpectMemory(m_block.get(), m_size); }

    Iterator begin() const { return Iterator(m_block.get()); }
    Iterator end() const { return Iterator(m_block.get() + m_size); }

private:
    // A size is a byte, or this byte and four more.
    static constexpr unsigned char kLongSize = 255;
    static constexpr std::size_t kShortHead = 2, kLongHead = 6;

    static Entry EntryAt(const char* at)
    {
        const auto shortSize = static_cast<unsigned char>(at[1]);
        return shortSize < kLongSize ? Entry{static_cast<Field>(at[0]), {at + kShortHead, shortSize}} : LongEntryAt(at);
    }
    static Entry LongEntryAt(const char* at);
    static std::size_t HeadSize(std::size_t textSize) { return textSize < kLongSize ? kShortHead : kLongHead; }
    static char* WriteHead(char* at, Field field, std::size_t textSize);

    std::string_view Find(Field field) const; // No data where there is none.
    // Where its entry begins, looked for from the start on and then ahead of it; the record's size where there is none.
    std::size_t PlaceOf(Field field, std::size_t start) const;
    std::size_t SetFrom(std::size_t start, Field field, std::string_view value); // The place behind the entry.
    void Replace(std::size_t at, std::size_t size, std::size_t newSize);

    std::unique_ptr<char[]> m_block;
    std::uint32_t m_size = 0;
    std::uint32_t m_capacity = 0;
};

// Where the station was last reported; nothing where no position is known.
std::optional<GeoPoint> PositionOf(const Record& record);

} // namespace ruvenmark
