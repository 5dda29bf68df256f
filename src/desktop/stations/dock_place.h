#pragma once

#include <QRect>
#include <Qt>

#include <string>
#include <string_view>

namespace ruvenmark {

// Where a dock stands, as text for the settings: "below 240", "right 400", "floating 100 80 600 300".
struct DockPlace {
    Qt::DockWidgetArea area = Qt::BottomDockWidgetArea; // Where it belongs when it does not float.
    int size = 0;                                       // Across the edge it stands at; 0 for its own.
    QRect floating;                                     // A window of its own, if this is valid.
};

std::string TextOf(const DockPlace& place);
// What makes no sense counts as nothing.
DockPlace DockPlaceOf(std::string_view text);

} // namespace ruvenmark
