#include "platform/failure.h"
#include "platform/map_control.h"
#include "platform/map_document.h"
#include "support/doubles.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <random>

namespace ruvenmark {
namespace {

// A map of everything there is, with hostile texts, made through the model.
class RandomMap {
public:
    explicit RandomMap(MapControl& control) : m_map(control.RequireMap()) {}

    void Fill(int count)
    {
        std::vector<Pushpin> pins;
        for (int i = 0; i < count; ++i) {
            Pushpin pin = m_map.AddPushpin(Place(), Below(3) == 0 ? "same" : Text());
            pin.SetNote(Text());
            pin.SetSymbol(static_cast<std::int16_t>(Below(65536) - 32768));
            pin.SetBalloonState(Below(2));
            pins.push_back(pin);
        }
        for (std::size_t i = 0; i < pins.size(); i += 3)
            pins[i].Delete(); // So that later ones take slots in front.
        for (int i = 0; i < count; ++i) {
            Shape shape = Below(2) == 0 ? m_map.AddLine(Place(), Place())
                                        : m_map.AddShape(kShapeRadiusCircle, Place(), Below(9) / 7.0, Below(9) / 7.0);
            shape.SetForeColor(static_cast<std::uint32_t>(Below(1 << 24)));
            shape.SetWeight(Below(10));
            shape.SetVisible(Below(2) == 0);
            shape.SetBeginArrowhead(Below(2) == 0);
            shape.SetEndArrowhead(Below(2) == 0);
            if (Below(4) == 0)
                shape.Delete();
            m_map.AddPushpin(Place(), Text());
        }
        m_map.SetMapStyle(3);
        m_map.SetMapFont(4);
        m_map.SetView({Real(-80, 80), Real(-180, 180)}, Real(1, 19));
    }

private:
    int Below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    double Real(double low, double high) { return std::uniform_real_distribution(low, high)(m_random); }
    Location Place() { return m_map.GetLocation(Real(-90, 90), Real(-180, 180)); }
    std::string Text()
    {
        static constexpr std::string_view kPieces[] = {"N0CALL",   "\r\n",     "\xC3\xBC", "\xFC",
                                                       "\"\\",     "\x1B[31m", "{}",       std::string_view("\0", 1),
                                                       "\xE2\x82", "\x7F",     "</script>"};
        std::string text;
        for (int count = Below(6); count > 0; --count)
            text += kPieces[Below(std::size(kPieces))];
        return text;
    }

    Map& m_map;
    std::mt19937 m_random{11};
};

TEST(MapDocument, EverythingComesBackInItsOrder)
{
    MemoryFiles files;
    MapControl control(files);
    control.NewMap(kRegionEurope);
    RandomMap(control).Fill(200);
    control.SaveMapAs("a.ptm");
    EXPECT_TRUE(control.RequireMap().Saved());
    const MapDocument written = ReadMapDocument(files.texts["a.ptm"]);
    const auto before = control.RequireMap().AllRecords();
    ASSERT_EQ(written.pins.size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
        EXPECT_EQ(written.pins[i].name, before[i].Name());
        EXPECT_EQ(written.pins[i].note, before[i].Note());
        EXPECT_EQ(written.pins[i].point, before[i].Location().Point());
        EXPECT_EQ(written.pins[i].symbol, before[i].Symbol());
        EXPECT_EQ(written.pins[i].balloonState, before[i].BalloonState());
    }
    const GeoPoint oldestOfName = control.RequireMap().FindPushpin("same")->Location().Point();
    const GeoPoint centre = control.RequireMap().View().centre;

    // Opened in another program: what it would save is the same file.
    MapControl other(files);
    int replaced = 0;
    const auto observing = other.Replaced.Observe([&] { ++replaced; });
    other.OpenMap("a.ptm");
    EXPECT_EQ(replaced, 1);
    EXPECT_TRUE(other.RequireMap().Saved());
    EXPECT_EQ(other.MapRegion(), kRegionEurope);
    EXPECT_EQ(other.RequireMap().MapStyle(), 3);
    EXPECT_EQ(other.RequireMap().MapFont(), 4);
    EXPECT_EQ(other.RequireMap().View().centre, centre);
    EXPECT_EQ(other.RequireMap().FindPushpin("same")->Location().Point(), oldestOfName);
    other.SaveMapAs("b.ptm");
    EXPECT_EQ(files.texts["a.ptm"], files.texts["b.ptm"]);
}

TEST(MapDocument, IsGeoJsonThatOthersCanRead)
{
    MapDocument document;
    PinData named;
    named.name = "gr\xFC\xDF";
    named.point = {48.5, 11.25};
    document.pins.push_back(named);
    ShapeData circle;
    circle.kind = ShapeData::Kind::Circle;
    circle.from = {1, 2};
    circle.width = circle.height = 12.5;
    circle.foreColor = kColorRed;
    document.shapes.push_back(circle);
    ShapeData line;
    line.to = {-3, 4};
    document.shapes.push_back(line);
    const std::string text = WriteMapDocument(document);

    const auto json = nlohmann::json::parse(text);
    EXPECT_EQ(json["type"], "FeatureCollection");
    const auto& pin = json["features"][0];
    EXPECT_EQ(pin["type"], "Feature");
    EXPECT_EQ(pin["geometry"]["type"], "Point");
    EXPECT_EQ(pin["geometry"]["coordinates"].dump(), "[11.25,48.5]");
    EXPECT_EQ(pin["properties"]["name"], "gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(json["features"][1]["properties"]["radiusMiles"], 12.5);
    EXPECT_EQ(json["features"][1]["properties"]["stroke"], "#ff0000");
    EXPECT_EQ(json["features"][2]["geometry"]["coordinates"].dump(), "[[0.0,0.0],[4.0,-3.0]]");
    EXPECT_EQ(ReadMapDocument(text).pins[0].name, "gr\xFC\xDF");
}

TEST(MapDocument, ReadsWhatOthersWrote)
{
    const MapDocument document = ReadMapDocument(
        R"({"type":"FeatureCollection","bbox":[1,2,3,4],"features":[)"
        R"({"type":"Feature","geometry":{"type":"Point","coordinates":[11,48,520.5]},"properties":null},)"
        R"({"type":"Feature","geometry":{"type":"Point","coordinates":[1e0,2]},)"
        R"("properties":{"name":"old","name":"B","symbol":70.0,"latin1":"name"}}]})");
    ASSERT_EQ(document.pins.size(), 2U);
    EXPECT_EQ(document.pins[0].name, "");
    EXPECT_EQ(document.pins[0].point, (GeoPoint{48, 11}));
    EXPECT_EQ(document.pins[1].name, "B");
    EXPECT_EQ(document.pins[1].symbol, 70);
    EXPECT_TRUE(IsMapRegion(document.region));
}

TEST(MapDocument, RefusesEveryBeginningOfItself)
{
    MemoryFiles files;
    MapControl control(files);
    control.NewMap(kRegionNorthAmerica);
    RandomMap(control).Fill(4);
    control.SaveMapAs("a.ptm");
    std::string text = files.texts["a.ptm"];
    text.erase(text.rfind('}')); // Behind the brace there is but the end of the line.
    for (std::size_t length = 0; length <= text.size(); ++length)
        ASSERT_THROW(ReadMapDocument(std::string_view(text).substr(0, length)), Failure) << length;
}

// A document whose one feature has the given geometry and properties.
std::string WithFeature(const std::string& geometry, const std::string& properties)
{
    return R"({"type":"FeatureCollection","features":[{"type":"Feature","geometry":)" + geometry + R"(,"properties":)" +
           properties + "}]}";
}
std::string WithPin(const std::string& properties)
{
    return WithFeature(R"({"type":"Point","coordinates":[1,2]})", properties);
}
std::string WithOwn(const std::string& own)
{
    return R"({"type":"FeatureCollection","features":[],"ruvenmark":)" + own + "}";
}

TEST(MapDocument, RefusesHostileValues)
{
    ASSERT_NO_THROW(ReadMapDocument(WithPin("{}")));
    ASSERT_NO_THROW(ReadMapDocument(WithOwn("{}")));
    const std::string deep(200000, '[');
    for (const std::string& text : {std::string(),
                                    std::string("null"),
                                    std::string("[]"),
                                    std::string("\xFF\xFE"),
                                    deep,
                                    std::string(500, '\0'),
                                    std::string(R"({"type":"FeatureCollection"})"),
                                    std::string(R"({"type":7,"features":[]})"),
                                    std::string(R"({"type":"FeatureCollection","features":{}})"),
                                    std::string(R"({"type":"FeatureCollection","features":[1]})"),
                                    WithOwn("[]"),
                                    WithOwn(R"({"region":3})"),
                                    WithOwn(R"({"region":"1"})"),
                                    WithOwn(R"({"style":5})"),
                                    WithOwn(R"({"font":1.5})"),
                                    WithOwn(R"({"zoom":1e999})"),
                                    WithOwn(R"({"zoom":null})"),
                                    WithOwn(R"({"centre":[0,91]})"),
                                    WithPin(R"({"name":7})"),
                                    WithPin(R"({"name":"\ud800"})"),
                                    WithPin("{\"name\":\"\xFF\"}"),
                                    WithPin(R"({"name":"\u0100","latin1":["name"]})"),
                                    WithPin(R"({"symbol":32768})"),
                                    WithPin(R"({"balloon":1e30})"),
                                    WithPin(R"({"radiusMiles":"5"})"),
                                    WithPin(R"({"radiusMiles":1e309})"),
                                    WithPin(R"({"radiusMiles":5,"stroke":"red"})"),
                                    WithPin(R"({"radiusMiles":5,"visible":1})"),
                                    WithFeature("null", "{}"),
                                    WithFeature(R"({"type":"Point","coordinates":[1]})", "{}"),
                                    WithFeature(R"({"type":"Point","coordinates":[1,90.5]})", "{}"),
                                    WithFeature(R"({"type":"Point","coordinates":[-180.5,1]})", "{}"),
                                    WithFeature(R"({"type":"Point","coordinates":[true,1]})", "{}"),
                                    WithFeature(R"({"type":"Polygon","coordinates":[]})", "{}"),
                                    WithFeature(R"({"type":"LineString","coordinates":[[1,2]]})", "{}"),
                                    WithFeature(R"({"type":"LineString","coordinates":"ab"})", "{}")})
        EXPECT_THROW(ReadMapDocument(text), Failure) << text.substr(0, 200);
}

TEST(MapDocument, AFailedOpenOrSaveLeavesTheMapAsItWas)
{
    MemoryFiles files;
    MapControl control(files);
    control.NewMap(kRegionNorthAmerica);
    Pushpin pin = control.RequireMap().AddPushpin(control.RequireMap().GetLocation(1, 2), "A");
    files.texts["bad.ptm"] = WithPin(R"({"symbol":"x"})");
    for (const char* path : {"bad.ptm", "missing.ptm"})
        EXPECT_THROW(control.OpenMap(path), Failure);
    files.FailWrite(1);
    EXPECT_THROW(control.SaveMapAs("a.ptm"), Failure);
    EXPECT_EQ(pin.Name(), "A");
    EXPECT_FALSE(control.RequireMap().Saved());
}

} // namespace
} // namespace ruvenmark
