#include "robot/picture_requests.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quorrin {

namespace {

constexpr int kMostWanted = 8;
constexpr std::int64_t kRetryMs = 20;
constexpr std::int64_t kSoonestMs = 1;  // a timer of 0 ms never fires

}  // namespace

PictureRequests::PictureRequests(Clock& clock, double rate, std::function<bool()> answer)
    : clock_(clock),
      periodMs_(static_cast<std::int64_t>(std::ceil(1000.0 / rate))),
      answer_(std::move(answer)),
      timer_(clock, [this] { due(); }) {
    timer_.setPeriodic(false);
}

void PictureRequests::add() {
    wanted_ = std::min(wanted_ + 1, kMostWanted);
    if (!timer_.enabled()) wait(nextMs_ - clock_.nowMs());
}

void PictureRequests::forget() {
    wanted_ = 0;
    timer_.setEnabled(false);
}

void PictureRequests::wait(std::int64_t ms) {
    timer_.setInterval(std::max(kSoonestMs, ms));
    timer_.setEnabled(true);
}

void PictureRequests::due() {
    if (wanted_ == 0) return;
    if (!answer_()) return wait(kRetryMs);
    nextMs_ = clock_.nowMs() + periodMs_;
    if (--wanted_ > 0) wait(periodMs_);
}

}  // namespace quorrin
