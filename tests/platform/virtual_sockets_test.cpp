#include "platform/virtual/virtual_sockets.h"

#include <gmock/gmock.h>

#include "platform/virtual/virtual_clock.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct VirtualSocketsTest : testing::Test {
    VirtualSocketsTest() {
        sockets.onListen = [this](const std::string& array, int port) { tell("listen " + array, port); };
        sockets.onAccept = [this](const std::string& array, int element) {
            tell("accept " + array, element);
        };
        sockets.onShut = [this](const std::string& array, int element) { tell("shut " + array, element); };
        sockets.onSend = [this](const std::string& array, int element, std::string_view bytes) {
            tell("send " + array + " " + std::string(bytes), element);
        };
        listener->setLocalPort(7000);
        listener->onConnectionRequest = [this](std::int64_t request) {
            log.push_back("call from " + listener->remoteHostIP() + " " +
                          std::to_string(listener->remotePort()));
            if (answer) client->accept(request);
        };
        client->onDataArrival = [this] { log.push_back("data " + client->read(client->bytesReceived())); };
        for (Socket* socket : {listener.get(), client.get()}) {
            const std::string who = socket == client.get() ? "client" : "listener";
            socket->onClose = [this, who] { log.push_back(who + " closed"); };
            socket->onError = [this, who] { log.push_back(who + " failed"); };
        }
    }
    void tell(const std::string& what, int number) { log.push_back(what + " " + std::to_string(number)); }
    void connected() {
        listener->listen();
        sockets.connect("wsk", "10.0.0.5", 4711, "peer.example");
        log.clear();
    }

    VirtualClock clock;
    VirtualSockets sockets{clock};
    std::vector<std::string> log;
    bool answer = true;
    std::unique_ptr<Socket> listener = sockets.create("wsk", 0);
    std::unique_ptr<Socket> client = sockets.create("wsk", 1);
};

TEST_F(VirtualSocketsTest, ACallIsAcceptedOnAnElementThatKeepsWhoItWas) {
    listener->listen();
    EXPECT_EQ(listener->state(), SocketState::listening);
    sockets.connect("wsk", "10.0.0.5", 4711, "peer.example");
    EXPECT_THAT(log, ElementsAre("listen wsk 7000", "call from 10.0.0.5 4711", "accept wsk 1"));
    EXPECT_EQ(client->state(), SocketState::connected);
    sockets.hangUp("wsk", 1);
    client->close();
    EXPECT_EQ(client->remoteHost(), "peer.example");
    EXPECT_EQ(client->remoteHostIP(), "10.0.0.5");
    EXPECT_EQ(client->remotePort(), 4711);
    EXPECT_EQ(client->localPort(), 7000);
}

TEST_F(VirtualSocketsTest, NobodyCallsWhereNothingListens) {
    sockets.connect("wsk", "10.0.0.5", 4711);
    sockets.connect("other", "10.0.0.5", 4711);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(VirtualSocketsTest, AnOrderlyCloseIsTheCloseEventOnly) {
    connected();
    sockets.hangUp("wsk", 1);
    EXPECT_EQ(client->state(), SocketState::closing);
    client->close();
    client->close();
    EXPECT_THAT(log, ElementsAre("client closed", "shut wsk 1"));
}

TEST_F(VirtualSocketsTest, NothingHappensOnAnElementThatIsNotConnected) {
    listener->listen();
    log.clear();
    for (int element : {0, 1, 2, -1}) {
        sockets.receive("wsk", element, "a");
        sockets.hangUp("wsk", element);
        sockets.fail("wsk", element);
    }
    client->send("a");
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(VirtualSocketsTest, AListenOnATakenPortFailsASecondLater) {
    sockets.setPortTaken(7000, true);
    listener->listen();
    EXPECT_EQ(listener->listenError(), "port 7000 is in use");
    clock.runUntil(999);
    EXPECT_THAT(log, IsEmpty());
    clock.runUntil(1000);
    EXPECT_THAT(log, ElementsAre("listener failed"));
    sockets.setPortTaken(7000, false);
    listener->close();
    listener->listen();
    EXPECT_EQ(listener->state(), SocketState::listening);
    EXPECT_EQ(listener->listenError(), "");
}

TEST_F(VirtualSocketsTest, ASlowPeerIsGivenOneMebibyteAndThenFails) {
    connected();
    sockets.onSend = nullptr;
    sockets.setSlow("wsk", 1);
    for (int i = 0; i < 1024; ++i) client->send(std::string(1024, 'x'));
    clock.runFor(10);
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(sockets.held("wsk", 1), 1024U * 1024U);
    client->send("x");
    EXPECT_EQ(client->state(), SocketState::failed);
    EXPECT_THAT(log, IsEmpty());  // never from inside the send
    clock.runFor(0);
    EXPECT_THAT(log, ElementsAre("client failed"));
}

TEST_F(VirtualSocketsTest, AnElementMayBeDestroyedInItsOwnHandlers) {
    connected();
    client->onDataArrival = [this] { client.reset(); };
    sockets.receive("wsk", 1, "a");
    EXPECT_FALSE(sockets.exists("wsk", 1));
    client = sockets.create("wsk", 1);
    connected();
    client->onClose = [this] { client.reset(); };
    sockets.hangUp("wsk", 1);
    EXPECT_FALSE(sockets.exists("wsk", 1));
}

TEST_F(VirtualSocketsTest, AnEventOfAnArrayWaitsWhileAnotherOfItsElementsRuns) {
    listener->listen();
    listener->onConnectionRequest = [this](std::int64_t request) {
        clock.yield();
        log.push_back("request is over");
        client->accept(request);
    };
    const auto at = [this](std::int64_t ms, const std::string& array, std::function<void()> happens) {
        clock.arriveAt(ms, happens, &sockets.source(array));
    };
    at(10, "wsk", [this] { sockets.connect("wsk", "10.0.0.5", 1); });
    at(10, "wsk", [this] { sockets.connect("wsk", "10.0.0.6", 2); });
    clock.runUntil(20);
    EXPECT_THAT(log, ElementsAre("listen wsk 7000", "request is over", "accept wsk 1", "request is over"));
}

TEST_F(VirtualSocketsTest, CallsOfTwoArraysMayBeOpenAtOnce) {
    auto otherListener = sockets.create("other", 0);
    auto other = sockets.create("other", 1);
    otherListener->setLocalPort(7001);
    otherListener->onConnectionRequest = [&](std::int64_t request) { other->accept(request); };
    otherListener->listen();
    listener->listen();
    listener->onConnectionRequest = [&](std::int64_t request) {
        sockets.connect("other", "10.0.0.6", 2);
        client->accept(request);
    };
    sockets.connect("wsk", "10.0.0.5", 1);
    EXPECT_EQ(other->remoteHostIP(), "10.0.0.6");
    EXPECT_EQ(client->remoteHostIP(), "10.0.0.5");
}

TEST_F(VirtualSocketsTest, AListenerBreaksWithAnErrorEvent) {
    listener->listen();
    sockets.failListener("wsk");
    EXPECT_THAT(log, ElementsAre("listen wsk 7000", "listener failed"));
}

}  // namespace
}  // namespace quorrin
