#include "core/notices.h"

#include "core/main_window.h"

#include <string>

namespace ruvenmark {

void Tell(MainWindow& main, std::string_view line)
{
    main.services.notices.Say(line);
    main.sbStatusBar.SetNotice(line);
}

bool AttemptAloud(MainWindow& main, std::string_view complaint, const std::function<void()>& work)
{
    std::string reason;
    const bool bWell = Attempt(main.abandoned, complaint, [&] {
        try {
            work();
        } catch (const Failure& failure) {
            reason = failure.what();
            throw;
        }
    });
    if (!bWell)
        Tell(main, std::string(complaint) + ": " + reason);
    return bWell;
}

} // namespace ruvenmark
