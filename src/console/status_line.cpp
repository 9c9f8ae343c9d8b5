#include "console/status_line.h"

#include "base/number_text.h"
#include "console/nearest_range.h"

namespace quorrin {

namespace {

std::string nearest(const SensorValues& sensors, RangeSide side) {
    const std::optional<double> range = nearestRange(sensors, side);
    return range ? formatFixed(*range, 2) : "-";
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
           " front=" + nearest(values, RangeSide::front) + " left=" + nearest(values, RangeSide::left) +
           " right=" + nearest(values, RangeSide::right) + " cmdL=" + formatFixed(values.wheelCmdLeft, 0) +
           " cmdR=" + formatFixed(values.wheelCmdRight, 0) + " bat1=" + formatFixed(values.battery1Volts, 2) +
           " bat2=" + formatFixed(values.battery2Volts, 2) + " dc=" + formatFixed(values.dcInVolts, 2) +
           " remote=" + flag(remoteConnected) +
           (values.listenProblem.empty() ? "" : " (" + values.listenProblem + ")");
}

}  // namespace quorrin
