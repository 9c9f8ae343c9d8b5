#include "platform/virtual/virtual_network.h"

#include <gtest/gtest.h>

#include "platform/virtual/virtual_clock.h"
#include "support/streams_contract.h"

namespace quorrin {
namespace {

struct VirtualStreamsFixture {
    VirtualClock time;
    VirtualNetwork network{time};
    Streams& streams() { return network; }
    Clock& clock() { return time; }
    static std::string address() { return "127.0.0.1"; }
    void settle() { time.runFor(100); }
    bool waitFor(const std::function<bool()>& condition) {
        settle();
        return condition();
    }
};

class VirtualNetworkFaults : public ::testing::Test {
  protected:
    void connect() {
        pair.listener = network.listenTcp("10.0.0.1", 10001, nullptr);
        pair.listener->onConnection = [this](auto stream) { pair.takeFar(std::move(stream)); };
        pair.connecting = network.connectTcp(
            "10.0.0.1", 10001, [this](auto stream, const std::string&) { pair.takeNear(std::move(stream)); });
    }
    void connectNow() {
        connect();
        clock.runFor(0);
        ASSERT_TRUE(pair.near && pair.far);
    }

    VirtualClock clock;
    VirtualNetwork network{clock};
    ConnectedPair pair;
    const std::string place = tcpPlace("10.0.0.1", 10001);
};

TEST_F(VirtualNetworkFaults, ADelayHoldsBackConnectionsAndBytesByItsLength) {
    network.setDelay(30);
    connect();
    clock.runUntil(29);
    EXPECT_FALSE(pair.near);
    clock.runUntil(30);
    ASSERT_TRUE(pair.near && pair.far);
    pair.near->send("a");
    clock.runUntil(59);
    EXPECT_EQ(pair.farHeard, "");
    clock.runUntil(60);
    EXPECT_EQ(pair.farHeard, "a");
}

TEST_F(VirtualNetworkFaults, AShorterDelayNeverReorders) {
    connectNow();
    network.setDelay(50);
    pair.near->send("first");
    network.setDelay(0);
    pair.near->send(" second");
    clock.runFor(49);
    EXPECT_EQ(pair.farHeard, "");
    clock.runFor(1);
    EXPECT_EQ(pair.farHeard, "first second");
}

TEST_F(VirtualNetworkFaults, AHungPlaceHoldsBytesUntilTheHangEnds) {
    connectNow();
    network.setHung(place, true);
    pair.near->send("held");
    clock.runFor(10'000);
    EXPECT_EQ(pair.farHeard, "");
    EXPECT_EQ(pair.near->pendingBytes(), 4U);
    network.setHung(place, false);
    clock.runFor(0);
    EXPECT_EQ(pair.farHeard, "held");
    EXPECT_EQ(pair.near->pendingBytes(), 0U);
}

TEST_F(VirtualNetworkFaults, AHungPlaceFillsTheSendBufferUpToItsBound) {
    connectNow();
    network.setHung(place, true);
    EXPECT_TRUE(pair.near->send(std::string(kSendBound, 'x')));
    EXPECT_FALSE(pair.near->send("x"));
}

TEST_F(VirtualNetworkFaults, ACutTellsBothEndsAndLosesWhatWasUnderWay) {
    connectNow();
    network.setDelay(20);
    pair.near->send("lost");
    network.cut(place);
    clock.runFor(100);
    EXPECT_EQ(pair.nearClosed, 1);
    EXPECT_EQ(pair.farClosed, 1);
    EXPECT_EQ(pair.farHeard, "");
    EXPECT_FALSE(pair.near->send("x"));
}

TEST_F(VirtualNetworkFaults, AnUnreachablePlaceNeverAnswersAConnect) {
    network.setUnreachable(place, true);
    connect();
    clock.runFor(60'000);
    EXPECT_FALSE(pair.near);
    EXPECT_EQ(network.attempts(place), 1);
}

INSTANTIATE_TYPED_TEST_SUITE_P(Virtual, StreamsContract, VirtualStreamsFixture);

}  // namespace
}  // namespace quorrin
