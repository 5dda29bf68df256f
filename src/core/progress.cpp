#include "core/progress.h"

#include "platform/status_bar.h"

namespace ruvenmark {

ProgressWalk::ProgressWalk(StatusBar& status, std::size_t count)
    : m_status(status), m_count(count), m_formerProgress(status.Progress()), m_bFormerBar(status.IsProgressVisible()),
      m_bFormerWait(status.IsWaitPointer())
{
    m_status.SetWaitPointer(true);
    m_status.ShowProgress();
}

ProgressWalk::~ProgressWalk()
{
    if (m_bFormerBar)
        m_status.SetProgress(m_formerProgress);
    else
        m_status.HideProgress();
    m_status.SetWaitPointer(m_bFormerWait);
}

void ProgressWalk::Step()
{
    ++m_done;
    if (m_done <= m_count)
        m_status.SetProgress(static_cast<int>(m_done * 100 / m_count));
}

} // namespace ruvenmark
