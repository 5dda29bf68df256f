#pragma once

#include <string_view>

namespace ruvenmark {

struct MainWindow;

// What the server's panel tells beyond its text: since when the link stands, what was heard, and whether the server
// passes on what is sent. An unverified login and a complaint of the server warn, and are told once.
void BeginServerStatus(MainWindow& main);
void NoteServerLogin(MainWindow& main);
void NoteServerLine(MainWindow& main, std::string_view line); // Every line of the server, as received.
void EndServerStatus(MainWindow& main);

} // namespace ruvenmark
