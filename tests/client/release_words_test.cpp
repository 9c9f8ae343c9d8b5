// What letting go is said to do, and what it does at a real station.
#include "client/release_words.h"

#include <gtest/gtest.h>

#include "client/client_bench.h"
#include "client/drive_sender.h"

namespace quorrin {
namespace {

TEST(ReleaseWords, SayThatNothingCanBeLetGo) {
    EXPECT_EQ(releaseWords(false, true, {"JOY", "IDLE"}), "Not connected: nothing can be let go.");
    EXPECT_EQ(releaseWords(true, false, {"JOY", "IDLE"}), "You do not hold the robot.");
}

TEST(ReleaseWords, SayWhereARobotInJoyGoes) {
    EXPECT_EQ(releaseWords(true, true, {"JOY", "wondering"}),
              "The robot stops, and then wanders off by itself.");
    EXPECT_EQ(releaseWords(true, true, {"JOY", "IDLE"}),
              "The robot stops, and its motion link is closed (IDLE).");
}

TEST(ReleaseWords, WarnWhereItIsNotKnown) {
    for (const KnownMode& mode : {KnownMode{}, KnownMode{"JOY", ""}, KnownMode{"wondering", ""}})
        EXPECT_EQ(releaseWords(true, true, mode), "The robot stops, and may then wander off by itself.");
    EXPECT_EQ(releaseWords(true, true, {"comm wrong", ""}),
              "The station has lost its robot. Once it is back, the robot wanders off by itself.");
}

TEST(KnownModeTest, RemembersWhatJoyWasEnteredFromAndForgetsItAfterJoy) {
    KnownMode mode;
    mode.take("wondering");
    mode.take("JOY");
    mode.take("JOY");
    EXPECT_EQ(mode.beforeJoy, "wondering");
    mode.take("IDLE");
    EXPECT_EQ(mode.beforeJoy, "");
    mode.take("JOY");
    EXPECT_EQ(mode.beforeJoy, "IDLE");
    mode.forget();
    mode.take("JOY");
    EXPECT_EQ(mode.beforeJoy, "") << "nobody knows what was before the first report";
}

struct ReleaseAtAStation : ClientBench, testing::Test {
    void keepLinks(int ticks) {
        for (int i = 0; i < ticks; ++i) {
            sensorFrames(1);
            powerFrames(1);
            tick();
        }
    }
    std::string words() { return releaseWords(true, sender.holds(), sender.knownMode()); }
    DriveSender sender{clock, link, 1};
};

TEST_F(ReleaseAtAStation, ARobotThatWanderedWandersAgain) {
    reachWondering();
    link.start();
    keepLinks(80);
    ASSERT_EQ(sender.knownMode().now, "wondering");
    sender.drive({});
    keepLinks(3);
    ASSERT_EQ(sender.knownMode().now, "JOY");
    EXPECT_EQ(words(), "The robot stops, and then wanders off by itself.");
    sender.release();
    keepLinks(3);
    EXPECT_EQ(gui.txtRobotStatus.text(), "wondering");
}

TEST_F(ReleaseAtAStation, ARobotThatIsLetGoAMomentAfterItWasTakenWandersAgainToo) {
    reachWondering();
    link.start();
    keepLinks(80);
    sender.drive({});
    sender.release();
    keepLinks(15);
    EXPECT_EQ(gui.txtRobotStatus.text(), "wondering");
    EXPECT_FALSE(sender.holds());
}

TEST_F(ReleaseAtAStation, ARobotThatWasIdleGoesIdle) {
    reachWondering();
    link.start();
    keepLinks(80);
    sender.mode();
    keepLinks(10);
    ASSERT_EQ(sender.knownMode().now, "IDLE");
    sender.drive({});
    keepLinks(60);
    ASSERT_EQ(sender.knownMode().now, "JOY");
    EXPECT_EQ(words(), "The robot stops, and its motion link is closed (IDLE).");
    sender.release();
    keepLinks(10);
    EXPECT_EQ(gui.txtRobotStatus.text(), "IDLE");
}

}  // namespace
}  // namespace quorrin
