#include "desktop/map/base_map/world_map.h"
#include "desktop/map/labels/label_grid.h"
#include "desktop/map/labels/place_labels.h"

#include <QPaintDevice>
#include <QPaintEngine>

#include <gtest/gtest.h>

#include <algorithm>

namespace ruvenmark {
namespace {

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
        labels.Place(FrameAt(centre, zoom, 1000, 700), grid, {MapStyle::Road, false, mapFont, 1, true});
        labels.Paint(painter);
        painter.end();
        return paper.recorder.lines;
    }
    bool Has(const std::vector<Line>& lines, const QString& text)
    {
        return std::any_of(lines.begin(), lines.end(), [&](const Line& line) { return line.text == text; });
    }

    BaseMap map = BaseMap::Open(kWorldMapPath);
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
