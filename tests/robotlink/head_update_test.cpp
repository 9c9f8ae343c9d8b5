#include "robotlink/head_update.h"

#include <gtest/gtest.h>

#include "support/fake_link.h"
#include "support/intake_form.h"

namespace quorrin {
namespace {

class HeadUpdate : public ::testing::Test {
  protected:
    HeadUpdate() {
        // Every neutral position differs, so that no mix-up stays hidden.
        neutral = {3600, 3650, 2900, 3510, 3490};
        servo.headCmdUpDown = servo.headCmdLeftRight = 2000;
        servo.mouthCmd = 2900;
    }
    struct Pair {
        int eyes;
        int head;
        bool operator==(const Pair&) const = default;
    };
    Pair upDown(int v) {
        servo.headCmdUpDown = v;
        updateHead(servo, neutral, robot);
        return {servo.servoOut5, servo.servoOut1};
    }
    Pair leftRight(int h) {
        servo.headCmdLeftRight = h;
        updateHead(servo, neutral, robot);
        return {servo.servoOut6, servo.servoOut2};
    }

    FakeLink robot;
    ServoValues servo;
    NeutralServoValues neutral;
};

TEST_F(HeadUpdate, SendsTheNeutralPositionsEveryTimeAtRest) {
    updateHead(servo, neutral, robot);
    updateHead(servo, neutral, robot);
    const std::string line = "MoveServosTimed 3600 3650 2900 -32768 3510 3490 300";
    EXPECT_EQ(robot.operations(), (std::vector<std::string>{line, line}));
}

TEST_F(HeadUpdate, SendsTheMouthCommandAndLeavesTheSpareChannelAlone) {
    servo.mouthCmd = 3400;
    updateHead(servo, neutral, robot);
    EXPECT_EQ(servo.servoOut3, 3400);
    EXPECT_EQ(servo.servoOut4, -32768);
    EXPECT_TRUE(robot.asked("MoveServosTimed 3600 3650 3400 -32768 3510 3490 300"));
}

TEST_F(HeadUpdate, MovesTheEyesFirstOnTheVerticalAxis) {
    EXPECT_EQ(upDown(1999), (Pair{3509, 3600}));
    EXPECT_EQ(upDown(1300), (Pair{3510 - 700, 3600}));
    EXPECT_EQ(upDown(2001), (Pair{3511, 3600}));
    EXPECT_EQ(upDown(2900), (Pair{3510 + 900, 3600}));
}

TEST_F(HeadUpdate, MovesTheHeadAgainstTheCommandOnTheVerticalAxis) {
    EXPECT_EQ(upDown(1299), (Pair{2800, 3601}));
    EXPECT_EQ(upDown(1), (Pair{2800, 3600 + 1299}));
    EXPECT_EQ(upDown(2901), (Pair{4400, 3599}));
    EXPECT_EQ(upDown(3500), (Pair{4400, 3000}));
}

TEST_F(HeadUpdate, MovesTheEyesFirstOnTheHorizontalAxis) {
    EXPECT_EQ(leftRight(1999), (Pair{3489, 3650}));
    EXPECT_EQ(leftRight(1200), (Pair{3490 - 800, 3650}));
    EXPECT_EQ(leftRight(2001), (Pair{3491, 3650}));
    EXPECT_EQ(leftRight(2800), (Pair{3490 + 800, 3650}));
}

TEST_F(HeadUpdate, MovesTheHeadWithTheCommandOnTheHorizontalAxis) {
    EXPECT_EQ(leftRight(1199), (Pair{2400, 3649}));
    EXPECT_EQ(leftRight(1), (Pair{2400, 3650 - 1199}));
    EXPECT_EQ(leftRight(2801), (Pair{4000, 3651}));
    EXPECT_EQ(leftRight(4000), (Pair{4000, 3650 + 1200}));
}

TEST_F(HeadUpdate, LeavesTheLastOutputsInPlaceOutsideTheTables) {
    const Pair vertical = upDown(3000);
    for (const int v : {0, -1, 3501, 10000, -32768, 32767}) EXPECT_EQ(upDown(v), vertical) << v;
    const Pair horizontal = leftRight(3000);
    for (const int h : {0, -1, 4001, 10000, -32768, 32767}) EXPECT_EQ(leftRight(h), horizontal) << h;
}

TEST_F(HeadUpdate, MovesOneAxisWhenTheOtherIsOutsideItsTable) {
    upDown(2500);
    servo.headCmdUpDown = 3501;
    EXPECT_EQ(leftRight(2500), (Pair{3990, 3650}));
    EXPECT_EQ(servo.servoOut5, 4010);
}

class Mouth : public ::testing::Test {
  protected:
    Mouth() {
        neutral.cMouthUpDown = 2900;
        servo.mouthCmd = 2900;
        gui.tmrMouth.setHandler([this] {
            flapMouth(servo, neutral, gui.tmrMouth);
            moves.push_back(servo.mouthCmd);
        });
    }
    VirtualClock clock;
    IntakeForm gui{clock};
    ServoValues servo;
    NeutralServoValues neutral;
    std::vector<int> moves;
};

TEST_F(Mouth, FlapsForItsStepsThenComesToRestAndStopsItsTimer) {
    servo.mouthSteps = 3;
    gui.tmrMouth.setRunning(true);
    clock.runFor(900);
    EXPECT_TRUE(gui.tmrMouth.running());
    EXPECT_EQ(servo.mouthSteps, 0);
    clock.runFor(3000);
    EXPECT_EQ(moves, (std::vector<int>{3400, 2600, 3400, 2900}));
    EXPECT_FALSE(gui.tmrMouth.running());
}

TEST_F(Mouth, OpensFrom3000AndShutsFrom3001) {
    servo.mouthSteps = 1;
    servo.mouthCmd = 3000;
    flapMouth(servo, neutral, gui.tmrMouth);
    EXPECT_EQ(servo.mouthCmd, 3400);
    servo.mouthSteps = 1;
    servo.mouthCmd = 3001;
    flapMouth(servo, neutral, gui.tmrMouth);
    EXPECT_EQ(servo.mouthCmd, 2600);
}

TEST_F(Mouth, ComesToRestAtOnceWithoutSteps) {
    servo.mouthSteps = -4;
    servo.mouthCmd = 3400;
    gui.tmrMouth.setRunning(true);
    clock.runFor(300);
    EXPECT_EQ(servo.mouthSteps, 0);
    EXPECT_EQ(servo.mouthCmd, 2900);
    EXPECT_FALSE(gui.tmrMouth.running());
}

}  // namespace
}  // namespace quorrin
