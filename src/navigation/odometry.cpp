#include "navigation/odometry.h"

#include <cmath>

#include "navigation/math/angles.h"
#include "navigation/math/wheels.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

constexpr double kMapLimit_m = 7.9;
constexpr int kLostByRangeReset = 50;

}  // namespace

void integrateOdometry(PoseValues& pose, const SensorValues& sensors, OdometryState& state) {
    if (!sensors.encoderDataValid) return;
    const double left = sensors.encoderLeft;
    const double right = sensors.encoderRight;
    if (state.firstSample) {
        state.previousEncoderLeft = left;
        state.previousEncoderRight = right;
        state.firstSample = false;
        return;
    }
    // The left drive is mounted mirrored.
    state.stepLeft = -countsToMetres(encoderChange(left, state.previousEncoderLeft));
    state.previousEncoderLeft = left;
    state.stepRight = countsToMetres(encoderChange(right, state.previousEncoderRight));
    state.previousEncoderRight = right;

    pose.thetaStep = (state.stepRight - state.stepLeft) / GeneralConstants::kWheelBase_m;
    double heading = reduceTurns(pose.robotTheta + pose.thetaStep);
    wrapPi(heading);
    pose.robotTheta = heading;
    pose.robotX += std::cos(heading) * (state.stepLeft + state.stepRight) * 0.5;
    pose.robotY += std::sin(heading) * (state.stepLeft + state.stepRight) * 0.5;

    if (std::fabs(pose.robotX) > kMapLimit_m || std::fabs(pose.robotY) > kMapLimit_m) {
        pose.lostFixCount = kLostByRangeReset;
        pose.robotX = 0;
        pose.robotY = 0;
        pose.robotTheta = 0;
    }
}

}  // namespace quorrin
