// What every clock must do; run on the virtual one and on the real one.
//
// A fixture type gives: Clock& clock(); bool runUntil(std::function<bool()>), which lets things happen until
// the condition holds (true) or a deadline has passed (false) and lets a handler's exception out.
//
// Nothing here depends on how exact a real machine is: times are checked from below, and orders by blocking
// until everything in question is overdue.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/program_error.h"
#include "platform/clock.h"
#include "platform/timer_mm.h"

namespace quorrin {

template <typename Fixture>
class ClockContract : public ::testing::Test {
  protected:
    Clock& clock() { return fixture.clock(); }
    bool runUntil(std::function<bool()> condition) { return fixture.runUntil(std::move(condition)); }
    // Lets at least that much time pass, with everything that happens in it.
    void runFor(std::int64_t ms) {
        // Its own event is behind all that was due before it, also when the machine stood still meanwhile.
        bool passed = false;
        TimerMM wake(clock(), [&] { passed = true; });
        wake.setInterval(ms);
        wake.setEnabled(true);
        ASSERT_TRUE(runUntil([&] { return passed; }));
    }
    // Runs `action` as the handler of an event, and returns when it has run.
    void inHandler(const std::function<void()>& action, EventSource* source = nullptr) {
        bool done = false;
        clock().arrive(
            [&] {
                action();
                done = true;
            },
            source);
        ASSERT_TRUE(runUntil([&] { return done; }));
    }
    std::function<void()> noting(const std::string& line) {
        return [this, line] { log.push_back(line); };
    }
    std::unique_ptr<TimerMM> timer(std::int64_t intervalMs, std::function<void()> handler) {
        auto result = std::make_unique<TimerMM>(clock(), std::move(handler));
        result->setInterval(intervalMs);
        result->setEnabled(true);
        return result;
    }

    Fixture fixture;
    std::vector<std::string> log;
    using Log = std::vector<std::string>;
};

TYPED_TEST_SUITE_P(ClockContract);

TYPED_TEST_P(ClockContract, MovesOnInABlockAndNeverGoesBackwards) {
    const std::int64_t before = this->clock().nowMs();
    this->clock().block(30);
    const std::int64_t after = this->clock().nowMs();
    EXPECT_GE(after, before + 30);
    this->clock().block(0);
    EXPECT_GE(this->clock().nowMs(), after);
}

TYPED_TEST_P(ClockContract, FiresATimerOnItsGridAndNotBefore) {
    const std::int64_t start = this->clock().nowMs();
    std::vector<std::int64_t> times;
    const auto timer = this->timer(20, [&] { times.push_back(this->clock().nowMs()); });
    ASSERT_TRUE(this->runUntil([&] { return times.size() == 3; }));
    for (std::size_t i = 0; i < times.size(); ++i)
        EXPECT_GE(times[i], start + 20 * static_cast<std::int64_t>(i + 1)) << i;
}

TYPED_TEST_P(ClockContract, DisablesAOneShotTimerBeforeItsHandlerRuns) {
    std::vector<bool> enabledInHandler;
    std::unique_ptr<TimerMM> timer;
    timer = this->timer(5, [&] { enabledInHandler.push_back(timer->enabled()); });
    timer->setPeriodic(false);
    this->runFor(40);
    EXPECT_EQ(enabledInHandler, (std::vector<bool>{false}));
    EXPECT_FALSE(timer->enabled());
}

TYPED_TEST_P(ClockContract, LetsAOneShotTimerEnableItselfAnew) {
    int fired = 0;
    std::unique_ptr<TimerMM> timer;
    timer = this->timer(5, [&] {
        if (++fired < 3) timer->setEnabled(true);
    });
    timer->setPeriodic(false);
    ASSERT_TRUE(this->runUntil([&] { return fired == 3; }));
    EXPECT_FALSE(timer->enabled());
}

TYPED_TEST_P(ClockContract, NeverFiresATimerWithoutAnInterval) {
    int fired = 0;
    const auto timer = this->timer(0, [&] { ++fired; });
    this->runFor(30);
    EXPECT_EQ(fired, 0);
    EXPECT_TRUE(timer->enabled());
    timer->setInterval(5);
    EXPECT_TRUE(this->runUntil([&] { return fired > 0; }));
}

TYPED_TEST_P(ClockContract, NeverFiresADisabledTimer) {
    int fired = 0;
    TimerMM timer(this->clock(), [&] { ++fired; });
    timer.setInterval(5);
    this->runFor(30);
    EXPECT_EQ(fired, 0);
    timer.setEnabled(true);
    timer.setEnabled(false);
    this->runFor(30);
    EXPECT_EQ(fired, 0);
}

TYPED_TEST_P(ClockContract, RestartsARunningTimerFromNowOnANewInterval) {
    const auto timer = this->timer(30, this->noting("timer"));
    const auto other = this->timer(40, this->noting("other"));
    this->clock().block(20);
    timer->setInterval(30);  // due at 50 and later, behind the other
    this->clock().block(60);
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() >= 2; }));
    EXPECT_EQ(this->log[0], "other");
    EXPECT_EQ(this->log[1], "timer");
}

TYPED_TEST_P(ClockContract, LeavesAnEnabledTimerAloneThatIsEnabledAgain) {
    const auto timer = this->timer(40, this->noting("timer"));
    this->clock().block(20);
    timer->setEnabled(true);
    const auto later = this->timer(30, this->noting("later"));
    this->clock().block(80);
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() >= 2; }));
    EXPECT_EQ(this->log[0], "timer");
}

TYPED_TEST_P(ClockContract, DeliversOverdueTimersByDueTime) {
    const auto slow = this->timer(30, this->noting("slow"));
    const auto quick = this->timer(10, this->noting("quick"));
    slow->setPeriodic(false);
    quick->setPeriodic(false);
    this->clock().block(50);
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() == 2; }));
    EXPECT_EQ(this->log, (std::vector<std::string>{"quick", "slow"}));
}

TYPED_TEST_P(ClockContract, DeliversNothingInABlockAndOneLateEventForAllMissedPeriods) {
    const std::int64_t start = this->clock().nowMs();
    int fired = 0;
    const auto timer = this->timer(10, [&] { ++fired; });
    this->clock().block(100);
    EXPECT_EQ(fired, 0);
    ASSERT_TRUE(this->runUntil([&] { return fired >= 3; }));
    // Ten periods were missed, of which one event was delivered.
    EXPECT_LE(fired, (this->clock().nowMs() - start) / 10 - 9 + 1);
}

TYPED_TEST_P(ClockContract, SuppressesATimerThatIsDestroyed) {
    auto timer = this->timer(10, this->noting("destroyed"));
    this->clock().block(20);  // it is overdue
    timer.reset();
    this->runFor(20);
    EXPECT_TRUE(this->log.empty());
}

TYPED_TEST_P(ClockContract, LetsATimerBeDestroyedInItsOwnHandler) {
    std::unique_ptr<TimerMM> timer;
    int fired = 0;
    timer = this->timer(5, [&] {
        timer.reset();
        ++fired;
    });
    this->runFor(40);
    EXPECT_EQ(fired, 1);
    EXPECT_FALSE(timer);
}

TYPED_TEST_P(ClockContract, LetsATimersHandlerSetAnotherHandler) {
    std::unique_ptr<TimerMM> timer;
    const std::string longText(100, 'x');  // lives in the handler: must outlast its replacement
    timer = this->timer(5, [this, &timer, longText] {
        timer->setHandler(this->noting("second"));
        this->log.push_back(longText);
    });
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() >= 2; }));
    EXPECT_EQ(this->log[0], longText);
    EXPECT_EQ(this->log[1], "second");
}

TYPED_TEST_P(ClockContract, LetsAHandlerSuppressATimerThatIsOverdue) {
    std::unique_ptr<TimerMM> second;
    const auto first = this->timer(5, [&] { second->setEnabled(false); });
    second = this->timer(10, this->noting("second"));
    this->clock().block(20);
    this->runFor(30);
    EXPECT_TRUE(this->log.empty());
}

TYPED_TEST_P(ClockContract, DeliversAMessageAfterTheHandlerThatPostedIt) {
    this->inHandler([this] {
        this->clock().post(this->noting("message"));
        this->log.push_back("handler ends");
    });
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() == 2; }));
    EXPECT_EQ(this->log, (std::vector<std::string>{"handler ends", "message"}));
}

TYPED_TEST_P(ClockContract, DeliversMessagesAndOutsideEventsInTheirOrders) {
    this->inHandler([this] {
        for (const char* name : {"m1", "m2", "m3"}) this->clock().post(this->noting(name));
    });
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() == 3; }));
    EXPECT_EQ(this->log, (std::vector<std::string>{"m1", "m2", "m3"}));
    this->log.clear();
    this->inHandler([this] {
        for (const char* name : {"o1", "o2", "o3"}) this->clock().arrive(this->noting(name));
    });
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() == 3; }));
    EXPECT_EQ(this->log, (std::vector<std::string>{"o1", "o2", "o3"}));
}

TYPED_TEST_P(ClockContract, DeliversInsideAYieldWhatIsDue) {
    const auto timer = this->timer(10, this->noting("timer"));
    timer->setPeriodic(false);
    const auto notYet = this->timer(3'600'000, this->noting("not yet"));
    this->inHandler([this] {
        this->clock().post(this->noting("message"));
        this->clock().arrive(this->noting("arrival"));
        this->clock().block(20);
        this->log.push_back("before");
        this->clock().yield();
        this->log.push_back("after");
    });
    ASSERT_EQ(this->log.size(), 5U);
    EXPECT_EQ(this->log.front(), "before");
    EXPECT_EQ(this->log.back(), "after");
    EXPECT_EQ(std::count(this->log.begin(), this->log.end(), "timer"), 1);
}

TYPED_TEST_P(ClockContract, DoesNotEnterARunningTimerFromAYield) {
    int depth = 0;
    int deepest = 0;
    int fired = 0;
    const auto timer = this->timer(5, [&] {
        deepest = std::max(deepest, ++depth);
        ++fired;
        this->clock().block(20);
        this->clock().yield();
        --depth;
    });
    ASSERT_TRUE(this->runUntil([&] { return fired >= 3; }));
    EXPECT_EQ(deepest, 1);
}

TYPED_TEST_P(ClockContract, LetsAnEventWaitWhoseSourceIsRunningAndHoldsBackTheOutsideBehindIt) {
    EventSource socket;
    this->inHandler(
        [&] {
            this->clock().arrive(this->noting("same socket"), &socket);
            this->clock().arrive(this->noting("behind it"));
            this->clock().post(this->noting("message"));
            this->clock().yield();
            this->log.push_back("handler ends");
        },
        &socket);
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() == 4; }));
    EXPECT_EQ(this->log, (std::vector<std::string>{"message", "handler ends", "same socket", "behind it"}));
}

TYPED_TEST_P(ClockContract, LetsAMessageWaitWhoseSourceIsRunningAndDeliversOthersBeforeIt) {
    EventSource window;
    this->inHandler(
        [&] {
            this->clock().post(this->noting("same window"), &window);
            this->clock().post(this->noting("other"));
            this->clock().yield();
            this->log.push_back("handler ends");
        },
        &window);
    ASSERT_TRUE(this->runUntil([&] { return this->log.size() == 3; }));
    EXPECT_EQ(this->log, (std::vector<std::string>{"other", "handler ends", "same window"}));
}

TYPED_TEST_P(ClockContract, DropsTheWaitingEventsOfASourceThatIsDestroyed) {
    auto socket = std::make_unique<EventSource>();
    this->inHandler(
        [&] {
            this->clock().arrive(this->noting("of the destroyed"), socket.get());
            this->clock().post(this->noting("of the destroyed"), socket.get());
            this->clock().arrive(this->noting("behind"));
            socket.reset();
        },
        socket.get());
    ASSERT_TRUE(this->runUntil([&] { return !this->log.empty(); }));
    this->runFor(10);
    EXPECT_EQ(this->log, (std::vector<std::string>{"behind"}));
}

TYPED_TEST_P(ClockContract, RunsTheHookBeforeEachBlockAndNotBeforeAYield) {
    std::vector<std::int64_t> times;
    this->clock().setBeforeBlock([&] { times.push_back(this->clock().nowMs()); });
    const std::int64_t start = this->clock().nowMs();
    this->clock().block(20);
    EXPECT_EQ(times.size(), 1U);
    EXPECT_LT(times.at(0), start + 20);
    this->clock().yield();
    EXPECT_EQ(times.size(), 1U);
    this->clock().block(5);
    EXPECT_EQ(times.size(), 2U);
    this->clock().setBeforeBlock({});
}

TYPED_TEST_P(ClockContract, LetsAHandlersExceptionOut) {
    this->clock().post([] { throw ProgramEnd{}; });
    EXPECT_THROW(this->runUntil([] { return false; }), ProgramEnd);
}

// The clock goes with the fixture, after this test.
TYPED_TEST_P(ClockContract, MayEndWhileEventsWaitThatOwnTimersAndPostAsTheyGo) {
    struct Owner {
        explicit Owner(Clock& ofAll) : clock(ofAll), timer(ofAll) { timer.setEnabled(true); }
        ~Owner() {
            clock.post([] {});
        }
        Clock& clock;
        TimerMM timer;
    };
    const auto waiting = [](const std::shared_ptr<Owner>&) {};
    Clock& clock = this->clock();
    clock.arrive([waiting, owner = std::make_shared<Owner>(clock)] { waiting(owner); });
    clock.post([waiting, owner = std::make_shared<Owner>(clock)] { waiting(owner); });
    SUCCEED();
}

REGISTER_TYPED_TEST_SUITE_P(
    ClockContract, MovesOnInABlockAndNeverGoesBackwards, FiresATimerOnItsGridAndNotBefore,
    DisablesAOneShotTimerBeforeItsHandlerRuns, LetsAOneShotTimerEnableItselfAnew,
    NeverFiresATimerWithoutAnInterval, NeverFiresADisabledTimer, RestartsARunningTimerFromNowOnANewInterval,
    LeavesAnEnabledTimerAloneThatIsEnabledAgain, DeliversOverdueTimersByDueTime,
    DeliversNothingInABlockAndOneLateEventForAllMissedPeriods, SuppressesATimerThatIsDestroyed,
    LetsATimerBeDestroyedInItsOwnHandler, LetsATimersHandlerSetAnotherHandler,
    LetsAHandlerSuppressATimerThatIsOverdue, DeliversAMessageAfterTheHandlerThatPostedIt,
    DeliversMessagesAndOutsideEventsInTheirOrders, DeliversInsideAYieldWhatIsDue,
    DoesNotEnterARunningTimerFromAYield, LetsAnEventWaitWhoseSourceIsRunningAndHoldsBackTheOutsideBehindIt,
    LetsAMessageWaitWhoseSourceIsRunningAndDeliversOthersBeforeIt,
    DropsTheWaitingEventsOfASourceThatIsDestroyed, RunsTheHookBeforeEachBlockAndNotBeforeAYield,
    LetsAHandlersExceptionOut, MayEndWhileEventsWaitThatOwnTimersAndPostAsTheyGo);

}  // namespace quorrin
