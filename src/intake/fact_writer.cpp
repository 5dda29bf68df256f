#include "intake/fact_writer.h"

#include "contracts/report_source.h"
#include "intake/station_store.h"
#include "platform/numbers.h"

#include <algorithm>

namespace ruvenmark {

namespace {

constexpr std::size_t kUsualText = 64; // Bytes; longer facts take more.

} // namespace

std::string GivenText(double value)
{
    return value > kAbsent ? ShortText(value) : std::string();
}

std::string GivenText(std::int32_t value)
{
    return value > kAbsentLong ? ShortText(std::int64_t{value}) : std::string();
}

void SetGiven(Record& record, std::span<const FactValue> values)
{
    for (const FactValue& value : values)
        if (!value.text.empty())
            record.Set(value.field, value.text);
}

FactWriter::FactWriter(KeyedTree& tree, Channel channel, std::string_view folderWord)
    : m_tree(tree), m_channel(channel), m_folder(RequireFolder(tree, channel, folderWord)),
      m_stationsBefore(m_folder.Children().size()), m_text(kUsualText, '\0')
{
}

TreeNode& FactWriter::Station(std::string_view call, std::string_view image, TreeNode* hint)
{
    m_station = &UpdateStationNode(m_tree, m_folder, call, call, image, hint);
    m_nextRow = 0;
    return *m_station;
}

void FactWriter::Fact(std::string_view word, std::string_view text, std::string_view image)
{
    const auto facts = m_station->Children();
    TreeNode* fact = m_tree.Find(*m_station, word, m_nextRow < facts.size() ? facts[m_nextRow] : nullptr);
    if (fact)
        m_tree.SetText(*fact, text);
    else
        fact = &m_tree.Add(*m_station, word, text, image);
    m_nextRow = m_tree.Row(*fact) + 1;
}

void FactWriter::Fact(std::string_view word, std::string_view label, std::string_view value, std::string_view unit,
                      std::string_view image)
{
    const std::size_t size = label.size() + value.size() + unit.size();
    if (size > m_text.size())
        m_text.resize(size);
    char* end = std::copy(label.begin(), label.end(), m_text.data());
    end = std::copy(value.begin(), value.end(), end);
    std::copy(unit.begin(), unit.end(), end);
    Fact(word, std::string_view(m_text).substr(0, size), image);
}

void FactWriter::Given(std::span<const FactValue> values)
{
    for (const FactValue& value : values)
        if (!value.text.empty())
            Fact(FieldName(value.field), value.label, value.text, value.unit, value.image);
}

void FactWriter::Color(std::uint32_t color)
{
    m_tree.SetColor(*m_station, color);
}

void FactWriter::Counts()
{
    if (m_folder.Children().size() != m_stationsBefore) // The texts of before tell the rest.
        WriteCounts(m_tree, m_channel, m_folder);
}

} // namespace ruvenmark
