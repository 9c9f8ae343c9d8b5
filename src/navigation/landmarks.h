// Absolute position from ranges to raised landmarks of known place.
//
// Two receivers on the robot each range two landmarks. The two circle intersections are two points on the
// robot; their mean is the position, and the line between them is square to the heading. Metres and radians
// of the world frame; landmark numbers and table rows count from 1.
//
// The tables are supplied by whoever starts the landmark task; nothing else here fills them.
//
// Errors: intersectLandmarks and landmarkFix report a bad table or a floating-point fault as "no fix".
// choosePairs, selectZonePairs and clearLandmarkRanges throw ProgramError for an index outside the tables.
#pragma once

#include "base/checked_int.h"
#include "robotlink/quorrin_sdk.h"
#include "session/record/landmark_values.h"

namespace quorrin {

// Which pair has usable ranges: 1 the first, 2 the second, 0 none.
Integer choosePairs(const LandmarkValues& landmarks);

// Position and heading from landmarks a and b; true when it ran to the end.
bool intersectLandmarks(const LandmarkValues& landmarks, Integer a, Integer b, double& x, double& y,
                        double& heading);

// The fix from the pair that `choice` names; 3 takes the means of both pairs.
bool fixFromChoice(const LandmarkValues& landmarks, Integer choice, double& x, double& y, double& heading);

// True on a fix.
bool landmarkFix(const LandmarkValues& landmarks, double& x, double& y, double& heading);

// Picks the landmark pairs for a position and tells the robot. Does nothing before the first fix.
void selectZonePairs(LandmarkValues& landmarks, double x, double y, QuorrinSDK& myRobot);

// A range is used for one tick only.
void clearLandmarkRanges(LandmarkValues& landmarks);

}  // namespace quorrin
