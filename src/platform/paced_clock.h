// The time of one session: virtual time that keeps pace with a host's clock.
//
// Its now stands still while a handler runs (but for block()), and is the due time of what is delivered, as
// in virtual time; only when events come depends on the machine. So a session on it happens exactly as a
// replay of what came in: a timer that the machine delivers some milliseconds late does not know it.
//
// Time 0 is begin(). What happens outside gets the time that has passed since then, or, where a timer due
// then has been delivered already, the first millisecond after it. block() holds the host until its time has
// caught up with now. When the machine itself stands still for more than two seconds (a stopped process),
// that time is lost to the session instead of coming back as a burst of late timers.
//
// Events are delivered from the host's queue; a yield, and a nested loop of the host (see armNested), deliver
// nested. A handler's exception leaves through the host. One thread; the host must outlive this.
#pragma once

#include <cstdint>
#include <memory>

#include "platform/clock.h"
#include "platform/timer_mm.h"

namespace quorrin {

class PacedClock : public Clock {
  public:
    explicit PacedClock(Clock& host);
    ~PacedClock() override { queue_.clear(); }

    std::int64_t nowMs() const override { return nowMs_; }
    CivilTime wallTime() const override { return host_.wallTime(); }
    void armNested() override;

    // Time 0 is now. For once, before anything is due.
    void begin();

    // For whoever writes down what comes in. Time of the event whose delivery began last; time and number of
    // the outermost event under way, or of the last one.
    std::int64_t deliveredMs() const { return queue_.lastDueMs(); }
    std::int64_t outermostMs() const { return outermostMs_; }
    std::int64_t outermostNumber() const { return outermostNumber_; }
    // What the session has lost to standstills of the machine.
    std::int64_t lostMs() const { return lostMs_; }

  private:
    std::int64_t arrivalMs() const override;
    void wait(std::int64_t ms) override;
    void queueChanged() override;
    void collectOutside() override;

    std::int64_t passedMs() const { return host_.nowMs() - beganMs_ - lostMs_; }
    void arm();
    void wake();
    void deliver();

    Clock& host_;
    std::int64_t beganMs_;
    std::int64_t nowMs_ = 0;
    std::int64_t lostMs_ = 0;
    std::int64_t outermostMs_ = 0;
    std::int64_t outermostNumber_ = 0;
    int depth_ = 0;  // deliveries under way
    bool collecting_ = false;
    std::unique_ptr<TimerMM> wake_;  // a new one for each wake-up, so that a nested loop can have its own
    std::int64_t wakeMs_ = 0;        // what it is armed for
};

}  // namespace quorrin
