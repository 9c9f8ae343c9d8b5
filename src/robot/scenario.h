// Faults with times: what goes wrong with a simulated robot, and when.
//
// A scenario file is JSON Lines; blank lines and lines that begin with "#" are skipped. docs/site-format.md
// lists the faults and their keys. Times are seconds since the robot's start. Errors: SiteError with the
// line's number, also for a misspelt key.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "robot/geometry.h"
#include "robot/site_error.h"

namespace quorrin {

enum class FaultKind : std::uint8_t {
    silence,        // a link says nothing, its connection stays
    drop,           // a link's connection breaks and is refused for a while
    stallWheel,     // a wheel is blocked
    deadSensor,     // a sensor reads 0
    frozenEncoder,  // an encoder counts no more
    hotBattery,     // a battery reads too hot
    dock,           // power comes in where the robot stands
    undock,         // power goes, also on the site's own dock until the robot has left it
    person          // somebody comes
};

enum class RobotLink : std::uint8_t { mot = 0, ti = 1 };

struct Fault {
    double t_s = 0;
    FaultKind kind = FaultKind::silence;
    double for_s = 0;
    RobotLink link = RobotLink::mot;
    std::size_t side = 0;     // 0 left, 1 right
    std::size_t sensor = 0;   // see sensorNumber()
    std::size_t battery = 0;  // 0 or 1
    double volts = 16;
    std::optional<Vec2> at;  // a person's place; without it: in front of the robot
    std::optional<Vec2> to;
    double speed_mps = 0.6;
};

// Sensors by name: "ir0" to "ir6", "irHead", "irDisplay", "sonar0" to "sonar3", "human1", "human2"; numbered
// in this order from 0. Empty for any other name.
std::optional<std::size_t> sensorNumber(const std::string& name);

// In the order of their times.
std::vector<Fault> parseScenario(const std::string& text, const std::string& name);

}  // namespace quorrin
