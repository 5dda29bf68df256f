#pragma once

namespace ruvenmark {

struct MainWindow;

// The stored region, or the operator's answer where the stored one is neither 1 nor 2.
void ChooseRegion(MainWindow& main);
// Opens the default map where there is one; caption and file name stay as for a new map. Raises Failure.
void OpenDefaultMap(MainWindow& main);
// The tool bars of the map. Raises Failure where no map stands.
void SetUpMap(MainWindow& main);

} // namespace ruvenmark
