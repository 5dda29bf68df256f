#pragma once

#include "core/stored_settings.h"

#include <cstdint>
#include <string>

namespace ruvenmark {

// A list of stored fields, told once, is loaded by the one and saved by the other.
struct LoadField {
    StoredSettings& stored;

    void operator()(Setting setting, std::string& field) const { field = stored.Text(setting); }
    void operator()(Setting setting, bool& field) const { field = stored.Flag(setting); }
    void operator()(Setting setting, std::int16_t& field) const { field = stored.Int16(setting); }
    void operator()(Setting setting, std::int32_t& field) const { field = stored.Int32(setting); }
};

struct SaveField {
    StoredSettings& stored;

    void operator()(Setting setting, const std::string& field) const { stored.Set(setting, field); }
    void operator()(Setting setting, bool field) const { stored.SetFlag(setting, field); }
    void operator()(Setting setting, std::int16_t field) const { stored.SetWhole(setting, field); }
    void operator()(Setting setting, std::int32_t field) const { stored.SetWhole(setting, field); }
};

} // namespace ruvenmark
