#include "app/line_reader.h"

#include <algorithm>
#include <cerrno>
#include <unistd.h>
#include <vector>

namespace ruvenmark {

namespace {

constexpr std::size_t kBufferSize = 1U << 18U;
constexpr std::size_t kMaxKept = 1U << 16U;

} // namespace

LineReader::LineReader(int descriptor) : m_descriptor(descriptor) {}

void LineReader::Take(std::string_view bytes, const std::function<void(std::string_view)>& onLine)
{
    while (!bytes.empty()) {
        const std::size_t end = bytes.find('\n');
        const std::string_view piece = bytes.substr(0, end);
        if (end != std::string_view::npos && m_started.empty()) {
            onLine(piece.substr(0, kMaxKept));
        } else {
            m_started.append(piece.substr(0, kMaxKept - std::min(kMaxKept, m_started.size())));
            if (end != std::string_view::npos) {
                onLine(m_started);
                m_started.clear();
            }
        }
        bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + 1);
    }
}

bool LineReader::ReadAll(const std::function<void(std::string_view)>& onLine, const std::function<void()>& onPause)
{
    std::vector<char> buffer(kBufferSize);
    while (true) {
        const ssize_t count = ::read(m_descriptor, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            if (!m_started.empty())
                onLine(m_started);
            onPause();
            return count == 0;
        }
        Take({buffer.data(), static_cast<std::size_t>(count)}, onLine);
        onPause();
    }
}

} // namespace ruvenmark
