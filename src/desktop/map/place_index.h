#pragma once

#include <QString>
#include <QStringView>

#include <cstddef>
#include <string>
#include <vector>

namespace ruvenmark {

class BaseMap;

// What a person types and how a name is looked up, alike: lower case, no marks, "ø" as "o" and so on; UTF-8.
std::string FoldForSearch(QStringView text);

// Numbers of the places whose names begin with the text, the largest place first, at most `most`. Nothing for an empty
// text.
std::vector<std::size_t> FindPlaces(const BaseMap& map, QStringView text, std::size_t most);

// The name with its state and country: "Douglas, Georgia, United States".
QString PlaceTitle(const BaseMap& map, std::size_t place);

} // namespace ruvenmark
