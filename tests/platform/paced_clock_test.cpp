#include "platform/paced_clock.h"

#include <gmock/gmock.h>

#include "platform/virtual/virtual_clock.h"
#include "support/clock_contract.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

struct PacedClockFixture {
    Clock& clock() { return paced; }
    bool runUntil(const std::function<bool()>& condition) {
        for (int ms = 0; ms < 10'000; ++ms) {
            host.runFor(0);
            if (condition()) return true;
            host.runFor(1);
        }
        return condition();
    }
    VirtualClock host;
    PacedClock paced{host};
};

INSTANTIATE_TYPED_TEST_SUITE_P(Paced, ClockContract, PacedClockFixture);

class PacedTime : public testing::Test {
  protected:
    // The machine is busy with something else for so long.
    void busy(std::int64_t atMs, std::int64_t forMs) {
        host.arriveAt(atMs, [this, forMs] { host.block(forMs); });
    }
    void noteTimes(TimerMM& timer, std::int64_t intervalMs) {
        timer.setHandler([this] { times.push_back(paced.nowMs()); });
        timer.setInterval(intervalMs);
        timer.setEnabled(true);
    }

    VirtualClock host;
    PacedClock paced{host};
    std::vector<std::int64_t> times;
};

TEST_F(PacedTime, ATimerThatTheMachineDeliversLateDoesNotKnowIt) {
    TimerMM timer(paced);
    noteTimes(timer, 50);
    busy(45, 30);
    busy(120, 95);
    host.runUntil(300);
    EXPECT_THAT(times, ElementsAre(50, 100, 150, 200, 250, 300));
}

TEST_F(PacedTime, BeginsAtZeroWhenItIsTold) {
    host.runUntil(5000);
    paced.begin();
    TimerMM timer(paced);
    noteTimes(timer, 100);
    host.runUntil(5250);
    EXPECT_THAT(times, ElementsAre(100, 200));
}

TEST_F(PacedTime, WhatHappensOutsideGetsTheTimeThatHasPassed) {
    std::int64_t at = -1;
    host.arriveAt(70, [&] { paced.arrive([&] { at = paced.deliveredMs(); }); });
    host.runUntil(100);
    EXPECT_EQ(at, 70);
}

TEST_F(PacedTime, WhatHappensOutsideAfterATimerOfTheSameMillisecondGetsTheNextOne) {
    TimerMM timer(paced);
    noteTimes(timer, 100);
    std::int64_t at = -1;
    host.runUntil(100);
    paced.arrive([&] { at = paced.deliveredMs(); });
    host.runUntil(102);
    EXPECT_EQ(at, 101);
}

TEST_F(PacedTime, ABlockHoldsTheHostUntilItHasCaughtUp) {
    std::int64_t hostAfter = 0;
    std::int64_t after = 0;
    TimerMM timer(paced);
    busy(90, 30);
    host.arriveAt(10, [&] {
        // Due at 100 in the session, delivered at 120 by the busy machine.
        timer.setPeriodic(false);
        timer.setHandler([&] {
            paced.block(200);
            after = paced.nowMs();
            hostAfter = host.nowMs();
        });
        timer.setInterval(1);
        timer.startAt(100);
    });
    host.runUntil(400);
    EXPECT_EQ(after, 300);
    EXPECT_EQ(hostAfter, 300);
}

TEST_F(PacedTime, AStandstillOfTheMachineIsLostToTheSession) {
    TimerMM timer(paced);
    noteTimes(timer, 100);
    busy(150, 60'000);
    host.runUntil(60'400);
    // Armed for 200, woken at 60,150: the session goes on as if it were 200.
    EXPECT_THAT(times, ElementsAre(100, 200, 300, 400));
    EXPECT_EQ(paced.lostMs(), 59'950);
}

TEST_F(PacedTime, ANestedLoopOfTheHostDeliversWhatFallsDueInIt) {
    TimerMM timer(paced);
    noteTimes(timer, 50);
    host.arriveAt(60, [&] {
        paced.arrive([&] {
            // A message box: the host's own loop runs inside the handler.
            paced.armNested();
            for (int i = 0; i < 100; ++i) {
                host.block(1);
                host.yield();
            }
            times.push_back(-paced.nowMs());
        });
    });
    host.runUntil(210);
    EXPECT_THAT(times, ElementsAre(50, 100, 150, -150, 200));
}

TEST_F(PacedTime, TellsTheOutermostEventOfANestedDelivery) {
    std::vector<std::int64_t> told;
    host.arriveAt(10, [&] {
        paced.arrive([&] {
            paced.block(100);
            paced.post([&] { told = {paced.outermostMs(), paced.deliveredMs()}; });
            paced.yield();
        });
    });
    host.runUntil(300);
    EXPECT_THAT(told, ElementsAre(10, 110));
}

}  // namespace
}  // namespace quorrin
