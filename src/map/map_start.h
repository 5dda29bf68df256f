#pragma once

namespace ruvenmark {

struct MainWindow;

// Reads the region, asking where the stored one is neither 1 nor 2, and makes the map of it. Raises Failure.
void StartMap(MainWindow& main);
// Opens the default map where there is one; caption and file name stay as for a new map. Raises Failure.
void OpenDefaultMap(MainWindow& main);
// Tool bars and the measures of the earth. Raises Failure where no map stands.
void SetUpMap(MainWindow& main);

} // namespace ruvenmark
