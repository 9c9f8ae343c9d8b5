#include "platform/paced_clock.h"

#include <algorithm>
#include <utility>

namespace quorrin {

namespace {

constexpr std::int64_t kStandstillMs = 2000;

class Depth {
  public:
    explicit Depth(int& depth) : depth_(depth) { ++depth_; }
    ~Depth() { --depth_; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;

  private:
    int& depth_;
};

}  // namespace

PacedClock::PacedClock(Clock& host) : host_(host), beganMs_(host.nowMs()) {}

void PacedClock::begin() {
    beganMs_ = host_.nowMs();
    lostMs_ = 0;
    wake_.reset();
    arm();
}

std::int64_t PacedClock::arrivalMs() const {
    // Outside events come before timers of their time, so one that comes after such a timer belongs behind
    // it.
    return std::max({passedMs(), nowMs_, queue_.latestInnerDueMs() + 1});
}

void PacedClock::wait(std::int64_t ms) {
    nowMs_ += ms;
    const std::int64_t ahead = nowMs_ - passedMs();
    if (ahead > 0) host_.block(ahead);
}

void PacedClock::collectOutside() {
    collecting_ = true;
    struct Done {
        bool& flag;
        ~Done() { flag = false; }
    } const done{collecting_};
    host_.yield();
}

void PacedClock::queueChanged() {
    arm();
}

void PacedClock::armNested() {
    arm();
    host_.armNested();
}

void PacedClock::arm() {
    const auto due = queue_.nextDue(true);
    if (!due) {
        wake_.reset();
        return;
    }
    if (wake_ && wakeMs_ == *due) return;
    wakeMs_ = *due;
    wake_ = std::make_unique<TimerMM>(host_, [this] { wake(); });
    wake_->setPeriodic(false);
    wake_->setInterval(1);
    wake_->startAt(beganMs_ + lostMs_ + *due);
}

void PacedClock::wake() {
    // Its handler runs: it must live on to the end, and a nested wake-up needs another one.
    const std::unique_ptr<TimerMM> running = std::move(wake_);
    if (collecting_) return;
    const auto due = queue_.nextDue(true);
    if (due && depth_ == 0) {
        const std::int64_t late = passedMs() - std::max(*due, nowMs_);
        if (late > kStandstillMs) lostMs_ += late;
    }
    deliver();
    arm();
}

void PacedClock::deliver() {
    // What becomes due meanwhile waits for the next wake-up, so that the host gets its turn.
    const std::int64_t limitMs = passedMs();
    const bool outermost = depth_ == 0;
    const Depth depth(depth_);
    const auto advance = [&](std::int64_t dueMs) {
        nowMs_ = std::max(nowMs_, dueMs);
        if (!outermost) return;
        outermostMs_ = dueMs;
        ++outermostNumber_;
    };
    while (queue_.deliverNext(limitMs, true, advance, [this] { return nowMs_; })) {
    }
}

}  // namespace quorrin
