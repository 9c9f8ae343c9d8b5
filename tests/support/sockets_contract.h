// What every kind of socket arrays must do; run on the virtual ones and on the machine's.
//
// A fixture type gives: Sockets& sockets(); Clock& clock(); callers of the array "wsk", whose element 0
// listens on kSocketsPort: int call(), which begins a call and gives the caller's number, and for that caller
// void say(int, std::string), void hangUp(int), void reset(int), void stopReading(int), std::string
// heard(int) with all that it has got, bool ended(int) when its call was refused or its connection closed,
// std::string ip(int), int port(int); void holdPort(bool), by which somebody else has the port; std::size_t
// slack(), what the way to a caller holds besides; bool waitFor(condition), which lets things happen until it
// holds or a deadline has passed; and void settle(), which lets happen what is under way.
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/sockets.h"

namespace quorrin {

constexpr int kSocketsPort = 7060;
constexpr int kSocketElements = 32;

template <typename Fixture>
class SocketsContract : public ::testing::Test {
  protected:
    SocketsContract() : elements(kSocketElements + 1) {
        elements[0] = fixture.sockets().create("wsk", 0);
        listener().setLocalPort(kSocketsPort);
        listener().onConnectionRequest = [this](std::int64_t asked) {
            request = asked;
            log.emplace_back("call");
            if (answer > 0) make(answer).accept(asked);
        };
        listener().onError = [this] { log.emplace_back("listener failed"); };
    }
    Socket& listener() { return *elements[0]; }
    Socket& element(int index = 1) { return *elements[static_cast<std::size_t>(index)]; }
    Socket& make(int index) {
        auto& made = elements[static_cast<std::size_t>(index)];
        made.reset();  // there is one of each index at a time
        made = fixture.sockets().create("wsk", index);
        const std::string number = std::to_string(index);
        made->onDataArrival = [this, index, number] {
            read += element(index).read(element(index).bytesReceived());
            if (log.empty() || log.back() != "data " + number) log.push_back("data " + number);
        };
        made->onClose = [this, number] { log.push_back("closed " + number); };
        made->onError = [this, number] { log.push_back("failed " + number); };
        return *made;
    }
    void destroy(int index) { elements[static_cast<std::size_t>(index)].reset(); }
    bool isConnected(int index) {
        const auto& made = elements[static_cast<std::size_t>(index)];
        return made && made->state() == SocketState::connected;
    }
    // A caller on that element, and the log empty.
    int connected(int index = 1) {
        if (listener().state() == SocketState::closed) listener().listen();
        answer = index;
        const int caller = fixture.call();
        EXPECT_TRUE(waitFor([&] { return isConnected(index); }));
        log.clear();
        return caller;
    }
    template <typename Condition>
    bool waitFor(Condition condition) {
        return fixture.waitFor(condition);
    }
    bool logged(const std::string& event) {
        return waitFor([&] { return std::find(log.begin(), log.end(), event) != log.end(); });
    }

    Fixture fixture;
    std::vector<std::string> log;
    std::string read;
    int answer = 1;  // the element that takes the next call; 0: none
    std::int64_t request = 0;
    std::vector<std::unique_ptr<Socket>> elements;
};

TYPED_TEST_SUITE_P(SocketsContract);

TYPED_TEST_P(SocketsContract, ListensOnItsPort) {
    EXPECT_EQ(this->listener().state(), SocketState::closed);
    this->listener().listen();
    EXPECT_EQ(this->listener().state(), SocketState::listening);
    EXPECT_EQ(this->listener().localPort(), kSocketsPort);
    EXPECT_EQ(this->listener().listenError(), "");
}

TYPED_TEST_P(SocketsContract, AnAcceptedCallKeepsWhoItWasAfterItsEnd) {
    const int caller = this->connected();
    const std::string ip = this->fixture.ip(caller);
    const int port = this->fixture.port(caller);
    EXPECT_EQ(this->listener().remoteHostIP(), ip);
    EXPECT_EQ(this->listener().remotePort(), port);
    this->fixture.hangUp(caller);
    ASSERT_TRUE(this->logged("closed 1"));
    this->element().close();
    EXPECT_EQ(this->element().remoteHostIP(), ip);
    EXPECT_EQ(this->element().remotePort(), port);
    EXPECT_EQ(this->element().localPort(), kSocketsPort);
}

TYPED_TEST_P(SocketsContract, ACallThatNobodyAcceptsIsClosedAndTheNextOneIsHeard) {
    this->listener().listen();
    this->answer = 0;
    const int refused = this->fixture.call();
    ASSERT_TRUE(this->waitFor([&] { return this->fixture.ended(refused); }));
    EXPECT_THAT(this->log, testing::ElementsAre("call"));
    this->connected();
}

TYPED_TEST_P(SocketsContract, ARequestIsOverWithItsEvent) {
    this->listener().listen();
    this->answer = 0;
    const int refused = this->fixture.call();
    ASSERT_TRUE(this->waitFor([&] { return this->fixture.ended(refused); }));
    this->make(1).accept(this->request);
    EXPECT_EQ(this->element().state(), SocketState::closed);
}

TYPED_TEST_P(SocketsContract, ACallIsTakenByOneElementOnly) {
    this->connected();
    this->make(2).accept(this->request);
    EXPECT_EQ(this->element(2).state(), SocketState::closed);
}

TYPED_TEST_P(SocketsContract, BytesComeInOrderAndAheadOfTheClose) {
    const int caller = this->connected();
    std::string said;
    for (int i = 0; i < 20'000; ++i) said += std::to_string(i);
    this->fixture.say(caller, said);
    this->fixture.hangUp(caller);
    ASSERT_TRUE(this->logged("closed 1"));
    EXPECT_EQ(this->read, said);
    EXPECT_THAT(this->log, testing::ElementsAre("data 1", "closed 1"));
}

TYPED_TEST_P(SocketsContract, AReadGivesWhatIsAskedForAndTheRestWaits) {
    const int caller = this->connected();
    int events = 0;
    this->element().onDataArrival = [&] {
        ++events;
        if (events == 1) this->read += this->element().read(2);
    };
    this->fixture.say(caller, "abcd");
    ASSERT_TRUE(this->waitFor([&] { return events > 0; }));
    EXPECT_EQ(this->read, "ab");
    EXPECT_EQ(this->element().bytesReceived(), 2U);
    this->fixture.settle();
    EXPECT_EQ(events, 1) << "what was left is no new event";
    this->fixture.say(caller, "ef");
    ASSERT_TRUE(this->waitFor([&] { return events > 1; }));
    EXPECT_EQ(this->element().read(100), "cdef");
    EXPECT_EQ(this->element().bytesReceived(), 0U);
}

TYPED_TEST_P(SocketsContract, AnElementWithoutADataHandlerThrowsItsBytesAwayAndStillHearsTheEnd) {
    const int caller = this->connected();
    this->element().onDataArrival = nullptr;
    this->fixture.say(caller, std::string(300'000, 'x'));
    this->fixture.hangUp(caller);
    ASSERT_TRUE(this->logged("closed 1"));
    EXPECT_EQ(this->element().bytesReceived(), 0U);
}

TYPED_TEST_P(SocketsContract, SentBytesArriveInOrder) {
    const int caller = this->connected();
    std::string sent;
    for (int i = 0; i < 2000; ++i) {
        this->element().send(std::to_string(i));
        sent += std::to_string(i);
    }
    EXPECT_TRUE(this->waitFor([&] { return this->fixture.heard(caller).size() >= sent.size(); }));
    EXPECT_EQ(this->fixture.heard(caller), sent);
}

TYPED_TEST_P(SocketsContract, AnOrderlyCloseIsTheCloseEventOnly) {
    const int caller = this->connected();
    this->fixture.hangUp(caller);
    ASSERT_TRUE(this->logged("closed 1"));
    EXPECT_EQ(this->element().state(), SocketState::closing);
    this->fixture.settle();
    EXPECT_THAT(this->log, testing::ElementsAre("closed 1"));
}

TYPED_TEST_P(SocketsContract, AResetIsTheErrorEventOnly) {
    const int caller = this->connected();
    this->fixture.reset(caller);
    ASSERT_TRUE(this->logged("failed 1"));
    EXPECT_EQ(this->element().state(), SocketState::failed);
    this->fixture.settle();
    EXPECT_THAT(this->log, testing::ElementsAre("failed 1"));
}

TYPED_TEST_P(SocketsContract, AClosedElementTellsItsCaller) {
    const int caller = this->connected();
    this->element().send("last words");
    this->element().close();
    EXPECT_EQ(this->element().state(), SocketState::closed);
    EXPECT_TRUE(this->waitFor([&] { return this->fixture.ended(caller); }));
    EXPECT_EQ(this->fixture.heard(caller), "last words");
    EXPECT_THAT(this->log, testing::IsEmpty());
}

TYPED_TEST_P(SocketsContract, NothingOfAClosedElementIsToldAnyMore) {
    for (const bool hangUp : {true, false}) {
        const int caller = this->connected();
        this->fixture.say(caller, "bytes");
        if (hangUp) {
            this->fixture.hangUp(caller);
        } else {
            this->fixture.reset(caller);
        }
        this->element().close();
        this->fixture.settle();
        EXPECT_THAT(this->log, testing::IsEmpty());
        EXPECT_EQ(this->element().bytesReceived(), 0U);
    }
}

TYPED_TEST_P(SocketsContract, WhatWasUnderWayToAnElementThatAnotherHandlerClosesIsVoid) {
    const int caller = this->connected();
    const int other = this->connected(2);
    this->element(2).onDataArrival = [this, caller] {
        this->fixture.say(caller, "bytes");
        this->fixture.hangUp(caller);
        for (int i = 0; i < 20; ++i) {
            this->fixture.clock().block(1);
            this->fixture.clock().yield();
        }
        this->element().close();
        this->log.emplace_back("closes it");
    };
    this->fixture.say(other, "x");
    ASSERT_TRUE(this->logged("closes it"));
    this->fixture.settle();
    EXPECT_THAT(this->log, testing::ElementsAre("closes it"));
}

TYPED_TEST_P(SocketsContract, AnElementThatIsNotConnectedTakesNothing) {
    this->make(1);
    this->element().send("nobody");
    this->element().accept(1);
    this->element().close();
    EXPECT_EQ(this->element().state(), SocketState::closed);
    EXPECT_EQ(this->element().remoteHostIP(), "");
    EXPECT_EQ(this->element().remotePort(), 0);
    this->fixture.settle();
    EXPECT_THAT(this->log, testing::IsEmpty());
}

TYPED_TEST_P(SocketsContract, ACallerThatTakesNothingIsHeldTheBoundAndThenIsAnError) {
    const int caller = this->connected();
    this->fixture.stopReading(caller);
    std::size_t sent = 0;
    while (this->isConnected(1) && sent < 32 * kSocketSendBound) {
        this->element().send(std::string(4096, 'x'));
        sent += 4096;
    }
    EXPECT_GE(sent, kSocketSendBound);
    EXPECT_LE(sent, kSocketSendBound + 4096 + this->fixture.slack());
    EXPECT_EQ(this->element().state(), SocketState::failed);
    EXPECT_THAT(this->log, testing::IsEmpty()) << "never from inside the send";
    ASSERT_TRUE(this->logged("failed 1"));
    this->fixture.settle();
    EXPECT_THAT(this->log, testing::ElementsAre("failed 1"));
}

TYPED_TEST_P(SocketsContract, AnErrorUnderWayIsForgottenByACloseAndByADestruction) {
    for (const bool destroy : {false, true}) {
        const int caller = this->connected();
        this->fixture.stopReading(caller);
        for (int i = 0; i < 1000 && this->isConnected(1); ++i) this->element().send(std::string(65'536, 'x'));
        ASSERT_EQ(this->element().state(), SocketState::failed);
        if (destroy) {
            this->destroy(1);
        } else {
            this->element().close();
        }
        this->fixture.settle();
        EXPECT_THAT(this->log, testing::IsEmpty());
    }
}

TYPED_TEST_P(SocketsContract, AnElementMayBeDestroyedInItsDataHandler) {
    const int caller = this->connected();
    this->element().onDataArrival = [this] {
        this->log.emplace_back("data");
        this->destroy(1);
    };
    this->fixture.say(caller, "Quit");
    EXPECT_TRUE(this->waitFor([&] { return this->fixture.ended(caller); }));
    EXPECT_THAT(this->log, testing::ElementsAre("data"));
}

TYPED_TEST_P(SocketsContract, AResetInsideAHandlerIsToldAfterIt) {
    const int caller = this->connected();
    const int other = this->connected(2);
    this->element().onDataArrival = [this, caller, other] {
        this->log.emplace_back("begins");
        this->fixture.reset(caller);
        this->fixture.reset(other);
        this->element().send("too late");
        this->log.emplace_back("ends");
    };
    this->fixture.say(caller, "x");
    EXPECT_TRUE(this->logged("failed 1"));
    EXPECT_TRUE(this->logged("failed 2"));
    ASSERT_EQ(this->log.size(), 4U);
    EXPECT_EQ(this->log[0], "begins");
    EXPECT_EQ(this->log[1], "ends");
}

TYPED_TEST_P(SocketsContract, AResetInsideAnothersCloseOrErrorHandlerIsToldAfterIt) {
    for (const bool close : {true, false}) {
        const int caller = this->connected();
        const int other = this->connected(2);
        const auto handler = [this, other] {
            this->fixture.reset(other);
            this->log.emplace_back("handled");
        };
        this->element().onClose = handler;
        this->element().onError = handler;
        if (close) {
            this->fixture.hangUp(caller);
        } else {
            this->fixture.reset(caller);
        }
        EXPECT_TRUE(this->logged("failed 2"));
        EXPECT_THAT(this->log, testing::ElementsAre("handled", "failed 2"));
    }
}

TYPED_TEST_P(SocketsContract, AnElementMayBeDestroyedInItsCloseAndErrorHandlers) {
    int caller = this->connected();
    this->element().onClose = [this] {
        this->log.emplace_back("closed");
        this->destroy(1);
    };
    this->fixture.hangUp(caller);
    ASSERT_TRUE(this->logged("closed"));
    caller = this->connected();
    this->element().onError = [this] {
        this->log.emplace_back("failed");
        this->destroy(1);
    };
    this->fixture.reset(caller);
    ASSERT_TRUE(this->logged("failed"));
    this->connected();
}

TYPED_TEST_P(SocketsContract, AnElementThatIsClosedInItsDataHandlerIsNotToldOfTheEndBehind) {
    const int caller = this->connected();
    this->element().onDataArrival = [this] {
        this->log.emplace_back("data");
        this->element().close();
    };
    this->fixture.say(caller, "Quit");
    this->fixture.hangUp(caller);
    ASSERT_TRUE(this->logged("data"));
    this->fixture.settle();
    EXPECT_THAT(this->log, testing::ElementsAre("data"));
}

TYPED_TEST_P(SocketsContract, ACallWhileAllElementsAreTakenIsRefusedAndAFreedOneTakesTheNext) {
    std::vector<int> callers = {0};
    for (int i = 1; i <= kSocketElements; ++i) callers.push_back(this->connected(i));
    this->answer = 0;
    const int tooMany = this->fixture.call();
    EXPECT_TRUE(this->waitFor([&] { return this->fixture.ended(tooMany); }));
    for (int i = 1; i <= kSocketElements; ++i) EXPECT_TRUE(this->isConnected(i)) << i;
    this->destroy(17);
    EXPECT_TRUE(this->waitFor([&] { return this->fixture.ended(callers[17]); }));
    const int next = this->connected(17);
    this->fixture.say(next, "here");
    EXPECT_TRUE(this->logged("data 17"));
    this->fixture.say(callers[32], "still here");
    EXPECT_TRUE(this->logged("data 32"));
}

TYPED_TEST_P(SocketsContract, AClosedListenerTakesNobodyAndCanListenAgain) {
    const int before = this->connected();
    this->listener().close();
    const int nobody = this->fixture.call();
    EXPECT_TRUE(this->waitFor([&] { return this->fixture.ended(nobody); }));
    EXPECT_THAT(this->log, testing::IsEmpty());
    this->connected(2);
    this->fixture.say(before, "still here");
    EXPECT_TRUE(this->logged("data 1"));
}

TYPED_TEST_P(SocketsContract, APortThatAnotherHoldsFailsASecondLaterAndIsTakenOnceItIsFree) {
    this->fixture.holdPort(true);
    const std::int64_t begin = this->fixture.clock().nowMs();
    this->listener().listen();
    EXPECT_EQ(this->listener().listenError(), "port 7060 is in use");
    EXPECT_EQ(this->listener().state(), SocketState::failed);
    ASSERT_TRUE(this->logged("listener failed"));
    EXPECT_GE(this->fixture.clock().nowMs(), begin + kListenRetryMs);
    this->fixture.holdPort(false);
    this->listener().close();
    this->listener().listen();
    EXPECT_EQ(this->listener().state(), SocketState::listening);
    EXPECT_EQ(this->listener().listenError(), "");
    this->connected();
}

TYPED_TEST_P(SocketsContract, AClosedListenerForgetsThatItFailed) {
    this->fixture.holdPort(true);
    this->listener().listen();
    this->listener().close();
    const std::int64_t end = this->fixture.clock().nowMs() + kListenRetryMs + 200;
    this->waitFor([&] { return this->fixture.clock().nowMs() > end; });
    EXPECT_THAT(this->log, testing::IsEmpty());
    this->fixture.holdPort(false);
}

TYPED_TEST_P(SocketsContract, AnEventWaitsWhileAnotherOfTheArrayIsHandled) {
    const int first = this->connected(1);
    const int second = this->connected(2);
    for (const int index : {1, 2}) {
        this->element(index).onDataArrival = [this, index, first, second] {
            this->element(index).read(100);
            this->log.emplace_back("begins");
            this->fixture.say(index == 1 ? second : first, "more");
            const int third = this->log.size() < 6 ? this->fixture.call() : 0;
            EXPECT_GE(third, 0);
            for (int i = 0; i < 20; ++i) {
                this->fixture.clock().block(1);
                this->fixture.clock().yield();
            }
            this->log.emplace_back("ends");
        };
    }
    this->answer = 3;
    this->fixture.say(first, "one");
    ASSERT_TRUE(this->waitFor([&] { return this->log.size() >= 8; }));
    for (std::size_t i = 0; i + 1 < this->log.size(); ++i) {
        if (this->log[i] == "begins") {
            EXPECT_EQ(this->log[i + 1], "ends");
        }
    }
    this->element(1).onDataArrival = nullptr;
    this->element(2).onDataArrival = nullptr;
}

REGISTER_TYPED_TEST_SUITE_P(
    SocketsContract, ListensOnItsPort, AnAcceptedCallKeepsWhoItWasAfterItsEnd,
    ACallThatNobodyAcceptsIsClosedAndTheNextOneIsHeard, ARequestIsOverWithItsEvent,
    ACallIsTakenByOneElementOnly, BytesComeInOrderAndAheadOfTheClose, AReadGivesWhatIsAskedForAndTheRestWaits,
    AnElementWithoutADataHandlerThrowsItsBytesAwayAndStillHearsTheEnd, SentBytesArriveInOrder,
    AnOrderlyCloseIsTheCloseEventOnly, AResetIsTheErrorEventOnly, AClosedElementTellsItsCaller,
    NothingOfAClosedElementIsToldAnyMore, WhatWasUnderWayToAnElementThatAnotherHandlerClosesIsVoid,
    AnElementThatIsNotConnectedTakesNothing, ACallerThatTakesNothingIsHeldTheBoundAndThenIsAnError,
    AnErrorUnderWayIsForgottenByACloseAndByADestruction, AResetInsideAHandlerIsToldAfterIt,
    AResetInsideAnothersCloseOrErrorHandlerIsToldAfterIt, AnElementMayBeDestroyedInItsDataHandler,
    AnElementMayBeDestroyedInItsCloseAndErrorHandlers,
    AnElementThatIsClosedInItsDataHandlerIsNotToldOfTheEndBehind,
    ACallWhileAllElementsAreTakenIsRefusedAndAFreedOneTakesTheNext,
    AClosedListenerTakesNobodyAndCanListenAgain, APortThatAnotherHoldsFailsASecondLaterAndIsTakenOnceItIsFree,
    AClosedListenerForgetsThatItFailed, AnEventWaitsWhileAnotherOfTheArrayIsHandled);

}  // namespace quorrin
