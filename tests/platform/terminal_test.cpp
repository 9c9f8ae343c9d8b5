#include "platform/host/terminal.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include "platform/host/terminal_boxes.h"

namespace quorrin {
namespace {

std::string readAll(int descriptor) {
    ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
    std::string all;
    char piece[4096];
    for (ssize_t got = 0; (got = ::read(descriptor, piece, sizeof piece)) > 0;)
        all.append(piece, static_cast<std::size_t>(got));
    return all;
}

struct PipeTest : ::testing::Test {
    PipeTest() { EXPECT_EQ(::pipe(ends), 0); }
    ~PipeTest() override {
        ::close(ends[0]);
        ::close(ends[1]);
    }
    int ends[2] = {-1, -1};
};

TEST_F(PipeTest, EveryTextIsALineWhereTheOutputIsNoTerminal) {
    {
        Terminal terminal(ends[1]);
        EXPECT_FALSE(terminal.isTerminal());
        terminal.live("t=1.0");
        terminal.line("comm wrong");
        terminal.live("t=2.0");
    }
    EXPECT_EQ(readAll(ends[0]), "t=1.0\ncomm wrong\nt=2.0\n");
}

TEST_F(PipeTest, AReaderThatDoesNotReadCostsLinesAndNoTime) {
    Terminal terminal(ends[1]);
    for (int i = 0; i < 10'000; ++i) terminal.live(std::string(100, 'x'));
    EXPECT_LT(readAll(ends[0]).size(), 200'000U);
    terminal.live("read again");
    EXPECT_EQ(readAll(ends[0]), "read again\n");
}

TEST_F(PipeTest, AReaderThatGoesAwayIsNoReasonToEnd) {
    Terminal terminal(ends[1]);
    ::close(ends[0]);
    terminal.line("for nobody");
    ends[0] = ::open("/dev/null", O_RDONLY);
}

TEST_F(PipeTest, ABoxIsALineAndAQuestionIsAnsweredWithNo) {
    Terminal terminal(ends[1]);
    TerminalBoxes boxes(terminal);
    EXPECT_EQ(boxes.show("No valid IP-address", "", BoxButtons::ok), BoxAnswer::ok);
    EXPECT_EQ(boxes.show("Accept?", "Call", BoxButtons::yesNo), BoxAnswer::no);
    EXPECT_EQ(readAll(ends[0]), "No valid IP-address\nCall: Accept? (answered no)\n");
}

struct PseudoTerminalTest : ::testing::Test {
    PseudoTerminalTest() {
        winsize size{};
        size.ws_col = 20;
        EXPECT_EQ(::openpty(&master, &slave, nullptr, nullptr, &size), 0);
    }
    ~PseudoTerminalTest() override {
        ::close(slave);
        ::close(master);
    }
    int master = -1;
    int slave = -1;
};

TEST_F(PseudoTerminalTest, KeepsTheLiveLineInItsPlaceBelowTheOthers) {
    {
        Terminal terminal(slave);
        EXPECT_TRUE(terminal.isTerminal());
        terminal.live("t=1.0");
        terminal.line("a box");
        terminal.live("t=2.0");
    }
    EXPECT_EQ(readAll(master), "\r\x1B[Kt=1.0\r\x1B[Ka box\r\nt=1.0\r\x1B[Kt=2.0\r\n");
}

TEST_F(PseudoTerminalTest, CutsTheLiveLineAtTheTerminalsWidth) {
    Terminal terminal(slave);
    terminal.live(std::string(50, 'x'));
    EXPECT_EQ(readAll(master), "\r\x1B[K" + std::string(19, 'x'));
}

}  // namespace
}  // namespace quorrin
