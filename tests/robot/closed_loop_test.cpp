// The station and the simulated robot together, in virtual time: what a session does by itself.
#include "support/closed_loop.h"

#include <gtest/gtest.h>

namespace quorrin {
namespace {

class OfficeWander : public testing::TestWithParam<int> {};

TEST_P(OfficeWander, CoversAtLeastTwelveMetresInTwoMinutesAndKnowsWhereItIs) {
    ClosedLoop loop(shippedSite("office"), static_cast<std::uint64_t>(GetParam()));
    ASSERT_TRUE(loop.runUntilMode("wondering", 20)) << "it starts by itself within 20 s";
    const Pose start = loop.robot.body().pose();
    const PoseValues begin = loop.values();
    const double before = loop.robot.body().distance_m();
    loop.run(120.0 - static_cast<double>(loop.clock.nowMs()) / 1000.0);
    const double distance = loop.robot.body().distance_m() - before;
    EXPECT_GE(distance, 12.0);
    EXPECT_EQ(loop.robot.body().contacts(), 0);

    const Vec2 truth = rotated(loop.robot.body().pose().at - start.at, -start.heading);
    const Vec2 believed = rotated({loop.values().robotX - begin.robotX, loop.values().robotY - begin.robotY},
                                  -begin.robotTheta);
    EXPECT_LE(length(truth - believed), 0.05 * distance);
}

INSTANTIATE_TEST_SUITE_P(Seeds, OfficeWander, testing::Values(1, 2, 3));

class AnySite : public testing::TestWithParam<const char*> {};

TEST_P(AnySite, IsWanderedFromEndToEnd) {
    ClosedLoop loop(shippedSite(GetParam()), 5);
    loop.run(300);
    EXPECT_EQ(loop.mode(), "wondering");
    EXPECT_GE(loop.robot.body().distance_m(), 30.0);
    EXPECT_FALSE(loop.values().motionInhibit);
}

INSTANTIATE_TEST_SUITE_P(Sites, AnySite, testing::Values("office", "corridor", "clutter", "hall"));

TEST(ClosedLoopStory, AWheelThatStallsTriggersTheReversalAndTheRobotGetsFree) {
    ClosedLoop loop(shippedSite("office"), 2,
                    parseScenario(R"({"t": 30, "fault": "stallWheel", "side": "left", "for": 5})", "s"));
    loop.run(30);
    double held_s = 0;
    for (int i = 0; i < 100; ++i) {
        loop.run(0.1);
        if (loop.values().inStuck) held_s += 0.1;
    }
    EXPECT_GT(held_s, 2.0);
    EXPECT_LT(held_s, 9.0);
    EXPECT_FALSE(loop.values().inStuck);
    EXPECT_FALSE(loop.values().motionInhibit);
    const double before = loop.robot.body().distance_m();
    loop.run(60);
    EXPECT_GT(loop.robot.body().distance_m() - before, 6.0);
}

TEST(ClosedLoopStory, ADockWithCoolBatteriesEndsTheWanderAndCharges) {
    ClosedLoop loop(shippedSite("hall"), 1, parseScenario(R"({"t": 30, "fault": "dock"})", "s"));
    loop.run(40);
    EXPECT_EQ(loop.mode(), "IDLE");
    EXPECT_TRUE(loop.robot.power().charging(0));
    EXPECT_TRUE(loop.robot.power().charging(1));
    EXPECT_EQ(loop.robot.powerByte() & 0xC4, 0xC0);
    EXPECT_FALSE(loop.link.connected(RobotLink::mot));
}

TEST(ClosedLoopStory, AHotBatteryStopsCharging) {
    ClosedLoop loop(shippedSite("hall"), 1,
                    parseScenario("{\"t\": 30, \"fault\": \"dock\"}\n"
                                  "{\"t\": 50, \"fault\": \"hotBattery\", \"battery\": 1, \"for\": 20}",
                                  "s"));
    loop.run(52);
    EXPECT_FALSE(loop.robot.power().charging(0));
    EXPECT_EQ(loop.robot.powerByte() & 0xC0, 0);
    loop.run(22);
    EXPECT_TRUE(loop.robot.power().charging(0));
}

TEST(ClosedLoopStory, UndockingAndTheModeKeyBringTheWanderBack) {
    ClosedLoop loop(
        shippedSite("hall"), 1,
        parseScenario("{\"t\": 30, \"fault\": \"dock\"}\n{\"t\": 45, \"fault\": \"undock\"}", "s"));
    loop.run(50);
    EXPECT_EQ(loop.mode(), "IDLE");
    loop.station->gui.cmdChEn.operatorClick();
    EXPECT_TRUE(loop.runUntilMode("wondering", 20));
    const double before = loop.robot.body().distance_m();
    loop.run(20);
    EXPECT_GT(loop.robot.body().distance_m() - before, 2.0);
}

TEST(ClosedLoopStory, ASilentMotionLinkIsNoticedAndTheSessionBeginsAgainByItself) {
    ClosedLoop loop(shippedSite("office"), 1,
                    parseScenario(R"({"t": 30, "fault": "silence", "link": "mot", "for": 15})", "s"));
    loop.run(44);
    EXPECT_EQ(loop.mode(), "wondering") << "less than 20 s of silence pass";
    ClosedLoop longer(shippedSite("office"), 1,
                      parseScenario(R"({"t": 30, "fault": "silence", "link": "mot", "for": 25})", "s"));
    longer.run(53);
    EXPECT_EQ(longer.mode(), "comm wrong");
    EXPECT_TRUE(longer.runUntilMode("wondering", 40));
}

TEST(ClosedLoopStory, ADeadFrontSensorDoesNotEndTheWander) {
    ClosedLoop loop(shippedSite("hall"), 4,
                    parseScenario(R"({"t": 20, "fault": "deadSensor", "sensor": "irHead"})", "s"));
    loop.run(180);
    EXPECT_EQ(loop.mode(), "wondering");
    EXPECT_GT(loop.robot.body().distance_m(), 15.0);
}

TEST(ClosedLoop, IsTheSameTwice) {
    const auto pose = [](std::uint64_t seed) {
        ClosedLoop loop(shippedSite("clutter"), seed);
        loop.run(60);
        const Pose p = loop.robot.body().pose();
        return std::array<double, 5>{p.at.x, p.at.y, p.heading, loop.values().robotX, loop.values().robotY};
    };
    EXPECT_EQ(pose(9), pose(9));
    EXPECT_NE(pose(9), pose(10));
}

}  // namespace
}  // namespace quorrin
