#pragma once

#include "platform/dictionary.h"

#include <string>
#include <string_view>

namespace ruvenmark {

class IFiles;

// The per-user store of named texts. No failure is reported: a value that cannot be read is not there.
class ISettingsStore {
public:
    virtual ~ISettingsStore() = default;
    virtual std::string Get(std::string_view key, std::string_view defaultValue) const = 0;
    virtual void Set(std::string_view key, std::string_view value) = 0;
    // From here on what was set outlasts even a crash. False where it cannot be kept.
    virtual bool Flush() = 0;
};

class MemorySettingsStore final : public ISettingsStore {
public:
    std::string Get(std::string_view key, std::string_view defaultValue) const override;
    void Set(std::string_view key, std::string_view value) override;
    bool Flush() override { return true; }
    const Dictionary<std::string>& Values() const { return m_values; }

private:
    Dictionary<std::string> m_values;
};

// A text file with the section [Settings] and a line key=value for each; control characters, backslashes and blanks at
// the ends are escaped, so that every value comes back byte for byte. Other sections and lines are kept as they stand.
// Read once; written whole, in one step, by Flush.
class FileSettingsStore final : public ISettingsStore {
public:
    // A missing or unreadable file counts as empty; one that is there but could not be read is never written over.
    FileSettingsStore(IFiles& files, std::string path);

    std::string Get(std::string_view key, std::string_view defaultValue) const override;
    void Set(std::string_view key, std::string_view value) override;
    // Writes what was set since the last time; nothing where nothing was.
    bool Flush() override;

private:
    void Read(std::string_view text);
    std::string FileText() const;

    IFiles& m_files;
    std::string m_path;
    std::string m_otherText; // The lines of other sections, in front.
    std::string m_remarks;   // The lines of our section that are no settings.
    Dictionary<std::string> m_values;
    bool m_bChanged = false;
    bool m_bKeepFile = false;
};

// Values for this run in front of a store: reads see them first. Writing another value ends one and goes to the store
// beneath; writing the same one back, as a save at stop does, goes nowhere.
class OverlaySettingsStore final : public ISettingsStore {
public:
    explicit OverlaySettingsStore(ISettingsStore& below) : m_below(below) {}
    void SetForThisRun(std::string_view key, std::string_view value) { m_values.Set(key, std::string(value)); }
    std::string Get(std::string_view key, std::string_view defaultValue) const override;
    void Set(std::string_view key, std::string_view value) override;
    bool Flush() override { return m_below.Flush(); }

private:
    ISettingsStore& m_below;
    Dictionary<std::string> m_values;
};

} // namespace ruvenmark
