#include "desktop/map/widget/map_fixture.h"
#include "desktop/map/widget/map_widget.h"
#include "platform/geometry.h"

#include <QPdfWriter>
#include <QTreeView>

namespace ruvenmark {
namespace {

using MapWidgetTest = MapFixture;

double PixelsApart(const MapView& view, GeoPoint point, QPointF pixel)
{
    const PixelPoint at = ToPixel(view, point);
    return QLineF(QPointF(at.x, at.y), pixel).length();
}

TEST_F(MapWidgetTest, ClickOnMarkerSelectsItAndPinsItsBalloonUntilTheNextClick)
{
    const Pushpin pin = AddPin({300, 300}, "K1ABC(RF)", "RF\r\nnote");
    Painted();
    const QSignalSpy selections(&widget, &MapWidget::SelectionWanted);
    Click({304, 296});
    EXPECT_EQ(selection, MapSelection(pin));
    EXPECT_EQ(widget.OpenBalloons().Pinned(), pin.Ref());
    const QImage open = Painted();
    const QRectF balloon = widget.OpenBalloons().PinnedRect();
    ASSERT_TRUE(balloon.isValid());
    Click(balloon.center().toPoint()); // It swallows other clicks.
    EXPECT_TRUE(widget.OpenBalloons().Pinned());
    Click({300, 300});
    EXPECT_FALSE(widget.OpenBalloons().Pinned());
    EXPECT_EQ(selection, MapSelection(pin));
    EXPECT_NE(Painted(), open);
    Click({600, 500});
    EXPECT_EQ(selection, MapSelection());
    EXPECT_EQ(selections.size(), 2);
    Click({300, 300});
    const Pushpin other = AddPin({100, 100}, "K2ABC(RF)");
    selection = other;
    widget.FollowSelection();
    EXPECT_EQ(widget.OpenBalloons().Pinned(), other.Ref());
    Click({100, 100});
    for (const bool bCross : {true, false}) {
        Click({300, 300});
        Painted();
        EXPECT_TRUE(widget.OpenBalloons().Pinned());
        if (bCross)
            Click(widget.OpenBalloons().CrossRect().center().toPoint());
        else
            QTest::keyClick(&widget, Qt::Key_Escape);
        EXPECT_FALSE(widget.OpenBalloons().Pinned());
    }
}

// What lies below a balloon must not answer for it, nor the map zoom away under who reads or closes it.
TEST_F(MapWidgetTest, APinnedBalloonTakesEveryClickForItself)
{
    AddPin({300, 300}, "K1ABC(RF)", "RF\r\nnote");
    Painted();
    Click({300, 300});
    Painted();
    const QPoint middle = widget.OpenBalloons().PinnedRect().center().toPoint();
    AddPin(middle, "HIDDEN");
    Painted();
    const double zoom = TheMap().View().zoom;
    const auto clickTwice = [&](QPoint at) {
        Click(at);
        QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, at);
    };
    EXPECT_FALSE(widget.MarkerFor(middle));
    clickTwice(middle);
    const QPoint cross = widget.OpenBalloons().CrossRect().center().toPoint();
    clickTwice(cross);
    EXPECT_FALSE(widget.OpenBalloons().Pinned());
    EXPECT_EQ(TheMap().View().zoom, zoom);
    EXPECT_TRUE(widget.MarkerFor(middle));
    clickTwice({600, 500});
    EXPECT_EQ(TheMap().View().zoom, zoom + 1) << "elsewhere again as ever";
}

TEST_F(MapWidgetTest, MarkerBeatsLineBeatsCircle)
{
    Map& map = TheMap();
    const Shape circle = map.AddShape(kShapeRadiusCircle, map.XYToLocation(400, 300), 80, 80);
    const double rim = ToPixel(map.View(), Destination(map.XYToLocation(400, 300).Point(), 90, 80)).x;
    const Shape line = map.AddLine(map.XYToLocation(rim, 100), map.XYToLocation(rim, 500));
    Painted();
    const QPoint crossing(static_cast<int>(rim), 300);
    Click(crossing);
    EXPECT_EQ(selection, MapSelection(line));
    Click({400 - (crossing.x() - 400), 300});
    EXPECT_EQ(selection, MapSelection(circle));
    const Pushpin pin = AddPin(crossing, "W1AW");
    Painted();
    Click(crossing);
    EXPECT_EQ(selection, MapSelection(pin));
}

class HeapTest : public MapFixture {
protected:
    HeapTest()
    {
        for (const char* name : {"C", "A", "B"})
            pins.push_back(AddPin({300, 200}, name, {}, false));
        pins[0].SetHeard(1000);
        widget.SetClock([] { return 1000 + 300; });
        QObject::connect(&widget, &MapWidget::ShowWanted, [this](const Pushpin& pin) { shown.push_back(pin.Name()); });
        Painted();
    }
    QString Cell(int row, int column) const { return rows.model()->index(row, column).data().toString(); }

    std::vector<Pushpin> pins;
    std::vector<std::string> shown;
    QWidget& list = *widget.findChild<QWidget*>(QStringLiteral("heapList"));
    QTreeView& rows = *widget.findChild<QTreeView*>(QStringLiteral("heapRows"));
};

// The members must not change under the hands of who goes through them, neither by clicks nor by reports.
TEST_F(HeapTest, AClickOpensAFixedListOfAll)
{
    ASSERT_EQ(widget.Scene().Markers().Items().size(), 1U);
    Click({300, 200});
    ASSERT_TRUE(list.isVisible());
    EXPECT_EQ(selection, MapSelection());
    EXPECT_EQ(Cell(0, 0) + Cell(1, 0) + Cell(2, 0), QStringLiteral("ABC"));
    EXPECT_EQ(Cell(2, 1), QStringLiteral("5 min ago"));
    EXPECT_EQ(Cell(0, 1), QString());
    AddPin({300, 200}, "D");
    pins[1].Delete();
    Painted();
    EXPECT_EQ(rows.model()->rowCount(), 3);
    EXPECT_EQ(Cell(0, 0), QStringLiteral("(gone)"));
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(rows.model()->index(0, 0)).center());
    EXPECT_TRUE(shown.empty());
    QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(rows.model()->index(1, 0)).center());
    EXPECT_EQ(shown, std::vector<std::string>{"B"});
    EXPECT_TRUE(list.isVisible());
    Click({600, 500});
    EXPECT_FALSE(list.isVisible());
}

TEST_F(HeapTest, KeysGoThroughIt)
{
    Click({300, 200});
    const MapView before = TheMap().View();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_Escape})
        QTest::keyClick(&rows, key);
    EXPECT_EQ(shown, std::vector<std::string>{"C"});
    EXPECT_EQ(TheMap().View().centre, before.centre) << "the keys are not the map's";
    EXPECT_FALSE(list.isVisible());
}

TEST_F(HeapTest, TwoQuickClicksDoNotZoomAndTheBadgeCountsAsThePicture)
{
    const double zoom = TheMap().View().zoom;
    ASSERT_EQ(widget.Scene().Labels().Badges().size(), 1U);
    const QPoint badge = widget.Scene().Labels().Badges()[0].rect.center().toPoint();
    Click(badge);
    EXPECT_TRUE(list.isVisible());
    QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, badge);
    EXPECT_EQ(TheMap().View().zoom, zoom);
    EXPECT_TRUE(list.isVisible());
    control.NewMap(kRegionEurope);
    EXPECT_FALSE(list.isVisible()) << "its markers are gone";
}

TEST_F(HeapTest, TheSelectedOneStandsAloneOnTop)
{
    selection = pins[1];
    widget.update();
    Painted();
    const auto& items = widget.Scene().Markers().Items();
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items.back().slot, pins[1].Ref().slot);
    ASSERT_EQ(widget.Scene().Labels().Names().size(), 1U);
    EXPECT_EQ(widget.Scene().Labels().Names()[0].slot, pins[1].Ref().slot);
}

TEST_F(MapWidgetTest, PointsOfATrailAreSmallAndNoCrowd)
{
    for (int i = 0; i < 40; ++i)
        AddPin(QPointF(300 + i, 200), "N0CALL(r)*");
    const Pushpin station = AddPin({340, 200}, "N0CALL(r)");
    const QImage picture = Painted();
    const auto& items = widget.Scene().Markers().Items();
    EXPECT_LT(items.size(), 9U);
    EXPECT_EQ(items.back().slot, station.Ref().slot);
    EXPECT_TRUE(widget.Scene().Labels().Badges().empty());
    EXPECT_EQ(picture.pixel(302, 209), picture.pixel(20, 300)) << "ground shows beside a dot";
}

// What a report does not renew must not stand as if it were news.
TEST_F(MapWidgetTest, WhatWasHeardLongAgoFadesOnceThatIsAskedFor)
{
    Pushpin pin = AddPin({300, 200}, "K1ABC");
    pin.SetHeard(10000);
    widget.SetClock([] { return 10000 + 3601; });
    const QImage fresh = Painted();
    widget.SetFadeAfter(60);
    EXPECT_NE(Painted(), fresh);
    EXPECT_TRUE(widget.Scene().Labels().Names().empty());
    selection = pin;
    widget.update();
    Painted();
    EXPECT_EQ(widget.Scene().Labels().Names().size(), 1U) << "the selected one always has its name";
    widget.SetFadeAfter(120);
    const QRect picture(288, 188, 24, 24); // Without the name, which stands beside it.
    EXPECT_NE(Painted().copy(picture), fresh.copy(picture)) << "and stands out";
    selection = {};
    widget.update();
    EXPECT_EQ(Painted(), fresh);
}

TEST_F(MapWidgetTest, ThePlaceUnderARestingPointerIsToldAnewWhenTheViewMoves)
{
    QTest::mouseMove(&widget, {300, 200});
    QSignalSpy moves(&widget, &MapWidget::PointerMoved);
    QTest::keyClick(&widget, Qt::Key_Right);
    Wheel({300, 200}, 120);
    ASSERT_GE(moves.size(), 2);
    EXPECT_EQ(moves.back()[0].toInt(), 300);
}

TEST_F(MapWidgetTest, TheWayOfTheDirectionsIsDrawnAcrossTheDateLineToo)
{
    TheMap().SetView({0, 180}, 4);
    const QImage bare = Painted();
    widget.SetDirections(LineEnds{GeoPoint{0, 170}, GeoPoint{0, -170}});
    const QImage drawn = Painted();
    int changed = 0;
    for (int x = 290; x < 510; ++x)
        changed += drawn.pixel(x, 300) != bare.pixel(x, 300) ? 1 : 0;
    EXPECT_GT(changed, 150) << "from one end to the other";
    EXPECT_EQ(drawn.pixel(100, 300), bare.pixel(100, 300)) << "and not around the world";
}

TEST_F(MapWidgetTest, WhatIsDeletedOrReplacedIsNoLongerSelected)
{
    for (const bool bDeleted : {true, false}) {
        Pushpin pin = AddPin({300, 200}, "K1ABC");
        Painted();
        Click({300, 200});
        EXPECT_EQ(selection, MapSelection(pin));
        bDeleted ? pin.Delete() : control.NewMap(kRegionEurope);
        EXPECT_TRUE(QTest::qWaitFor([&] { return selection == MapSelection() && !widget.OpenBalloons().Pinned(); }));
        Painted();
    }
}

TEST_F(MapWidgetTest, ClickWithTheCrossGoesOnlyToTheLogic)
{
    AddPin({300, 200}, "K1ABC");
    Painted();
    control.SetMousePointer(kPointerCross);
    EXPECT_EQ(widget.cursor().shape(), Qt::CrossCursor);
    QSignalSpy clicks(&widget, &MapWidget::Clicked);
    Click({300, 200});
    ASSERT_EQ(clicks.size(), 1);
    EXPECT_EQ(clicks[0][1].toInt(), 300);
    EXPECT_EQ(selection, MapSelection());
    EXPECT_FALSE(widget.OpenBalloons().Pinned());
    const double zoom = TheMap().View().zoom;
    control.SetMousePointer(kPointerDefault); // As the logic does on the click.
    QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, {300, 200});
    EXPECT_EQ(TheMap().View().zoom, zoom) << "the second press of a pinpoint zooms";
    control.SetMousePointer(kPointerWait);
    EXPECT_EQ(widget.cursor().shape(), Qt::WaitCursor);
}

TEST_F(MapWidgetTest, WheelKeepsThePointUnderThePointer)
{
    const QPointF at(733, 517);
    for (const int eighths : {120, 15, -240, -15}) {
        const GeoPoint point = FromPixel(TheMap().View(), {at.x(), at.y()});
        const double zoom = TheMap().View().zoom;
        Wheel(at, eighths);
        EXPECT_LT(PixelsApart(TheMap().View(), point, at), 0.01);
        EXPECT_NEAR(TheMap().View().zoom - zoom, eighths / 240.0, 1e-9);
    }
}

TEST_F(MapWidgetTest, DragMovesTheGroundWithThePointerAndSelectsNothing)
{
    AddPin({400, 300}, "K1ABC");
    Painted();
    const GeoPoint grabbed = FromPixel(TheMap().View(), {400, 300});
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, {400, 300});
    QTest::mouseMove(&widget, {420, 290});
    EXPECT_EQ(widget.cursor().shape(), Qt::ClosedHandCursor);
    QTest::mouseMove(&widget, {523, 217});
    EXPECT_LT(PixelsApart(TheMap().View(), grabbed, {523, 217}), 0.01);
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, {523, 217});
    EXPECT_EQ(widget.cursor().shape(), Qt::ArrowCursor);
    EXPECT_EQ(selection, MapSelection());
}

TEST_F(MapWidgetTest, KeysAndDoubleClickMoveTheView)
{
    const MapView before = TheMap().View();
    QTest::keyClick(&widget, Qt::Key_Right);
    EXPECT_GT(TheMap().View().centre.lon, before.centre.lon);
    QTest::keyClick(&widget, Qt::Key_Up);
    EXPECT_GT(TheMap().View().centre.lat, before.centre.lat);
    QTest::keyClick(&widget, Qt::Key_Plus);
    EXPECT_EQ(TheMap().View().zoom, before.zoom + 1);
    QTest::keyClick(&widget, Qt::Key_Minus);
    QTest::keyClick(&widget, Qt::Key_Home);
    for (const GeoPoint corner : {GeoPoint{49, -125}, GeoPoint{25, -80}}) {
        const PixelPoint at = ToPixel(TheMap().View(), corner);
        EXPECT_TRUE(widget.rect().contains(QPointF(at.x, at.y).toPoint()));
    }
    const GeoPoint point = FromPixel(TheMap().View(), {200, 150});
    const double zoom = TheMap().View().zoom;
    QTest::mouseDClick(&widget, Qt::LeftButton, Qt::NoModifier, {200, 150});
    EXPECT_LT(PixelsApart(TheMap().View(), point, {200, 150}), 0.01);
    EXPECT_EQ(TheMap().View().zoom, zoom + 1);
    QTest::mouseDClick(&widget, Qt::LeftButton, Qt::ShiftModifier, {200, 150});
    EXPECT_EQ(TheMap().View().zoom, zoom);
}

TEST_F(MapWidgetTest, RestingPointerShowsTheNoteAndLeavingHidesIt)
{
    const Pushpin pin = AddPin({300, 200}, "K1ABC", "note");
    const QImage bare = Painted();
    Rest({302, 203});
    EXPECT_EQ(widget.OpenBalloons().Hovered(), pin.Ref());
    EXPECT_NE(Painted(), bare);
    QSignalSpy moves(&widget, &MapWidget::PointerMoved);
    QTest::mouseMove(&widget, {500, 400});
    EXPECT_EQ(widget.OpenBalloons().Hovered(), std::nullopt);
    ASSERT_EQ(moves.size(), 1);
    EXPECT_EQ(moves[0][0].toInt(), 500);
    EXPECT_EQ(Painted(), bare);
}

TEST_F(MapWidgetTest, TenThousandChangesAreFewPaintsAndOwnMovesArePaintedAtOnce)
{
    Pushpin pin = AddPin({300, 200}, "K1ABC");
    const Location here = TheMap().XYToLocation(300, 200), there = TheMap().XYToLocation(500, 300);
    Painted();
    const int before = widget.Paints();
    for (int i = 0; i < 10000; ++i) {
        pin.SetLocation(i % 2 != 0 ? here : there);
        if (i % 100 == 0)
            QCoreApplication::processEvents();
    }
    pin.SetLocation(there);
    ASSERT_TRUE(QTest::qWaitFor([&] {
        const auto& items = widget.Scene().Markers().Items();
        return items.size() == 1 && items[0].at.x() > 499;
    }));
    EXPECT_LT(widget.Paints() - before, 30);
    const int paints = widget.Paints();
    widget.Mover().PanBy({10, 0});
    QCoreApplication::processEvents();
    EXPECT_EQ(widget.Paints(), paints + 1);
}

TEST_F(MapWidgetTest, PictureHasTheSizeAndRatioAskedForAndPrintingIsVectors)
{
    for (int i = 0; i < 50; ++i)
        AddPin({100.0 + i * 12, 300}, "K" + std::to_string(i));
    const QImage picture = widget.Picture({640, 480}, 2);
    EXPECT_EQ(picture.size(), QSize(1280, 960));
    EXPECT_EQ(TheMap().View().width, 800) << "a picture leaves the window's view alone";

    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&bytes);
    QPainter painter(&pdf);
    widget.PaintMap(painter, {0, 0, 8000, 5000});
    painter.end();
    EXPECT_TRUE(bytes.data().contains("/Font"));
}

TEST_F(MapWidgetTest, WindowWithoutAMapIsPaintedAndTakesInput)
{
    MapControl empty(files);
    MapWidget bare(empty, icons, nullptr, selection);
    bare.resize(300, 200);
    EXPECT_FALSE(bare.grab().isNull());
    QTest::mouseClick(&bare, Qt::LeftButton, Qt::NoModifier, {10, 10});
    QTest::keyClick(&bare, Qt::Key_Home);
    EXPECT_EQ(bare.Picture({10, 10}, 1).size(), QSize(10, 10));
    empty.NewMap(kRegionEurope);
    EXPECT_EQ(empty.RequireMap().View().width, 300);
}

} // namespace
} // namespace ruvenmark
