// The simulated robot as a whole: body, drives, sensors, power, servos, display and sounds, in its site.
//
// It has no clock: advanceTo() takes it forward in fixed steps of 20 ms, and every command counts from the
// time that it has been taken to. Frames come out through hooks at fixed rates of its own time: the three
// motion frames every 100 ms while the motion side has power, the power frame every 500 ms. The same seed,
// site, scenario and commands give the same robot, to the bit.
//
// It knows no connection: who carries its frames says when a motion peer comes, speaks and goes.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "robot/body.h"
#include "robot/drives.h"
#include "robot/eyes/view.h"
#include "robot/noise.h"
#include "robot/people.h"
#include "robot/power.h"
#include "robot/range_sensors.h"
#include "robot/scenario.h"
#include "robot/servos.h"
#include "robot/site.h"

namespace quorrin {

constexpr std::int64_t kRobotStepMs = 20;
constexpr std::int64_t kMotionFrameMs = 100;
constexpr std::int64_t kPowerFrameMs = 500;

struct MotorReadings {
    std::array<int, 2> encoder{};     // left, right; 0 to 32766
    std::array<int, 2> speed{};       // counts per second, with the mounting's sign
    std::array<int, 2> currentAdc{};  // 728 units an ampere
};

struct PlayedSound {
    std::string name;
    std::size_t bytes = 0;
    std::string sha256;
};

class SimulatedRobot {
  public:
    SimulatedRobot(Site site, std::uint64_t seed, std::vector<Fault> scenario = {});

    std::int64_t nowMs() const { return nowMs_; }
    // Never backwards; whole steps only, so it may stand up to 19 ms short.
    void advanceTo(std::int64_t ms);

    // Motion link
    void motionPeerCame();
    void motionPeerGone();
    void motionPeerHeard();
    void setDriveControlMode(int channel, int mode);
    void setDriveVelocities(int left, int right);
    void moveDrivesTimed(int left, int right, int durationMs);
    void suspendDrive(int channel);
    void moveServosTimed(const std::array<int, 6>& goals, int durationMs);
    void showLcd(const std::string& file);
    // Multimedia link
    void writePowerByte(int value) { powerByte_ = value & 0xFF; }
    void playSound(const std::string& name, const std::string& file);
    // What its camera sees now.
    CameraView view(std::uint32_t frameNumber) const;

    // A link that a scenario has silenced or broken now.
    bool silent(RobotLink link) const { return silentUntilMs_[static_cast<std::size_t>(link)] > nowMs_; }
    bool refused(RobotLink link) const { return refusedUntilMs_[static_cast<std::size_t>(link)] > nowMs_; }
    std::function<void(RobotLink)> onDrop;

    std::function<void(const RangeReadings&)> onRanges;  // SensorFrame and IrFrame
    std::function<void(const MotorReadings&)> onMotors;
    std::function<void(const PowerReadings&)> onPower;
    // Every 100 ms of its time, after the frames.
    std::function<void()> onTruth;

    // What is true
    const Site& site() const { return site_; }
    const Body& body() const { return body_; }
    const Drives& drives() const { return drives_; }
    const People& people() const { return people_; }
    const Servos& servos() const { return servos_; }
    const RangeSensors& ranges() const { return sensors_; }
    Power& power() { return power_; }
    int powerByte() const { return powerByte_; }
    bool motionSideOn() const { return motionOn_; }
    bool docked() const { return dockVolts() > 0; }
    const std::string& lcdSha256() const { return lcd_; }
    // What was played since the last call.
    std::vector<PlayedSound> takeSounds();

  private:
    void step();
    void applyScenario();
    void begin(const Fault& fault);
    void sendMotionFrames();
    double dockVolts() const;
    std::array<double, 2> encoderCounts() const;
    bool on(std::int64_t untilMs) const { return untilMs > nowMs_; }

    Site site_;
    Noise noise_;
    Noise slipNoise_;
    std::vector<Fault> scenario_;
    std::size_t nextFault_ = 0;

    std::int64_t nowMs_ = 0;
    Body body_;
    Drives drives_;
    People people_;
    RangeSensors sensors_;
    Power power_;
    Servos servos_;
    int powerByte_ = 0x3B;  // everything but the motion side
    bool motionOn_ = false;
    std::int64_t motionBootMs_ = 0;
    bool peer_ = false;
    std::string lcd_;
    std::vector<PlayedSound> sounds_;
    std::vector<Segment> boxSegments_;

    std::array<double, 2> encoderStart_{};
    std::array<double, 2> encoderLost_{};  // counts that a frozen encoder has missed
    std::array<double, 2> lastTravel_m_{};

    // Faults in force, by the time of their end
    std::array<std::int64_t, 2> silentUntilMs_{};
    std::array<std::int64_t, 2> refusedUntilMs_{};
    std::array<std::int64_t, 2> stalledUntilMs_{};
    std::array<std::int64_t, 2> frozenUntilMs_{};
    std::array<std::int64_t, 2> hotUntilMs_{};
    std::array<std::int64_t, 15> deadUntilMs_{};
    std::int64_t cableUntilMs_ = 0;
    double cableVolts_ = 0;
    bool dockDenied_ = false;
};

}  // namespace quorrin
