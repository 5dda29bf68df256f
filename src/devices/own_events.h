#pragma once

namespace ruvenmark {

// Whoever raises an event may be dropped inside it. A source holds one of these; around each run of its events it opens
// a Raising, and before every event, and before it touches itself again, it asks that whether it still stands. Runs
// nest where a sink calls the source inside an event.
class OwnEvents {
public:
    OwnEvents() = default;
    OwnEvents(const OwnEvents&) = delete;
    OwnEvents& operator=(const OwnEvents&) = delete;
    ~OwnEvents()
    {
        for (Raising* raising = m_innermost; raising != nullptr; raising = raising->m_outer)
            raising->m_bDropped = true;
    }

    class Raising {
    public:
        explicit Raising(OwnEvents& events) : m_events(events), m_outer(events.m_innermost)
        {
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push // A false alarm: what is dropped keeps no such pointer.
#pragma GCC diagnostic ignored "-Wdangling-pointer"
#endif
            events.m_innermost = this;
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif
        }
        Raising(const Raising&) = delete;
        Raising& operator=(const Raising&) = delete;
        ~Raising()
        {
            if (!m_bDropped)
                m_events.m_innermost = m_outer;
        }

        const bool& IsDropped() const
        {
            return m_bDropped;
        } // Changes while events run.

    private:
        friend class OwnEvents;

        OwnEvents& m_events; // Gone once it is dropped.
        Raising* m_outer;
        bool m_bDropped = false;
    };

private:
    Raising* m_innermost = nullptr;
};

} // namespace ruvenmark
