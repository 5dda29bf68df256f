#pragma once

#include "core/channel.h"
#include "platform/keyed_tree.h"

#include <string>
#include <string_view>

namespace ruvenmark {

// Writes the nodes of one report: the station's under its folder, then its facts, and at the end the counts.
class FactWriter {
public:
    // Raises Failure where the folder does not stand.
    FactWriter(KeyedTree& tree, Channel channel, std::string_view folderWord);

    void Station(std::string_view call, std::string_view image = {});
    void Fact(std::string_view word, std::string_view text, std::string_view image);
    // The same with a label in front and a unit behind.
    void Fact(std::string_view word, std::string_view label, std::string_view value, std::string_view unit,
              std::string_view image);
    void Color(std::uint32_t color); // Of the station's node.
    void Counts();

private:
    KeyedTree& m_tree;
    Channel m_channel;
    TreeNode& m_folder;
    TreeNode* m_station = nullptr;
    std::string m_text;
};

} // namespace ruvenmark
