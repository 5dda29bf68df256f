#include "intake/fact_writer.h"

#include "intake/station_store.h"

namespace ruvenmark {

FactWriter::FactWriter(KeyedTree& tree, Channel channel, std::string_view folderWord)
    : m_tree(tree), m_channel(channel), m_folder(RequireFolder(tree, channel, folderWord))
{
}

void FactWriter::Station(std::string_view call, std::string_view image)
{
    m_station = &UpdateStationNode(m_tree, m_folder, call, call, image);
}

void FactWriter::Fact(std::string_view word, std::string_view text, std::string_view image)
{
    UpdateStationNode(m_tree, *m_station, word, text, image);
}

void FactWriter::Fact(std::string_view word, std::string_view label, std::string_view value, std::string_view unit,
                      std::string_view image)
{
    m_text = label;
    m_text += value;
    m_text += unit;
    Fact(word, m_text, image);
}

void FactWriter::Color(std::uint32_t color)
{
    m_tree.SetColor(*m_station, color);
}

void FactWriter::Counts()
{
    WriteCounts(m_tree, m_channel, m_folder);
}

} // namespace ruvenmark
