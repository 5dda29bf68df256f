#include "desktop/bars/location_bar.h"

#include "core/main_window.h"
#include "desktop/map/view/view_moves.h"
#include "desktop/named_control.h"
#include "desktop/shown_text.h"
#include "map/directions.h"
#include "platform/geometry.h"
#include "platform/map_model.h"
#include "ui/menus.h"

#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QToolTip>

#include <cmath>

namespace ruvenmark {

namespace {

// How many times the earth is larger than its picture in the middle of the map, on a screen of 96 pixels an inch.
double ScaleOf(const MapView& view)
{
    constexpr double kPixelMetres = 0.0254 / 96;
    return MetresPerPixel(view) / kPixelMetres;
}

// Two digits tell enough.
QString ScaleText(double scale)
{
    const double unit = std::pow(10.0, std::floor(std::log10(scale)) - 1);
    const auto rounded = static_cast<qlonglong>(std::round(scale / unit) * unit);
    return QStringLiteral("1 : ") + QLocale(QLocale::English).toString(rounded);
}

} // namespace

LocationBar::LocationBar(MainWindow& main, QWidget* parent)
    : QToolBar(QStringLiteral("Location and scale"), parent), m_main(main), m_centre(new QLineEdit(this)),
      m_zoom(new QDoubleSpinBox(this)), m_scale(new QLabel(this))
{
    setObjectName(QStringLiteral("mapToolBar4"));
    setAccessibleName(windowTitle());
    setContextMenuPolicy(Qt::PreventContextMenu);
    NameControl(*m_centre, "txtCentre", QStringLiteral("Middle of the map"));
    m_centre->setToolTip(
        QStringLiteral("Middle of the map: type a place, a call, latitude and longitude or a locator"));
    m_centre->setFixedWidth(CoordinatesWidth(*this));
    NameControl(*m_zoom, "numZoom", QStringLiteral("Zoom level"));
    m_zoom->setRange(kMinZoom, kMaxZoom);
    m_zoom->setDecimals(1);
    m_zoom->setSingleStep(0.5);
    m_zoom->setLocale(QLocale::c());
    m_zoom->setKeyboardTracking(false);
    NameControl(*m_scale, "lblScale", QStringLiteral("Scale"));
    const int gap = fontMetrics().horizontalAdvance(QLatin1Char(' '));
    m_scale->setContentsMargins(2 * gap, 0, 2 * gap, 0);
    addWidget(new QLabel(QStringLiteral(" Middle "), this));
    addWidget(m_centre);
    addWidget(new QLabel(QStringLiteral("  Zoom "), this));
    addWidget(m_zoom);
    addWidget(m_scale);
    connect(m_centre, &QLineEdit::returnPressed, this, &LocationBar::GoToTyped);
    connect(m_zoom, &QDoubleSpinBox::valueChanged, this, &LocationBar::Zoom);
}

void LocationBar::Refresh()
{
    const Map* map = m_main.mpCtrl.ActiveMap();
    setEnabled(map != nullptr);
    if (!map)
        return;
    const MapView& view = map->View();
    if (!m_centre->hasFocus() || !m_centre->isModified())
        m_centre->setText(ForDisplay(DirectionsEndText({"", view.centre})));
    const QSignalBlocker blocker(m_zoom);
    if (!m_zoom->hasFocus() || std::abs(m_zoom->value() - view.zoom) > 0.05)
        m_zoom->setValue(view.zoom);
    m_scale->setText(ScaleText(ScaleOf(view)));
}

void LocationBar::GoToTyped()
{
    Map* map = m_main.mpCtrl.ActiveMap();
    const auto end = ReadDirectionsEnd(m_main, m_centre->text().toStdString());
    if (!map || !end) {
        m_centre->selectAll();
        QToolTip::showText(m_centre->mapToGlobal(QPoint(0, m_centre->height())),
                           QStringLiteral("No such place, call or marker, and no latitude and longitude or locator"),
                           m_centre);
        return;
    }
    m_centre->setModified(false);
    map->SetView(end->point, map->View().zoom);
    Refresh();
}

void LocationBar::Zoom(double zoom) const
{
    if (Map* map = m_main.mpCtrl.ActiveMap())
        map->SetView(map->View().centre, zoom);
}

} // namespace ruvenmark
