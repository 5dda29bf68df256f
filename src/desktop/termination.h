#pragma once

#include <QObject>

#include <functional>

class QSocketNotifier;

namespace ruvenmark {

// SIGTERM, SIGINT and SIGHUP as a call from the event loop, so that the program ends as if its window was closed. One
// at a time; a second signal ends the program at once.
class Termination final : public QObject {
public:
    explicit Termination(std::function<void()> end, QObject* parent = nullptr);
    ~Termination() override;

private:
    void Read();

    std::function<void()> m_end;
    QSocketNotifier* m_notifier = nullptr;
    int m_readEnd = -1;
};

} // namespace ruvenmark
