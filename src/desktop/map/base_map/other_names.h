#pragma once

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

class BaseMap;

// What larger places are called elsewhere: "München" and "Monaco di Baviera" for Munich.
class OtherNames {
public:
    // Rows that do not fit the map are left out; a file that cannot be read has none.
    OtherNames(const BaseMap& map, const QString& path);

    struct Row {
        std::string_view folded, name;
        std::size_t place; // Its number in the map.
    };
    // Those that begin with the text, at most one for a place, the largest place first.
    std::vector<Row> Find(std::string_view foldedStart) const;

private:
    std::string m_text;
    std::vector<Row> m_rows; // In the order of the folded names.
};

} // namespace ruvenmark
