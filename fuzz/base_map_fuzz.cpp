#include "mapfiles/base_map.h"
#include "platform/failure.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>
#include <vector>

namespace {

using namespace ruvenmark;

constexpr std::size_t kHeader = 32, kEntry = 40;

template <typename T>
void Write(std::span<std::byte> bytes, std::size_t at, T value)
{
    std::memcpy(bytes.data() + at, &value, sizeof value);
}

// The sum over the table, the length and the magic number: what they keep out is not what is looked for here.
void MendHeader(std::span<std::byte> bytes)
{
    std::uint32_t count = 0;
    std::memcpy(&count, bytes.data() + 12, sizeof count);
    count = std::min(count, static_cast<std::uint32_t>((bytes.size() - kHeader) / kEntry));
    std::uint32_t crc = ~0U;
    for (const std::byte byte : bytes.subspan(kHeader, count * kEntry)) {
        crc ^= std::to_integer<std::uint32_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xedb88320U : 0U);
    }
    std::memcpy(bytes.data(), "RVMAP\r\n\x1a", 8);
    Write(bytes, 8, std::uint32_t{1});
    Write(bytes, 12, count);
    Write(bytes, 16, std::uint64_t{bytes.size()});
    Write(bytes, 24, ~crc);
    Write(bytes, 28, std::uint32_t{0});
}

// Everything that painters and searches read.
void ReadAll(const BaseMap& map)
{
    for (const BaseMapLayer layer : {BaseMapLayer::Land, BaseMapLayer::Rivers, BaseMapLayer::Borders,
                                     BaseMapLayer::CountryAreas, BaseMapLayer::Inlets}) {
        const VectorLayer& shapes = map.Layer(layer, 5);
        for (const VectorLayer::Leaf& leaf : shapes.LeavesIn({}))
            for (LeafReader reader(shapes, leaf); reader.Next();)
                if (!reader.Points().empty())
                    reader.IsCut(reader.Points().front(), reader.Points().back());
    }
    std::size_t letters = 0;
    for (std::size_t i = 0; i < map.CountryCount(); ++i)
        letters += map.Country(i).name.size();
    for (std::size_t i = 0; i < map.StateCount(); ++i)
        letters += map.State(i).name.size();
    for (std::size_t i = 0; i < map.WaterCount(); ++i)
        letters += map.Water(i).name.size();
    for (std::size_t i = 0; i < map.PlaceCount(); ++i)
        letters += map.Place(i).name.size() + map.FoldedName(i).size();
    for (const std::uint32_t place : map.PlacesInCell(0, map.CellsPerSide() - 1))
        letters += map.Place(place).name.size();
    for (std::uint32_t level = 1; level <= BaseMap::kHeightLevels; ++level)
        letters += map.HeightTile(level, 0, 0).size();
    if (letters > std::size_t{1} << 40U) // Keeps the readings from being left out.
        std::abort();
}

} // namespace

// Any bytes with a sound header are a map that can be read, or a Failure.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::uint64_t> words((size + 7) / 8);
    const auto bytes = std::as_writable_bytes(std::span(words)).first(size);
    if (size > 0)
        std::memcpy(bytes.data(), data, size);
    if (size >= kHeader)
        MendHeader(bytes);
    try {
        ReadAll(BaseMap(bytes));
    } catch (const Failure&) {
    }
    return 0;
}
