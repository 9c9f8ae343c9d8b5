// What a drive command carries, and its text on the command channel:
//
//   steering,gas,brake,head up and down,head left and right,mouth,collision avoidance,counter
//
// Scales: steering 0 (left) to 10000 (right), 5000 straight; gas 10000 none to 0 full; brake 10000 released
// to 0 full, and the robot moves only above 9000; head up and down 0 to 3500, left and right 0 to 4000, both
// 2000 ahead, and of both the station takes no notice of a 0; mouth 2650 to 3850; avoidance 1 on, else off. A
// steering above 10 asks the station for the JOY mode, so every command within the scales but full left does.
//
// The fields here are not held to the scales; limited() does that. Numbers go plain: no leading zeros, no
// blanks.
#pragma once

#include <string>

namespace quorrin {

struct DriveFields {
    int steering = 5000;
    int gas = 10000;
    int brake = 10000;
    int headUpDown = 2000;
    int headLeftRight = 2000;
    int mouth = 3400;
    int avoidance = 1;

    bool operator==(const DriveFields&) const = default;
};

struct Scale {
    int lowest;
    int highest;
};
constexpr Scale kLevelScale = {0, 10000};
// From 11 on, so that it asks for JOY as all the others do; no eye sees the difference to 0.
constexpr Scale kSteeringScale = {11, 10000};
constexpr Scale kHeadUpDownScale = {1, 3500};
constexpr Scale kHeadLeftRightScale = {1, 4000};
constexpr Scale kMouthScale = {2650, 3850};

constexpr int kStraight = 5000;
constexpr int kNoGas = 10000;
constexpr int kBrakeReleased = 10000;
constexpr int kBrakeFull = 0;
constexpr int kHeadAhead = 2000;

// Each field at the nearest end of its scale.
DriveFields limited(DriveFields fields);
// Straight, no gas, brake released; head, mouth and avoidance as they are. Under it the robot stands.
DriveFields neutral(DriveFields fields);
// Under these levels the wheels stand.
bool stands(const DriveFields& fields);

std::string driveText(const DriveFields& fields, int counter);

}  // namespace quorrin
