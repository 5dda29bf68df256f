#include "app/decode_summary.h"

#include "app/packet_json.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

using Counts = std::map<std::string_view, std::uint64_t>;

constexpr std::size_t kCountWidth = 10;

std::uint64_t Total(const Counts& counts)
{
    std::uint64_t total = 0;
    for (const auto& [name, count] : counts)
        total += count;
    return total;
}

void AppendRow(std::string& text, std::string_view indent, std::string_view name, std::uint64_t count)
{
    const std::string figures = std::to_string(count);
    text.append(kCountWidth - std::min(kCountWidth, figures.size()), ' ');
    text.append(figures).append("  ").append(indent).append(name).append("\n");
}

void AppendTable(std::string& text, std::string_view title, const Counts& counts)
{
    AppendRow(text, "", title, Total(counts));
    std::vector<std::pair<std::string_view, std::uint64_t>> rows(counts.begin(), counts.end());
    std::stable_sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.second > b.second; });
    for (const auto& [name, count] : rows)
        AppendRow(text, "  ", name, count);
}

} // namespace

void DecodeSummary::Add(const aprs::Packet& packet)
{
    if (packet.IsDecoded())
        ++m_types[PacketTypeName(packet)];
    else
        ++m_reasons[RefusalText(packet.refusal)];
}

std::string DecodeSummary::ToString() const
{
    std::string text;
    AppendTable(text, "decoded", m_types);
    AppendTable(text, "undecoded", m_reasons);
    return text;
}

} // namespace ruvenmark
