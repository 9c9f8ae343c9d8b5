// Outgoing calls in virtual time: what all calls do, and their faults.
#include "platform/virtual/virtual_calls.h"

#include "platform/virtual/virtual_clock.h"
#include "support/calls_contract.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct VirtualWorld {
    VirtualWorld() { calls_.setRoundTripMs(3.5); }
    Calls& calls() { return calls_; }
    Sockets& sockets() { return sockets_; }
    std::string host() { return "station"; }
    bool runUntil(const std::function<bool()>& condition) {
        for (int i = 0; i < 100 && !condition(); ++i) clock.runFor(10);
        return condition();
    }
    void settle() { clock.runFor(100); }

    VirtualClock clock;
    VirtualSockets sockets_{clock};
    VirtualCalls calls_{clock, sockets_};
};
INSTANTIATE_TYPED_TEST_SUITE_P(Virtual, CallsContract, VirtualWorld);

class VirtualCallsFaults : public CallsContract<VirtualWorld> {
  protected:
    VirtualCalls& calls() { return fixture.calls_; }
    void settle() { fixture.settle(); }
};

TEST_F(VirtualCallsFaults, TheStationSeesTheAddressAndPortsOfItsOwn) {
    calls().setAddress("10.0.0.7");
    connect();
    EXPECT_EQ(element->remoteHostIP(), "10.0.0.7");
    EXPECT_GT(element->remotePort(), 50000);
    EXPECT_EQ(element->localPort(), kPort);
    EXPECT_EQ(calls().tried(kPort), 1);
    EXPECT_EQ(calls().tried(kNobodysPort), 0);
}

TEST_F(VirtualCallsFaults, AStationOutOfReachNeitherTakesNorRefusesACall) {
    listener->listen();
    calls().setReachable(false);
    dial();
    settle();
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(call->state(), CallState::connecting);
}

TEST_F(VirtualCallsFaults, APulledCableHoldsWhatIsSentInBothDirections) {
    connect();
    calls().setPulled(true);
    call->send("a");
    call->send("b");
    element->send("x");
    settle();
    EXPECT_EQ(heard + got, "");
    calls().setPulled(false);
    settle();
    EXPECT_EQ(heard, "ab");
    EXPECT_EQ(got, "x");
}

TEST_F(VirtualCallsFaults, ABrokenConnectionIsAnErrorAtBothEnds) {
    connect();
    calls().breakAll();
    settle();
    EXPECT_THAT(log, ElementsAre("failed"));
    EXPECT_EQ(call->error(), "the connection broke");
    EXPECT_THAT(stationLog, ElementsAre("failed"));
}

TEST_F(VirtualCallsFaults, TwoPiecesThatWaitRunTogetherInOneRead) {
    connect();
    std::vector<std::string> reads;
    call->onBytes = [&](std::string_view bytes) { reads.emplace_back(bytes); };
    element->send("0,0,0,1,JOY,0");
    element->send("0,0,0,1,IDLE,0");
    settle();
    EXPECT_THAT(reads, ElementsAre("0,0,0,1,JOY,00,0,0,1,IDLE,0"));
}

TEST_F(VirtualCallsFaults, AnElementDestroyedInItsHandlerEndsTheCallAndWhatIsSentAfterwardsIsLost) {
    connect();
    element->onDataArrival = [this] { element.reset(); };
    call->send("Quit");
    call->send("more");
    settle();
    EXPECT_THAT(log, ElementsAre("ended"));
    EXPECT_FALSE(element);
}

TEST_F(VirtualCallsFaults, AStationThatNeverReadsIsAFailureOnceTheBoundIsPassed) {
    connect();
    calls().setPulled(true);
    call->send(std::string(kCallSendBound, 'x'));
    EXPECT_EQ(call->state(), CallState::connected);
    call->send("x");
    EXPECT_EQ(call->state(), CallState::failed);
    settle();
    EXPECT_THAT(log, ElementsAre("failed"));
    EXPECT_EQ(call->error(), "the other side does not read");
}

TEST(VirtualCallsEnd, WhatIsUnderWayWhenTheyGoComesToNothing) {
    VirtualClock clock;
    VirtualSockets sockets(clock);
    auto listener = sockets.create("wsk", 0);
    auto element = sockets.create("wsk", 1);
    int closed = 0;
    listener->setLocalPort(7070);
    listener->onConnectionRequest = [&](std::int64_t request) { element->accept(request); };
    element->onClose = [&] { ++closed; };
    listener->listen();
    {
        VirtualCalls calls(clock, sockets);
        const auto call = calls.call("station", 7070);
        clock.runFor(10);
        ASSERT_EQ(element->state(), SocketState::connected);
        call->send("x");
    }
    element->send("y");
    element.reset();
    clock.runFor(10);
    EXPECT_EQ(closed, 0);
}

}  // namespace
}  // namespace quorrin
