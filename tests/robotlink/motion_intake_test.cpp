#include "robotlink/motion_intake.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "navigation/math/ir_range.h"
#include "support/fake_link.h"
#include "support/intake_form.h"

namespace quorrin {
namespace {

// Readings of the IR curve: a thing at about 0.30 m, and one so near that it counts as 0.09 m.
constexpr int kMiddle = 1200;
constexpr int kNear = 4000;

class MotionIntake : public ::testing::Test {
  protected:
    MotionIntake() { sensors.irRadius = {0.18, 0.18, 0.18, 0.18, 0.12, 0.18, 0.12, 0, 0, 0}; }
    void sensorFrame(int times = 1) {
        for (int i = 0; i < times; ++i) onSensorFrame(robot, link, sensors, gui);
    }
    void motorFrame(int times = 1) {
        for (int i = 0; i < times; ++i) onMotorFrame(robot, sensors, gui, robot);
    }

    VirtualClock clock;
    IntakeForm gui{clock};
    FakeLink robot;
    LinkValues link;
    SensorValues sensors;
};

TEST_F(MotionIntake, RaisesTheLinkOnTheEleventhSensorFrame) {
    link.motSilentTicks = 5;
    sensorFrame(10);
    EXPECT_FALSE(link.motLinkUp);
    EXPECT_EQ(link.motWarmupCount, 10);
    EXPECT_EQ(link.motSilentTicks, 5);
    sensorFrame();
    EXPECT_TRUE(link.motLinkUp);
    EXPECT_EQ(link.motWarmupCount, 0);
    EXPECT_EQ(link.motSilentTicks, 0);
}

TEST_F(MotionIntake, RefreshesARaisedLinkWithEverySensorFrame) {
    link.motLinkUp = true;
    link.motWarmupCount = 4;
    link.motSilentTicks = 199;
    sensorFrame();
    EXPECT_EQ(link.motSilentTicks, 0);
    EXPECT_EQ(link.motWarmupCount, 4);
}

TEST_F(MotionIntake, CountsSensorFramesAndStartsAnewAbove32765) {
    EXPECT_EQ(gui.lblSensorCnt.caption(), "0");
    sensorFrame(3);
    EXPECT_EQ(gui.lblSensorCnt.caption(), "3");
    gui.lblSensorCnt.setCaption("32765");
    sensorFrame();
    EXPECT_EQ(gui.lblSensorCnt.caption(), "32766");
    sensorFrame();
    EXPECT_EQ(gui.lblSensorCnt.caption(), "0");
    gui.lblSensorCnt.setCaption("32767");
    sensorFrame();
    EXPECT_EQ(gui.lblSensorCnt.caption(), "0");
}

TEST_F(MotionIntake, StoresTheFirstIrRangeFromTheRobotsCentre) {
    robot.IrAdc0 = kMiddle;
    sensorFrame();
    EXPECT_DOUBLE_EQ(sensors.irRange[0], irRangeFromAdc(kMiddle) + 0.18);
    EXPECT_GT(sensors.irRange[0], 0.23);
}

TEST_F(MotionIntake, KeepsTheOldRangeWhenTheNewOneIsTooSmall) {
    sensors.irRange[7] = 1.5;
    robot.IrAdcHead = kNear;  // 0.09 m, and this sensor sits at the centre
    sensorFrame(100);
    EXPECT_DOUBLE_EQ(sensors.irRange[7], 1.5);
    EXPECT_DOUBLE_EQ(sensors.irRange[8], 0.0);
    EXPECT_DOUBLE_EQ(sensors.irRange[9], 0.0);
}

TEST_F(MotionIntake, DoesNotStoreARangeOfExactly23Centimetres) {
    sensors.irRange[0] = 1.5;
    robot.IrAdc0 = kNear;
    sensors.irRadius[0] = 0.14;
    ASSERT_EQ(irRangeFromAdc(kNear) + sensors.irRadius[0], 0.23);
    sensorFrame();
    EXPECT_DOUBLE_EQ(sensors.irRange[0], 1.5);
    sensors.irRadius[0] += 1e-6;
    sensorFrame();
    EXPECT_DOUBLE_EQ(sensors.irRange[0], 0.230001);
}

TEST_F(MotionIntake, KeepsTheOldRangeWhenTheReadingIsBelowTheCurve) {
    sensors.irRange[0] = 0.7;
    robot.IrAdc0 = 0;
    sensorFrame();
    EXPECT_DOUBLE_EQ(sensors.irRange[0], 0.7);
}

TEST_F(MotionIntake, ShowsTheRawReadingOfTheDisplaySensorOnTheLeft) {
    robot.IrAdc0 = 1111;
    robot.IrAdcDisplay = 2222;
    sensorFrame();
    EXPECT_EQ(gui.txtFrontIRL.text(), "2222");
}

TEST_F(MotionIntake, ShowsTheHeadSensorsRangeInMetresOnTheRight) {
    robot.IrAdcHead = kNear;
    sensors.irRange[7] = 1.5;  // the new reading is not stored: the box shows what is stored
    sensorFrame();
    EXPECT_EQ(gui.txtFrontIRR.text(), "1.5");
}

TEST_F(MotionIntake, TakesThreeBearingsFromTheHeadsOneReading) {
    robot.IrAdcHead = kMiddle;
    sensors.irRadius[8] = 0.01;
    sensors.irRadius[9] = 0.02;
    sensorFrame();
    const double range = irRangeFromAdc(kMiddle);
    EXPECT_DOUBLE_EQ(sensors.irRange[7], range);
    EXPECT_DOUBLE_EQ(sensors.irRange[8], range + 0.01);
    EXPECT_DOUBLE_EQ(sensors.irRange[9], range + 0.02);
}

TEST_F(MotionIntake, TakesFourSonarsWithoutALowerLimit) {
    robot.sonarCm = {88, 120, 0, 255};
    sensors.sonarRadius = {0.195, 0.195, 0.195, 0.17, 0.5, 0.5};
    sensors.sonarRange = {9, 9, 9, 9, 9, 9};
    sensorFrame();
    EXPECT_DOUBLE_EQ(sensors.sonarRange[0], 0.88 + 0.195);
    EXPECT_DOUBLE_EQ(sensors.sonarRange[1], 1.2 + 0.195);
    EXPECT_DOUBLE_EQ(sensors.sonarRange[2], 0.195);
    EXPECT_DOUBLE_EQ(sensors.sonarRange[3], 2.55 + 0.17);
    EXPECT_DOUBLE_EQ(sensors.sonarRange[4], 9.0);
    EXPECT_DOUBLE_EQ(sensors.sonarRange[5], 9.0);
}

TEST_F(MotionIntake, StoresBothPresenceSamplesAndShowsTheFirst) {
    robot.HumanAdc1 = 2100;
    robot.HumanAdc2 = 3900;
    sensorFrame();
    EXPECT_EQ(sensors.humanRaw[1], 2100);
    EXPECT_EQ(sensors.humanRaw[2], 3900);
    EXPECT_EQ(sensors.humanRaw[0], 0);
    EXPECT_EQ(gui.lblHuman.caption(), "2100");
    EXPECT_EQ(gui.txtHumanLocation.text(), "4");
}

TEST_F(MotionIntake, HidesThePicturesBeforeItDecides) {
    robot.HumanAdc1 = 3000;
    sensorFrame();
    ASSERT_TRUE(gui.imgHumanLeft.visible());
    std::vector<bool> seen;
    gui.imgHumanLeft.onLook = [&] { seen.push_back(gui.imgHumanLeft.visible()); };
    sensorFrame();
    EXPECT_EQ(seen, (std::vector<bool>{false, true}));
}

TEST_F(MotionIntake, SendsNothingOnASensorOrIrFrame) {
    sensorFrame(20);
    onIrFrame(robot, sensors);
    EXPECT_TRUE(robot.operations().empty());
}

TEST_F(MotionIntake, StoresSixRangesFromAnIrFrame) {
    robot.IrAdc1 = 700;
    robot.IrAdc2 = 800;
    robot.IrAdc3 = 900;
    robot.IrAdc4 = 1000;
    robot.IrAdc5 = 1100;
    robot.IrAdc6 = 1200;
    sensors.irRange.fill(5);
    onIrFrame(robot, sensors);
    EXPECT_DOUBLE_EQ(sensors.irRange[1], irRangeFromAdc(700) + 0.18);
    EXPECT_DOUBLE_EQ(sensors.irRange[2], irRangeFromAdc(800) + 0.18);
    EXPECT_DOUBLE_EQ(sensors.irRange[3], irRangeFromAdc(900) + 0.18);
    EXPECT_DOUBLE_EQ(sensors.irRange[4], irRangeFromAdc(1000) + 0.12);
    EXPECT_DOUBLE_EQ(sensors.irRange[5], irRangeFromAdc(1100) + 0.18);
    EXPECT_DOUBLE_EQ(sensors.irRange[6], irRangeFromAdc(1200) + 0.12);
    for (const std::size_t other : {0U, 7U, 8U, 9U}) EXPECT_DOUBLE_EQ(sensors.irRange[other], 5.0);
}

TEST_F(MotionIntake, KeepsOldRangesThroughAnIrFrameWithoutEcho) {
    sensors.irRange.fill(0.6);
    onIrFrame(robot, sensors);  // all readings 0
    EXPECT_TRUE(
        std::all_of(sensors.irRange.begin(), sensors.irRange.end(), [](double r) { return r == 0.6; }));
}

TEST_F(MotionIntake, StoresEncodersSpeedsAndCurrentsFromAMotorFrame) {
    robot.EncoderPositionLeft = 32767;
    robot.EncoderPositionRight = 12;
    robot.EncoderSpeedLeft = -120;
    robot.EncoderSpeedRight = 118;
    robot.DriveCurrentLeft = 728;
    robot.DriveCurrentRight = 182;
    EXPECT_FALSE(sensors.encoderDataValid);
    motorFrame();
    EXPECT_EQ(sensors.encoderLeft, 32767);
    EXPECT_EQ(sensors.encoderRight, 12);
    EXPECT_DOUBLE_EQ(sensors.wheelSpeedLeft, -120);
    EXPECT_DOUBLE_EQ(sensors.wheelSpeedRight, 118);
    EXPECT_DOUBLE_EQ(sensors.motorCurrentLeft, 1.0);
    EXPECT_DOUBLE_EQ(sensors.motorCurrentRight, 0.25);
    EXPECT_TRUE(sensors.encoderDataValid);
    EXPECT_TRUE(robot.operations().empty());
}

TEST_F(MotionIntake, StopsTheDrivesOnAnOverloadedMotorFrame) {
    robot.DriveCurrentLeft = 2184;  // 3 A: the heat grows by 7.2 a frame
    motorFrame(12);
    EXPECT_FALSE(sensors.motionInhibit);
    EXPECT_TRUE(robot.operations().empty());
    motorFrame();
    EXPECT_TRUE(sensors.motionInhibit);
    EXPECT_EQ(robot.operations(), (std::vector<std::string>{"SuspendDrive 0", "SuspendDrive 1"}));
}

TEST_F(MotionIntake, RaisesAndRefreshesTheLinkBySensorFramesOnly) {
    for (int i = 0; i < 50; ++i) {
        onIrFrame(robot, sensors);
        motorFrame();
    }
    EXPECT_FALSE(link.motLinkUp);
    EXPECT_EQ(link.motWarmupCount, 0);
    link.motLinkUp = true;
    link.motSilentTicks = 150;
    onIrFrame(robot, sensors);
    motorFrame();
    EXPECT_EQ(link.motSilentTicks, 150);
}

}  // namespace
}  // namespace quorrin
