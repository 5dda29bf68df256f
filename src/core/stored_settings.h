#pragma once

#include "core/settings.h"

#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>

namespace ruvenmark {

class INotices;
class ISettingsStore;

// The store as the program reads and writes it, by Setting. A stored text that its reader cannot read counts as the
// default, is named in one notice, and stays in the store until another value is set.
class StoredSettings {
public:
    // Both outlive this.
    StoredSettings(ISettingsStore& store, INotices& notices) : m_store(store), m_notices(notices) {}

    // The stored text, or the default's.
    std::string Text(Setting setting);
    // The setting's kind promises that these can be read.
    bool Flag(Setting setting);
    std::int16_t Int16(Setting setting);
    // For a value that its readers share, each with a default of its own.
    std::int16_t Int16(Setting setting, std::int16_t absent);
    std::int32_t Int32(Setting setting);
    double Number(Setting setting);

    void Set(Setting setting, std::string_view text);
    void SetFlag(Setting setting, bool value);
    void SetWhole(Setting setting, std::int64_t value);

    // From here on what was set outlasts even a crash. Raises Failure where it cannot be kept.
    void Flush();

private:
    std::string Readable(Setting setting, std::string absent);

    ISettingsStore& m_store;
    INotices& m_notices;
    std::bitset<kSettingCount> m_unreadable;
};

} // namespace ruvenmark
