// Time that jumps: the clock of quorrin-replay and of the tests.
//
// runUntil(t) delivers everything due at or before t, jumping from due time to due time; a blocking wait
// inside a handler moves the clock on and delivers nothing. The clock refuses to go backwards or to be run
// from inside a handler, and gives up (all ProgramError) after `eventCap` deliveries without progress of
// time, which catches endless loops.
#pragma once

#include <cstdint>

#include "platform/clock.h"

namespace quorrin {

class VirtualClock : public Clock {
  public:
    explicit VirtualClock(const CivilTime& wallAtZero = {2026, 11, 20, 9, 0, 0});
    ~VirtualClock() override { queue_.clear(); }

    std::int64_t nowMs() const override { return nowMs_; }
    CivilTime wallTime() const override;

    // Delivers all that is due up to and including `untilMs`, then stands at `untilMs` or later.
    void runUntil(std::int64_t untilMs);
    void runFor(std::int64_t ms) { runUntil(nowMs_ + ms); }

    // Something the outside world will do at `dueMs` (which may be in the past: then it is overdue).
    void arriveAt(std::int64_t dueMs, EventQueue::Handler handler, EventSource* source = nullptr);

    void setEventCap(std::int64_t cap) { eventCap_ = cap; }

  private:
    void wait(std::int64_t ms) override;
    void delivering() override;
    void advanceTo(std::int64_t ms);

    CivilTime wallAtZero_;
    std::int64_t nowMs_ = 0;
    std::int64_t eventCap_ = 1'000'000;
    std::int64_t eventsAtThisTime_ = 0;
    bool running_ = false;
};

}  // namespace quorrin
