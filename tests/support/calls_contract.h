// What every kind of outgoing call must do; run on the virtual ones and on the real adapter, each calling the
// socket arrays of its own kind.
//
// A fixture type gives: Calls& calls(); Sockets& sockets(); std::string host(); bool
// runUntil(std::function<bool()>), which lets things happen until the condition holds (true) or a deadline
// has passed (false); and void settle(), after which all that was under way has happened.
#pragma once

#include <gmock/gmock.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/calls.h"
#include "platform/sockets.h"

namespace quorrin {

template <typename Fixture>
class CallsContract : public ::testing::Test {
  protected:
    static constexpr int kPort = 7070;
    static constexpr int kNobodysPort = 7071;

    CallsContract() {
        listener->setLocalPort(kPort);
        listener->onConnectionRequest = [this](std::int64_t request) {
            ++requests;
            if (answer) element->accept(request);
        };
        element->onDataArrival = [this] { heard += element->read(element->bytesReceived()); };
        element->onClose = [this] { stationLog.emplace_back("closed"); };
        element->onError = [this] { stationLog.emplace_back("failed"); };
    }
    void dial(int port = kPort) {
        call = fixture.calls().call(fixture.host(), port);
        call->onConnected = [this] { log.emplace_back("connected"); };
        call->onBytes = [this](std::string_view bytes) {
            got += bytes;
            if (log.empty() || log.back() != "bytes") log.emplace_back("bytes");
        };
        call->onEnded = [this] { log.emplace_back(call->state() == CallState::ended ? "ended" : "failed"); };
    }
    // Both ends stand, and the logs are empty.
    void connect() {
        listener->listen();
        dial();
        ASSERT_TRUE(until([this] {
            return call->state() == CallState::connected && element->state() == SocketState::connected;
        }));
        log.clear();
    }
    bool until(std::function<bool()> condition) { return fixture.runUntil(std::move(condition)); }

    Fixture fixture;
    std::vector<std::string> log;
    std::vector<std::string> stationLog;
    std::string heard;
    std::string got;
    bool answer = true;
    int requests = 0;
    std::unique_ptr<Socket> listener = fixture.sockets().create("wsk", 0);
    std::unique_ptr<Socket> element = fixture.sockets().create("wsk", 1);
    std::unique_ptr<Call> call;
};

TYPED_TEST_SUITE_P(CallsContract);

TYPED_TEST_P(CallsContract, ConnectsToAListenerAndSaysSoByAnEvent) {
    this->listener->listen();
    this->dial();
    EXPECT_EQ(this->call->state(), CallState::connecting);
    EXPECT_TRUE(this->log.empty());
    ASSERT_TRUE(this->until([this] { return !this->log.empty(); }));
    EXPECT_THAT(this->log, testing::ElementsAre("connected"));
    EXPECT_EQ(this->call->state(), CallState::connected);
    EXPECT_EQ(this->call->error(), "");
}

TYPED_TEST_P(CallsContract, FailsWithTheReasonWhereNobodyListens) {
    this->dial(this->kNobodysPort);
    ASSERT_TRUE(this->until([this] { return !this->log.empty(); }));
    EXPECT_THAT(this->log, testing::ElementsAre("failed"));
    EXPECT_EQ(this->call->state(), CallState::failed);
    EXPECT_EQ(this->call->error(), "Connection refused");
}

TYPED_TEST_P(CallsContract, CarriesBytesBothWaysInOrder) {
    this->connect();
    std::string sent;
    for (int i = 0; i < 20'000; ++i) sent += std::to_string(i);
    this->call->send(sent.substr(0, 5));
    this->call->send(sent.substr(5));
    this->element->send(sent);
    EXPECT_TRUE(
        this->until([&] { return this->heard.size() >= sent.size() && this->got.size() >= sent.size(); }));
    EXPECT_EQ(this->heard, sent);
    EXPECT_EQ(this->got, sent);
}

TYPED_TEST_P(CallsContract, EndsWhenTheOtherSideClosesAndAfterItsLastBytes) {
    this->connect();
    this->element->send("last words");
    this->element->close();
    ASSERT_TRUE(this->until([this] { return this->call->state() != CallState::connected; }));
    this->fixture.settle();
    EXPECT_EQ(this->got, "last words");
    EXPECT_THAT(this->log, testing::ElementsAre("bytes", "ended"));
}

TYPED_TEST_P(CallsContract, IsConnectedAndThenEndedWhereTheStationDoesNotTakeTheCall) {
    this->answer = false;
    this->listener->listen();
    this->dial();
    ASSERT_TRUE(this->until([this] { return this->log.size() == 2; }));
    EXPECT_THAT(this->log, testing::ElementsAre("connected", "ended"));
    EXPECT_EQ(this->requests, 1);
}

TYPED_TEST_P(CallsContract, ACloseIsSeenAsOneBehindTheLastBytesAndNothingComesBack) {
    this->connect();
    this->call->send("goodbye");
    this->call->close();
    EXPECT_EQ(this->call->state(), CallState::closed);
    ASSERT_TRUE(this->until([this] { return !this->stationLog.empty(); }));
    this->element->close();
    this->fixture.settle();
    EXPECT_EQ(this->heard, "goodbye");
    EXPECT_THAT(this->stationLog, testing::ElementsAre("closed"));
    EXPECT_TRUE(this->log.empty());
    EXPECT_FALSE(this->fixture.calls().lingering());
}

TYPED_TEST_P(CallsContract, ACloseIsACloseAndNoResetAlsoWhenBytesAreUnderWayToTheCall) {
    this->connect();
    this->element->send("0,0,0,1,JOY,0");
    this->fixture.settle();
    this->element->send("0,0,0,1,IDLE,0");
    this->call->close();
    this->element->send("0,0,0,1,JOY,0");
    ASSERT_TRUE(this->until([this] { return !this->stationLog.empty(); }));
    EXPECT_THAT(this->stationLog, testing::ElementsAre("closed"));
}

TYPED_TEST_P(CallsContract, MayBeDestroyedInEachOfItsHandlers) {
    this->listener->listen();
    this->dial();
    this->call->onConnected = [this] { this->call.reset(); };
    ASSERT_TRUE(this->until([this] { return !this->call; }));
    ASSERT_TRUE(this->until([this] { return !this->stationLog.empty(); }));
    this->element->close();

    this->connect();
    this->call->onBytes = [this](std::string_view) { this->call.reset(); };
    this->element->send("x");
    ASSERT_TRUE(this->until([this] { return !this->call; }));
    ASSERT_TRUE(this->until([this] { return this->stationLog.size() == 2; }));
    this->element->close();

    this->connect();
    this->call->onEnded = [this] { this->call.reset(); };
    this->element->close();
    EXPECT_TRUE(this->until([this] { return !this->call; }));
}

TYPED_TEST_P(CallsContract, GivenUpBeforeItIsConnectedNothingComes) {
    this->listener->listen();
    this->dial();
    this->call->close();
    this->fixture.settle();
    EXPECT_TRUE(this->log.empty());
    EXPECT_EQ(this->call->state(), CallState::closed);
}

TYPED_TEST_P(CallsContract, SendsNothingWhileItIsNotConnected) {
    this->listener->listen();
    this->dial();
    this->call->send("too early");
    ASSERT_TRUE(this->until([this] { return this->element->state() == SocketState::connected; }));
    this->call->send("now");
    this->fixture.settle();
    EXPECT_EQ(this->heard, "now");
    this->call->close();
    this->call->send("too late");
    this->fixture.settle();
    EXPECT_EQ(this->heard, "now");
}

TYPED_TEST_P(CallsContract, KnowsNoRoundTripBeforeItIsConnectedNorAfterItsEnd) {
    this->listener->listen();
    this->dial();
    EXPECT_FALSE(this->call->roundTripMs());
    ASSERT_TRUE(this->until([this] { return this->call->state() == CallState::connected; }));
    ASSERT_TRUE(this->call->roundTripMs());
    EXPECT_GT(*this->call->roundTripMs(), 0);
    EXPECT_LT(*this->call->roundTripMs(), 1000);
    this->call->close();
    EXPECT_FALSE(this->call->roundTripMs());
}

REGISTER_TYPED_TEST_SUITE_P(CallsContract, ConnectsToAListenerAndSaysSoByAnEvent,
                            FailsWithTheReasonWhereNobodyListens, CarriesBytesBothWaysInOrder,
                            EndsWhenTheOtherSideClosesAndAfterItsLastBytes,
                            IsConnectedAndThenEndedWhereTheStationDoesNotTakeTheCall,
                            ACloseIsSeenAsOneBehindTheLastBytesAndNothingComesBack,
                            ACloseIsACloseAndNoResetAlsoWhenBytesAreUnderWayToTheCall,
                            MayBeDestroyedInEachOfItsHandlers, GivenUpBeforeItIsConnectedNothingComes,
                            SendsNothingWhileItIsNotConnected,
                            KnowsNoRoundTripBeforeItIsConnectedNorAfterItsEnd);

}  // namespace quorrin
