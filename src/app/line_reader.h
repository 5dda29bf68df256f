#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace ruvenmark {

// Reads an open file descriptor to its end and hands out its lines as they arrive, without their LF. Of a line longer
// than 64 KiB only the beginning is kept.
class LineReader {
public:
    explicit LineReader(int descriptor);

    // `onLine` gets each line; `onPause` is called whenever all that has arrived is handed out. False when reading
    // fails.
    bool ReadAll(const std::function<void(std::string_view)>& onLine, const std::function<void()>& onPause);

private:
    void Take(std::string_view bytes, const std::function<void(std::string_view)>& onLine);

    int m_descriptor;
    std::string m_started; // A line whose end has not arrived.
};

} // namespace ruvenmark
