#pragma once

#include <cstdint>

namespace ruvenmark {

struct MainWindow;

// How the map tells places and ages. Whatever changes raises MapSession::LookChanged.
void LoadMapSettings(MainWindow& main);
void SaveMapSettings(MainWindow& main);

// A click on the coordinate box: decimal degrees, degrees and minutes, locator, and so on in turn.
void ChangeCoordinateForm(MainWindow& main);

// Commands: markers that were heard longer ago than this fade; 0 turns it off.
void SetFadeAfter(MainWindow& main, std::int16_t minutes);

} // namespace ruvenmark
