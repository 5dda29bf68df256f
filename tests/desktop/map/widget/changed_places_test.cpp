// What is painted for reports must leave the same pixels on the screen as painting everything anew: a place that is
// forgotten shows a marker or a name that is gone, until the map is moved.
#include "desktop/map/base_map/world_map.h"
#include "desktop/map/widget/map_fixture.h"

#include <QPixmap>
#include <QScreen>

#include <random>
#include <string>
#include <vector>

namespace ruvenmark {
namespace {

const BaseMap& World()
{
    static const BaseMap map = BaseMap::Open(kWorldMapPath);
    return map;
}

class ChangedPlaces : public MapFixture {
protected:
    ChangedPlaces() : MapFixture(&World(), {700, 500})
    {
        widget.SetClock([this] { return now; });
        widget.SetFadeAfter(30);
    }

    int Below(int most) { return std::uniform_int_distribution<int>(0, most - 1)(random); }
    Location Anywhere() { return TheMap().XYToLocation(Below(760) - 30, Below(560) - 30); }
    QImage Screen() { return widget.screen()->grabWindow(widget.winId()).toImage(); }
    bool Settle()
    {
        const bool bReady = QTest::qWaitFor([&] { return widget.IsReady(); }, 60000);
        QCoreApplication::processEvents(); // What is asked for by then is painted.
        return bReady;
    }

    void AddAny()
    {
        Pushpin pin = TheMap().AddPushpin(Anywhere(), "K" + std::to_string(Below(900)));
        pin.SetSymbol(static_cast<std::int16_t>(79 + Below(20)));
        pin.SetBalloonState(Below(2));
        pins.push_back(pin);
    }
    void Edit()
    {
        const int what = Below(12);
        if (pins.size() < 40 || what == 0)
            return AddAny();
        Pushpin& pin = pins[static_cast<std::size_t>(Below(static_cast<int>(pins.size())))];
        if (what == 1) {
            pin.SetBalloonState(Below(2));
        } else if (what == 2) {
            pin.SetName("N" + std::to_string(Below(90000)));
        } else if (what == 3) {
            pin.SetSymbol(static_cast<std::int16_t>(79 + Below(20)));
        } else if (what == 4) {
            pin.Delete();
            std::swap(pin, pins.back());
            pins.pop_back();
        } else if (what == 5) {
            TheMap().AddLine(Anywhere(), Anywhere()).SetEndArrowhead(true);
        } else if (what == 6) {
            now += Below(300);
        } else {
            pin.SetLocation(Anywhere());
        }
    }

    std::mt19937 random{11};
    std::int64_t now = 1'000'000;
    std::vector<Pushpin> pins;
};

TEST_F(ChangedPlaces, ArePaintedAsTheWholeIs)
{
    for (int i = 0; i < 150; ++i)
        AddAny();
    ASSERT_TRUE(Settle());
    int partly = 0;
    for (int round = 0; round < 30; ++round) {
        for (int edits = Below(round % 10 == 9 ? 60 : 4); edits >= 0; --edits)
            Edit();
        if (round % 3 == 1)
            widget.repaint(QRect(600, 10, 40, 40)); // As a button on the map has it painted.
        if (round % 7 == 3) {
            selection = pins[static_cast<std::size_t>(Below(static_cast<int>(pins.size())))];
            widget.update();
        }
        ASSERT_TRUE(Settle());
        const QImage painted = Screen();
        if (widget.IsLastPaintPart())
            ++partly;
        widget.repaint();
        ASSERT_EQ(painted, Screen()) << "round " << round;
    }
    EXPECT_GT(partly, 8) << "else this proves nothing";
}

// Its balloon lies elsewhere than the marker and its name.
TEST_F(ChangedPlaces, TheBalloonOfADeletedMarkerGoes)
{
    Pushpin pin = AddPin({350, 250}, "N0CALL", "a note", false);
    ASSERT_TRUE(Settle());
    const auto changes = [&](auto work) {
        const QImage before = Screen();
        work();
        return QTest::qWaitFor([&] { return Screen() != before; }) && Settle();
    };
    ASSERT_TRUE(changes([&] { QTest::mouseMove(&widget, {350, 250}); }));
    ASSERT_EQ(widget.OpenBalloons().Hovered(), pin.Ref());
    ASSERT_TRUE(changes([&] { pin.Delete(); }));
    const QImage painted = Screen();
    widget.repaint();
    EXPECT_EQ(painted, Screen());
}

} // namespace
} // namespace ruvenmark
