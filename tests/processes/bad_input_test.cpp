// What the programs do with files, addresses and robots that are not as they should be: a clear word, no
// hang.
#include <arpa/inet.h>
#include <sys/socket.h>

#include "processes/process_fixture.h"

namespace quorrin {
namespace {

class BadInputTest : public ProcessTest {
  protected:
    void expectRefusal(const std::string& message) {
        auto refused = station();
        EXPECT_EQ(refused->ends(10), 2);
        EXPECT_NE(refused->output().find(message), std::string::npos) << refused->output();
        EXPECT_TRUE(gatewaysGone(0));
    }
    // The station runs on and ends by Ctrl-C as always.
    static void expectCleanEnd(Process& station) {
        EXPECT_TRUE(station.running()) << station.output();
        station.signal(SIGINT);
        EXPECT_EQ(station.ends(8), 0) << station.output();
    }
};

TEST_F(BadInputTest, AnAddressThatTheBoxesWouldChangeIsNotWrittenAnew) {
    storeAddress("10.168.0.1", "10001", "10002");
    const auto before = files.read(motIni);
    expectRefusal("the stored address is 10.168.0.1, but the login form would make");
    EXPECT_EQ(files.read(motIni), before);
}

TEST_F(BadInputTest, APortOfZeroIsRefused) {
    storeAddress("127.127.0.1", "0", "1");
    const auto before = files.read(motIni);
    expectRefusal("the stored port is \"0\"");
    EXPECT_EQ(files.read(motIni), before);
}

TEST_F(BadInputTest, APortOf70000IsNamedByTheGatewayAndTheStationWaits) {
    storeAddress("127.127.0.1", "70000", "70001");
    auto waiting = station();
    EXPECT_TRUE(logSays("QuorrinGatewayTI", "WiFiPort is \"70001\"", 5));
    EXPECT_TRUE(waiting->says("ti=0", 5));
    expectCleanEnd(*waiting);
}

TEST_F(BadInputTest, AnIniWithoutItsKeysGivesTheDefaultAddress) {
    files.createFolder(folder.path() + "/c/quorrin");
    files.writeWhole(motIni, "[Other]\nkey=value\n");
    auto running = station();
    EXPECT_TRUE(logSays("QuorrinGatewayTI", "the robot at 127.127.0.1 port 10002", 5));
    EXPECT_NE(files.read(motIni).value_or("").find("[Other]"), std::string::npos);
    expectCleanEnd(*running);
}

TEST_F(BadInputTest, AnAddressThatNeverAnswersIsTriedForThreeSecondsAtATime) {
    // A listener whose queue is full answers nobody.
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(10002);
    address.sin_addr.s_addr = inet_addr("127.127.0.1");
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(listener, 0), 0);
    std::vector<int> fillers;
    for (int i = 0; i < 4; ++i) {
        fillers.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
        ::connect(fillers.back(), reinterpret_cast<sockaddr*>(&address), sizeof address);
    }
    auto waiting = station();
    EXPECT_TRUE(logSays("QuorrinGatewayTI", "no answer from 127.127.0.1 port 10002 within 3 s", 8));
    expectCleanEnd(*waiting);
    for (const int filler : fillers) ::close(filler);
    ::close(listener);
}

TEST_F(BadInputTest, ARobotThatAnswersAndThenSaysNothingIsDroppedAndTriedAgain) {
    const std::string silent =
        "import socket, sys\n"
        "sys.path.insert(0, '" +
        source +
        "/examples')\n"
        "sys.dont_write_bytecode = True\n"
        "from robot import *\n"
        "server = socket.create_server(('127.127.0.1', 10002))\n"
        "lines = []\n"
        "while True:\n"
        "    lines.append(server.accept()[0])\n"
        "    lines[-1].sendall(packet(HELLO, b'quorrin', 1, TI, b'silent'))\n";
    auto robot = run({"python3", "-c", silent}, "robot.out");
    auto waiting = station();
    EXPECT_TRUE(logSays("QuorrinGatewayTI", "(silent)", 5));
    EXPECT_TRUE(logSays("QuorrinGatewayTI", "it was silent for 2 s; trying again", 5));
    expectCleanEnd(*waiting);
}

TEST_F(BadInputTest, AFullDiskLeavesTheStoredAddressAndIsTold) {
    storeAddress("127.127.0.1", "20001", "20002");
    const auto before = files.read(motIni);
    auto full = station(true);
    EXPECT_TRUE(full->says("cannot write " + motIni, 5)) << full->output();
    EXPECT_TRUE(full->says("cannot write " + tiIni, 5));
    EXPECT_EQ(files.read(motIni), before);
    EXPECT_EQ(files.filesIn(folder.path() + "/c/quorrin"),
              (std::vector<std::string>{"gateway_mot.ini", "gateway_ti.ini"}));
    expectCleanEnd(*full);
}

TEST_F(BadInputTest, AMissingSiteFileIsNamedAndTheStationGoesOn) {
    // An installation without its shared files.
    files.createFolder(folder.path() + "/bin");
    for (const std::string program : {"quorrin-station-headless", "QuorrinGatewaymot", "QuorrinGatewayTI"}) {
        const std::string place = folder.path() + "/bin/" + program;
        ASSERT_TRUE(files.copy(bin + "/" + program, place));
        ::chmod(place.c_str(), 0700);
    }
    auto poor = run({folder.path() + "/bin/quorrin-station-headless"}, "station.out");
    EXPECT_TRUE(poor->says("office.bmp", 5));
    EXPECT_TRUE(poor->says("Quorrinsdk.ini", 5));
    EXPECT_TRUE(poor->says("t=2", 5));
    EXPECT_NE(multimediaGateway(), 0);
    expectCleanEnd(*poor);
}

TEST_F(BadInputTest, AProgramErrorIsToldWithItsPlaceAndEndsTheStationWith3) {
    files.createFolder(folder.path() + "/d/quorrin");
    files.writeWhole(folder.path() + "/d/quorrin/Quorrinsdk.ini", "[servo1]\ninit=99999\n");
    auto failing = station();
    EXPECT_EQ(failing->ends(10), 3);
    EXPECT_NE(failing->output().find("program error"), std::string::npos) << failing->output();
    EXPECT_NE(failing->output().find("99999"), std::string::npos) << failing->output();
    EXPECT_TRUE(gatewaysGone(2));
}

TEST_F(BadInputTest, AFolderThatCannotBeMadeIsNamed) {
    files.writeWhole(folder.path() + "/s", "a file in the way");
    expectRefusal("cannot make the folder " + folder.path() + "/s/quorrin");
}

TEST_F(BadInputTest, AnUnknownOptionOfAGatewayIsRefusedAndTheKnownOnesAnswer) {
    for (const std::string program : {"QuorrinGatewaymot", "QuorrinGatewayTI"}) {
        auto wrong = run({bin + "/" + program, "--fast"}, "wrong.out");
        EXPECT_EQ(wrong->ends(5), 2);
        auto help = run({bin + "/" + program, "--help"}, "help.out");
        EXPECT_EQ(help->ends(5), 0);
        EXPECT_NE(help->output().find(program + " [--help | --version]"), std::string::npos);
        auto version = run({bin + "/" + program, "--version"}, "version.out");
        EXPECT_EQ(version->ends(5), 0);
        EXPECT_NE(version->output().find(program + " 0."), std::string::npos);
    }
}

}  // namespace
}  // namespace quorrin
