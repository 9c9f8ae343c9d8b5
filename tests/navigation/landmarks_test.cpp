#include "navigation/landmarks.h"

#include <gtest/gtest.h>

#include <cmath>

#include "base/program_error.h"
#include "support/fake_link.h"

namespace quorrin {
namespace {

// Landmarks 1 and 2 two metres apart along x at height 2, 3 and 4 along y; a table of four rows.
class Landmarks : public ::testing::Test {
  protected:
    Landmarks() {
        marks.landmarkPos = {{}, {0, 0, 0, 2}, {0, 2, 0, 2}, {0, -1, 0, 2}, {0, -1, 2, 2}};
        marks.landmarkRangeA.assign(11, 0);
        marks.landmarkRangeB.assign(11, 0);
        marks.landmarkCount = 10;
        marks.landmarkPairTable = {{}, {0, 1, 2}, {0, 3, 4}, {0, 7, 8}, {0, 5, 10}};
        marks.pairA1 = 1;
        marks.pairA2 = 2;
        marks.pairB1 = 3;
        marks.pairB2 = 4;
        marks.landmarkLocked = true;
    }
    // Ranges from a receiver on the floor at (x, y).
    void rangeA(int mark, double atX, double atY) {
        marks.landmarkRangeA[index(mark)] = range(mark, atX, atY);
    }
    void rangeB(int mark, double atX, double atY) {
        marks.landmarkRangeB[index(mark)] = range(mark, atX, atY);
    }
    double range(int mark, double atX, double atY) const {
        const auto& p = marks.landmarkPos[index(mark)];
        return std::sqrt((p[1] - atX) * (p[1] - atX) + (p[2] - atY) * (p[2] - atY) + p[3] * p[3]);
    }
    static std::size_t index(int mark) { return static_cast<std::size_t>(mark); }
    void firstPairSees() {
        rangeA(1, 0.9, -1.0);
        rangeA(2, 0.9, -1.0);
        rangeB(1, 1.1, -1.0);
        rangeB(2, 1.1, -1.0);
    }
    void secondPairSees() {
        rangeA(3, 0.5, 0.9);
        rangeA(4, 0.5, 0.9);
        rangeB(3, 0.5, 1.1);
        rangeB(4, 0.5, 1.1);
    }

    LandmarkValues marks;
    FakeLink link;
    double x = 0;
    double y = 0;
    double heading = 0;
};

TEST_F(Landmarks, NoPairIsUsableWithoutRanges) {
    EXPECT_EQ(choosePairs(marks), 0);
    EXPECT_FALSE(landmarkFix(marks, x, y, heading));
}

TEST_F(Landmarks, TheFirstPairIsPreferred) {
    firstPairSees();
    secondPairSees();
    EXPECT_EQ(choosePairs(marks), 1);
}

TEST_F(Landmarks, TheSecondPairIsTakenWhenTheFirstMissesARange) {
    firstPairSees();
    secondPairSees();
    for (const int mark : {1, 2}) {
        const double kept = marks.landmarkRangeA[index(mark)];
        marks.landmarkRangeA[index(mark)] = 0;
        EXPECT_EQ(choosePairs(marks), 2) << mark;
        marks.landmarkRangeA[index(mark)] = kept;
        const double keptB = marks.landmarkRangeB[index(mark)];
        marks.landmarkRangeB[index(mark)] = 0;
        EXPECT_EQ(choosePairs(marks), 2) << mark;
        marks.landmarkRangeB[index(mark)] = keptB;
    }
    EXPECT_EQ(choosePairs(marks), 1);
}

TEST_F(Landmarks, RangesOfExactlyThreeTenthsApartAreNotUsable) {
    marks.landmarkRangeA[1] = 0.3;
    marks.landmarkRangeB[1] = 0.6;
    marks.landmarkRangeA[2] = marks.landmarkRangeB[2] = 1;
    ASSERT_EQ(std::fabs(0.3 - 0.6), 0.3);
    EXPECT_EQ(choosePairs(marks), 0);
    marks.landmarkRangeB[1] = 0.599;
    EXPECT_EQ(choosePairs(marks), 1);
}

TEST_F(Landmarks, TheDifferenceOfTheSecondPairIsTakenOnItsFirstMark) {
    marks.landmarkRangeA[3] = 1;
    marks.landmarkRangeB[3] = 1.2;
    marks.landmarkRangeA[4] = 1;
    marks.landmarkRangeB[4] = 5;
    EXPECT_EQ(choosePairs(marks), 2);
}

TEST_F(Landmarks, TwoCirclesGivePositionAndHeading) {
    firstPairSees();
    ASSERT_TRUE(intersectLandmarks(marks, 1, 2, x, y, heading));
    EXPECT_NEAR(x, 1.0, 1e-9);
    EXPECT_NEAR(y, -1.0, 1e-9);
    // from the second receiver (1.1) to the first (0.9) is pi, plus a half pi, wrapped
    EXPECT_NEAR(heading, -1.5707963, 1e-6);
}

TEST_F(Landmarks, TheNegativeRootIsTheFixedChoice) {
    // A receiver on the other side is taken for its mirror image.
    rangeA(1, 0.9, 1.0);
    rangeA(2, 0.9, 1.0);
    rangeB(1, 1.1, 1.0);
    rangeB(2, 1.1, 1.0);
    ASSERT_TRUE(intersectLandmarks(marks, 1, 2, x, y, heading));
    EXPECT_NEAR(y, -1.0, 1e-9);
}

TEST_F(Landmarks, CirclesThatDoNotMeetGiveTheOrigin) {
    marks.landmarkRangeA[1] = marks.landmarkRangeA[2] = 2.1;  // floor radius 0.64, landmarks 2 m apart
    marks.landmarkRangeB[1] = marks.landmarkRangeB[2] = 2.1;
    ASSERT_TRUE(intersectLandmarks(marks, 1, 2, x, y, heading));
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    EXPECT_EQ(heading, -1.5707963 + 1.5707963);
}

TEST_F(Landmarks, ALandmarkDirectlyOverheadHasNoFloorRadius) {
    marks.landmarkRangeA[1] = 2.0;  // equal to its height
    rangeA(2, 0, 0);
    marks.landmarkRangeB[1] = 2.0;
    rangeB(2, 0, 0);
    ASSERT_TRUE(intersectLandmarks(marks, 1, 2, x, y, heading));
    EXPECT_NEAR(x, 0, 1e-6);
    EXPECT_NEAR(y, 0, 1e-6);
}

TEST_F(Landmarks, ARangeShorterThanTheHeightEndsTheCall) {
    firstPairSees();
    marks.landmarkRangeA[1] = 1.9;
    EXPECT_FALSE(intersectLandmarks(marks, 1, 2, x, y, heading));
    EXPECT_FALSE(landmarkFix(marks, x, y, heading));
}

TEST_F(Landmarks, TwoLandmarksOnOneSpotEndTheCall) {
    firstPairSees();
    marks.landmarkPos[2] = marks.landmarkPos[1];
    marks.landmarkRangeA[2] = marks.landmarkRangeA[1];
    marks.landmarkRangeB[2] = marks.landmarkRangeB[1];
    EXPECT_FALSE(intersectLandmarks(marks, 1, 2, x, y, heading));
}

TEST_F(Landmarks, ANumberOutsideTheTablesEndsTheCall) {
    EXPECT_FALSE(intersectLandmarks(marks, 1, 99, x, y, heading));
    EXPECT_FALSE(intersectLandmarks(marks, -1, 2, x, y, heading));
}

TEST_F(Landmarks, AFixComesFromTheUsablePair) {
    secondPairSees();
    ASSERT_TRUE(landmarkFix(marks, x, y, heading));
    EXPECT_NEAR(x, 0.5, 1e-9);
    EXPECT_NEAR(y, 1.0, 1e-9);
    EXPECT_NEAR(heading, 0, 1e-6);
}

TEST_F(Landmarks, BothPairsTogetherGiveTheMeans) {
    firstPairSees();
    secondPairSees();
    ASSERT_TRUE(fixFromChoice(marks, 3, x, y, heading));
    EXPECT_NEAR(x, 0.75, 1e-9);
    EXPECT_NEAR(y, 0.0, 1e-9);
    EXPECT_NEAR(heading, -1.5707963 / 2, 1e-6);
}

TEST_F(Landmarks, WithoutTablesThereIsNoFix) {
    LandmarkValues empty;
    EXPECT_THROW(choosePairs(empty), ProgramError);
    EXPECT_FALSE(landmarkFix(empty, x, y, heading));
}

TEST_F(Landmarks, ClearingZeroesTheRangesUpToTheCount) {
    for (double& r : marks.landmarkRangeA) r = 1;
    for (double& r : marks.landmarkRangeB) r = 1;
    marks.landmarkCount = 9;
    clearLandmarkRanges(marks);
    EXPECT_EQ(marks.landmarkRangeA[0], 1);
    EXPECT_EQ(marks.landmarkRangeA[1], 0);
    EXPECT_EQ(marks.landmarkRangeB[9], 0);
    EXPECT_EQ(marks.landmarkRangeB[10], 1);
}

TEST_F(Landmarks, ACountBeyondTheTablesIsAnError) {
    marks.landmarkCount = 11;
    EXPECT_THROW(clearLandmarkRanges(marks), ProgramError);
}

TEST_F(Landmarks, ZonesAreNotSelectedBeforeTheFirstFix) {
    marks.landmarkLocked = false;
    selectZonePairs(marks, -1, 0, link);
    EXPECT_TRUE(link.operations().empty());
    EXPECT_EQ(marks.zoneRow, 0);
}

TEST_F(Landmarks, ANewZoneReloadsThePairsAndTellsTheRobot) {
    selectZonePairs(marks, -1, 0, link);
    EXPECT_EQ(marks.zoneRow, 2);
    EXPECT_EQ(link.take(), std::vector<std::string>{"SelectLandmarks 3 4 1 2"});
    EXPECT_TRUE(marks.landmarkSelectPending);
    EXPECT_EQ(marks.zoneChangeCount, 0);
}

TEST_F(Landmarks, EachZoneHasItsSecondPairRow) {
    const struct {
        double x, y;
        const char* line;
    } zones[] = {{0, 0, "SelectLandmarks 1 2 3 4"},
                 {-1, 0, "SelectLandmarks 3 4 1 2"},
                 {-3, 0, "SelectLandmarks 7 8 3 4"},
                 {0, -1, "SelectLandmarks 5 10 3 4"}};
    for (const auto& zone : zones) {
        marks.pairA1 = 90;
        marks.pairA2 = 91;
        selectZonePairs(marks, zone.x, zone.y, link);
        EXPECT_EQ(link.take(), std::vector<std::string>{zone.line});
    }
}

TEST_F(Landmarks, TheSameZoneIsNotSentAgain) {
    selectZonePairs(marks, 0, 0, link);
    EXPECT_TRUE(link.operations().empty());
    EXPECT_EQ(marks.zoneRow, 1);
}

TEST_F(Landmarks, BothNumbersMustDifferForAChange) {
    marks.pairA1 = 3;
    marks.pairA2 = 99;
    selectZonePairs(marks, -1, 0, link);
    EXPECT_TRUE(link.operations().empty());
    EXPECT_EQ(marks.zoneRow, 2);
}

TEST_F(Landmarks, OutsideAllZonesTheSelectionStays) {
    marks.zoneRow = 3;
    selectZonePairs(marks, 5, 5, link);
    EXPECT_EQ(marks.zoneRow, 3);
    EXPECT_TRUE(link.operations().empty());
}

TEST_F(Landmarks, ZoneLimitsAreOpenAndClosedAsTold) {
    const auto row = [&](double px, double py) {
        marks.zoneRow = 0;
        marks.landmarkPairTable.resize(5);
        selectZonePairs(marks, px, py, link);
        return marks.zoneRow.value();
    };
    EXPECT_EQ(row(-0.1, 0), 1);
    EXPECT_EQ(row(2.5, 0), 0);
    EXPECT_EQ(row(0, 3.5), 1);
    EXPECT_EQ(row(0, 3.51), 0);
    EXPECT_EQ(row(-2.0, 0), 2);
    EXPECT_EQ(row(-1.0, 1.2), 0);
    EXPECT_EQ(row(-1.0, -1.05), 0);
    EXPECT_EQ(row(-1.0, -1.04), 2);
    EXPECT_EQ(row(-4.5, 0), 3);
    EXPECT_EQ(row(-3, -0.5), 0);
    EXPECT_EQ(row(2.5, -1), 4);
    EXPECT_EQ(row(-0.5, -1.0), 2);  // the earlier row wins
    EXPECT_EQ(row(-0.5, -1.1), 4);
    EXPECT_EQ(row(-1.0, -1.1), 0);
    EXPECT_EQ(row(0, -0.5), 0);
    EXPECT_EQ(row(0, -2.5), 0);
}

TEST_F(Landmarks, APendingZoneChangeIsSentOnTheNextCall) {
    marks.zoneChangeCount = 1;
    selectZonePairs(marks, 0, 0, link);
    EXPECT_EQ(link.take(), std::vector<std::string>{"SelectLandmarks 1 2 3 4"});
}

}  // namespace
}  // namespace quorrin
