#include "console/status_line.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "base/number_text.h"

namespace quorrin {

namespace {

constexpr std::size_t kInfrareds = 7;  // the other three look where the head looks
constexpr std::size_t kSonars = 4;
constexpr double kFrontHalf_rad = 0.6;
constexpr double kSideEnd_rad = 2.4;

// The nearest of the ranges whose bearing lies between the two, 0 being a range that was never measured.
std::string nearest(const SensorValues& sensors, double from, double to) {
    double best = std::numeric_limits<double>::infinity();
    const auto offer = [&](double range, double bearing) {
        if (bearing >= from && bearing <= to && range > 0) best = std::min(best, range);
    };
    for (std::size_t i = 0; i < kInfrareds; ++i) offer(sensors.irRange[i], sensors.irAngle[i]);
    for (std::size_t i = 0; i < kSonars; ++i) offer(sensors.sonarRange[i], sensors.sonarAngle[i]);
    return std::isinf(best) ? "-" : formatFixed(best, 2);
}

std::string flag(bool value) {
    return value ? "1" : "0";
}

}  // namespace

std::string statusLine(const PublicValues& values, const std::string& mode, bool remoteConnected,
                       double seconds) {
    return "t=" + formatFixed(seconds, 1) + " mode=" + mode + " mot=" + flag(values.motLinkUp) +
           " ti=" + flag(values.tiLinkUp) + " x=" + formatFixed(values.robotX, 3) +
           " y=" + formatFixed(values.robotY, 3) + " theta=" + formatFixed(values.robotTheta, 3) +
           " front=" + nearest(values, -kFrontHalf_rad, kFrontHalf_rad) +
           " left=" + nearest(values, kFrontHalf_rad, kSideEnd_rad) +
           " right=" + nearest(values, -kSideEnd_rad, -kFrontHalf_rad) +
           " cmdL=" + formatFixed(values.wheelCmdLeft, 0) + " cmdR=" + formatFixed(values.wheelCmdRight, 0) +
           " bat1=" + formatFixed(values.battery1Volts, 2) + " bat2=" + formatFixed(values.battery2Volts, 2) +
           " dc=" + formatFixed(values.dcInVolts, 2) + " remote=" + flag(remoteConnected);
}

}  // namespace quorrin
