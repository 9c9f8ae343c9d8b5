// A client's six connections to one station: made, kept, taken up again, and ended in order.
//
// The command connection comes first; the other five follow kSideDelayMs after it, since a station ignores
// them before it has answered the command connection, and end with it. The station never says whether it has
// answered: it may refuse by closing, at once or after its operator has thought about it, and a side
// connection that it did not take it closes. answered() is true once a report has come in.
//
// Each channel: off (not wanted, or lost without reconnecting), connecting (an attempt is given up after
// kConnectMs), connected (the machine at the other end has taken it), waiting (lost; the next attempt comes
// by itself). The waits are 1, 2, 4, 8 and then always 15 s; they begin anew after a report, and for a
// connection that has stood for kStoodMs. So a station whose operator refuses is asked at most four times a
// minute.
//
// "PING" goes out each kPingMs while it is wanted and the command connection stands. Nothing else is sent by
// itself: no command is ever repeated. The station drops a client that is silent for about 30 s.
//
// Owns its calls; clock and calls must outlive it. Everything runs on the one thread. Listeners are told
// after the state has changed, and may do anything but destroy the link. Errors: none are thrown; problem()
// tells why a channel is down.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "client/listeners.h"
#include "client/remote_channel.h"
#include "client/status_report.h"
#include "platform/calls.h"
#include "platform/timer_mm.h"

namespace quorrin {

enum class ChannelState { off, connecting, connected, waiting };

class RemoteLink {
  public:
    static constexpr std::int64_t kSideDelayMs = 250;
    static constexpr std::int64_t kConnectMs = 5000;
    static constexpr std::int64_t kPingMs = 3000;
    static constexpr std::int64_t kStoodMs = 5000;
    // A station that runs reports at least every 5.1 s; a link that is older than this is in doubt.
    static constexpr std::int64_t kLateMs = 7000;
    static constexpr std::array<std::int64_t, 5> kWaitsMs = {1000, 2000, 4000, 8000, 15000};

    RemoteLink(Clock& clock, Calls& calls, std::string host);
    RemoteLink(const RemoteLink&) = delete;
    RemoteLink& operator=(const RemoteLink&) = delete;

    const std::string& host() const { return host_; }

    // All six are wanted from now on. What is up stays up; what waits is tried at once.
    void start();
    // Closes all in order, the command connection last, and wants none.
    void stop();
    // That one is not wanted any more; with the command connection all go.
    void hangUp(RemoteChannel channel);
    // Whether what is lost is taken up again by itself; it is, unless switched off. Switching it off stops
    // what waits.
    void setReconnect(bool reconnect);
    bool started() const { return lane(RemoteChannel::command).wanted; }

    ChannelState state(RemoteChannel channel) const { return lane(channel).state; }
    bool connected(RemoteChannel channel) const { return state(channel) == ChannelState::connected; }
    bool allConnected() const;
    // Why the channel is down; "" while it is up, and where nothing went wrong.
    const std::string& problem(RemoteChannel channel) const { return lane(channel).problem; }
    // Time to the next attempt of a channel that waits.
    std::optional<std::int64_t> nextTryInMs(RemoteChannel channel) const;

    void setPinging(bool pinging);
    bool pinging() const { return pinging_; }

    // One command, framed. False, and nothing sent, unless the command connection stands.
    bool command(std::string_view payload);
    // Bytes as they are, on any channel; false unless it is connected.
    bool send(RemoteChannel channel, std::string_view bytes);

    // The kernel's, of the command connection.
    std::optional<double> roundTripMs() const;
    // Time since the last report of any connection; empty before the first.
    std::optional<std::int64_t> reportAgeMs() const;
    // The last report that could be read.
    const std::optional<StatusReport>& report() const { return report_; }
    // The station has reported since the command connection was made.
    bool answered() const { return answered_; }

    Listeners<RemoteChannel> onState;
    Listeners<const StatusReport&> onReport;
    // A read of the sensor channel whose reports cannot be told apart. It renews the link's age all the same.
    Listeners<const std::string&> onUnreadable;
    // Reads of the channels other than the sensor's.
    Listeners<RemoteChannel, std::string_view> onBytes;

  private:
    struct Lane {
        RemoteChannel channel = RemoteChannel::command;
        bool wanted = false;
        ChannelState state = ChannelState::off;
        std::string problem;
        std::unique_ptr<Call> call;
        std::unique_ptr<TimerMM> timer;  // the attempt's end, or the next attempt
        std::int64_t nextTryMs = 0;
        std::int64_t sinceMs = 0;  // connected
        std::size_t waits = 0;     // waits in a row
    };

    Lane& lane(RemoteChannel channel) { return lanes_[static_cast<std::size_t>(channel)]; }
    const Lane& lane(RemoteChannel channel) const { return lanes_[static_cast<std::size_t>(channel)]; }
    bool isSide(const Lane& one) const { return one.channel != RemoteChannel::command; }

    void dial(Lane& one);
    void dialIn(Lane& one, std::int64_t ms);
    void nowConnected(Lane& one);
    void lost(Lane& one, const std::string& why);
    void shut(Lane& one, const std::string& why);
    void shutSides(const std::string& why);
    void become(Lane& one, ChannelState state);
    void took(Lane& one, std::string_view bytes);
    void tookReports(std::string_view read);
    void ping();

    Clock& clock_;
    Calls& calls_;
    std::string host_;
    bool reconnect_ = true;
    bool pinging_ = true;
    bool answered_ = false;
    std::optional<StatusReport> report_;
    std::optional<std::int64_t> reportMs_;
    TimerMM pingTimer_;
    std::array<Lane, kRemoteChannels.size()> lanes_;
};

}  // namespace quorrin
