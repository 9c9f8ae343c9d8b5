// Landmark tables and the choice of landmark pairs. Nothing in this system fills the tables: whoever starts
// the landmark estimator supplies them.
//
// landmarkPos[number] = {-, x, y, z} in metres (second index 1 to 3); ranges in metres by landmark number;
// landmarkPairTable[row] = {-, first, second} (second index 1 and 2). Index 0 is unused throughout.
#pragma once

#include <array>
#include <vector>

#include "base/checked_int.h"

namespace quorrin {

struct LandmarkValues {
    bool landmarkRunEnabled = false;     // fixes may be taken
    bool landmarkLocked = false;         // a fix has been achieved; zone selection is allowed
    bool landmarkSelectPending = false;  // a new selection has gone to the robot
    Integer landmarkHold;                // 16-bit truth value, stays 0 in this system
    std::vector<std::array<double, 4>> landmarkPos;
    std::vector<double> landmarkRangeA;
    std::vector<double> landmarkRangeB;
    Integer landmarkCount;
    std::vector<std::array<Integer, 3>> landmarkPairTable;
    Integer pairA1;
    Integer pairA2;
    Integer pairB1;
    Integer pairB2;
    Integer zoneRow;
    Integer zoneChangeCount;
};

}  // namespace quorrin
