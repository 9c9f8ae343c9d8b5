#include "robotlink/motion_intake.h"

#include <cstddef>

#include "base/number_text.h"
#include "navigation/math/ir_range.h"
#include "robotlink/load_guard.h"
#include "robotlink/presence.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

// Ten frames after a gateway start do not count, the next one raises the link.
constexpr int kWarmupFrames = 10;
constexpr int kLastFrameCount = 32765;

void noteFrame(LinkValues& link) {
    if (link.motLinkUp) {
        link.motSilentTicks = 0;
        return;
    }
    ++link.motWarmupCount;
    if (link.motWarmupCount > kWarmupFrames) {
        link.motLinkUp = true;
        link.motWarmupCount = 0;
        link.motSilentTicks = 0;
    }
}

void countFrame(Label& label) {
    const Integer count = numberToInteger(label.caption());
    const Integer next = count > kLastFrameCount ? Integer(0) : count + 1;
    label.setCaption(std::to_string(next.value()));
}

void storeIrRange(SensorValues& sensors, std::size_t element, Integer adc) {
    const double range_m = irRangeFromAdc(adc) + sensors.irRadius[element];
    if (range_m > GeneralConstants::kSmallestStoredIrRange_m) sensors.irRange[element] = range_m;
}

}  // namespace

void onSensorFrame(const LinkProperties& frame, LinkValues& link, SensorValues& sensors,
                   MotionControls& controls) {
    noteFrame(link);
    countFrame(controls.lblSensorCnt);

    storeIrRange(sensors, 0, frame.IrAdc0);
    // The raw reading of another sensor on purpose: this box is a raw read-out.
    controls.txtFrontIRL.setText(std::to_string(frame.IrAdcDisplay.value()));
    storeIrRange(sensors, 7, frame.IrAdcHead);
    controls.txtFrontIRR.setText(formatShortest(sensors.irRange[7]));
    // One reading stands for three bearings.
    storeIrRange(sensors, 8, frame.IrAdcHead);
    storeIrRange(sensors, 9, frame.IrAdcHead);

    for (int i = 1; i <= 4; ++i) {
        const auto element = static_cast<std::size_t>(i - 1);
        sensors.sonarRange[element] = frame.SonarCm(i - 1) / 100.0 + sensors.sonarRadius[element];
    }

    sensors.humanRaw[2] = frame.HumanAdc2;
    sensors.humanRaw[1] = frame.HumanAdc1;
    controls.lblHuman.setCaption(std::to_string(sensors.humanRaw[1].value()));
    controls.imgHumanLeft.setVisible(false);
    controls.imgHumanRight.setVisible(false);
    decidePresence(sensors, controls);
}

void onIrFrame(const LinkProperties& frame, SensorValues& sensors) {
    storeIrRange(sensors, 6, frame.IrAdc6);
    storeIrRange(sensors, 5, frame.IrAdc5);
    storeIrRange(sensors, 4, frame.IrAdc4);
    storeIrRange(sensors, 3, frame.IrAdc3);
    storeIrRange(sensors, 2, frame.IrAdc2);
    storeIrRange(sensors, 1, frame.IrAdc1);
}

void onMotorFrame(const LinkProperties& frame, SensorValues& sensors, LampControls& lamps,
                  QuorrinSDK& myRobot) {
    sensors.encoderLeft = frame.EncoderPositionLeft;
    sensors.encoderRight = frame.EncoderPositionRight;
    sensors.motorCurrentLeft = frame.DriveCurrentLeft / GeneralConstants::kDriveUnitsPerAmpere;
    sensors.motorCurrentRight = frame.DriveCurrentRight / GeneralConstants::kDriveUnitsPerAmpere;
    sensors.wheelSpeedLeft = frame.EncoderSpeedLeft;
    sensors.wheelSpeedRight = frame.EncoderSpeedRight;
    guardDriveLoad(sensors, lamps, myRobot);
    sensors.encoderDataValid = true;
}

}  // namespace quorrin
