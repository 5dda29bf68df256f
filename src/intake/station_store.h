#pragma once

#include "core/channel.h"

#include <string_view>

namespace ruvenmark {

class KeyedTree;
class TreeNode;
class Record;
struct ChannelState;
struct MainWindow;

// The root of the channel and its four folders. Raises Failure, with nothing changed, where the root stands already.
void AddChannelTree(KeyedTree& tree, Channel channel);
// "My station" with its two folders.
void AddMyStationTree(KeyedTree& tree);

// A folder of a channel, by one of the folder words. Raises Failure where there is none.
TreeNode& RequireFolder(KeyedTree& tree, Channel channel, std::string_view folderWord);

// Writes the node whose key is the parent's key and the word, adding it below the parent where there is none; an empty
// image leaves a node's image. A node right under a folder becomes bold, and RF folders are sorted. The hint
// is the node as it was found before.
TreeNode& UpdateStationNode(KeyedTree& tree, TreeNode& parent, std::string_view word, std::string_view text,
                            std::string_view image, TreeNode* hint = nullptr);

// The text of one folder and of its root after a report. The root keeps its text where the sum does not fit 16 bits.
void WriteCounts(KeyedTree& tree, Channel channel, TreeNode& folder);
// The texts of all four folders and the root.
void RefreshFolderCounts(KeyedTree& tree, Channel channel);

// The record under the call; a new one holds the call.
Record& EnsureRecord(ChannelState& state, std::string_view call);

// Takes a station out of one folder with its record; out of "Positions" also its trail, range, circle and marker.
void RemoveStation(MainWindow& main, Channel channel, std::string_view call, std::string_view folderWord);

// Takes everything of a channel off the map, the records and the tree, and makes its folders anew. Lets no events in.
void ClearChannelReports(MainWindow& main, Channel channel);

} // namespace ruvenmark
