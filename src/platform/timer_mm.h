// A millisecond timer with enabled flag, interval, resolution and periodic flag.
//
// States: disabled, enabled with interval 0 (never fires), running. Enabling a disabled timer starts a period
// now and gives it its place in the order of timers; enabling an enabled one changes nothing. A new interval
// on an enabled timer restarts it from now. A one-shot timer is disabled before its handler runs. The handler
// is not entered again while it runs (see event_queue.h). Destroying the timer, also from inside its own
// handler, suppresses what was pending.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "platform/clock.h"

namespace quorrin {

class TimerMM {
  public:
    explicit TimerMM(Clock& clock, std::function<void()> handler = {},
                     EventQueue::Kind kind = EventQueue::Kind::timer);
    ~TimerMM();
    TimerMM(const TimerMM&) = delete;
    TimerMM& operator=(const TimerMM&) = delete;

    void setHandler(std::function<void()> handler);
    // See EventSource::setName.
    void setName(std::string name) { node_->source.setName(std::move(name)); }

    bool enabled() const { return node_->enabled; }
    void setEnabled(bool enabled);
    // Switches a disabled timer on with its first event due at `dueMs`, from where its grid goes on.
    void startAt(std::int64_t dueMs);
    std::int64_t interval() const { return node_->intervalMs; }
    void setInterval(std::int64_t intervalMs);
    bool periodic() const { return node_->periodic; }
    void setPeriodic(bool periodic) { node_->periodic = periodic; }
    // How exact the platform should try to be, in milliseconds; kept, and without effect on the grid.
    std::int64_t resolution() const { return resolutionMs_; }
    void setResolution(std::int64_t resolutionMs) { resolutionMs_ = resolutionMs; }

  private:
    Clock& clock_;
    std::shared_ptr<EventQueue::TimerNode> node_;
    std::int64_t resolutionMs_ = 0;
};

}  // namespace quorrin
