// Requests for pictures, answered one by one and no faster than a rate.
//
// A request is answered at once when the last picture is a period ago, otherwise when it is. Requests that
// come meanwhile are kept, eight at most; more count as none. A picture that cannot go yet, since the last
// one has not left, is tried again 20 ms later: nothing piles up before a slow reader. The clock must outlive
// it.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/timer_mm.h"

namespace quorrin {

class PictureRequests {
  public:
    // `rate` in pictures a second, above 0. `answer` is false when it could not send now.
    PictureRequests(Clock& clock, double rate, std::function<bool()> answer);

    void add();
    void forget();

  private:
    void wait(std::int64_t ms);
    void due();

    Clock& clock_;
    std::int64_t periodMs_;
    std::function<bool()> answer_;
    TimerMM timer_;
    std::int64_t nextMs_ = 0;
    int wanted_ = 0;
};

}  // namespace quorrin
