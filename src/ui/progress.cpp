#include "ui/progress.h"

#include "core/main_window.h"

namespace ruvenmark {

ProgressWalk::ProgressWalk(MainWindow& main, std::size_t count) : m_main(main), m_count(count)
{
    m_main.sbStatusBar.SetWaitPointer(true);
    m_main.sbStatusBar.ShowProgress();
    m_main.sbStatusBar.SetProgress(0);
}

ProgressWalk::~ProgressWalk()
{
    m_main.sbStatusBar.SetProgress(0);
    m_main.sbStatusBar.HideProgress();
    m_main.sbStatusBar.SetWaitPointer(false);
}

void ProgressWalk::Step()
{
    ++m_done;
    if (m_done <= m_count)
        m_main.sbStatusBar.SetProgress(static_cast<int>(m_done * 100 / m_count));
}

} // namespace ruvenmark
