#include "desktop/map/base_map/place_index.h"
#include "desktop/map/base_map/world_map.h"
#include "desktop/map/labels/place_labels.h"
#include "mapfiles/base_map.h"
#include "platform/failure.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

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
        QFile file(QString::fromStdString(kWorldMapPath));
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
            LabelGrid grid;
            grid.Reset(160, 120);
            labels.Place(frame, grid, {});
            labels.Paint(painter);
        }
        for (const std::size_t place : FindPlaces(map, u"a", 5))
            EXPECT_LT(place, map.PlaceCount());
        return true;
    } catch (const Failure&) {
        return false;
    }
}

TEST(BaseMapTest, HoldsTheWorldAndRefusesOtherFiles)
{
    EXPECT_THROW(BaseMap::Open("/no/such/world.rvm"), Failure);
    EXPECT_THROW(BaseMap::Open(RUVENMARK_SOURCE_DIR "/CMakeLists.txt"), Failure);
    const BaseMap map = BaseMap::Open(kWorldMapPath);
    EXPECT_GT(map.PlaceCount(), 130000U);
    EXPECT_GE(map.CountryCount(), 230U);
    EXPECT_GT(map.StateCount(), 4000U);
    EXPECT_GT(map.Place(0).population, map.Place(1).population);
    EXPECT_LT(map.Layer(BaseMapLayer::Land, 2).UnitsPerWorld(), map.Layer(BaseMapLayer::Land, 12).UnitsPerWorld());
    EXPECT_LT(QFileInfo(QString::fromStdString(kWorldMapPath)).size(), 35 * 1024 * 1024);
}

TEST(BaseMapTest, CutShortAnywhereIsAFailure)
{
    Bytes bytes;
    const std::size_t size = bytes.All().size();
    std::vector<std::size_t> lengths{0, 31, 32, 33, 71, 72, size - 8, size - 1};
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

} // namespace
} // namespace ruvenmark
