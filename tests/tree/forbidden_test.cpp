// Each rule is shown to fail on a planted violation; project_rules_test.cpp then applies them to the project.
#include "tree/forbidden.h"

#include <gmock/gmock.h>

namespace quorrin::tree {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

TEST(Forbidden, FindsRealClocksSleepsSocketsThreadsAndFiles) {
    for (const char* planted :
         {"#include <chrono>", "#include <thread>", "#include <filesystem>", "#include <sys/socket.h>",
          "#include <unistd.h>", "auto t = std::chrono::steady_clock::now();", "std::thread worker(run);",
          "usleep(10);", "sleep(1);", "int fd = ::socket(AF_INET, SOCK_STREAM, 0);", "QTimer timer;",
          "QTcpSocket socket;", "return ::connect(fd, to, size);", "QElapsedTimer t;", "std::mutex m;",
          "auto now = ::time(nullptr);", "std::filesystem::path p;", "clock_gettime(CLOCK_MONOTONIC, &ts);",
          "startTimer(10);"}) {
        EXPECT_THAT(hostCalls(planted), Not(IsEmpty())) << planted;
    }
}

TEST(Forbidden, LeavesThePortsAndPlainWordsAlone) {
    for (const char* allowed :
         {"#include <vector>", "clock_.block(200);", "// a sleep() of 200 ms", "TimerMM tmrControl;",
          "text = \"std::thread\";", "connect(client);", "bool asleep(int x);",
          "void Network::listen(int port);", "station.listen(7060);"}) {
        EXPECT_THAT(hostCalls(allowed), IsEmpty()) << allowed;
    }
}

TEST(Forbidden, AWindowMayUseQtsTimersAndNothingElseOfTheHost) {
    EXPECT_THAT(hostCallsOfAWindow("QTimer repaint;"), IsEmpty());
    EXPECT_THAT(hostCallsOfAWindow("QTcpSocket socket;"), SizeIs(1));
}

TEST(Forbidden, FindsQtIncludesInEitherForm) {
    EXPECT_THAT(qtIncludes("#include <QString>\n"), SizeIs(1));
    EXPECT_THAT(qtIncludes("#include <QtCore/QString>\n"), SizeIs(1));
    EXPECT_THAT(qtIncludes("#include \"base/form.h\"\n#include <vector>\n"), IsEmpty());
}

TEST(Forbidden, FindsLeftOvers) {
    for (const std::string& planted :
         {std::string("// TO") + "DO later", std::string("// FIX") + "ME", std::string("# X") + "XX",
          std::string("TEST(A, DIS") + "ABLED_B)", std::string("GTEST_") + "SKIP() << 1;"}) {
        EXPECT_THAT(leftOvers(planted), SizeIs(1)) << planted;
    }
    EXPECT_THAT(leftOvers("the control is disabled; txtXXXL"), IsEmpty());
}

TEST(Forbidden, AHeaderWithoutAnOpeningCommentIsFound) {
    EXPECT_TRUE(beginsWithComment("// A timer.\n#pragma once\n"));
    EXPECT_TRUE(beginsWithComment("#pragma once\n\n// A timer.\n"));
    EXPECT_FALSE(beginsWithComment("#pragma once\n#include <vector>\n// A timer.\n"));
    EXPECT_FALSE(beginsWithComment(""));
}

TEST(Forbidden, FindsBrokenJson) {
    EXPECT_EQ(jsonFault("{\"a\": [1, 2]}"), "");
    EXPECT_NE(jsonFault("{\"a\": [1, 2}"), "");
    EXPECT_EQ(jsonLinesFault("# note\n\n{\"t\": 0}\n{\"t\": 1}\n"), "");
    EXPECT_THAT(jsonLinesFault("{\"t\": 0}\n{t: 1}\n"), testing::StartsWith("line 2"));
}

TEST(Forbidden, TakesLocalTargetsOutOfMarkdownLinks) {
    EXPECT_THAT(
        localLinks("[a](docs/a.md) and ![b](b.png \"t\") [c](https://x.org/y) [d](#here) [e](e.md#f)"),
        ElementsAre("docs/a.md", "b.png", "e.md"));
}

}  // namespace
}  // namespace quorrin::tree
