#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

// The line that names the password begins so; no call holds a blank.
inline constexpr std::string_view kLoginWord = "user ";

// A server that repeats a login must not show the password to whoever looks at the monitor, the log or the tree.
class PasswordMask {
public:
    // A line that goes out: a login names the password.
    void NoteSent(std::string_view line);

    // Puts dots in the place of what a received line tells of it: in what the server says itself wherever it stands,
    // in a packet, where the same figures may mean anything, only behind the word "pass".
    void Hide(std::string& line) const;

private:
    std::string m_password; // Empty where none was sent.
};

} // namespace ruvenmark
