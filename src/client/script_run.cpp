#include "client/script_run.h"

#include <utility>

#include "base/number_text.h"
#include "client/printable_text.h"

namespace quorrin {

namespace {

constexpr std::int64_t kLookMs = 20;

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

// Only what a reader of the output cares about.
bool worthTelling(ChannelState state, const std::string& problem) {
    return state != ChannelState::connecting && (state != ChannelState::waiting || !problem.empty());
}

std::string stateText(ChannelState state) {
    if (state == ChannelState::connected) return "connected ";
    return state == ChannelState::waiting ? "lost " : "off ";
}

}  // namespace

ScriptRun::ScriptRun(Clock& clock, Calls& calls, RemoteLink& link, RemoteScript script, Ends ends)
    : clock_(clock),
      calls_(calls),
      link_(link),
      script_(std::move(script)),
      ends_(std::move(ends)),
      sender_(clock, link, clock.nowMs()),
      timer_(clock),
      settle_(clock, [this] { standsNow(); }),
      close_(clock, [this] { awaitTheClose(); }) {
    timer_.setPeriodic(false);
    settle_.setPeriodic(false);
    settle_.setInterval(kSettleMs);
    close_.setInterval(kLookMs);
    link_.setReconnect(false);
    link_.onState.add([this](RemoteChannel channel) { linkChanged(channel); });
    link_.onReport.add([this](const StatusReport& report) {
        lastReport_ = printableBytes(report.text());
        tell("report " + lastReport_);
        keepForExpect(report.text());
    });
    link_.onUnreadable.add([this](const std::string& read) {
        tell("unreadable " + printableBytes(read));
        keepForExpect(read);
    });
}

void ScriptRun::start() {
    startMs_ = clock_.nowMs();
    goOn();
}

void ScriptRun::interrupt() {
    if (!over_) failed("interrupted");
}

void ScriptRun::tell(const std::string& what) {
    ends_.say(formatFixed(static_cast<double>(clock_.nowMs() - startMs_) / 1000, 3) + " " + what);
}

void ScriptRun::goOn() {
    clock_.post([this] { next(); });
}

void ScriptRun::next() {
    if (over_) return;
    if (at_ == script_.steps.size()) return finish(kMet);
    const RemoteStep& one = script_.steps[at_];
    tell("line " + std::to_string(one.line) + ": " + printableText(one.text));
    if (!carryOut(one) || over_) return;
    ++at_;
    goOn();
}

bool ScriptRun::carryOut(const RemoteStep& one) {
    return std::visit(
        Overloaded{[this](const step::Connect&) { return connect(); },
                   [this](const step::HangUp& what) { return hangUp(what); },
                   [this](const step::Drive& what) {
                       return sent(sender_.drive(what.fields), RemoteChannel::command);
                   },
                   [this](const step::Mode&) { return sent(sender_.mode(), RemoteChannel::command); },
                   [this](const step::Clos&) { return sent(sender_.clos(), RemoteChannel::command); },
                   [this](const step::Ping& what) {
                       link_.setPinging(what.on);
                       return true;
                   },
                   [this](const step::Wait& what) {
                       waitFor(what.ms, [this] {
                           ++at_;
                           next();
                       });
                       return false;
                   },
                   [this](const step::Expect& what) { return expect(what); },
                   [this](const step::Say& what) {
                       return sent(link_.send(RemoteChannel::tts, what.bytes), RemoteChannel::tts);
                   },
                   [this](const step::Quit&) {
                       finish(kMet);
                       return false;
                   }},
        one.what);
}

void ScriptRun::waitFor(std::int64_t ms, std::function<void()> then) {
    if (ms == 0) {
        // A timer of no length would never come.
        clock_.post([this, then = std::move(then)] {
            if (!over_) then();
        });
        return;
    }
    timer_.setEnabled(false);
    timer_.setHandler(std::move(then));
    timer_.setInterval(ms);
    timer_.setEnabled(true);
}

bool ScriptRun::connect() {
    connecting_ = true;
    reports_.clear();
    waitFor(kConnectBoundMs, [this] {
        for (const RemoteChannel channel : kRemoteChannels) {
            if (link_.connected(channel)) continue;
            const std::string& problem = link_.problem(channel);
            return failed("no " + std::string(nameOf(channel)) + " connection" +
                          (problem.empty() ? "" : ": " + problem));
        }
        failed("the connections do not stand");
    });
    link_.setReconnect(true);
    link_.start();
    settle_.setEnabled(link_.allConnected());
    return false;
}

void ScriptRun::standsNow() {
    if (!connecting_ || !link_.allConnected()) return;
    connecting_ = false;
    timer_.setEnabled(false);
    link_.setReconnect(false);
    ++at_;
    goOn();
}

bool ScriptRun::hangUp(const step::HangUp& what) {
    link_.hangUp(what.channel.value_or(RemoteChannel::command));
    return true;
}

bool ScriptRun::sent(bool done, RemoteChannel channel) {
    reports_.clear();
    if (!done) failed("nothing was sent: there is no " + std::string(nameOf(channel)) + " connection");
    return done;
}

bool ScriptRun::expect(const step::Expect& what) {
    expecting_ = &what;
    waitFor(what.withinMs, [this] {
        if (expecting_ == nullptr) return;
        expecting_ = nullptr;
        failed(lastReport_.empty() ? "no report came"
                                   : "no such report came; the last one was " + lastReport_);
    });
    seekReport();
    if (expecting_ != nullptr && !link_.connected(RemoteChannel::sensor)) {
        expecting_ = nullptr;
        failed("there is no sensor connection");
    }
    return false;
}

void ScriptRun::keepForExpect(const std::string& text) {
    if (reports_.size() == kKeptReports) reports_.pop_front();
    reports_.push_back(text.substr(0, kSearchedBytes));
    seekReport();
}

void ScriptRun::seekReport() {
    while (expecting_ != nullptr && !reports_.empty()) {
        const bool found = std::regex_search(reports_.front(), expecting_->expression);
        reports_.pop_front();
        if (!found) continue;
        expecting_ = nullptr;
        timer_.setEnabled(false);
        ++at_;
        goOn();
    }
}

void ScriptRun::linkChanged(RemoteChannel channel) {
    const ChannelState state = link_.state(channel);
    const std::string& problem = link_.problem(channel);
    if (worthTelling(state, problem))
        tell(stateText(state) + std::string(nameOf(channel)) + (problem.empty() ? "" : ": " + problem));
    if (over_) return;
    if (connecting_) {
        settle_.setEnabled(false);
        settle_.setEnabled(link_.allConnected());
    }
    if (expecting_ != nullptr && channel == RemoteChannel::sensor && state == ChannelState::off) {
        expecting_ = nullptr;
        // The listeners of this event are told first.
        clock_.post([this] { failed("the sensor connection is gone"); });
    }
}

void ScriptRun::failed(const std::string& why) {
    if (over_) return;
    std::string place;
    if (at_ < script_.steps.size()) {
        const RemoteStep& one = script_.steps[at_];
        place = "line " + std::to_string(one.line) + ": " + printableText(one.text) + ": ";
    }
    ends_.complain(place + why);
    finish(kNotMet);
}

void ScriptRun::finish(int status) {
    if (over_) return;
    over_ = true;
    status_ = status;
    timer_.setEnabled(false);
    settle_.setEnabled(false);
    if (!sender_.release() && sender_.holds())
        ends_.complain(
            "the robot was not let go, since there is no command connection: it may drive on until the "
            "station "
            "misses the pings");
    close_.setEnabled(true);
}

void ScriptRun::awaitTheClose() {
    if (sender_.releasing()) return;
    if (closeUntilMs_ == 0) {
        link_.stop();
        closeUntilMs_ = clock_.nowMs() + kCallLingerMs;
        return;
    }
    if (calls_.lingering() && clock_.nowMs() < closeUntilMs_) return;
    close_.setEnabled(false);
    ends_.ended(status_);
}

}  // namespace quorrin
