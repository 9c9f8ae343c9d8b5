// Socket arrays on the machine's TCP, called by plain sockets.
#include "platform/qt/qt_sockets.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <cerrno>
#include <ctime>
#include <utility>

#include "platform/qt/qt_clock.h"
#include "platform/timer_mm.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPort = 7060;

// A client as anybody may write one; nothing of the station's code but the
// handle.
class PlainClient {
  public:
    PlainClient() : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {}
    bool connect() {
        sockaddr_in place{};
        place.sin_family = AF_INET;
        place.sin_port = htons(kPort);
        place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        return ::connect(socket_.get(), reinterpret_cast<sockaddr*>(&place), sizeof place) == 0;
    }
    int port() const {
        sockaddr_in own{};
        socklen_t length = sizeof own;
        ::getsockname(socket_.get(), reinterpret_cast<sockaddr*>(&own), &length);
        return ntohs(own.sin_port);
    }
    void send(const std::string& bytes) const {
        ::send(socket_.get(), bytes.data(), bytes.size(), MSG_NOSIGNAL);
    }
    // What has come since the last call.
    std::string received() {
        collect();
        return std::exchange(waiting_, {});
    }
    // The station has closed.
    bool ended() {
        collect();
        return ended_;
    }
    void hangUp() { socket_.closeNow(); }
    void endSending() const { ::shutdown(socket_.get(), SHUT_WR); }
    void reset() {
        const linger atOnce{1, 0};
        ::setsockopt(socket_.get(), SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
        socket_.closeNow();
    }

  private:
    void collect() {
        char bytes[65536];
        for (;;) {
            const ssize_t got = ::recv(socket_.get(), bytes, sizeof bytes, MSG_DONTWAIT);
            if (got <= 0) {
                ended_ = ended_ || got == 0 || errno == ECONNRESET;
                return;
            }
            waiting_.append(bytes, static_cast<std::size_t>(got));
        }
    }

    FileHandle socket_;
    std::string waiting_;
    bool ended_ = false;
};

struct QtSocketsTest : testing::Test {
    QtSocketsTest() {
        listener->setLocalPort(kPort);
        listener->onConnectionRequest = [this](std::int64_t request) {
            log.emplace_back("call");
            if (answer) element->accept(request);
        };
        listener->onError = [this] { log.emplace_back("listener failed"); };
        bind();
    }
    void bind() {
        element->onDataArrival = [this] {
            heard += element->read(element->bytesReceived());
            if (log.empty() || log.back() != "data") log.emplace_back("data");
        };
        element->onClose = [this] { log.emplace_back("closed"); };
        element->onError = [this] { log.emplace_back("failed"); };
    }
    void connected() {
        listener->listen();
        ASSERT_TRUE(client.connect());
        ASSERT_TRUE(waitForReal([&] { return element->state() == SocketState::connected; }));
        log.clear();
    }
    void settle(int ms = 100) {
        const std::int64_t end = time.nowMs() + ms;
        waitForReal([&] { return time.nowMs() >= end; });
    }

    QtClock time;
    QtSockets sockets{time};
    std::vector<std::string> log;
    std::string heard;
    bool answer = true;
    std::unique_ptr<Socket> listener = sockets.create("wsk", 0);
    std::unique_ptr<Socket> element = sockets.create("wsk", 1);
    PlainClient client;
};

TEST_F(QtSocketsTest, AnAcceptedCallKeepsWhoItWas) {
    connected();
    const int port = client.port();
    client.hangUp();
    ASSERT_TRUE(waitForReal([&] { return !log.empty(); }));
    EXPECT_THAT(log, ElementsAre("closed"));
    EXPECT_EQ(element->state(), SocketState::closing);
    element->close();
    EXPECT_EQ(element->remoteHostIP(), "127.0.0.1");
    EXPECT_EQ(element->remotePort(), port);
    EXPECT_EQ(element->localPort(), kPort);
}

TEST_F(QtSocketsTest, ACallThatNobodyAcceptsIsClosedAndTheNextOneIsHeard) {
    listener->listen();
    answer = false;
    ASSERT_TRUE(client.connect());
    ASSERT_TRUE(waitForReal([&] { return client.ended(); }));
    answer = true;
    PlainClient next;
    ASSERT_TRUE(next.connect());
    EXPECT_TRUE(waitForReal([&] { return element->state() == SocketState::connected; }));
}

TEST_F(QtSocketsTest, BytesComeInOrderAndAheadOfTheClose) {
    connected();
    std::string sent;
    for (int i = 0; i < 20'000; ++i) sent += std::to_string(i);
    client.send(sent);
    client.hangUp();
    ASSERT_TRUE(waitForReal([&] { return !log.empty() && log.back() == "closed"; }));
    EXPECT_EQ(heard, sent);
    EXPECT_THAT(log, ElementsAre("data", "closed"));
}

TEST_F(QtSocketsTest, AResetIsTheErrorEventOnly) {
    connected();
    client.reset();
    ASSERT_TRUE(waitForReal([&] { return !log.empty(); }));
    settle();
    EXPECT_THAT(log, ElementsAre("failed"));
    EXPECT_EQ(element->state(), SocketState::failed);
}

TEST_F(QtSocketsTest, SentBytesArriveAndWhatIsUnderWayAtTheCloseTooIfTheClientReads) {
    connected();
    const std::string big(700'000, 'v');
    element->send("head");
    element->send(big);
    element->close();
    EXPECT_TRUE(waitForReal([&] { return client.ended(); }));
    const std::string got = client.received();
    EXPECT_EQ(got.size(), big.size() + 4);
    EXPECT_EQ(got.substr(0, 6), "headvv");
}

TEST_F(QtSocketsTest, WhatIsUnderWayGoesOutToAClientThatHasEndedItsOwnSending) {
    connected();
    element->onClose = [this] {
        log.emplace_back("closed");
        element->close();
    };
    const std::string big(1'000'000, 'v');
    element->send(big);
    client.endSending();
    ASSERT_TRUE(waitForReal([&] { return !log.empty(); }));
    EXPECT_TRUE(waitForReal([&] { return client.ended(); }));
    EXPECT_THAT(log, ElementsAre("closed"));
    EXPECT_EQ(client.received().size(), big.size());
}

TEST_F(QtSocketsTest, AnOrderlyCloseStaysOneThoughMoreWasSentBeforeItIsHeardOf) {
    connected();
    client.send("Quit");
    client.hangUp();
    // The station has not looked yet: its reports meet a client that is gone.
    for (int i = 0; i < 100; ++i) element->send("report");
    EXPECT_EQ(element->state(), SocketState::connected);
    ASSERT_TRUE(waitForReal([&] { return !log.empty() && log.back() != "data"; }));
    settle();
    EXPECT_THAT(log, ElementsAre("data", "closed"));
    EXPECT_EQ(heard, "Quit");
}

TEST_F(QtSocketsTest, AResetStaysAnErrorThoughMoreWasSentBeforeItIsHeardOf) {
    connected();
    client.reset();
    for (int i = 0; i < 100; ++i) element->send("report");
    ASSERT_TRUE(waitForReal([&] { return !log.empty(); }));
    settle();
    EXPECT_THAT(log, ElementsAre("failed"));
}

TEST_F(QtSocketsTest, AClientThatNeverReadsIsHeldOneMebibyteAndThenIsAnError) {
    connected();
    std::size_t sent = 0;
    while (element->state() == SocketState::connected && sent < 16 * 1024 * 1024) {
        element->send(std::string(4096, 'x'));
        sent += 4096;
    }
    EXPECT_GE(sent, kSocketSendBound);
    // The machine's own buffers at both ends come on top.
    EXPECT_LT(sent, kSocketSendBound + 8 * 1024 * 1024);
    EXPECT_THAT(log, IsEmpty());
    ASSERT_TRUE(waitForReal([&] { return !log.empty(); }));
    settle();
    EXPECT_THAT(log, ElementsAre("failed"));
}

TEST_F(QtSocketsTest, APortThatAnotherHoldsFailsASecondLaterAndIsTakenOnceItIsFree) {
    listener->listen();
    auto second = sockets.create("wsk2", 0);
    second->setLocalPort(kPort);
    std::int64_t failedAt = -1;
    second->onError = [&] { failedAt = time.nowMs(); };
    const std::int64_t begin = time.nowMs();
    second->listen();
    EXPECT_EQ(second->listenError(), "port 7060 is in use");
    ASSERT_TRUE(waitForReal([&] { return failedAt >= 0; }));
    EXPECT_GE(failedAt, begin + kListenRetryMs);
    listener->close();
    second->close();
    second->listen();
    EXPECT_EQ(second->state(), SocketState::listening);
    EXPECT_EQ(second->listenError(), "");
}

TEST_F(QtSocketsTest, TheListenerCanBeTakenUpAgainWhileOldConnectionsLinger) {
    connected();
    element->close();
    listener->close();
    listener->listen();
    EXPECT_EQ(listener->state(), SocketState::listening);
}

TEST_F(QtSocketsTest, AnElementMayBeDestroyedInItsOwnHandler) {
    connected();
    element->onDataArrival = [this] { element.reset(); };
    client.send("Quit");
    EXPECT_TRUE(waitForReal([&] { return client.ended(); }));
    EXPECT_FALSE(element);
}

TEST_F(QtSocketsTest, AnElementWithoutADataHandlerThrowsItsBytesAwayAndStillHearsTheEnd) {
    connected();
    element->onDataArrival = nullptr;
    client.send(std::string(3'000'000, 'x'));
    client.hangUp();
    EXPECT_TRUE(waitForReal([&] { return !log.empty(); }));
    EXPECT_THAT(log, ElementsAre("closed"));
    EXPECT_EQ(element->bytesReceived(), 0U);
}

TEST_F(QtSocketsTest, DueTimersRunBetweenTwoCallsOfAFlood) {
    listener->onConnectionRequest = [this](std::int64_t) {
        log.emplace_back("call");
        time.block(30);
    };
    TimerMM tick(time, [this] { log.emplace_back("tick"); });
    tick.setInterval(10);
    listener->listen();
    std::vector<PlainClient> flood(10);
    for (PlainClient& one : flood) ASSERT_TRUE(one.connect());
    tick.setEnabled(true);
    ASSERT_TRUE(waitForReal([&] { return std::count(log.begin(), log.end(), "call") == 10; }));
    for (std::size_t i = 1; i < log.size(); ++i) EXPECT_FALSE(log[i] == "call" && log[i - 1] == "call") << i;
}

double processorSeconds() {
    timespec used{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) / 1e9;
}

// Takes every descriptor that the process may have, as long as it lives.
class NoDescriptors {
  public:
    NoDescriptors() {
        ::getrlimit(RLIMIT_NOFILE, &before_);
        rlimit few = before_;
        few.rlim_cur = 256;
        ::setrlimit(RLIMIT_NOFILE, &few);
        for (;;) {
            FileHandle handle(::open("/dev/null", O_RDONLY | O_CLOEXEC));
            if (!handle.valid()) break;
            handles_.push_back(std::move(handle));
        }
    }
    ~NoDescriptors() { ::setrlimit(RLIMIT_NOFILE, &before_); }

  private:
    rlimit before_{};
    std::vector<FileHandle> handles_;
};

TEST_F(QtSocketsTest, WithoutDescriptorsCallersAreTurnedAwayAtLittleCostAndServedOnceThereAreSome) {
    listener->listen();
    // All that happens without descriptors happens once while there are some, and is judged afterwards: the
    // sanitizers need a few themselves when they meet a type for the first time.
    auto twin = sockets.create("wsk2", 0);
    twin->setLocalPort(kPort);
    bool twinFailed = false;
    twin->onError = [&] { twinFailed = true; };
    twin->listen();
    PlainClient first;
    ASSERT_TRUE(first.connect());
    ASSERT_TRUE(waitForReal([&] { return element->state() == SocketState::connected && twinFailed; }));
    element->close();
    log.clear();
    std::vector<PlainClient> flood(20);
    PlainClient later;
    // Qt's own loop, which sleeps where there is nothing to do.
    QEventLoop loop;
    const auto goRound = [&loop](int ms) {
        QTimer::singleShot(ms, &loop, &QEventLoop::quit);
        loop.exec();
    };
    goRound(0);
    bool allConnected = true;
    double share = 0;
    std::int64_t shedInASecond = 0;
    bool firstEnded = false;
    bool allShed = false;
    {
        const NoDescriptors none;
        for (PlainClient& one : flood) allConnected = one.connect() && allConnected;
        const double before = processorSeconds();
        const std::int64_t begin = time.nowMs();
        goRound(1000);
        share = (processorSeconds() - before) * 1000 / static_cast<double>(time.nowMs() - begin);
        shedInASecond = sockets.shed();
        firstEnded = flood[0].ended();
        allShed = waitForReal([&] { return sockets.shed() == 20; });
    }
    EXPECT_TRUE(allConnected);
    EXPECT_LT(share, 0.05);
    EXPECT_GE(shedInASecond, 5);
    EXPECT_TRUE(firstEnded);
    EXPECT_TRUE(allShed);
    EXPECT_THAT(log, IsEmpty());
    const std::int64_t begin = time.nowMs();
    ASSERT_TRUE(later.connect());
    ASSERT_TRUE(waitForReal([&] { return element->state() == SocketState::connected; }));
    EXPECT_LT(time.nowMs() - begin, 1000);
}

TEST_F(QtSocketsTest, NothingOfAClosedElementIsToldAnyMore) {
    connected();
    client.send("bytes");
    client.reset();
    element->close();
    settle();
    EXPECT_THAT(log, IsEmpty());
}

}  // namespace
}  // namespace quorrin
