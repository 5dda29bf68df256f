#include "aprs/status.h"

#include "aprs/locator.h"
#include "aprs/plain_position.h"
#include "aprs/text.h"
#include "aprs/time_stamp.h"

namespace ruvenmark::aprs {

namespace {

constexpr std::size_t kSubsquareSize = 6;

// Size of a locator in front that a symbol follows; words that begin like one have none. Text may stand right behind
// the symbol of a full locator, where no capital could be a word's; else a blank or the end must.
std::size_t StatusLocatorSize(std::string_view text)
{
    const std::size_t size = LocatorSize(text);
    if (size == 0 || text.size() < size + 2 || !IsSymbolTable(text[size]) || !IsSymbolCode(text[size + 1]))
        return 0;
    const bool bSlash = text[size] == '/' || text[size] == '\\';
    const bool bPlain = size == kSubsquareSize && (bSlash || IsLower(text[size - 1]));
    return bPlain || text.size() == size + 2 || text[size + 2] == ' ' ? size : 0;
}

} // namespace

void ParseStatus(std::string_view text, StatusReport& status)
{
    if (text.size() >= kTimeSize && text[kTimeSize - 1] == 'z' && AllDigits(text.substr(0, kTimeSize - 1))) {
        ParseTime(text.substr(0, kTimeSize), status.time);
        text.remove_prefix(kTimeSize);
    }
    status.text = Trim(text);
    if (const std::size_t size = StatusLocatorSize(text))
        status.grid = LocatorPosition(text.substr(0, size));
}

} // namespace ruvenmark::aprs
