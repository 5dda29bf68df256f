#include "intake/fact_writer.h"

#include "contracts/report_source.h"
#include "intake/station_store.h"
#include "platform/numbers.h"

namespace ruvenmark {

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
      m_stationsBefore(m_folder.Children().size())
{
}

void FactWriter::Station(std::string_view call, std::string_view image)
{
    m_station = &UpdateStationNode(m_tree, m_folder, call, call, image);
    m_nextRow = 0;
}

void FactWriter::Fact(std::string_view word, std::string_view text, std::string_view image)
{
    const TreeNode& fact = UpdateStationNode(m_tree, *m_station, word, text, image, m_nextRow);
    m_nextRow = m_tree.Row(fact) + 1;
}

void FactWriter::Fact(std::string_view word, std::string_view label, std::string_view value, std::string_view unit,
                      std::string_view image)
{
    m_text = label;
    m_text += value;
    m_text += unit;
    Fact(word, m_text, image);
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
