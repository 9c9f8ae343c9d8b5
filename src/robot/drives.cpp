#include "robot/drives.h"

#include <algorithm>
#include <cmath>

#include "robot/wheels.h"

namespace quorrin {

namespace {

constexpr double kFastestWheel_mps = 0.5;
constexpr double kFastestTurn_radps = 2.0;
constexpr double kAcceleration_mps2 = 0.8;
constexpr double kBraking_mps2 = 4.0;  // suspended
constexpr double kPositionGain = 6.0;  // 1/s, near the goal
constexpr double kPositionNear_counts = 0.5;

double rampTowards(double from, double to, double largestStep) {
    return from + std::clamp(to - from, -largestStep, largestStep);
}

}  // namespace

void Drives::connect(std::int64_t nowMs) {
    connected_ = true;
    heardMs_ = nowMs;
    for (Channel& channel : channels_) {
        const double ramp = channel.ramp_mps;
        channel = Channel{};
        channel.suspended = false;
        channel.leaseEndsMs = nowMs;
        channel.ramp_mps = ramp;
    }
}

void Drives::disconnect() {
    connected_ = false;
    suspendBoth();
}

void Drives::setMode(int channel, int mode) {
    if (mode != 1 && mode != 2) return;
    Channel& it = channels_[index(channel)];
    const DriveMode wanted = mode == 1 ? DriveMode::position : DriveMode::velocity;
    if (wanted == it.mode) return;
    it.mode = wanted;
    it.commanded_mps = 0;
    it.moving = false;
}

void Drives::setVelocity(int channel, int countsPerSecond, std::int64_t nowMs) {
    Channel& it = channels_[index(channel)];
    if (it.mode != DriveMode::velocity) return;
    it.suspended = false;
    it.commanded_mps = mountingSign(index(channel)) * countsPerSecond / kCountsPerMetre;
    it.leaseEndsMs = nowMs + kVelocityLeaseMs;
}

void Drives::moveTo(int channel, int position, int durationMs, double encoder, std::int64_t nowMs) {
    Channel& it = channels_[index(channel)];
    if (it.mode != DriveMode::position) return;
    const double way = std::remainder(position - encoder, kEncoderModulus);
    it.suspended = false;
    it.goal = encoder + way;
    it.moveEndsMs = nowMs + std::max(durationMs, 0);
    it.moving = true;
}

void Drives::suspend(int channel) {
    Channel& it = channels_[index(channel)];
    it.suspended = true;
    it.commanded_mps = 0;
    it.moving = false;
}

void Drives::suspendBoth() {
    suspend(0);
    suspend(1);
}

double Drives::wanted(Channel& channel, std::size_t side, std::int64_t nowMs, double encoder) const {
    if (channel.suspended) return 0;
    if (channel.mode == DriveMode::velocity) {
        if (nowMs >= channel.leaseEndsMs) channel.commanded_mps = 0;
        return channel.commanded_mps;
    }
    if (!channel.moving) return 0;
    const double way = channel.goal - encoder;
    if (std::abs(way) < kPositionNear_counts) return 0;
    // Even speed over the time that is left, eased at the end so that the ramp can stop it on the goal.
    const double left_s = static_cast<double>(channel.moveEndsMs - nowMs) / 1000.0;
    const double even = left_s > 0.05 ? std::abs(way) / left_s : kFastestWheel_mps * kCountsPerMetre;
    const double eased = std::min(even, std::abs(way) * kPositionGain);
    return mountingSign(side) * std::copysign(eased, way) / kCountsPerMetre;
}

WheelTargets Drives::step(std::int64_t nowMs, double dt_s, const std::array<double, 2>& encoders) {
    if (connected_ && nowMs - heardMs_ >= kDeadManMs) suspendBoth();

    std::array<double, 2> speed{};
    for (std::size_t side = 0; side < 2; ++side) {
        speed[side] = std::clamp(wanted(channels_[side], side, nowMs, encoders[side]), -kFastestWheel_mps,
                                 kFastestWheel_mps);
    }
    const double largestDifference = kFastestTurn_radps * kWheelBase_m;
    const double difference = speed[1] - speed[0];
    if (std::abs(difference) > largestDifference) {
        const double middle = (speed[0] + speed[1]) / 2;
        const double half = std::copysign(largestDifference / 2, difference);
        speed = {middle - half, middle + half};
    }

    WheelTargets targets;
    for (std::size_t side = 0; side < 2; ++side) {
        Channel& channel = channels_[side];
        const double rate = channel.suspended ? kBraking_mps2 : kAcceleration_mps2;
        channel.ramp_mps = rampTowards(channel.ramp_mps, speed[side], rate * dt_s);
        targets.speed_mps[side] = channel.ramp_mps;
        targets.powered[side] = !channel.suspended;
    }
    return targets;
}

const char* Drives::modeText(int channel) const {
    const Channel& it = channels_[index(channel)];
    if (it.suspended) return "suspended";
    return it.mode == DriveMode::velocity ? "velocity" : "position";
}

}  // namespace quorrin
