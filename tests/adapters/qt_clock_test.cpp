#include "platform/qt/qt_clock.h"

#include <gtest/gtest.h>

#include <csignal>

#include "base/program_error.h"
#include "platform/qt/signal_watch.h"
#include "platform/timer_mm.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

TEST(QtClock, DeliversATimerNotBeforeItsTimeAndSoonAfter) {
    QtClock clock;
    const std::int64_t start = clock.nowMs();
    std::int64_t firedMs = -1;
    TimerMM timer(clock, [&] { firedMs = clock.nowMs(); });
    timer.setPeriodic(false);
    timer.setInterval(50);
    timer.setEnabled(true);
    ASSERT_TRUE(waitForReal([&] { return firedMs >= 0; }));
    EXPECT_GE(firedMs - start, 50);
}

TEST(QtClock, DeliversNothingWhileItBlocksAndOneLateEventAfterwards) {
    QtClock clock;
    int fired = 0;
    TimerMM timer(clock, [&] { ++fired; });
    timer.setInterval(20);
    timer.setEnabled(true);
    const std::int64_t start = clock.nowMs();
    clock.block(110);
    EXPECT_GE(clock.nowMs() - start, 110);
    EXPECT_EQ(fired, 0);
    clock.yield();
    EXPECT_EQ(fired, 1);
}

TEST(QtClock, RunThrowsWhatAHandlerThrew) {
    QtClock clock;
    clock.post([] { throw ProgramError("value 40000 does not fit Integer"); });
    EXPECT_THROW(clock.run(), ProgramError);
}

TEST(QtClock, DeliversNothingMoreOnceAHandlerHasEndedTheProgram) {
    QtClock clock;
    bool later = false;
    clock.post([] { throw ProgramEnd{}; });
    clock.post([&] { later = true; });
    EXPECT_THROW(clock.run(), ProgramEnd);
    QCoreApplication::processEvents();
    EXPECT_FALSE(later);
    EXPECT_THROW(clock.rethrowIfEnded(), ProgramEnd);
}

TEST(QtClock, AYieldThrowsThroughTheHandlerThatYielded) {
    QtClock clock;
    bool passed = false;
    clock.post([&] {
        clock.post([] { throw ProgramEnd{}; });
        clock.yield();
        passed = true;
    });
    EXPECT_THROW(clock.run(), ProgramEnd);
    EXPECT_FALSE(passed);
}

TEST(QtClock, GoesOnInsideANestedLoopWithoutEnteringTheRunningHandlerAgain) {
    QtClock clock;
    int inner = 0;
    int outer = 0;
    TimerMM ticking(clock, [&] { ++inner; });
    ticking.setInterval(5);
    TimerMM opening(clock, [&] {
        ++outer;
        clock.armNested();
        EXPECT_TRUE(waitForReal([&] { return inner >= 3; }));
        EXPECT_EQ(outer, 1);
        opening.setEnabled(false);
    });
    opening.setInterval(5);
    ticking.setEnabled(true);
    opening.setEnabled(true);
    EXPECT_TRUE(waitForReal([&] { return outer == 1 && inner >= 3; }));
}

TEST(QtClock, KnowsTheLocalDate) {
    const QtClock clock;
    EXPECT_GE(clock.wallTime().year, 2024);
}

TEST(SignalWatch, TurnsASignalIntoAnEvent) {
    QtClock clock;
    int signals = 0;
    const SignalWatch watch(clock, [&] { ++signals; });
    ASSERT_EQ(::raise(SIGTERM), 0);
    EXPECT_EQ(signals, 0);
    EXPECT_TRUE(waitForReal([&] { return signals == 1; }));
    ASSERT_EQ(::raise(SIGINT), 0);
    EXPECT_TRUE(waitForReal([&] { return signals == 2; }));
}

}  // namespace
}  // namespace quorrin
