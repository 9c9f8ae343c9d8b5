// What the wheels do, what the encoders say of it, and what the world does to the body.
#include "robot/body.h"

#include <gtest/gtest.h>

#include <cmath>

#include "navigation/odometry.h"
#include "robotlink/load_guard.h"
#include "support/robot_room.h"

namespace quorrin {
namespace {

// The station's odometry over the robot's frames.
struct Follower {
    explicit Follower(RobotAtWork& work) : work_(work) {
        state.firstSample = true;
        sensors.encoderDataValid = true;
        take();
        work.onMotors = [this] { take(); };
    }
    void take() {
        sensors.encoderLeft = work_.motors.encoder[0];
        sensors.encoderRight = work_.motors.encoder[1];
        integrateOdometry(pose, sensors, state);
    }
    RobotAtWork& work_;
    PoseValues pose;
    SensorValues sensors;
    OdometryState state;
};

TEST(Body, OdometryAgreesWithTheTruthWithinOnePercentOverStraightsAndTurns) {
    RobotAtWork work(bareRoom());
    Follower follower(work);
    const Pose start = work.robot.body().pose();
    const auto check = [&] {
        const Pose now = work.robot.body().pose();
        const double allowed = 0.01 * work.robot.body().distance_m() + 0.005;
        EXPECT_NEAR(now.at.x - start.at.x, follower.pose.robotX, allowed);
        EXPECT_NEAR(now.at.y - start.at.y, follower.pose.robotY, allowed);
        EXPECT_NEAR(wrapAngle(now.heading - start.heading - follower.pose.robotTheta), 0, 0.02);
    };
    work.drive(-500, 500, 6000);
    check();
    EXPECT_GT(follower.pose.robotX, 1.0) << "forward is along x";
    work.drive(200, 200, 2600);
    check();
    EXPECT_GT(follower.pose.robotTheta, 1.0) << "two positive counts turn to the left";
    work.drive(-300, 600, 8000);
    check();
    work.drive(500, -500, 4000);
    check();
    EXPECT_EQ(work.robot.body().contacts(), 0);
}

TEST(Body, TurnsOnItsOwnPlaceWhenTheWheelsRunAgainstEachOther) {
    RobotAtWork work(bareRoom());
    work.drive(300, 300, 5000);
    EXPECT_NEAR(work.robot.body().pose().at.x, 3.5, 0.01);
    EXPECT_NEAR(work.robot.body().pose().at.y, 3.5, 0.01);
}

TEST(Body, DrivingFreelyStaysFarBelowTheLoadThatTheGuardCountsAndTheStuckDetectorsLimit) {
    RobotAtWork work(bareRoom());
    double heaviest = 0;
    double largestRatio = 0;
    work.onMotors = [&] {
        for (std::size_t side = 0; side < 2; ++side) {
            const double amperes = work.motors.currentAdc[side] / 728.0;
            heaviest = std::max(heaviest, amperes);
            largestRatio = std::max(largestRatio, amperes / std::abs(work.motors.speed[side] + 1.0));
        }
    };
    for (int i = 0; i < 5; ++i) {
        work.drive(-500, 500, 2000);
        work.drive(0, 0, 500);
        work.drive(-100, 500, 1000);
        work.drive(500, -500, 2000);
    }
    EXPECT_LT(heaviest, 0.6);
    EXPECT_LT(largestRatio, 0.3);
    EXPECT_EQ(work.robot.body().contacts(), 0);
}

TEST(Body, StallsAgainstAWallWithACurrentFarAboveTheRest) {
    RobotAtWork work(bareRoom(7, 7, {6.5, 3.5}));
    work.drive(-500, 500, 5000);
    EXPECT_NEAR(work.robot.body().pose().at.x, 6.8, 0.02);
    EXPECT_EQ(work.robot.body().contacts(), 1);
    EXPECT_EQ(work.motors.speed[0], 0);
    EXPECT_EQ(work.motors.speed[1], 0);
    EXPECT_GT(work.motors.currentAdc[0] / 728.0, 1.0);
    EXPECT_GT(work.motors.currentAdc[1] / 728.0, 1.0);
}

TEST(Body, GetsAwayFromTheWallByReversing) {
    RobotAtWork work(bareRoom(7, 7, {6.5, 3.5}));
    work.drive(-500, 500, 4000);
    work.drive(500, -500, 3000);
    EXPECT_LT(work.robot.body().pose().at.x, 6.4);
    EXPECT_LT(work.motors.currentAdc[0] / 728.0, 0.5);
}

TEST(Body, EncodersDoNotCountAgainstAWall) {
    RobotAtWork work(bareRoom(7, 7, {6.5, 3.5}));
    work.drive(-500, 500, 4000);
    const auto before = work.motors.encoder;
    work.drive(-500, 500, 3000);
    EXPECT_EQ(work.motors.encoder, before);
}

TEST(Body, PushesALightBoxAheadAndStallsAtAHeavyOne) {
    Site site = bareRoom(7, 7, {2, 3.5});
    site.boxes.push_back({{2.6, 3.5}, 0.4, 0.4, 0, 3});
    RobotAtWork light(site);
    light.drive(-500, 500, 8000);
    EXPECT_GT(light.robot.body().pose().at.x, 3.0);
    EXPECT_GT(light.robot.body().boxes()[0][0].x, 3.0);
    EXPECT_GE(light.robot.body().contacts(), 1);
    EXPECT_GT(light.motors.currentAdc[1] / 728.0, 0.35) << "pushing costs current";

    site.boxes[0].mass_kg = 60;
    RobotAtWork heavy(site);
    heavy.drive(-500, 500, 8000);
    EXPECT_LT(heavy.robot.body().pose().at.x, 2.3);
    EXPECT_GT(heavy.motors.currentAdc[1] / 728.0, 1.0);
}

TEST(Body, SensorsSeeABoxWhereItWasPushedTo) {
    Site site = bareRoom(7, 7, {2, 3.5});
    site.boxes.push_back({{2.6, 3.5}, 0.4, 0.4, 0, 3});
    RobotAtWork work(site);
    work.drive(-500, 500, 6000);
    work.drive(500, -500, 3000);
    const auto corners = work.robot.body().boxes()[0];
    const double front = std::min(std::min(corners[0].x, corners[1].x), std::min(corners[2].x, corners[3].x));
    EXPECT_GT(front, 2.6);
    EXPECT_NEAR(work.robot.ranges().irRange_m(kIrHead), front - work.robot.body().pose().at.x, 0.05);
}

TEST(Body, SpinsItsWheelsOnASlipperyFloor) {
    Site site = bareRoom();
    site.slippery.push_back({{0, 0}, {7, 7}, 0.05});
    RobotAtWork work(site);
    Follower follower(work);
    work.drive(-500, 500, 1500);
    EXPECT_GT(follower.pose.robotX, 1.1 * (work.robot.body().pose().at.x - 3.5))
        << "the wheels turn further than it goes";
}

TEST(Body, AContactIsCountedOnceHoweverLongItLasts) {
    RobotAtWork work(bareRoom(7, 7, {6.5, 3.5}));
    work.drive(-400, 500, 6000);
    const int once = work.robot.body().contacts();
    EXPECT_EQ(once, 1);
    work.drive(500, -500, 3000);
    work.drive(-500, 500, 5000);
    EXPECT_EQ(work.robot.body().contacts(), 2);
}

TEST(Body, AHeldWheelStandsAndItsCurrentRises) {
    RobotAtWork work(bareRoom(), 1,
                     parseScenario(R"({"t": 2, "fault": "stallWheel", "side": "left", "for": 3})", "s"));
    work.drive(-500, 500, 2500);
    EXPECT_EQ(work.motors.speed[0], 0);
    EXPECT_GT(work.motors.currentAdc[0] / 728.0, 1.0);
    EXPECT_GT(work.motors.speed[1], 100);
    work.drive(-500, 500, 3000);
    EXPECT_LT(work.motors.speed[0], -400) << "free again";
    EXPECT_LT(work.motors.currentAdc[0] / 728.0, 0.5);
}

TEST(Body, SpinsByPositionAsTheStationAsksForIt) {
    RobotAtWork work(bareRoom());
    const double before = work.robot.body().pose().heading;
    // a quarter turn to the left: both wheels the same number of counts up
    const double change = kExactPi / 2;
    const int counts = static_cast<int>(std::nearbyint(change * 1200 * 0.227 / 2 / 0.075 / 6.2831852));
    const auto target = [&](int encoder) { return (encoder + counts) % 32767; };
    work.robot.setDriveControlMode(0, 1);
    work.robot.setDriveControlMode(1, 1);
    work.robot.moveDrivesTimed(target(work.motors.encoder[0]), target(work.motors.encoder[1]), 500 + 1257);
    work.run(500 + 1257 + 500);
    EXPECT_NEAR(work.robot.body().pose().heading - before, change, 0.03);
    EXPECT_STREQ(work.robot.drives().modeText(0), "position");
}

}  // namespace
}  // namespace quorrin
