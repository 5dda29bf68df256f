#pragma once

#include "platform/waiting.h"

#include <QElapsedTimer>

namespace ruvenmark {

// Lets the user interface live during a long load, more than 20 times a second: a load that asks after each line does
// not pay for a repaint after each line.
class QtYield final : public IYield {
public:
    void ProcessPending() override;
    void Wait(std::chrono::milliseconds atMost) override;

private:
    QElapsedTimer m_sinceLast;
};

} // namespace ruvenmark
