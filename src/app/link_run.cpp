#include "app/link_run.h"

#include "app/logic_timers.h"
#include "app/send_run.h"
#include "core/main_window.h"
#include "core/notices.h"
#include "desktop/termination.h"
#include "platform/headless.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

#include <array>
#include <cstddef>
#include <functional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace ruvenmark {

namespace {

// The panels that speak of links, printed as they change.
class PrintedPanels {
public:
    PrintedPanels(MainWindow& main, std::ostream& err)
        : m_main(main), m_notices(err), m_changed(main.sbStatusBar.Changed.Observe([this] { Print(); }))
    {
        for (std::size_t i = 0; i < kPanels.size(); ++i)
            m_shown[i] = m_main.sbStatusBar.PanelText(kPanels[i]);
    }

private:
    static constexpr std::array kPanels = {Panel::Tnc, Panel::Server, Panel::Gps};

    void Print()
    {
        for (std::size_t i = 0; i < kPanels.size(); ++i) {
            const std::string& text = m_main.sbStatusBar.PanelText(kPanels[i]);
            if (m_shown[i] == text)
                continue;
            m_shown[i] = text;
            if (!text.empty())
                m_notices.Say(text);
        }
    }

    MainWindow& m_main;
    PrintedNotices m_notices;
    std::array<std::string, kPanels.size()> m_shown;
    Subscription m_changed;
};

// Sends as soon as the links are ready, or when they have had their time, and calls `end` once all is written and had
// time to leave.
class SendTimer {
public:
    SendTimer(MainWindow& main, const ProgramOptions& options, SendRun& sends, std::function<void()> end)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, &main, &options, &sends, end = std::move(end)] {
            if (!sends.IsBegun() && (sends.IsReady(main) || m_ready.hasExpired()))
                sends.SendAll(main, options.send);
            if (!sends.IsDone(main))
                return;
            m_timer.stop();
            if (!options.seconds)
                QTimer::singleShot(kLeave, &m_timer, end);
        });
    }
    void Start() { m_timer.start(kLook); }

private:
    static constexpr std::chrono::milliseconds kLook{50}, kLeave{500};
    static constexpr std::chrono::seconds kReady{16}; // The longest connect has failed by then.

    QTimer m_timer;
    QDeadlineTimer m_ready{kReady};
};

} // namespace

bool RunLinks(MainWindow& main, const ProgramOptions& options, SendRun& sends, std::ostream& err)
{
    constexpr std::chrono::milliseconds kLook{100};
    QEventLoop loop;
    const auto end = [&loop] { loop.quit(); };
    const Termination termination(end);
    const PrintedPanels panels(main, err);
    const LogicTimers timers(main);

    std::vector<const LinkConnect*> waiting;
    for (const LinkOption& option : options.connect) {
        const LinkConnect& link = *waiting.emplace_back(&ConnectOf(option.link));
        AttemptAloud(main, "A link could not be connected", [&] { link.connect(main, option); });
    }
    // A link may be connected later than it is asked for.
    const auto look = [&] { std::erase_if(waiting, [&](const LinkConnect* link) { return link->isConnected(main); }); };
    QTimer looking;
    QObject::connect(&looking, &QTimer::timeout, &loop, look);
    looking.start(kLook);
    look();
    SendTimer sending(main, options, sends, end);
    if (!options.send.empty())
        sending.Start();
    if (options.seconds)
        QTimer::singleShot(std::chrono::seconds(*options.seconds), &loop, end);
    loop.exec();
    look();
    return (options.send.empty() || sends.End()) && waiting.empty();
}

} // namespace ruvenmark
