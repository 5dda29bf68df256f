#pragma once

#include <cstdint>
#include <string_view>

namespace ruvenmark {

class IFiles;
struct MainWindow;

// What a file or folder holds that was dropped on the window, stands on the command line or was opened by its name.
enum class FileContent : std::uint8_t { Packets, Map, Tiles };

// By its first bytes, not by its name. What cannot be looked into, a pipe above all, counts as packets.
FileContent ContentOf(IFiles& files, std::string_view path);

// What is no file of packets: a map is opened, as by the menu; tiles are put under the map. What fails is told.
void OpenContent(MainWindow& main, FileContent content, std::string_view path);

} // namespace ruvenmark
