#include "desktop/icons/icon_set.h"
#include "desktop/icons/pixels.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <array>

namespace ruvenmark {
namespace {

const QColor kLightWindow(0xff, 0xff, 0xff);
const QColor kDarkWindow(0x23, 0x26, 0x29);

constexpr std::array kTreeKeys{
    "Triangle",   "WindDir",    "Balloon",    "Bicycle",   "Clock",      "Eye",      "House",       "Status",
    "Grid",       "Sail",       "Snowmobile", "Park",      "Phone",      "Plane",    "Rain",        "Pressure",
    "Speed",      "Volumn",     "Gain",       "Info",      "Water",      "Default",  "Temperature", "Arrow",
    "Parallel",   "Course",     "Letterw",    "Position",  "Report",     "Circle",   "Shuttle",     "Church",
    "Digi",       "HFGateway",  "Yagi",       "Hotel",     "Car",        "Jogger",   "Jeep",        "Wheeler18",
    "Person",     "Motorcycle", "Van",        "NTS",       "Ship",       "TCP",      "Weather",     "Antenna",
    "NWS",        "Path",       "Truck",      "Closed",    "Open",       "Unknown",  "Question",    "Bus",
    "Station",    "Received",   "Sender",     "State",     "Num0",       "Num1",     "Num2",        "Num3",
    "Num4",       "Num5",       "Num6",       "Num7",      "Num8",       "Fire",     "GasStation",  "Lightning",
    "PostOffice", "Radiation",  "RoadClosed", "Explosion", "PhoneBooth", "Snow",     "Detour",      "CrashSite",
    "Hurricane",  "Earthquake", "Races",      "Restroom",  "Tornado",    "FirstAid", "CoastGuard",  "Up",
    "RV"};

TEST(TreeIcons, EveryKeyHasAPictureOfItsOwn)
{
    const IconSet icons;
    std::map<QByteArray, const char*> seen;
    for (const char* key : kTreeKeys) {
        const QImage image = Drawn(icons.Tree(key), 32);
        EXPECT_GT(Coverage(image), 0.08) << key;
        const QByteArray bytes(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
        const auto [other, isNew] = seen.emplace(bytes, key);
        EXPECT_TRUE(isNew) << key << " looks like " << other->second;
    }
    EXPECT_EQ(icons.TreeKeys().size(), kTreeKeys.size()) << "a picture that no key asks for";
}

TEST(TreeIcons, AWordWithoutAPictureLooksLikeDefault)
{
    const IconSet icons;
    const QImage standIn = Drawn(icons.Tree("Default"), 16);
    for (const char* key : {"", "car", "Car ", "No such symbol", "../map/1"})
        EXPECT_EQ(Drawn(icons.Tree(key), 16), standIn) << key;
    EXPECT_NE(Drawn(icons.Tree("Car"), 16), standIn);
}

TEST(TreeIcons, StandOutOnLightAndDarkWindows)
{
    const IconSet icons;
    for (const char* key : kTreeKeys) {
        const QColor colour = MeanColour(Drawn(icons.Tree(key), 64));
        EXPECT_GE(Contrast(colour, kLightWindow), 3.0) << key;
        EXPECT_GE(Contrast(colour, kDarkWindow), 3.0) << key;
    }
}

TEST(TreeIcons, ASelectedRowShowsTheShapeInItsTextColour)
{
    const IconSet icons;
    const QColor text = QGuiApplication::palette().color(QPalette::HighlightedText);
    EXPECT_EQ(MeanColour(Drawn(icons.Tree("Car"), 64, 1, QIcon::Selected)).rgb(), text.rgb());
}

TEST(TreeIcons, ADisabledRowIsFainter)
{
    const IconSet icons;
    EXPECT_EQ(Coverage(Drawn(icons.Tree("Car"), 32, 1, QIcon::Disabled)), 0.0);
}

TEST(TreeIcons, AreDrawnForTheDeviceAndNotEnlarged)
{
    const IconSet icons;
    const QPixmap pixmap = icons.Tree("Car").pixmap(QSize(16, 16), 2.0);
    EXPECT_EQ(pixmap.size(), QSize(32, 32));
    EXPECT_EQ(pixmap.devicePixelRatio(), 2.0);
    const QImage sharp = Drawn(icons.Tree("Car"), 16, 2);
    EXPECT_EQ(sharp.size(), QSize(32, 32));
    EXPECT_NE(sharp, Drawn(icons.Tree("Car"), 16).scaled(32, 32, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

TEST(ActionIcons, TakeTheColoursOfThePaletteTheyAreAskedFor)
{
    const IconSet icons;
    QPalette palette;
    palette.setColor(QPalette::Active, QPalette::ButtonText, QColor(0xfc, 0xfd, 0xfe));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x70, 0x71, 0x72));
    for (const QString& name : icons.ActionNames()) {
        const QIcon icon = icons.Action(name, palette);
        EXPECT_GT(Coverage(Drawn(icon, 24)), 0.05) << name.toStdString();
        EXPECT_EQ(MeanColour(Drawn(icon, 96)).rgb(), qRgb(0xfc, 0xfd, 0xfe)) << name.toStdString();
    }
    EXPECT_EQ(MeanColour(Drawn(icons.Action("save", palette), 96, 1, QIcon::Disabled)).rgb(), qRgb(0x70, 0x71, 0x72));
}

TEST(ActionIcons, TheWindowsCommandsHaveThem)
{
    const IconSet icons;
    for (const char* name :
         {"new",       "open",          "save",          "print",        "cut",          "copy",       "paste",
          "delete",    "view-left",     "view-map",      "help",         "zoom-in",      "zoom-out",   "pan-north",
          "pan-south", "pan-east",      "pan-west",      "fit-world",    "find",         "directions", "pointer",
          "crosshair", "load-stations", "stop",          "filter",       "track",        "region",     "style",
          "layers",    "tiles-online",  "send-position", "send-message", "view-messages"})
        EXPECT_FALSE(icons.Action(name, QPalette()).isNull()) << name;
    EXPECT_TRUE(icons.Action("no-such-action", QPalette()).isNull());
}

TEST(ProgramIcon, IsThereAtEverySize)
{
    const IconSet icons;
    for (const int size : {16, 32, 48, 256}) {
        const QImage image = Drawn(icons.Program(), size);
        EXPECT_GT(Coverage(image), 0.3) << size;
    }
}

} // namespace
} // namespace ruvenmark
