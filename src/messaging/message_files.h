#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

struct BoxState;
struct MainWindow;

// The boxes' files in the program folder, a row a line with "#####" between the fields. What cannot be read whole is
// kept as "Inbox.txt.bak" ahead of the first overwriting; what cannot be read at all is neither overwritten nor
// deleted, and the rows go into "Inbox.txt.new" then; nor is that one where it cannot be read itself.
void LoadMessageBoxes(MainWindow& main);
// Both; raises Failure in the end where one could not be saved.
void SaveMessageBoxes(MainWindow& main);
// What a load brings can be loaded again and waits for its end; all else is gone for good where it is lost.
enum class ChangedBy : bool { Load, LinkOrOperator };
void MarkChanged(BoxState& box, ChangedBy by);
// Those that changed, so that a crash costs seconds; the program's loop calls it every few. A failure is told once.
inline constexpr int kBoxSavePeriodMs = 5000;
void SaveChangedBoxes(MainWindow& main);

// Whether a text cannot stand in a box's file as it is: it holds the delimiter or a line's end.
bool BreaksBoxFile(std::string_view text);
// As the boxes carry a text: line ends become blanks, and a blank parts what would be taken for a delimiter.
std::string CarriedText(std::string_view text);

} // namespace ruvenmark
