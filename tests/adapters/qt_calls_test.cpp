// Outgoing calls on the machine's TCP: what all calls do, names, the kernel's round-trip time.
#include "platform/qt/qt_calls.h"

#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_sockets.h"
#include "support/calls_contract.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

using testing::ElementsAre;

struct RealWorld {
    Calls& calls() { return calls_; }
    Sockets& sockets() { return sockets_; }
    std::string host() { return "127.0.0.1"; }
    bool runUntil(const std::function<bool()>& condition) { return waitForReal(condition); }
    void settle() {
        const std::int64_t end = clock.nowMs() + 100;
        waitForReal([&] { return clock.nowMs() >= end; });
    }

    QtClock clock;
    QtSockets sockets_{clock};
    QtCalls calls_{clock};
};
INSTANTIATE_TYPED_TEST_SUITE_P(Real, CallsContract, RealWorld);

class QtCallsTest : public CallsContract<RealWorld> {
  protected:
    void dialHost(const std::string& host) {
        call = fixture.calls().call(host, kPort);
        call->onConnected = [this] { log.emplace_back("connected"); };
        call->onEnded = [this] { log.push_back("failed: " + call->error()); };
    }
};

TEST_F(QtCallsTest, FindsAHostByItsName) {
    listener->listen();
    dialHost("localhost");
    ASSERT_TRUE(until([this] { return !log.empty(); }));
    EXPECT_THAT(log, ElementsAre("connected"));
}

TEST_F(QtCallsTest, SaysThatAHostIsNotKnown) {
    dialHost("no-such-host.invalid");
    ASSERT_TRUE(until([this] { return !log.empty(); }));
    ASSERT_EQ(log.size(), 1U);
    EXPECT_EQ(log[0].rfind("failed: ", 0), 0U) << log[0];
    EXPECT_GT(log[0].size(), std::string("failed: ").size());
}

TEST_F(QtCallsTest, ALookUpThatIsGivenUpTellsNothing) {
    dialHost("localhost");
    call.reset();
    fixture.settle();
    EXPECT_TRUE(log.empty());
}

TEST_F(QtCallsTest, AStationThatDoesNotReadIsAFailureOnceTheBoundIsPassed) {
    connect();
    // Nobody asks the element for its bytes: it holds what it may, and the machines between hold the rest.
    element->onDataArrival = [] {};
    std::size_t sent = 0;
    while (call->state() == CallState::connected && sent < 64 * 1024 * 1024) {
        call->send(std::string(64 * 1024, 'x'));
        sent += 64 * 1024;
    }
    EXPECT_EQ(call->state(), CallState::failed);
    EXPECT_GE(sent, kCallSendBound);
    ASSERT_TRUE(until([this] { return !log.empty(); }));
    EXPECT_EQ(call->error(), "the other side does not read");
}

}  // namespace
}  // namespace quorrin
