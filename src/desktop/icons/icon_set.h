#pragma once

#include "desktop/icons/map_atlas.h"

#include <QIcon>
#include <QPalette>
#include <QString>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ruvenmark {

// Every picture of the program, drawn from SVG when it is first asked for. Made once, after the application, and lent.
class IconSet {
public:
    static constexpr int kDefaultMapPicture = 1;

    IconSet();

    // The picture of a tree key; a word that has none gets that of "Default".
    QIcon Tree(std::string_view key) const;
    // Ask again after a change of palette. A name without a picture gives an icon that is null.
    QIcon Action(const QString& name, const QPalette& palette) const;
    QIcon Program() const;

    // All pictures of the map; `size` counts device-independent pixels a side. A number without a picture gets that of
    // kDefaultMapPicture. The atlas lives as long as this object.
    const MapAtlas& Atlas(int size, qreal ratio);

    std::vector<std::string> TreeKeys() const;
    std::vector<int> MapNumbers() const;
    std::vector<QString> ActionNames() const;

private:
    std::map<std::string, QIcon, std::less<>> m_tree;
    std::map<int, QString> m_map; // Paths by number.
    std::map<std::pair<int, qreal>, MapAtlas> m_atlases;
};

} // namespace ruvenmark
