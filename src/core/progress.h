#pragma once

#include <cstddef>

namespace ruvenmark {

class StatusBar;

// A long walk: the wait pointer and the progress bar from its beginning to its end, however it ends. What a load showed
// there before stands there again afterwards.
class ProgressWalk {
public:
    // The status bar outlives the walk.
    ProgressWalk(StatusBar& status, std::size_t count);
    ~ProgressWalk();
    ProgressWalk(const ProgressWalk&) = delete;
    ProgressWalk& operator=(const ProgressWalk&) = delete;

    void Step();

private:
    StatusBar& m_status;
    std::size_t m_count;
    std::size_t m_done = 0;
    int m_formerProgress;
    bool m_bFormerBar, m_bFormerWait;
};

} // namespace ruvenmark
