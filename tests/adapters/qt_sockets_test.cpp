// Socket arrays on the machine's TCP, called by plain sockets: what is theirs alone, besides the contract.
#include "platform/qt/qt_sockets.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>

#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <ctime>

#include "platform/qt/qt_clock.h"
#include "platform/timer_mm.h"
#include "support/plain_client.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kPort = 7060;

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
        ASSERT_TRUE(client.connect(kPort));
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

TEST_F(QtSocketsTest, TheListenerCanBeTakenUpAgainWhileOldConnectionsLinger) {
    connected();
    element->close();
    listener->close();
    listener->listen();
    EXPECT_EQ(listener->state(), SocketState::listening);
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
    for (PlainClient& one : flood) ASSERT_TRUE(one.connect(kPort));
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
    ASSERT_TRUE(first.connect(kPort));
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
        for (PlainClient& one : flood) allConnected = one.connect(kPort) && allConnected;
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
    ASSERT_TRUE(later.connect(kPort));
    ASSERT_TRUE(waitForReal([&] { return element->state() == SocketState::connected; }));
    EXPECT_LT(time.nowMs() - begin, 1000);
}

}  // namespace
}  // namespace quorrin
