#include "desktop/map/base_map.h"
#include "desktop/map/place_index.h"
#include "desktop/map/place_labels.h"
#include "platform/failure.h"
#include "world_map.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <map>
#include <random>

namespace ruvenmark {
namespace {

constexpr std::size_t kHeader = 32, kEntry = 40;

// The file's bytes, eight-byte aligned, free to be damaged.
class Bytes {
public:
    Bytes()
    {
        QFile file(WorldMapPath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray all = file.readAll();
        m_size = static_cast<std::size_t>(all.size());
        m_words.resize((m_size + 7) / 8);
        std::memcpy(m_words.data(), all.constData(), m_size);
    }
    std::span<std::byte> All() { return std::as_writable_bytes(std::span(m_words)).first(m_size); }
    std::uint32_t Sections() { return Word(12); }
    std::uint32_t Word(std::size_t at)
    {
        std::uint32_t value = 0;
        std::memcpy(&value, All().data() + at, sizeof value);
        return value;
    }
    void SetWord(std::size_t at, std::uint32_t value) { std::memcpy(All().data() + at, &value, sizeof value); }
    // So that damage to the table is not found by its checksum alone.
    void SignTable()
    {
        std::uint32_t crc = 0xffffffffU;
        for (const std::byte byte : All().subspan(kHeader, kEntry * Sections())) {
            crc ^= std::to_integer<std::uint32_t>(byte);
            for (int bit = 0; bit < 8; ++bit)
                crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xedb88320U : 0U);
        }
        SetWord(24, ~crc);
    }

private:
    std::vector<std::uint64_t> m_words;
    std::size_t m_size = 0;
};

// Whatever the bytes are: either a Failure or a map that can be painted and searched. Returns whether it opened.
bool UseAll(std::span<const std::byte> bytes)
{
    try {
        const BaseMap map(bytes);
        PlaceLabels labels(map);
        QImage image(160, 120, QImage::Format_RGB32);
        QPainter painter(&image);
        for (const double zoom : {1.0, 4.4, 7.0, 11.3}) {
            const ViewFrame frame = FrameAt({40.7, -74.0}, zoom, 160, 120);
            for (const MapStyle style : {MapStyle::Terrain, MapStyle::Political})
                PaintGround(map, frame, style);
            LabelGrid grid(160, 120);
            labels.Paint(painter, frame, grid, {});
        }
        for (const std::size_t place : FindPlaces(map, u"a", 5))
            EXPECT_LT(place, map.PlaceCount());
        return true;
    } catch (const Failure&) {
        return false;
    }
}

TEST(BaseMapTest, HoldsTheWorld)
{
    const BaseMap map = BaseMap::Open(WorldMapPath());
    EXPECT_GT(map.PlaceCount(), 130000U);
    EXPECT_GE(map.CountryCount(), 230U);
    EXPECT_GT(map.StateCount(), 4000U);
    EXPECT_GT(map.Place(0).population, map.Place(1).population);
    EXPECT_LT(map.Layer(BaseMapLayer::Land, 2).UnitsPerWorld(), map.Layer(BaseMapLayer::Land, 12).UnitsPerWorld());
    EXPECT_LT(QFileInfo(WorldMapPath()).size(), 35 * 1024 * 1024);
}

TEST(BaseMapTest, MissingOrForeignFileIsAFailure)
{
    const QTemporaryDir folder;
    EXPECT_THROW(BaseMap::Open(folder.filePath("none.rvm")), Failure);
    for (const QByteArray& content : {QByteArray(), QByteArray("RVMAP"), QByteArray(100, 'x')}) {
        QFile file(folder.filePath("bad.rvm"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(content);
        file.close();
        EXPECT_THROW(BaseMap::Open(file.fileName()), Failure);
    }
}

TEST(BaseMapTest, CutShortAnywhereIsAFailure)
{
    Bytes bytes;
    const std::size_t size = bytes.All().size();
    std::vector<std::size_t> lengths{0, 1, 8, 31, 32, 33, 71, 72, size / 3, size / 2, size - 8, size - 1};
    for (std::size_t at = 0; at < size; at += size / 97)
        lengths.push_back(at);
    for (const std::size_t length : lengths) {
        EXPECT_THROW(BaseMap(bytes.All().first(length)), Failure) << length;
        if (length < kHeader || size - length <= 8) // The end may be padding.
            continue;
        const std::uint32_t told = bytes.Word(16); // The same with a header that knows no more than what is there.
        bytes.SetWord(16, static_cast<std::uint32_t>(length));
        EXPECT_THROW(BaseMap(bytes.All().first(length)), Failure) << length;
        bytes.SetWord(16, told);
    }
}

TEST(BaseMapTest, AnyChangeOfTheTableIsNoticed)
{
    Bytes bytes;
    for (std::size_t at = 0; at < kHeader + kEntry * bytes.Sections(); at += 3) {
        bytes.All()[at] ^= std::byte{0x41};
        EXPECT_THROW(BaseMap{bytes.All()}, Failure) << at;
        bytes.All()[at] ^= std::byte{0x41};
    }
}

TEST(BaseMapTest, LyingTableNeverCrashes)
{
    Bytes bytes;
    std::mt19937 random(7);
    const std::array<std::uint32_t, 8> values{0, 1, 7, 0x7fffffff, 0xffffffff, 0x10000000, 14, 1000};
    for (int round = 0; round < 60; ++round) {
        const std::size_t at = kHeader + kEntry * (random() % bytes.Sections()) + 4 * (random() % 9);
        const std::uint32_t good = bytes.Word(at), checksum = bytes.Word(24);
        bytes.SetWord(at, round % 3 == 0 ? good + random() % 64 : values.at(random() % values.size()));
        bytes.SignTable();
        UseAll(bytes.All());
        bytes.SetWord(at, good);
        bytes.SetWord(24, checksum);
    }
    EXPECT_TRUE(UseAll(bytes.All()));
}

TEST(BaseMapTest, DamagedContentNeverCrashes)
{
    Bytes bytes;
    std::mt19937 random(11);
    const std::size_t first = kHeader + kEntry * bytes.Sections();
    const auto all = bytes.All();
    int opened = 0;
    for (int round = 0; round < 25; ++round) {
        std::map<std::size_t, std::byte> old;
        const std::size_t start = first + random() % (all.size() - first - 200000);
        for (int change = 0; change < 3000; ++change) {
            const std::size_t at = start + random() % 200000;
            old.emplace(at, all[at]);
            all[at] = static_cast<std::byte>(random());
        }
        opened += UseAll(all) ? 1 : 0;
        for (const auto& [at, byte] : old)
            all[at] = byte;
    }
    EXPECT_GT(opened, 0);
    EXPECT_LT(opened, 25);
}

// Which colour fills a point, by the odd-even rule; -1: none.
int ColourAt(const VectorLayer& areas, double x, double y)
{
    const double worldX = x / areas.UnitsPerWorld(), worldY = y / areas.UnitsPerWorld();
    std::array<bool, kPoliticalColours> inside{};
    for (const auto& leaf : areas.LeavesIn({worldX, worldY, worldX, worldY})) {
        if (x < leaf.corner.x || y < leaf.corner.y || x > leaf.corner.x + leaf.size || y > leaf.corner.y + leaf.size)
            continue;
        LeafReader reader(areas, leaf);
        while (reader.Next()) {
            UnitPoint a = reader.Points().back();
            for (const UnitPoint b : reader.Points()) {
                if ((a.y > y) != (b.y > y) && x < (b.x - a.x) * (y - a.y) / (b.y - a.y) + a.x)
                    inside.at(reader.Attribute()) = !inside.at(reader.Attribute());
                a = b;
            }
        }
    }
    const auto found = std::find(inside.begin(), inside.end(), true);
    return found == inside.end() ? -1 : static_cast<int>(found - inside.begin());
}

TEST(BaseMapTest, NeighboursHaveDifferentColours)
{
    const BaseMap map = BaseMap::Open(WorldMapPath());
    const VectorLayer& borders = map.Layer(BaseMapLayer::Borders, 9);
    const VectorLayer& areas = map.Layer(BaseMapLayer::CountryAreas, 9);
    ASSERT_EQ(borders.UnitsPerWorld(), areas.UnitsPerWorld());
    std::size_t looked = 0, alike = 0;
    for (const auto& leaf : borders.LeavesIn({})) {
        LeafReader reader(borders, leaf);
        while (reader.Next()) {
            for (std::size_t i = 1; reader.Attribute() == 0 && i < reader.Points().size(); i += 3) {
                const UnitPoint a = reader.Points()[i - 1], b = reader.Points()[i];
                const double dx = b.x - a.x, dy = b.y - a.y, length = std::hypot(dx, dy);
                if (length < 6)
                    continue;
                const double x = (a.x + b.x) / 2.0, y = (a.y + b.y) / 2.0, out = 1.2 / length;
                const int left = ColourAt(areas, x - dy * out, y + dx * out);
                const int right = ColourAt(areas, x + dy * out, y - dx * out);
                looked += left >= 0 && right >= 0 ? 1 : 0;
                alike += left >= 0 && left == right ? 1 : 0;
            }
        }
    }
    EXPECT_GT(looked, 3000U);
    EXPECT_LT(static_cast<double>(alike), 0.002 * static_cast<double>(looked)) << alike << " of " << looked;
}

} // namespace
} // namespace ruvenmark
