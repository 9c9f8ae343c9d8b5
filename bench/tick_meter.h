// How late the control tick of a real session comes: the meter of paint_session and load_session.
//
// Milliseconds throughout. One thread.
#pragma once

#include <algorithm>
#include <cmath>
#include <ctime>
#include <nlohmann/json.hpp>
#include <vector>

#include "session/recorded_link.h"

namespace quorrin::bench {

inline double clockMs(clockid_t clock) {
    timespec now{};
    ::clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1000 + static_cast<double>(now.tv_nsec) / 1e6;
}

// The smallest of the values that no more than a share of 1 - `share` of them exceeds; 0 for none.
inline double percentile(std::vector<double> values, double share) {
    if (values.empty()) return 0;
    const auto rank = static_cast<std::size_t>(std::ceil(share * static_cast<double>(values.size())));
    const std::size_t place = std::min(std::max<std::size_t>(rank, 1), values.size()) - 1;
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(place), values.end());
    return values[place];
}

// The motion link, whose head each control tick moves: so it sees the ticks come.
class TickMeter : public RecordedLink {
  public:
    TickMeter(QuorrinSDK& inner, FlightRecorder& recorder, const PacedClock& time, const Clock& host)
        : RecordedLink(inner, LinkName::myRobot, recorder), time_(time), host_(host) {}

    bool measuring = false;
    std::vector<double> late;
    long heldUp = 0;  // ticks that fell due during an ordered block

    // The session's time 0 is now.
    void began() { beganMs_ = host_.nowMs(); }

    // "ticks", "ticks_held_up_by_blocks", "tick_late_ms": into an object of figures.
    void addFigures(nlohmann::ordered_json& figures) const {
        figures["ticks"] = late.size();
        figures["ticks_held_up_by_blocks"] = heldUp;
        figures["tick_late_ms"] = {
            {"p50", percentile(late, 0.5)}, {"p99", percentile(late, 0.99)}, {"worst", percentile(late, 1)}};
    }

    void MoveServosTimed(const SixValues& values, Integer ms) override {
        if (measuring) take();
        RecordedLink::MoveServosTimed(values, ms);
    }

  private:
    void take() {
        // Behind an ordered block the session's now is later than what is due.
        if (time_.deliveredMs() < time_.nowMs()) {
            ++heldUp;
            return;
        }
        const double passed = clockMs(CLOCK_MONOTONIC) - static_cast<double>(beganMs_ + time_.lostMs());
        late.push_back(passed - static_cast<double>(time_.deliveredMs()));
    }

    const PacedClock& time_;
    const Clock& host_;
    std::int64_t beganMs_ = 0;
};

}  // namespace quorrin::bench
