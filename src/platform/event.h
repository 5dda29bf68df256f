#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace ruvenmark {

// Keeps an observer registered; dropping it ends the observation. It may outlive the event.
using Subscription = std::shared_ptr<void>;

// Something its owner raises and others observe. Raise and observe on one thread.
template <typename... Args>
class Event {
public:
    using Observer = std::function<void(Args...)>;

    Event() = default;
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    [[nodiscard]] Subscription Observe(Observer observer)
    {
        auto shared = std::make_shared<Observer>(std::move(observer));
        m_observers.push_back(shared);
        return shared;
    }

    // Observers may come and go while this runs; a new one is first told of the next event. The event itself must
    // outlive the call.
    void Raise(Args... args)
    {
        if (m_observers.empty())
            return;
        const Raising raising(*this);
        const std::size_t count = m_observers.size();
        for (std::size_t i = 0; i < count; ++i)
            if (const auto observer = m_observers[i].lock())
                (*observer)(args...);
    }

private:
    // Tidies up once the outermost Raise ends, however it ends.
    struct Raising {
        explicit Raising(Event& raised) : event(raised) { ++event.m_depth; }
        Raising(const Raising&) = delete;
        Raising& operator=(const Raising&) = delete;
        ~Raising()
        {
            if (--event.m_depth == 0)
                std::erase_if(event.m_observers, [](const auto& observer) { return observer.expired(); });
        }
        Event& event;
    };

    std::vector<std::weak_ptr<Observer>> m_observers;
    int m_depth = 0;
};

} // namespace ruvenmark
