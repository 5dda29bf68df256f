#pragma once

#include <cstddef>

namespace ruvenmark {

struct MainWindow;

// A long walk: the wait pointer and the progress bar from its beginning to its end, however it ends.
class ProgressWalk {
public:
    ProgressWalk(MainWindow& main, std::size_t count);
    ~ProgressWalk();
    ProgressWalk(const ProgressWalk&) = delete;
    ProgressWalk& operator=(const ProgressWalk&) = delete;

    void Step();

private:
    MainWindow& m_main;
    std::size_t m_count;
    std::size_t m_done = 0;
};

} // namespace ruvenmark
