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
    if (Attempt(main.abandoned, complaint, work, &reason))
        return true;
    Tell(main, std::string(complaint) + ": " + reason);
    return false;
}

} // namespace ruvenmark
