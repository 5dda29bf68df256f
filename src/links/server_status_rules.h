#pragma once

#include <chrono>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// What the server's panel tells beyond its text: how long the link stands, what was heard and how long ago, and whether
// the server passes on what is sent. An unverified login, a complaint of the server and its silence warn, and are told
// once.
void BeginServerStatus(MainWindow& main);
void NoteServerLogin(MainWindow& main);
void NoteServerLine(MainWindow& main, std::string_view line); // Every line of the server, as received.
void EndServerStatus(MainWindow& main);

// A server without a sign of life for a minute is told of: half a minute later the connection counts as lost. To be
// called now and then.
void CheckServerSilence(MainWindow& main);
inline constexpr std::chrono::milliseconds kSilenceLookPeriod{5000};

// The tip with the ages of this moment.
void ShowServerStatus(MainWindow& main);

} // namespace ruvenmark
