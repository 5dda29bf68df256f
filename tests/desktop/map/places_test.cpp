#include "desktop/map/base_map.h"
#include "desktop/map/label_grid.h"
#include "desktop/map/place_index.h"
#include "desktop/map/place_labels.h"
#include "world_map.h"

#include <QPaintDevice>
#include <QPaintEngine>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace ruvenmark {
namespace {

class PlaceIndexTest : public testing::Test {
protected:
    QString First(QStringView text)
    {
        const auto found = FindPlaces(map, text, 1);
        if (found.empty())
            return {};
        const PlaceRecord place = map.Place(found.front());
        std::string title(place.name);
        if (place.country)
            title.append(", ").append(map.Country(*place.country).name);
        return QString::fromStdString(title);
    }

    BaseMap map = BaseMap::Open(WorldMapPath());
};

TEST_F(PlaceIndexTest, FindsTheLargestFirst)
{
    EXPECT_EQ(First(u"new yor"), "New York City, United States");
    EXPECT_TRUE(First(u"Paris").endsWith("France"));
    EXPECT_TRUE(First(u" london ").endsWith("United Kingdom"));
    const auto found = FindPlaces(map, u"spring", 50);
    EXPECT_EQ(found.size(), 50U);
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end()));
    for (const std::size_t place : found)
        EXPECT_EQ(FoldForSearch(QString::fromUtf8(map.Place(place).name.data(),
                                                  static_cast<qsizetype>(map.Place(place).name.size())))
                      .substr(0, 6),
                  "spring");
}

TEST_F(PlaceIndexTest, MarksAndCaseDoNotMatter)
{
    EXPECT_TRUE(First(u"SAO PAU").startsWith(u"São Paulo"));
    EXPECT_TRUE(First(u"zurich").startsWith(u"Zürich"));
    EXPECT_EQ(First(u"ZÜRICH"), First(u"zurich"));
    EXPECT_TRUE(First(u"lodz").startsWith(u"Łódź"));
    EXPECT_TRUE(First(u"xi'an").startsWith(u"Xi’an"));
}

// The stored order and the folding here come from two programs: each name has to be found by itself.
TEST_F(PlaceIndexTest, EveryNameIsFoundByItself)
{
    for (std::size_t place = 0; place < map.PlaceCount(); place += 7) {
        const std::string_view name = map.Place(place).name;
        const auto found = FindPlaces(map, QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), 1);
        ASSERT_FALSE(found.empty()) << name;
        ASSERT_LE(found.front(), place) << name << ": only a larger place may come before it";
    }
}

TEST_F(PlaceIndexTest, LaterWordsAreFoundAfterFirstOnes)
{
    const auto found = FindPlaces(map, u"Angeles", 1000);
    const auto begins = [&](std::size_t place) {
        return FoldForSearch(QString::fromStdString(std::string(map.Place(place).name))).starts_with("angeles");
    };
    const auto firstLater = std::partition_point(found.begin(), found.end(), begins);
    ASSERT_NE(firstLater, found.begin());
    ASSERT_NE(firstLater, found.end());
    EXPECT_EQ(map.Place(*firstLater).name, "Los Angeles") << "the largest";
    EXPECT_TRUE(std::none_of(firstLater, found.end(), begins));
    EXPECT_TRUE(std::is_sorted(found.begin(), firstLater) && std::is_sorted(firstLater, found.end()));
    EXPECT_TRUE(First(u"york ci").startsWith("New York City"));
    EXPECT_EQ(FindPlaces(map, u"Angeles", 2).size(), 2U);
    const auto twice = FindPlaces(map, u"baden", 1000);
    EXPECT_EQ(std::set(twice.begin(), twice.end()).size(), twice.size()) << "Baden-Baden is one place";
}

TEST_F(PlaceIndexTest, AnyTextIsTaken)
{
    EXPECT_TRUE(FindPlaces(map, u"", 10).empty());
    EXPECT_TRUE(FindPlaces(map, u"   ", 10).empty());
    EXPECT_TRUE(FindPlaces(map, u"zzqqxx", 10).empty());
    EXPECT_TRUE(FindPlaces(map, u"a", 0).empty());
    EXPECT_TRUE(FindPlaces(map, QString(100000, u'n'), 10).empty());
    const char16_t broken[] = {0xD800, u'a', 0};
    EXPECT_TRUE(FindPlaces(map, broken, 10).empty());
}

struct Line { // Of a name.
    QString text;
    QRectF rect;
};

// Takes down what is written, as a printer would.
class TextRecorder final : public QPaintEngine {
public:
    TextRecorder() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    Type type() const override { return User; }
    void drawTextItem(const QPointF& at, const QTextItem& item) override
    {
        const QRectF rect(at.x(), at.y() - item.ascent(), item.width(), item.ascent() + item.descent());
        // Lines of one name touch.
        lines.push_back({item.text(), painter()->transform().mapRect(rect).adjusted(0, 1, 0, -1)});
    }

    std::vector<Line> lines;
};

class Paper final : public QPaintDevice {
public:
    QPaintEngine* paintEngine() const override { return &recorder; }

    mutable TextRecorder recorder;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
            return 1000;
        case PdmHeight:
            return 700;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        default:
            return QPaintDevice::metric(metric);
        }
    }
};

class PlaceLabelsTest : public testing::Test {
protected:
    std::vector<Line> Place(GeoPoint centre, double zoom, std::int32_t mapFont, const QRectF& taken = {})
    {
        Paper paper;
        QPainter painter(&paper);
        LabelGrid grid;
        grid.Reset(1000, 700);
        if (!taken.isEmpty())
            grid.Block(taken);
        labels.Paint(painter, FrameAt(centre, zoom, 1000, 700), grid, {MapStyle::Road, false, mapFont, 1, true});
        painter.end();
        return paper.recorder.lines;
    }
    bool Has(const std::vector<Line>& lines, const QString& text)
    {
        return std::any_of(lines.begin(), lines.end(), [&](const Line& line) { return line.text == text; });
    }

    BaseMap map = BaseMap::Open(WorldMapPath());
    PlaceLabels labels{map};
};

TEST_F(PlaceLabelsTest, NamesNeverOverlapNorLeaveTheView)
{
    const QRectF taken(300, 200, 400, 60);
    for (const GeoPoint centre : {GeoPoint{48, 9}, GeoPoint{40.75, -73.95}, GeoPoint{0, 179}}) {
        for (const double zoom : {1.0, 2.6, 4.5, 7.1, 9.0, 12.0}) {
            const auto placed = Place(centre, zoom, static_cast<std::int32_t>(zoom) % 5, taken);
            for (std::size_t i = 0; i < placed.size(); ++i) {
                EXPECT_TRUE(QRectF(0, 0, 1000, 700).contains(placed[i].rect)) << placed[i].text.toStdString();
                EXPECT_FALSE(placed[i].rect.intersects(taken)) << placed[i].text.toStdString();
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_FALSE(placed[i].rect.intersects(placed[j].rect))
                        << placed[i].text.toStdString() << " / " << placed[j].text.toStdString();
            }
        }
    }
}

TEST_F(PlaceLabelsTest, WeightyNamesComeFirst)
{
    const auto world = Place({20, 0}, 2, 2);
    EXPECT_TRUE(Has(world, "UNITED STATES") && Has(world, "BRAZIL") && Has(world, "AUSTRALIA"));
    const auto britain = Place({53.5, -2.5}, 6.5, 2);
    EXPECT_TRUE(Has(britain, "London") && Has(britain, "Dublin") && Has(britain, "Douglas"));
    const auto states = Place({39, -98}, 5, 2);
    EXPECT_TRUE(Has(states, "KANSAS") && Has(states, "COLORADO"));
    EXPECT_FALSE(Has(states, "Wichita Falls"));
    EXPECT_TRUE(Has(Place({40.7, -73.95}, 12, 2), "Brooklyn"));
}

} // namespace
} // namespace ruvenmark
