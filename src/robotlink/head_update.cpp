#include "robotlink/head_update.h"

namespace quorrin {

namespace {

constexpr int kAhead = 2000;
constexpr int kMoveDurationMs = 300;

constexpr int kMouthOpen = 3400;
constexpr int kMouthShut = 2600;
constexpr int kMouthIsOpenFrom = 3001;

void lookUpDown(ServoValues& servo, const NeutralServoValues& neutral) {
    const Integer v = servo.headCmdUpDown;
    Integer& eyes = servo.servoOut5;
    Integer& head = servo.servoOut1;
    if (v == kAhead) {
        eyes = neutral.cEyeUpDown;
        head = neutral.cHeadUpDown;
    } else if (v >= 1300 && v <= 2900) {  // the eyes alone reach it
        eyes = neutral.cEyeUpDown + (v - kAhead);
        head = neutral.cHeadUpDown;
    } else if (v >= 1 && v < 1300) {
        eyes = 2800;
        head = neutral.cHeadUpDown + (1300 - v);
    } else if (v > 2900 && v <= 3500) {
        eyes = 4400;
        head = neutral.cHeadUpDown - (v - 2900);
    }
}

void lookLeftRight(ServoValues& servo, const NeutralServoValues& neutral) {
    const Integer h = servo.headCmdLeftRight;
    Integer& eyes = servo.servoOut6;
    Integer& head = servo.servoOut2;
    if (h == kAhead) {
        eyes = neutral.cEyeLeftRight;
        head = neutral.cHeadLeftRight;
    } else if (h >= 1200 && h <= 2800) {
        eyes = neutral.cEyeLeftRight + (h - kAhead);
        head = neutral.cHeadLeftRight;
    } else if (h >= 1 && h < 1200) {
        eyes = 2400;
        head = neutral.cHeadLeftRight - (1200 - h);
    } else if (h > 2800 && h <= 4000) {
        eyes = 4000;
        head = neutral.cHeadLeftRight + (h - 2800);
    }
}

}  // namespace

void updateHead(ServoValues& servo, const NeutralServoValues& neutral, QuorrinSDK& myRobot) {
    servo.servoOut3 = servo.mouthCmd;
    servo.servoOut4 = kNotCommanded;
    lookUpDown(servo, neutral);
    lookLeftRight(servo, neutral);
    myRobot.MoveServosTimed({servo.servoOut1, servo.servoOut2, servo.servoOut3, servo.servoOut4,
                             servo.servoOut5, servo.servoOut6},
                            kMoveDurationMs);
}

void flapMouth(ServoValues& servo, const NeutralServoValues& neutral, Timer& tmrMouth) {
    if (servo.mouthSteps < 1) {
        tmrMouth.setRunning(false);
        servo.mouthSteps = 0;
        servo.mouthCmd = neutral.cMouthUpDown;
        return;
    }
    --servo.mouthSteps;
    servo.mouthCmd = servo.mouthCmd < kMouthIsOpenFrom ? kMouthOpen : kMouthShut;
}

}  // namespace quorrin
