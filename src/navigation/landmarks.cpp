#include "navigation/landmarks.h"

#include <cmath>
#include <vector>

#include "base/checked_real.h"
#include "base/program_error.h"
#include "navigation/math/angles.h"
#include "session/record/general_constants.h"

namespace quorrin {

namespace {

constexpr double kReceiversApart_m = 0.3;

template <typename T>
auto& element(T& table, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= table.size())
        throw ProgramError("landmarks: index outside the table");
    return table[static_cast<std::size_t>(index)];
}

bool usablePair(const LandmarkValues& marks, Integer first, Integer second) {
    const double a = element(marks.landmarkRangeA, first);
    const double b = element(marks.landmarkRangeB, first);
    return a > 0 && b > 0 && element(marks.landmarkRangeA, second) > 0 &&
           element(marks.landmarkRangeB, second) > 0 && std::fabs(a - b) < kReceiversApart_m;
}

struct Point {
    double x = 0;
    double y = 0;
};

// The place of a receiver that measures `rangeA` and `rangeB` to two landmarks at `a` and `b` ({-, x, y, z}).
// Of the two intersections it is always the one to the right of the line from a to b; (0, 0) where the
// circles do not meet.
Point receiverPoint(const std::array<double, 4>& a, const std::array<double, 4>& b, double rangeA,
                    double rangeB) {
    const double alongX = b[1] - a[1];
    const double alongY = b[2] - a[2];
    const double d = squareRoot(alongX * alongX + alongY * alongY, "landmark distance");
    const double ra = squareRoot(rangeA * rangeA - a[3] * a[3], "landmark range");
    const double rb = squareRoot(rangeB * rangeB - b[3] * b[3], "landmark range");
    const double p = quotient((ra * ra + d * d - rb * rb) / 2.0, d, "landmark distance");
    const double h2 = ra * ra - p * p;
    if (h2 < 0) return {};
    const double h = -std::sqrt(h2);
    const double x = a[1] + alongX * p / d - alongY * h / d;
    const double y = a[2] + alongY * p / d + alongX * h / d;
    return {finite(x, "landmark point"), finite(y, "landmark point")};
}

struct Zone {
    int row;
    int firstMark;
    int secondMark;
    int secondPairRow;
};

// Metres of the world frame. The order counts: the first that matches is taken. Row 0: none.
Zone zoneOf(double x, double y) {
    if (x >= -0.1 && x < 2.5 && y >= 0 && y <= 3.5) return {1, 1, 2, 2};
    if (x >= -2.0 && x < -0.1 && y > -1.05 && y < 1.2) return {2, 3, 4, 1};
    if (x >= -4.5 && x < -2.0 && y > -0.5 && y < 1.2) return {3, 7, 8, 2};
    if (x > -1.0 && x <= 2.5 && y > -2.5 && y < -0.5) return {4, 5, 10, 2};
    return {0, 0, 0, 0};
}

void loadPairs(LandmarkValues& marks, const Zone& zone) {
    const auto& first = element(marks.landmarkPairTable, zone.row);
    marks.pairA1 = first[1];
    marks.pairA2 = first[2];
    const auto& second = element(marks.landmarkPairTable, zone.secondPairRow);
    marks.pairB1 = second[1];
    marks.pairB2 = second[2];
}

}  // namespace

Integer choosePairs(const LandmarkValues& landmarks) {
    if (usablePair(landmarks, landmarks.pairA1, landmarks.pairA2)) return 1;
    if (usablePair(landmarks, landmarks.pairB1, landmarks.pairB2)) return 2;
    return 0;
}

bool intersectLandmarks(const LandmarkValues& landmarks, Integer a, Integer b, double& x, double& y,
                        double& heading) {
    try {
        const auto& placeA = element(landmarks.landmarkPos, a);
        const auto& placeB = element(landmarks.landmarkPos, b);
        const Point first = receiverPoint(placeA, placeB, element(landmarks.landmarkRangeA, a),
                                          element(landmarks.landmarkRangeA, b));
        const Point second = receiverPoint(placeA, placeB, element(landmarks.landmarkRangeB, a),
                                           element(landmarks.landmarkRangeB, b));
        heading = bearingBetween(second.x, second.y, first.x, first.y) + GeneralConstants::kHalfPi;
        wrapPi(heading);
        x = (first.x + second.x) / 2.0;
        y = (first.y + second.y) / 2.0;
        return true;
    } catch (const ProgramError&) {
        return false;
    }
}

bool fixFromChoice(const LandmarkValues& landmarks, Integer choice, double& x, double& y, double& heading) {
    if (choice == 1) return intersectLandmarks(landmarks, landmarks.pairA1, landmarks.pairA2, x, y, heading);
    if (choice == 2) return intersectLandmarks(landmarks, landmarks.pairB1, landmarks.pairB2, x, y, heading);
    if (choice != 3) return false;
    double otherX = 0;
    double otherY = 0;
    double otherHeading = 0;
    if (!intersectLandmarks(landmarks, landmarks.pairA1, landmarks.pairA2, x, y, heading)) return false;
    if (!intersectLandmarks(landmarks, landmarks.pairB1, landmarks.pairB2, otherX, otherY, otherHeading))
        return false;
    x = (x + otherX) / 2.0;
    y = (y + otherY) / 2.0;
    heading = (heading + otherHeading) / 2.0;
    return true;
}

bool landmarkFix(const LandmarkValues& landmarks, double& x, double& y, double& heading) {
    try {
        return fixFromChoice(landmarks, choosePairs(landmarks), x, y, heading);
    } catch (const ProgramError&) {
        return false;  // tables that were never loaded: the fix counts as lost
    }
}

void selectZonePairs(LandmarkValues& landmarks, double x, double y, QuorrinSDK& myRobot) {
    if (!landmarks.landmarkLocked) return;
    const Zone zone = zoneOf(x, y);
    if (zone.row != 0) {
        landmarks.zoneRow = zone.row;
        if (landmarks.pairA1 != zone.firstMark && landmarks.pairA2 != zone.secondMark) {
            ++landmarks.zoneChangeCount;
            loadPairs(landmarks, zone);
        }
    }
    if (landmarks.zoneChangeCount < 1) return;
    landmarks.landmarkSelectPending = true;
    myRobot.SelectLandmarks(landmarks.pairA1, landmarks.pairA2, landmarks.pairB1, landmarks.pairB2);
    landmarks.zoneChangeCount = 0;
}

void clearLandmarkRanges(LandmarkValues& landmarks) {
    for (int i = 1; i <= landmarks.landmarkCount; ++i) {
        element(landmarks.landmarkRangeA, i) = 0;
        element(landmarks.landmarkRangeB, i) = 0;
    }
}

}  // namespace quorrin
