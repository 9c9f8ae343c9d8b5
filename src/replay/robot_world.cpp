#include "replay/robot_world.h"

#include "base/json_text.h"
#include "navigation/speed_p2p_vfh.h"

namespace quorrin {

namespace {

constexpr std::int64_t kLookMs = 100;
constexpr const char* kFindings[] = {"openfound", "totallyopen", "openwithnochange", "openwithchange",
                                     "stuck"};

double seconds(std::int64_t ms) {
    return static_cast<double>(ms) / 1000.0;
}

void appendMember(std::string& out, const char* key, double value) {
    out += ", \"";
    out += key;
    out += "\": ";
    appendDouble(out, value);
}

}  // namespace

RobotWorld::RobotWorld(Clock& clock, Files& files, const RobotSetup& setup)
    : clock_(clock),
      robot_(setup.site, setup.seed, setup.scenario),
      link_(clock, robot_, files),
      timer_(
          clock, [this] { look(); }, EventQueue::Kind::watch) {
    timer_.setInterval(kLookMs);
    for (const char* finding : kFindings) caStatusMs_[finding] = 0;
}

void RobotWorld::observe(const Station& station) {
    station_ = &station;
    lookedMs_ = clock_.nowMs();
    timer_.startAt(lookedMs_);
}

// What stood at the last look has stood until now.
void RobotWorld::look() {
    const std::int64_t passed = clock_.nowMs() - lookedMs_;
    lookedMs_ = clock_.nowMs();
    if (!caStatus_.empty()) caStatusMs_[caStatus_] += passed;
    if (inStuck_) inStuckMs_ += passed;
    if (station_ == nullptr) return;
    const speedP2PVFH* navigator = station_->navigator();
    caStatus_ = navigator == nullptr ? "" : navigator->CAStatus;
    inStuck_ = station_->values.inStuck;
}

std::string RobotWorld::report(double realSeconds) {
    look();
    const double virtualSeconds = seconds(clock_.nowMs());
    const double distance = robot_.body().distance_m();
    std::string out = "{\"distance\": ";
    appendDouble(out, distance);
    out += ", \"contacts\": ";
    appendWhole(out, robot_.body().contacts());
    out += ", \"caStatus\": {";
    bool first = true;
    for (const auto& [status, ms] : caStatusMs_) {
        if (!first) out += ", ";
        first = false;
        appendText(out, status);
        out += ": ";
        appendDouble(out, seconds(ms));
    }
    out += '}';
    appendMember(out, "inStuck", seconds(inStuckMs_));
    appendMember(out, "meanSpeed", virtualSeconds > 0 ? distance / virtualSeconds : 0);
    appendMember(out, "speedup", realSeconds > 0 ? virtualSeconds / realSeconds : 0);
    return out + "}\n";
}

}  // namespace quorrin
