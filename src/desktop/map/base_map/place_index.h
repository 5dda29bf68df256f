#pragma once

#include <QStringView>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

class BaseMap;

// What a person types and how a name is looked up, alike: lower case, no marks, "ø" as "o" and so on; UTF-8.
std::string FoldForSearch(QStringView text);

// Numbers of the places whose names begin with the text, then of those in whose names a later word does, the largest
// place of each kind first; at most `most`. Nothing for an empty text.
std::vector<std::size_t> FindPlaces(const BaseMap& map, QStringView text, std::size_t most);

// Whether the name of a place begins so; the beginning is folded.
bool BeginsWith(std::string_view foldedName, std::string_view foldedStart);

} // namespace ruvenmark
