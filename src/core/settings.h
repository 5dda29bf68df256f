#pragma once

#include "platform/dictionary.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ruvenmark {

class ISettingsStore;

// The named values of the program, all texts. Loaded once at start, saved at stop; a crash loses the run's changes.
struct SettingsState {
    Dictionary<std::string> values;
    bool bLoaded = false; // What was never loaded is never saved over the store.
};

// Reads the 46 values, each with its default, in their fixed order.
void LoadSettings(SettingsState& settings, const ISettingsStore& store);
void SaveSettings(const SettingsState& settings, ISettingsStore& store);

// An unset value reads as empty text.
std::string_view SettingText(const SettingsState& settings, std::string_view key);
// These raise Failure for a text that is no such value.
std::int32_t SettingInt32(const SettingsState& settings, std::string_view key);
bool SettingBool(const SettingsState& settings, std::string_view key);
void SetSetting(SettingsState& settings, std::string_view key, std::string_view value);

} // namespace ruvenmark
