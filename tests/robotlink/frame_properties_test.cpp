#include "robotlink/frame_properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

namespace quorrin {
namespace {

using testing::ElementsAre;

std::vector<int> numbers(std::initializer_list<Integer> values) {
    std::vector<int> all;
    for (const Integer value : values) all.push_back(value.value());
    return all;
}

TEST(FrameProperties, ASensorFrameFillsItsOwnOnly) {
    LinkProperties link;
    link.IrAdc1 = 77;
    wire::SensorFrame frame;
    frame.set_ir_adc_0(1);
    frame.set_ir_adc_display(2);
    frame.set_ir_adc_head(3);
    frame.set_sonar_cm_0(4);
    frame.set_sonar_cm_1(5);
    frame.set_sonar_cm_2(6);
    frame.set_sonar_cm_3(7);
    frame.set_human_adc_1(8);
    frame.set_human_adc_2(9);
    takeSensorFrame(link, frame);
    EXPECT_THAT(numbers({link.IrAdc0, link.IrAdcDisplay, link.IrAdcHead, link.SonarCm(0), link.SonarCm(1),
                         link.SonarCm(2), link.SonarCm(3), link.HumanAdc1, link.HumanAdc2}),
                ElementsAre(1, 2, 3, 4, 5, 6, 7, 8, 9));
    EXPECT_EQ(link.IrAdc1, 77);
}

TEST(FrameProperties, AnIrFrameFillsSixReadings) {
    LinkProperties link;
    wire::IrFrame frame;
    frame.set_ir_adc_1(1);
    frame.set_ir_adc_2(2);
    frame.set_ir_adc_3(3);
    frame.set_ir_adc_4(4);
    frame.set_ir_adc_5(5);
    frame.set_ir_adc_6(6);
    takeIrFrame(link, frame);
    EXPECT_THAT(numbers({link.IrAdc1, link.IrAdc2, link.IrAdc3, link.IrAdc4, link.IrAdc5, link.IrAdc6}),
                ElementsAre(1, 2, 3, 4, 5, 6));
}

TEST(FrameProperties, AMotorFrameKeepsItsSidesApart) {
    LinkProperties link;
    wire::MotorFrame frame;
    frame.set_encoder_position_left(32766);
    frame.set_encoder_position_right(2);
    frame.set_encoder_speed_left(-3);
    frame.set_encoder_speed_right(4);
    frame.set_drive_current_left(-5);
    frame.set_drive_current_right(6);
    takeMotorFrame(link, frame);
    EXPECT_THAT(numbers({link.EncoderPositionLeft, link.EncoderPositionRight, link.EncoderSpeedLeft,
                         link.EncoderSpeedRight, link.DriveCurrentLeft, link.DriveCurrentRight}),
                ElementsAre(32766, 2, -3, 4, -5, 6));
}

TEST(FrameProperties, APowerFrameFillsBatteriesDockAndCharger) {
    LinkProperties link;
    wire::PowerFrame frame;
    frame.set_power_ref_adc(1);
    frame.set_battery1_adc(2);
    frame.set_battery2_adc(3);
    frame.set_dc_in_adc(4);
    frame.set_battery1_temp_adc(5);
    frame.set_battery2_temp_adc(6);
    frame.set_charger_status_byte(7);
    frame.set_charger_flags_byte(8);
    takePowerFrame(link, frame);
    EXPECT_THAT(
        numbers({link.PowerRefAdc, link.Battery1Adc, link.Battery2Adc, link.DcInAdc, link.Battery1TempAdc,
                 link.Battery2TempAdc, link.ChargerStatusByte, link.ChargerFlagsByte}),
        ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
}

}  // namespace
}  // namespace quorrin
