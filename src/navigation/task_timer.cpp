#include "navigation/task_timer.h"

#include <utility>

namespace quorrin {

std::unique_ptr<TimerMM> makeTaskTimer(Clock& clock, const TaskTimerSettings& settings,
                                       std::function<void()> handler) {
    auto timer = std::make_unique<TimerMM>(clock, std::move(handler));
    timer->setInterval(settings.intervalMs);
    timer->setResolution(settings.resolutionMs);
    timer->setPeriodic(settings.periodic);
    timer->setName(settings.name);
    timer->setEnabled(settings.enabled);
    return timer;
}

void releaseTaskTimer(std::unique_ptr<TimerMM>& timer) {
    if (!timer) return;
    timer->setEnabled(false);
    timer.reset();
}

}  // namespace quorrin
