#include "client/remote_link.h"

#include <algorithm>
#include <utility>

#include "client/channel_frame.h"

namespace quorrin {

RemoteLink::RemoteLink(Clock& clock, Calls& calls, std::string host)
    : clock_(clock), calls_(calls), host_(std::move(host)), pingTimer_(clock, [this] { ping(); }) {
    pingTimer_.setInterval(kPingMs);
    for (const RemoteChannel channel : kRemoteChannels) {
        Lane& one = lane(channel);
        one.channel = channel;
        one.timer = std::make_unique<TimerMM>(clock_);
        one.timer->setPeriodic(false);
    }
}

void RemoteLink::start() {
    for (Lane& one : lanes_) one.wanted = true;
    const bool up = connected(RemoteChannel::command);
    for (Lane& one : lanes_) {
        if (isSide(one) && !up) continue;  // they follow the command connection
        if (one.state == ChannelState::off || one.state == ChannelState::waiting) dial(one);
    }
}

void RemoteLink::stop() {
    for (auto one = lanes_.rbegin(); one != lanes_.rend(); ++one) {
        one->wanted = false;
        shut(*one, "");
    }
}

void RemoteLink::hangUp(RemoteChannel channel) {
    if (channel == RemoteChannel::command) return stop();
    lane(channel).wanted = false;
    shut(lane(channel), "");
}

void RemoteLink::setReconnect(bool reconnect) {
    reconnect_ = reconnect;
    if (reconnect) return;
    for (Lane& one : lanes_) {
        if (one.state == ChannelState::waiting) shut(one, one.problem);
    }
}

bool RemoteLink::allConnected() const {
    return std::all_of(lanes_.begin(), lanes_.end(),
                       [](const Lane& one) { return one.state == ChannelState::connected; });
}

std::optional<std::int64_t> RemoteLink::nextTryInMs(RemoteChannel channel) const {
    const Lane& one = lane(channel);
    if (one.state != ChannelState::waiting) return std::nullopt;
    return std::max<std::int64_t>(one.nextTryMs - clock_.nowMs(), 0);
}

void RemoteLink::become(Lane& one, ChannelState state) {
    if (one.state == state) return;
    one.state = state;
    onState.tell(one.channel);
}

void RemoteLink::dial(Lane& one) {
    one.call = calls_.call(host_, portOf(one.channel));
    one.call->onConnected = [this, &one] { nowConnected(one); };
    one.call->onBytes = [this, &one](std::string_view bytes) { took(one, bytes); };
    one.call->onEnded = [this, &one] {
        const bool refusedOrGone = one.call->state() == CallState::ended;
        lost(one, refusedOrGone ? "the station closed the connection" : one.call->error());
    };
    one.timer->setEnabled(false);
    one.timer->setHandler(
        [this, &one] { lost(one, "no answer within " + std::to_string(kConnectMs / 1000) + " s"); });
    one.timer->setInterval(kConnectMs);
    one.timer->setEnabled(true);
    become(one, ChannelState::connecting);
}

void RemoteLink::dialIn(Lane& one, std::int64_t ms) {
    one.timer->setEnabled(false);
    one.timer->setHandler([this, &one] { dial(one); });
    one.timer->setInterval(ms);
    one.timer->setEnabled(true);
    one.nextTryMs = clock_.nowMs() + ms;
    become(one, ChannelState::waiting);
}

void RemoteLink::nowConnected(Lane& one) {
    one.timer->setEnabled(false);
    one.problem.clear();
    one.sinceMs = clock_.nowMs();
    if (!isSide(one)) answered_ = false;
    become(one, ChannelState::connected);
    // A listener may have ended it.
    if (isSide(one) || one.state != ChannelState::connected) return;
    pingTimer_.setEnabled(true);
    ping();
    for (Lane& side : lanes_) {
        if (isSide(side) && side.wanted) dialIn(side, kSideDelayMs);
    }
}

void RemoteLink::lost(Lane& one, const std::string& why) {
    const bool stood = one.state == ChannelState::connected && clock_.nowMs() - one.sinceMs >= kStoodMs;
    if (stood) one.waits = 0;
    if (!reconnect_) {
        one.wanted = false;
        shut(one, why);
    } else {
        one.call.reset();
        one.problem = why;
        if (!isSide(one)) pingTimer_.setEnabled(false);
        dialIn(one, kWaitsMs[std::min(one.waits++, kWaitsMs.size() - 1)]);
    }
    if (!isSide(one)) shutSides("the command connection is gone");
}

void RemoteLink::shutSides(const std::string& why) {
    for (Lane& side : lanes_) {
        if (isSide(side)) shut(side, why);
    }
}

void RemoteLink::shut(Lane& one, const std::string& why) {
    one.call.reset();
    one.timer->setEnabled(false);
    if (!isSide(one)) pingTimer_.setEnabled(false);
    one.problem = why;
    become(one, ChannelState::off);
}

void RemoteLink::took(Lane& one, std::string_view bytes) {
    if (one.channel == RemoteChannel::sensor) return tookReports(bytes);
    onBytes.tell(one.channel, bytes);
}

void RemoteLink::tookReports(std::string_view read) {
    reportMs_ = clock_.nowMs();
    answered_ = true;
    lane(RemoteChannel::command).waits = lane(RemoteChannel::sensor).waits = 0;
    const auto reports = reportsIn(read);
    if (!reports) return onUnreadable.tell(std::string(read));
    for (const StatusReport& report : *reports) {
        report_ = report;
        onReport.tell(report);
    }
}

void RemoteLink::setPinging(bool pinging) {
    if (pinging_ == pinging) return;
    pinging_ = pinging;
    ping();
}

void RemoteLink::ping() {
    if (pinging_) command("PING");
}

bool RemoteLink::command(std::string_view payload) {
    return send(RemoteChannel::command, commandUnit(payload));
}

bool RemoteLink::send(RemoteChannel channel, std::string_view bytes) {
    Lane& one = lane(channel);
    if (!one.call || one.call->state() != CallState::connected) return false;
    one.call->send(bytes);
    return true;
}

std::optional<double> RemoteLink::roundTripMs() const {
    const Lane& one = lane(RemoteChannel::command);
    return one.call ? one.call->roundTripMs() : std::nullopt;
}

std::optional<std::int64_t> RemoteLink::reportAgeMs() const {
    if (!reportMs_) return std::nullopt;
    return clock_.nowMs() - *reportMs_;
}

}  // namespace quorrin
