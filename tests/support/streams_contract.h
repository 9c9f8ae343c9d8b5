// What every implementation of the byte streams must do; run on the virtual and on the real ones.
//
// A fixture type gives: Streams& streams(); std::string address(); bool waitFor(std::function<bool()>), which
// lets things happen until the condition holds or a deadline has passed; void settle(), which lets happen
// what is under way; Clock& clock().
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/clock.h"
#include "platform/streams.h"

namespace quorrin {

// Both sides of one connection and what they heard.
struct ConnectedPair {
    std::unique_ptr<Listener> listener;
    std::unique_ptr<Connecting> connecting;
    std::unique_ptr<ByteStream> near;
    std::unique_ptr<ByteStream> far;
    std::string nearHeard;
    std::string farHeard;
    int nearClosed = 0;
    int farClosed = 0;

    void takeNear(std::unique_ptr<ByteStream> stream) {
        near = std::move(stream);
        if (!near) return;
        near->onBytes = [this](std::string_view bytes) { nearHeard += bytes; };
        near->onClosed = [this] { ++nearClosed; };
    }
    void takeFar(std::unique_ptr<ByteStream> stream) {
        far = std::move(stream);
        far->onBytes = [this](std::string_view bytes) { farHeard += bytes; };
        far->onClosed = [this] { ++farClosed; };
    }
};

template <typename Fixture>
class StreamsContract : public ::testing::Test {
  protected:
    void connect(bool local) {
        Streams& streams = fixture.streams();
        pair.listener = local ? streams.listenLocal("motcom") : streams.listenTcp(fixture.address(), 0);
        ASSERT_TRUE(pair.listener);
        pair.listener->onConnection = [this](auto stream) { pair.takeFar(std::move(stream)); };
        const auto connected = [this](auto stream, const std::string&) { pair.takeNear(std::move(stream)); };
        pair.connecting = local ? streams.connectLocal("motcom", connected)
                                : streams.connectTcp(fixture.address(), pair.listener->port(), connected);
        EXPECT_FALSE(pair.near) << "the handler came from inside the call";
        ASSERT_TRUE(fixture.waitFor([this] { return pair.near && pair.far; }));
    }

    Fixture fixture;
    ConnectedPair pair;
};

TYPED_TEST_SUITE_P(StreamsContract);

TYPED_TEST_P(StreamsContract, CarriesBytesBothWaysOverTcp) {
    this->connect(false);
    ASSERT_TRUE(this->pair.near->send("to far"));
    ASSERT_TRUE(this->pair.far->send("to near"));
    EXPECT_TRUE(this->fixture.waitFor(
        [&] { return this->pair.farHeard == "to far" && this->pair.nearHeard == "to near"; }));
}

TYPED_TEST_P(StreamsContract, CarriesBytesBothWaysByLocalName) {
    this->connect(true);
    EXPECT_EQ(this->pair.listener->port(), 0);
    ASSERT_TRUE(this->pair.near->send("to far"));
    ASSERT_TRUE(this->pair.far->send("to near"));
    EXPECT_TRUE(this->fixture.waitFor(
        [&] { return this->pair.farHeard == "to far" && this->pair.nearHeard == "to near"; }));
}

TYPED_TEST_P(StreamsContract, CarriesAMegabyteInOrder) {
    this->connect(false);
    std::string all;
    for (int i = 0; all.size() < 1'000'000; ++i) all += std::to_string(i) + ",";
    ASSERT_TRUE(this->pair.near->send(all));
    EXPECT_TRUE(this->fixture.waitFor([&] { return this->pair.farHeard.size() >= all.size(); }));
    EXPECT_EQ(this->pair.farHeard, all);
}

TYPED_TEST_P(StreamsContract, TellsOfAPeersCloseOnceAfterItsLastBytes) {
    this->connect(false);
    std::string whenClosed;
    this->pair.far->onClosed = [&] {
        ++this->pair.farClosed;
        whenClosed = this->pair.farHeard;
    };
    ASSERT_TRUE(this->pair.near->send("last words"));
    this->pair.near->close();
    EXPECT_FALSE(this->pair.near->isOpen());
    ASSERT_TRUE(this->fixture.waitFor([&] { return this->pair.farClosed > 0; }));
    this->fixture.settle();
    EXPECT_EQ(this->pair.farClosed, 1);
    EXPECT_EQ(whenClosed, "last words");
    EXPECT_FALSE(this->pair.far->isOpen());
    EXPECT_EQ(this->pair.nearClosed, 0) << "who closes is not told so";
}

TYPED_TEST_P(StreamsContract, ClosesWhenTheOwnerLetsGo) {
    this->connect(true);
    this->pair.near.reset();
    EXPECT_TRUE(this->fixture.waitFor([&] { return this->pair.farClosed == 1; }));
}

TYPED_TEST_P(StreamsContract, TakesNothingMoreOnceClosed) {
    this->connect(false);
    this->pair.near->close();
    EXPECT_FALSE(this->pair.near->send("too late"));
}

TYPED_TEST_P(StreamsContract, RefusesWhatWouldPassTheSendBound) {
    this->connect(false);
    EXPECT_FALSE(this->pair.near->send(std::string(kSendBound + 1, 'x')));
    EXPECT_TRUE(this->pair.near->send("small"));
    EXPECT_TRUE(this->fixture.waitFor([&] { return this->pair.farHeard == "small"; }));
}

TYPED_TEST_P(StreamsContract, FailsToConnectWhereNobodyListens) {
    bool called = false;
    std::string why;
    std::unique_ptr<Connecting> connecting =
        this->fixture.streams().connectLocal("nobody", [&](auto stream, const std::string& error) {
            called = true;
            why = error;
            EXPECT_FALSE(stream);
        });
    EXPECT_FALSE(called);
    ASSERT_TRUE(this->fixture.waitFor([&] { return called; }));
    EXPECT_NE(why, "");
}

TYPED_TEST_P(StreamsContract, CannotListenTwiceAtOnePlace) {
    const auto first = this->fixture.streams().listenTcp(this->fixture.address(), 0);
    ASSERT_TRUE(first);
    std::string error;
    EXPECT_FALSE(this->fixture.streams().listenTcp(this->fixture.address(), first->port(), &error));
    EXPECT_NE(error, "");
}

TYPED_TEST_P(StreamsContract, DeliversNothingToAStreamThatIsGone) {
    this->connect(false);
    ASSERT_TRUE(this->pair.near->send("for nobody"));
    this->pair.far.reset();
    this->fixture.settle();
    EXPECT_EQ(this->pair.farHeard, "");
}

TYPED_TEST_P(StreamsContract, LetsAStreamBeDestroyedInsideItsOwnHandler) {
    this->connect(false);
    this->pair.far->onBytes = [this](std::string_view bytes) {
        this->pair.farHeard += bytes;
        this->pair.far.reset();
    };
    ASSERT_TRUE(this->pair.near->send("goodbye"));
    EXPECT_TRUE(this->fixture.waitFor([&] { return this->pair.nearClosed == 1; }));
    EXPECT_EQ(this->pair.farHeard, "goodbye");
}

TYPED_TEST_P(StreamsContract, GivesUpAnAttemptWhoseHandleIsDestroyed) {
    const auto listener = this->fixture.streams().listenTcp(this->fixture.address(), 0);
    ASSERT_TRUE(listener);
    bool called = false;
    this->fixture.streams().connectTcp(this->fixture.address(), listener->port(),
                                       [&](auto, const std::string&) { called = true; });
    this->fixture.settle();
    EXPECT_FALSE(called);
}

TYPED_TEST_P(StreamsContract, DoesNotEnterARunningHandlerAgain) {
    this->connect(false);
    EventSource source;
    this->pair.far->source = &source;
    int depth = 0;
    int deepest = 0;
    this->pair.far->onBytes = [&](std::string_view bytes) {
        deepest = std::max(deepest, ++depth);
        this->pair.farHeard += bytes;
        this->pair.near->send(this->pair.farHeard.size() < 3 ? "x" : "");
        this->fixture.clock().yield();
        --depth;
    };
    ASSERT_TRUE(this->pair.near->send("x"));
    EXPECT_TRUE(this->fixture.waitFor([&] { return this->pair.farHeard == "xxx"; }));
    EXPECT_EQ(deepest, 1);
}

REGISTER_TYPED_TEST_SUITE_P(StreamsContract, CarriesBytesBothWaysOverTcp, CarriesBytesBothWaysByLocalName,
                            CarriesAMegabyteInOrder, TellsOfAPeersCloseOnceAfterItsLastBytes,
                            ClosesWhenTheOwnerLetsGo, TakesNothingMoreOnceClosed,
                            RefusesWhatWouldPassTheSendBound, FailsToConnectWhereNobodyListens,
                            CannotListenTwiceAtOnePlace, DeliversNothingToAStreamThatIsGone,
                            LetsAStreamBeDestroyedInsideItsOwnHandler, GivesUpAnAttemptWhoseHandleIsDestroyed,
                            DoesNotEnterARunningHandlerAgain);

}  // namespace quorrin
