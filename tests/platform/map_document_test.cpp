#include "platform/failure.h"
#include "platform/map_control.h"
#include "platform/map_document.h"
#include "support/doubles.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string_view>

namespace ruvenmark {
namespace {

using namespace std::string_view_literals;

// A map of everything there is, with hostile texts, made through the model.
void Fill(Map& map)
{
    const auto at = [&](double step) { return map.GetLocation(step / 3 - 60, 170 - step / 7); };
    std::vector<Pushpin> pins;
    for (const std::string_view text : {"N0CALL"sv, "same"sv, ""sv, "\r\n"sv, "same"sv, "\xC3\xBC"sv, "\xFC"sv,
                                        "\"\\"sv, "\x1B[31m"sv, "same"sv, "a\0b"sv, "\xE2\x82"sv, "</script>"sv}) {
        const auto number = static_cast<int>(pins.size());
        Pushpin pin = map.AddPushpin(at(number), text);
        pin.SetNote(std::string(text) + "{}");
        pin.SetSymbol(static_cast<std::int16_t>(number * 5000 - 32768));
        pin.SetBalloonState(number % 2);
        pins.push_back(pin);
    }
    for (std::size_t i = 1; i < pins.size(); i += 3)
        pins[i].Delete(); // So that later ones take slots in front.
    for (int i = 0; i < 4; ++i) {
        Shape shape =
            i % 2 == 0 ? map.AddLine(at(i), at(2 * i)) : map.AddShape(kShapeRadiusCircle, at(i), i / 7.0, i / 7.0);
        shape.SetForeColor(static_cast<std::uint32_t>(i * 5000000));
        shape.SetWeight(i);
        shape.SetVisible(i == 2);
        shape.SetBeginArrowhead(i < 2);
        shape.SetEndArrowhead(i > 1);
        map.AddPushpin(at(i), "same");
    }
    map.SetMapStyle(3);
    map.SetMapFont(4);
    map.SetView({47.123456789, -122.3}, 9.87);
}

TEST(MapDocument, EverythingComesBackInItsOrder)
{
    MemoryFiles files;
    MapControl control(files);
    control.NewMap(kRegionEurope);
    Fill(control.RequireMap());
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

    const auto features = nlohmann::json::parse(text)["features"];
    const auto geometry = [&](int i) { return features[static_cast<std::size_t>(i)]["geometry"].dump(); };
    EXPECT_EQ(geometry(0), R"({"coordinates":[11.25,48.5],"type":"Point"})");
    EXPECT_EQ(features[0]["properties"]["name"], "gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(features[1]["properties"]["radiusMiles"], 12.5);
    EXPECT_EQ(features[1]["properties"]["stroke"], "#ff0000");
    EXPECT_EQ(geometry(2), R"({"coordinates":[[0.0,0.0],[4.0,-3.0]],"type":"LineString"})");
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
    EXPECT_FALSE(document.region || document.centre);
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

// A file of another program says nothing of region and view: it must neither move the operator to another continent nor
// show an empty sea.
TEST(MapDocument, AFileOfAnotherProgramIsShownWhole)
{
    MemoryFiles files;
    MapControl control(files);
    control.NewMap(kRegionEurope);
    Map& map = control.RequireMap();
    map.SetSize(1000, 500);
    const auto open = [&](const std::string& features) {
        files.texts["f"] = R"({"type":"FeatureCollection","features":[)" + features + "]}";
        control.OpenMap("f");
        EXPECT_EQ(control.MapRegion(), kRegionEurope);
    };
    const auto point = [](const std::string& at, const std::string& properties = "{}") {
        return R"({"type":"Feature","geometry":{"type":"Point","coordinates":)" + at + R"(},"properties":)" +
               properties + "}";
    };
    const auto isInside = [&](double lat, double lon) {
        const PixelPoint at = ToPixel(map.View(), {lat, lon});
        return at.x > 20 && at.x < 980 && at.y > 20 && at.y < 480;
    };
    open(point("[10,48]"));
    EXPECT_NEAR(map.View().centre.lat, 48, 1e-9);
    EXPECT_NEAR(map.View().centre.lon, 10, 1e-9);
    EXPECT_EQ(map.View().zoom, 12);
    open(point("[10,48]") + "," + point("[10.5,47]"));
    EXPECT_TRUE(isInside(48, 10) && isInside(47, 10.5));
    EXPECT_GT(map.View().zoom, 7);                      // And no farther away than it takes.
    open(point("[-179,10]") + "," + point("[178,12]")); // The short way, across the date line.
    EXPECT_TRUE(isInside(10, -179) && isInside(12, 178));
    EXPECT_GT(map.View().zoom, 6);
    open(point("[10,48]", R"({"radiusMiles":100})"));
    EXPECT_TRUE(isInside(48 + 100 / 69.2, 10) && isInside(48, 10 + 149 / 69.2));
    EXPECT_GT(map.View().zoom, 5);
    open(point("[0,90]") + "," + point("[120,-90]") + "," + point("[-120,0]", R"({"radiusMiles":1e300})"));
    EXPECT_EQ(map.View().zoom, kMinZoom);
    open("");
    const GeoPoint region = RegionView(kRegionEurope, 1000, 500).centre;
    EXPECT_NEAR(map.View().centre.lat, region.lat, 1e-9);
    EXPECT_NEAR(map.View().centre.lon, region.lon, 1e-9);
}

TEST(MapDocument, LinesOfOthersAreOfFairBreadth)
{
    const auto weight = [](const std::string& given) {
        return ReadMapDocument(WithPin(R"({"radiusMiles":1,"stroke-width":)" + given + "}")).shapes[0].weight;
    };
    EXPECT_EQ(weight("2.6"), 3);
    EXPECT_EQ(weight("-5"), 0);
    EXPECT_EQ(weight("2e9"), 100);
    EXPECT_THROW(weight("\"wide\""), Failure);
}

TEST(MapDocument, SaysWhyItRefuses)
{
    const auto reason = [](const std::string& text) -> std::string {
        try {
            ReadMapDocument(text);
        } catch (const Failure& failure) {
            return failure.what();
        }
        return "";
    };
    EXPECT_EQ(reason("{\"type\":}"), "this is no map file: it is no JSON text from byte 9 on");
    EXPECT_EQ(reason(WithPin(R"({"symbol":40000})")), "this is no map file: \"symbol\" is no number of its range");
    EXPECT_EQ(reason(WithPin("1e999")), "this is no map file: a number in it is larger than any place or size");
}

TEST(MapDocument, RefusesHostileValues)
{
    ASSERT_NO_THROW(ReadMapDocument(WithPin("{}")));
    ASSERT_NO_THROW(ReadMapDocument(WithOwn("{}")));
    const std::string deep(200000, '[');
    for (const std::string& text : {std::string(),
                                    deep,
                                    std::string(500, '\0'),
                                    std::string(R"({"type":7,"features":[]})"),
                                    std::string(R"({"type":"FeatureCollection","features":[1]})"),
                                    WithOwn("[]"),
                                    WithOwn(R"({"region":3})"),
                                    WithOwn(R"({"font":1.5})"),
                                    WithOwn(R"({"zoom":1e999})"),
                                    WithOwn(R"({"centre":[0,91]})"),
                                    WithPin(R"({"name":7})"),
                                    WithPin("{\"name\":\"\xFF\"}"),
                                    WithPin(R"({"name":"\u0100","latin1":["name"]})"),
                                    WithPin(R"({"symbol":32768})"),
                                    WithPin(R"({"radiusMiles":1e309})"),
                                    WithPin(R"({"radiusMiles":5,"stroke":"red"})"),
                                    WithFeature("null", "{}"),
                                    WithFeature(R"({"type":"Point","coordinates":[1]})", "{}"),
                                    WithFeature(R"({"type":"Point","coordinates":[1,90.5]})", "{}"),
                                    WithFeature(R"({"type":"Polygon","coordinates":[]})", "{}"),
                                    WithFeature(R"({"type":"LineString","coordinates":[[1,2]]})", "{}")})
        EXPECT_THROW(ReadMapDocument(text), Failure) << text.substr(0, 200);
}

} // namespace
} // namespace ruvenmark
