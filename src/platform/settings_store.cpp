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
        Read(m_files.ReadText(m_path));
    } catch (const Failure&) {
        m_bKeepFile = m_files.Exists(m_path);
    }
}

void FileSettingsStore::Read(std::string_view text)
{
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
            m_otherText += whole;
        else if (!bHeader && !bRemark && sign != std::string_view::npos)
            m_values.Set(Unescaped(Trim(line.substr(0, sign))), Unescaped(Trim(line.substr(sign + 1))));
        else if (!bHeader)
            m_remarks += whole;
    }
}

std::string FileSettingsStore::Get(std::string_view key, std::string_view defaultValue) const
{
    const std::string* value = m_values.Find(key);
    return value ? *value : std::string(defaultValue);
}

void FileSettingsStore::Set(std::string_view key, std::string_view value)
{
    const std::string* found = m_values.Find(key);
    if (found && *found == value)
        return;
    m_values.Set(key, std::string(value));
    m_bChanged = true;
}

std::string FileSettingsStore::FileText() const
{
    const auto endLine = [](std::string& text) {
        if (!text.empty() && text.back() != '\n')
            text += '\n';
    };
    std::string text = m_otherText;
    endLine(text);
    text += kHeader;
    text += '\n';
    text += m_remarks;
    endLine(text);
    for (const auto& [key, value] : m_values) {
        AppendEscaped(text, key, true);
        text += '=';
        AppendEscaped(text, value, false);
        text += '\n';
    }
    return text;
}

bool FileSettingsStore::Flush()
{
    if (!m_bChanged)
        return true;
    if (m_bKeepFile)
        return false;
    try {
        m_files.WriteText(FileText(), m_path);
    } catch (const Failure&) {
        return false;
    }
    m_bChanged = false;
    return true;
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
