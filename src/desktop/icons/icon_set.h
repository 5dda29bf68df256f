#pragma once

#include "desktop/icons/map_atlas.h"

#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QString>

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace ruvenmark {

// Every picture of the program, drawn from SVG when it is first asked for. Made once, after the application, and lent.
class IconSet {
public:
    static constexpr int kDefaultMapPicture = 1;

    IconSet();

    // The picture of a tree key; a word that has none gets that of "Default".
    [[nodiscard]] QIcon Tree(std::string_view key) const;
    // Ask again after a change of palette. A name without a picture gives an icon that is null.
    [[nodiscard]] QIcon Action(const QString& name, const QPalette& palette) const;
    [[nodiscard]] QIcon Program() const;

    // `size` counts device-independent pixels a side; a number without a picture gets that of kDefaultMapPicture.
    [[nodiscard]] QPixmap MapPicture(int number, int size, qreal ratio);
    // The atlas lives as long as this object.
    [[nodiscard]] const MapAtlas& Atlas(int size, qreal ratio);

    [[nodiscard]] std::vector<std::string> TreeKeys() const;
    [[nodiscard]] std::vector<int> MapNumbers() const;
    [[nodiscard]] std::vector<QString> ActionNames() const;

private:
    struct MapEntry {
        QString path;
        std::map<int, QPixmap> drawn; // by device pixels a side
    };

    const QPixmap& Drawn(MapEntry& entry, int pixels);

    std::map<std::string, QIcon, std::less<>> m_tree;
    std::map<int, MapEntry> m_map;
    std::map<std::pair<int, qreal>, MapAtlas> m_atlases;
};

} // namespace ruvenmark
