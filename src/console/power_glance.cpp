#include "console/power_glance.h"

#include <algorithm>

#include "base/number_text.h"
#include "console/lamp_sign.h"

namespace quorrin {

namespace {

constexpr double kHeatLimit = 90;
constexpr double kHeatFree = 25;

std::string volts(double value) {
    return formatFixed(value, 2) + " V";
}

std::string batteryDetail(const LampSign& sign, double value) {
    if (sign.word == "CHECK") return volts(value) + ", reported by the charger";
    if (sign.word == "WAS LOW") return volts(value) + ", the lamp is left from before";
    return volts(value);
}

std::string chargeDetail(const LampSign& sign) {
    if (sign.word == "CHARGING") return "The charger is at work.";
    if (sign.word == "OFF") return "The charger rests.";
    return "The charger does not tell; its lamp is left from before.";
}

std::string temperatureDetail(const PublicValues& values) {
    return formatFixed(values.battery1Temp, 0) + " and " + formatFixed(values.battery2Temp, 0) +
           " (cool from 800)";
}

std::string driveDetail(const LampSign& sign, double amperes, double heat) {
    const std::string load = formatFixed(amperes, 2) + " A, load " + formatFixed(heat, 0) + " of 90";
    if (sign.word == "OVERLOAD") return load + ", drives held";
    if (sign.word == "COOLING") return load + ", free below 25";
    if (sign.word == "HELD") return load + ", held with the other drive";
    return load;
}

Glance driveGlance(const LampSign& sign, double amperes, double heat) {
    const double progress = heat >= kHeatFree ? std::min(1.0, heat / kHeatLimit) : -1.0;
    return {sign.word, driveDetail(sign, amperes, heat), sign.tone, progress};
}

std::string powerDetail(const PublicValues& values, const LampSign& sign, int element) {
    switch (element) {
        case 0:
            return batteryDetail(sign, values.battery1Volts);
        case 1:
            return batteryDetail(sign, values.battery2Volts);
        case 2:
            return volts(values.dcInVolts);
        case 3:
            return chargeDetail(sign);
        default:
            return temperatureDetail(values);
    }
}

}  // namespace

Glance lampGlance(const PublicValues& values, const frmGUI& gui, int element) {
    constexpr int kLeftDrive = 5;
    constexpr int kRightDrive = 6;
    const LampSign sign = lampSign(values, gui, element);
    if (sign.shape == LampShape::question && sign.tone == Tone::off)
        return {sign.word, "No frame has come yet.", sign.tone};
    if (element == kLeftDrive) return driveGlance(sign, values.motorCurrentLeft, values.motorHeatLeft);
    if (element == kRightDrive) return driveGlance(sign, values.motorCurrentRight, values.motorHeatRight);
    return {sign.word, powerDetail(values, sign, element), sign.tone};
}

}  // namespace quorrin
