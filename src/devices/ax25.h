#pragma once

#include <optional>
#include <string>
#include <string_view>

// The frames of amateur packet radio, AX.25, as they go on the air: without flags, checksum or the framing of whatever
// carries them to a modem. Only unnumbered information (UI) frames without a network layer are read and made: all of
// APRS.
namespace ruvenmark {

// The frame as a packet line, SOURCE>DEST,DIGIPEATERS:information, with a star behind the last digipeater that has
// repeated it. The information may hold any byte. Nothing for any other frame.
std::optional<std::string> ReadUiFrame(std::string_view frame);

// Calls are up to six letters or digits with "-1" to "-15" behind them if wanted, of either case; `via` has up to eight
// with commas or blanks between them. Raises Failure for any other, and for more than 256 bytes of information.
std::string MakeUiFrame(std::string_view source, std::string_view dest, std::string_view via, std::string_view info);

} // namespace ruvenmark
