#include "robotlink/frame_properties.h"

namespace quorrin {

void takeSensorFrame(LinkProperties& link, const wire::SensorFrame& frame) {
    link.IrAdc0 = frame.ir_adc_0();
    link.IrAdcDisplay = frame.ir_adc_display();
    link.IrAdcHead = frame.ir_adc_head();
    link.sonarCm = {frame.sonar_cm_0(), frame.sonar_cm_1(), frame.sonar_cm_2(), frame.sonar_cm_3()};
    link.HumanAdc1 = frame.human_adc_1();
    link.HumanAdc2 = frame.human_adc_2();
}

void takeIrFrame(LinkProperties& link, const wire::IrFrame& frame) {
    link.IrAdc1 = frame.ir_adc_1();
    link.IrAdc2 = frame.ir_adc_2();
    link.IrAdc3 = frame.ir_adc_3();
    link.IrAdc4 = frame.ir_adc_4();
    link.IrAdc5 = frame.ir_adc_5();
    link.IrAdc6 = frame.ir_adc_6();
}

void takeMotorFrame(LinkProperties& link, const wire::MotorFrame& frame) {
    link.EncoderPositionLeft = frame.encoder_position_left();
    link.EncoderPositionRight = frame.encoder_position_right();
    link.EncoderSpeedLeft = frame.encoder_speed_left();
    link.EncoderSpeedRight = frame.encoder_speed_right();
    link.DriveCurrentLeft = frame.drive_current_left();
    link.DriveCurrentRight = frame.drive_current_right();
}

void takePowerFrame(LinkProperties& link, const wire::PowerFrame& frame) {
    link.PowerRefAdc = frame.power_ref_adc();
    link.Battery1Adc = frame.battery1_adc();
    link.Battery2Adc = frame.battery2_adc();
    link.DcInAdc = frame.dc_in_adc();
    link.Battery1TempAdc = frame.battery1_temp_adc();
    link.Battery2TempAdc = frame.battery2_temp_adc();
    link.ChargerStatusByte = frame.charger_status_byte();
    link.ChargerFlagsByte = frame.charger_flags_byte();
}

}  // namespace quorrin
