#pragma once

namespace ruvenmark {

struct MainWindow;

// Commands on the list that the right pane shows.
void mnuMsgOpen_Click(MainWindow& main); // The selected message of the Inbox.
void mnuMsgDelete_Click(MainWindow& main);
void mnuMsgDeleteAll_Click(MainWindow& main);
// Shows the sender, or of the Sent list the recipient, on the map. Stations of loaded files are not searched.
void mnuMsgLocate_Click(MainWindow& main);

} // namespace ruvenmark
