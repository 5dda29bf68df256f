#include "desktop/map/base_map/place_index.h"

#include "mapfiles/base_map.h"

#include <QString>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace ruvenmark {

namespace {

// Letters that have no decomposition. The tool that builds the base map has the same list.
constexpr std::array<std::pair<char16_t, std::u16string_view>, 13> kPlainLetters{{
    {u'ø', u"o"},
    {u'ł', u"l"},
    {u'đ', u"d"},
    {u'ð', u"d"},
    {u'þ', u"th"},
    {u'ß', u"ss"},
    {u'æ', u"ae"},
    {u'œ', u"oe"},
    {u'ı', u"i"},
    {u'\u2019', u"'"},
    {u'\u2018', u"'"},
    {u'\u02BB', u"'"},
    {u'\u02BC', u"'"},
}};

QString WithoutSpecialLetters(const QString& text)
{
    QString out;
    for (const QChar c : text) {
        const auto* const plain = std::find_if(kPlainLetters.begin(), kPlainLetters.end(),
                                               [c](const auto& letter) { return letter.first == c.unicode(); });
        if (plain == kPlainLetters.end())
            out += c;
        else
            out += QStringView(plain->second);
    }
    return out;
}

// Bytes of a stored name as they are ordered: letters of ASCII as small ones.
int CompareStart(std::string_view name, std::string_view prefix)
{
    const auto lower = [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte >= 'A' && byte <= 'Z' ? byte + ('a' - 'A') : int{byte};
    };
    for (std::size_t i = 0; i < prefix.size(); ++i) {
        if (i == name.size())
            return -1;
        if (const int difference = lower(name[i]) - int{static_cast<unsigned char>(prefix[i])}; difference != 0)
            return difference;
    }
    return 0;
}

// Blanks, hyphens, apostrophes and the like part words; every byte beyond ASCII is of a letter.
bool IsInWord(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z');
}

// Whether another word of the name than the first begins like this.
bool HasLaterWord(std::string_view name, std::string_view prefix)
{
    for (std::size_t at = 1; at + prefix.size() <= name.size(); ++at)
        if (!IsInWord(name[at - 1]) && CompareStart(name.substr(at), prefix) == 0)
            return true;
    return false;
}

} // namespace

std::string FoldForSearch(QStringView text)
{
    const QString parts = text.toString().normalized(QString::NormalizationForm_KD);
    QString plain;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(plain), [](QChar c) { return !c.isMark(); });
    return WithoutSpecialLetters(plain.toLower()).toStdString();
}

bool BeginsWith(std::string_view foldedName, std::string_view foldedStart)
{
    return CompareStart(foldedName, foldedStart) == 0;
}

std::vector<std::size_t> FindPlaces(const BaseMap& map, QStringView text, std::size_t most)
{
    const std::string prefix = FoldForSearch(text.trimmed());
    if (prefix.empty())
        return {};
    const auto order = map.NameOrder();
    const auto first = std::partition_point(order.begin(), order.end(), [&](std::uint32_t place) {
        return CompareStart(map.FoldedName(place), prefix) < 0;
    });
    const auto last = std::partition_point(
        first, order.end(), [&](std::uint32_t place) { return CompareStart(map.FoldedName(place), prefix) == 0; });
    // The numbers are by population already.
    std::vector<std::size_t> found(first, last);
    const std::size_t count = std::min(most, found.size());
    std::partial_sort(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(count), found.end());
    found.resize(count);
    for (std::size_t place = 0; place < map.PlaceCount() && found.size() < most; ++place) {
        const std::string_view name = map.FoldedName(place);
        if (HasLaterWord(name, prefix) && CompareStart(name, prefix) != 0)
            found.push_back(place);
    }
    return found;
}

} // namespace ruvenmark
