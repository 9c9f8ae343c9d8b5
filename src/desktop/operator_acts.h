// The one door through which windows reach the station: what the operator does becomes an event of the
// session's clock, delivered in its order like everything else. Views never call a form's operator...()
// themselves.
//
// Copies are doors to the same clock and count together.
#pragma once

#include <functional>
#include <memory>
#include <utility>

#include "platform/clock.h"

namespace quorrin {

class OperatorActs {
  public:
    explicit OperatorActs(Clock& clock) : clock_(clock) {}
    void act(std::function<void()> deed) const {
        ++*underWay_;
        clock_.arrive([count = underWay_, deed = std::move(deed)] {
            --*count;
            deed();
        });
    }
    // How many deeds have not had their turn yet.
    int underWay() const { return *underWay_; }
    // The session's time, for whoever draws it.
    const Clock& clock() const { return clock_; }

  private:
    Clock& clock_;
    std::shared_ptr<int> underWay_ = std::make_shared<int>(0);
};

}  // namespace quorrin
