#include "platform/qt/qt_streams.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

#include "platform/host/posix_files.h"
#include "platform/host/socket_folder.h"
#include "platform/qt/qt_clock.h"
#include "support/real_wait.h"
#include "support/streams_contract.h"
#include "support/temp_folder.h"

namespace quorrin {
namespace {

struct QtStreamsFixture {
    TempFolder folder;
    QtClock time;
    QtStreams real{time, folder.path()};
    Streams& streams() { return real; }
    Clock& clock() { return time; }
    static std::string address() { return "127.0.0.1"; }
    bool waitFor(const std::function<bool()>& condition) { return waitForReal(condition); }
    // Two rounds through the kernel and back on a connection of its own: what was under way before is there.
    void settle() {
        for (int round = 0; round < 2; ++round) {
            bool answered = false;
            const auto connecting =
                real.connectLocal("nobody at all", [&](auto, const std::string&) { answered = true; });
            waitFor([&] { return answered; });
            const std::int64_t start = time.nowMs();
            waitFor([&] { return time.nowMs() > start + 30; });
        }
    }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Real, StreamsContract, QtStreamsFixture);

class QtStreamsTest : public ::testing::Test {
  protected:
    // A socket file as a killed program leaves it.
    static void leaveDeadSocket(const std::string& path) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        ASSERT_EQ(::bind(socket, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        ::close(socket);
    }
    QtStreamsFixture fixture;
};

TEST_F(QtStreamsTest, TakesOverTheSocketFileOfAKilledProgram) {
    leaveDeadSocket(fixture.folder.path() + "/motcom");
    EXPECT_TRUE(fixture.real.listenLocal("motcom", nullptr));
}

TEST_F(QtStreamsTest, LeavesALivingSocketToItsOwner) {
    const auto first = fixture.real.listenLocal("motcom", nullptr);
    ASSERT_TRUE(first);
    std::string error;
    EXPECT_FALSE(fixture.real.listenLocal("motcom", &error));
    EXPECT_NE(error, "");
}

TEST_F(QtStreamsTest, TwoRunFoldersDoNotMeet) {
    const TempFolder other;
    QtStreams elsewhere(fixture.time, other.path());
    const auto mine = fixture.real.listenLocal("motcom", nullptr);
    const auto theirs = elsewhere.listenLocal("motcom", nullptr);
    EXPECT_TRUE(mine && theirs);
}

TEST_F(QtStreamsTest, FindsASafePlaceWhereTheRunFoldersPathIsTooLong) {
    const std::string deep = fixture.folder.path() + "/" + std::string(100, 'd') + "/run";
    PosixFiles files;
    ASSERT_TRUE(files.createFolder(deep));
    const std::string place = socketFolder(deep);
    ASSERT_NE(place, "");
    EXPECT_EQ(place, socketFolder(deep));
    EXPECT_NE(place, socketFolder(deep + "2"));
    struct stat status {};
    ASSERT_EQ(::stat(place.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U);
    QtStreams streams(fixture.time, deep);
    EXPECT_TRUE(streams.listenLocal("motcom", nullptr));
    ::rmdir(place.c_str());
    ::rmdir(socketFolder(deep + "2").c_str());
}

TEST_F(QtStreamsTest, AConnectToAPortThatNobodyListensOnFailsWithAReason) {
    const auto listener = fixture.real.listenTcp("127.0.0.1", 0, nullptr);
    ASSERT_TRUE(listener);
    const int port = listener->port();
    std::string why;
    {
        const auto gone = fixture.real.listenTcp("127.0.0.1", 0, nullptr);
        ASSERT_TRUE(gone);
        ASSERT_NE(gone->port(), port);
    }
    const auto connecting =
        fixture.real.connectTcp("127.0.0.1", 1, [&](auto stream, const std::string& error) {
            EXPECT_FALSE(stream);
            why = error;
        });
    EXPECT_TRUE(waitForReal([&] { return !why.empty(); }));
}

TEST_F(QtStreamsTest, PortsThatDoNotExistFailInsteadOfBeingCutTo16Bits) {
    for (const int port : {0, -1, 65536, 70000}) {
        std::string why;
        const auto connecting =
            fixture.real.connectTcp("127.0.0.1", port, [&](auto stream, const std::string& error) {
                EXPECT_FALSE(stream);
                why = error;
            });
        EXPECT_TRUE(waitForReal([&] { return !why.empty(); })) << port;
    }
    std::string error;
    EXPECT_FALSE(fixture.real.listenTcp("127.0.0.1", 70000, &error));
    EXPECT_NE(error, "");
}

}  // namespace
}  // namespace quorrin
