#include "devices/tnc_words.h"

#include "aprs/text.h"

#include <algorithm>
#include <iterator>

namespace ruvenmark {

std::string Typeable(std::string_view line)
{
    constexpr char kDelete = 0x7F;
    std::string text;
    std::copy_if(line.begin(), line.end(), std::back_inserter(text),
                 [](char c) { return static_cast<unsigned char>(c) >= ' ' && c != kDelete; });
    return text;
}

bool EntersConverse(std::string_view command)
{
    command = aprs::Trim(command);
    std::string word(command.substr(0, command.find(' ')));
    std::transform(word.begin(), word.end(), word.begin(), [](char c) { return aprs::ToUpper(c); });
    return word == "K" || word.starts_with("CONV") || word.starts_with("TRANS");
}

bool IsFault(std::string_view line)
{
    return line.starts_with('?') || line == "EH?" || line.starts_with("*** What?");
}

bool IsEchoOf(std::string_view line, std::string_view typed)
{
    constexpr unsigned kSevenBits = 0x7F;
    return line.size() <= typed.size() && std::equal(line.begin(), line.end(), typed.begin(), [](char a, char b) {
               return ((static_cast<unsigned char>(a) ^ static_cast<unsigned char>(b)) & kSevenBits) == 0;
           });
}

bool TellsWhatWas(std::string_view line)
{
    return line.find(" was ") != std::string_view::npos;
}

} // namespace ruvenmark
