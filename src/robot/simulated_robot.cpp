#include "robot/simulated_robot.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "robot/sha256.h"
#include "robot/wheels.h"

namespace quorrin {

namespace {

constexpr double kStep_s = static_cast<double>(kRobotStepMs) / 1000.0;
constexpr double kFrame_s = static_cast<double>(kMotionFrameMs) / 1000.0;
constexpr std::int64_t kMotionBootMs = 200;
constexpr int kMotionBit = 0x04;

constexpr double kRimSlip = 0.002;
constexpr double kDriveUnitsPerAmpere = 728.0;
constexpr double kCurrentNoise_A = 0.008;

constexpr double kDockReach_m = 0.06;
constexpr double kDockAngle = 12.0 * kExactPi / 180.0;
constexpr double kDockLeave_m = 0.4;
constexpr double kPersonAhead_m = 1.2;

}  // namespace

SimulatedRobot::SimulatedRobot(Site site, std::uint64_t seed, std::vector<Fault> scenario)
    : site_(std::move(site)),
      noise_(seed),
      slipNoise_(seed ^ 0x5DEECE66DULL),
      scenario_(std::move(scenario)),
      body_(site_),
      people_(site_.people),
      sensors_(fixedSegments(site_)) {
    // Encoders begin wherever the wheels happened to stand.
    for (double& start : encoderStart_) start = std::floor(noise_.uniform() * kEncoderModulus);
}

std::array<double, 2> SimulatedRobot::encoderCounts() const {
    std::array<double, 2> counts{};
    for (std::size_t side = 0; side < 2; ++side)
        counts[side] = encoderStart_[side] - encoderLost_[side] +
                       mountingSign(side) * body_.wheel(side).travelled_m * kCountsPerMetre;
    return counts;
}

void SimulatedRobot::advanceTo(std::int64_t ms) {
    while (nowMs_ + kRobotStepMs <= ms) step();
}

void SimulatedRobot::step() {
    nowMs_ += kRobotStepMs;
    applyScenario();

    const bool powered = (powerByte_ & kMotionBit) != 0;
    if (powered && !motionOn_) {
        motionOn_ = true;
        motionBootMs_ = nowMs_ + kMotionBootMs;
        if (peer_) drives_.connect(nowMs_);
    }
    motionOn_ = powered;
    if (!motionOn_) drives_.suspendBoth();

    const std::array<double, 2> before = encoderCounts();
    const WheelTargets targets = drives_.step(nowMs_, kStep_s, before);
    people_.step(kStep_s, body_.pose().at);
    std::array<bool, 2> held{};
    std::array<double, 2> slip{};
    for (std::size_t side = 0; side < 2; ++side) {
        held[side] = on(stalledUntilMs_[side]);
        slip[side] = kRimSlip * slipNoise_.gauss();
    }
    body_.step(kStep_s, targets, held, slip, people_.positions());
    const std::array<double, 2> after = encoderCounts();
    for (std::size_t side = 0; side < 2; ++side)
        if (on(frozenUntilMs_[side])) encoderLost_[side] += after[side] - before[side];
    if (motionOn_) servos_.step(kStep_s);

    if (nowMs_ % kMotionFrameMs == 0) {
        power_.step(kFrame_s, body_.wheel(0).current_A + body_.wheel(1).current_A, dockVolts(), powerByte_);
        if (motionOn_ && nowMs_ >= motionBootMs_) sendMotionFrames();
        if (nowMs_ % kPowerFrameMs == 0) {
            const PowerReadings readings = power_.read(&noise_);
            if (onPower && !silent(RobotLink::ti)) onPower(readings);
        }
        if (onTruth) onTruth();
    }
}

void SimulatedRobot::sendMotionFrames() {
    boxSegments_.clear();
    body_.boxSegments(boxSegments_);
    RangeReadings ranges = sensors_.read(body_.pose(), boxSegments_, people_.positions(), &noise_);
    for (std::size_t i = 0; i < deadUntilMs_.size(); ++i) {
        if (!on(deadUntilMs_[i])) continue;
        if (i < kIrSensors)
            ranges.irAdc[i] = 0;
        else if (i < kIrSensors + kSonars)
            ranges.sonarCm[i - kIrSensors] = 0;
        else
            ranges.humanAdc[i - kIrSensors - kSonars] = 0;
    }

    MotorReadings motors;
    const std::array<double, 2> counts = encoderCounts();
    for (std::size_t side = 0; side < 2; ++side) {
        const WheelState& wheel = body_.wheel(side);
        motors.encoder[side] = encoderReading(counts[side]);
        const double travelled = wheel.travelled_m - lastTravel_m_[side];
        lastTravel_m_[side] = wheel.travelled_m;
        if (!on(frozenUntilMs_[side]))
            motors.speed[side] =
                static_cast<int>(std::nearbyint(mountingSign(side) * travelled / kFrame_s * kCountsPerMetre));
        const double amperes = std::max(0.0, wheel.current_A + kCurrentNoise_A * noise_.gauss());
        motors.currentAdc[side] = static_cast<int>(std::nearbyint(amperes * kDriveUnitsPerAmpere));
    }
    if (silent(RobotLink::mot)) return;
    if (onRanges) onRanges(ranges);
    if (onMotors) onMotors(motors);
}

void SimulatedRobot::motionPeerCame() {
    peer_ = true;
    drives_.connect(nowMs_);
}

void SimulatedRobot::motionPeerGone() {
    peer_ = false;
    drives_.disconnect();
}

void SimulatedRobot::motionPeerHeard() {
    drives_.heard(nowMs_);
}

void SimulatedRobot::setDriveControlMode(int channel, int mode) {
    if (motionOn_) drives_.setMode(channel, mode);
}

void SimulatedRobot::setDriveVelocities(int left, int right) {
    if (!motionOn_) return;
    if (left != Servos::kLeaveAlone) drives_.setVelocity(0, left, nowMs_);
    if (right != Servos::kLeaveAlone) drives_.setVelocity(1, right, nowMs_);
}

void SimulatedRobot::moveDrivesTimed(int left, int right, int durationMs) {
    if (!motionOn_) return;
    const std::array<double, 2> counts = encoderCounts();
    if (left != Servos::kLeaveAlone) drives_.moveTo(0, left, durationMs, counts[0], nowMs_);
    if (right != Servos::kLeaveAlone) drives_.moveTo(1, right, durationMs, counts[1], nowMs_);
}

void SimulatedRobot::suspendDrive(int channel) {
    drives_.suspend(channel);
}

void SimulatedRobot::moveServosTimed(const std::array<int, 6>& goals, int durationMs) {
    if (!motionOn_) return;
    for (std::size_t i = 0; i < goals.size(); ++i) servos_.move(i, goals[i], durationMs);
}

void SimulatedRobot::showLcd(const std::string& file) {
    if (motionOn_) lcd_ = sha256Hex(file);
}

void SimulatedRobot::playSound(const std::string& name, const std::string& file) {
    sounds_.push_back({name, file.size(), sha256Hex(file)});
}

std::vector<PlayedSound> SimulatedRobot::takeSounds() {
    return std::exchange(sounds_, {});
}

CameraView SimulatedRobot::view(std::uint32_t frameNumber) const {
    const Pose pose = body_.pose();
    const Vec2 look = gaze(servos_);
    CameraView view;
    view.timeMs = nowMs_;
    view.frame = frameNumber;
    view.eye = at(pose.at, kEyeHeight_m);
    view.yaw = pose.heading + look.x;
    view.pitch = look.y;
    view.boxes = body_.boxes();
    view.people = people_.positions();
    return view;
}

double SimulatedRobot::dockVolts() const {
    if (on(cableUntilMs_)) return cableVolts_;
    if (!site_.hasDock || dockDenied_) return 0;
    const Pose pose = body_.pose();
    const bool there = length(pose.at - site_.dock.pose.at) <= kDockReach_m &&
                       std::abs(wrapAngle(pose.heading - site_.dock.pose.heading)) <= kDockAngle;
    return there ? site_.dock.volts : 0;
}

void SimulatedRobot::applyScenario() {
    while (nextFault_ < scenario_.size() && scenario_[nextFault_].t_s * 1000.0 <= static_cast<double>(nowMs_))
        begin(scenario_[nextFault_++]);
    for (std::size_t i = 0; i < 2; ++i) power_.setHot(i, on(hotUntilMs_[i]));
    if (dockDenied_ && length(body_.pose().at - site_.dock.pose.at) > kDockLeave_m) dockDenied_ = false;
}

void SimulatedRobot::begin(const Fault& fault) {
    const std::int64_t until = nowMs_ + static_cast<std::int64_t>(std::nearbyint(fault.for_s * 1000.0));
    const auto link = static_cast<std::size_t>(fault.link);
    switch (fault.kind) {
        case FaultKind::silence:
            silentUntilMs_[link] = until;
            break;
        case FaultKind::drop:
            refusedUntilMs_[link] = until;
            if (onDrop) onDrop(fault.link);
            break;
        case FaultKind::stallWheel:
            stalledUntilMs_[fault.side] = until;
            break;
        case FaultKind::deadSensor:
            deadUntilMs_[fault.sensor] = until;
            break;
        case FaultKind::frozenEncoder:
            frozenUntilMs_[fault.side] = until;
            break;
        case FaultKind::hotBattery:
            hotUntilMs_[fault.battery] = until;
            break;
        case FaultKind::dock:
            cableUntilMs_ = until;
            cableVolts_ = fault.volts;
            break;
        case FaultKind::undock:
            cableUntilMs_ = 0;
            dockDenied_ = true;
            break;
        case FaultKind::person: {
            const Pose pose = body_.pose();
            const Vec2 at = fault.at.value_or(pose.at + unitVector(pose.heading) * kPersonAhead_m);
            people_.appear(at, fault.to, fault.speed_mps, fault.for_s);
            break;
        }
    }
}

}  // namespace quorrin
