#pragma once

#include "platform/dictionary.h"

#include <string>
#include <string_view>

namespace ruvenmark {

class IFiles;

// The per-user store of named texts. A value that cannot be read is not there.
class ISettingsStore {
public:
    virtual ~ISettingsStore() = default;
    virtual std::string Get(std::string_view key, std::string_view defaultValue) const = 0;
    virtual void Set(std::string_view key, std::string_view value) = 0;
    // From here on what was set outlasts even a crash. Raises Failure where it cannot be kept.
    virtual void Flush() = 0;
    // False where nothing of this run is to outlast it; files beside the settings then stay as they are too.
    virtual bool IsKept() const { return true; }
};

class MemorySettingsStore final : public ISettingsStore {
public:
    std::string Get(std::string_view key, std::string_view defaultValue) const override;
    void Set(std::string_view key, std::string_view value) override;
    void Flush() override {}
    const Dictionary<std::string>& Values() const { return m_values; }

private:
    Dictionary<std::string> m_values;
};

// A text file with the section [Settings] and a line key=value for each; control characters, backslashes and blanks at
// the ends are escaped, so that every value comes back byte for byte. Other sections and lines are kept as they stand.
// Read once. Flush reads it again and lays over what stands there by then only what this run changed, and the keys that
// are missing: programs that share the file do not undo each other's work.
class FileSettingsStore final : public ISettingsStore {
public:
    // A missing or unreadable file counts as empty; one that is there but could not be read is never written over.
    FileSettingsStore(IFiles& files, std::string path);

    std::string Get(std::string_view key, std::string_view defaultValue) const override;
    void Set(std::string_view key, std::string_view value) override;
    void Flush() override;
    bool IsKept() const override { return m_bKept; }

    void KeepNothing() { m_bKept = false; }
    // Why a file that is there could not be read; empty where it could.
    const std::string& ReadFault() const { return m_readFault; }

private:
    void WriteChanges();

    IFiles& m_files;
    std::string m_path;
    std::string m_readFault;
    Dictionary<std::string> m_values;           // As the file has them, and over them what was set.
    mutable Dictionary<std::string> m_defaults; // What was said of a key that is not in the file.
    Dictionary<std::string> m_toWrite;          // What was changed since the last Flush,
    Dictionary<std::string> m_toHave;           // and what was set as it was: it only has to stand there.
    bool m_bKept = true;
};

// Values for this run in front of a store: reads see them first. Writing another value ends one and goes to the store
// beneath; writing the same one back, as a save at stop does, goes nowhere.
class OverlaySettingsStore final : public ISettingsStore {
public:
    explicit OverlaySettingsStore(ISettingsStore& below) : m_below(below) {}
    void SetForThisRun(std::string_view key, std::string_view value) { m_values.Set(key, std::string(value)); }
    std::string Get(std::string_view key, std::string_view defaultValue) const override;
    void Set(std::string_view key, std::string_view value) override;
    void Flush() override { m_below.Flush(); }
    bool IsKept() const override { return m_below.IsKept(); }

private:
    ISettingsStore& m_below;
    Dictionary<std::string> m_values;
};

} // namespace ruvenmark
