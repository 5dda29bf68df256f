#pragma once

#include <array>
#include <string_view>

namespace ruvenmark {

struct MainWindow;
struct TrackListForm;

inline constexpr std::array<std::string_view, 3> kTrackListLabels = {
    "List of stations to be tracked over RF link, separated by space",
    "List of stations to be tracked over TCP link, separated by space",
    "List of stations to be tracked during file loading, separated by space"};
inline constexpr std::array<std::string_view, 9> kTrackLineSizes = {
    "1 Point", "2 Points", "3 Points", "4 Points", "5 Points", "6 Points", "9 Points", "12 Points", "14 Points"};
inline constexpr std::array<std::string_view, 4> kTrackLineStyles = {"No Arrows", "Arrow at End", "Arrow at Beginning",
                                                                     "Arrows at Both Ends"};
inline constexpr int kNoChoice = -1; // Of a list whose setting names none of its entries.

// The fields as lists and settings stand.
void frmTrackList_Load(MainWindow& main);
// The button that accepts: the fields are taken over when the dialog is closed.
void frmTrackList_Track(TrackListForm& form);
void frmTrackList_Browse(MainWindow& main); // The wave file.

// Shows the dialog until it is closed.
void mnuTrackedStations_Click(MainWindow& main);

} // namespace ruvenmark
