#include "desktop/map/balloons/balloon.h"
#include "desktop/map/widget/map_fixture.h"
#include "desktop/shown_text.h"

#include <string>

namespace ruvenmark {
namespace {

TEST(ShownText, ControlsAndSteeringCharactersLoseTheirPower)
{
    EXPECT_EQ(ForDisplay("a\tb\r\nc"), "a b  c");
    EXPECT_EQ(ForDisplay(std::string_view("a\0b\x1B[1m", 7)), QStringLiteral("a\uFFFDb\uFFFD[1m"));
    EXPECT_EQ(ForDisplay("\xE2\x80\xAE"
                         "evil"),
              QStringLiteral("\uFFFDevil"));
    EXPECT_EQ(ForDisplay("\xFF<b>"), QStringLiteral("\u00FF<b>"));
    EXPECT_EQ(ForDisplay("\xC3\xA9\xF0\x9F\x9A\x97"), QString::fromUtf8("\xC3\xA9\xF0\x9F\x9A\x97"));
}

class HostileTextTest : public MapFixture {
protected:
    const std::vector<std::string> texts{
        std::string(200, 'W'),
        "<b>bold</b><img src='http://127.0.0.1/x'>",
        std::string("\x00\x01\x07\x1B[31m\x7F", 9),
        "\xFF\xFE\x80 broken \xC3",
        "\xE2\x80\xAE\xE2\x81\xA7 right to left \xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
        "\xCC\x80\xCC\x81\xCC\x82\xCC\x83\xCC\x84\xCC\x85",
        "%s%n%1%2",
        "",
    };
};

TEST_F(HostileTextTest, NamesStayWithinTheirRectangles)
{
    double y = 40;
    for (const std::string& text : texts)
        AddPin({300, y += 50}, text, text);
    Painted();
    EXPECT_EQ(widget.Scene().Labels().Names().size(), texts.size() - 1) << "all but the empty one";
    for (const auto& name : widget.Scene().Labels().Names()) {
        EXPECT_LE(name.rect.width(), StationLabels::kMostWidth + 4);
        EXPECT_LT(name.rect.height(), 30);
    }
}

TEST_F(HostileTextTest, BalloonsClipWhatIsTooLongAndStayInTheWindow)
{
    const MapLook look(widget.palette(), widget.font(), 0, false);
    const QRectF area(8, 8, 784, 584);
    for (const std::string& text : texts) {
        PinData pin;
        pin.name = text;
        for (int i = 0; i < 100; ++i)
            pin.note += text + (i % 2 != 0 ? "\r\n" : " ");
        for (const QPointF at : {QPointF(0, 0), QPointF(799, 599), QPointF(400, 20)}) {
            const Balloon balloon(BalloonOf(pin), at, area, look, true);
            EXPECT_LE(balloon.Rect().width(), 330);
            EXPECT_LE(balloon.Rect().height(), 400);
            EXPECT_GE(balloon.Rect().left(), area.left());
            EXPECT_LE(balloon.Rect().right(), area.right() + 1);
        }
        EXPECT_EQ(BalloonOf(pin).title, ForDisplay(text));
    }
}

} // namespace
} // namespace ruvenmark
