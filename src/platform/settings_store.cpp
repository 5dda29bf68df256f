#include "platform/settings_store.h"

#include "platform/failure.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/text.h"

#include <cstdint>
#include <utility>

namespace ruvenmark {

namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kHeader = "[Settings]";

void AppendEscaped(std::string& line, std::string_view text, bool bKey)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto byte = static_cast<std::uint8_t>(c);
        const bool bEndBlank = c == ' ' && (i == 0 || i + 1 == text.size());
        const bool bMarkInKey = bKey && (c == '=' || (i == 0 && (c == '[' || c == '#' || c == ';')));
        if (byte < 0x20 || byte == 0x7F || c == '\\' || bEndBlank || bMarkInKey) {
            line += "\\x";
            line += kHexDigits[byte >> 4U];
            line += kHexDigits[byte & 0xFU];
        } else {
            line += c;
        }
    }
}

// What is no escape stands for itself.
std::string Unescaped(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto high =
            i + 3 < text.size() && text[i + 1] == 'x' ? kHexDigits.find(ToLower(text[i + 2])) : std::string_view::npos;
        const auto low =
            high != std::string_view::npos ? kHexDigits.find(ToLower(text[i + 3])) : std::string_view::npos;
        if (text[i] == '\\' && low != std::string_view::npos) {
            plain += static_cast<char>(high * 16 + low);
            i += 3;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

struct SettingsText {
    std::string otherText; // The lines of other sections, in front.
    std::string remarks;   // The lines of our section that are no settings.
    Dictionary<std::string> values;
};

SettingsText ReadSettings(std::string_view text)
{
    SettingsText settings;
    bool bOurs = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view whole = text.substr(0, end == std::string_view::npos ? end : end + 1);
        text.remove_prefix(whole.size());
        std::string_view line = Trim(Lines(whole).front());
        const bool bHeader = line.starts_with('[') && line.ends_with(']');
        if (bHeader)
            bOurs = line == kHeader;
        const auto sign = line.find('=');
        const bool bRemark = line.starts_with('#') || line.starts_with(';');
        if (!bOurs)
            settings.otherText += whole;
        else if (!bHeader && !bRemark && sign != std::string_view::npos)
            settings.values.Set(Unescaped(Trim(line.substr(0, sign))), Unescaped(Trim(line.substr(sign + 1))));
        else if (!bHeader)
            settings.remarks += whole;
    }
    return settings;
}

std::string WriteSettings(const SettingsText& settings)
{
    const auto endLine = [](std::string& text) {
        if (!text.empty() && text.back() != '\n')
            text += '\n';
    };
    std::string text = settings.otherText;
    endLine(text);
    text += kHeader;
    text += '\n';
    text += settings.remarks;
    endLine(text);
    for (const auto& [key, value] : settings.values) {
        AppendEscaped(text, key, true);
        text += '=';
        AppendEscaped(text, value, false);
        text += '\n';
    }
    return text;
}

// The first where there is one.
const std::string* FindIn(const Dictionary<std::string>& first, const Dictionary<std::string>& second,
                          std::string_view key)
{
    const std::string* value = first.Find(key);
    return value ? value : second.Find(key);
}

} // namespace

// --- In memory

std::string MemorySettingsStore::Get(std::string_view key, std::string_view defaultValue) const
{
    const std::string* value = m_values.Find(key);
    return value ? *value : std::string(defaultValue);
}

void MemorySettingsStore::Set(std::string_view key, std::string_view value)
{
    m_values.Set(key, std::string(value));
}

// --- In a file

FileSettingsStore::FileSettingsStore(IFiles& files, std::string path) : m_files(files), m_path(std::move(path))
{
    try {
        m_values = ReadSettings(m_files.ReadText(m_path, FileKind::Settings)).values;
    } catch (const Failure& failure) {
        if (m_files.Exists(m_path))
            m_readFault = failure.what();
    }
}

std::string FileSettingsStore::Get(std::string_view key, std::string_view defaultValue) const
{
    if (const std::string* value = m_values.Find(key))
        return *value;
    m_defaults.Set(key, std::string(defaultValue));
    return std::string(defaultValue);
}

void FileSettingsStore::Set(std::string_view key, std::string_view value)
{
    const std::string* former = FindIn(m_values, m_defaults, key);
    const bool bSame = former && *former == value;
    if (!bSame || m_toWrite.Contains(key))
        m_toWrite.Set(key, std::string(value));
    else
        m_toHave.Set(key, std::string(value));
    m_values.Set(key, std::string(value));
}

void FileSettingsStore::Flush()
{
    if (!m_bKept || (m_toWrite.IsEmpty() && m_toHave.IsEmpty()))
        return;
    WriteChanges();
    m_toWrite.Clear();
    m_toHave.Clear();
}

void FileSettingsStore::WriteChanges()
{
    if (!m_readFault.empty())
        throw Failure(m_readFault);
    SettingsText standing;
    if (m_files.Exists(m_path))
        standing = ReadSettings(m_files.ReadText(m_path, FileKind::Settings));
    bool bChanges = false;
    for (const auto& [key, value] : m_toWrite) {
        const std::string* there = standing.values.Find(key);
        if (there && *there == value)
            continue;
        standing.values.Set(key, value);
        bChanges = true;
    }
    for (const auto& [key, value] : m_toHave) {
        if (standing.values.Contains(key))
            continue;
        standing.values.Set(key, value);
        bChanges = true;
    }
    if (bChanges)
        m_files.WriteText(WriteSettings(standing), m_path, FileKind::Settings);
}

// --- For one run

std::string OverlaySettingsStore::Get(std::string_view key, std::string_view defaultValue) const
{
    const std::string* value = m_values.Find(key);
    return value ? *value : m_below.Get(key, defaultValue);
}

namespace {

// The program writes flags and numbers in its own spelling, such as "True" for "1".
bool IsSameValue(std::string_view given, std::string_view written)
{
    if (given == written)
        return true;
    const auto number = ReadNumber(given);
    if (written == BoolText(true) || written == BoolText(false)) {
        const bool bWord = CompareIgnoringCase(Trim(given), written) == 0;
        return bWord || (number && (*number != 0) == (written == BoolText(true)));
    }
    return number && number == ReadNumber(written);
}

} // namespace

void OverlaySettingsStore::Set(std::string_view key, std::string_view value)
{
    if (const std::string* given = m_values.Find(key)) {
        if (IsSameValue(*given, value))
            return; // Nobody changed it: it stays a value of this run.
        m_values.Remove(key);
    }
    m_below.Set(key, value);
}

} // namespace ruvenmark
