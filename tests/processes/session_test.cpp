// Whole sessions of real programs against the robot in Python.
#include <sstream>

#include "processes/process_fixture.h"

namespace quorrin {
namespace {

// The values of the last status line, by name.
std::string field(const std::string& output, const std::string& name) {
    const auto line = output.rfind("\nt=");
    if (line == std::string::npos) return "";
    const std::string text = output.substr(line + 1, output.find('\n', line + 1) - line - 1);
    const auto start = (" " + text).find(" " + name + "=");
    if (start == std::string::npos) return "";
    const auto value = start + name.size() + 1;
    return text.substr(value, text.find(' ', value) - value);
}

struct SessionTest : ProcessTest {
    // A wandering session; its gateways.
    void bringUp() {
        robot = pythonRobot();
        theStation = station();
        ASSERT_TRUE(theStation->says("mode=wondering", 20))
            << theStation->output() << log("QuorrinGatewayTI");
        ASSERT_TRUE(
            eventually([this] { return std::atof(field(theStation->output(), "x").c_str()) > 0.1; }, 10))
            << theStation->output();
    }
    std::unique_ptr<Process> robot;
    std::unique_ptr<Process> theStation;
};

TEST_F(SessionTest, ComesUpWithTheRobotInPythonAndWandersByItselfWithinTwentySeconds) {
    bringUp();
    const std::string output = theStation->output();
    EXPECT_EQ(field(output, "mot"), "1");
    EXPECT_EQ(field(output, "ti"), "1");
    EXPECT_EQ(field(output, "bat1"), "12.00");
    EXPECT_LT(std::atof(field(output, "cmdL").c_str()), 0);
    EXPECT_GT(std::atof(field(output, "cmdR").c_str()), 0);
    EXPECT_NE(motionGateway(), 0);
    EXPECT_NE(multimediaGateway(), 0);

    theStation->signal(SIGINT);
    EXPECT_EQ(theStation->ends(5), 0);
    EXPECT_TRUE(gatewaysGone(0)) << "the station left a gateway behind";
    EXPECT_TRUE(logSays("QuorrinGatewaymot", "ends: asked to close", 0));
    EXPECT_TRUE(logSays("QuorrinGatewayTI", "ends: asked to close", 0));
    EXPECT_TRUE(robot->running());
}

TEST_F(SessionTest, AKilledStationTakesItsGatewaysWithItWithinTwoSeconds) {
    bringUp();
    theStation->signal(SIGKILL);
    EXPECT_TRUE(gatewaysGone(2));
    EXPECT_TRUE(logSays("QuorrinGatewaymot", "ends: the station closed the connection", 0));

    // And the next station is not in anybody's way.
    auto next = station();
    EXPECT_TRUE(next->says("ti=1", 15)) << next->output();
}

TEST_F(SessionTest, AStationKilledBeforeItsGatewayHasConnectedLeavesNoneBehindEither) {
    theStation = station();
    ASSERT_TRUE(eventually([this] { return multimediaGateway() != 0; }, 5));
    theStation->signal(SIGKILL);
    EXPECT_TRUE(gatewaysGone(2));
}

TEST_F(SessionTest, AGatewayClosesOnSigtermAndASecondStartExitsAtOnce) {
    robot = pythonRobot();
    theStation = station();
    ASSERT_TRUE(logSays("QuorrinGatewayTI", "the station has connected", 5));
    auto second = run({bin + "/QuorrinGatewayTI"}, "second.out");
    EXPECT_EQ(second->ends(2), 0);
    EXPECT_NE(second->output().find("another one is alive"), std::string::npos) << second->output();
    const pid_t first = multimediaGateway();
    ASSERT_NE(first, 0);
    ::kill(first, SIGTERM);
    EXPECT_TRUE(gatewaysGone(2));
}

TEST_F(SessionTest, TwoStationsOnOneDataFolderDoNotFight) {
    theStation = station();
    ASSERT_TRUE(theStation->says("t=", 5));
    auto second = run({bin + "/quorrin-station-headless"}, "second.out");
    EXPECT_EQ(second->ends(5), 2);
    EXPECT_NE(second->output().find("another station runs on " + folder.path() + "/d/quorrin"),
              std::string::npos)
        << second->output();
    EXPECT_TRUE(theStation->running());
}

}  // namespace
}  // namespace quorrin
