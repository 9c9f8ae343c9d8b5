#include "platform/virtual/virtual_clock.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/timer_mm.h"
#include "support/clock_contract.h"

namespace quorrin {
namespace {

struct VirtualClockFixture {
    Clock& clock() { return time; }
    bool runUntil(const std::function<bool()>& condition) {
        for (int ms = 0; ms < 10'000; ++ms) {
            time.runFor(0);
            if (condition()) return true;
            time.runFor(1);
        }
        return condition();
    }
    VirtualClock time;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Virtual, ClockContract, VirtualClockFixture);

using Times = std::vector<std::int64_t>;

class VirtualTime : public ::testing::Test {
  protected:
    Times& noteTimes(TimerMM& timer) {
        timer.setHandler([this] { times.push_back(clock.nowMs()); });
        return times;
    }
    VirtualClock clock{CivilTime{2026, 11, 20, 9, 0, 0}};
    Times times;
};

TEST_F(VirtualTime, JumpsFromDueTimeToDueTime) {
    TimerMM timer(clock);
    noteTimes(timer);
    timer.setInterval(100);
    timer.setEnabled(true);
    clock.runUntil(350);
    EXPECT_EQ(times, (Times{100, 200, 300}));
    EXPECT_EQ(clock.nowMs(), 350);
}

TEST_F(VirtualTime, DeliversWhatIsDueAtTheVeryEndOfARun) {
    TimerMM timer(clock);
    noteTimes(timer);
    timer.setInterval(100);
    timer.setEnabled(true);
    clock.runUntil(99);
    EXPECT_TRUE(times.empty());
    clock.runUntil(100);
    EXPECT_EQ(times, (Times{100}));
}

TEST_F(VirtualTime, KeepsAPeriodicTimersGridThroughABlock) {
    TimerMM timer(clock);
    noteTimes(timer);
    timer.setInterval(100);
    timer.setEnabled(true);
    clock.arriveAt(50, [this] { clock.block(500); });  // until 550
    clock.runUntil(800);
    EXPECT_EQ(times, (Times{550, 600, 700, 800}));
}

TEST_F(VirtualTime, SetsTheNextDueTimeBeforeTheHandlerRuns) {
    TimerMM timer(clock);
    timer.setInterval(100);
    timer.setEnabled(true);
    timer.setHandler([this] {
        times.push_back(clock.nowMs());
        clock.block(250);
    });
    clock.runUntil(1000);
    // Due at 100, 200, 400, 700 and 900: each is overdue when the handler before it ends.
    EXPECT_EQ(times, (Times{100, 350, 600, 850, 1100}));
}

TEST_F(VirtualTime, StartsAPeriodWhenATimerIsEnabled) {
    TimerMM timer(clock);
    noteTimes(timer);
    timer.setInterval(100);
    clock.runUntil(30);
    timer.setEnabled(true);
    clock.runUntil(140);
    EXPECT_EQ(times, (Times{130}));
}

TEST_F(VirtualTime, RestartsFromNowOnANewInterval) {
    TimerMM timer(clock);
    noteTimes(timer);
    timer.setInterval(100);
    timer.setEnabled(true);
    clock.runUntil(90);
    timer.setInterval(50);
    clock.runUntil(200);
    EXPECT_EQ(times, (Times{140, 190}));
}

TEST_F(VirtualTime, KnowsTheWallClock) {
    EXPECT_EQ(clock.wallTime(), (CivilTime{2026, 11, 20, 9, 0, 0}));
    clock.runUntil(59'999);
    EXPECT_EQ(clock.wallTime(), (CivilTime{2026, 11, 20, 9, 0, 59}));
    clock.runUntil(15 * 3600 * 1000);
    EXPECT_EQ(clock.wallTime(), (CivilTime{2026, 11, 21, 0, 0, 0}));
}

TEST_F(VirtualTime, RefusesToGoBackwards) {
    EXPECT_THROW(clock.block(-1), ProgramError);
    clock.runUntil(500);
    clock.runUntil(100);
    EXPECT_EQ(clock.nowMs(), 500);
}

TEST_F(VirtualTime, RefusesToBeRunFromInsideAHandler) {
    clock.post([this] { clock.runFor(10); });
    EXPECT_THROW(clock.runFor(0), ProgramError);
    clock.runFor(10);  // and can be run again afterwards
    EXPECT_EQ(clock.nowMs(), 10);
}

TEST_F(VirtualTime, GivesUpOnEventsWithoutProgressOfTime) {
    clock.setEventCap(1000);
    std::int64_t posts = 0;
    std::function<void()> again = [&] {
        ++posts;
        clock.post(again);
    };
    clock.post(again);
    EXPECT_THROW(clock.runFor(1), ProgramError);
    EXPECT_EQ(posts, 1000);
}

TEST_F(VirtualTime, GivesUpOnAnEndlessLoopInsideAYieldOrWithEmptyBlocks) {
    clock.setEventCap(1000);
    std::function<void()> again = [&] {
        clock.block(0);
        clock.post(again);
    };
    clock.post(again);
    EXPECT_THROW(clock.yield(), ProgramError);
    EXPECT_THROW(clock.runFor(1), ProgramError);
}

TEST_F(VirtualTime, GoesOnWhileTimeProgresses) {
    clock.setEventCap(10);
    TimerMM timer(clock);
    noteTimes(timer);
    timer.setInterval(1);
    timer.setEnabled(true);
    EXPECT_NO_THROW(clock.runFor(1000));
    EXPECT_EQ(times.size(), 1000U);
}

TEST_F(VirtualTime, DeliversAnOverdueEventAtOnceAndWithoutTurningBack) {
    clock.runUntil(500);
    clock.arriveAt(100, [this] { times.push_back(clock.nowMs()); });
    clock.runFor(0);
    EXPECT_EQ(times, (Times{500}));
}

}  // namespace
}  // namespace quorrin
