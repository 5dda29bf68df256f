#pragma once

#include "core/channel.h"
#include "core/station_record.h"
#include "platform/keyed_tree.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ruvenmark {

// A value of a report, as a node under its station and as a field of the record.
struct FactValue {
    Field field; // Its name is the node's word.
    std::string_view label, unit, image;
    std::string text; // Empty when the value is not given.
};
// Empty for a value that stands for "not given".
std::string GivenText(double value);
std::string GivenText(std::int32_t value);
void SetGiven(Record& record, std::span<const FactValue> values);

// Writes the nodes of one report: the station's under its folder, then its facts, and at the end the counts.
class FactWriter {
public:
    // Raises Failure where the folder does not stand.
    FactWriter(KeyedTree& tree, Channel channel, std::string_view folderWord);

    // The hint is the node as it was found before.
    TreeNode& Station(std::string_view call, std::string_view image = {}, TreeNode* hint = nullptr);
    // Facts of one word have one image.
    void Fact(std::string_view word, std::string_view text, std::string_view image);
    // The same with a label in front and a unit behind.
    void Fact(std::string_view word, std::string_view label, std::string_view value, std::string_view unit,
              std::string_view image);
    void Given(std::span<const FactValue> values);
    void Color(std::uint32_t color); // Of the station's node.
    void Counts();

private:
    KeyedTree& m_tree;
    Channel m_channel;
    TreeNode& m_folder;
    std::size_t m_stationsBefore;
    TreeNode* m_station = nullptr;
    std::size_t m_nextRow = 0; // Where the next fact stands if they came in this order before.
    std::string m_text;        // Room for one that is put together.
};

} // namespace ruvenmark
