#include "desktop/map/base_map/other_names.h"

#include "desktop/map/base_map/place_index.h"
#include "mapfiles/base_map.h"
#include "platform/text.h"

#include <QFile>

#include <algorithm>
#include <charconv>
#include <optional>

namespace ruvenmark {

namespace {

std::string BytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

// Folded name, name, number and name of the place.
std::optional<OtherNames::Row> RowOf(const BaseMap& map, std::string_view line)
{
    constexpr std::size_t kColumns = 4;
    const auto columns = Split(line, '\t');
    if (columns.size() != kColumns)
        return std::nullopt;
    std::size_t place = map.PlaceCount();
    std::from_chars(columns[2].data(), columns[2].data() + columns[2].size(), place);
    if (place >= map.PlaceCount() || map.Place(place).name != columns[3])
        return std::nullopt;
    return OtherNames::Row{columns[0], columns[1], place};
}

bool IsSorted(const OtherNames::Row& a, const OtherNames::Row& b)
{
    return a.folded < b.folded;
}

} // namespace

OtherNames::OtherNames(const BaseMap& map, const QString& path) : m_text(BytesOf(path))
{
    for (const std::string_view line : Lines(m_text))
        if (const auto row = RowOf(map, line))
            m_rows.push_back(*row);
    std::stable_sort(m_rows.begin(), m_rows.end(), IsSorted); // Nothing to do but for a file of other hands.
}

std::vector<OtherNames::Row> OtherNames::Find(std::string_view foldedStart) const
{
    if (foldedStart.empty())
        return {};
    const auto first = std::lower_bound(m_rows.begin(), m_rows.end(), Row{foldedStart, {}, 0}, IsSorted);
    const auto last =
        std::find_if(first, m_rows.end(), [&](const Row& row) { return !row.folded.starts_with(foldedStart); });
    std::vector<Row> found(first, last);
    std::stable_sort(found.begin(), found.end(), [](const Row& a, const Row& b) { return a.place < b.place; });
    found.erase(std::unique(found.begin(), found.end(), [](const Row& a, const Row& b) { return a.place == b.place; }),
                found.end());
    return found;
}

} // namespace ruvenmark
