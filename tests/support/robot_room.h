// Places for simulated robots in tests: a bare room made by hand, and the shipped sites.
#pragma once

#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "platform/virtual/memory_files.h"
#include "robot/simulated_robot.h"

namespace quorrin {

// A room from (0, 0) to (width, depth), the robot at `at`, looking along `heading`. No noise-free promise:
// the robot's noise comes from its seed.
inline Site bareRoom(double width = 7, double depth = 7, Vec2 at = {3.5, 3.5}, double heading = 0) {
    Site site;
    site.name = "bare";
    site.walls = {{{0, 0}, {width, 0}},
                  {{width, 0}, {width, depth}},
                  {{width, depth}, {0, depth}},
                  {{0, depth}, {0, 0}}};
    site.start = {at, heading};
    return site;
}

inline std::string shippedSiteText(const std::string& name) {
    std::ifstream in(std::string(QUORRIN_SOURCE_DIR) + "/share/sites/" + name + ".json");
    if (!in) throw std::runtime_error("no site file " + name);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

inline Site shippedSite(const std::string& name) {
    MemoryFiles files;
    return parseSite(shippedSiteText(name), name + ".json", "/sites", files);
}

// A robot with power on its motion side and a motion peer that never tires, 500 ms after its start.
struct RobotAtWork {
    explicit RobotAtWork(Site site, std::uint64_t seed = 1, std::vector<Fault> scenario = {})
        : robot(std::move(site), seed, std::move(scenario)) {
        robot.onRanges = [this](const RangeReadings& r) {
            ranges = r;
            ++rangeFrames;
        };
        robot.onMotors = [this](const MotorReadings& r) {
            motors = r;
            ++motorFrames;
            if (onMotors) onMotors();
        };
        robot.onPower = [this](const PowerReadings& r) {
            power = r;
            ++powerFrames;
        };
        robot.writePowerByte(63);
        robot.motionPeerCame();
        run(500);
    }

    // Goes on for `ms`, the peer speaking all the time; nothing is commanded.
    void run(std::int64_t ms) {
        const std::int64_t until = robot.nowMs() + ms;
        while (robot.nowMs() + kRobotStepMs <= until) {
            robot.motionPeerHeard();
            robot.advanceTo(std::min(until, robot.nowMs() + 100));
        }
    }
    // The same with a velocity command that is renewed every 100 ms; counts per second, the left one negative
    // for forward.
    void drive(int left, int right, std::int64_t ms) {
        for (std::int64_t done = 0; done < ms; done += 100) {
            robot.setDriveVelocities(left, right);
            run(100);
        }
    }

    SimulatedRobot robot;
    RangeReadings ranges;
    MotorReadings motors;
    PowerReadings power;
    std::function<void()> onMotors;
    int rangeFrames = 0;
    int motorFrames = 0;
    int powerFrames = 0;
};

}  // namespace quorrin
