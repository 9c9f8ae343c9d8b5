// What becomes of a connection that its owner has closed while the other side does not read.
#include "platform/qt/lingering_call.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <cerrno>

#include "platform/calls.h"
#include "platform/host/tcp_calls.h"
#include "platform/host/tcp_outgoing.h"
#include "support/real_wait.h"

namespace quorrin {
namespace {

constexpr int kPort = 7060;

struct LingeringCallTest : ::testing::Test {
    LingeringCallTest() {
        std::string error;
        listener = listenTcp(kPort, error);
        near = connectTcp("127.0.0.1", kPort, error);
        pollfd ready{listener.get(), POLLIN, 0};
        ::poll(&ready, 1, 10'000);
        acceptTcp(listener, far);
    }
    // The bytes that come before the end, which is in `end`.
    std::size_t readAll(TcpResult& end) const {
        std::string bytes;
        for (;;) {
            end = receiveTcp(far.socket, kCallReadBytes, bytes);
            if (end == TcpResult::ended || end == TcpResult::broken) return bytes.size();
            pollfd ready{far.socket.get(), POLLIN, 0};
            if (end == TcpResult::later && ::poll(&ready, 1, 5000) != 1) return bytes.size();
        }
    }

    FileHandle listener;
    FileHandle near;
    TcpCall far;
};

TEST_F(LingeringCallTest, WhatHasNotArrivedInTimeNeverDoes) {
    std::size_t given = 0;
    const std::string piece(kCallReadBytes, 'x');
    for (std::string_view rest = piece; sendTcp(near, rest) == TcpResult::some; rest = piece)
        given += piece.size();
    LingeringCall call(std::move(near), "the last command");
    ASSERT_TRUE(waitForReal([&] { return call.over(); }));
    TcpResult end{};
    EXPECT_LT(readAll(end), given);
    EXPECT_EQ(end, TcpResult::broken) << "the kernel goes on by itself else";
}

TEST_F(LingeringCallTest, WhatHasArrivedUnreadStaysAndTheCloseIsInOrder) {
    { const LingeringCall call(std::move(near), "neutral"); }
    TcpResult end{};
    EXPECT_EQ(readAll(end), std::string("neutral").size());
    EXPECT_EQ(end, TcpResult::ended);
}

}  // namespace
}  // namespace quorrin
