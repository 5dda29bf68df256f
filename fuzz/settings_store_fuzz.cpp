#include "platform/settings_store.h"
#include "support/doubles.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

// Any bytes are read as settings; what is set comes back, and what was written is read as it was meant.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace ruvenmark;
    MemoryFiles files;
    std::string& text = files.texts["file"];
    text.assign(data, data + size);
    const std::string_view bytes = text;
    const std::string key(bytes.substr(0, size / 4));
    const std::string value(bytes.substr(size / 4, size / 4));

    FileSettingsStore store(files, "file");
    store.Set(key, value + "x");
    store.Set(key, value);
    store.Flush();
    const std::string once = text;
    FileSettingsStore again(files, "file");
    if (again.Get(key, "none") != value || again.Get("A", "none") != store.Get("A", "none"))
        std::abort();
    again.Set(key, value + "x");
    again.Set(key, value);
    again.Flush();
    if (text != once)
        std::abort();
    return 0;
}
