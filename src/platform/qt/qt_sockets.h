// Socket arrays on the machine's TCP, watched by Qt's loop. Listeners take IPv4 on all interfaces.
//
// Qt's notifiers only announce; what has come is taken when its event is delivered by the clock. So a call is
// taken when the one before it is over, and the timers that are due come between the two.
//
// Where the machine has no descriptor left, the caller at the front is taken with a spare one and turned
// away, and the next is looked at kShedMs later: the listener neither dies nor spins.
//
// Bytes that a closed element still had to send go out for at most two seconds, without it.
//
// The clock must outlive it, and it its sockets. One thread: that of Qt's loop.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/host/tcp_calls.h"
#include "platform/sockets.h"

namespace quorrin {

class LingeringSocket;

class QtSockets : public Sockets {
  public:
    static constexpr int kShedMs = 100;

    explicit QtSockets(Clock& clock);
    ~QtSockets() override;

    std::unique_ptr<Socket> create(const std::string& array, int element) override;

    // Callers that were turned away for want of a descriptor.
    std::int64_t shed() const { return shed_; }

  private:
    friend class QtSocket;

    Clock& clock_;
    std::map<std::string, EventSource> sources_;
    std::map<std::int64_t, TcpCall> calls_;  // that nobody has taken yet, by request
    std::int64_t lastRequest_ = 0;
    std::int64_t shed_ = 0;
    FileHandle spare_;
    std::vector<std::unique_ptr<LingeringSocket>> lingering_;
};

}  // namespace quorrin
