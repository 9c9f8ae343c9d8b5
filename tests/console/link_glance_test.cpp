#include "console/link_glance.h"

#include <gtest/gtest.h>

#include "support/station_bench.h"

namespace quorrin {
namespace {

struct LinkGlance : testing::Test {
    StationBench bench;
    PublicValues& values = bench.values;
    frmGUI& gui = bench.gui;

    DashboardGlances now() { return glances(values, gui, bench.station.controlPanel); }
};

TEST_F(LinkGlance, BeforeTheFirstPowerFrameTheStationWaits) {
    bench.station.startAtMainForm();
    EXPECT_EQ(now().mode.word, "no session");
    EXPECT_EQ(now().mode.tone, Tone::busy);
    EXPECT_EQ(now().multimediaLink.word, "waiting");
    EXPECT_EQ(now().multimediaLink.detail, "frame 0 of 11");
    EXPECT_EQ(now().multimediaLink.progress, 0);
    EXPECT_EQ(now().motionLink.word, "closed");
    EXPECT_LT(now().motionLink.progress, 0);
}

TEST_F(LinkGlance, TheMultimediaLinkWarmsUpFrameByFrame) {
    bench.station.startAtMainForm();
    bench.powerFrames(7);
    EXPECT_EQ(now().multimediaLink.word, "starting");
    EXPECT_EQ(now().multimediaLink.detail, "frame 7 of 11");
    EXPECT_DOUBLE_EQ(now().multimediaLink.progress, 7.0 / 11);
    bench.powerFrames(4);
    EXPECT_EQ(now().multimediaLink.word, "up");
    EXPECT_EQ(now().multimediaLink.tone, Tone::good);
    EXPECT_LT(now().multimediaLink.progress, 0);
}

TEST_F(LinkGlance, ACaptureThatWasStoppedByAFaultShowsWithTheLinkThatIsUp) {
    bench.startSession();
    gui.lblCaptureNote.setCaption("Capture stopped: the folder catchdata is missing.");
    EXPECT_EQ(now().multimediaLink.word, "up");
    EXPECT_EQ(now().multimediaLink.detail, "capture stopped");
    EXPECT_EQ(now().multimediaLink.tone, Tone::warning);
    gui.lblCaptureNote.setCaption("");
    EXPECT_EQ(now().multimediaLink.tone, Tone::good);
}

TEST_F(LinkGlance, TheMotionLinkWaitsFromTheStartOfItsGateway) {
    bench.startSession();
    EXPECT_EQ(now().motionLink.word, "closed");
    bench.tick(1);
    EXPECT_EQ(now().motionLink.word, "waiting");
    EXPECT_EQ(now().motionLink.progress, 0);
    bench.sensorFrames(10);
    EXPECT_EQ(now().motionLink.detail, "frame 10 of 11");
    bench.sensorFrames(1);
    EXPECT_EQ(now().motionLink.word, "up");
}

TEST_F(LinkGlance, TheStartSequenceShowsItsTick) {
    bench.startSession();
    bench.tick(2);
    EXPECT_EQ(now().mode.word, "IDLE");
    EXPECT_EQ(now().mode.detail, "waiting for the motion link: tick 2 of 40");
    bench.sensorFrames(11);
    bench.tick(20);
    EXPECT_EQ(now().mode.detail, "starting: tick 22 of 40");
    EXPECT_DOUBLE_EQ(now().mode.progress, 22.0 / 40);
    EXPECT_EQ(now().mode.tone, Tone::busy);
}

TEST_F(LinkGlance, TheStartSequenceOfTheJoystickModeShowsItsTick) {
    bench.startSession();
    values.requestWander = false;
    values.requestJoy = true;
    bench.tick(5);
    EXPECT_EQ(now().mode.detail, "waiting for the motion link: tick 1 of 40");
}

TEST_F(LinkGlance, ARunningModeHasItsWordAndNoProgress) {
    bench.reachWondering();
    EXPECT_EQ(now().mode.word, "wondering");
    EXPECT_EQ(now().mode.tone, Tone::good);
    EXPECT_LT(now().mode.progress, 0);
}

TEST_F(LinkGlance, AnIdleRobotThatIsAskedForNothingSits) {
    bench.reachWondering();
    values.requestIdle = true;
    bench.tick(2);
    EXPECT_EQ(now().mode.word, "IDLE");
    EXPECT_EQ(now().mode.detail, "The robot sits.");
    EXPECT_EQ(now().mode.tone, Tone::off);
    EXPECT_LT(now().mode.progress, 0);
    EXPECT_EQ(now().motionLink.word, "closed");
}

TEST_F(LinkGlance, SilenceIsShownFromOneSecondOn) {
    bench.reachWondering();
    bench.sensorFrames(1);
    bench.tick(9);
    EXPECT_EQ(now().motionLink.word, "up");
    EXPECT_LT(now().motionLink.progress, 0);
    bench.tick(1);
    EXPECT_EQ(now().motionLink.word, "silent");
    EXPECT_EQ(now().motionLink.detail, "silent 1.0 s of 20 s");
    EXPECT_EQ(now().motionLink.tone, Tone::warning);
    EXPECT_DOUBLE_EQ(now().motionLink.progress, 10.0 / 200);
}

TEST_F(LinkGlance, SilenceEndsWithAFrame) {
    bench.reachWondering();
    bench.sensorFrames(1);
    bench.tick(30);
    EXPECT_EQ(now().motionLink.word, "silent");
    bench.sensorFrames(1);
    EXPECT_EQ(now().motionLink.word, "up");
}

TEST_F(LinkGlance, HalfOfTheAllowedSilenceIsBad) {
    bench.reachWondering();
    bench.powerFrames(1);
    bench.tick(99);
    EXPECT_EQ(now().multimediaLink.tone, Tone::warning);
    bench.tick(1);
    EXPECT_EQ(now().multimediaLink.tone, Tone::bad);
    EXPECT_EQ(now().multimediaLink.detail, "silent 10.0 s of 20 s");
}

TEST_F(LinkGlance, SilenceIsFullAtTheLastTickBeforeTheRecovery) {
    bench.reachWondering();
    bench.powerFrames(1);
    bench.sensorFrames(1);
    bench.tick(200);
    EXPECT_DOUBLE_EQ(now().multimediaLink.progress, 1.0);
    EXPECT_EQ(now().mode.word, "wondering");
    bench.tick(1);
    EXPECT_EQ(gui.txtRobotStatus.text(), "comm wrong");
    EXPECT_EQ(now().mode.word, "comm wrong");
    EXPECT_EQ(now().mode.tone, Tone::bad);
    EXPECT_EQ(now().motionLink.word, "lost");
    EXPECT_EQ(now().multimediaLink.word, "lost");
}

TEST_F(LinkGlance, AfterTheRecoveryTheLinksWarmUpAgain) {
    bench.reachWondering();
    bench.powerFrames(1);
    bench.tick(201);
    bench.powerFrames(3);
    EXPECT_EQ(now().multimediaLink.detail, "frame 3 of 11");
    EXPECT_EQ(now().mode.word, "comm wrong");
    bench.powerFrames(8);
    EXPECT_EQ(now().multimediaLink.word, "up");
    EXPECT_EQ(now().mode.word, "IDLE");
}

TEST_F(LinkGlance, LookingChangesNothing) {
    bench.reachWondering();
    bench.tick(3);
    bench.take();
    const int step = values.startStep.value();
    const int silent = values.motSilentTicks.value();
    now();
    EXPECT_TRUE(bench.take().empty());
    EXPECT_EQ(values.startStep, step);
    EXPECT_EQ(values.motSilentTicks, silent);
}

}  // namespace
}  // namespace quorrin
