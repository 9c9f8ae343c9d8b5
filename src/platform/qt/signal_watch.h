// SIGINT, SIGTERM and SIGHUP as an event of the clock: the handler comes in turn, like anything from outside.
//
// The signal only writes to a socket pair, which wakes Qt. One per process. Signals that come while the first
// one's handler has not run yet are one event. Needs a QCoreApplication; puts the old handlers back at its
// end.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform/clock.h"

namespace quorrin {

class SignalWatch {
  public:
    SignalWatch(Clock& clock, std::function<void()> handler);
    ~SignalWatch();
    SignalWatch(const SignalWatch&) = delete;
    SignalWatch& operator=(const SignalWatch&) = delete;

  private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace quorrin
