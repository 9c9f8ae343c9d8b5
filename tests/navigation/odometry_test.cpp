#include "navigation/odometry.h"

#include <gtest/gtest.h>

#include <cmath>

#include "navigation/math/wheels.h"

namespace quorrin {
namespace {

class Odometry : public ::testing::Test {
  protected:
    Odometry() {
        sensors.encoderDataValid = true;
        state.firstSample = true;
        sample(1000, 1000);
    }
    void sample(int left, int right) {
        sensors.encoderLeft = left;
        sensors.encoderRight = right;
        integrateOdometry(pose, sensors, state);
    }
    PoseValues pose;
    SensorValues sensors;
    OdometryState state;
};

TEST_F(Odometry, TheFirstSampleOnlyRecordsTheEncoders) {
    EXPECT_EQ(state.previousEncoderLeft, 1000);
    EXPECT_EQ(state.previousEncoderRight, 1000);
    EXPECT_FALSE(state.firstSample);
    EXPECT_EQ(pose.robotX, 0);
}

TEST_F(Odometry, DoesNothingBeforeAMotionFrameHasArrived) {
    sensors.encoderDataValid = false;
    sample(900, 1100);
    EXPECT_EQ(state.previousEncoderLeft, 1000);
    EXPECT_EQ(pose.robotX, 0);
}

TEST_F(Odometry, EqualStepsGoStraightAlongTheHeading) {
    pose.robotTheta = 0.5;
    sample(900, 1100);  // the left encoder falls on a forward roll
    const double step = countsToMetres(100);
    EXPECT_EQ(pose.thetaStep, 0);
    EXPECT_EQ(pose.robotTheta, 0.5);
    EXPECT_DOUBLE_EQ(pose.robotX, std::cos(0.5) * step);
    EXPECT_DOUBLE_EQ(pose.robotY, std::sin(0.5) * step);
    EXPECT_EQ(state.stepLeft, step);
    EXPECT_EQ(state.stepRight, step);
}

TEST_F(Odometry, MovesAlongTheNewHeading) {
    sample(1000, 1100);
    const double step = countsToMetres(100);
    const double turn = step / 0.227;
    EXPECT_DOUBLE_EQ(pose.thetaStep, turn);
    EXPECT_DOUBLE_EQ(pose.robotTheta, turn);
    EXPECT_DOUBLE_EQ(pose.robotX, std::cos(turn) * step * 0.5);
    EXPECT_DOUBLE_EQ(pose.robotY, std::sin(turn) * step * 0.5);
}

TEST_F(Odometry, KeepsTheHeadingWrapped) {
    pose.robotTheta = 3.1;
    sample(1000, 1100);
    EXPECT_LT(pose.robotTheta, 0);
    EXPECT_NEAR(pose.robotTheta, 3.1 + countsToMetres(100) / 0.227 - 6.2831852, 1e-12);
}

TEST_F(Odometry, RollsThroughTheEncodersWrap) {
    sample(1000, 1000);
    state.previousEncoderRight = 32700;
    state.previousEncoderLeft = 50;
    sample(32700, 50);
    EXPECT_DOUBLE_EQ(state.stepRight, countsToMetres(117));
    EXPECT_DOUBLE_EQ(state.stepLeft, countsToMetres(117));
}

TEST_F(Odometry, AtExactlyTheLimitThePoseStays) {
    pose.robotX = 7.9;
    pose.robotY = -7.9;
    sample(1000, 1000);
    EXPECT_EQ(pose.robotX, 7.9);
    EXPECT_EQ(pose.robotY, -7.9);
    EXPECT_EQ(pose.lostFixCount, 0);
}

TEST_F(Odometry, BeyondTheLimitThePoseIsTheOriginFacingAlongX) {
    for (const double beyond : {7.91, -7.91}) {
        pose.robotX = beyond;
        pose.robotY = 1;
        pose.robotTheta = 1;
        pose.lostFixCount = 0;
        sample(1000, 1000);
        EXPECT_EQ(pose.robotX, 0);
        EXPECT_EQ(pose.robotY, 0);
        EXPECT_EQ(pose.robotTheta, 0);
        EXPECT_EQ(pose.lostFixCount, 50);
    }
}

TEST_F(Odometry, BeyondTheLimitInYResetsAllToo) {
    pose.robotX = 3;
    pose.robotY = 7.91;
    sample(1000, 1000);
    EXPECT_EQ(pose.robotX, 0);
    EXPECT_EQ(pose.robotY, 0);
    EXPECT_EQ(pose.lostFixCount, 50);
}

TEST_F(Odometry, AFalseWrapIsCaughtByTheRangeRule) {
    sample(1000, 2000);  // a jump of 1000 counts reads as 1000 - 32767
    EXPECT_DOUBLE_EQ(state.stepRight, countsToMetres(1000.0 - 32767));
    EXPECT_LE(std::fabs(pose.robotX), 7.9);
}

}  // namespace
}  // namespace quorrin
