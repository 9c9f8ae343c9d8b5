// Outgoing calls on the machine's TCP, IPv4, watched by Qt's loop. Names are looked up without holding the
// loop; of several addresses the first counts.
//
// Qt's notifiers only announce; what has come is taken when its event is delivered by the clock.
//
// The clock must outlive it, and it its calls. One thread: that of Qt's loop.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/calls.h"
#include "platform/clock.h"

namespace quorrin {

class LingeringCall;

class QtCalls : public Calls {
  public:
    explicit QtCalls(Clock& clock);
    ~QtCalls() override;

    std::unique_ptr<Call> call(const std::string& host, int port) override;
    bool lingering() override;

  private:
    friend class QtCall;
    void forgetTheGone();

    Clock& clock_;
    std::vector<std::unique_ptr<LingeringCall>> lingering_;
};

}  // namespace quorrin
