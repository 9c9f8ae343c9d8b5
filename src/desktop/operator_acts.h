// The one door through which windows reach the station: what the operator does becomes an event of the
// session's clock, delivered in its order like everything else. Views never call a form's operator...()
// themselves.
#pragma once

#include <functional>
#include <utility>

#include "platform/clock.h"

namespace quorrin {

class OperatorActs {
  public:
    explicit OperatorActs(Clock& clock) : clock_(clock) {}
    void act(std::function<void()> deed) const { clock_.arrive(std::move(deed)); }

  private:
    Clock& clock_;
};

}  // namespace quorrin
