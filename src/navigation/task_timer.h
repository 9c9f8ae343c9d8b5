// How every navigation task builds its millisecond timer.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/timer_mm.h"

namespace quorrin {

struct TaskTimerSettings {
    std::int64_t intervalMs;
    std::int64_t resolutionMs;
    bool periodic;
    bool enabled;
    const char* name = "";  // of the handler, for a message that tells where something went wrong
};

// Interval first: an enabled timer would restart its period when given a new one.
std::unique_ptr<TimerMM> makeTaskTimer(Clock& clock, const TaskTimerSettings& settings,
                                       std::function<void()> handler);

// Disables and releases; nothing to do for a task that was never run.
void releaseTaskTimer(std::unique_ptr<TimerMM>& timer);

}  // namespace quorrin
