#include "mapfiles/base_map.h"

#include "mapfiles/regular_file.h"
#include "platform/failure.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <string>
#include <sys/mman.h>

namespace ruvenmark {

static_assert(std::endian::native == std::endian::little, "The base map is read in place and is little-endian.");

namespace {

constexpr std::string_view kMagic = "RVMAP\r\n\x1a";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kHeaderBytes = 32, kEntryBytes = 40;
constexpr double kWorld = 4294967296.0;
constexpr std::uint16_t kNone = 0xffff;

// The kinds of the file's sections.
constexpr std::uint32_t kFirstLayer = 1, kLastLayer = 5, kHeights = 6, kCountries = 10, kStates = 11, kWaters = 12,
                        kPlaces = 13, kNames = 14, kNameOrder = 15, kCells = 16;

void Require(bool bGood, const char* what)
{
    if (!bGood)
        throw Failure(std::string("The base map is damaged: ") + what);
}

template <typename T>
T Read(std::span<const std::byte> bytes, std::size_t at)
{
    T value{};
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

// The first count values of type T, taken off the front of bytes.
template <typename T>
std::span<const T> Take(std::span<const std::byte>& bytes, std::size_t count)
{
    Require(count <= bytes.size() / sizeof(T), "a section is too short.");
    Require(reinterpret_cast<std::uintptr_t>(bytes.data()) % alignof(T) == 0, "a section is not aligned.");
    const std::span<const T> values(reinterpret_cast<const T*>(bytes.data()), count);
    bytes = bytes.subspan(count * sizeof(T));
    return values;
}

std::uint32_t Crc32(std::span<const std::byte> bytes)
{
    std::uint32_t crc = 0xffffffffU;
    for (const std::byte byte : bytes) {
        crc ^= std::to_integer<std::uint32_t>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xedb88320U : 0U);
    }
    return ~crc;
}

std::optional<std::size_t> Index(std::uint16_t value)
{
    return value == kNone ? std::nullopt : std::optional<std::size_t>(value);
}

} // namespace

struct BaseMap::Section {
    std::uint32_t kind = 0, level = 0, count = 0, bits = 0, topZoom = 0;
    std::span<const std::byte> bytes;
};

class BaseMap::MappedFile {
public:
    explicit MappedFile(const std::string& path)
    {
        const RegularFile file(path);
        void* data = mmap(nullptr, file.Size(), PROT_READ, MAP_PRIVATE, file.Descriptor(), 0);
        if (data == MAP_FAILED) // An empty file, too.
            throw Failure("The base map cannot be read: " + path);
        m_bytes = {static_cast<const std::byte*>(data), file.Size()};
    }
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;
    ~MappedFile() { munmap(const_cast<std::byte*>(m_bytes.data()), m_bytes.size()); }
    std::span<const std::byte> Bytes() const { return m_bytes; }

private:
    std::span<const std::byte> m_bytes;
};

BaseMap BaseMap::Open(const std::string& path)
{
    auto file = std::make_shared<const MappedFile>(path);
    BaseMap map(file->Bytes());
    map.m_file = std::move(file);
    return map;
}

BaseMap::BaseMap(std::span<const std::byte> bytes) : m_bytes(bytes)
{
    ReadSections();
    CheckReferences();
}

void BaseMap::ReadSections()
{
    Require(m_bytes.size() >= kHeaderBytes, "it is too short.");
    Require(std::memcmp(m_bytes.data(), kMagic.data(), kMagic.size()) == 0, "it is no base map at all.");
    Require(Read<std::uint32_t>(m_bytes, 8) == kVersion, "it is of another version.");
    Require(Read<std::uint64_t>(m_bytes, 16) == m_bytes.size(), "it is cut short.");
    Require(Read<std::uint32_t>(m_bytes, 28) == 0, "its header is not in order.");
    const std::size_t count = Read<std::uint32_t>(m_bytes, 12);
    Require(count <= (m_bytes.size() - kHeaderBytes) / kEntryBytes, "its table is too long.");
    const auto table = m_bytes.subspan(kHeaderBytes, count * kEntryBytes);
    Require(Crc32(table) == Read<std::uint32_t>(m_bytes, 24), "its table has a wrong checksum.");
    for (std::size_t i = 0; i < count; ++i) {
        const auto entry = table.subspan(i * kEntryBytes, kEntryBytes);
        const auto offset = Read<std::uint64_t>(entry, 8), size = Read<std::uint64_t>(entry, 16);
        Require(offset <= m_bytes.size() && size <= m_bytes.size() - offset, "a section lies outside.");
        ReadSection({Read<std::uint32_t>(entry, 0), Read<std::uint32_t>(entry, 4), Read<std::uint32_t>(entry, 24),
                     Read<std::uint32_t>(entry, 28), Read<std::uint32_t>(entry, 32), m_bytes.subspan(offset, size)});
    }
}

void BaseMap::ReadSection(const Section& section)
{
    const auto areas = [&] {
        Require(section.bytes.size() == section.count * kAreaBytes, "a table of names has a wrong length.");
        return section.bytes;
    };
    auto rest = section.bytes;
    if (section.kind >= kFirstLayer && section.kind <= kLastLayer) {
        auto& levels = m_layers.at(section.kind);
        Require(section.level == levels.size(), "levels of detail are missing.");
        levels.emplace_back(section.bytes, section.count, section.bits, section.topZoom / 100.0);
    } else if (section.kind == kHeights) {
        ReadHeights(section);
    } else if (section.kind == kCountries) {
        m_countries = areas();
    } else if (section.kind == kStates) {
        m_states = areas();
    } else if (section.kind == kWaters) {
        m_waters = areas();
    } else if (section.kind == kPlaces) {
        ReadPlaces(section);
    } else if (section.kind == kNames) {
        m_names = section.bytes;
    } else if (section.kind == kNameOrder) {
        m_nameOrder = Take<std::uint32_t>(rest, section.count);
    } else if (section.kind == kCells) {
        ReadCells(section);
    }
}

void BaseMap::ReadPlaces(const Section& section)
{
    auto rest = section.bytes;
    m_places.count = section.count;
    for (auto* column : {&m_places.x, &m_places.y, &m_places.population, &m_places.name, &m_places.folded})
        *column = Take<std::uint32_t>(rest, section.count);
    for (auto* column : {&m_places.state, &m_places.country})
        *column = Take<std::uint16_t>(rest, section.count);
    for (auto* column : {&m_places.flags, &m_places.nameLength, &m_places.foldedLength})
        *column = Take<std::uint8_t>(rest, section.count);
}

void BaseMap::ReadCells(const Section& section)
{
    Require(section.bits <= 10, "its grid of places is too fine.");
    auto rest = section.bytes;
    m_cellBits = section.bits;
    m_cellStarts = Take<std::uint32_t>(rest, (std::size_t{1} << (2 * m_cellBits)) + 1);
    m_cellPlaces = Take<std::uint32_t>(rest, section.count);
    Require(std::is_sorted(m_cellStarts.begin(), m_cellStarts.end()) && m_cellStarts.back() <= m_cellPlaces.size(),
            "its grid of places is out of order.");
}

void BaseMap::ReadHeights(const Section& section)
{
    auto rest = section.bytes;
    m_heights = section.bytes;
    m_heightStarts = Take<std::uint32_t>(rest, std::size_t{section.count} + 1);
    Require(std::is_sorted(m_heightStarts.begin(), m_heightStarts.end()) && m_heightStarts.back() <= m_heights.size(),
            "its height tiles are out of order.");
}

void BaseMap::CheckAreas(std::span<const std::byte> areas) const
{
    for (std::size_t at = 0; at < areas.size(); at += kAreaBytes) {
        const std::size_t offset = Read<std::uint32_t>(areas, at + 16), length = Read<std::uint16_t>(areas, at + 20);
        const auto country = Index(Read<std::uint16_t>(areas, at + 22));
        Require(offset + length <= m_names.size(), "a name lies outside.");
        const auto area = Read<float>(areas, at + 12);
        Require(!country || *country < CountryCount(), "a country is missing.");
        Require(area >= 0 && area <= 1, "an area is no share of the world.");
    }
}

void BaseMap::CheckReferences() const
{
    for (std::size_t layer = kFirstLayer; layer <= kLastLayer; ++layer)
        Require(!m_layers.at(layer).empty(), "a layer is missing.");
    for (const auto& areas : {m_countries, m_states, m_waters})
        CheckAreas(areas);
    for (std::size_t i = 0; i < m_places.count; ++i) {
        const auto state = Index(m_places.state[i]), country = Index(m_places.country[i]);
        Require(std::size_t{m_places.name[i]} + m_places.nameLength[i] <= m_names.size() &&
                    std::size_t{m_places.folded[i]} + m_places.foldedLength[i] <= m_names.size(),
                "the name of a place lies outside.");
        Require((!state || *state < StateCount()) && (!country || *country < CountryCount()), "a state is missing.");
    }
    const auto isPlace = [&](std::uint32_t place) { return place < m_places.count; };
    Require(!m_cellStarts.empty() && std::all_of(m_nameOrder.begin(), m_nameOrder.end(), isPlace) &&
                std::all_of(m_cellPlaces.begin(), m_cellPlaces.end(), isPlace),
            "a place is missing.");
}

const VectorLayer& BaseMap::Layer(BaseMapLayer layer, double zoom) const
{
    const auto& levels = m_layers.at(static_cast<std::size_t>(layer));
    const auto fine = std::find_if(levels.begin(), levels.end(), [&](const auto& l) { return l.TopZoom() >= zoom; });
    return fine == levels.end() ? levels.back() : *fine;
}

AreaLabel BaseMap::AreaAt(std::span<const std::byte> areas, std::size_t index) const
{
    const auto record = areas.subspan(index * kAreaBytes, kAreaBytes);
    const auto name = m_names.subspan(Read<std::uint32_t>(record, 16), Read<std::uint16_t>(record, 20));
    return {Read<std::uint32_t>(record, 0) / kWorld,
            Read<std::uint32_t>(record, 4) / kWorld,
            Read<std::uint32_t>(record, 8) / kWorld,
            static_cast<double>(Read<float>(record, 12)),
            {reinterpret_cast<const char*>(name.data()), name.size()},
            Index(Read<std::uint16_t>(record, 22)),
            Read<std::uint8_t>(record, 26)};
}

PlaceRecord BaseMap::Place(std::size_t index) const
{
    const auto name = m_names.subspan(m_places.name[index], m_places.nameLength[index]);
    const unsigned flags = m_places.flags[index];
    return {m_places.x[index] / kWorld,
            m_places.y[index] / kWorld,
            m_places.population[index],
            {reinterpret_cast<const char*>(name.data()), name.size()},
            Index(m_places.state[index]),
            Index(m_places.country[index]),
            (flags & 1U) != 0,
            (flags & 4U) != 0};
}

std::string_view BaseMap::FoldedName(std::size_t index) const
{
    const bool bOwn = m_places.foldedLength[index] != 0;
    const auto name = bOwn ? m_names.subspan(m_places.folded[index], m_places.foldedLength[index])
                           : m_names.subspan(m_places.name[index], m_places.nameLength[index]);
    return {reinterpret_cast<const char*>(name.data()), name.size()};
}

std::span<const std::uint32_t> BaseMap::PlacesInCell(std::uint32_t column, std::uint32_t row) const
{
    const std::size_t cell = std::size_t{row} * CellsPerSide() + column;
    if (column >= CellsPerSide() || row >= CellsPerSide())
        return {};
    return m_cellPlaces.subspan(m_cellStarts[cell], m_cellStarts[cell + 1] - m_cellStarts[cell]);
}

std::span<const std::byte> BaseMap::HeightTile(std::uint32_t level, std::uint32_t column, std::uint32_t row) const
{
    const std::uint32_t side = 1U << (level - 1);
    std::size_t tile = std::size_t{row} * side + column;
    for (std::uint32_t above = 1; above < level; ++above)
        tile += std::size_t{1} << (2 * (above - 1));
    if (column >= side || row >= side || tile + 1 >= m_heightStarts.size())
        return {};
    return m_heights.subspan(m_heightStarts[tile], m_heightStarts[tile + 1] - m_heightStarts[tile]);
}

} // namespace ruvenmark
