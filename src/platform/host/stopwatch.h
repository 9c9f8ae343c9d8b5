// Real time that has passed since it was made, in seconds: for telling how fast a program runs, never for
// what it does.
#pragma once

#include <ctime>

namespace quorrin {

class Stopwatch {
  public:
    Stopwatch() { ::clock_gettime(CLOCK_MONOTONIC, &start_); }
    double seconds() const {
        timespec now{};
        ::clock_gettime(CLOCK_MONOTONIC, &now);
        return static_cast<double>(now.tv_sec - start_.tv_sec) +
               static_cast<double>(now.tv_nsec - start_.tv_nsec) / 1e9;
    }

  private:
    timespec start_{};
};

}  // namespace quorrin
