#include "platform/virtual/virtual_clock.h"

#include <utility>

#include "base/program_error.h"

namespace quorrin {

VirtualClock::VirtualClock(const CivilTime& wallAtZero) : wallAtZero_(wallAtZero) {}

CivilTime VirtualClock::wallTime() const {
    return plusSeconds(wallAtZero_, nowMs_ / 1000);
}

void VirtualClock::advanceTo(std::int64_t ms) {
    if (ms > nowMs_) {
        nowMs_ = ms;
        eventsAtThisTime_ = 0;
    }
    delivering();
}

void VirtualClock::delivering() {
    if (++eventsAtThisTime_ > eventCap_) throw ProgramError("virtual clock: events without progress of time");
}

void VirtualClock::runUntil(std::int64_t untilMs) {
    if (running_) throw ProgramError("virtual clock: run from inside a handler");
    struct Running {
        explicit Running(bool& flag) : flag_(flag) { flag_ = true; }
        ~Running() { flag_ = false; }
        bool& flag_;
    } const running(running_);
    const auto advance = [this](std::int64_t due) { advanceTo(due); };
    const auto now = [this] { return nowMs_; };
    while (queue_.deliverNext(untilMs, true, advance, now)) {
    }
    if (untilMs > nowMs_) nowMs_ = untilMs;
}

void VirtualClock::arriveAt(std::int64_t dueMs, EventQueue::Handler handler, EventSource* source) {
    queue_.addOutside(dueMs, source, std::move(handler));
}

void VirtualClock::wait(std::int64_t ms) {
    if (ms < 0) throw ProgramError("virtual clock: asked to go backwards");
    if (ms == 0) return;
    nowMs_ += ms;
    eventsAtThisTime_ = 0;
}

}  // namespace quorrin
