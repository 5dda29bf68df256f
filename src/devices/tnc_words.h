#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

// Without control characters, which would edit, hold or end what is typed.
std::string Typeable(std::string_view line);

// Whether what is typed after this command goes on the air.
bool EntersConverse(std::string_view command);

bool IsFault(std::string_view line);

// "MYCALL   was NOCALL": the answer to a command that sets something.
bool TellsWhatWas(std::string_view line);

// Whether the TNC may have written this as the beginning of what was typed: many clear the highest bit.
bool IsEchoOf(std::string_view line, std::string_view typed);

} // namespace ruvenmark
