// The order in which things of one due time happen; what every clock shares is in the clock's contract.
#include "platform/event_queue.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include <string>
#include <vector>

#include "base/program_error.h"
#include "platform/timer_mm.h"
#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

using Log = std::vector<std::string>;

class EventOrder : public ::testing::Test {
  protected:
    std::function<void()> noting(const std::string& line) {
        return [this, line] { log.push_back(line); };
    }
    std::unique_ptr<TimerMM> timer(std::int64_t intervalMs, const std::string& name,
                                   EventQueue::Kind kind = EventQueue::Kind::timer) {
        auto result = std::make_unique<TimerMM>(clock, noting(name), kind);
        result->setInterval(intervalMs);
        return result;
    }
    VirtualClock clock;
    Log log;
};

TEST_F(EventOrder, IsOutsideThenMessagesThenTimersThenWatchesAtOneDueTime) {
    const auto watch = timer(100, "watch", EventQueue::Kind::watch);
    const auto tick = timer(100, "timer");
    watch->setEnabled(true);
    tick->setEnabled(true);
    clock.arriveAt(100, [this] {
        log.push_back("outside 1");
        clock.post(noting("message"));
    });
    clock.arriveAt(100, noting("outside 2"));
    clock.runUntil(100);
    EXPECT_EQ(log, (Log{"outside 1", "outside 2", "message", "timer", "watch"}));
}

TEST_F(EventOrder, PutsTheDueTimeBeforeTheKind) {
    const auto watch = timer(10, "watch", EventQueue::Kind::watch);
    const auto tick = timer(20, "timer");
    watch->setPeriodic(false);
    watch->setEnabled(true);
    tick->setEnabled(true);
    clock.arriveAt(30, noting("outside"));
    clock.block(35);
    clock.runUntil(39);
    EXPECT_EQ(log, (Log{"watch", "timer", "outside"}));
}

TEST_F(EventOrder, OfTimersIsThatInWhichTheyWereLastEnabled) {
    const auto a = timer(100, "a");
    const auto b = timer(100, "b");
    const auto c = timer(50, "c");
    b->setEnabled(true);
    c->setEnabled(true);
    a->setEnabled(true);
    clock.runUntil(100);
    EXPECT_EQ(log, (Log{"c", "b", "c", "a"}));
}

TEST_F(EventOrder, OfATimerIsLostByDisablingIt) {
    const auto a = timer(100, "a");
    const auto b = timer(100, "b");
    a->setEnabled(true);
    b->setEnabled(true);
    a->setEnabled(true);  // it is already
    clock.runUntil(100);
    EXPECT_EQ(log, (Log{"a", "b"}));
    log.clear();
    a->setEnabled(false);
    a->setEnabled(true);
    clock.runUntil(200);
    EXPECT_EQ(log, (Log{"b", "a"}));
}

TEST_F(EventOrder, OfATimerSurvivesANewInterval) {
    const auto a = timer(50, "a");
    const auto b = timer(100, "b");
    a->setEnabled(true);
    b->setEnabled(true);
    a->setInterval(100);
    clock.runUntil(100);
    EXPECT_EQ(log, (Log{"a", "b"}));
}

TEST_F(EventOrder, OfOutsideEventsIsByDueTimeThenByAnnouncement) {
    clock.arriveAt(50, noting("50"));
    clock.arriveAt(10, noting("10 a"));
    clock.arriveAt(30, noting("30"));
    clock.arriveAt(10, noting("10 b"));
    clock.runUntil(100);
    EXPECT_EQ(log, (Log{"10 a", "10 b", "30", "50"}));
}

TEST_F(EventOrder, LetsTheOutsideActNowBeforeWhatItWillDoLater) {
    clock.arriveAt(1000, noting("later"));
    clock.arriveAt(10, [this] { clock.arrive(noting("now")); });
    clock.runUntil(20);
    EXPECT_EQ(log, (Log{"now"}));
}

TEST_F(EventOrder, LeavesWatchesOutOfAYield) {
    const auto watch = timer(10, "watch", EventQueue::Kind::watch);
    const auto tick = timer(10, "timer");
    watch->setEnabled(true);
    tick->setEnabled(true);
    clock.arriveAt(5, [this] {
        clock.block(10);
        clock.yield();
        log.push_back("yielded");
    });
    clock.runUntil(15);
    EXPECT_EQ(log, (Log{"timer", "yielded", "watch"}));
}

TEST_F(EventOrder, HoldsInAYieldToo) {
    const auto late = timer(30, "late");
    const auto early = timer(20, "early");
    late->setEnabled(true);
    early->setEnabled(true);
    clock.arriveAt(10, [this] {
        clock.block(25);
        clock.post(noting("message"));
        clock.yield();
    });
    clock.arriveAt(10, noting("outside"));
    clock.runUntil(10);
    EXPECT_EQ(log, (Log{"outside", "early", "late", "message"}));
}

TEST_F(EventOrder, LetsAWaitingTimerGoOnAsSoonAsItsHandlerHasEnded) {
    int running = 0;
    const auto slow = std::make_unique<TimerMM>(clock, [&] {
        log.push_back("slow begins");
        EXPECT_EQ(++running, 1);
        clock.block(25);
        clock.yield();
        --running;
        log.push_back("slow ends");
    });
    slow->setInterval(10);
    slow->setEnabled(true);
    const auto other = timer(10, "other");
    other->setEnabled(true);
    clock.runUntil(10);
    EXPECT_EQ(log, (Log{"slow begins", "other", "slow ends"}));
    log.clear();
    clock.runUntil(35);  // its event due at 20 has waited
    EXPECT_EQ(log.front(), "slow begins");
}

TEST_F(EventOrder, EntersOtherEventsOfTheOutsideThatHaveNoSource) {
    clock.arriveAt(10, [this] {
        clock.arrive(noting("nested"));
        clock.yield();
        log.push_back("end");
    });
    clock.runUntil(10);
    EXPECT_EQ(log, (Log{"nested", "end"}));
}

TEST_F(EventOrder, MarksASourceAsRunningWhileItsHandlerRunsEvenIfThatFails) {
    EventSource source;
    bool seen = false;
    clock.arrive([&] { seen = source.running(); }, &source);
    EXPECT_FALSE(source.running());
    clock.runFor(0);
    EXPECT_TRUE(seen);
    EXPECT_FALSE(source.running());
    clock.arrive([] { throw ProgramError("broken"); }, &source);
    EXPECT_THROW(clock.runFor(0), ProgramError);
    EXPECT_FALSE(source.running());
}

TEST_F(EventOrder, DeliversAnEventOnceAlthoughItsHandlerFails) {
    int calls = 0;
    clock.arrive([&] {
        ++calls;
        throw ProgramError("broken");
    });
    EXPECT_THROW(clock.runFor(0), ProgramError);
    EXPECT_NO_THROW(clock.runFor(0));
    EXPECT_EQ(calls, 1);
}

TEST(EventQueueBlame, NamesTheInnermostHandlerThatAnExceptionCameOutOf) {
    VirtualClock clock;
    EventSource outer;
    outer.setName("outer");
    EventSource inner;
    inner.setName("inner");
    clock.arrive(
        [&] {
            clock.arrive([] { throw std::runtime_error("x"); }, &inner);
            clock.yield();
        },
        &outer);
    EXPECT_THROW(clock.runFor(0), std::runtime_error);
    EXPECT_EQ(clock.failedIn(), "inner");
    clock.arrive(
        [&] {
            clock.arrive([] {}, &inner);
            clock.yield();
            throw std::runtime_error("x");
        },
        &outer);
    EXPECT_THROW(clock.runFor(0), std::runtime_error);
    EXPECT_EQ(clock.failedIn(), "outer");
}

TEST(EventQueueBlame, NamesATimerByItsName) {
    VirtualClock clock;
    TimerMM timer(clock, [] { throw std::runtime_error("x"); });
    timer.setName("GPS EstTimer_Timer");
    timer.setInterval(50);
    timer.setEnabled(true);
    EXPECT_THROW(clock.runFor(50), std::runtime_error);
    EXPECT_EQ(clock.failedIn(), "GPS EstTimer_Timer");
}

}  // namespace
}  // namespace quorrin
