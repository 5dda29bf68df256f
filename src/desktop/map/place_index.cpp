#include "desktop/map/place_index.h"

#include "desktop/map/base_map.h"

#include <QStringList>

#include <algorithm>

namespace ruvenmark {

namespace {

// Letters that have no decomposition. The tool that builds the base map has the same list.
QString WithoutSpecialLetters(const QString& text)
{
    QString out;
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'ø':
            out += u'o';
            break;
        case u'ł':
            out += u'l';
            break;
        case u'đ':
        case u'ð':
            out += u'd';
            break;
        case u'þ':
            out += QStringLiteral("th");
            break;
        case u'ß':
            out += QStringLiteral("ss");
            break;
        case u'æ':
            out += QStringLiteral("ae");
            break;
        case u'œ':
            out += QStringLiteral("oe");
            break;
        case u'ı':
            out += u'i';
            break;
        case u'\u2019':
        case u'\u2018':
        case u'\u02BB':
        case u'\u02BC':
            out += u'\'';
            break;
        default:
            out += c;
        }
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

QString Text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

} // namespace

std::string FoldForSearch(QStringView text)
{
    const QString parts = text.toString().normalized(QString::NormalizationForm_KD);
    QString plain;
    std::copy_if(parts.begin(), parts.end(), std::back_inserter(plain), [](QChar c) { return !c.isMark(); });
    return WithoutSpecialLetters(plain.toLower()).toStdString();
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
    return found;
}

QString PlaceTitle(const BaseMap& map, std::size_t place)
{
    const PlaceRecord record = map.Place(place);
    QStringList parts{Text(record.name)};
    if (record.state)
        parts.append(Text(map.State(*record.state).name));
    if (record.country)
        parts.append(Text(map.Country(*record.country).name));
    parts.removeAll(QString());
    parts.removeDuplicates();
    return parts.join(QStringLiteral(", "));
}

} // namespace ruvenmark
