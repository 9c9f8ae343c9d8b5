#include "robotlink/power.h"

#include <string>

#include "base/number_text.h"

namespace quorrin {

namespace {

constexpr double kCoolFrom = 800;
constexpr int kChargeBits = 0xC0;  // bits 6 and 7 of powerByte
// Charger status: with any of these the state is not to be shown.
constexpr int kStatusUnclear = 0x68;
constexpr int kFlagsBattery1From = 128;
constexpr int kFlagBattery2 = 0x40;

using GeneralConstants::kGreen;
using GeneralConstants::kLightGreen;
using GeneralConstants::kRed;

double voltsFrom(Integer adc, double refVolts) {
    return adc / GeneralConstants::kAdcFullScale * refVolts * GeneralConstants::kPowerDivider;
}

std::string voltsText(double volts) {
    return formatFixed(volts, 2) + " V";
}

void showBattery(double threshold, double volts, Shape& lamp, bool& flash) {
    if (threshold < volts) {
        flash = false;
        lamp.setFill(kGreen);
    } else {
        lamp.setFill(kRed);
        flash = true;
    }
}

bool bothCool(const PowerValues& power) {
    return power.battery1Temp >= kCoolFrom && power.battery2Temp >= kCoolFrom;
}

void measure(const LinkProperties& frame, PowerValues& power, PowerControls& controls) {
    power.refVolts = frame.PowerRefAdc < 1 ? 0.0 : GeneralConstants::kReferenceNumerator / frame.PowerRefAdc;
    controls.lblVolRef.setCaption(formatFixed(power.refVolts, 3));

    power.battery1Volts = voltsFrom(frame.Battery1Adc, power.refVolts);
    controls.lblBat1vol.setCaption(voltsText(power.battery1Volts));
    power.battery1Temp = frame.Battery1TempAdc;
    controls.lblBat1Temp.setCaption(formatFixed(power.battery1Temp, 0));
    power.battery2Volts = voltsFrom(frame.Battery2Adc, power.refVolts);
    controls.lblBat2Vol.setCaption(voltsText(power.battery2Volts));
    power.battery2Temp = frame.Battery2TempAdc;
    controls.lblBat2Temp.setCaption(formatFixed(power.battery2Temp, 0));
    power.dcInVolts = voltsFrom(frame.DcInAdc, power.refVolts);
    controls.lblDCIN.setCaption(voltsText(power.dcInVolts));

    power.chargerStatus = frame.ChargerStatusByte & 255;
    controls.lblLTC1960.setCaption(std::to_string(power.chargerStatus.value()));
    power.chargerFlags = frame.ChargerFlagsByte & 255;
}

void decideCharging(double threshold, ModeValues& mode, PowerValues& power, LampControls& lamps,
                    const PowerHooks& hooks) {
    Shape& dcLamp = lamps.shpBatteryStatus(2);
    if (!(threshold < power.dcInVolts)) {
        dcLamp.setFill(kRed);
        return;
    }
    dcLamp.setFill(kGreen);
    if (hooks.formRunning && hooks.suspendTeleoperation) hooks.suspendTeleoperation();
    if (bothCool(power)) {
        power.powerByte = power.powerByte | kChargeBits;
        mode.requestIdle = true;
    } else {
        power.powerByte = power.powerByte & ~kChargeBits;
        power.chargeFlash = false;
    }
}

void showCharger(PowerValues& power, PowerControls& controls, LampControls& lamps) {
    if ((power.chargerStatus & kStatusUnclear) != 0) return;
    if (power.chargerStatus == 0) {
        lamps.shpBatteryStatus(3).setFill(kRed);
        power.chargeFlash = false;
        controls.cmdStopChg.setEnabled(false);
        return;
    }
    controls.cmdStopChg.setEnabled(true);
    lamps.shpBatteryStatus(3).setFill(kGreen);
    power.chargeFlash = true;
    if (power.chargerFlags >= kFlagsBattery1From) {
        lamps.shpBatteryStatus(0).setFill(kRed);
        power.battery1Flash = true;
    }
    if ((power.chargerFlags & kFlagBattery2) != 0) {
        lamps.shpBatteryStatus(1).setFill(kRed);
        power.battery2Flash = true;
    }
}

}  // namespace

void measurePower(const LinkProperties& frame, ModeValues& mode, PowerValues& power, PowerControls& controls,
                  LampControls& lamps, const PowerHooks& hooks) {
    measure(frame, power, controls);
    const double threshold = parseNumber(controls.txtVolTh.text()).value_or(0.0);
    showBattery(threshold, power.battery1Volts, lamps.shpBatteryStatus(0), power.battery1Flash);
    showBattery(threshold, power.battery2Volts, lamps.shpBatteryStatus(1), power.battery2Flash);
    decideCharging(threshold, mode, power, lamps, hooks);
    showCharger(power, controls, lamps);
    lamps.shpBatteryStatus(4).setFill(bothCool(power) ? kGreen : kRed);
}

void flashRed(const PowerValues& power, LampControls& lamps) {
    const auto flash = [&lamps](bool flag, int element) {
        if (!flag) return;
        Shape& lamp = lamps.shpBatteryStatus(element);
        lamp.setFill(lamp.fill() == kLightGreen ? kRed : kLightGreen);
    };
    flash(power.battery1Flash, 0);
    flash(power.battery2Flash, 1);
    flash(power.chargeFlash, 3);
}

void stopCharge(PowerValues& power, QuorrinSDK& robotTI) {
    power.powerByte = power.powerByte & ~kChargeBits;
    robotTI.WritePowerByte(power.powerByte.value());
}

}  // namespace quorrin
