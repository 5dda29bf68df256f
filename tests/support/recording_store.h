#pragma once

#include "platform/settings_store.h"

#include <string>
#include <string_view>
#include <vector>

namespace ruvenmark {

// A store in memory that notes what is asked of it, and what of it would outlast a crash.
class RecordingStore final : public ISettingsStore {
public:
    mutable std::vector<std::string> read; // Keys, call by call.
    std::vector<std::string> written;      // Keys, call by call.

    std::string Get(std::string_view key, std::string_view defaultValue) const override
    {
        read.emplace_back(key);
        return m_kept.Get(key, defaultValue);
    }
    void Set(std::string_view key, std::string_view value) override
    {
        written.emplace_back(key);
        m_kept.Set(key, value);
    }
    void Flush() override { m_lasting = m_kept; }

    const Dictionary<std::string>& Values() const { return m_kept.Values(); }
    // As of the last Flush; "(not stored)" where there is nothing.
    std::string Lasting(std::string_view key) const { return m_lasting.Get(key, "(not stored)"); }

private:
    MemorySettingsStore m_kept, m_lasting;
};

// All that was kept so far, for comparing.
inline std::string StoredText(const RecordingStore& store)
{
    std::string text;
    for (const auto& [key, value] : store.Values())
        text += key + '=' + value + ' ';
    return text;
}

} // namespace ruvenmark
