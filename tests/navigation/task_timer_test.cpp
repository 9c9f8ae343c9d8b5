#include "navigation/task_timer.h"

#include <gtest/gtest.h>

#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

TEST(TaskTimer, TakesAllFourSettings) {
    VirtualClock clock;
    const auto timer = makeTaskTimer(clock, {1300, 10, false, false}, [] {});
    EXPECT_EQ(timer->interval(), 1300);
    EXPECT_EQ(timer->resolution(), 10);
    EXPECT_FALSE(timer->periodic());
    EXPECT_FALSE(timer->enabled());
}

TEST(TaskTimer, BuiltEnabledItStartsItsPeriodAtOnce) {
    VirtualClock clock;
    clock.runUntil(30);
    int ticks = 0;
    const auto timer = makeTaskTimer(clock, {100, 10, true, true}, [&] { ++ticks; });
    clock.runUntil(129);
    EXPECT_EQ(ticks, 0);
    clock.runUntil(330);
    EXPECT_EQ(ticks, 3);
}

TEST(TaskTimer, ReleasingItSuppressesWhatWasPending) {
    VirtualClock clock;
    int ticks = 0;
    auto timer = makeTaskTimer(clock, {100, 10, true, true}, [&] { ++ticks; });
    releaseTaskTimer(timer);
    EXPECT_EQ(timer, nullptr);
    releaseTaskTimer(timer);
    clock.runUntil(1000);
    EXPECT_EQ(ticks, 0);
}

TEST(TaskTimer, MayBeReleasedFromItsOwnHandler) {
    VirtualClock clock;
    int ticks = 0;
    std::unique_ptr<TimerMM> timer;
    timer = makeTaskTimer(clock, {100, 10, true, true}, [&] {
        ++ticks;
        releaseTaskTimer(timer);
    });
    clock.runUntil(1000);
    EXPECT_EQ(ticks, 1);
}

}  // namespace
}  // namespace quorrin
