#include "platform/failure.h"
#include "platform/map_control.h"
#include "platform/map_document.h"
#include "support/doubles.h"
#include "support/map_shapes.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <sstream>
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

// What a map shows, in its order.
std::string Described(Map& map)
{
    std::ostringstream text;
    const auto tell = [&](GeoPoint point) { text << point.lat << ' ' << point.lon << ' '; };
    for (const Pushpin& pin : map.AllRecords()) {
        tell(pin.Location().Point());
        text << pin.Name() << '|' << pin.Note() << '|' << pin.Symbol() << '|' << pin.BalloonState() << '\n';
    }
    for (const ShapeData& shape : ShapesOf(map)) {
        tell(shape.from);
        tell(shape.to);
        text << static_cast<int>(shape.kind) << '|' << shape.width << '|' << shape.foreColor << '|' << shape.weight
             << shape.bVisible << shape.bBeginArrowhead << shape.bEndArrowhead << '\n';
    }
    tell(map.View().centre);
    text << map.View().zoom << '|' << map.MapStyle() << '|' << map.MapFont();
    return text.str();
}

TEST(MapDocument, EverythingComesBackInItsOrder)
{
    MemoryFiles files;
    MapControl control(files);
    control.NewMap(kRegionEurope);
    Fill(control.RequireMap());
    control.SaveMapAs("a.ptm");
    EXPECT_TRUE(control.RequireMap().Saved());

    MapControl other(files);
    int replaced = 0;
    const auto observing = other.Replaced.Observe([&] { ++replaced; });
    other.OpenMap("a.ptm");
    EXPECT_EQ(replaced, 1);
    EXPECT_TRUE(other.RequireMap().Saved());
    EXPECT_EQ(other.MapRegion(), kRegionEurope);
    EXPECT_EQ(Described(other.RequireMap()), Described(control.RequireMap()));
    other.SaveMapAs("b.ptm");
    EXPECT_EQ(files.texts["a.ptm"], files.texts["b.ptm"]); // To the last bit of a place.
}

TEST(MapDocument, IsGeoJsonThatOthersCanRead)
{
    MapDocument document;
    document.pins.push_back({.name = "gr\xFC\xDF", .note = "", .point = {48.5, 11.25}});
    document.shapes.push_back(
        {.kind = ShapeData::Kind::Circle, .from = {}, .to = {}, .width = 12.5, .foreColor = kColorRed});
    document.shapes.push_back({.from = {1, 2}, .to = {-3, 4}});
    const std::string text = WriteMapDocument(document);

    const auto features = nlohmann::json::parse(text)["features"];
    EXPECT_EQ(features[0]["geometry"].dump(), R"({"coordinates":[11.25,48.5],"type":"Point"})");
    EXPECT_EQ(features[0]["properties"]["name"], "gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(features[1]["properties"]["radiusMiles"], 12.5);
    EXPECT_EQ(features[1]["properties"]["stroke"], "#ff0000");
    EXPECT_EQ(features[2]["geometry"].dump(), R"({"coordinates":[[2.0,1.0],[4.0,-3.0]],"type":"LineString"})");
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
    EXPECT_TRUE(isInside(48, 10));
    EXPECT_EQ(map.View().zoom, 12);
    open(point("[-179,10]") + "," + point("[178,12]")); // The short way, across the date line.
    EXPECT_TRUE(isInside(10, -179) && isInside(12, 178));
    EXPECT_GT(map.View().zoom, 6); // And no farther away than it takes.
    open(point("[10,48]", R"({"radiusMiles":100})"));
    EXPECT_TRUE(isInside(48 + 100 / 69.2, 10) && isInside(48, 10 + 149 / 69.2));
    EXPECT_GT(map.View().zoom, 5);
    open(point("[0,90]") + "," + point("[120,-90]") + "," + point("[-120,0]", R"({"radiusMiles":1e300})"));
    EXPECT_EQ(map.View().zoom, kMinZoom);
    open("");
    EXPECT_NEAR(map.View().centre.lat, RegionView(kRegionEurope, 1000, 500).centre.lat, 1e-9);
}

TEST(MapDocument, RefusesHostileValuesAndSaysWhy)
{
    const std::pair<std::string, std::string> kTold[] = {
        {"{\"type\":}", "it is no JSON text from byte 9 on"},
        {WithPin("1e999"), "a number in it is larger than any place or size"},
        {WithPin(R"({"symbol":32768})"), "\"symbol\" is no number of its range"}};
    for (const auto& [text, why] : kTold)
        EXPECT_THAT([&] { ReadMapDocument(text); }, testing::ThrowsMessage<Failure>("this is no map file: " + why));
    for (const std::string& text :
         {std::string(200000, '['), WithOwn("[]"), WithOwn(R"({"region":3})"), WithOwn(R"({"font":1.5})"),
          WithOwn(R"({"centre":[0,91]})"), std::string(R"({"type":7,"features":[]})"),
          std::string(R"({"type":"FeatureCollection","features":[1]})"), WithPin(R"({"name":7})"),
          WithPin("{\"name\":\"\xFF\"}"), WithPin(R"({"name":"\u0100","latin1":["name"]})"),
          WithPin(R"({"radiusMiles":5,"stroke":"red"})"), WithPin(R"({"radiusMiles":5,"stroke-width":"wide"})"),
          WithFeature("null", "{}"), WithFeature(R"({"type":"Point","coordinates":[1]})", "{}"),
          WithFeature(R"({"type":"Point","coordinates":[1,90.5]})", "{}"),
          WithFeature(R"({"type":"Polygon","coordinates":[]})", "{}"),
          WithFeature(R"({"type":"LineString","coordinates":[[1,2]]})", "{}")})
        EXPECT_THROW(ReadMapDocument(text), Failure) << text.substr(0, 200);
    for (const auto& [width, weight] : {std::pair("2.6", 3), {"-5", 0}, {"2e9", 100}}) { // Odd ones are no fault.
        const std::string properties = R"({"radiusMiles":1,"stroke-width":)" + std::string(width) + "}";
        EXPECT_EQ(ReadMapDocument(WithPin(properties)).shapes[0].weight, weight) << width;
    }
    EXPECT_NO_THROW(ReadMapDocument(WithOwn("{}")));
}

} // namespace
} // namespace ruvenmark
